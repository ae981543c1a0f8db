#include "bexa/foundation/str_set.h"
#include "tests/props/spec_fixture.h"

#include <cstdlib>

using namespace bexa::test;

namespace {

class PropOwner : public SpecTest {
protected:
    // Owner "O" with the rows a, the table T (t1 t2), b, and owner "P" with the same table.
    void SetUp() override {
        owner_ = specification_.appendOwnerRec("O");
        specification_.appendOwnerRec("P");
        owner_ = specification_.ownerRec("O");
        other_ = specification_.ownerRec("P");
        owner_->appendPropSpecRec("a");
        BexPropOwnerRec* table = owner_->appendRefTable(specification_, "T", "Shared");
        table->appendPropSpecRec("t1");
        table->appendPropSpecRec("t2");
        owner_->appendPropSpecRec("b");
        other_->appendRefTable(specification_, "T", "passed over");
    }

    BexPropOwnerRec* table() const { return owner_->refTable("T", 0); }

    BexPropSpecFile specification_;
    BexPropOwnerRec* owner_ = nullptr;
    BexPropOwnerRec* other_ = nullptr;
};

TEST_F(PropOwner, ATableOfTwoOwnersIsOneRecord) {
    EXPECT_EQ(table(), other_->refTable("T", 0));
    EXPECT_EQ(table()->useCount(), 2);
    EXPECT_EQ(owner_->useCount(), 0);
    EXPECT_STREQ(table()->aliasName(), "Shared");
}

TEST_F(PropOwner, AppendingATableMakesItsRow) {
    for (const BexPropOwnerRec* record : {owner_, other_}) {
        const BexPropSpecRec* row = record->propSpec("T");
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->valueType(), BexPropTypeRefTable);
        EXPECT_STREQ(row->displayString(), "Shared");
        EXPECT_EQ(row->displayFlag(), 1UL);
    }
}

TEST_F(PropOwner, AppendingATableTurnsARowOfItsNameIntoOne) {
    owner_->appendPropSpecRec("U")->valueType(BexPropTypeText);
    ASSERT_NE(owner_->appendRefTable(specification_, "U", nullptr), nullptr);
    EXPECT_EQ(owner_->propSpec("U")->valueType(), BexPropTypeRefTable);
    EXPECT_EQ(namesOf(owner_, 1, 0), "a T b U");
}

TEST_F(PropOwner, ATableWithoutAliasIsCalledByItsName) {
    EXPECT_STREQ(owner_->appendRefTable(specification_, "U", "")->aliasName(), "U");
    EXPECT_STREQ(owner_->appendRefTable(specification_, "V", nullptr)->aliasName(), "V");
    EXPECT_STREQ(owner_->propSpec("U")->displayString(), "U");
}

TEST_F(PropOwner, AppendingATableAgainGivesTheSame) {
    EXPECT_EQ(owner_->appendRefTable(specification_, "T", "other"), table());
    EXPECT_EQ(table()->useCount(), 2);
    EXPECT_STREQ(table()->aliasName(), "Shared");
}

TEST_F(PropOwner, ATableBelowATableIsSharedToo) {
    BexPropOwnerRec* inner = table()->appendRefTable(specification_, "Inner", nullptr);
    EXPECT_EQ(specification_.appendOwnerRec("Q")->appendRefTable(specification_, "Inner", nullptr), inner);
    EXPECT_EQ(inner->useCount(), 2);
}

TEST_F(PropOwner, ATableWithoutNameIsRefused) {
    EXPECT_EQ(owner_->appendRefTable(specification_, nullptr, "x"), nullptr);
    EXPECT_EQ(owner_->appendRefTable(specification_, "", "x"), nullptr);
    EXPECT_EQ(owner_->appendPropSpecRec(nullptr), nullptr);
    EXPECT_EQ(owner_->appendPropSpecRec(""), nullptr);
}

TEST_F(PropOwner, ATableIsNeverPutBelowItself) {
    BexPropOwnerRec* inner = table()->appendRefTable(specification_, "Inner", nullptr);
    EXPECT_EQ(table()->appendRefTable(specification_, "T", nullptr), nullptr);
    EXPECT_EQ(inner->appendRefTable(specification_, "T", nullptr), nullptr);
    EXPECT_EQ(inner->propSpec("T"), nullptr);
    EXPECT_EQ(table()->useCount(), 2);
}

TEST_F(PropOwner, RemovingATableLeavesItToTheOtherOwner) {
    EXPECT_EQ(owner_->removeRefTable("T"), 1UL);
    EXPECT_EQ(namesOf(owner_), "a b");
    EXPECT_EQ(other_->refTable("T", 0)->useCount(), 1);
    EXPECT_EQ(namesOf(other_), "T t1 t2");
    EXPECT_EQ(owner_->removeRefTable("T"), 0UL);
    EXPECT_EQ(owner_->removeRefTable(nullptr), 0UL);
}

TEST_F(PropOwner, RemovingATableWithoutItsRowIsFalseAllTheSame) {
    table()->objectName("Renamed");
    EXPECT_EQ(owner_->removeRefTable("Renamed"), 0UL);
    EXPECT_EQ(owner_->refTable("Renamed", 0), nullptr);
    EXPECT_EQ(namesOf(owner_), "a T b");
}

TEST_F(PropOwner, ATableMayBeRemovedByItsOwnName) {
    other_->removeRefTable("T");
    EXPECT_EQ(owner_->removeRefTable(table()->objectName()), 1UL);
    EXPECT_EQ(namesOf(owner_), "a b");
}

TEST_F(PropOwner, RemovingTheRowOfATableRemovesBothAndNothingElse) {
    EXPECT_EQ(owner_->removePropSpecRec("T"), 1UL);
    EXPECT_EQ(namesOf(owner_), "a b");
    EXPECT_EQ(owner_->refTable("T", 0), nullptr);
    EXPECT_EQ(other_->refTable("T", 0)->useCount(), 1);
    EXPECT_EQ(owner_->removePropSpecRec("T"), 0UL);
}

TEST_F(PropOwner, RowsOfATableAreNotRemovedThroughIt) {
    EXPECT_EQ(owner_->removePropSpecRec("t1"), 0UL);
    EXPECT_EQ(owner_->removePropSpecRec(nullptr), 0UL);
    EXPECT_EQ(owner_->removePropSpecRec("a"), 1UL);
    EXPECT_EQ(namesOf(owner_), "T t1 t2 b");
}

TEST_F(PropOwner, AppendingARowDoesNotLookIntoTables) {
    BexPropSpecRec* row = owner_->appendPropSpecRec("t1");
    EXPECT_EQ(namesOf(owner_, 0, 0), "a b t1");
    EXPECT_EQ(owner_->appendPropSpecRec("t1"), row);
    EXPECT_NE(owner_->propSpec("t1"), row); // the table stands in front
}

TEST_F(PropOwner, BreakingATableKeepsItsRowsInItsPlace) {
    EXPECT_EQ(owner_->breakRefTable("T"), 1UL);
    EXPECT_EQ(namesOf(owner_), "a t1 t2 b");
    EXPECT_EQ(owner_->refTable("T", 0), nullptr);
    EXPECT_EQ(namesOf(other_), "T t1 t2");
    EXPECT_EQ(owner_->breakRefTable("T"), 0UL);
    EXPECT_EQ(owner_->breakRefTable(nullptr), 0UL);
}

TEST_F(PropOwner, BreakingATableByTheNameInItsRow) {
    EXPECT_EQ(owner_->breakRefTable(owner_->propSpec("T")->propertyName()), 1UL);
    EXPECT_EQ(namesOf(owner_), "a t1 t2 b");
}

TEST_F(PropOwner, BreakingATableWithoutItsRowAppends) {
    owner_->propSpec("T")->valueType(BexPropTypeText);
    EXPECT_EQ(owner_->breakRefTable("T"), 1UL);
    EXPECT_EQ(namesOf(owner_), "a b t1 t2");
}

TEST_F(PropOwner, BreakingATableDropsTheTablesBelowIt) {
    table()->appendRefTable(specification_, "Inner", nullptr)->appendPropSpecRec("i");
    EXPECT_EQ(namesOf(owner_), "a T t1 t2 Inner i b");
    owner_->breakRefTable("T");
    EXPECT_EQ(namesOf(owner_), "a t1 t2 b");
}

TEST_F(PropOwner, BreakingATableDropsItsRowsForFilesAndForTablesItDoesNotHold) {
    table()->appendPropSpecRec("F")->valueType(BexPropTypeRefFile);
    table()->appendPropSpecRec("G")->valueType(BexPropTypeRefTable);
    owner_->breakRefTable("T");
    EXPECT_EQ(namesOf(owner_), "a t1 t2 b");
    EXPECT_EQ(owner_->propSpec("F"), nullptr);
}

TEST_F(PropOwner, BreakingATableMayLeaveANameTwice) {
    owner_->appendPropSpecRec("t1")->viewerColor(7);
    owner_->breakRefTable("T");
    EXPECT_EQ(namesOf(owner_), "a t1 t2 b t1");
    EXPECT_EQ(owner_->propSpec("t1")->viewerColor(), -1);
    EXPECT_EQ(owner_->removePropSpecRec("t1"), 1UL);
    EXPECT_EQ(owner_->propSpec("t1")->viewerColor(), 7);
}

TEST_F(PropOwner, LookUpsSeeThroughTablesInRowOrder) {
    table()->appendPropSpecRec("b")->viewerColor(3);
    EXPECT_EQ(owner_->propSpec("b")->viewerColor(), 3); // the table stands in front of b
    table()->appendPropSpecRec("a")->viewerColor(4);
    EXPECT_EQ(owner_->propSpec("a")->viewerColor(), -1);
    EXPECT_EQ(owner_->propSpec("t2"), table()->propSpec("t2"));
    EXPECT_EQ(owner_->propSpec("none"), nullptr);
    EXPECT_EQ(owner_->propSpec(nullptr), nullptr);
}

TEST_F(PropOwner, LookUpsFollowWhatChanges) {
    EXPECT_EQ(owner_->propSpec("t1")->viewerColor(), -1);
    owner_->propSpec("T")->valueType(BexPropTypeText);
    EXPECT_EQ(owner_->propSpec("t1"), nullptr); // the row stands for the table no more
    owner_->propSpec("T")->valueType(BexPropTypeRefTable);
    EXPECT_NE(owner_->propSpec("t1"), nullptr);
    table()->objectName("Renamed");
    EXPECT_EQ(owner_->propSpec("t1"), nullptr);
    owner_->refTable("Renamed", 0)->objectName("T");
    EXPECT_NE(owner_->propSpec("t1"), nullptr);
    *owner_->propSpec("a") = rowOf("( new int )");
    EXPECT_EQ(owner_->propSpec("a"), nullptr);
    EXPECT_NE(owner_->propSpec("new"), nullptr);
    const YioRscList list = listOf("( newer int )");
    owner_->propSpec("new")->readFrom(&list);
    EXPECT_EQ(owner_->propSpec("new"), nullptr);
    EXPECT_NE(owner_->propSpec("newer"), nullptr);
}

TEST_F(PropOwner, EnumerationsTakeTablesAsAsked) {
    EXPECT_EQ(namesOf(owner_, 0, 0), "a b");
    EXPECT_EQ(namesOf(owner_, 0, 1), "a b");
    EXPECT_EQ(namesOf(owner_, 1, 0), "a T b");
    EXPECT_EQ(namesOf(owner_, 1, 1), "a T t1 t2 b");
}

TEST_F(PropOwner, EnumerationsLeaveOutReferenceFilesAndKeepARowWhoseTableIsGone) {
    owner_->appendPropSpecRec("F")->valueType(BexPropTypeRefFile);
    owner_->appendPropSpecRec("G")->valueType(BexPropTypeRefTable);
    EXPECT_EQ(namesOf(owner_), "a T t1 t2 b G");
    EXPECT_EQ(namesOf(owner_, 0), "a b");
}

TEST_F(PropOwner, EnumerationsReplaceWhatWasThere) {
    YString_Array texts;
    texts.append("old");
    owner_->propSpec("a")->displayString("A");
    EXPECT_EQ(owner_->enumDisplayStrings(texts, 1, 0), 1UL);
    EXPECT_EQ(joined(texts, "|"), "A|Shared|");
    BexPropSpecRec_Array rows;
    rows.append(BexPropSpecRec());
    EXPECT_EQ(owner_->enumPropSpecRecs(rows, 0, 1), 1UL);
    EXPECT_EQ(rows.size(), 2);
    EXPECT_STREQ(rows.at(1).propertyName(), "b");
}

TEST_F(PropOwner, TableNamesComeLevelByLevelBelowEachTable) {
    BexPropOwnerRec* inner = table()->appendRefTable(specification_, "Inner", nullptr);
    inner->appendRefTable(specification_, "Innermost", nullptr);
    owner_->appendRefTable(specification_, "U", nullptr)->appendRefTable(specification_, "Inner", nullptr);
    YString_Array names;
    EXPECT_EQ(owner_->enumRefTableNames(names, 0), 1UL);
    EXPECT_EQ(joined(names), "T U");
    EXPECT_EQ(owner_->enumRefTableNames(names, 1), 1UL);
    EXPECT_EQ(joined(names), "T U Inner Innermost Inner Innermost");
}

TEST_F(PropOwner, TablesAreFoundBelowTablesOnlyIfDeep) {
    BexPropOwnerRec* inner = table()->appendRefTable(specification_, "Inner", nullptr);
    EXPECT_EQ(owner_->refTable("Inner", 0), nullptr);
    EXPECT_EQ(owner_->refTable("Inner", 1), inner);
    EXPECT_EQ(owner_->refTable("none", 1), nullptr);
    EXPECT_EQ(owner_->refTable(nullptr, 1), nullptr);
}

TEST_F(PropOwner, ACopySharesTheTablesAndHasTheUseCountOfItsSource) {
    BexPropOwnerRec copy(*table());
    EXPECT_EQ(copy.useCount(), 2);
    {
        const BexPropOwnerRec second(*owner_);
        EXPECT_EQ(table()->useCount(), 3);
        EXPECT_EQ(namesOf(&second), "a T t1 t2 b");
    }
    EXPECT_EQ(table()->useCount(), 2);
}

TEST_F(PropOwner, AnAssignmentReleasesTheOldTablesAndLeavesTheUseCount) {
    BexPropOwnerRec target;
    target.incrUseCount();
    target.appendRefTable(specification_, "Own", nullptr);
    target = *owner_;
    EXPECT_EQ(target.useCount(), 1);
    EXPECT_EQ(target.refTable("Own", 0), nullptr);
    EXPECT_EQ(table()->useCount(), 3);
    EXPECT_STREQ(target.objectName(), "O");
    const BexPropOwnerRec& self = target;
    target = self;
    EXPECT_EQ(table()->useCount(), 3);
    target = BexPropOwnerRec();
    EXPECT_EQ(table()->useCount(), 2);
    EXPECT_EQ(target.objectName(), nullptr);
}

TEST_F(PropOwner, AnOwnerMayBecomeOneOfItsTables) {
    other_->removeRefTable("T");
    *owner_ = *table();
    EXPECT_STREQ(owner_->objectName(), "T");
    EXPECT_EQ(namesOf(owner_), "t1 t2");
}

TEST_F(PropOwner, ATableThatTakesAnOwnersContentLeavesItselfOut) {
    *table() = *owner_;
    BexPropOwnerRec* changed = owner_->refTable("O", 0);
    ASSERT_NE(changed, nullptr);
    EXPECT_EQ(changed->refTable("O", 1), nullptr);
    EXPECT_EQ(changed->useCount(), 2);
    EXPECT_EQ(namesOf(changed), "a T b");
}

TEST_F(PropOwner, RealCopyTakesNamesAndTablesOver) {
    BexPropOwnerRec target;
    target.appendRefTable(specification_, "Own", nullptr);
    target.realCopy(*owner_);
    EXPECT_STREQ(target.objectName(), "O");
    EXPECT_EQ(namesOf(&target), "a T t1 t2 b");
    EXPECT_EQ(target.refTable("T", 0)->useCount(), 2);
    EXPECT_EQ(owner_->objectName(), nullptr);
    EXPECT_EQ(owner_->aliasName(), nullptr);
    EXPECT_EQ(owner_->refTable("T", 0), nullptr);
    EXPECT_EQ(namesOf(owner_), "a T b"); // its rows are copied
    target.realCopy(target);
    EXPECT_EQ(namesOf(&target), "a T t1 t2 b");
}

TEST_F(PropOwner, RealCopyLeavesACircularTableWhereItIs) {
    table()->realCopy(*owner_);
    EXPECT_NE(owner_->refTable("O", 0), nullptr);
    EXPECT_EQ(owner_->refTable("O", 0)->refTable("O", 1), nullptr);
}

TEST_F(PropOwner, IsValidWithAName) {
    EXPECT_EQ(BexPropOwnerRec().isValid(), 0UL);
    EXPECT_EQ(owner_->isValid(), 1UL);
    owner_->objectName(static_cast<const char*>(nullptr));
    EXPECT_EQ(owner_->isValid(), 0UL);
}

TEST_F(PropOwner, AliasIsSetAndTakenAway) {
    EXPECT_STREQ(owner_->aliasName(), "O");
    owner_->aliasName("alias");
    EXPECT_STREQ(owner_->aliasName(), "alias");
    owner_->aliasName(static_cast<const char*>(nullptr));
    EXPECT_EQ(owner_->aliasName(), nullptr);
}

TEST_F(PropOwner, UseCountsAreCounted) {
    EXPECT_EQ(owner_->incrUseCount(), 1);
    EXPECT_EQ(owner_->decrUseCount(), 0);
}

TEST_F(PropOwner, ASectionThatIsDoneIsNotWrittenAgain) {
    YString_Array lines;
    BexStrSet done;
    owner_->makeString(lines, 0, done);
    other_->makeString(lines, 0, done);
    owner_->makeString(lines, 0, done);
    EXPECT_EQ(done.count(), 3);
    done.deleteAll();
    const std::string expected = "O {\n"
                                 "\t( a\t\t\"\"\tOFF\t-1 )\n"
                                 "\t( $RefTable\t\"T\"\t\"Shared\" )\n"
                                 "\t( b\t\t\"\"\tOFF\t-1 )\n"
                                 "}\n"
                                 "T {\n"
                                 "\t( t1\t\t\"\"\tOFF\t-1 )\n"
                                 "\t( t2\t\t\"\"\tOFF\t-1 )\n"
                                 "}\n"
                                 "P {\n"
                                 "\t( $RefTable\t\"T\"\t\"Shared\" )\n"
                                 "}";
    EXPECT_EQ(joined(lines, "\n"), expected);
}

TEST_F(PropOwner, WritesNoLineForARowWhoseTableIsGoneAndNoEmptyAlias) {
    table()->aliasName("");
    owner_->appendPropSpecRec("G")->valueType(BexPropTypeRefTable);
    owner_->removePropSpecRec("a");
    owner_->removePropSpecRec("b");
    YString_Array lines;
    BexStrSet done;
    owner_->makeString(lines, 0, done);
    done.deleteAll();
    EXPECT_EQ(lines.size(), 7);
    EXPECT_STREQ(lines[1], "\t( $RefTable\t\"T\" )");
    EXPECT_STREQ(lines[2], "}");
}

} // namespace
