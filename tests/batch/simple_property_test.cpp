#include "bexa/batch/simple_property.h"
#include "tests/support/child.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <memory>

using namespace bexa::test;

namespace {

class SimpleProperty : public testing::Test {
protected:
    std::string written(const std::string& content) const {
        writeFile(dir_.file("settings"), content);
        return dir_.file("settings");
    }
    bool read(const std::string& content, const char* key = "T") {
        return properties_.read(written(content).c_str(), key) == 1;
    }

    TempDir dir_;
    SLProperty properties_;
};

TEST_F(SimpleProperty, NothingIsThereBeforeTheFirstReading) {
    EXPECT_EQ(properties_.getStr("a", 1, 2), nullptr);
    EXPECT_EQ(properties_.getInt("a", 1, 2), 0);
    EXPECT_EQ(properties_.getBool("a", 1, 2), 0UL);
}

TEST_F(SimpleProperty, ReadsItsSample) {
    ASSERT_EQ(properties_.read(testData("simple_property/plotter").c_str(), "plotter"), 1UL);
    EXPECT_EQ(properties_.getInt("bus", 1, 2), 2);
    EXPECT_EQ(properties_.getBool("bus", 1, 3), 0UL);
    EXPECT_STREQ(properties_.getStr("net", 1, 4), "0.25");
    EXPECT_STREQ(properties_.getStr("2", 2, 1), "net");
    EXPECT_EQ(properties_.getStr("pin label", 1, 4), nullptr);
}

TEST_F(SimpleProperty, FindsTheValueOfAWord) {
    ASSERT_TRUE(read("T { ( a 1 ON ) ( b -2x on ) ( c \"two words\" off ) }"));
    EXPECT_STREQ(properties_.getStr("a", 1, 3), "ON");
    EXPECT_EQ(properties_.getInt("a", 1, 2), 1);
    EXPECT_EQ(properties_.getBool("a", 1, 3), 1UL);
    EXPECT_EQ(properties_.getStr("a", 1, 4), nullptr);
    EXPECT_EQ(properties_.getInt("b", 1, 2), -2);
    EXPECT_STREQ(properties_.getStr("two words", 2, 1), "c"); // any column may be the key
    EXPECT_EQ(properties_.getStr("none", 1, 2), nullptr);
}

TEST_F(SimpleProperty, WordsAreComparedExactlyAndSwitchesWithoutCase) {
    ASSERT_TRUE(read("T { ( a on ) ( b ONE ) ( c \"\" ) }"));
    EXPECT_EQ(properties_.getStr("A", 1, 2), nullptr);
    EXPECT_EQ(properties_.getBool("a", 1, 2), 1UL);
    EXPECT_EQ(properties_.getBool("b", 1, 2), 0UL);
    EXPECT_EQ(properties_.getBool("c", 1, 2), 0UL);
}

TEST_F(SimpleProperty, ASwitchWithoutAValueIsOff) {
    ASSERT_TRUE(read("T { ( a ) }"));
    EXPECT_EQ(properties_.getBool("a", 1, 2), 0UL);
    EXPECT_EQ(properties_.getBool("none", 1, 2), 0UL);
}

TEST_F(SimpleProperty, TheFirstRowDecidesThoughItIsTooShort) {
    ASSERT_TRUE(read("T { ( a ) ( a 1 ) }"));
    EXPECT_EQ(properties_.getStr("a", 1, 2), nullptr);
    EXPECT_EQ(properties_.getInt("a", 1, 2), 0);
}

TEST_F(SimpleProperty, RowsThatAreNoListOrTooShortArePassedOver) {
    ASSERT_TRUE(read("T { bare ( ) ( x ) ( a 1 ) }"));
    EXPECT_STREQ(properties_.getStr("1", 2, 1), "a");
    EXPECT_STREQ(properties_.getStr("a", 1, 2), "1");
    EXPECT_EQ(properties_.getStr("bare", 1, 1), nullptr);
}

TEST_F(SimpleProperty, OnlyTheFirstCellOfARowIsLookedAt) {
    ASSERT_TRUE(read("T 2 { ( a 1 ) ( b 2 ) ( c 3 ) ( a 4 ) }"));
    EXPECT_STREQ(properties_.getStr("a", 1, 2), "1");
    EXPECT_EQ(properties_.getStr("b", 1, 2), nullptr);
    EXPECT_STREQ(properties_.getStr("c", 1, 2), "3");
}

TEST_F(SimpleProperty, ANullWordIsAnEmptyOne) {
    ASSERT_TRUE(read("T { ( a 1 ) ( \"\" 2 ) }"));
    EXPECT_STREQ(properties_.getStr(nullptr, 1, 2), "2");
    EXPECT_STREQ(properties_.getStr("", 1, 2), "2");
}

TEST_F(SimpleProperty, ColumnsAreCountedFromOne) {
    ASSERT_TRUE(read("T { ( a 1 ) }"));
    EXPECT_EQ(properties_.getStr("a", 0, 2), nullptr);
    EXPECT_EQ(properties_.getStr("a", 1, 0), nullptr);
    EXPECT_STREQ(properties_.getStr("a", 1, 1), "a");
    EXPECT_EQ(properties_.getStr("a", ~0U, 1), nullptr);
    EXPECT_EQ(properties_.getStr("a", 1, ~0U), nullptr);
}

TEST_F(SimpleProperty, ASecondReadingThatFailsLeavesNothing) {
    const struct {
        const char* what;
        std::string path;
        const char* key;
    } rows[] = {
        {"missing file", dir_.file("none"), "T"}, {"missing key", dir_.file("settings"), "X"},
        {"a list", dir_.file("settings"), "L"},   {"a text", dir_.file("settings"), "V"},
        {"a directory", dir_.path(), "T"},
    };
    const std::string path = written("T { ( a 1 ) }\nL: ( a 1 )\nV: a\n");
    for (const auto& row : rows) {
        ASSERT_EQ(properties_.read(path.c_str(), "T"), 1UL);
        ASSERT_STREQ(properties_.getStr("a", 1, 2), "1");
        EXPECT_EQ(properties_.read(row.path.c_str(), row.key), 0UL) << row.what;
        EXPECT_EQ(properties_.getStr("a", 1, 2), nullptr) << row.what;
    }
    EXPECT_EQ(properties_.read(nullptr, "T"), 0UL);
    EXPECT_EQ(properties_.read(path.c_str(), nullptr), 0UL);
}

TEST_F(SimpleProperty, AnEmptyTableIsReadAndHasNothing) {
    EXPECT_TRUE(read("T { }"));
    EXPECT_EQ(properties_.getStr("a", 1, 1), nullptr);
}

TEST_F(SimpleProperty, TheTableOutlivesItsFile) {
    ASSERT_TRUE(read("T { ( a 1 ) }"));
    writeFile(dir_.file("settings"), "");
    EXPECT_STREQ(properties_.getStr("a", 1, 2), "1");
}

TEST_F(SimpleProperty, BothSidesOfAnAssignmentOwnTheTable) {
    ASSERT_TRUE(read("T { ( a 1 ) }"));
    auto other = std::make_unique<SLProperty>();
    *other = properties_;
    EXPECT_EQ(other->getStr("a", 1, 2), properties_.getStr("a", 1, 2));
    properties_.read(nullptr, "T");
    EXPECT_STREQ(other->getStr("a", 1, 2), "1");
    properties_ = *other;
    other.reset();
    EXPECT_STREQ(properties_.getStr("a", 1, 2), "1");
}

TEST_F(SimpleProperty, NumbersSaturate) {
    ASSERT_TRUE(read("T { ( a 99999999999 ) ( b -99999999999 ) ( c word ) }"));
    EXPECT_EQ(properties_.getInt("a", 1, 2), 2147483647);
    EXPECT_EQ(properties_.getInt("b", 1, 2), -2147483647 - 1);
    EXPECT_EQ(properties_.getInt("c", 1, 2), 0);
}

TEST_F(SimpleProperty, AFileThatMayNotBeReadIsNotRead) {
    const std::string path = written("T { ( a 1 ) }");
    setMode(path, 0);
    const auto body = [&] { return static_cast<int>(SLProperty().read(path.c_str(), "T")); };
    EXPECT_EQ(Child().asNobody().run(body), 0);
}

TEST_F(SimpleProperty, BrokenFilesAreNotRead) {
    for (const char* content : {"", "T", "T {", "T { ( a 1", "T { ( a \"1 ) }\n", "\xFF\xFE\x01 {"}) {
        EXPECT_FALSE(read(content)) << content;
    }
}

} // namespace
