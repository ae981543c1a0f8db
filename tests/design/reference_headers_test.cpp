#include "bexa/design/reference_headers.h"

#include <chrono>
#include <climits>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::string printed(const BexRefHeaderSet& set) {
    std::ostringstream out;
    set.printOn(out);
    return out.str();
}

} // namespace

TEST(RefHeader, BeginsAtOneAndCountsUp) {
    BexRefHeaderSet set;
    BexRefHeader& header = *set.attach("SIG");
    EXPECT_STREQ(header.header(), "SIG");
    EXPECT_EQ(header.count(), 1u);
    EXPECT_EQ(&++header, &header);
    EXPECT_EQ(header.count(), 2u);
    header.count(70);
    EXPECT_EQ((++header).count(), 71u);
}

TEST(RefHeader, ValueIsTheHeaderAndTheCount) {
    const struct {
        const char* header;
        unsigned long count;
        const char* value;
    } rows[] = {
        {"SIG", 1, "SIG1"},
        {"SIG", 0, "SIG0"},
        {"", 12, "12"},
        {"U1_", 3, "U1_3"},
        {"\x83\x5c", 7,
         "\x83\x5c"
         "7"},
        {"X", ULONG_MAX, ULONG_MAX > 0xFFFFFFFF ? "X18446744073709551615" : "X4294967295"},
    };
    for (const auto& row : rows) {
        BexRefHeaderSet set;
        BexRefHeader& header = *set.attach(row.header);
        header.count(row.count);
        YString value = "before";
        EXPECT_EQ(header.value(value), 1u);
        EXPECT_STREQ(value, row.value);
    }
}

TEST(RefHeader, ValueNeedsRoomForItsTerminator) {
    BexRefHeaderSet set;
    BexRefHeader& header = *set.attach("SIG");
    header.count(12);
    char buffer[8] = "before";
    EXPECT_FALSE(header.value(buffer, 5)); // 3 and 2 characters are not below 5
    EXPECT_FALSE(header.value(buffer, 0));
    EXPECT_STREQ(buffer, "before");
    EXPECT_TRUE(header.value(buffer, 6));
    EXPECT_STREQ(buffer, "SIG12");
    EXPECT_EQ(buffer[6], '\0');
    EXPECT_FALSE(header.value(nullptr, 8));
}

TEST(RefHeader, ValueWritesNothingBehindItsTerminator) {
    BexRefHeaderSet set;
    char buffer[8];
    std::memset(buffer, '#', sizeof buffer);
    ASSERT_TRUE(set.attach("SIG")->value(buffer, 8));
    EXPECT_EQ(std::string(buffer, sizeof buffer), std::string("SIG1\0###", 8));
}

TEST(RefHeaderSet, HoldsEachTextOnce) {
    BexRefHeaderSet set;
    BexRefHeader* first = set.attach("U");
    EXPECT_EQ(set.attach("U"), first);
    EXPECT_EQ(set.lookup("U"), first);
    EXPECT_EQ(set.count(), 1u);
}

TEST(RefHeaderSet, ComparesTextsExactly) {
    BexRefHeaderSet set;
    set.attach("U");
    for (const char* text : {"u", "U ", "", "UU"}) EXPECT_EQ(set.lookup(text), nullptr) << text;
}

TEST(RefHeaderSet, ANullTextCountsAsEmpty) {
    BexRefHeaderSet set;
    EXPECT_EQ(set.lookup(nullptr), nullptr);
    BexRefHeader* empty = set.attach(nullptr);
    EXPECT_STREQ(empty->header(), "");
    EXPECT_EQ(set.lookup(""), empty);
    EXPECT_EQ(set.attach(""), empty);
}

TEST(RefHeaderSet, KeepsTheOrderOfFirstUse) {
    BexRefHeaderSet set;
    EXPECT_EQ(set.first(), nullptr);
    EXPECT_EQ(printed(set), "");
    for (const char* text : {"SY", "X", "U", "A", "X"}) set.attach(text);
    set.lookup("U")->count(5);
    EXPECT_EQ(printed(set), "SY 1\nX 1\nU 5\nA 1\n");
    EXPECT_STREQ(set.first()->next()->next()->next()->header(), "A");
    EXPECT_EQ(set.lookup("A")->next(), nullptr);
}

TEST(RefHeaderSet, AHundredThousandHeadersAreFoundAtOnce) {
    BexRefHeaderSet set;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100'000; ++i) set.attach(("NET" + std::to_string(i)).c_str());
    for (int i = 0; i < 100'000; ++i) ASSERT_NE(set.lookup(("NET" + std::to_string(i)).c_str()), nullptr);
    // A walk over the list for each takes minutes.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(set.count(), 100'000u);
}

TEST(RefInfoSet, FindsTheHeaderOfAKind) {
    BexRefHeaderSet headers;
    BexRefInfoSet infos;
    EXPECT_EQ(infos.lookup(7), nullptr);
    EXPECT_TRUE(infos.attach(*new BexRefInfo(7, *headers.attach("U"))));
    EXPECT_TRUE(infos.attach(*new BexRefInfo(UINT_MAX, *headers.attach("R"))));
    EXPECT_EQ(infos.lookup(7)->kind(), 7u);
    EXPECT_STREQ(infos.lookup(7)->refHeader()->header(), "U");
    EXPECT_STREQ(infos.lookup(UINT_MAX)->refHeader()->header(), "R");
    EXPECT_EQ(infos.lookup(8), nullptr);
}

TEST(RefInfoSet, OfOneKindTheFirstIsFound) {
    BexRefHeaderSet headers;
    BexRefInfoSet infos;
    infos.attach(*new BexRefInfo(7, *headers.attach("U")));
    EXPECT_TRUE(infos.attach(*new BexRefInfo(7, *headers.attach("R"))));
    EXPECT_STREQ(infos.lookup(7)->refHeader()->header(), "U");
}

TEST(RefInfoSet, ATieIsAttachedOnce) {
    BexRefHeaderSet headers;
    BexRefInfoSet infos;
    BexRefInfoSet others;
    auto* first = new BexRefInfo(1, *headers.attach("U"));
    auto* last = new BexRefInfo(2, *headers.attach("U"));
    ASSERT_TRUE(infos.attach(*first) && infos.attach(*last));
    EXPECT_FALSE(infos.attach(*first));
    EXPECT_FALSE(infos.attach(*last)); // the last has no successor yet
    EXPECT_FALSE(others.attach(*first));
    EXPECT_EQ(others.lookup(1), nullptr);
}

TEST(RefInfoSet, ALongTableEndsWithoutDeepCalls) {
    BexRefHeaderSet headers;
    BexRefHeader& header = *headers.attach("U");
    BexRefInfoSet infos;
    for (unsigned kind = 0; kind < 300'000; ++kind) infos.attach(*new BexRefInfo(kind, header));
    EXPECT_EQ(infos.lookup(299'999)->kind(), 299'999u);
}
