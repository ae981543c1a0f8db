#include "bexa/design/net_list.h"

#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "bexa/design/comp_kind.h"
#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

struct Discard {
    void operator()(BexNetList* list) const { BexNetList::close(list, BexCloseDiscard); }
    void operator()(BexCompKind* kinds) const { BexCompKind::close(kinds, BexCloseDiscard); }
};
using NetList = std::unique_ptr<BexNetList, Discard>;
using Kinds = std::unique_ptr<BexCompKind, Discard>;

// The defaults, and three kinds of which two share a header.
class NetListFile : public ::testing::Test {
protected:
    NetListFile() : kinds(BexCompKind::open(dir.file("kinds").c_str(), BexOpenCreate)) {
        kinds->compKind(1, "U", "gate");
        kinds->compKind(2, "R", "resistor");
        kinds->compKind(3, "U", "amplifier");
    }

    NetList open(BexOpenMode mode) const { return NetList(BexNetList::open(file.c_str(), mode, *kinds)); }
    NetList read(const std::string& content) const {
        writeFile(file, content);
        return open(BexOpenRead);
    }

    const TempDir dir;
    const std::string file = dir.file("counters.rsc");
    const Kinds kinds;
};

std::string valueOf(const BexRefHeader* header) {
    YString value;
    header->value(value);
    return std::string(value);
}

// All counters, one after the other: nets, buses, symbols, blocks, the kinds 1 and 2.
std::string counters(BexNetList& list) {
    std::string text;
    for (const BexRefHeader* header : {list.netLabel(), list.busLabel(), list.reference(99, 0),
                                       list.reference(99, 1), list.reference(1, 0), list.reference(2, 0)}) {
        text += (text.empty() ? "" : " ") + valueOf(header);
    }
    return text;
}

const std::string fresh = "SIG1 BUS1 SY1 X1 U1 R1";

std::string table(const std::string& key, const std::string& rows) {
    return key + " 2 {\n" + rows + "}\n";
}

const std::string freshFile = table("netLabelHeader", "\t\"SIG\"\t1\n") +
                              table("busLabelHeader", "\t\"BUS\"\t1\n") +
                              table("referenceHeader", "\t\"SY\"\t1\n\t\"X\"\t1\n\t\"U\"\t1\n\t\"R\"\t1\n");

} // namespace

TEST_F(NetListFile, AFreshListCountsFromOne) {
    const NetList list = open(BexOpenCreate);
    ASSERT_TRUE(list);
    EXPECT_EQ(counters(*list), fresh);
    EXPECT_EQ(list->fileName(), file);
    EXPECT_EQ(list->openMode(), BexOpenCreate);
    EXPECT_FALSE(exists(file));
}

TEST_F(NetListFile, AnEmptyFileKeepsTheDefaults) {
    const NetList list = read("");
    ASSERT_TRUE(list);
    EXPECT_EQ(counters(*list), fresh);
}

TEST_F(NetListFile, HeadersComeFromTheKinds) {
    kinds->netHeader("N");
    kinds->busHeader("B");
    kinds->defaultSymbRefHeader("S");
    kinds->defaultBlockRefHeader("BLK");
    EXPECT_EQ(counters(*open(BexOpenCreate)), "N1 B1 S1 BLK1 U1 R1");
}

TEST_F(NetListFile, NothingOfTheKindsIsUsedLater) {
    Kinds others(BexCompKind::open(dir.file("others").c_str(), BexOpenCreate));
    others->compKind(1, "Q", "");
    const NetList list(BexNetList::open(file.c_str(), BexOpenCreate, *others));
    others.reset();
    EXPECT_EQ(valueOf(list->reference(1, 0)), "Q1");
}

TEST_F(NetListFile, KindsOfOneHeaderCountTogether) {
    const NetList list = open(BexOpenCreate);
    ++*list->reference(1, 0);
    EXPECT_EQ(valueOf(list->reference(3, 0)), "U2");
    EXPECT_EQ(list->reference(1, 0), list->reference(3, 1));
    EXPECT_EQ(valueOf(list->reference(2, 0)), "R1");
}

TEST_F(NetListFile, AKindThatIsNotKnownHasADefaultHeader) {
    const NetList list = open(BexOpenCreate);
    EXPECT_STREQ(list->reference(99, 0)->header(), "SY");
    EXPECT_STREQ(list->reference(99, 1)->header(), "X");
    EXPECT_STREQ(list->reference(0, 0)->header(), "SY");
}

TEST_F(NetListFile, TheKindNumberedZeroIsNotTheDefault) {
    kinds->compKind(0, "Z", "");
    const NetList list = open(BexOpenCreate);
    EXPECT_STREQ(list->reference(0, 0)->header(), "Z");
    EXPECT_STREQ(list->reference(99, 0)->header(), "SY");
}

TEST_F(NetListFile, AKindWithADefaultHeaderCountsWithTheDefault) {
    kinds->compKind(4, "X", "");
    const NetList list = open(BexOpenCreate);
    ++*list->reference(4, 0);
    EXPECT_EQ(valueOf(list->reference(99, 1)), "X2");
}

TEST_F(NetListFile, LabelsCountApartFromReferencesOfTheSameText) {
    kinds->compKind(4, "SIG", "");
    const NetList list = open(BexOpenCreate);
    ++*list->reference(4, 0);
    EXPECT_EQ(valueOf(list->netLabel()), "SIG1");
}

TEST_F(NetListFile, AFreshListIsWrittenWhole) {
    BexNetList* list = open(BexOpenCreate).release();
    EXPECT_TRUE(BexNetList::close(list, BexCloseAuto));
    EXPECT_EQ(contentOf(file), freshFile);
}

TEST_F(NetListFile, TheSampleIsReadAndWrittenBack) {
    const std::string sample = contentOf(testData("design/net_list.rsc"));
    const NetList list = read(sample);
    ASSERT_TRUE(list);
    EXPECT_EQ(counters(*list), "SIG12 BUS3 SY1 X4 U27 R113");
    const std::string copy = dir.file("copy");
    EXPECT_TRUE(list->saveAs(copy.c_str(), BexSaveNew));
    EXPECT_EQ(contentOf(copy), sample);
}

TEST_F(NetListFile, ALabelCountedUpIsFoundAgain) {
    BexNetList* list = open(BexOpenCreate).release();
    ++*list->netLabel();
    ASSERT_TRUE(BexNetList::close(list, BexCloseSave));
    EXPECT_EQ(counters(*open(BexOpenRead)), "SIG2 BUS1 SY1 X1 U1 R1");
}

TEST_F(NetListFile, RowsSayHowTheyCount) {
    const struct {
        std::string content;
        std::string counters;
        const char* meaning;
    } rows[] = {
        {table("netLabelHeader", "\"SIG\" 5\n"), "SIG5 BUS1 SY1 X1 U1 R1", "one table only"},
        {table("busLabelHeader", "BUS 5\n"), "SIG1 BUS5 SY1 X1 U1 R1", "a bare text"},
        {table("netLabelHeader", "\"OTHER\" 5\n"), "SIG5 BUS1 SY1 X1 U1 R1",
         "the text of a label is dropped"},
        {table("netLabelHeader", "\"A text longer than its room\" 5\n"), "SIG5 BUS1 SY1 X1 U1 R1",
         "even a long one"},
        {table("netLabelHeader", "{ 5\n"), "SIG5 BUS1 SY1 X1 U1 R1", "whatever token it is"},
        {table("netLabelHeader", "\"SIG\" 5\n\"SIG\" 7\n"), "SIG7 BUS1 SY1 X1 U1 R1",
         "the last row of a label wins"},
        {table("netLabelHeader", ""), fresh, "a label without a row"},
        {table("netLabelHeader", "\"SIG\" 5\n") + table("netLabelHeader", ""), "SIG5 BUS1 SY1 X1 U1 R1",
         "a key twice"},
        {table("referenceHeader", "\"U\" 5\n\"X\" 7\n"), "SIG1 BUS1 SY1 X7 U5 R1",
         "references by their texts"},
        {table("referenceHeader", "\"NONE\" 5\n\"R\" 7\n"), "SIG1 BUS1 SY1 X1 U1 R7",
         "an unknown text is dropped"},
        {table("referenceHeader", "\"u\" 5\n"), fresh, "texts are compared exactly"},
        {table("referenceHeader", "\"U\" 5\n\"U\" 7\n"), "SIG1 BUS1 SY1 X1 U7 R1",
         "the last row of a text wins"},
        {table("referenceHeader", "\"U\" 5\n") + table("netLabelHeader", "\"SIG\" 7\n"),
         "SIG7 BUS1 SY1 X1 U5 R1", "any order"},
        {table("referenceHeader", "\"U\" 5x\n"), "SIG1 BUS1 SY1 X1 U5 R1",
         "counts are read as atoi reads them"},
        {table("referenceHeader", "\"U\" 99999999999\n"), "SIG1 BUS1 SY1 X1 U2147483647 R1",
         "counts saturate"},
        {"netLabelHeader 2 { \"SIG\" 5 } busLabelHeader 2 { \"BUS\"\r\n7 }", "SIG5 BUS7 SY1 X1 U1 R1",
         "line ends carry no meaning"},
        {"# japanese_coding:sjis\n" + table("netLabelHeader", "# a comment\n\"SIG\" 5 # another\n"),
         "SIG5 BUS1 SY1 X1 U1 R1", "comments"},
    };
    for (const auto& row : rows) {
        const NetList list = read(row.content);
        ASSERT_TRUE(list) << row.meaning;
        EXPECT_EQ(counters(*list), row.counters) << row.meaning;
    }
}

TEST_F(NetListFile, BreachesOfTheFormatFailTheLoad) {
    const struct {
        std::string content;
        const char* meaning;
    } rows[] = {
        {table("netLabelHeader", "\"SIG\" 0\n"), "a count of 0"},
        {table("busLabelHeader", "\"BUS\" -1\n"), "a negative count"},
        {table("referenceHeader", "\"U\" 0\n"), "a count of 0"},
        {table("referenceHeader", "\"NONE\" 0\n"), "a count of 0 of an unknown text"},
        {table("referenceHeader", "\"U\" word\n"), "a count that is no number"},
        {table("referenceHeader", "\"U\" \"\"\n"), "an empty count"},
        {table("referenceHeader", "\"U\"\n"), "a row without a count"},
        {table("netLabelHeader", "\"SIG\"\n"), "a row without a count"},
        {"netLabelHeader 3 { }\n", "another column count"},
        {"referenceHeader 1 { }\n", "another column count"},
        {"netLabelHeader { }\n", "no column count"},
        {"netLabelHeader : 5\n", "no table"},
        {"netLabelHeader\n", "nothing behind the key"},
        {"netLabelHeader 2 {\n\"SIG\" 5\n", "no end"},
        {"referenceHeader 2 {\n", "no end"},
        {table("unknown", ""), "an unknown key"},
        {table("NetLabelHeader", ""), "a key in another case"},
        {"unknown : 5\n", "an unknown key"},
        {table("netLabelHeader", "\"SIG\" 5\n") + "}\n", "something else than a key"},
        {table("netLabelHeader", "\"SIG 5\n"), "an open quote"},
        {std::string("\0", 1), "a NUL byte"},
        {std::string(10'000'000, 'x'), "one long word"},
        {std::string("\x7f"
                     "ELF\x02\x01\x01\0\0\0",
                     10),
         "no text at all"},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(read(row.content)) << row.meaning;
        EXPECT_EQ(contentOf(file), row.content) << row.meaning;
    }
}

TEST_F(NetListFile, TheTextInTheRowOfALabelIsDropped) {
    const NetList list = read(table("netLabelHeader", "\"OTHER\" 5\n") + table("busLabelHeader", "\"\" 7\n"));
    ASSERT_TRUE(list);
    EXPECT_EQ(counters(*list), "SIG5 BUS7 SY1 X1 U1 R1");
}

TEST_F(NetListFile, ATextTheKindsDoNotHaveIsGoneAtTheNextSave) {
    writeFile(file, table("referenceHeader", "\"NONE\" 5\n\"U\" 3\n"));
    ASSERT_TRUE(BexNetList::close(open(BexOpenUpdate).release(), BexCloseSave));
    EXPECT_EQ(contentOf(file).find("NONE"), std::string::npos);
    EXPECT_NE(contentOf(file).find("\"U\"\t3\n"), std::string::npos);
}

TEST_F(NetListFile, AHeaderOf255BytesComesBackAndALongerOneDoesNot) {
    const std::string longest(255, 'L');
    kinds->compKind(10, longest.c_str(), "");
    kinds->compKind(11, (longest + 'L').c_str(), "");
    BexNetList* list = open(BexOpenCreate).release();
    list->reference(10, 0)->count(5);
    list->reference(11, 0)->count(7);
    ASSERT_TRUE(BexNetList::close(list, BexCloseSave));
    const NetList again = open(BexOpenRead);
    ASSERT_TRUE(again);
    // The longer one is cut when it is read, so its count goes to the other.
    EXPECT_EQ(again->reference(10, 0)->count(), 7u);
    EXPECT_EQ(again->reference(11, 0)->count(), 1u);
}

TEST_F(NetListFile, ACountTooLargeForTheFileComesBackSmaller) {
    BexNetList* list = open(BexOpenCreate).release();
    list->netLabel()->count(4'000'000'000ul);
    ASSERT_TRUE(BexNetList::close(list, BexCloseSave));
    EXPECT_NE(contentOf(file).find("\"SIG\"\t4000000000\n"), std::string::npos);
    EXPECT_EQ(open(BexOpenRead)->netLabel()->count(), 2147483647u);
}

TEST_F(NetListFile, ACountSetToZeroIsRefusedByTheNextLoad) {
    BexNetList* list = open(BexOpenCreate).release();
    list->netLabel()->count(0);
    ASSERT_TRUE(BexNetList::close(list, BexCloseSave));
    EXPECT_FALSE(open(BexOpenRead));
}

TEST_F(NetListFile, OpenAsksForTheStateThatTheModeNeeds) {
    EXPECT_FALSE(open(BexOpenRead));
    EXPECT_FALSE(open(BexOpenUpdate));
    EXPECT_TRUE(open(BexOpenCreate));
    writeFile(file, freshFile);
    EXPECT_TRUE(open(BexOpenRead));
    EXPECT_TRUE(open(BexOpenUpdate));
    EXPECT_FALSE(open(BexOpenCreate));
    setMode(file, 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return open(BexOpenRead) && !open(BexOpenUpdate) ? 0 : 1; }), 0);
}

TEST_F(NetListFile, ADirectoryIsNoFile) {
    fs::create_directory(file);
    EXPECT_FALSE(open(BexOpenRead));
    EXPECT_FALSE(open(BexOpenUpdate));
}

TEST_F(NetListFile, AReadOnlyListIsNeverSavedUnderItsName) {
    BexNetList* list = read(freshFile).release();
    ++*list->netLabel();
    EXPECT_FALSE(list->save());
    EXPECT_FALSE(BexNetList::close(list, BexCloseSave));
    EXPECT_EQ(valueOf(list->netLabel()), "SIG2"); // alive
    EXPECT_TRUE(list->saveAs(dir.file("copy").c_str(), BexSaveNew));
    EXPECT_TRUE(BexNetList::close(list, BexCloseAuto));
    EXPECT_EQ(contentOf(file), freshFile);
}

TEST_F(NetListFile, DiscardingWritesNothing) {
    EXPECT_TRUE(BexNetList::close(open(BexOpenCreate).release(), BexCloseDiscard));
    EXPECT_FALSE(exists(file));
    EXPECT_TRUE(BexNetList::close(nullptr, BexCloseDiscard));
    EXPECT_FALSE(BexNetList::close(nullptr, BexCloseSave));
    EXPECT_FALSE(BexNetList::close(nullptr, BexCloseAuto));
}

TEST_F(NetListFile, AFailedSaveKeepsTheObject) {
    NetList list = open(BexOpenCreate);
    writeFile(file, "taken");
    EXPECT_FALSE(BexNetList::close(list.get(), BexCloseSave));
    EXPECT_EQ(contentOf(file), "taken");
    EXPECT_FALSE(list->saveAs(file.c_str(), BexSaveNew));
    EXPECT_TRUE(list->saveAs(file.c_str(), BexSaveOverwrite));
    EXPECT_EQ(contentOf(file), freshFile);
    EXPECT_FALSE(list->saveAs(dir.file("none").c_str(), BexSaveOverwrite));
    EXPECT_TRUE(list->saveAs(dir.file("any").c_str(), BexSaveAny));
    EXPECT_EQ(list->fileName(), file);
    EXPECT_EQ(list->openMode(), BexOpenCreate);
}

TEST_F(NetListFile, ACreatedListIsSavedOnce) {
    const NetList list = open(BexOpenCreate);
    EXPECT_TRUE(list->save());
    EXPECT_FALSE(list->save());
}

TEST_F(NetListFile, TheConstFormsGiveTheSameHeaders) {
    const NetList list = open(BexOpenCreate);
    const BexNetList& same = *list;
    EXPECT_EQ(same.netLabel(), list->netLabel());
    EXPECT_EQ(same.busLabel(), list->busLabel());
}

TEST_F(NetListFile, AHundredThousandHeadersAreReadInOneGo) {
    std::string rows;
    for (unsigned i = 0; i < 100'000; ++i) {
        const std::string text = "H" + std::to_string(i);
        kinds->compKind(i + 10, text.c_str(), "");
        rows += '"' + text + "\" " + std::to_string(i + 1) + '\n';
    }
    const NetList list = read(table("referenceHeader", rows));
    ASSERT_TRUE(list);
    EXPECT_EQ(valueOf(list->reference(100'009, 0)), "H99999100000");
}
