#include "bexa/foundation/ycore/array_find.h"

#include <gtest/gtest.h>

namespace {

constexpr int sorted[] = {10, 20, 20, 20, 30};

int compare(const void* key, const void* element) {
    return *static_cast<const int*>(key) - *static_cast<const int*>(element);
}

int place(int key, unsigned long mode) {
    return YArrayBinFind(&key, sorted, 5, sizeof(int), compare, mode);
}

TEST(YArrayBinFind, AnyPlaceIsBehindTheEqualOnes) {
    EXPECT_EQ(place(5, YArrayFindAny), 0);
    EXPECT_EQ(place(10, YArrayFindAny), 1);
    EXPECT_EQ(place(20, YArrayFindAny), 4);
    EXPECT_EQ(place(25, YArrayFindAny), 4);
    EXPECT_EQ(place(40, YArrayFindAny), 5);
}

TEST(YArrayBinFind, AUniqueKeyHasNoPlaceBesideAnEqualOne) {
    EXPECT_EQ(place(5, YArrayFindUnique), 0);
    EXPECT_EQ(place(10, YArrayFindUnique), -1);
    EXPECT_EQ(place(20, YArrayFindUnique), -1);
    EXPECT_EQ(place(30, 7), -1);
    EXPECT_EQ(place(40, YArrayFindUnique), 5);
}

TEST(YArrayBinFind, NoElementsGiveTheFirstPlace) {
    const int key = 1;
    EXPECT_EQ(YArrayBinFind(&key, nullptr, 0, sizeof(int), compare, YArrayFindUnique), 0);
    EXPECT_EQ(YArrayBinFind(&key, nullptr, 3, sizeof(int), compare, YArrayFindUnique), 0);
    EXPECT_EQ(YArrayBinFind(&key, sorted, 0, sizeof(int), compare, YArrayFindUnique), 0);
}

} // namespace
