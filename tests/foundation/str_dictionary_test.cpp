#include "bexa/foundation/str_dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using Keys = std::vector<std::string>;

unsigned long gather(void* keys, const char* key, void*) {
    static_cast<Keys*>(keys)->emplace_back(key);
    return 0;
}

Keys keysOf(const BexStrDictionary& dictionary) {
    Keys keys;
    dictionary.forEach(gather, &keys);
    return keys;
}

void* valueOf(std::size_t number) {
    return reinterpret_cast<void*>(number);
}

// The told structure, built plainly: chains with the latest entry at the head, moved head by head on growth.
class Model {
public:
    explicit Model(unsigned size) : chains_(size) {}

    void add(const std::string& key) {
        auto& chain = chainOf(key);
        chain.insert(chain.begin(), key);
    }
    void remove(const std::string& key) { std::erase(chainOf(key), key); }
    void resize(unsigned size) {
        const Keys inOrder = keys();
        chains_.assign(size, {});
        for (const auto& key : inOrder) add(key);
    }
    Keys keys() const {
        Keys all;
        for (const auto& chain : chains_) all.insert(all.end(), chain.begin(), chain.end());
        return all;
    }

private:
    Keys& chainOf(const std::string& key) { return chains_[BexStrHash(key.c_str()) % chains_.size()]; }

    std::vector<Keys> chains_;
};

} // namespace

TEST(StrHash, RotatesAfterEachXor) {
    const struct {
        const char* text;
        unsigned long hash;
    } rows[] = {
        {nullptr, 0}, {"", 0}, {"a", 194}, {"ab", 320}, {"b", 196},
    };
    for (const auto& row : rows) EXPECT_EQ(BexStrHash(row.text), row.hash) << (row.text ? row.text : "null");
}

TEST(StrHash, TakesBytesAsSignedCharacters) {
    // 0x81 is -127: all high bits go into the XOR, and the rotation carries the top one round.
    EXPECT_EQ(BexStrHash("\x81"), 0xFFFFFF03UL);
}

TEST(StrHash, NumberedNamesShareFewValues) {
    std::vector<unsigned long> hashes;
    for (int i = 0; i < 10000; ++i) hashes.push_back(BexStrHash(("SIG" + std::to_string(i)).c_str()));
    std::sort(hashes.begin(), hashes.end());
    EXPECT_LT(std::unique(hashes.begin(), hashes.end()) - hashes.begin(), 1000);
}

TEST(StrDictionary, StartsWithTheFirstPrimeAboveTwiceTheSize) {
    const struct {
        unsigned size, tableSize;
    } rows[] = {
        {0, 7},     {3, 7},          {4, 13},         {6, 13},       {7, 31},        {125, 251},
        {126, 509}, {65678, 131357}, {65679, 131357}, {~0U, 131357}, {32838, 65677}, {32839, 131357},
    };
    for (const auto& row : rows) EXPECT_EQ(BexStrDictionary(row.size).tableSize(), row.tableSize) << row.size;
    EXPECT_EQ(BexStrDictionary().tableSize(), 251U);
}

TEST(StrDictionary, KeepsTheFirstValueOfAKey) {
    BexStrDictionary dictionary;
    EXPECT_EQ(dictionary.attach("k", valueOf(1)), 1UL);
    EXPECT_EQ(dictionary.attach("k", valueOf(2)), 0UL);
    EXPECT_EQ(dictionary.count(), 1U);
    EXPECT_EQ(dictionary.lookup("k"), valueOf(1));
}

TEST(StrDictionary, NullKeyIsTheEmptyText) {
    BexStrDictionary dictionary;
    dictionary.attach(nullptr, valueOf(1));
    EXPECT_EQ(dictionary.lookup(""), valueOf(1));
    EXPECT_EQ(dictionary.attach("", valueOf(2)), 0UL);
    EXPECT_EQ(dictionary.detach(nullptr), valueOf(1));
    EXPECT_EQ(dictionary.count(), 0U);
}

TEST(StrDictionary, CopiesItsKeys) {
    BexStrDictionary dictionary;
    std::string key = "a key longer than any text kept inside an object";
    dictionary.attach(key.c_str(), valueOf(1));
    key.assign(key.size(), 'x');
    EXPECT_EQ(dictionary.lookup(key.c_str()), nullptr);
    EXPECT_EQ(keysOf(dictionary), Keys{"a key longer than any text kept inside an object"});
}

TEST(StrDictionary, GrowsWhenItHoldsMoreThanTwoKeysABucket) {
    BexStrDictionary dictionary;
    for (std::size_t i = 0; i < 502; ++i) dictionary.attach(std::to_string(i).c_str(), valueOf(i));
    EXPECT_EQ(dictionary.tableSize(), 251U);
    dictionary.attach("one more", nullptr);
    EXPECT_EQ(dictionary.tableSize(), 509U);
    EXPECT_EQ(dictionary.count(), 503U);
    EXPECT_EQ(dictionary.lookup("77"), valueOf(77));
}

TEST(StrDictionary, StopsGrowingAtItsLastSize) {
    BexStrDictionary dictionary(65677);
    for (std::size_t i = 0; i < 2 * 131357 + 10; ++i)
        dictionary.attach(("N" + std::to_string(i)).c_str(), valueOf(i));
    EXPECT_EQ(dictionary.tableSize(), 131357U);
    EXPECT_EQ(dictionary.lookup("N262720"), valueOf(262720));
}

TEST(StrDictionary, DetachGivesTheValueOrNull) {
    BexStrDictionary dictionary;
    dictionary.attach("k", valueOf(7));
    EXPECT_EQ(dictionary.detach("other"), nullptr);
    EXPECT_EQ(dictionary.detach("k"), valueOf(7));
    EXPECT_EQ(dictionary.detach("k"), nullptr);
    EXPECT_EQ(dictionary.count(), 0U);
}

TEST(StrDictionary, DetachAllKeepsTheTableSize) {
    BexStrDictionary dictionary(3);
    for (std::size_t i = 0; i < 100; ++i) dictionary.attach(std::to_string(i).c_str(), valueOf(i));
    const unsigned size = dictionary.tableSize();
    EXPECT_EQ(dictionary.detachAll(), 1UL);
    EXPECT_EQ(dictionary.count(), 0U);
    EXPECT_EQ(dictionary.tableSize(), size);
    EXPECT_EQ(dictionary.lookup("5"), nullptr);
    EXPECT_EQ(dictionary.attach("5", nullptr), 1UL);
}

TEST(StrDictionary, NonzeroStopsTheWalk) {
    BexStrDictionary dictionary;
    int calls = 0;
    const auto stop = [](void* count, const char*, void*) {
        ++*static_cast<int*>(count);
        return 1UL;
    };
    EXPECT_EQ(dictionary.forEach(stop, &calls), 0UL);
    dictionary.attach("a", nullptr);
    dictionary.attach("b", nullptr);
    EXPECT_EQ(dictionary.forEach(stop, &calls), 1UL);
    EXPECT_EQ(calls, 1);
}

TEST(StrDictionary, WalksBucketByBucketLatestKeyFirst) {
    BexStrDictionary dictionary(0); // seven buckets: a is 194, 5 modulo 7; ab 320, 5; b 196, 0
    dictionary.attach("a", nullptr);
    dictionary.attach("b", nullptr);
    dictionary.attach("ab", nullptr);
    EXPECT_EQ(keysOf(dictionary), (Keys{"b", "ab", "a"}));
}

TEST(StrDictionary, WalkAgreesWithPlainChainsThroughGrowthAndRemoval) {
    BexStrDictionary dictionary(0);
    Model model(7);
    std::unordered_map<std::string, void*> plain;
    std::mt19937 random(1);
    for (std::size_t step = 0; step < 6000; ++step) {
        const std::string key = "NET" + std::to_string(random() % 2000);
        if (random() % 3 == 0) {
            const auto found = plain.find(key);
            ASSERT_EQ(dictionary.detach(key.c_str()), found == plain.end() ? nullptr : found->second);
            model.remove(key);
            plain.erase(key);
            continue;
        }
        const unsigned before = dictionary.tableSize();
        const bool fresh = plain.emplace(key, valueOf(step + 1)).second;
        ASSERT_EQ(dictionary.attach(key.c_str(), valueOf(step + 1)), fresh ? 1UL : 0UL);
        if (fresh) model.add(key);
        if (dictionary.tableSize() != before) model.resize(dictionary.tableSize());
        ASSERT_EQ(dictionary.count(), plain.size());
    }
    EXPECT_EQ(keysOf(dictionary), model.keys());
    for (const auto& [key, value] : plain) EXPECT_EQ(dictionary.lookup(key.c_str()), value);
}
