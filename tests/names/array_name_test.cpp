#include "bexa/names/array_name.h"
#include "tests/names/naming.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace naming;

struct Row {
    const char* text;
    const char* root;
    Texts signals;
};

TEST(ArrayName, ExpandsInTheOrderOfTheItems) {
    const Row rows[] = {
        {"CLK", "CLK", {"CLK"}},
        {"A-B", "A-B", {"A-B"}},
        {"D[5]", "D", {"D[5]"}},
        {"D[0-3]", "D", {"D[0]", "D[1]", "D[2]", "D[3]"}},
        {"D[3-0]", "D", {"D[3]", "D[2]", "D[1]", "D[0]"}},
        {"D[0-6-2]", "D", {"D[0]", "D[2]", "D[4]", "D[6]"}},
        {"D[0-5-2]", "D", {"D[0]", "D[2]", "D[4]"}}, // the step passes the last number
        {"D[6-1-2]", "D", {"D[6]", "D[4]", "D[2]"}},
        {"D[0-3-9]", "D", {"D[0]"}},
        {"D[3-0-9]", "D", {"D[3]"}},
        {"D[1,3,7-5]", "D", {"D[1]", "D[3]", "D[7]", "D[6]", "D[5]"}},
        {"D[2,2]", "D", {"D[2]", "D[2]"}},
        {"D[007]", "D", {"D[7]"}},
        {"D[007-009]", "D", {"D[7]", "D[8]", "D[9]"}},
        {"D[1,,3]", "D", {"D[1]", "", "D[3]"}},
        {"D[,1]", "D", {"", "D[1]"}},
        {"D[1,]", "D", {"D[1]", ""}},
        {"D[0-1,3,]", "D", {"D[0]", "D[1]", "D[3]", ""}},
        {"(X)[1]", "(X)", {"(X)[1]"}},
        {"D[2147483645-2147483647]", "D", {"D[2147483645]", "D[2147483646]", "D[2147483647]"}},
        {"D[2147483647-2147483646]", "D", {"D[2147483647]", "D[2147483646]"}},
        {"D[0-2147483647-2147483647]", "D", {"D[0]", "D[2147483647]"}},
        {"D[5-7-99999999999]", "D", {"D[5]"}},
        {"D[99999999999]", "D", {"D[2147483647]"}}, // a number that doesn't fit is the largest one
    };
    for (const Row& row : rows) {
        const BexChkArrayName name = array(row.text);
        SCOPED_TRACE(row.text);
        EXPECT_EQ(name.errType(), BexNetNameOk);
        EXPECT_EQ(name.isValid(), 1u);
        EXPECT_STREQ(name.name(), row.root);
        EXPECT_STREQ(name.arrayName(), row.text);
        EXPECT_EQ(signalsOf(name), row.signals);
        EXPECT_EQ(name.isArray(), row.signals.size() > 1 ? 1u : 0u);
    }
}

TEST(ArrayName, AnItemMayEndInADelimiterUnlessItIsTheLast) {
    EXPECT_EQ(signalsOf(array("D[3-,4]")), (Texts{"D[3]", "D[4]"}));
    EXPECT_EQ(signalsOf(array("D[1-3-,9]")), (Texts{"D[1]", "D[2]", "D[3]", "D[9]"}));
    EXPECT_EQ(signalsOf(array("D[3-,]")), (Texts{"D[3]", ""}));
    EXPECT_EQ(array("D[1-3-]").errType(), BexNetNameSyntax);
}

TEST(ArrayName, TellsSignalsApart) {
    const BexChkArrayName name = array("D[007,,2]");
    ASSERT_EQ(name.sigCount(), 3);
    EXPECT_EQ(name.at(0).bitNumber(), 7);
    EXPECT_STREQ(name.at(0).sigName(), "D");
    EXPECT_EQ(name.at(0).errType(), BexNetNameOk);
    EXPECT_STREQ(name.at(1).sigName(), "");
    EXPECT_EQ(name.at(1).errType(), BexNetNameUnchecked);
    EXPECT_EQ(name.at(1).bitNumber(), -1);
    const BexChkArrayName plain = array("CLK");
    EXPECT_STREQ(plain.at(0).sigName(), "CLK");
    EXPECT_EQ(plain.at(0).bitNumber(), -1);
    EXPECT_EQ(plain.at(0).errType(), BexNetNameOk);
}

TEST(ArrayName, HasOnlyItsTextAfterAFaultOfTheWholeName) {
    const char* const names[] = {
        "[0-3]", ",D",    ",",    ",[1]", "D[0-3", "D0-3]", "D[1]X",  "D[1][2]",
        "D[1]]", "D[[1]", "D]1[", "D[]",  "D[3-]", "D[-]",  "D[a]",   "D[1,a]",
        "D[1 ]", "[",     "]",    "[]",   "A,B",   "A,",    "D[1],E", "A,B[1]C",
    };
    for (const char* text : names) {
        const BexChkArrayName name = array(text);
        SCOPED_TRACE(text);
        EXPECT_EQ(name.errType(), BexNetNameSyntax);
        EXPECT_EQ(name.isValid(), 0u);
        EXPECT_EQ(name.sigCount(), 0);
        EXPECT_STREQ(name.name(), "");
        EXPECT_STREQ(name.arrayName(), text);
    }
}

TEST(ArrayName, KeepsItsRootAfterAMalformedItem) {
    const char* const names[] = {
        "D[2-2]",     "D[0-7-0]",
        "D[-3]",      "D[1--3]",
        "D[1-2-3-4]", "D[1-2-3-,4]",
        "D[1,a,3]",   "D[a,3]",
        "D[1-a-3]",   "D[ 1]",
        "D[+1]",      "D[2-02]",
        "D[1,2-2]",   "D[-,1]",
        "D[--1]",     "D[1-2--3]",
        "D[x1]",      "D[1,-3]",
        "D[1-2,-,3]", "D[2147483647-99999999999]", // both numbers are the largest one
    };
    for (const char* text : names) {
        const BexChkArrayName name = array(text);
        SCOPED_TRACE(text);
        EXPECT_EQ(name.errType(), BexNetNameSyntax);
        EXPECT_EQ(name.sigCount(), 0);
        EXPECT_STREQ(name.name(), "D");
        EXPECT_STREQ(name.arrayName(), text);
    }
}

TEST(ArrayName, OfNothingHasOneEmptySignal) {
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        const BexChkArrayName name(text, '[', ']', '-', ',', '-');
        EXPECT_EQ(name.errType(), BexNetNameUnchecked);
        EXPECT_EQ(signalsOf(name), Texts{""});
        EXPECT_EQ(name.at(0).errType(), BexNetNameUnchecked);
        EXPECT_STREQ(name.name(), "");
        EXPECT_STREQ(name.arrayName(), "");
        EXPECT_EQ(name.isArray(), 0u);
    }
    EXPECT_EQ(BexChkArrayName().sigCount(), 0);
    EXPECT_EQ(BexChkArrayName().errType(), BexNetNameUnchecked);
}

TEST(ArrayName, NeedsFourOfFiveDelimiters) {
    for (int missing = 0; missing < 4; ++missing) {
        char d[] = {'[', ']', '-', ','};
        d[missing] = '\0';
        SCOPED_TRACE(missing);
        const BexChkArrayName name("D[1]", d[0], d[1], d[2], d[3], '-');
        EXPECT_EQ(name.errType(), BexNetNameNoDelimiter);
        EXPECT_EQ(name.sigCount(), 0);
        EXPECT_STREQ(name.name(), "");
        EXPECT_STREQ(name.arrayName(), "D[1]");
        EXPECT_EQ(BexChkArrayName("D[", d[0], d[1], d[2], d[3], '-').errType(), BexNetNameNoDelimiter);
        const BexChkArrayName empty("", d[0], d[1], d[2], d[3], '-');
        EXPECT_EQ(empty.errType(), BexNetNameUnchecked);
        EXPECT_EQ(empty.sigCount(), 1);
    }
}

TEST(ArrayName, WithoutAStepDelimiterHasNoSteps) {
    const Marks noStep{'[', ']', '-', ',', '\0'};
    EXPECT_EQ(signalsOf(array("D[0-2]", noStep)), (Texts{"D[0]", "D[1]", "D[2]"}));
    EXPECT_EQ(array("D[0-6-2]", noStep).errType(), BexNetNameSyntax);
    EXPECT_EQ(signalsOf(array("D[3-,4]", noStep)), (Texts{"D[3]", "D[4]"}));
    EXPECT_EQ(array("D[1-3-,4]", noStep).errType(), BexNetNameSyntax);
}

TEST(ArrayName, TellsRangeAndStepDelimitersApart) {
    const Marks marks{'[', ']', ':', ',', '/'};
    EXPECT_EQ(signalsOf(array("D[0:6/3]", marks)), (Texts{"D[0]", "D[3]", "D[6]"}));
    EXPECT_EQ(signalsOf(array("D[0:2/,5:,7]", marks)), (Texts{"D[0]", "D[1]", "D[2]", "D[5]", "D[7]"}));
    for (const char* text : {"D[0:6:3]", "D[3/4]", "D[/4]", "D[0:/3]", "D[0/:3]", "D[3/,4]"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(array(text, marks).errType(), BexNetNameSyntax);
    }
}

TEST(ArrayName, DelimitersMayBeDigitsOrEqual) {
    EXPECT_EQ(signalsOf(array("D[053]", {'[', ']', '5', ',', '-'})), (Texts{"D[0]", "D[1]", "D[2]", "D[3]"}));
    EXPECT_EQ(signalsOf(array("D[35]", {'[', ']', '5', ',', '-'})), Texts{"D[3]"});
    EXPECT_EQ(signalsOf(array("D[8-12]", {'[', ']', '-', '1', '-'})), (Texts{"D[8]", "D[2]"}));
    // The name of bit 10 would hold the opening character twice, so it is no signal.
    EXPECT_EQ(signalsOf(array("D09-11]", {'0', ']', '-', ',', '-'})), (Texts{"D09]", "D011]"}));
    EXPECT_EQ(signalsOf(array("D[9-122", {'[', '2', '-', ',', '-'})), Texts()); // it closes twice in the text
    // One character that opens and closes makes no list.
    EXPECT_EQ(array("D|", {'|', '|', '-', ',', '-'}).errType(), BexNetNameSyntax);
    EXPECT_EQ(array("D1|", {'|', '|', '-', ',', '-'}).errType(), BexNetNameSyntax);
    EXPECT_EQ(array("D|1|", {'|', '|', '-', ',', '-'}).errType(), BexNetNameSyntax);
    // A separator equal to a bracket: no bit is a signal.
    EXPECT_EQ(array("D[1]", {'[', ']', '-', '[', '-'}).errType(), BexNetNameUnchecked);
    EXPECT_EQ(array("D[1]", {'[', ']', '-', '[', '-'}).sigCount(), 0);
    // A separator equal to the range delimiter separates.
    EXPECT_EQ(signalsOf(array("D[1-3]", {'[', ']', '-', '-', '-'})), (Texts{"D[1]", "D[3]"}));
}

TEST(ArrayName, OfEmptyItemsAloneIsNeitherValidNorAnError) {
    const BexChkArrayName name = array("D[,]");
    EXPECT_EQ(name.errType(), BexNetNameUnchecked);
    EXPECT_EQ(name.isValid(), 0u);
    EXPECT_EQ(signalsOf(name), (Texts{"", ""}));
    EXPECT_STREQ(name.name(), "D");
    EXPECT_EQ(name.isArray(), 1u);
}

TEST(ArrayName, BitsThatAreNoSignalsAreLeftOut) {
    for (const char* text : {"D,[1]", "D,[0-9,12]"}) {
        const BexChkArrayName name = array(text);
        SCOPED_TRACE(text);
        EXPECT_EQ(name.errType(), BexNetNameUnchecked);
        EXPECT_EQ(name.sigCount(), 0);
        EXPECT_STREQ(name.name(), "D,");
        EXPECT_STREQ(name.arrayName(), text);
    }
    // The empty items are still there, and a malformed one still counts.
    EXPECT_EQ(signalsOf(array("D,[1,,2]")), Texts{""});
    EXPECT_EQ(array("D,[1,2-2]").errType(), BexNetNameSyntax);
    EXPECT_STREQ(array("D,[1,2-2]").name(), "D,");
}

TEST(ArrayName, RefusesMoreSignalsThanTheLimit) {
    const std::string last = std::to_string(BexChkArrayName::maxSignals);
    const Texts lists = {"0-" + last,        last + "-0",
                         "0-2000000000",     "0-99999999999",
                         "0-2147483647-100", "1,,0-" + std::to_string(BexChkArrayName::maxSignals - 2)};
    for (const std::string& list : lists) {
        const BexChkArrayName name = array("D[" + list + "]");
        SCOPED_TRACE(list);
        EXPECT_EQ(name.errType(), BexNetNameSyntax);
        EXPECT_EQ(name.sigCount(), 0);
        EXPECT_STREQ(name.name(), "D");
    }
    EXPECT_EQ(array("D[0-2147483647-1000]").sigCount(), 2147484);
}

TEST(ArrayName, SignalOutsideIsNull) {
    const BexChkArrayName name = array("D[0-1]");
    EXPECT_STREQ(name.sigName(1), "D[1]");
    EXPECT_EQ(name.sigName(2), nullptr);
    EXPECT_EQ(name.sigName(-1), nullptr);
    EXPECT_EQ(BexChkArrayName().sigName(0), nullptr);
}

TEST(ArrayName, FindsWhatBeginsWithItsRoot) {
    EXPECT_EQ(array("D[0-3]").find(signal("D[2]")), 1u);
    EXPECT_EQ(array("D[0-3]").find(signal("D[4]")), 0u);
    EXPECT_EQ(array("D[0-3]").find(signal("D[02]")), 0u);
    EXPECT_EQ(array("DATA[0-3]").find(signal("D[2]")), 0u);
    EXPECT_EQ(array("CLK").find(signal("CLK")), 1u);
    EXPECT_EQ(array("CLK").find(signal("CLKX")), 0u);
    EXPECT_EQ(array("D[1,,3]").find(signal("")), 0u);
    EXPECT_EQ(array("").find(signal("")), 0u);
    EXPECT_EQ(array("D[1,,3]").find(signal("D[")), 0u);
    // The test of the root rejects a signal that is there.
    BexChkArrayName changed = array("DATA[0-3]");
    changed.at(1) = signal("X");
    EXPECT_EQ(changed.find(signal("X")), 0u);
}

TEST(ArrayName, SortsByBytes) {
    BexChkArrayName name = array("D[10,2,1,,10]");
    name.sort();
    EXPECT_EQ(signalsOf(name), (Texts{"", "D[10]", "D[10]", "D[1]", "D[2]"}));
    EXPECT_EQ(name.search(signal("D[2]")), 1u);
    EXPECT_EQ(name.search(signal("D[10]")), 1u);
    EXPECT_EQ(name.search(signal("D[3]")), 0u);
    EXPECT_STREQ(name.arrayName(), "D[10,2,1,,10]");
    BexChkArrayName none;
    none.sort();
    EXPECT_EQ(none.search(signal("A")), 0u);
}

TEST(ArrayName, ComparesBytesAsUnsigned) {
    const auto order = [](const char* a, const char* b) {
        const BexChkSigName first = signal(a), second = signal(b);
        return BexChkArrayName::signameCompare(&first, &second);
    };
    EXPECT_EQ(order("A", "A"), 0);
    EXPECT_EQ(order("A", "B"), -1);
    EXPECT_EQ(order("C", "A"), 1);
    EXPECT_EQ(order("\xB1", "A"), 1);
    EXPECT_EQ(order("A", "AB"), -1);
    EXPECT_EQ(order("", "A"), -1);
    EXPECT_EQ(order("D[10]", "D[2]"), -1);
}

TEST(ArrayName, ComparesSignalsNotTexts) {
    EXPECT_TRUE(array("D[0-2]") == array("D[0,1,02]"));
    EXPECT_FALSE(array("D[0-2]") != array("D[0,1,02]"));
    EXPECT_TRUE(array("D[0,1]") != array("D[1,0]"));
    EXPECT_TRUE(array("D[0]") != array("E[0]"));
    EXPECT_TRUE(array("D[0]") != array("D[0,0]"));
    EXPECT_TRUE(array("D[,]") == array("D[,]"));
    EXPECT_TRUE(BexChkArrayName() != array("")); // no signals and one empty signal
    EXPECT_TRUE(array("X[") == array("Y["));     // both failed, with nothing left
    EXPECT_TRUE(array("X[2-2]") != array("Y[2-2]"));
    EXPECT_TRUE(array("X[") != BexChkArrayName("X", '\0', ']', '-', ',', '-'));
}

TEST(ArrayName, CaseCompareIgnoresTheOrderNotTheCase) {
    EXPECT_EQ(array("D[0,1]").caseCompare(array("D[1,0]")), 1u);
    EXPECT_EQ(array("D[0,0,1]").caseCompare(array("D[1,0,1]")), 0u);
    EXPECT_EQ(array("d[0]").caseCompare(array("D[0]")), 0u);
    EXPECT_EQ(array("D[0]").caseCompare(array("D[0,0]")), 0u);
    const BexChkArrayName first = array("D[0,1]");
    first.caseCompare(array("D[1,0]"));
    EXPECT_EQ(signalsOf(first), (Texts{"D[0]", "D[1]"}));
}

TEST(ArrayName, CopiesAllFields) {
    const BexChkArrayName name = array("D[0-3]");
    const BexChkArrayName copy = name;
    BexChkArrayName assigned = array("X[0-9]");
    assigned = name;
    for (const BexChkArrayName* other : {&copy, static_cast<const BexChkArrayName*>(&assigned)}) {
        EXPECT_EQ(signalsOf(*other), signalsOf(name));
        EXPECT_STREQ(other->name(), "D");
        EXPECT_STREQ(other->arrayName(), "D[0-3]");
        EXPECT_EQ(other->errType(), BexNetNameOk);
    }
}

TEST(ArrayName, IteratorWalksAndGrowsAtTheEnd) {
    BexChkArrayName name = array("D[0-1]");
    Texts seen;
    BexArrayNameItr walk(&name);
    for (; !walk.isEnd(); ++walk) seen.emplace_back(walk().name());
    EXPECT_EQ(seen, (Texts{"D[0]", "D[1]"}));
    // Reading at the end adds an empty signal.
    EXPECT_STREQ(walk().name(), "");
    EXPECT_EQ(name.sigCount(), 3);
    EXPECT_EQ(walk.isEnd(), 0u);
    EXPECT_EQ((++walk).isEnd(), 1u);
    BexChkArrayName other = array("X");
    BexArrayNameItr second(&other);
    walk = second;
    EXPECT_STREQ(walk().name(), "X");
}

TEST(ArrayName, SurvivesAHugeText) {
    std::string list = "D[";
    for (int i = 0; i < 500'000; ++i) list += std::to_string(i) + ",";
    list += "0-3]";
    const BexChkArrayName name = array(list);
    EXPECT_EQ(name.sigCount(), 500'004);
    EXPECT_STREQ(name.sigName(499'999), "D[499999]");
    EXPECT_EQ(array(std::string(10'000'000, '[')).errType(), BexNetNameSyntax);
    EXPECT_EQ(array(std::string(10'000'000, 'x')).errType(), BexNetNameOk);
}

// The rules once more, told in the plainest way: every bit name is made and then checked as a signal.
struct Expected {
    BexNetNameErrType errType;
    std::string root;
    Texts signals;
};

bool readItem(const std::string& item, const Marks& m, std::vector<int>& numbers) {
    std::size_t at = 0;
    while (at < item.size()) {
        if (item[at] == m.rangeEnd || item[at] == m.rangeStep) return false;
        const char stop = numbers.empty() ? m.rangeEnd : numbers.size() == 1 ? m.rangeStep : '\0';
        std::string digits;
        for (; at < item.size() && item[at] != stop; ++at) {
            if (item[at] < '0' || item[at] > '9') return false;
            digits += item[at];
        }
        if (numbers.size() == 3) return false;
        numbers.push_back(std::stoi(digits));
        ++at;
    }
    if (numbers.size() > 1 && numbers[0] == numbers[1]) return false;
    return numbers.size() < 3 || numbers[2] != 0;
}

Expected plainExpansion(const std::string& text, const Marks& m) {
    if (text.empty()) return {BexNetNameUnchecked, "", {""}};
    const Expected syntax{BexNetNameSyntax, "", {}};
    const auto start = text.find(m.busStart), end = text.find(m.busEnd);
    if (end != text.rfind(m.busEnd) || start != text.rfind(m.busStart) || start == 0) return syntax;
    if (end != std::string::npos && end != text.size() - 1) return syntax;
    if ((end == std::string::npos) != (start == std::string::npos) || text[0] == m.bitEnd) return syntax;
    if (start == std::string::npos) {
        return signal(text, m).isValid() ? Expected{BexNetNameOk, text, {text}} : syntax;
    }
    const char last = text[end - 1];
    if (!(last >= '0' && last <= '9') && last != m.bitEnd) return syntax;
    if (end <= start + 1) return syntax;

    Expected result{BexNetNameUnchecked, text.substr(0, start), {}};
    std::string list = text.substr(start + 1, end - start - 1) + m.bitEnd;
    for (std::size_t cut; (cut = list.find(m.bitEnd)) != std::string::npos; list.erase(0, cut + 1)) {
        std::vector<int> numbers;
        if (!readItem(list.substr(0, cut), m, numbers)) return {BexNetNameSyntax, result.root, {}};
        if (numbers.empty()) result.signals.emplace_back();
        if (numbers.empty()) continue;
        const int first = numbers[0], final = numbers.size() > 1 ? numbers[1] : first;
        const int step = numbers.size() > 2 ? numbers[2] : 1;
        for (int bit = first; first > final ? bit >= final : bit <= final;
             bit += first > final ? -step : step) {
            const std::string name = result.root + m.busStart + std::to_string(bit) + m.busEnd;
            if (!signal(name, m).isValid()) continue;
            result.errType = BexNetNameOk;
            result.signals.push_back(name);
        }
    }
    return result;
}

TEST(ArrayName, AgreesWithThePlainRulesOnRandomTexts) {
    std::mt19937 random(20240);
    const std::string characters = "[]-,/:12D|0";
    for (int round = 0; round < 60'000; ++round) {
        Marks marks;
        if (round % 2) {
            for (char* mark :
                 {&marks.busStart, &marks.busEnd, &marks.rangeEnd, &marks.bitEnd, &marks.rangeStep}) {
                if (random() % 3 == 0) *mark = characters[random() % characters.size()];
            }
        }
        const std::string alphabet = {'D', '1', '2', '3', '0', marks.rangeEnd, marks.bitEnd, marks.rangeStep};
        std::string text = randomText(random, characters, 9);
        if (round % 4)
            text = "D" + (std::string() + marks.busStart) + randomText(random, alphabet, 7) + marks.busEnd;

        const Expected expected = plainExpansion(text, marks);
        const BexChkArrayName name = array(text, marks);
        SCOPED_TRACE(text + " with " + marks.busStart + marks.busEnd + marks.rangeEnd + marks.bitEnd +
                     marks.rangeStep);
        ASSERT_EQ(name.errType(), expected.errType);
        ASSERT_EQ(name.name(), expected.root);
        ASSERT_EQ(signalsOf(name), expected.signals);
        for (int i = 0; i < name.sigCount(); ++i) {
            const BexChkSigName check = signal(name.sigName(i), marks);
            ASSERT_TRUE(name.at(i) == check);
            ASSERT_STREQ(name.at(i).sigName(), check.sigName());
            ASSERT_EQ(name.at(i).bitNumber(), check.bitNumber());
        }
    }
}

} // namespace
