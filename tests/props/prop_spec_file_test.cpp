#include "bexa/props/prop_spec_file.h"
#include "tests/props/spec_fixture.h"

using namespace bexa::test;

namespace {

class PropSpecFile : public SpecTest {
protected:
    BexPropSpecFile specification_;
};

// ---- The sample

class SampleSpec : public PropSpecFile {
protected:
    void SetUp() override { ASSERT_EQ(specification_.readFrom(sample_.c_str()), 1UL); }

    std::string amplifier_ = testData("../../examples/amplifier");
    std::string sample_ = amplifier_ + "/system/etc/eng/PropSpec";
    EnvGuard library_{"AMPLIFIER_LIBRARY", amplifier_ + "/library"};
};

TEST_F(SampleSpec, HasItsOwnersAndThoseOfHiddenProperties) {
    YString_Array names;
    EXPECT_EQ(specification_.enumOwnerRecNames(names), 1UL);
    EXPECT_EQ(joined(names), "$Component simulation $cPin $sNet $bNet $Symbol $Sheet");
    EXPECT_EQ(specification_.fileName(), sample_);
}

TEST_F(SampleSpec, RowsOfTheReferenceFileBelongToTheOwnerThatNamesIt) {
    EXPECT_EQ(namesOf(specification_.ownerRec("$Component"), 1, 0),
              "reference partName function value tolerance power Layout partNumber maker Ordering simulation "
              "compComment");
    EXPECT_STREQ(specification_.displayString("$Component", "value"), "Value"); // the first row counts
    EXPECT_STREQ(specification_.displayString("$Component", "leadTime"), "Lead time (weeks)");
}

TEST_F(SampleSpec, SharesItsTables) {
    const BexPropOwnerRec* layout = specification_.ownerRec(BexNetObject)->refTable("Layout", 0);
    EXPECT_EQ(layout, specification_.ownerRec(BexComponentObject)->refTable("Layout", 0));
    EXPECT_EQ(layout->useCount(), 3);
    EXPECT_EQ(specification_.ownerRec(BexBusObject)->refTable("Signal", 0)->useCount(), 2);
}

TEST_F(SampleSpec, IsWrittenWithEachTableOnce) {
    EXPECT_EQ(linesOf(specification_), contentOf(testData("props/PropSpec.written")));
}

TEST_F(SampleSpec, ReadsBackWhatItWrote) {
    BexPropSpecFile again;
    ASSERT_TRUE(read(again, linesOf(specification_)));
    EXPECT_EQ(linesOf(again), linesOf(specification_));
}

// ---- Reading

TEST_F(PropSpecFile, IsEmptyToBeginWith) {
    EXPECT_EQ(linesOf(specification_), "");
    EXPECT_EQ(specification_.fileName(), nullptr);
    EXPECT_EQ(specification_.ownerRec("$Component"), nullptr);
}

TEST_F(PropSpecFile, AFileThatIsNotThereIsNotRead) {
    EXPECT_EQ(specification_.readFrom(nullptr), 0UL);
    EXPECT_EQ(specification_.readFrom(dir_.file("none").c_str()), 0UL);
    EXPECT_EQ(specification_.fileName(), nullptr);
}

TEST_F(PropSpecFile, AnEmptyFileAndADirectoryHaveNoOwners) {
    EXPECT_TRUE(read(specification_, ""));
    EXPECT_EQ(specification_.readFrom(dir_.path().c_str()), 1UL);
    EXPECT_EQ(linesOf(specification_), "");
}

TEST_F(PropSpecFile, OwnersComeInTheOrderOfKindsNotOfTheFile) {
    EXPECT_TRUE(read(specification_,
                     "$Frame {}\n$Sheet {}\n$Symbol {}\n$nNode {}\n$bNet {}\n$sNet {}\n$cPin {}\n"
                     "$Component {}\n$other {}\n"));
    YString_Array names;
    specification_.enumOwnerRecNames(names);
    EXPECT_EQ(joined(names), "$Component $cPin $sNet $bNet $nNode $Symbol $Sheet $Frame");
}

TEST_F(PropSpecFile, ASectionThatIsNoTableIsLeftOut) {
    EXPECT_TRUE(read(specification_, "$Component: ( a int )\n$cPin: x\n$sNet { ( a int ) }\n"));
    YString_Array names;
    specification_.enumOwnerRecNames(names);
    EXPECT_EQ(joined(names), "$sNet");
}

TEST_F(PropSpecFile, TheFirstRowOfANameCounts) {
    EXPECT_TRUE(read(specification_, "$sNet { ( a int A ) ( a text B ) ( b int ) ( a ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a b");
    EXPECT_STREQ(specification_.displayString("$sNet", "a"), "A");
}

TEST_F(PropSpecFile, AnEmptyRowIsPassedOver) {
    EXPECT_TRUE(read(specification_, "$sNet { ( ) ( a int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a");
}

TEST_F(PropSpecFile, ARowThatIsNoListEndsTheReadingAndWhatWasReadStays) {
    EXPECT_FALSE(read(specification_, "$sNet { ( a int ) bare ( b int ) }\n$bNet { ( c int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a");
    EXPECT_EQ(specification_.ownerRec("$bNet"), nullptr);
}

TEST_F(PropSpecFile, AFailureInATableIsPassedOn) {
    EXPECT_FALSE(read(specification_, "$sNet { ( $RefTable T ) ( b int ) }\nT { ( a int ) bare }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "T a");
}

TEST_F(PropSpecFile, AFailureInATableOfAnotherOwnerIsPassedOnToo) {
    const std::string file = written("$sNet { ( $RefTable T ) }\nT { bare }", "other");
    EXPECT_FALSE(
        read(specification_, "$Component { ( $RefFile \"" + file +
                                 "\" $sNet ) ( b int ) }\n"
                                 "$sNet { ( a int ) ( $RefTable T ) }\n$bNet { ( c int ) }\nT { bare }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$Component")), "T b");
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a T");
    EXPECT_EQ(specification_.ownerRec("$bNet"), nullptr);
}

TEST_F(PropSpecFile, ATableThatIsMissingOrNoTableDoesNothing) {
    EXPECT_TRUE(read(
        specification_,
        "$sNet { ( $RefTable ) ( $RefTable \"\" ) ( $RefTable none ) ( $RefTable V ) ( a int ) }\nV: x\n"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a");
}

TEST_F(PropSpecFile, WordsOfReferencesAreComparedExactly) {
    EXPECT_TRUE(read(specification_, "$sNet { ( $reftable T ) }\nT { ( a int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "$reftable");
}

TEST_F(PropSpecFile, ARowOfTheTypeOfATableHasNone) {
    EXPECT_TRUE(read(specification_, "$sNet { ( T refTable \"x\" ON ) }\nT { ( a int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "T");
    EXPECT_EQ(linesOf(specification_), "$sNet {\n}\n");
}

TEST_F(PropSpecFile, ATableNamedTwiceIsHeldOnce) {
    EXPECT_TRUE(
        read(specification_, "$sNet { ( $RefTable T ) ( a int ) ( $RefTable T other ) }\nT { ( t int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "T t a");
    EXPECT_EQ(specification_.ownerRec("$sNet")->refTable("T", 0)->useCount(), 1);
}

TEST_F(PropSpecFile, AReferenceFileWithoutItsSectionDoesNothing) {
    const std::string file = written("$sNet { ( c int ) }\nV: x\n", "other");
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefFile ) ( $RefFile \"" + file + "\" ) ( $RefFile \"" +
                                         file + "\" none ) ( $RefFile \"" + file + "\" V ) ( $RefFile \"" +
                                         dir_.file("none") +
                                         "\" $sNet ) ( $RefFile \"\" $sNet ) ( a int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a");
}

TEST_F(PropSpecFile, ARowRepeatedInAReferenceFileIsPassedOver) {
    const std::string file = written("S { ( a text B ) ( b int ) }", "other");
    EXPECT_TRUE(read(specification_, "$sNet { ( a int A ) ( $RefFile \"" + file + "\" S ) ( b text B ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a b");
    EXPECT_STREQ(specification_.displayString("$sNet", "a"), "A");
    EXPECT_EQ(specification_.valueType("$sNet", "b"), BexPropTypeInt);
}

TEST_F(PropSpecFile, AFailureInAReferenceFileIsNotPassedOn) {
    const std::string file = written("S { ( b int ) ( $RefTable T ) ( c int ) }\nT { bare }", "other");
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefFile \"" + file + "\" S ) ( a int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "b T a");
}

TEST_F(PropSpecFile, TablesOfAReferenceFileComeFromThatFile) {
    const std::string file = written("S { ( $RefTable T ) }\nT { ( there int ) }", "other");
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefFile \"" + file + "\" S ) }\nT { ( here int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "T there");
}

TEST_F(PropSpecFile, ATableOfTwoFilesIsOneAndHasTheRowsOfBoth) {
    const std::string file = written("S { ( $RefTable T ) }\nT { ( t1 text ) ( there int ) }", "other");
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefTable T ) }\n$bNet { ( $RefFile \"" + file +
                                         "\" S ) }\nT { ( t1 int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "T t1 there");
    EXPECT_EQ(specification_.ownerRec("$sNet")->refTable("T", 0)->useCount(), 2);
    EXPECT_EQ(specification_.valueType("$sNet", "t1"), BexPropTypeInt);
}

TEST_F(PropSpecFile, HiddenPropertiesBringTheirSections) {
    EXPECT_TRUE(read(specification_,
                     "$sNet { ( h hide ) ( none hide ) ( v hide ) ( $RefTable T ) }\n"
                     "T { ( deep hide ) ( h text ) }\nv: x\n"
                     "h { ( a int ) ( nested hide ) }\ndeep { ( b int ) }\nnested { ( c int ) }\n"));
    YString_Array names;
    specification_.enumOwnerRecNames(names);
    EXPECT_EQ(joined(names), "$sNet h deep");
    EXPECT_EQ(namesOf(specification_.ownerRec("h")), "a nested");
}

TEST_F(PropSpecFile, APropertyIsHiddenByItsFirstRow) {
    EXPECT_TRUE(
        read(specification_, "$sNet { ( h text ) ( $RefTable T ) }\nT { ( h hide ) }\nh { ( a int ) }\n"));
    EXPECT_EQ(specification_.ownerRec("h"), nullptr);
}

TEST_F(PropSpecFile, AFailureBehindAHiddenPropertyIsPassedOn) {
    EXPECT_FALSE(read(specification_, "$sNet { ( h hide ) }\nh { bare }\n"));
}

TEST_F(PropSpecFile, AHiddenPropertyMayHaveTheNameOfAKind) {
    EXPECT_TRUE(
        read(specification_, "$Component { ( $Frame hide ) }\n$Frame { ( a int ) }\n$cPin { ( b int ) }"));
    YString_Array names;
    specification_.enumOwnerRecNames(names);
    EXPECT_EQ(joined(names), "$Component $Frame $cPin");
    EXPECT_EQ(namesOf(specification_.ownerRec("$Frame")), "a");
}

TEST_F(PropSpecFile, ASecondReadingAddsWhatIsNew) {
    EXPECT_TRUE(read(specification_, "$sNet { ( a int ) ( $RefTable T ) }\nT { ( t int ) }"));
    EXPECT_TRUE(read(specification_,
                     "$sNet { ( a text ) ( $RefTable T ) ( b int ) }\nT { ( u int ) }\n$bNet { ( c int ) }"));
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "a T t b"); // a table held already is not read
    EXPECT_EQ(specification_.valueType("$sNet", "a"), BexPropTypeInt);
    EXPECT_EQ(namesOf(specification_.ownerRec("$bNet")), "c");
}

TEST_F(PropSpecFile, JapaneseTextsStayAsTheyAre) {
    EXPECT_TRUE(
        read(specification_,
             "# japanese_coding:sjis\n\n$sNet { ( a text \"\x83\x7B\x83\x7D\x95\x5C\" ON 1 \x95\x5C ) }"));
    EXPECT_STREQ(specification_.displayString("$sNet", "a"), "\x83\x7B\x83\x7D\x95\x5C");
    YString_Array values;
    EXPECT_EQ(specification_.valueSelection("$sNet", "a", values), 1UL);
    EXPECT_EQ(joined(values), "\x95\x5C");
}

TEST_F(PropSpecFile, AnEucProcessGetsEuc) {
    locale_.set("ja_JP.eucJP");
    EXPECT_TRUE(read(specification_, "# japanese_coding:sjis\n\n$sNet { ( a text \"\x95\x5C\" ) }"));
    EXPECT_STREQ(specification_.displayString("$sNet", "a"), "\xC9\xBD");
}

TEST_F(PropSpecFile, AnOwnerReadsATableOfTheCallers) {
    const std::string path = written("$sNet { ( a int ) ( $RefTable T ) }\nT { ( t int ) }");
    const std::unique_ptr<YioRscValue> value(YioRscFile(path.c_str()).value("$sNet"));
    BexPropOwnerRec* owner = specification_.appendOwnerRec("mine");
    EXPECT_EQ(owner->readFrom(specification_, path.c_str(), nullptr), 0UL);
    EXPECT_EQ(owner->readFrom(specification_, path.c_str(), value->table()), 1UL);
    EXPECT_EQ(namesOf(owner), "a T t");
    BexPropOwnerRec alone;
    EXPECT_EQ(alone.readFrom(specification_, nullptr, value->table()), 1UL); // no file, so no table
    EXPECT_EQ(namesOf(&alone), "a");
    EXPECT_EQ(alone.readFrom(specification_, path.c_str(), value->table()), 1UL);
    EXPECT_EQ(alone.refTable("T", 0), owner->refTable("T", 0));
}

// ---- Writing

TEST_F(PropSpecFile, OnlyComponentsAndPinsHaveAPlace) {
    EXPECT_TRUE(read(specification_,
                     "$Component { ( a int A ON LCDB 1 ) }\n$cPin { ( a int A ON CIRCUNEDIT 1 ) }\n"
                     "$sNet { ( a int A ON LCDB 1 ) }\n"));
    EXPECT_EQ(linesOf(specification_), "$Component {\n\t( a\tint\t\"A\"\tON\tLCDB\t1 )\n}\n"
                                       "$cPin {\n\t( a\tint\t\"A\"\tON\tCIRCUNEDIT\t1 )\n}\n"
                                       "$sNet {\n\t( a\tint\t\"A\"\tON\t1 )\n}\n");
}

TEST_F(PropSpecFile, ANetsPlaceIsLostInWriting) {
    EXPECT_TRUE(read(specification_, "$sNet { ( a int A ON LCDB 1 ) }\n"));
    EXPECT_EQ(specification_.propPlace("$sNet", "a"), BexPlaceLcdb);
    EXPECT_EQ(specification_.editFlag("$sNet", "a"), 0UL);
    BexPropSpecFile again;
    EXPECT_TRUE(read(again, linesOf(specification_)));
    EXPECT_EQ(again.propPlace("$sNet", "a"), BexPlaceCirc);
    EXPECT_EQ(again.editFlag("$sNet", "a"), 1UL);
}

TEST_F(PropSpecFile, ASharedTableHasThePlacesOfTheOwnerItIsWrittenBehind) {
    EXPECT_TRUE(read(specification_,
                     "$Component { ( $RefTable T ) }\n$sNet { ( $RefTable T ) ( $RefTable U ) }\n"
                     "T { ( t int t ON LCDB 1 ) }\nU { ( u int u ON LCDB 1 ) }"));
    EXPECT_EQ(linesOf(specification_),
              "$Component {\n\t( $RefTable\t\"T\"\t\"T\" )\n}\nT {\n\t( t\tint\t\"t\"\tON\tLCDB\t1 )\n}\n"
              "$sNet {\n\t( $RefTable\t\"T\"\t\"T\" )\n\t( $RefTable\t\"U\"\t\"U\" )\n}\n"
              "U {\n\t( u\tint\t\"u\"\tON\t1 )\n}\n");
}

TEST_F(PropSpecFile, WritingReplacesWhatWasThere) {
    YString_Array lines;
    lines.append("old");
    specification_.makeString(lines);
    EXPECT_EQ(lines.size(), 0);
}

// ---- Look-ups

TEST_F(PropSpecFile, KindsAndSections) {
    const struct {
        const char* section;
        BexObjectType type;
    } rows[] = {
        {"$Component", BexObjectType(7)}, {"$cPin", BexObjectType(15)},  {"$sNet", BexObjectType(8)},
        {"$bNet", BexObjectType(11)},     {"$nNode", BexObjectType(17)}, {"$Symbol", BexObjectType(19)},
        {"$Sheet", BexObjectType(18)},    {"$Frame", BexObjectType(5)},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(BexPropSpecFile::objectType(row.section), row.type);
        EXPECT_STREQ(BexPropSpecFile::objectName(row.type), row.section);
    }
    for (const char* section : {"$component", "$sNetString", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(BexPropSpecFile::objectType(section), 21);
    }
    EXPECT_STREQ(BexPropSpecFile::objectName(BexObjectType(21)), "");
    EXPECT_STREQ(BexPropSpecFile::objectName(BexObjectType(9)), "");
}

TEST_F(PropSpecFile, OwnersAreMadeFoundAndRemoved) {
    BexPropOwnerRec* owner = specification_.appendOwnerRec(BexNetObject);
    ASSERT_NE(owner, nullptr);
    EXPECT_STREQ(owner->objectName(), "$sNet");
    EXPECT_EQ(specification_.appendOwnerRec("$sNet"), owner);
    EXPECT_EQ(specification_.ownerRec(BexNetObject), owner);
    EXPECT_STREQ(specification_.appendOwnerRec("own")->aliasName(), "own");
    EXPECT_EQ(specification_.removeOwnerRec(BexNetObject), 1UL);
    EXPECT_EQ(specification_.removeOwnerRec("$sNet"), 0UL);
    EXPECT_EQ(specification_.ownerRec("$sNet"), nullptr);
    EXPECT_NE(specification_.ownerRec("own"), nullptr);
}

TEST_F(PropSpecFile, NoNameIsNoOwner) {
    EXPECT_EQ(specification_.appendOwnerRec(""), nullptr);
    EXPECT_EQ(specification_.appendOwnerRec(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(specification_.appendOwnerRec(BexNoObject), nullptr);
    EXPECT_EQ(specification_.ownerRec(BexNoObject), nullptr);
    EXPECT_EQ(specification_.removeOwnerRec(BexNoObject), 0UL);
    EXPECT_EQ(specification_.removeOwnerRec(""), 0UL);
}

TEST_F(PropSpecFile, AnOwnerThatGoesReleasesItsTables) {
    EXPECT_TRUE(read(specification_, "$Component { ( $RefTable T ) ( a int ) }\n$sNet { ( $RefTable T ) }\n"
                                     "$bNet { ( $RefTable T ) }\nT { ( t int ) }"));
    const BexPropOwnerRec* table = specification_.ownerRec("$bNet")->refTable("T", 0);
    EXPECT_EQ(table->useCount(), 3);
    EXPECT_EQ(specification_.removeOwnerRec("$Component"), 1UL);
    EXPECT_EQ(table->useCount(), 2);
    EXPECT_EQ(specification_.removeOwnerRec("$bNet"), 1UL);
    EXPECT_EQ(specification_.ownerRec("$sNet")->refTable("T", 0)->useCount(), 1);
    EXPECT_EQ(namesOf(specification_.appendOwnerRec("$Component")), "");
}

TEST_F(PropSpecFile, RenamedOwnersAreFoundByTheirNewNames) {
    for (const char* name : {"A", "B", "C", "D", "E"}) specification_.appendOwnerRec(name);
    specification_.ownerRec("A")->objectName("Z");
    EXPECT_EQ(specification_.ownerRec("A"), nullptr);
    EXPECT_STREQ(specification_.ownerRec("Z")->objectName(), "Z");
    *specification_.ownerRec("B") = BexPropOwnerRec();
    EXPECT_EQ(specification_.ownerRec("B"), nullptr);
    YString_Array names;
    specification_.enumOwnerRecNames(names);
    EXPECT_EQ(joined(names, "|"), "Z||C|D|E");
}

TEST_F(PropSpecFile, WhatIsUnknownHasItsAnswers) {
    specification_.appendOwnerRec("$sNet");
    for (const char* owner : {"$sNet", "$bNet", "", static_cast<const char*>(nullptr)}) {
        EXPECT_STREQ(specification_.displayString(owner, "p"), "p");
        EXPECT_EQ(specification_.isExist(owner, "p"), 0UL);
        EXPECT_EQ(specification_.valueType(owner, "p"), BexPropTypeUnknown);
        EXPECT_EQ(specification_.propPlace(owner, "p"), BexPlaceCirc);
        EXPECT_EQ(specification_.editFlag(owner, "p"), 1UL);
        EXPECT_EQ(specification_.viewerColor(owner, "p"), -1);
        YString_Array values;
        values.append("old");
        EXPECT_EQ(specification_.valueSelection(owner, "p", values), 0UL);
        EXPECT_EQ(values.size(), 0);
    }
    YString_Array names;
    names.append("old");
    EXPECT_EQ(specification_.enumPropNames("$bNet", names, 1), 0UL);
    EXPECT_EQ(names.size(), 0);
    EXPECT_EQ(specification_.enumDisplayStrings(BexNoObject, names, 1), 0UL);
}

TEST_F(PropSpecFile, DisplayFlagOfAnUnknownPropertyIsSix) {
    specification_.appendOwnerRec("$sNet");
    EXPECT_EQ(specification_.displayFlag("$sNet", "p"), 6UL);
    EXPECT_EQ(specification_.displayFlag("none", "p"), 6UL);
    EXPECT_EQ(specification_.displayFlag(BexNetObject, nullptr), 6UL);
}

TEST_F(PropSpecFile, LookUpsGoByNameAndByKindAndThroughTables) {
    EXPECT_TRUE(read(specification_,
                     "$cPin { ( a int A ON ) ( $RefTable T Table ) }\nT { ( t float B ON LCDB 3 x y ) }"));
    EXPECT_STREQ(specification_.displayString("$cPin", "t"), "B");
    EXPECT_STREQ(specification_.displayString(BexComponentPinObject, "t"), "B");
    EXPECT_EQ(specification_.isExist(BexComponentPinObject, "t"), 1UL);
    EXPECT_EQ(specification_.valueType(BexComponentPinObject, "t"), BexPropTypeFloat);
    EXPECT_EQ(specification_.displayFlag(BexComponentPinObject, "t"), 1UL);
    EXPECT_EQ(specification_.propPlace(BexComponentPinObject, "t"), BexPlaceLcdb);
    EXPECT_EQ(specification_.editFlag(BexComponentPinObject, "t"), 0UL);
    EXPECT_EQ(specification_.viewerColor(BexComponentPinObject, "t"), 3);
    YString_Array texts;
    EXPECT_EQ(specification_.valueSelection(BexComponentPinObject, "t", texts), 1UL);
    EXPECT_EQ(joined(texts), "x y");
    EXPECT_EQ(specification_.valueSelection("$cPin", "a", texts), 0UL);
    EXPECT_EQ(specification_.enumPropNames("$cPin", texts, 1), 1UL);
    EXPECT_EQ(joined(texts), "a T t");
    EXPECT_EQ(specification_.enumPropNames(BexComponentPinObject, texts, 0), 1UL);
    EXPECT_EQ(joined(texts), "a");
    EXPECT_EQ(specification_.enumDisplayStrings(BexComponentPinObject, texts, 1), 1UL);
    EXPECT_EQ(joined(texts), "A Table B");
}

TEST_F(PropSpecFile, ARowWithoutATextHasNoDisplayString) {
    EXPECT_TRUE(read(specification_, "$sNet { ( a int ) }"));
    EXPECT_EQ(specification_.displayString("$sNet", "a"), nullptr);
}

TEST_F(PropSpecFile, CopiesShareTheirTables) {
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefTable T ) ( a int ) }\nT { ( t int ) }"));
    const BexPropOwnerRec* table = specification_.ownerRec("$sNet")->refTable("T", 0);
    {
        BexPropSpecFile copy(specification_);
        EXPECT_EQ(table->useCount(), 2);
        copy.ownerRec("$sNet")->removePropSpecRec("a");
        copy.ownerRec("$sNet")->refTable("T", 0)->appendPropSpecRec("u");
        EXPECT_STREQ(copy.fileName(), specification_.fileName());
    }
    EXPECT_EQ(table->useCount(), 1);
    EXPECT_EQ(namesOf(specification_.ownerRec("$sNet")), "T t u a");
}

TEST_F(PropSpecFile, AnAssignmentReplacesEverything) {
    BexPropSpecFile target;
    EXPECT_TRUE(
        read(target, "$Component { ( a int ) ( $RefTable T ) }\n$cPin { ( b int ) }\nT { ( t int ) }"));
    EXPECT_TRUE(read(specification_, "$sNet { ( c int ) ( $RefTable T ) }\nT { ( t int ) }"));
    target = specification_;
    EXPECT_EQ(linesOf(target), linesOf(specification_));
    EXPECT_EQ(target.ownerRec("$Component"), nullptr);
    EXPECT_EQ(specification_.ownerRec("$sNet")->refTable("T", 0)->useCount(), 2);
    const BexPropSpecFile& self = target;
    target = self;
    EXPECT_EQ(linesOf(target), linesOf(specification_));
}

} // namespace
