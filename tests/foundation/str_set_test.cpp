#include "bexa/foundation/str_set.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

// Lets a test call the set's own rules.
class OpenSet : public BexStrSet {
public:
    using BexStrSet::BexStrSet;
    using BexStrSet::compare;
    using BexStrSet::hashValue;
};

std::vector<std::string> walkOf(const YSet& set) {
    std::vector<std::string> texts;
    YSetIterator walk(set);
    while (const void* text = walk.doNext()) texts.emplace_back(static_cast<const char*>(text));
    return texts;
}

} // namespace

TEST(StrSet, HashFoldsTheTopFourBits) {
    const struct {
        const char* text;
        unsigned long hash;
    } rows[] = {
        {nullptr, 0},
        {"", 0},
        {"a", 0x61},
        {"ab", 0x672},
        {"printf", 0x077905a6},
        {"abcdefgh", 0x089abaa8},
        {"\x81", 0x0FFFFF71}, // a signed character: -127 fills the word, its top bits come round
    };
    const OpenSet set;
    for (const auto& row : rows)
        EXPECT_EQ(set.hashValue(row.text), row.hash) << (row.text ? row.text : "null");
}

TEST(StrSet, NullComparesAsTheEmptyText) {
    const OpenSet set;
    EXPECT_TRUE(set.compare(nullptr, ""));
    EXPECT_TRUE(set.compare("a", "a"));
    EXPECT_FALSE(set.compare("a", "A"));
    EXPECT_FALSE(set.compare("a", nullptr));
}

TEST(StrSet, AttachTakesTheTextItselfOver) {
    BexStrSet set;
    char* first = strdup("net");
    char* second = strdup("net");
    EXPECT_EQ(set.attach(first), first);
    EXPECT_EQ(set.attach(second), first);
    std::free(second);
    EXPECT_EQ(set.count(), 1);
    EXPECT_EQ(set.search("net"), first);
    EXPECT_TRUE(set.contains("net"));
    EXPECT_FALSE(set.contains("bus"));
    EXPECT_EQ(set.detach("bus"), nullptr);
    EXPECT_EQ(set.detach("net"), first);
    std::free(first);
    EXPECT_EQ(set.count(), 0);
}

TEST(StrSet, DeleteAllFreesItsTexts) {
    BexStrSet set(31);
    for (int i = 0; i < 100; ++i) set.attach(strdup(std::to_string(i).c_str()));
    EXPECT_EQ(set.count(), 100);
    EXPECT_EQ(set.deleteAll(), 1UL);
    EXPECT_EQ(set.count(), 0);
    EXPECT_EQ(set.search("5"), nullptr);
}

TEST(StrSet, CopiesShareTheTexts) {
    BexStrSet set;
    char* text = set.attach(strdup("net"));
    BexStrSet copied(set);
    BexStrSet assigned;
    assigned = set;
    const std::unique_ptr<BexStrSet> made(set.copy());
    EXPECT_EQ(copied.search("net"), text);
    EXPECT_EQ(assigned.search("net"), text);
    EXPECT_EQ(made->search("net"), text);
    copied.detachAll();
    EXPECT_EQ(set.search("net"), text);
    set.deleteAll();
}

TEST(StrSet, WalksInTheOrderOfItsHash) {
    BexStrSet set(16);
    for (const char* text : {"c", "b", "q", "a"})
        set.attach(strdup(text)); // a and q fall into one slot of 16
    EXPECT_EQ(walkOf(set), (std::vector<std::string>{"q", "a", "b", "c"}));
    set.tableSize(3);
    EXPECT_EQ(set.tableSize(), 3);
    EXPECT_EQ(set.count(), 4);
    set.deleteAll();
}
