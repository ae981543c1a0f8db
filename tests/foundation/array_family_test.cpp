#include "bexa/foundation/array_family.h"

#include "bexa/foundation/ycore/integer_arrays.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

struct bexa::detail::ArrayProbe {
    template <class T, int MaxStep>
    static int capacity(const ArrayOf<T, MaxStep>& array) {
        return array.capacity_;
    }
    template <class T, int MaxStep>
    static T& bumpsize(ArrayOf<T, MaxStep>& array, int index) {
        return array.bumpsize(index);
    }
};

namespace {

using bexa::detail::ArrayProbe;

// An element whose bytes may not be moved: it knows its own address. It counts the living.
class Anchored {
public:
    explicit Anchored(int given = 0) : value(given), self_(this) { ++alive; }
    Anchored(const Anchored& other) : value(other.valueWhereItStands()), self_(this) { ++alive; }
    Anchored& operator=(const Anchored& other) {
        value = other.valueWhereItStands();
        return *this;
    }
    ~Anchored() {
        EXPECT_EQ(self_, this);
        --alive;
    }

    int valueWhereItStands() const {
        EXPECT_EQ(self_, this);
        return value;
    }

    int value;
    static inline int alive = 0;

private:
    const Anchored* self_;
};

using AnchoredArray = bexa::ArrayOf<Anchored, 256>;
using SmallStepArray = bexa::ArrayOf<int, 10>;

template <class Array>
Array filled(int count) {
    Array array;
    for (int i = 0; i < count; ++i) {
        array.append(typename Array::Element(i));
    }
    return array;
}

template <>
YString_Array filled(int count) {
    YString_Array array;
    for (int i = 0; i < count; ++i) {
        array.append(YString(std::string_view(std::to_string(i))));
    }
    return array;
}

std::string textOf(const Anchored& element) {
    return std::to_string(element.valueWhereItStands());
}
std::string textOf(int element) {
    return std::to_string(element);
}
std::string textOf(const YString& element) {
    return std::string(element.view());
}

template <class Array>
std::string dump(const Array& array) {
    std::string text;
    for (int i = 0; i < array.size(); ++i) {
        text += (i ? " " : "") + textOf(array.at(i));
    }
    return text;
}

int compareInts(const void* a, const void* b) {
    const int left = *static_cast<const int*>(a);
    const int right = *static_cast<const int*>(b);
    return left < right ? -1 : left > right;
}

int compareByTens(const void* a, const void* b) {
    const int left = *static_cast<const int*>(a) / 10;
    const int right = *static_cast<const int*>(b) / 10;
    return left < right ? -1 : left > right;
}

int compareTexts(const void* a, const void* b) {
    return static_cast<const YString*>(a)->view().compare(static_cast<const YString*>(b)->view());
}

// What holds whatever the element: plain bytes, bytes that may move, an object tied to its place.
template <class Array>
class EveryArray : public ::testing::Test {};

using Arrays = ::testing::Types<Yint_Array, YString_Array, AnchoredArray>;
TYPED_TEST_SUITE(EveryArray, Arrays);

TYPED_TEST(EveryArray, StartsEmptyAndWithoutMemory) {
    const TypeParam array;
    EXPECT_EQ(array.size(), 0);
    EXPECT_EQ(ArrayProbe::capacity(array), 0);
    EXPECT_EQ(array(), nullptr);
}

TYPED_TEST(EveryArray, BumpsizeAddsTheIndexToTheCapacity) {
    TypeParam array;
    ArrayProbe::bumpsize(array, 0);
    EXPECT_EQ(ArrayProbe::capacity(array), 1);
    EXPECT_EQ(array.size(), 1);
    ArrayProbe::bumpsize(array, 1);
    EXPECT_EQ(ArrayProbe::capacity(array), 2);
    ArrayProbe::bumpsize(array, 5);
    EXPECT_EQ(ArrayProbe::capacity(array), 7);
    EXPECT_EQ(array.size(), 6);
    ArrayProbe::bumpsize(array, 2);
    EXPECT_EQ(array.size(), 6);
}

TYPED_TEST(EveryArray, BumpsizeTakesANegativeIndexAsZero) {
    TypeParam array;
    const auto& element = ArrayProbe::bumpsize(array, -3);
    EXPECT_EQ(&element, &array.at(0));
    EXPECT_EQ(array.size(), 1);
}

TYPED_TEST(EveryArray, ReadingPastTheEndExtends) {
    TypeParam array;
    EXPECT_EQ(textOf(array[5]), textOf(typename TypeParam::Element()));
    EXPECT_EQ(array.size(), 6);
}

// An enumerator or a character must not fall back to the plain pointer, which knows no end.
TYPED_TEST(EveryArray, AnyKindOfIntegerIsAnIndexAndExtends) {
    enum Place { Third = 2 };
    TypeParam array;
    array[Third];
    EXPECT_EQ(array.size(), 3);
    array['\5'];
    EXPECT_EQ(array.size(), 6);
    array[static_cast<unsigned char>(6)];
    EXPECT_EQ(array.size(), 7);
    array[8UL];
    EXPECT_EQ(array.size(), 9);
}

TYPED_TEST(EveryArray, EndAddsAnElement) {
    auto array = filled<TypeParam>(3);
    const auto& added = array.end();
    EXPECT_EQ(&added, &array.at(3));
    EXPECT_EQ(array.size(), 4);
}

TYPED_TEST(EveryArray, ASizeMakesThatManyElements) {
    EXPECT_EQ(TypeParam(3).size(), 3);
    EXPECT_EQ(TypeParam(0).size(), 0);
    EXPECT_EQ(TypeParam(-1).size(), 0);
}

TYPED_TEST(EveryArray, ResizeTakesMemoryForOneMore) {
    TypeParam array;
    array.resize(0);
    EXPECT_EQ(array.size(), 0);
    EXPECT_EQ(ArrayProbe::capacity(array), 1);
    array.resize(4);
    EXPECT_EQ(array.size(), 4);
    EXPECT_EQ(ArrayProbe::capacity(array), 5);
    array.resize(-2);
    EXPECT_EQ(array.size(), 0);
    EXPECT_EQ(ArrayProbe::capacity(array), 5);
}

TYPED_TEST(EveryArray, ElementsThatComeBackAreTheOldOnes) {
    auto array = filled<TypeParam>(4);
    array.resize(1);
    array.resize(3);
    EXPECT_EQ(dump(array), "0 1 2");
    array.remove(3);
    EXPECT_EQ(textOf(array[2]), "2");
}

TYPED_TEST(EveryArray, TheLastElementStandsTwiceBehindARemoval) {
    auto array = filled<TypeParam>(3);
    array.remove(0);
    EXPECT_EQ(dump(array), "1 2");
    EXPECT_EQ(textOf(array.end()), "2");
}

TYPED_TEST(EveryArray, RemoveAcceptsTheCountAsIndex) {
    auto array = filled<TypeParam>(4);
    EXPECT_EQ(array.remove(5), 0U);
    EXPECT_EQ(array.remove(-1), 0U);
    EXPECT_EQ(dump(array), "0 1 2 3");
    EXPECT_EQ(array.remove(4), 1U);
    EXPECT_EQ(dump(array), "0 1 2");
    EXPECT_EQ(array.remove(1), 1U);
    EXPECT_EQ(dump(array), "0 2");
    EXPECT_EQ(array.remove(1), 1U);
    EXPECT_EQ(dump(array), "0");
}

TYPED_TEST(EveryArray, RemoveOnAnEmptyArrayIsFalse) {
    TypeParam array;
    EXPECT_EQ(array.remove(0), 0U);
    array.resize(2);
    array.resize(0);
    EXPECT_EQ(array.remove(0), 0U);
    EXPECT_EQ(array.size(), 0);
}

TYPED_TEST(EveryArray, RemoveAllGivesTheMemoryBackUnlessTheCountIsZero) {
    auto array = filled<TypeParam>(3);
    array.removeAll();
    EXPECT_EQ(array.size(), 0);
    EXPECT_EQ(ArrayProbe::capacity(array), 0);
    EXPECT_EQ(array(), nullptr);
    array.resize(0);
    array.removeAll();
    EXPECT_EQ(ArrayProbe::capacity(array), 1);
}

TYPED_TEST(EveryArray, InsertBeforeMovesTheRestUp) {
    auto array = filled<TypeParam>(3);
    const auto last = filled<TypeParam>(10).at(9);
    EXPECT_EQ(array.insertBefore(4, last), 0U);
    EXPECT_EQ(array.insertBefore(-1, last), 0U);
    EXPECT_EQ(array.insertBefore(1, last), 1U);
    EXPECT_EQ(dump(array), "0 9 1 2");
    EXPECT_EQ(array.insertBefore(4, last), 1U);
    EXPECT_EQ(dump(array), "0 9 1 2 9");
}

TYPED_TEST(EveryArray, InsertAfterMovesTheRestUp) {
    auto array = filled<TypeParam>(3);
    const auto last = filled<TypeParam>(10).at(9);
    EXPECT_EQ(array.insertAfter(4, last), 0U);
    EXPECT_EQ(array.insertAfter(-1, last), 0U);
    EXPECT_EQ(array.insertAfter(0, last), 1U);
    EXPECT_EQ(dump(array), "0 9 1 2");
    EXPECT_EQ(array.insertAfter(3, last), 1U);
    EXPECT_EQ(dump(array), "0 9 1 2 9");
}

TYPED_TEST(EveryArray, InsertAfterTheCountPutsTheElementBehindTheCountedOnes) {
    auto array = filled<TypeParam>(2);
    const auto last = filled<TypeParam>(10).at(9);
    EXPECT_EQ(array.insertAfter(2, last), 1U);
    EXPECT_EQ(array.size(), 3);
    EXPECT_EQ(textOf(array.at(2)), textOf(typename TypeParam::Element()));
    EXPECT_EQ(textOf(array.end()), "9");
}

TYPED_TEST(EveryArray, AnElementOfTheArrayItselfCanBeInserted) {
    auto array = filled<TypeParam>(3);
    array.insertBefore(0, array.at(2));
    array.insertAfter(0, array.at(3));
    array.append(array.at(3));
    EXPECT_EQ(dump(array), "2 2 0 1 2 1");
}

TYPED_TEST(EveryArray, CopiesAreDeepAndKeepTheTargetsMemory) {
    auto source = filled<TypeParam>(3);
    TypeParam copy(source);
    EXPECT_EQ(ArrayProbe::capacity(copy), 4);
    source[0] = source.at(2);
    EXPECT_EQ(dump(copy), "0 1 2");
    auto large = filled<TypeParam>(20);
    const int capacity = ArrayProbe::capacity(large);
    large = copy;
    EXPECT_EQ(dump(large), "0 1 2");
    EXPECT_EQ(ArrayProbe::capacity(large), capacity);
    large = *&large;
    EXPECT_EQ(dump(large), "0 1 2");
    copy = TypeParam();
    EXPECT_EQ(copy.size(), 0);
}

TYPED_TEST(EveryArray, ManyAppendsKeepEveryElement) {
    const auto array = filled<TypeParam>(3000);
    for (int i = 0; i < 3000; ++i) {
        ASSERT_EQ(textOf(array.at(i)), std::to_string(i));
    }
}

TEST(ArrayFamily, GrowthIsByTheStepOnceTheCapacityIsAboveIt) {
    SmallStepArray array;
    array.resize(20);
    ASSERT_EQ(ArrayProbe::capacity(array), 21);
    ArrayProbe::bumpsize(array, 21);
    EXPECT_EQ(ArrayProbe::capacity(array), 31);
    Yint_Array large;
    large.resize(1000);
    ArrayProbe::bumpsize(large, 1001);
    EXPECT_EQ(ArrayProbe::capacity(large), 1001 + 256);
}

TEST(ArrayFamily, NewElementsAreZeroOrNull) {
    Yint_Array ints(100);
    Yptr_Array pointers(100);
    Ylong_Array longs(100);
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(ints.at(i), 0);
        ASSERT_EQ(pointers.at(i), nullptr);
        ASSERT_EQ(longs.at(i), 0);
    }
}

TEST(ArrayFamily, EveryElementIsDestroyedOnce) {
    {
        auto array = filled<AnchoredArray>(50);
        array.remove(3);
        array.insertBefore(7, Anchored(1));
        array.resize(10);
        AnchoredArray other(array);
        other = AnchoredArray(3);
        array.removeAll();
        EXPECT_GT(Anchored::alive, 0);
    }
    EXPECT_EQ(Anchored::alive, 0);
}

TEST(ArrayFamily, SortMovesObjectsAndKeepsEqualOnesInOrder) {
    Yint_Array array;
    for (const int value : {31, 12, 35, 11, 38}) {
        array.append(value);
    }
    array.sort(compareByTens);
    EXPECT_EQ(dump(array), "12 11 31 35 38");
    Yint_Array().sort(compareInts);
    YString_Array texts;
    for (const char* text :
         {"a text too long to lie inside the object", "b", "another text that lies on the heap"}) {
        texts.append(text);
    }
    texts.sort(compareTexts);
    EXPECT_EQ(dump(texts), "a text too long to lie inside the object another text that lies on the heap b");
}

TEST(ArrayFamily, InsertSortedAsksTheModeAboutDuplicates) {
    Yint_Array array;
    for (const int value : {20, 10, 30}) {
        EXPECT_EQ(array.insertSorted(value, compareInts, YArrayFindUnique), 1U);
    }
    EXPECT_EQ(array.insertSorted(20, compareInts, YArrayFindUnique), 0U);
    EXPECT_EQ(dump(array), "10 20 30");
    EXPECT_EQ(array.insertSorted(20, compareInts, YArrayFindAny), 1U);
    EXPECT_EQ(dump(array), "10 20 20 30");
}

TEST(ArrayFamily, SearchFindsAnElementOrSaysMinusOne) {
    const auto array = filled<Yint_Array>(9);
    const int six = 6;
    const int eleven = 11;
    EXPECT_EQ(array.search(&six, compareInts), 6);
    EXPECT_EQ(array.search(&eleven, compareInts), -1);
    EXPECT_EQ(Yint_Array().search(&six, compareInts), -1);
}

TEST(ArrayFamily, ConvertsToAPointerToItsElements) {
    const auto array = filled<Yint_Array>(3);
    const int* elements = array;
    EXPECT_EQ(elements, array());
    EXPECT_EQ(elements[2], 2);
}

Yint_Stack stackOf(const std::vector<int>& values) {
    Yint_Stack stack;
    for (const int value : values) {
        EXPECT_EQ(stack.push(value), 1U);
    }
    return stack;
}

TEST(Stack, PopsInTheReverseOrderOfPushes) {
    auto stack = stackOf({1, 2, 3});
    EXPECT_EQ(stack.count(), 3);
    EXPECT_EQ(stack.top(), 3);
    EXPECT_EQ(stack.bottom(), 1);
    EXPECT_EQ(stack.pop(), 3);
    EXPECT_EQ(stack.pop(), 2);
    EXPECT_EQ(stack.top(), 1);
    EXPECT_EQ(stack.count(), 1);
    EXPECT_EQ(stack.isEmpty(), 0U);
}

TEST(Stack, PopOnAnEmptyStackGivesTheFirstElementAndMovesNothing) {
    auto stack = stackOf({7, 8});
    stack.clear();
    EXPECT_EQ(stack.isEmpty(), 1U);
    EXPECT_EQ(stack.pop(), 7);
    EXPECT_EQ(stack.top(), 7);
    EXPECT_EQ(stack.bottom(), 7);
    EXPECT_EQ(stack.count(), 0);
}

TEST(Stack, OneThatNeverHeldAnythingGivesADefaultElement) {
    Yint_Stack stack;
    EXPECT_EQ(stack.pop(), 0);
    EXPECT_EQ(stack.top(), 0);
    EXPECT_EQ(stack.bottom(), 0);
    EXPECT_EQ(stack.count(), 0);
}

TEST(Stack, TakesATemporaryOver) {
    bexa::StackOf<YString_Array> stack;
    YString text("longer than what stands inside the object");
    stack.push(std::move(text));
    stack.push(YString("above"));
    EXPECT_EQ(stack.pop(), "above");
    stack.push("over the popped one");
    EXPECT_EQ(stack.pop(), "over the popped one");
    EXPECT_EQ(stack.pop(), "longer than what stands inside the object");
    EXPECT_EQ(stack.count(), 0);
}

TEST(Stack, PoppedElementsStayInTheArray) {
    auto stack = stackOf({1, 2});
    stack.pop();
    EXPECT_EQ(stack.size(), 2);
    EXPECT_EQ(stack[1], 2);
    stack.push(5);
    EXPECT_EQ(stack.size(), 2);
    EXPECT_EQ(stack[1], 5);
}

TEST(Stack, PushStoresAtTheTopAlsoWhenTheArrayWasShortened) {
    auto stack = stackOf({1, 2, 3});
    stack.removeAll();
    stack.push(4);
    EXPECT_EQ(stack.size(), 4);
    EXPECT_EQ(stack[3], 4);
    EXPECT_EQ(stack.top(), 4);
    EXPECT_EQ(stack.pop(), 4);
    EXPECT_EQ(stack.pop(), 0);
}

TEST(Stack, AnElementOfTheArrayItselfCanBePushed) {
    bexa::StackOf<YString_Array> stack;
    stack.push("first");
    for (int i = 0; i < 100; ++i) stack.push(stack[0]);
    EXPECT_STREQ(stack.top(), "first");
    stack.resize(1);
    stack.push(stack[0]);
    EXPECT_EQ(stack.size(), 102);
    EXPECT_STREQ(stack.top(), "first");
    for (int i = 0; i < 1000; ++i) stack.push(std::move(stack[stack.count() - 1]));
    EXPECT_STREQ(stack.top(), "first");
}

TEST(Stack, CopiesTakeTheTopAlong) {
    const auto stack = stackOf({1, 2, 3});
    Yint_Stack copy(stack);
    copy.pop();
    EXPECT_EQ(copy.top(), 2);
    EXPECT_EQ(stack.top(), 3);
    copy = stack;
    EXPECT_EQ(copy.count(), 3);
}

} // namespace
