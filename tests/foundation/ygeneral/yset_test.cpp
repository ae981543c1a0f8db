#include "bexa/foundation/ygeneral/yset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

struct Record {
    unsigned long hash;
    std::string name;
};

// Equal by name; the hash is chosen by the test.
class RecordSet : public YSet {
public:
    using YSet::deleteAsTheyCame;
    using YSet::YSet;

    std::vector<std::string> deleted;

protected:
    unsigned long compare(const void* key, const void* held) const override {
        return static_cast<const Record*>(key)->name == static_cast<const Record*>(held)->name;
    }
    unsigned long hashValue(const void* key) const override {
        return key ? static_cast<const Record*>(key)->hash : 0;
    }
    void deleteIt(void* element) override { deleted.push_back(static_cast<Record*>(element)->name); }
};

std::string walk(const YSet& set) {
    std::string names;
    YSetIterator iterator(set);
    while (void* element = iterator.doNext()) {
        names += static_cast<Record*>(element)->name;
    }
    EXPECT_EQ(iterator.doNext(), nullptr);
    return names;
}

TEST(YSet, HoldsOnePointerForAKey) {
    RecordSet set;
    Record first{1, "a"};
    Record second{1, "a"};
    EXPECT_EQ(set.attach(&first), &first);
    EXPECT_EQ(set.attach(&second), &first);
    EXPECT_EQ(set.count(), 1);
    EXPECT_EQ(set.search(&second), &first);
    EXPECT_EQ(set.contains(&second), 1U);
}

TEST(YSet, DetachReturnsWhatWasHeldAndDeletesNothing) {
    RecordSet set;
    Record held{1, "a"};
    Record key{1, "a"};
    EXPECT_EQ(set.detach(&key), nullptr);
    set.attach(&held);
    EXPECT_EQ(set.detach(&key), &held);
    EXPECT_EQ(set.detach(&key), nullptr);
    EXPECT_EQ(set.search(&key), nullptr);
    EXPECT_EQ(set.contains(&key), 0U);
    EXPECT_EQ(set.count(), 0);
    EXPECT_TRUE(set.deleted.empty());
}

TEST(YSet, DetachAllForgetsAndDeleteAllDeletes) {
    RecordSet set(10);
    Record records[] = {{2, "c"}, {0, "a"}, {1, "b"}};
    const auto fill = [&] {
        for (Record& record : records) {
            set.attach(&record);
        }
    };
    fill();
    EXPECT_EQ(set.detachAll(), 1U);
    EXPECT_EQ(set.count(), 0);
    EXPECT_EQ(walk(set), "");
    EXPECT_EQ(set.tableSize(), 10);
    EXPECT_TRUE(set.deleted.empty());
    fill();
    EXPECT_EQ(set.deleteAll(), 1U);
    EXPECT_EQ(set.count(), 0);
    EXPECT_EQ(set.deleted, (std::vector<std::string>{"a", "b", "c"}));
}

TEST(YSet, DeletesAsTheyCameForAnOwnerThatEnds) {
    RecordSet set(10);
    Record records[] = {{2, "c"}, {0, "a"}, {1, "b"}};
    for (Record& record : records) set.attach(&record);
    set.detach(&records[1]);
    set.deleteAsTheyCame();
    EXPECT_EQ(set.deleted, (std::vector<std::string>{"c", "b"}));
    EXPECT_EQ(set.count(), 0);
    EXPECT_EQ(walk(set), "");
    EXPECT_EQ(set.attach(&records[2]), &records[2]) << "the set lives on";
    EXPECT_EQ(walk(set), "b");
}

TEST(YSet, IsWalkedBySlotAndWithinASlotByAge) {
    Record records[] = {{12, "e"}, {7, "c"}, {2, "f"}, {0, "a"}, {22, "g"}, {10, "b"}, {17, "d"}};
    RecordSet set(10);
    for (Record& record : records) {
        set.attach(&record);
    }
    EXPECT_EQ(walk(set), "abefgcd");
    set.detach(&records[2]);
    set.attach(&records[2]);
    EXPECT_EQ(walk(set), "abegfcd");
    EXPECT_EQ(set.tableSize(5), 1U);
    EXPECT_EQ(set.tableSize(), 5);
    EXPECT_EQ(walk(set), "abecgdf");
}

TEST(YSet, GrowsToTwiceAndOneAboveTwoElementsASlot) {
    RecordSet set(3);
    std::vector<Record> records;
    for (unsigned long i = 0; i < 7; ++i) {
        records.push_back({i, std::string(1, static_cast<char>('a' + i))});
    }
    for (int i = 0; i < 6; ++i) {
        set.attach(&records[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(set.tableSize(), 3);
    EXPECT_EQ(walk(set), "adbecf");
    set.attach(&records[6]);
    EXPECT_EQ(set.tableSize(), 7);
    EXPECT_EQ(walk(set), "abcdefg");
}

TEST(YSet, TableSizesHaveLimits) {
    EXPECT_EQ(YSet(0U).tableSize(), 1);
    EXPECT_EQ(YSet(5U).tableSize(), 5);
    EXPECT_EQ(YSet(4000000000U).tableSize(), 16777213);
    YSet set;
    set.tableSize(-4);
    EXPECT_EQ(set.tableSize(), 1);
}

TEST(YSet, CopiesHoldTheSamePointersInTheSameOrder) {
    RecordSet set(3);
    Record records[] = {{1, "a"}, {0, "b"}, {4, "c"}};
    for (Record& record : records) {
        set.attach(&record);
    }
    RecordSet copy(set);
    EXPECT_EQ(walk(copy), walk(set));
    copy.detach(&records[0]);
    EXPECT_EQ(set.count(), 3);
    EXPECT_EQ(copy.copyFrom(set), 1U);
    EXPECT_EQ(walk(copy), walk(set));
    EXPECT_EQ(copy.tableSize(), 3);
    copy.copyFrom(copy);
    EXPECT_EQ(walk(copy), walk(set));
    const std::unique_ptr<YSet> other(set.copy());
    EXPECT_EQ(walk(*other), walk(set));
    copy.detachAll();
    copy = set;
    EXPECT_EQ(walk(copy), "bac");
}

TEST(YSet, NullIsNeverHeld) {
    YSet set;
    EXPECT_EQ(set.attach(nullptr), nullptr);
    EXPECT_EQ(set.count(), 0);
    EXPECT_EQ(set.search(nullptr), nullptr);
    EXPECT_EQ(set.contains(nullptr), 0U);
}

TEST(YSet, WithoutADerivedClassPointersAreTheKeys) {
    YSet set;
    int values[100] = {};
    for (int& value : values) {
        EXPECT_EQ(set.attach(&value), &value);
    }
    EXPECT_EQ(set.attach(&values[5]), &values[5]);
    EXPECT_EQ(set.count(), 100);
    EXPECT_EQ(set.search(&values[99]), &values[99]);
    set.dummy_func();
    set.deleteAll();
    EXPECT_EQ(set.count(), 0);
}

TEST(YSetIterator, OfNothingEndsAtOnce) {
    YSetIterator empty;
    EXPECT_EQ(empty.doNext(), nullptr);
    const YSet set;
    YSetIterator ofEmptySet(set);
    EXPECT_EQ(ofEmptySet.doNext(), nullptr);
}

TEST(YSetIterator, ElementsMayBeDetachedDuringTheWalk) {
    RecordSet set(2);
    Record records[] = {{0, "a"}, {0, "b"}, {0, "c"}, {1, "d"}};
    for (Record& record : records) {
        set.attach(&record);
    }
    YSetIterator iterator(set);
    EXPECT_EQ(iterator.doNext(), &records[0]);
    set.detach(&records[0]);
    set.detach(&records[1]);
    EXPECT_EQ(iterator.doNext(), &records[2]);
    set.detach(&records[2]);
    EXPECT_EQ(iterator.doNext(), &records[3]);
    EXPECT_EQ(iterator.doNext(), nullptr);
    EXPECT_EQ(walk(set), "d");
}

TEST(YSet, AgreesWithAMapOverManySteps) {
    std::vector<Record> records;
    for (unsigned long i = 0; i < 500; ++i) {
        records.push_back({i % 37 * 1000003, std::to_string(i)});
    }
    RecordSet set(1);
    std::map<std::string, void*> map;
    std::mt19937 random(1);
    for (int step = 0; step < 50000; ++step) {
        Record& record = records[random() % records.size()];
        if (random() % 2 != 0) {
            EXPECT_EQ(set.attach(&record), map.try_emplace(record.name, &record).first->second);
        } else {
            EXPECT_EQ(set.detach(&record) != nullptr, map.erase(record.name) == 1);
        }
        ASSERT_EQ(set.count(), static_cast<int>(map.size()));
    }
    for (const Record& record : records) {
        EXPECT_EQ(set.contains(&record), map.contains(record.name) ? 1U : 0U);
    }
}

} // namespace
