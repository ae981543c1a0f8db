#include "bexa/names/multi_reference.h"
#include "tests/names/resource_with_marks.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace naming;

class MultiReference : public testing::Test {
protected:
    BexMultiReference make(int bits, const char* text) const {
        BexMultiReference reference(bits, rc_);
        reference = text;
        return reference;
    }
    // All elements, those beyond the bits too.
    Texts elementsOf(const BexMultiReference& reference) const {
        Texts texts;
        for (int i = 0; i < reference.size(); ++i) texts.emplace_back(reference.at(i));
        return texts;
    }
    std::string getOne(const char* text, int bit) const {
        return static_cast<const char*>(BexMultiReference::getOne(text, bit, rc_));
    }

    ResourceWithMarks rc_;
};

TEST_F(MultiReference, IsExpandedWithoutBrackets) {
    struct Row {
        const char* text;
        Texts elements;
    };
    const Row rows[] = {
        {"U[1-3],R5", {"U1", "U2", "U3", "R5"}},
        {"R5,U[1-3]", {"R5", "U1", "U2", "U3"}},
        {"U[3-1]", {"U3", "U2", "U1", ""}},
        {"U[0-6-2]", {"U0", "U2", "U4", "U6"}},
        {"U[6-0-2]", {"U6", "U4", "U2", "U0"}},
        {"U[0-5-2]", {"U0", "U2", "U4", ""}}, // the last is not hit
        {"U[1,3]", {"U1", "U3", "", ""}},     // the comma belongs to the brackets
        {"U[1-2,7-8]", {"U1", "U2", "U7", "U8"}},
        {"U[007]", {"U7", "U7", "U7", "U7"}},
        {"U[1],U[2]", {"U1", "U2", "", ""}},
        {"[1-2]", {"1", "2", "", ""}}, // an empty root
        {"U[2-2],X", {"U2", "X", "", ""}},
        {"U[2-2-9],X", {"U2", "X", "", ""}},
        {"A,B", {"A", "B", "", ""}},
        {"A,,B", {"A", "", "B", ""}},
        {",", {"", "", "", ""}},
        {"A-B,C:D", {"A-B", "C:D", "", ""}}, // a range delimiter outside brackets is a character
        {"A-[1-2]", {"A-1", "A-2", "", ""}},
        {"\x83\x52[1-2]",
         {"\x83\x52"
          "1",
          "\x83\x52"
          "2",
          "", ""}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const BexMultiReference reference = make(4, row.text);
        EXPECT_EQ(elementsOf(reference), row.elements);
        EXPECT_EQ(reference.isError(), 0u);
        EXPECT_EQ(reference.notError(), 1u);
    }
}

TEST_F(MultiReference, OfOneReferenceStandsForAllBits) {
    EXPECT_EQ(elementsOf(make(4, "U1")), (Texts{"U1", "U1", "U1", "U1"}));
    EXPECT_EQ(elementsOf(make(4, "U[1]")), (Texts{"U1", "U1", "U1", "U1"}));
    EXPECT_EQ(elementsOf(make(2, "")), (Texts{"", ""}));
    EXPECT_EQ(make(2, "").isError(), 0u);
}

TEST_F(MultiReference, ExtendsTheArrayByReferencesLeftOver) {
    const BexMultiReference reference = make(2, "U[1-3],R5");
    EXPECT_EQ(elementsOf(reference), (Texts{"U1", "U2", "U3", "R5"}));
    EXPECT_EQ(reference.bitCount(), 2);
    EXPECT_EQ(reference.value(2), nullptr);
    EXPECT_STREQ(reference.expand(), "U1,U2");
    EXPECT_EQ(elementsOf(make(1, "A,B")), (Texts{"A", "B"})); // a single bit is no exception here
    EXPECT_EQ(elementsOf(make(0, "A,B")), (Texts{"A", "B"}));
    EXPECT_EQ(elementsOf(make(2, "U[0-999]")).size(), 1000u);
}

TEST_F(MultiReference, RefusesWhatBreaksTheGrammar) {
    const char* const texts[] = {
        "U[1",
        "U1]",
        "U[1]X",
        "U[[1]]",
        "U[a]",
        "U[1-2-3-4]",
        "U[]",
        "[",
        "]",
        "U[1]]",
        "U[1][2]",
        "U]1[",
        "U[,]",
        "U[1,]",
        "U[,1]",
        "U[-1]",
        "U[1-]",
        "U[1--2]",
        "U[ 1]",
        "U[1 ]",
        "U[+1]",
        "U[1-a]",
        "U[1-2-a]",
        "U[1-2-3-]",
        "U[1-3-]",
        "U[1-3-0]",
        "U[1-3-00]",
        "U[2-2-0]",
        "U[1;2]",
        "U[1,a]",
        "A,U[1",
        "A,B]",
        "U[1234567890123456789012345678901]", // 31 digits
        "U[0000000000000000000000000000001]",
    };
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        const BexMultiReference reference = make(4, text);
        EXPECT_EQ(reference.isError(), 1u);
        EXPECT_EQ(reference.notError(), 0u);
        EXPECT_FALSE(reference == text);
    }
}

TEST_F(MultiReference, RefusesALastStepOfZero) {
    EXPECT_EQ(make(4, "U[1-3-]").isError(), 1u);
    EXPECT_EQ(make(4, "U[1-3-0]").isError(), 1u);
    EXPECT_EQ(getOne("U[1-3-]", 0), "");
    EXPECT_EQ(getOne("U[1-3-0]", 0), "");
}

TEST_F(MultiReference, KeepsWhatWasReadAheadOfABreach) {
    BexMultiReference reference = make(4, "A,B,C,D");
    reference = "U[1-2,x]";
    EXPECT_EQ(reference.isError(), 1u);
    EXPECT_EQ(elementsOf(reference), (Texts{"U1", "U2", "C", "D"}));
    reference = "R9,U[7";
    EXPECT_EQ(elementsOf(reference), (Texts{"R9", "U2", "C", "D"}));
    reference = "U[1-3]X"; // a piece is looked at before it is expanded
    EXPECT_EQ(elementsOf(reference), (Texts{"R9", "U2", "C", "D"}));
    reference = "Z";
    EXPECT_EQ(reference.isError(), 0u);
}

TEST_F(MultiReference, OfNullIsEmptyAndAnError) {
    BexMultiReference reference = make(3, "A,B,C");
    reference = static_cast<const char*>(nullptr);
    EXPECT_EQ(elementsOf(reference), (Texts{"", "", ""}));
    EXPECT_EQ(reference.isError(), 1u);
}

TEST_F(MultiReference, OfAnyNumbersIsBounded) {
    EXPECT_EQ(make(1, "U[999999999999999999999999999999]").isError(), 0u); // 30 digits
    EXPECT_STREQ(make(1, "U[99999999999]").value(0), "U2147483647");
    EXPECT_EQ(make(2, "U[2147483646-2147483647]").expand(), "U2147483646,U2147483647");
    EXPECT_EQ(elementsOf(make(2, "U[0-2147483647-2147483647]")), (Texts{"U0", "U2147483647"}));
    for (const char* text : {"U[0-16777216]", "U[0-99999999999]", "U[16777216-0]", "A,U[0-2147483647-2]"}) {
        BexMultiReference reference(1, rc_);
        reference = text;
        EXPECT_EQ(reference.isError(), 1u) << text;
        EXPECT_FALSE(reference == text);
    }
    EXPECT_EQ(getOne("U[0-16777216]", 3), "");
    EXPECT_EQ(getOne("U[0-16777215]", 16777215), "U16777215");
}

TEST_F(MultiReference, EqualsItsText) {
    struct Row {
        int bits;
        const char* values;
        const char* text;
        bool equal;
    };
    const Row rows[] = {
        {4, "U[1-3],R5", "U[1-3],R5", true},
        {4, "U[1-3],R5", "U1,U2,U3,R5", true},
        {4, "U1,U2,U3,R5", "U[1-3],R5", true},
        {4, "U[1-3],R5", "U[1-4]", false},
        {4, "U[1-3],R5", "U[1-3]", false},
        {4, "U[1-3],R5", "U[1-3],R5,", false},
        {4, "U[1-3],R5", "U[1-3],R55", false},
        {4, "U[1-3],R5", "U[1-3],R", false}, // no beginnings here
        {4, "U[1-3],R5", "[1-3],R5", false},
        {3, "U[1-3]", "U[1-3", false},
        {3, "U[1-3]", "U[1-3],", false},
        {3, "U[1-3]", "U[1-3]X", false},
        {2, "U10,U11", "U1[0-1]", true}, // a number has no end but that of the reference
        {2, "U01,U02", "U[1-2]", false},
        {1, "U1", "U1", true},
        {1, "U1", "U[1]", true},
        {2, "", nullptr, true},
        {2, ",U1", nullptr, false},
        {2, "", ",", true},
        {0, "", "", false},
    };
    for (const Row& row : rows) {
        const BexMultiReference reference = make(row.bits, row.values);
        SCOPED_TRACE(std::string(row.values) + " and " + (row.text ? row.text : "(null)"));
        EXPECT_EQ(reference == row.text, row.equal);
        EXPECT_EQ(reference != row.text, !row.equal);
    }
}

TEST_F(MultiReference, OfEqualValuesDoesNotEqualOneAlone) {
    const BexMultiReference reference = make(4, "U1");
    EXPECT_FALSE(reference == "U1");
    EXPECT_TRUE(reference == "U1,U1,U1,U1");
    EXPECT_FALSE(make(2, "") == "");
    BexMultiProperty property(4, rc_);
    property = "U1";
    EXPECT_TRUE(property == "U1"); // unlike a property
}

TEST_F(MultiReference, EqualsATextWhateverTheErrorFlag) {
    BexMultiReference reference(2, rc_);
    reference.value(0, "U1");
    reference.value(1, "U2");
    EXPECT_EQ(reference.isError(), 1u);
    EXPECT_TRUE(reference == "U[1-2]");
}

TEST_F(MultiReference, EqualsAnotherObjectUnlessTheLeftOneHasAnError) {
    const BexMultiReference reference = make(2, "U[1-2]");
    BexMultiReference unread(2, rc_);
    unread.value(0, "U1");
    unread.value(1, "U2");
    EXPECT_TRUE(reference == make(2, "U1,U2"));
    EXPECT_FALSE(reference != make(2, "U1,U2"));
    EXPECT_TRUE(reference == unread);
    EXPECT_FALSE(unread == reference);
    EXPECT_TRUE(unread != unread);
    EXPECT_FALSE(reference == make(2, "U1,U3"));
    EXPECT_FALSE(reference == make(3, "U[1-3]"));
}

TEST_F(MultiReference, EqualsOnlyAnObjectOfTheSameDelimiters) {
    const BexMultiReference reference = make(2, "A,B");
    for (const Marks& marks : {Marks{'<', ']', '-', ',', '-'}, Marks{'[', '>', '-', ',', '-'},
                               Marks{'[', ']', ':', ',', '-'}, Marks{'[', ']', '-', ';', '-'}}) {
        BexMultiReference other(2, ResourceWithMarks(marks));
        other.value(0, "A");
        other.value(1, "B");
        EXPECT_FALSE(reference == other);
    }
    BexMultiReference other(2, ResourceWithMarks({'[', ']', '-', ',', '/'})); // has no part in references
    other.value(0, "A");
    other.value(1, "B");
    EXPECT_TRUE(reference == other);
}

TEST_F(MultiReference, GivesTheReferenceOfOneBit) {
    struct Row {
        const char* text;
        int bit;
        const char* reference;
    };
    const Row rows[] = {
        {"U[1-3],R5", 0, "U1"},
        {"U[1-3],R5", 2, "U3"},
        {"U[1-3],R5", 3, "R5"},
        {"U[1-3],R5", 4, ""},
        {"U[1-3],R5", -1, ""},
        {"U[9-1-3]", 2, "U3"},
        {"U[9-1-3]", 3, ""},
        {"U[1,5-6]", 2, "U6"},
        {"[1-2]", 1, "2"},
        {"A,,B", 1, ""},
        {"A,,B", 2, "B"},
        {"", 0, ""},
        {"", 5, ""},
        {nullptr, 0, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.text ? row.text : "(null)") + " " + std::to_string(row.bit));
        EXPECT_EQ(getOne(row.text, row.bit), row.reference);
        YString out = "before";
        BexMultiReference::getOne(row.text, row.bit, rc_, out);
        EXPECT_STREQ(out, row.reference);
    }
}

TEST_F(MultiReference, GivesOtherBitsTheWholeTextOfASingleOne) {
    EXPECT_EQ(getOne("U1", 0), "U1");
    EXPECT_EQ(getOne("U1", 5), "U1");
    EXPECT_EQ(getOne("U[1]", 0), "U1");
    EXPECT_EQ(getOne("U[1]", 5), "U[1]"); // not expanded
    EXPECT_EQ(getOne("U[2-2]", 1), "U[2-2]");
    EXPECT_EQ(getOne("U[1]", -1), "U[1]");
}

TEST_F(MultiReference, GivesNothingAfterABreachUpToTheBit) {
    EXPECT_EQ(getOne("U[1", 0), "");
    EXPECT_EQ(getOne("U[1-3]X", 0), "");
    EXPECT_EQ(getOne("U1]", 0), "");
    EXPECT_EQ(getOne("U[1-2-3-4]", 0), "");
    EXPECT_EQ(getOne("U[1],V[", 1), "");
    EXPECT_EQ(getOne("U[1],V[", 0), "U1"); // a breach behind is not seen
    EXPECT_EQ(getOne("U[1,x]", 0), "U1");
    EXPECT_EQ(getOne("U[1,x]", 1), "");
    EXPECT_EQ(getOne("U[1,x]", 5), "");
}

TEST_F(MultiReference, TakesItsDelimitersFromTheResource) {
    const ResourceWithMarks rc({'<', '>', ':', ';', '/'});
    BexMultiReference reference(4, rc);
    reference = "U<0:6:2>"; // the step has the range delimiter in front
    EXPECT_STREQ(reference.expand(), "U0;U2;U4;U6");
    reference = "U<0:6/2>";
    EXPECT_EQ(reference.isError(), 1u);
    EXPECT_STREQ(BexMultiReference::getOne("U<1:3>;R5", 3, rc), "R5");
}

TEST_F(MultiReference, RefusesEqualBracketsAndTakesMissingOnesForNone) {
    BexMultiReference reference(2, ResourceWithMarks({'|', '|', '-', ',', '-'}));
    reference = "U|1|";
    EXPECT_EQ(reference.isError(), 1u);
    reference.reset(2, ResourceWithMarks({'\0', '\0', '\0', '\0', '\0'}));
    reference = "U[1-2],A";
    EXPECT_EQ(elementsOf(reference), (Texts{"U[1-2],A", "U[1-2],A"}));
}

TEST_F(MultiReference, CutsAtDelimitersThatAreDigits) {
    BexMultiReference reference(3, ResourceWithMarks({'[', ']', '5', ',', '-'}));
    reference = "U[153]";
    EXPECT_EQ(elementsOf(reference), (Texts{"U1", "U2", "U3"}));
}

TEST_F(MultiReference, IsAnErrorUntilItIsRead) {
    EXPECT_EQ(BexMultiReference().isError(), 1u);
    BexMultiReference reference(2, rc_);
    EXPECT_EQ(reference.isError(), 1u);
    reference = "U[1-2]";
    EXPECT_EQ(reference.isError(), 0u);
    reference.reset(2, rc_);
    EXPECT_EQ(reference.isError(), 1u);
    EXPECT_STREQ(reference.expand(), "U1,U2");
}

TEST_F(MultiReference, HasTheUsualDelimitersByDefault) {
    BexMultiReference reference;
    EXPECT_EQ(reference.bitCount(), 0);
    reference.bitCount(2);
    reference = "U[1-2]";
    EXPECT_STREQ(reference.pack(), "U1,U2");
}

TEST_F(MultiReference, MayBeReadFromItsOwnElement) {
    BexMultiReference reference(2, rc_);
    reference.value(0, "U[1-300]");
    reference = reference.value(0);
    EXPECT_EQ(reference.size(), 300);
    EXPECT_STREQ(reference[299], "U300");
}

TEST_F(MultiReference, IsCopiedWhole) {
    const BexMultiReference reference = make(2, "U[1-2]");
    const BexMultiReference copy(reference);
    BexMultiReference assigned;
    assigned = reference;
    EXPECT_TRUE(copy == reference);
    EXPECT_TRUE(assigned == reference);
    EXPECT_EQ(assigned.isError(), 0u);
}

} // namespace
