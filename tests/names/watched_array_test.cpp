#include "bexa/names/array_name.h"
#include "tests/names/naming.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

using namespace naming;

// Shows what a class that keeps an index would see.
class Watcher : public BexChkArrayName_Array {
public:
    using BexChkArrayName_Array::BexChkArrayName_Array;
    using BexChkArrayName_Array::changes;
    using BexChkArrayName_Array::isLent;
};

Watcher filled() {
    Watcher array;
    for (const char* text : {"A", "B", "C"}) array.append(naming::array(text));
    return array;
}

TEST(WatchedArray, HasTheFaceOfTheFamily) {
    Watcher array = filled();
    EXPECT_EQ(array.size(), 3);
    EXPECT_STREQ(array[1].name(), "B");
    EXPECT_STREQ(array.at(2).name(), "C");
    EXPECT_EQ(array(), static_cast<BexChkArrayName*>(array));
    array[5]; // reading past the end extends the array
    EXPECT_EQ(array.size(), 6);
    enum Place { Sixth = 5 };
    EXPECT_EQ(&array[Sixth], array() + 5);
    array.end() = naming::array("E");
    EXPECT_EQ(array.size(), 7);
    EXPECT_EQ(array.remove(7), 1u); // the count itself drops the last element
    EXPECT_EQ(array.remove(8), 0u);
    array.resize(2);
    EXPECT_EQ(array.insertBefore(0, naming::array("X")), 1u);
    EXPECT_EQ(array.insertAfter(0, naming::array("Y")), 1u);
    EXPECT_STREQ(array.at(1).name(), "Y");
    array.removeAll();
    EXPECT_EQ(array.size(), 0);
    EXPECT_EQ(Watcher(4).size(), 4);
}

TEST(WatchedArray, CountsChanges) {
    const auto compare = [](const void* a, const void* b) {
        const auto name = [](const void* array) {
            return std::string_view(static_cast<const BexChkArrayName*>(array)->name());
        };
        return name(a).compare(name(b));
    };
    Watcher array = filled();
    const BexChkArrayName other = naming::array("X");
    unsigned long before = array.changes();
    const auto expectAChange = [&](const char* operation) {
        EXPECT_GT(array.changes(), before) << operation;
        before = array.changes();
    };
    array.append(other), expectAChange("append");
    array.insertBefore(0, other), expectAChange("insertBefore");
    array.insertAfter(0, other), expectAChange("insertAfter");
    array.sort(compare), expectAChange("sort");
    array.insertSorted(other, compare, 0), expectAChange("insertSorted");
    array.remove(0), expectAChange("remove");
    array.resize(2), expectAChange("resize");
    array = filled(), expectAChange("move");
    const Watcher source = filled();
    array = source, expectAChange("copy");
    Watcher taker = std::move(array);
    expectAChange("moved from");
    taker.removeAll();
    EXPECT_FALSE(array.isLent());
}

TEST(WatchedArray, KnowsWhenAnElementIsLent) {
    EXPECT_FALSE(filled().isLent());
    Watcher byIndex = filled(), byAt = filled(), byCall = filled(), byPointer = filled(), byEnd = filled();
    byIndex[0];
    std::as_const(byAt).at(0);
    std::as_const(byCall)();
    byPointer.operator BexChkArrayName*();
    byEnd.end();
    for (Watcher* array : {&byIndex, &byAt, &byCall, &byPointer, &byEnd}) EXPECT_TRUE(array->isLent());
}

TEST(WatchedArray, LentElementsGoWithAMoveNotWithACopy) {
    Watcher lent = filled();
    lent.at(0);
    const Watcher copy = lent;
    EXPECT_FALSE(copy.isLent());
    Watcher taker = filled();
    taker = std::move(lent);
    EXPECT_TRUE(taker.isLent());
    EXPECT_FALSE(lent.isLent()); // it has the elements that the taker had
    // Assigning writes into the elements that are lent.
    taker = copy;
    EXPECT_TRUE(taker.isLent());
}

} // namespace
