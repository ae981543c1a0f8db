#include "tools/bexa/text_form.h"

#include <gtest/gtest.h>

namespace tool {
namespace {

std::string shown(const char* document) {
    return textOf(Json::parse(document), Coding::Utf8);
}

TEST(TextForm, PlainMembersAreAlignedLines) {
    EXPECT_EQ(shown(R"({"a": "x", "longer": true, "n": null, "e": "", "d": 2.5, "w": 3.0})"),
              "a       x\nlonger  yes\nn       -\ne       \"\"\nd       2.5\nw       3\n");
}

TEST(TextForm, AnArrayOfObjectsIsATableWithNumbersToTheRight) {
    EXPECT_EQ(shown(R"({"pins": [{"id": 7, "name": "抵抗", "n": 1}, {"id": 100, "name": "R", "n": 20}]})"),
              "pins\n   id  name   n\n    7  抵抗   1\n  100  R     20\n");
}

TEST(TextForm, SectionsStandBehindTheLines) {
    EXPECT_EQ(shown(R"({"s": {"k": 1}, "a": "x"})"), "a  x\n\ns\n  k  1\n");
    EXPECT_EQ(shown(R"({"list": ["a", 2], "none": []})"), "list\n  a\n  2\n\nnone\n  none\n");
}

TEST(TextForm, HeadingsCannotSteerATerminal) {
    EXPECT_EQ(shown(R"({"\u001b[2J": ["a"]})"), "\\x1b[2J\n  a\n");
}

TEST(TextForm, AnEmptyDocumentIsAnEmptyText) {
    EXPECT_EQ(shown("{}"), "");
}

} // namespace
} // namespace tool
