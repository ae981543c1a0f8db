#include "bexa/names/bundle_name.h"
#include "tests/names/naming.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace naming;

// The text with the bytes behind a NUL, which the C text hides.
std::string wholeText(const BexChkBundleName& bundle, std::size_t length) {
    return {bundle.bundleName(), length};
}

struct Row {
    const char* text;
    Texts members;
    Texts signals;
};

TEST(BundleName, HoldsItsMembersInOrder) {
    const Row rows[] = {
        {"CLK", {"CLK"}, {"CLK"}},
        {"A[0-1],B,C[3,1]", {"A[0-1]", "B", "C[3,1]"}, {"A[0]", "A[1]", "B", "C[3]", "C[1]"}},
        {"A,B,", {"A", "B", ""}, {"A", "B", ""}},
        {",A", {"", "A"}, {"", "A"}},
        {"A,,B", {"A", "", "B"}, {"A", "", "B"}},
        {"A,A", {"A", "A"}, {"A", "A"}}, // the check of a text doesn't look for duplicates
        {"A[1,],B", {"A[1,]", "B"}, {"A[1]", "", "B"}},
        {"A[,1],", {"A[,1]", ""}, {"", "A[1]", ""}},
    };
    for (const Row& row : rows) {
        const BexChkBundleName name = bundle(row.text);
        SCOPED_TRACE(row.text);
        EXPECT_EQ(name.errType(), BexNetNameOk);
        EXPECT_EQ(name.isValid(), 1u);
        EXPECT_STREQ(name.bundleName(), row.text);
        EXPECT_EQ(arraysOf(name), row.members);
        EXPECT_EQ(signalsOf(name), row.signals);
        EXPECT_EQ(name.sigCount(), static_cast<int>(row.signals.size()));
        for (int i = 0; i < name.sigCount(); ++i)
            EXPECT_EQ(name.sigName(i), row.signals[static_cast<std::size_t>(i)]);
    }
}

TEST(BundleName, AnswersNullOutside) {
    const BexChkBundleName name = bundle("A[0-1],B,C[3,1]");
    EXPECT_EQ(name.arrayCount(), 3);
    EXPECT_EQ(name.sigName(5), nullptr);
    EXPECT_EQ(name.sigName(-1), nullptr);
    EXPECT_EQ(name.arrayName(3), nullptr);
    EXPECT_EQ(name.arrayName(-1), nullptr);
    EXPECT_EQ(name.isArray(0), 1u);
    EXPECT_EQ(name.isArray(1), 0u);
    EXPECT_EQ(name.isArray(2), 1u);
    EXPECT_EQ(name.isArray(3), 0u);
    EXPECT_EQ(name.isArray(-1), 0u);
    EXPECT_EQ(BexChkBundleName().sigName(0), nullptr);
}

TEST(BundleName, HasNothingAfterAFailure) {
    struct Failure {
        const char* text;
        BexNetNameErrType errType;
    };
    const Failure rows[] = {
        {"A[1,", BexNetNameSyntax}, // the last separator splits, but the counts differ
        {"A[1]],B", BexNetNameSyntax},
        {"A],B[", BexNetNameSyntax}, // counted, not matched: one member
        {"A,[1]", BexNetNameSyntax}, // the second member has no root
        {"A,B[2-2],C", BexNetNameSyntax},
        {"[", BexNetNameSyntax},
        {"D[,]", BexNetNameUnchecked}, // the result of the first member that isn't valid
        {"A,D[,],B[2-2]", BexNetNameUnchecked},
        {"A,B[2-2],D[,]", BexNetNameSyntax},
        {"A,D[,],B[", BexNetNameSyntax}, // brackets are counted first
    };
    for (const Failure& row : rows) {
        const BexChkBundleName name = bundle(row.text);
        SCOPED_TRACE(row.text);
        EXPECT_EQ(name.errType(), row.errType);
        EXPECT_EQ(name.isValid(), 0u);
        EXPECT_EQ(name.arrayCount(), 0);
        EXPECT_EQ(name.sigCount(), 0);
        EXPECT_STREQ(name.bundleName(), "");
    }
}

TEST(BundleName, OfEmptyMembersAloneStaysUnchecked) {
    const BexChkBundleName name = bundle(",");
    EXPECT_EQ(name.errType(), BexNetNameUnchecked);
    EXPECT_EQ(name.arrayCount(), 2);
    EXPECT_EQ(name.sigCount(), 2);
    EXPECT_STREQ(name.bundleName(), ",");
}

TEST(BundleName, OfNothingHasNoMembers) {
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        const BexChkBundleName name(text, '\0', ']', '-', ',', '-');
        EXPECT_EQ(name.errType(), BexNetNameUnchecked);
        EXPECT_EQ(name.arrayCount(), 0);
    }
}

TEST(BundleName, NeedsFourOfFiveDelimiters) {
    for (int missing = 0; missing < 4; ++missing) {
        char d[] = {'[', ']', '-', ','};
        d[missing] = '\0';
        const BexChkBundleName name("A[", d[0], d[1], d[2], d[3], '-');
        EXPECT_EQ(name.errType(), BexNetNameNoDelimiter);
        EXPECT_EQ(name.arrayCount(), 0);
        EXPECT_STREQ(name.bundleName(), "");
    }
    EXPECT_EQ(bundle("A[0-1],B", {'[', ']', '-', ',', '\0'}).sigCount(), 3);
    EXPECT_EQ(bundle("A[0-2-2]", {'[', ']', '-', ',', '\0'}).errType(), BexNetNameSyntax);
}

TEST(BundleName, TakesAnyDelimiters) {
    const Marks marks{'<', '>', ':', ';', '/'};
    EXPECT_EQ(signalsOf(bundle("A<0:4/2;7>;B", marks)), (Texts{"A<0>", "A<2>", "A<4>", "A<7>", "B"}));
    EXPECT_EQ(signalsOf(bundle("A[0-1],B", marks)), Texts{"A[0-1],B"});
    // A character that opens and closes is always balanced.
    EXPECT_EQ(arraysOf(bundle("A,B", {'|', '|', '-', ',', '-'})), (Texts{"A", "B"}));
    EXPECT_EQ(bundle("A|1|,B", {'|', '|', '-', ',', '-'}).errType(), BexNetNameSyntax);
    // A separator that closes never does: brackets don't balance.
    EXPECT_EQ(bundle("A[1]", {'[', ']', '-', ']', '-'}).errType(), BexNetNameSyntax);
    EXPECT_EQ(arraysOf(bundle("A[1", {'[', ']', '-', '[', '-'})), (Texts{"A", "1"}));
}

TEST(BundleName, FindsSignalsAndArrays) {
    const BexChkBundleName name = bundle("A[0-3],B,,C[1]");
    EXPECT_EQ(name.find(signal("A[3]")), 1u);
    EXPECT_EQ(name.find(signal("C[1]")), 1u);
    EXPECT_EQ(name.find(signal("C[2]")), 0u);
    EXPECT_EQ(name.find(signal("")), 0u); // though there is a signal without a name
    EXPECT_EQ(name.find(array("A[0-3]")), 1u);
    EXPECT_EQ(name.find(array("A[0,1,2,3]")), 1u);
    EXPECT_EQ(name.find(array("A[0-2]")), 0u);
    EXPECT_EQ(name.find(array("")), 1u); // the empty member
    EXPECT_EQ(name.find(BexChkArrayName()), 0u);
}

TEST(BundleName, DuplicateNeedsOneSignalContainsNeedsAll) {
    struct Question {
        const char* other;
        unsigned long duplicate;
        unsigned long contains;
    };
    const BexChkBundleName name = bundle("A[0-3],B");
    const Question rows[] = {
        {"A[1,2]", 1, 1}, {"A[1,9]", 1, 0}, {"A[8,9]", 0, 0}, {"B", 1, 1}, {"A[1,]", 1, 0}, {"A", 0, 0},
    };
    for (const Question& row : rows) {
        SCOPED_TRACE(row.other);
        EXPECT_EQ(name.duplicate(array(row.other)), row.duplicate);
        EXPECT_EQ(name.contains(array(row.other)), row.contains);
        EXPECT_EQ(name.duplicate(bundle(row.other)), row.duplicate);
        EXPECT_EQ(name.contains(bundle(row.other)), row.contains);
    }
    EXPECT_EQ(name.duplicate(bundle("X,A[3]")), 1u);
    EXPECT_EQ(name.contains(bundle("X,A[3]")), 0u);
    EXPECT_EQ(name.contains(bundle("B,A[3]")), 1u);
}

TEST(BundleName, OfAnEmptyOtherAllIsContainedAndNothingDuplicate) {
    const BexChkBundleName name = bundle("A");
    EXPECT_EQ(name.duplicate(BexChkArrayName()), 0u);
    EXPECT_EQ(name.contains(BexChkArrayName()), 1u);
    EXPECT_EQ(name.duplicate(BexChkBundleName()), 0u);
    EXPECT_EQ(name.contains(BexChkBundleName()), 1u);
    // An array with a signal without a name is not empty.
    EXPECT_EQ(name.contains(array("")), 0u);
}

TEST(BundleName, AppendsABundle) {
    BexChkBundleName name = bundle("A[0-3]");
    EXPECT_EQ(name.append(bundle("B,C[1]")), 1u);
    EXPECT_STREQ(name.bundleName(), "A[0-3],B,C[1]");
    EXPECT_EQ(arraysOf(name), (Texts{"A[0-3]", "B", "C[1]"}));
    EXPECT_STREQ(name.sigName(5), "C[1]");
}

TEST(BundleName, AppendRefusesWhatItHasAndChangesNothing) {
    BexChkBundleName name = bundle("A[0-3]");
    EXPECT_EQ(name.append(array("A[1]")), 0u);
    EXPECT_EQ(name.append(bundle("X,A[0-1]")), 0u);
    EXPECT_EQ(name.append(bundle("X[")), 0u);
    EXPECT_EQ(name.append(BexChkBundleName()), 0u);
    EXPECT_EQ(name.append(name), 0u);
    EXPECT_STREQ(name.bundleName(), "A[0-3]");
    EXPECT_EQ(name.arrayCount(), 1);
}

TEST(BundleName, AppendsToItselfOnce) {
    // Signals without a name are no duplicates.
    BexChkBundleName name = bundle("A,,");
    name.remove(0);
    EXPECT_EQ(name.append(name), 1u);
    EXPECT_EQ(name.arrayCount(), 4);
    EXPECT_STREQ(name.bundleName(), "A,,,,");
}

TEST(BundleName, AppendToNoneCopiesSeparatorIncluded) {
    BexChkBundleName name;
    EXPECT_EQ(name.append(bundle("A;B", {'[', ']', '-', ';', '-'})), 1u);
    EXPECT_STREQ(name.bundleName(), "A;B");
    EXPECT_EQ(name.errType(), BexNetNameOk);
    EXPECT_EQ(name.append(array("C")), 1u);
    EXPECT_STREQ(name.bundleName(), "A;B;C");
}

TEST(BundleName, AppendsAnyArray) {
    BexChkBundleName name = bundle("A");
    EXPECT_EQ(name.append(array("B[0-1]")), 1u);
    EXPECT_EQ(name.append(array("X[")), 1u); // nobody asks whether it is valid
    EXPECT_STREQ(name.bundleName(), "A,B[0-1],X[");
    EXPECT_EQ(name.arrayCount(), 3);
    EXPECT_EQ(name.sigCount(), 3);
    EXPECT_EQ(name.isValid(), 1u);
    // The array may be an own member, if it has no named signal.
    EXPECT_EQ(name.append(name.at(2)), 1u);
    EXPECT_STREQ(name.bundleName(), "A,B[0-1],X[,X[");
}

TEST(BundleName, TheFirstArrayMakesItValid) {
    BexChkBundleName name;
    EXPECT_EQ(name.append(array("X[")), 1u);
    EXPECT_EQ(name.isValid(), 1u);
    EXPECT_STREQ(name.bundleName(), "X[");
    // The separator was never given, so it is NUL, and the text goes on behind it.
    EXPECT_EQ(name.append(array("B")), 1u);
    EXPECT_STREQ(name.bundleName(), "X[");
    EXPECT_EQ(wholeText(name, 4), std::string("X[\0B", 4));
}

TEST(BundleName, KeepsItsResultWhenItHasMembers) {
    BexChkBundleName name = bundle(",");
    EXPECT_EQ(name.append(array("A")), 1u);
    EXPECT_EQ(name.errType(), BexNetNameUnchecked);
    EXPECT_STREQ(name.bundleName(), ",,A");
}

TEST(BundleName, RemembersTheSeparatorOnlyIfNoDelimiterWasMissing) {
    // Behind a failed check the second member shows which separator was kept.
    const auto textWithTwo = [](BexChkBundleName name) {
        name.append(array("A"));
        name.append(array("B"));
        return wholeText(name, 3);
    };
    EXPECT_EQ(textWithTwo(bundle("X[")), "A,B");
    EXPECT_EQ(textWithTwo(bundle("X", {'[', '\0', '-', ',', '-'})), std::string("A\0B", 3));
    EXPECT_EQ(textWithTwo(bundle("")), std::string("A\0B", 3));
}

TEST(BundleName, InsertsABundleAhead) {
    BexChkBundleName name = bundle("A,B");
    EXPECT_EQ(name.insert(bundle("X;Y[1]", {'[', ']', '-', ';', '-'})), 1u);
    EXPECT_STREQ(name.bundleName(), "X;Y[1];A;B"); // with the separator of the other
    EXPECT_EQ(arraysOf(name), (Texts{"X", "Y[1]", "A", "B"}));
    EXPECT_EQ(name.append(array("Z")), 1u);
    EXPECT_STREQ(name.bundleName(), "X;Y[1];A;B;Z");
}

TEST(BundleName, InsertRefusesAndChangesNothing) {
    BexChkBundleName name = bundle("A,B");
    EXPECT_EQ(name.insert(bundle("X,A")), 0u);
    EXPECT_EQ(name.insert(bundle("X[")), 0u);
    EXPECT_EQ(name.insert(BexChkBundleName()), 0u);
    EXPECT_EQ(name.insert(name), 0u);
    EXPECT_STREQ(name.bundleName(), "A,B");
    EXPECT_EQ(name.arrayCount(), 2);
    BexChkBundleName empty;
    EXPECT_EQ(empty.insert(bundle("A")), 0u); // this bundle isn't valid
    EXPECT_EQ(empty.arrayCount(), 0);
}

TEST(BundleName, InsertRefusesAValidArray) {
    BexChkBundleName name = bundle("A,B");
    EXPECT_EQ(name.insert(array("C")), 0u);
    EXPECT_STREQ(name.bundleName(), "A,B");
}

TEST(BundleName, InsertOfAnInvalidArrayWritesNulSeparators) {
    BexChkBundleName name = bundle("A,B");
    EXPECT_EQ(name.insert(array("X[")), 1u);
    EXPECT_EQ(arraysOf(name), (Texts{"X[", "A", "B"}));
    EXPECT_STREQ(name.bundleName(), "X["); // what a reader of the C text sees
    EXPECT_EQ(wholeText(name, 6), std::string("X[\0A\0B", 6));
    EXPECT_EQ(name.isValid(), 1u);
    EXPECT_EQ(name.append(array("C")), 1u);
    EXPECT_EQ(wholeText(name, 8), std::string("X[\0A\0B\0C", 8));
    BexChkBundleName failed = bundle("A[");
    EXPECT_EQ(failed.insert(array("X[")), 0u);
    EXPECT_EQ(failed.arrayCount(), 0);
}

TEST(BundleName, RealCompareLooksAtMembers) {
    EXPECT_TRUE(bundle("A[0-1],B") == bundle("A[0,1],B"));
    EXPECT_TRUE(bundle("A[0-1],B") != bundle("A[0],A[1],B"));
    EXPECT_TRUE(bundle("A,B") != bundle("B,A"));
    EXPECT_TRUE(bundle("A") != bundle("A,A"));
    EXPECT_TRUE(bundle("A[") == bundle("B["));
    EXPECT_TRUE(bundle("A[") != bundle(""));
}

TEST(BundleName, CaseCompareLooksAtSignals) {
    EXPECT_EQ(bundle("A[0-1],B").caseCompare(bundle("B,A[1],A[0]")), 1u);
    EXPECT_EQ(bundle("A[0-1],B").caseCompare(bundle("B,A[1],A[1]")), 0u);
    EXPECT_EQ(bundle("A,B").caseCompare(bundle("A")), 0u);
    EXPECT_EQ(bundle("a").caseCompare(bundle("A")), 0u);
    EXPECT_EQ(bundle("A[").caseCompare(bundle("")), 1u); // results don't count
}

TEST(BundleName, CopiesAllFields) {
    const BexChkBundleName name = bundle("A[0-1];B", {'[', ']', '-', ';', '-'});
    BexChkBundleName copy = name;
    BexChkBundleName assigned = bundle("X,Y,Z");
    assigned = name;
    for (BexChkBundleName* other : {&copy, &assigned}) {
        EXPECT_TRUE(*other == name);
        EXPECT_STREQ(other->bundleName(), "A[0-1];B");
        other->append(array("C"));
        EXPECT_STREQ(other->bundleName(), "A[0-1];B;C");
    }
    EXPECT_EQ(name.arrayCount(), 2);
}

TEST(BundleName, IteratorWalksTheMembers) {
    BexChkBundleName name = bundle("A[0-1],B");
    Texts seen;
    for (BexBundleNameItr walk(&name); !walk.isEnd(); ++walk) {
        for (BexArrayNameItr bit(&walk()); !bit.isEnd(); ++bit) seen.emplace_back(bit().name());
    }
    EXPECT_EQ(seen, (Texts{"A[0]", "A[1]", "B"}));
    BexBundleNameItr walk(&name);
    ++ ++walk;
    EXPECT_EQ(walk.isEnd(), 1u);
    EXPECT_EQ(walk().sigCount(), 0); // reading at the end adds a member without signals
    EXPECT_EQ(name.arrayCount(), 3);
}

TEST(BundleName, SurvivesAHugeText) {
    EXPECT_EQ(bundle(std::string(10'000'000, '[')).errType(), BexNetNameSyntax);
    EXPECT_EQ(bundle(std::string(1'000'000, ',')).sigCount(), 1'000'001);
    EXPECT_EQ(bundle(std::string(1'000'000, ',') + "[").arrayCount(), 0);
}

} // namespace
