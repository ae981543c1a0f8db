// A bundle answers from an index where it can. Nobody may notice: all answers are those of a walk over its
// members.
#include "bexa/names/bundle_name.h"
#include "tests/names/naming.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

using namespace naming;

// The questions answered by a walk, on a copy of the members.
class Walk {
public:
    explicit Walk(const BexChkBundleName& bundle) : members_(membersOf(bundle)) {}

    bool find(const BexChkSigName& signal) const {
        return any([&](const BexChkArrayName& own) { return own.find(signal); });
    }
    bool find(const BexChkArrayName& array) const {
        return any([&](const BexChkArrayName& own) { return own == array; });
    }
    bool duplicate(const BexChkArrayName& array) const {
        for (int i = 0; i < array.sigCount(); ++i) {
            if (find(array.at(i))) return true;
        }
        return false;
    }
    bool contains(const BexChkArrayName& array) const {
        for (int i = 0; i < array.sigCount(); ++i) {
            if (!find(array.at(i))) return false;
        }
        return true;
    }

private:
    template <class Test>
    bool any(Test test) const {
        return std::any_of(members_.begin(), members_.end(), test);
    }

    std::vector<BexChkArrayName> members_;
};

void expectAnswersOfAWalk(const BexChkBundleName& name, const BexChkBundleName& other) {
    const Walk walk(name);
    const Texts signals = signalsOf(name);
    ASSERT_EQ(name.sigCount(), static_cast<int>(signals.size()));
    for (std::size_t i = 0; i < signals.size(); ++i) ASSERT_EQ(name.sigName(static_cast<int>(i)), signals[i]);
    ASSERT_EQ(name.sigName(name.sigCount()), nullptr);

    bool someDuplicate = false, allContained = true;
    for (const BexChkArrayName& array : membersOf(other)) {
        ASSERT_EQ(name.find(array), walk.find(array) ? 1u : 0u) << array.arrayName();
        ASSERT_EQ(name.duplicate(array), walk.duplicate(array) ? 1u : 0u) << array.arrayName();
        ASSERT_EQ(name.contains(array), walk.contains(array) ? 1u : 0u) << array.arrayName();
        for (int i = 0; i < array.sigCount(); ++i) {
            ASSERT_EQ(name.find(array.at(i)), walk.find(array.at(i)) ? 1u : 0u) << array.sigName(i);
        }
        someDuplicate |= walk.duplicate(array);
        allContained &= walk.contains(array);
    }
    ASSERT_EQ(name.duplicate(other), someDuplicate ? 1u : 0u);
    ASSERT_EQ(name.contains(other), allContained ? 1u : 0u);
}

std::string randomMember(std::mt19937& random) {
    const std::string root(1, "ABC"[random() % 3]);
    const auto number = [&] { return std::to_string(random() % 40); };
    switch (random() % 6) {
    case 0: return "";
    case 1: return root + number();
    case 2: return root + "[" + number() + "]";
    case 3: return root + "[" + number() + "-" + std::to_string(40 + random() % 9) + "]";
    case 4: return root + "[" + number() + ",," + number() + "]";
    default: return root + "[" + number() + "," + number() + "-90-7]";
    }
}

BexChkBundleName randomBundle(std::mt19937& random, int members) {
    std::string text = "A";
    for (int i = 1; i < members; ++i) text += "," + randomMember(random);
    return bundle(text);
}

void changeAtRandom(std::mt19937& random, BexChkBundleName& name) {
    const int place = static_cast<int>(random() % static_cast<unsigned>(name.arrayCount() + 1));
    switch (random() % 9) {
    case 0: name.append(randomBundle(random, 3)); break;
    case 1: name.insert(randomBundle(random, 3)); break;
    case 2: name.remove(place); break;
    case 3: name.insertBefore(place, array(randomMember(random))); break;
    case 4: name.insertAfter(place, array(randomMember(random))); break;
    case 5: name.resize(place); break;
    case 6: name = randomBundle(random, 20); break;
    case 7: name = BexChkBundleName(std::as_const(name)); break;
    default: name.append(array(randomMember(random))); break;
    }
}

TEST(BundleIndex, AnswersLikeAWalk) {
    std::mt19937 random(7);
    for (int round = 0; round < 40; ++round) {
        BexChkBundleName name = randomBundle(random, 1 + static_cast<int>(random() % 60));
        for (int step = 0; step < 8; ++step) {
            SCOPED_TRACE(std::to_string(round) + ", " + std::to_string(step));
            expectAnswersOfAWalk(name, randomBundle(random, 1 + static_cast<int>(random() % 30)));
            changeAtRandom(random, name);
        }
    }
}

TEST(BundleIndex, GrowsWithTheBundle) {
    BexChkBundleName name = bundle("A[0-99],B,C,D,E,F,G,H,I");
    for (int i = 0; i < 300; ++i) {
        const std::string text = "N[" + std::to_string(i) + "]";
        ASSERT_EQ(name.find(signal(text)), 0u);
        ASSERT_EQ(name.append(array(text)), 1u);
        ASSERT_EQ(name.append(array(text)), 0u);
        ASSERT_EQ(name.find(signal(text)), 1u);
        ASSERT_EQ(name.find(array(text)), 1u);
        ASSERT_EQ(name.sigCount(), 109 + i);
        ASSERT_EQ(name.sigName(108 + i), text);
    }
}

// Each way by which a caller may get hold of a member, taken after the index was made and used after that.
struct Door {
    const char* name;
    BexChkArrayName& (*open)(BexChkBundleName& bundle, int index);
};

TEST(BundleIndex, NoticesChangesThroughReferences) {
    const Door doors[] = {
        {"at", [](BexChkBundleName& b, int i) -> BexChkArrayName& { return b.at(i); }},
        {"at of a constant",
         [](BexChkBundleName& b, int i) -> BexChkArrayName& { return std::as_const(b).at(i); }},
        {"[]", [](BexChkBundleName& b, int i) -> BexChkArrayName& { return b[i]; }},
        {"()", [](BexChkBundleName& b, int i) -> BexChkArrayName& { return b()[i]; }},
        {"pointer",
         [](BexChkBundleName& b, int i) -> BexChkArrayName& { return static_cast<BexChkArrayName*>(b)[i]; }},
        {"the family",
         [](BexChkBundleName& b, int i) -> BexChkArrayName& {
             return static_cast<BexChkArrayName_Array&>(b).at(i);
         }},
        {"iterator",
         [](BexChkBundleName& b, int i) -> BexChkArrayName& {
             BexBundleNameItr walk(&b);
             while (i-- > 0) ++walk;
             return walk();
         }},
    };
    for (const Door& door : doors) {
        SCOPED_TRACE(door.name);
        BexChkBundleName name = bundle("A[0-99],B,C,D,E,F,G,H,I,J");
        ASSERT_EQ(name.find(signal("X")), 0u);
        ASSERT_EQ(name.sigCount(), 109);
        BexChkArrayName& member = door.open(name, 3);
        ASSERT_EQ(name.find(signal("D")), 1u);
        member = array("X");
        EXPECT_EQ(name.find(signal("X")), 1u);
        EXPECT_EQ(name.find(signal("D")), 0u);
        EXPECT_EQ(name.find(array("X")), 1u);
        member = array("X[5-9]");
        EXPECT_EQ(name.sigCount(), 113);
        EXPECT_STREQ(name.sigName(102), "X[5]");
        EXPECT_EQ(name.duplicate(array("X[1-9]")), 1u);
        EXPECT_EQ(name.contains(array("X[5-9]")), 1u);
        member.at(0) = signal("X[77]");
        EXPECT_EQ(name.find(signal("X[77]")), 1u);
        EXPECT_EQ(name.find(signal("X[5]")), 0u);
    }
}

TEST(BundleIndex, AReferenceStaysDangerousWhereverItsMemberGoes) {
    BexChkBundleName name = bundle("A[0-99],B,C,D,E,F,G,H,I,J");
    BexChkArrayName& member = name.at(1);
    BexChkBundleName moved = std::move(name);
    ASSERT_EQ(moved.find(signal("X")), 0u);
    member = array("X");
    EXPECT_EQ(moved.find(signal("X")), 1u);
    BexChkBundleName assigned = bundle("Z");
    assigned = std::move(moved);
    ASSERT_EQ(assigned.find(signal("Y")), 0u);
    member = array("Y");
    EXPECT_EQ(assigned.find(signal("Y")), 1u);
    // Assigning to the bundle assigns to the members it has.
    assigned = bundle("A[0-99],B,C,D,E,F,G,H,I,K");
    const BexChkBundleName other = bundle("A[0-99],V,C,D,E,F,G,H,I,K");
    BexChkBundleName target = bundle("A[0-99],B,C,D,E,F,G,H,I,J");
    BexChkArrayName& kept = target.at(1);
    target = other;
    ASSERT_EQ(target.find(signal("V")), 1u);
    kept = array("W");
    EXPECT_EQ(target.find(signal("V")), 0u);
    EXPECT_EQ(target.find(signal("W")), 1u);
}

TEST(BundleIndex, NoticesAssignmentThroughTheFamily) {
    BexChkBundleName name = bundle("A[0-99],B,C,D,E,F,G,H,I,J");
    ASSERT_EQ(name.find(signal("B")), 1u);
    BexChkArrayName_Array others;
    for (int i = 0; i < 100; ++i) others.append(array("N" + std::to_string(i)));
    static_cast<BexChkArrayName_Array&>(name) = others;
    EXPECT_EQ(name.find(signal("B")), 0u);
    EXPECT_EQ(name.find(signal("N50")), 1u);
    EXPECT_EQ(name.sigCount(), 100);
    static_cast<BexChkArrayName_Array&>(name) = BexChkArrayName_Array(bundle("X,Y,Z"));
    EXPECT_EQ(name.find(signal("N50")), 0u);
    EXPECT_EQ(name.find(signal("Y")), 1u);
}

TEST(BundleIndex, OwnsNothingOfACopy) {
    BexChkBundleName copy;
    {
        const BexChkBundleName name = bundle("A[0-99],B,C,D,E,F,G,H,I,J");
        ASSERT_EQ(name.find(signal("J")), 1u);
        copy = name;
    }
    EXPECT_EQ(copy.find(signal("J")), 1u);
    BexChkBundleName_Array bundles;
    for (int i = 0; i < 50; ++i) {
        bundles.append(copy);
        ASSERT_EQ(bundles.at(i).find(signal("J")), 1u);
    }
    for (int i = 0; i < 50; ++i) EXPECT_EQ(bundles.at(i).find(signal("A[99]")), 1u);
}

// A product of the sizes would take minutes here.
TEST(BundleIndex, CostsNoProductOfTheSizes) {
    constexpr int many = 100'000;
    std::string text = "D[0]";
    for (int i = 1; i < many; ++i) text += ",D[" + std::to_string(i) + "]";
    const BexChkBundleName name = bundle(text);
    const BexChkBundleName other = bundle(text);
    EXPECT_EQ(name.contains(other), 1u);
    EXPECT_EQ(name.caseCompare(other), 1u);
    for (int i = 0; i < name.sigCount(); ++i) ASSERT_NE(name.sigName(i), nullptr);

    BexChkBundleName growing;
    for (int i = 0; i < many; ++i) ASSERT_EQ(growing.append(array("E" + std::to_string(i))), 1u);
    EXPECT_EQ(growing.append(other), 1u);
    EXPECT_EQ(growing.sigCount(), 2 * many);
    growing.at(0); // from here on there is no index but that of one call
    EXPECT_EQ(growing.contains(other), 1u);
    EXPECT_EQ(growing.insert(other), 0u);
}

} // namespace
