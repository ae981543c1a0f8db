#include "bexa/batch/batch_error_list.h"

#include "bexa/foundation/ygeneral/ystring_compare.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <list>
#include <random>
#include <string>
#include <vector>

using namespace bexa::test;

namespace {

// The rules in their plainest form: a list that is walked from its head, in order at any time.
class WalkedList {
public:
    void message(unsigned number, const std::string& text) {
        auto place = nodes_.begin();
        while (place != nodes_.end() &&
               (place->number < number || (place->number == number && place->text < text))) {
            ++place;
        }
        const bool isThere = place != nodes_.end() && place->number == number && place->text == text;
        current_ = isThere ? place : nodes_.insert(place, {number, text, {}});
    }
    void objectId(const std::string& identifier) {
        if (current_ == nodes_.end()) return;
        std::vector<std::string>& known = current_->objectIds;
        if (std::ranges::find(known, identifier) == known.end()) known.push_back(identifier);
    }
    std::string printed() const {
        std::string report;
        for (const Node& node : nodes_) {
            report += "\n<Mess." + std::to_string(node.number) +
                      std::string(5 - std::to_string(node.number).size(), ' ');
            report += "> " + node.text + "\n";
            std::vector<std::string> sorted = node.objectIds;
            std::ranges::stable_sort(sorted, before);
            for (const std::string& identifier : sorted)
                report += "             objectId:" + identifier + "\n";
        }
        return report;
    }

private:
    struct Node {
        unsigned number;
        std::string text;
        std::vector<std::string> objectIds;
    };

    static std::vector<std::string> componentsOf(std::string identifier) {
        std::vector<std::string> components;
        for (char* part = std::strtok(identifier.data(), "."); part; part = std::strtok(nullptr, ".")) {
            components.emplace_back(part);
        }
        return components;
    }
    static bool before(const std::string& left, const std::string& right) {
        std::vector<std::string> a = componentsOf(left);
        std::vector<std::string> b = componentsOf(right);
        a.resize(std::max(a.size(), b.size()));
        b.resize(a.size());
        for (std::size_t i = 0; i < a.size(); ++i) {
            if (const int order = YStringCmp::ArithCmp(a[i].c_str(), b[i].c_str())) return order < 0;
        }
        return false;
    }

    std::list<Node> nodes_;
    std::list<Node>::iterator current_ = nodes_.end();
};

// A message or an identifier from a small stock, to both lists.
void reportAtRandom(std::mt19937& random, BexBatErrList& list, WalkedList& walked) {
    const char* const parts[] = {"U", "u",  "A10", "A9",  "1", "01",       "10",
                                 "9", "-3", "+2",  "1.5", "",  "\x83\x5C", "10a"};
    const auto pick = [&] { return std::string(parts[random() % std::size(parts)]); };
    if (random() % 3 != 0) {
        const std::string identifier = pick() + '.' + pick() + (random() % 2 ? "." + pick() : "");
        list.objectId(identifier);
        walked.objectId(identifier);
        return;
    }
    const auto number = static_cast<unsigned>(random() % 5);
    const std::string text = pick() + pick();
    list.message(number, text);
    walked.message(number, text);
}

class BatchErrorList : public ::testing::Test {
protected:
    std::string printed(const BexBatErrList& list) const {
        const std::string path = dir.file("report");
        std::FILE* stream = std::fopen(path.c_str(), "wb");
        list.print(stream);
        std::fclose(stream);
        return contentOf(path);
    }

private:
    const TempDir dir;
};

} // namespace

TEST_F(BatchErrorList, AnEmptyListPrintsNothing) {
    BexBatErrList list;
    EXPECT_EQ(printed(list), "");
    list.objectId("no message yet");
    EXPECT_EQ(printed(list), "");
}

TEST_F(BatchErrorList, PrintingDoesNotEmptyTheList) {
    BexBatErrList list;
    list.message(7, "text");
    list.objectId("b");
    EXPECT_EQ(printed(list), "\n<Mess.7    > text\n             objectId:b\n");
    list.objectId("a");
    EXPECT_EQ(printed(list), "\n<Mess.7    > text\n             objectId:a\n             objectId:b\n");
}

TEST_F(BatchErrorList, AnIdentifierOfOneMessageIsNewToAnother) {
    BexBatErrList list;
    list.message(1, "one");
    list.objectId("U1");
    list.message(2, "two");
    list.objectId("U1");
    list.message(1, "one");
    list.objectId("U1");
    EXPECT_EQ(printed(list),
              "\n<Mess.1    > one\n             objectId:U1\n\n<Mess.2    > two\n             objectId:U1\n");
}

TEST_F(BatchErrorList, IdentifiersThatCompareEqualButDifferAreAllKept) {
    BexBatErrList list;
    list.message(1, "one");
    for (const char* identifier : {"A.01", "A.1", "A..1", "A.1"}) list.objectId(identifier);
    EXPECT_EQ(printed(list), "\n<Mess.1    > one\n             objectId:A.01\n             objectId:A.1\n"
                             "             objectId:A..1\n");
}

TEST_F(BatchErrorList, PrintsWhatAWalkedListPrints) {
    std::mt19937 random(4711);
    for (int round = 0; round < 20; ++round) {
        BexBatErrList list;
        WalkedList walked;
        for (int i = 0; i < 300; ++i) reportAtRandom(random, list, walked);
        ASSERT_EQ(printed(list), walked.printed()) << "round " << round;
    }
}

TEST_F(BatchErrorList, ALargeListIsGatheredWithoutAWalk) {
    constexpr int size = 30'000;
    BexBatErrList list;
    for (int i = 0; i < size; ++i) {
        list.message(1, "message " + std::to_string(i));
        if (i % 2 != 0) continue;
        list.message(0, "first");
        list.objectId("U." + std::to_string(size - i));
    }
    const std::string report = printed(list);
    EXPECT_EQ(static_cast<int>(std::ranges::count(report, '\n')), 2 * (size + 1) + size / 2);
    EXPECT_TRUE(
        report.starts_with("\n<Mess.0    > first\n             objectId:U.2\n             objectId:U.4\n"));
}
