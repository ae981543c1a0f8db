#include "bexa/props/search_condition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace bexa::detail {

struct SearchProbe {
    // The comparison that no condition can ask for.
    static bool equalLessFloat(const char* lower, const char* upper, const char* value) {
        BexSearch search;
        search.meaning_.set = (lower ? 1U : 0U) | (upper ? 2U : 0U);
        search.meaning_.lower.real = lower ? std::stod(lower) : 0.0;
        search.meaning_.upper.real = upper ? std::stod(upper) : 0.0;
        return search.equalLessFloat(value);
    }
    static bool equalLessLong(long lower, long upper, const char* value) {
        BexSearch search;
        search.meaning_.set = 3;
        search.meaning_.lower.whole = lower;
        search.meaning_.upper.whole = upper;
        return search.equalLessLong(value);
    }
};

} // namespace bexa::detail

using bexa::detail::SearchProbe;

namespace {

struct Row {
    const char* condition;
    const char* met;   // values that meet it, between bars
    const char* unmet; // and values that don't; both null for a condition that is refused
};

// No text is no value; a bar at the end has an empty value behind it.
std::vector<std::string> valuesOf(std::string_view list) {
    std::vector<std::string> values;
    for (std::size_t begin = 0; !list.empty() && begin <= list.size();) {
        const std::size_t end = std::min(list.find('|', begin), list.size());
        values.emplace_back(list.substr(begin, end - begin));
        begin = end + 1;
    }
    return values;
}

template <std::size_t Count>
void check(BexPropValueType type, const Row (&rows)[Count]) {
    for (const Row& row : rows) {
        BexSearch search(row.condition, type);
        ASSERT_EQ(search.isValid(), row.met ? 1U : 0U) << row.condition;
        if (!row.met) continue;
        EXPECT_STREQ(search.condition(), row.condition);
        for (const std::string& value : valuesOf(row.met)) {
            EXPECT_EQ(search.contains(value.c_str()), 1U) << row.condition << ": " << value;
        }
        for (const std::string& value : valuesOf(row.unmet)) {
            EXPECT_EQ(search.contains(value.c_str()), 0U) << row.condition << ": " << value;
        }
    }
}

TEST(SearchCondition, ADefaultOneIsNotValid) {
    BexSearch search;
    EXPECT_EQ(search.isValid(), 0U);
    EXPECT_EQ(search.valueType(), BexPropTypeUnknown);
    EXPECT_STREQ(search.condition(), "");
    EXPECT_EQ(search.contains("5"), 0U);
    EXPECT_EQ(search.contains(nullptr), 0U);
}

TEST(SearchCondition, OfWholeNumbers) {
    const Row rows[] = {
        {"5", "5|05|5x|+5| 5", "4|6|-5||x5"},
        {" 5 ", "5", "4"},
        {"0", "0||x", "1"},
        {"!5", "4|6|x|", "5|5.5"},
        {"!", "1|-1", "0|x|"},
        {"3<9", "4|8", "3|9|2|10"},
        {"9<3", "", "3|4|9"},
        {"3<", "4|1000", "3|2|-4"},
        {"*", "5|0|x||-7", ""},
        {"99999999999", "99999999999|2147483647", "1"}, // numbers saturate
        {"x", nullptr, nullptr},
        {"-1", nullptr, nullptr},
        {"!-1", nullptr, nullptr},
        {"1.5", nullptr, nullptr},
        {"3<=9", nullptr, nullptr},
        {"3=<9", nullptr, nullptr},
        {"3=<", nullptr, nullptr},
        {"=<9", nullptr, nullptr},
        {"=<", nullptr, nullptr},
        {"=5", nullptr, nullptr},
        {"5=", nullptr, nullptr},
        {"<=5", nullptr, nullptr},
        {"5!", nullptr, nullptr},
        {"!!5", nullptr, nullptr},
        {"!<5", nullptr, nullptr},
        {"!5<", nullptr, nullptr},
        {"!=5", nullptr, nullptr},
        {"3<5<9", nullptr, nullptr},
        {"==5", nullptr, nullptr},
        {"5*", nullptr, nullptr},
        {"**", nullptr, nullptr},
        {"!*", nullptr, nullptr},
        {"<", nullptr, nullptr},
        {"", nullptr, nullptr},
        {"  ", nullptr, nullptr},
        {nullptr, nullptr, nullptr},
    };
    check(BexPropTypeInt, rows);
}

TEST(SearchCondition, TheCharacterBehindALeadingMarkIsLost) {
    const Row rows[] = {
        {"<5", "5|0|99|-99|x|", ""}, // no bound is left
        {"<10", "-1", "0|1|9"},
        {"<123", "22", "23|122"},
        {"<x5", "4", "5"},
    };
    check(BexPropTypeInt, rows);
}

TEST(SearchCondition, BlanksAreRemovedButKept) {
    BexSearch search(" 3 < 9\t", BexPropTypeInt);
    EXPECT_STREQ(search.condition(), " 3 < 9\t");
    EXPECT_EQ(search.contains("5"), 1U);
    EXPECT_EQ(search.contains("9"), 0U);
}

TEST(SearchCondition, AStarWithBlanksIsNoStar) {
    BexSearch number(" * ", BexPropTypeInt);
    EXPECT_EQ(number.isValid(), 1U);
    EXPECT_EQ(number.contains("0"), 1U);
    EXPECT_EQ(number.contains("1"), 0U);
    BexSearch text(" * ", BexPropTypeText);
    EXPECT_EQ(text.contains(""), 1U);
    EXPECT_EQ(text.contains("abc"), 0U);
    BexSearch hidden(" * ", BexPropTypeHide);
    EXPECT_EQ(hidden.isValid(), 1U);
    EXPECT_EQ(hidden.contains(""), 0U);
}

TEST(SearchCondition, OfFloatingPointNumbers) {
    const Row rows[] = {
        {"1.5", "1.5|1.50|15e-1|1.5V", "1.4|2||x"},
        {"!1.5", "1.4|x|", "1.5"},
        {"1.0<2.5", "1.1|2.4", "1|2.5|3"},
        {"1.5<", "1.6", "1.5|1"},
        {"*", "1|x|", ""},
        {"1.2.3", "1.2", "1.3"},
        {"<5", "1|-1|x", ""},
        {"<12.5", "2.4", "2.5|12"},
        {"-1", nullptr, nullptr},
        {"1e5", nullptr, nullptr},
        {"x", nullptr, nullptr},
        {"1<x", nullptr, nullptr},
        {"1=<2", nullptr, nullptr},
        {"1.5*", nullptr, nullptr},
        {"", nullptr, nullptr},
    };
    check(BexPropTypeFloat, rows);
}

TEST(SearchCondition, ALowerFloatIsCheckedOverTheLengthOfTheUpperOne) {
    const Row rows[] = {
        {"1<100", nullptr, nullptr}, {"100<1", "", "0|1|50|100|101"},
        {"abc<", "0.5|1", "0|-1"},                      // the lower bound is 0
        {"5abc<9", "6|8.5", "5|9"},                     // what is longer isn't looked at
        {"ab<9", nullptr, nullptr},  {"a=<", "1", "0"}, // what is left of the mark doesn't show
    };
    check(BexPropTypeFloat, rows);
}

TEST(SearchCondition, OfTexts) {
    const Row rows[] = {
        {"abc", "abc", "ab|abcd|ABC|"},
        {"a c", "ac", "a c"}, // blanks count for nothing
        {"!abc", "ab|x|", "abc"},
        {"!", "a", "|"},
        {"R*", "R|R1|Rabc", "r1|1R|"},
        {"*R*", "R|aRb|Rb", "ab|"},
        {"*R", "R|aR", "Rb|"},
        {"a*b*", "ab|axb|axbx", "a|ba"},
        {"*", "abc||R*", ""},
        {"a<c", "b|a1|bz", "a|c|"},
        {"abc<", "abcd|abd|b|\xE0", "abc|abb|"},
        {"<xabc", "ab|abb|", "abc|b"},
        {"=<b", "=a|a|A", "=|b|!"}, // above `=` and below `b`
        {"x?", "x?", "xy"},         // without a star it is no pattern
        {"a*b*c", nullptr, nullptr},
        {"!R*", nullptr, nullptr},
        {"R*<", nullptr, nullptr},
        {"a<=b", nullptr, nullptr},
        {"a=b", nullptr, nullptr},
        {"a!b", nullptr, nullptr},
        {"a<b<c", nullptr, nullptr},
        {"", nullptr, nullptr},
    };
    check(BexPropTypeText, rows);
}

TEST(SearchCondition, AThirdStarIsNotLookedAt) {
    EXPECT_EQ(BexSearch("a**", BexPropTypeText).isValid(), 1U);
    EXPECT_EQ(BexSearch("a***", BexPropTypeText).isValid(), 0U) << "the second one must stand last";
}

TEST(SearchCondition, EqualOrLessKeepsItsMarkInTheBounds) {
    const Row rows[] = {
        {"a=<b", "", "a|b|a=|<b|"},
    };
    check(BexPropTypeText, rows);
    BexSearch reachable("#=<z", BexPropTypeText); // from `#=` to `<z`
    EXPECT_EQ(reachable.contains("#="), 1U);
    EXPECT_EQ(reachable.contains("<z"), 1U);
    EXPECT_EQ(reachable.contains("5"), 1U);
    EXPECT_EQ(reachable.contains("#"), 0U);
    EXPECT_EQ(reachable.contains("="), 0U);
}

TEST(SearchCondition, TheFloatFormOfEqualOrLessAsksForMoreThanTheUpperBound) {
    EXPECT_TRUE(SearchProbe::equalLessFloat("1", "3", "3"));
    EXPECT_TRUE(SearchProbe::equalLessFloat("1", "3", "4"));
    EXPECT_FALSE(SearchProbe::equalLessFloat("1", "3", "2"));
    EXPECT_FALSE(SearchProbe::equalLessFloat("5", "3", "4"));
    EXPECT_TRUE(SearchProbe::equalLessFloat(nullptr, nullptr, "-4"));
    EXPECT_TRUE(SearchProbe::equalLessLong(1, 3, "3")) << "unlike that of whole numbers";
    EXPECT_TRUE(SearchProbe::equalLessLong(1, 3, "1"));
    EXPECT_FALSE(SearchProbe::equalLessLong(1, 3, "4"));
}

TEST(SearchCondition, OtherTypesKnowOnlyTheStar) {
    BexSearch star("*", BexPropTypeHide);
    EXPECT_EQ(star.contains("abc"), 1U);
    EXPECT_EQ(star.contains(""), 1U);
    EXPECT_EQ(BexSearch("abc", BexPropTypeHide).isValid(), 1U);
    EXPECT_EQ(BexSearch("abc", BexPropTypeHide).contains("abc"), 0U);
    EXPECT_EQ(BexSearch("*", BexPropTypeRefTable).contains("abc"), 0U);
    EXPECT_EQ(BexSearch("*", BexPropTypeRefFile).contains("abc"), 0U);
    EXPECT_EQ(BexSearch("*", BexPropValueType(9)).contains("abc"), 0U);
}

TEST(SearchCondition, TheUnknownTypeIsRefusedAndChangesNothing) {
    EXPECT_EQ(BexSearch("5", BexPropTypeUnknown).isValid(), 0U);
    BexSearch search("5", BexPropTypeInt);
    EXPECT_EQ(search.condition("6", BexPropTypeUnknown), 0U);
    EXPECT_EQ(search.valueType(), BexPropTypeInt);
    EXPECT_EQ(search.contains("5"), 1U);
}

TEST(SearchCondition, ARefusedCallLeavesTheNewTypeAndTheOldCondition) {
    BexSearch search("5", BexPropTypeInt);
    EXPECT_EQ(search.condition("a*b*c", BexPropTypeText), 0U);
    EXPECT_EQ(search.isValid(), 1U);
    EXPECT_EQ(search.valueType(), BexPropTypeText);
    EXPECT_STREQ(search.condition(), "5");
    BexSearch fresh;
    EXPECT_EQ(fresh.condition("x", BexPropTypeInt), 0U);
    EXPECT_EQ(fresh.isValid(), 1U);
    EXPECT_STREQ(fresh.condition(), "");
    EXPECT_EQ(fresh.contains("0"), 0U);
}

TEST(SearchCondition, ANewConditionReplacesTheOldOne) {
    BexSearch search("3<9", BexPropTypeInt);
    EXPECT_EQ(search.condition("5<", BexPropTypeInt), 1U);
    EXPECT_EQ(search.contains("100"), 1U);
    EXPECT_EQ(search.contains("4"), 0U);
    EXPECT_EQ(search.condition(search.condition(), BexPropTypeText), 1U);
    EXPECT_STREQ(search.condition(), "5<");
    EXPECT_EQ(search.contains("5a"), 1U);
}

TEST(SearchCondition, CopiesMeanTheSame) {
    const BexSearch search("R*", BexPropTypeText);
    BexSearch copy(search);
    BexSearch assigned("5", BexPropTypeInt);
    EXPECT_EQ(assigned == search, 0U);
    assigned = search;
    EXPECT_EQ(copy == search, 1U);
    EXPECT_EQ(assigned == search, 1U);
    EXPECT_EQ(assigned.condition("S*", BexPropTypeText), 1U);
    EXPECT_EQ(copy.contains("R1"), 1U);
    EXPECT_EQ(assigned.contains("S1"), 1U);
}

TEST(SearchCondition, EqualityTakesTypeAndTextIn) {
    EXPECT_EQ(BexSearch("5", BexPropTypeInt) == BexSearch("5", BexPropTypeInt), 1U);
    EXPECT_EQ(BexSearch("5", BexPropTypeInt) == BexSearch("6", BexPropTypeInt), 0U);
    EXPECT_EQ(BexSearch("5", BexPropTypeInt) == BexSearch("05", BexPropTypeInt), 0U);
    EXPECT_EQ(BexSearch("5", BexPropTypeInt) == BexSearch("5", BexPropTypeFloat), 0U);
    EXPECT_EQ(BexSearch("a", BexPropTypeText) == BexSearch("a", BexPropTypeText), 1U);
    EXPECT_EQ(BexSearch("a", BexPropTypeRefFile) == BexSearch("a", BexPropTypeRefFile), 1U);
    EXPECT_EQ(BexSearch() == BexSearch(), 1U);
}

TEST(SearchCondition, NullValuesCompareLikeEmptyOnes) {
    EXPECT_EQ(BexSearch("!a", BexPropTypeText).contains(nullptr), 1U);
    EXPECT_EQ(BexSearch("<xa", BexPropTypeText).contains(nullptr), 1U);
    EXPECT_EQ(BexSearch("a<", BexPropTypeText).contains(nullptr), 0U);
    EXPECT_EQ(BexSearch("a*", BexPropTypeText).contains(nullptr), 0U);
    EXPECT_EQ(BexSearch("0", BexPropTypeInt).contains(nullptr), 1U);
    EXPECT_EQ(BexSearch("0", BexPropTypeFloat).contains(nullptr), 1U);
}

TEST(SearchCondition, TakesConditionsAndValuesOfAnyLength) {
    const std::string text(100000, 'a');
    EXPECT_EQ(BexSearch((text + "*").c_str(), BexPropTypeText).contains((text + "b").c_str()), 1U);
    const std::string nines(100000, '9');
    EXPECT_EQ(BexSearch(nines.c_str(), BexPropTypeInt).contains("2147483647"), 1U);
    EXPECT_EQ(BexSearch(nines.c_str(), BexPropTypeFloat).contains("1"), 0U);
}

} // namespace
