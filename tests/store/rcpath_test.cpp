#include "bexa/store/rcpath.h"

#include "tests/support/env_guard.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <type_traits>
#include <utility>

using namespace bexa::test;

namespace {

YString extract(const std::string& path) {
    return BexRcpathVariableEnv::extractPath(path.c_str());
}

} // namespace

TEST(Rcpath, PathsTakeTheirFormWhenBuilt) {
    const EnvGuard variable("BEXA_TEST_DIR", "/dir");
    struct Row {
        const char* given;
        const char* raw;
        const char* path;
    };
    constexpr Row rows[] = {
        {"lib", "./lib", "./lib"},      {"l", "./l", "./l"},
        {"/lib", "/lib", "/lib"},       {"$BEXA_TEST_DIR/lib", "$BEXA_TEST_DIR/lib", "/dir/lib"},
        {"C:/lib", "C:/lib", "C:/lib"}, {".", ".", "."},
        {"../x", "../x", "../x"},       {"a/B.CIR/", "./a/B.cir", "./a/B.cir"},
    };
    for (const Row& row : rows) {
        const BexRcpath entry("name", row.given);
        EXPECT_EQ(entry.name, "name");
        EXPECT_EQ(entry.rawPath, row.raw) << row.given;
        EXPECT_EQ(entry.path, row.path) << row.given;
    }
}

TEST(Rcpath, WithoutAPathBothAreEmpty) {
    for (const BexRcpath& entry :
         {BexRcpath(), BexRcpath(nullptr, nullptr), BexRcpath("a", nullptr), BexRcpath("a", "")}) {
        EXPECT_EQ(entry.path, "");
        EXPECT_EQ(entry.rawPath, "");
    }
    EXPECT_EQ(BexRcpath(nullptr, "/x").name, "");
}

TEST(Rcpath, CopyingBringsThePathsToTheirFormAnew) {
    BexRcpath odd;
    odd.name = "n";
    odd.path = "lib//x";
    odd.rawPath = "A.CIR/";
    const BexRcpath copy(odd);
    EXPECT_EQ(copy.name, "n");
    EXPECT_EQ(copy.path, "./lib/x");
    EXPECT_EQ(copy.rawPath, "./A.cir");
    BexRcpath assigned;
    assigned = odd;
    EXPECT_TRUE(assigned == copy);
    const BexRcpath& same = odd;
    odd = same;
    EXPECT_TRUE(odd == copy) << "also from itself";
}

TEST(Rcpath, ACopyOfAnEntryWithOneEmptyPathHasNone) {
    BexRcpath odd("n", "/lib");
    odd.path = "";
    EXPECT_EQ(BexRcpath(odd).rawPath, "");
    odd = BexRcpath("n", "/lib");
    odd.rawPath = "";
    EXPECT_EQ(BexRcpath(odd).path, "");
    BexRcpath target("t", "/old");
    target = std::as_const(odd);
    EXPECT_EQ(target.path, "");
    EXPECT_EQ(target.rawPath, "");
}

TEST(Rcpath, MovingJustMoves) {
    BexRcpath odd;
    odd.path = "lib//x";
    const BexRcpath moved(std::move(odd));
    EXPECT_EQ(moved.path, "lib//x");
    static_assert(std::is_nothrow_move_constructible_v<BexRcpath> &&
                  std::is_nothrow_move_assignable_v<BexRcpath>);
    static_assert(bexa::detail::BytesMayMove<BexRcpath>);
}

TEST(Rcpath, EqualityIsOfAllFieldsAndOrderByTheNameAlone) {
    const BexRcpath a("a", "/x");
    EXPECT_TRUE(a == BexRcpath("a", "/x"));
    EXPECT_TRUE(a != BexRcpath("a", "/y"));
    EXPECT_TRUE(a != BexRcpath("b", "/x"));
    BexRcpath other("a", "/x");
    other.rawPath = "$X";
    EXPECT_TRUE(a != other);
    EXPECT_EQ(a.compare(BexRcpath("a", "/y")), 0);
    EXPECT_EQ(a.compare(BexRcpath("b", "/x")), -1);
    EXPECT_EQ(BexRcpath("b", "/x").compare(a), 1);
    EXPECT_EQ(BexRcpath("\xB1", "").compare(a), 1) << "bytes are unsigned";
    EXPECT_EQ(BexRcpath("B", "").compare(a), -1) << "case counts";
}

TEST(RcpathTable, GrowsByTenEntriesAtMost) {
    BexRcpathTable table;
    for (int i = 0; i < 1000; ++i) table.append(BexRcpath(("n" + std::to_string(i)).c_str(), "lib"));
    ASSERT_EQ(table.size(), 1000);
    for (int i = 0; i < 1000; ++i) EXPECT_EQ(table[i].rawPath, "./lib");
}

TEST(RcpathVariable, WithoutADollarNothingHappens) {
    for (const char* path : {"", "lib", "./lib", "/a/$X", "~", "a\\b"}) EXPECT_EQ(extract(path), path);
    EXPECT_EQ(BexRcpathVariableEnv::extractPath(nullptr), "");
}

TEST(RcpathVariable, IsReplacedByItsValue) {
    const EnvGuard variable("BEXA_TEST_DIR", "/dir");
    EXPECT_EQ(extract("$BEXA_TEST_DIR"), "/dir");
    EXPECT_EQ(extract("$BEXA_TEST_DIR/a/b"), "/dir/a/b");
    EXPECT_EQ(extract("$BEXA_TEST_DIR/"), "/dir") << "nothing stands behind it";
    EXPECT_EQ(extract("${BEXA_TEST_DIR}"), "/dir") << "the expansion reads this form";
    variable.set("relative");
    EXPECT_EQ(extract("$BEXA_TEST_DIR/a"),
              (std::filesystem::current_path().string() + "/relative/a").c_str());
    variable.set("C:\\x");
    EXPECT_EQ(extract("$BEXA_TEST_DIR/a"), "C:/x/a");
}

TEST(RcpathVariable, ThatIsNotSetLeavesTheRestOrItself) {
    const EnvGuard variable("NOSUCH", std::nullopt);
    EXPECT_EQ(extract("$NOSUCH"), "$NOSUCH");
    EXPECT_EQ(extract("$NOSUCH/"), "$NOSUCH");
    EXPECT_EQ(extract("$NOSUCH/a"), "/a");
    EXPECT_EQ(extract("$"), "$");
    EXPECT_EQ(extract("$/a"), "/a");
    variable.set("");
    EXPECT_EQ(extract("$NOSUCH/a"), "/a") << "empty is as good as not set";
}

TEST(RcpathVariable, CircuitPathIsAnOrdinaryOne) {
    const EnvGuard variable("CIRCUIT_PATH", std::nullopt);
    EXPECT_EQ(extract("$CIRCUIT_PATH"), "$CIRCUIT_PATH");
    EXPECT_EQ(extract("$CIRCUIT_PATH/lib"), "/lib");
    variable.set("/c.cir");
    EXPECT_EQ(extract("$CIRCUIT_PATH/lib"), "/c.cir/lib");
}

TEST(RcpathVariable, ATextOfMoreThan1023BytesStays) {
    const EnvGuard variable("BEXA_TEST_DIR", "/dir");
    const std::string rest(1023 - std::string("$BEXA_TEST_DIR/").size(), 'x');
    EXPECT_EQ(extract("$BEXA_TEST_DIR/" + rest), ("/dir/" + rest).c_str());
    EXPECT_EQ(extract("$BEXA_TEST_DIR/" + rest + "x"), ("$BEXA_TEST_DIR/" + rest + "x").c_str());
}
