#include "bexa/foundation/ymessage/ymsg_out.h"

#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <string>

using namespace bexa::test;

namespace {

class YMsgOutTest : public ::testing::Test {
protected:
    YMsgOutTest() {
        dir_.makeDirectory("msg/eng");
        dir_.makeDirectory("msg/jpn");
    }

    void writeCatalogue(const std::string& file, const std::string& text) const {
        writeFile(dir_.file("msg/" + file), text);
    }
    // The message 7 of a catalogue with this content, "null" if there is none.
    std::string messageIn(const std::string& content) const {
        writeCatalogue("eng/tool.rsc", content);
        YMsgOut out;
        out.setProgram("tool");
        const char* text = out.getShortMsg(7, 1);
        return text ? text : "null";
    }

    const TempDir dir_;
    const EnvGuard root_{"YDSROOT", dir_.path()};
    const EnvGuard language_{"YLANG", "english"};
    const EnvGuard locale_{"LC_ALL", "C"};
};

TEST_F(YMsgOutTest, LooksUpTextsByNumber) {
    writeCatalogue("eng/bexa.rsc",
                   "# a catalogue\nmessage 2 {\n\t30526 \"Component\"\n\t30527 \"%s has %d pins\"\n}\n");
    YMsgOut out;
    EXPECT_EQ(out.setProgram("YDSROOT/bexa"), 1U);
    EXPECT_STREQ(out.getShortMsg(30526, 1), "Component");
    EXPECT_STREQ(out.getShortMsg(30527, 2, "U1", 14), "U1 has 14 pins");
    EXPECT_EQ(out.getShortMsg(30528, 1), nullptr);
    EXPECT_EQ(out.getShortMsg(0, 1), nullptr);
}

TEST_F(YMsgOutTest, AProgramWithoutARootStandsBelowTheInstallation) {
    writeCatalogue("eng/tool.rsc", "message 2 { 1 \"one\" }");
    YMsgOut out;
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "one");
}

TEST_F(YMsgOutTest, TheRootIsAnyVariable) {
    const TempDir other;
    other.makeDirectory("msg/eng");
    writeFile(other.file("msg/eng/tool.rsc"), "message 2 { 1 \"other\" }");
    const EnvGuard root("BEXA_TEST_ROOT", other.path());
    YMsgOut out;
    out.setProgram("BEXA_TEST_ROOT/tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "other");
}

TEST_F(YMsgOutTest, TheLanguageDecidesAndEnglishTakesItsPlace) {
    writeCatalogue("eng/tool.rsc", "message 2 { 1 \"english\" 2 \"only english\" }");
    writeCatalogue("jpn/tool.rsc", "message 2 { 1 \"japanese\" }");
    YMsgOut out;
    language_.set("japanese");
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "japanese");
    EXPECT_EQ(out.getShortMsg(2, 1), nullptr); // the file is chosen, not the message
    language_.set("korean");
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "english");
}

TEST_F(YMsgOutTest, WithoutACatalogueThereIsNoMessage) {
    YMsgOut out;
    EXPECT_EQ(out.getShortMsg(1, 1), nullptr);
    EXPECT_EQ(out.setProgram("nowhere"), 1U);
    EXPECT_EQ(out.getShortMsg(1, 1), nullptr);
    writeCatalogue("eng/tool.rsc", "message 2 { 1 \"one\" }");
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "one");
    EXPECT_EQ(out.setProgram(nullptr), 1U);
    EXPECT_EQ(out.getShortMsg(1, 1), nullptr);
    out.setProgram("");
    EXPECT_EQ(out.getShortMsg(1, 1), nullptr);
}

TEST_F(YMsgOutTest, ADirectoryIsNoCatalogue) {
    dir_.makeDirectory("msg/jpn/tool.rsc");
    writeCatalogue("eng/tool.rsc", "message 2 { 1 \"english\" }");
    language_.set("ja");
    YMsgOut out;
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "english");
}

TEST_F(YMsgOutTest, ACatalogueIsOneTableOfNumbersAndTexts) {
    EXPECT_EQ(messageIn("message 2 { 7 \"seven\" }"), "seven");
    EXPECT_EQ(messageIn("message 2 { 7 bare }"), "bare");
    EXPECT_EQ(messageIn("message 2 { 7 \"\" }"), "");
    EXPECT_EQ(messageIn("message 2 { 007 \"zeros\" }"), "zeros");
    EXPECT_EQ(messageIn("message 2 { 7 \"first\" 7 \"second\" }"), "first");
    EXPECT_EQ(messageIn("message 2 { 4294967295 \"largest\" 7 \"seven\" }"), "seven");
}

TEST_F(YMsgOutTest, AnythingElseInAFileLeavesNoMessages) {
    for (const char* content :
         {"", "message 2 { 6 \"six\" }", "message 3 { 7 \"seven\" }", "message { 7 \"seven\" }",
          "text 2 { 7 \"seven\" }", "message 2 { 7 \"seven\"", "message 2 { 7 }", "message 2 { 7 \"open }",
          "message 2 { 7 \"seven\" seven \"7\" }", "message 2 { 7 \"seven\" -1 \"minus\" }",
          "message 2 { 7 \"seven\" 4294967296 \"too large\" }", "message 2 { 7 \"seven\" } more : 1",
          "message : 7", "\x01\x02\xFF"}) {
        EXPECT_EQ(messageIn(content), "null") << content;
    }
}

TEST_F(YMsgOutTest, TextsComeInTheCodingOfTheProcess) {
    writeCatalogue("eng/tool.rsc", "# japanese_coding:euc\nmessage 2 { 1 \"\xA4\xA2\" }");
    YMsgOut out;
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(1, 1), "\x82\xA0");
}

TEST_F(YMsgOutTest, AResultCanBeTheArgumentOfTheNext) {
    writeCatalogue("eng/tool.rsc", "message 2 { 1 \"a name that is too long to lie inside\" 2 \"<%s>\" }");
    YMsgOut out;
    out.setProgram("tool");
    EXPECT_STREQ(out.getShortMsg(2, 1, out.getShortMsg(1, 1)), "<a name that is too long to lie inside>");
}

// What `body` prints to the standard output and to the standard error.
template <class Body>
std::pair<std::string, std::string> printed(Body body) {
    const TempDir dir;
    EXPECT_EQ(Child().run([&] {
        const int out = ::open(dir.file("out").c_str(), O_WRONLY | O_CREAT, 0600);
        const int error = ::open(dir.file("error").c_str(), O_WRONLY | O_CREAT, 0600);
        ::dup2(out, STDOUT_FILENO);
        ::dup2(error, STDERR_FILENO);
        return body() == 1 ? 0 : 1;
    }),
              0);
    return {contentOf(dir.file("out")), contentOf(dir.file("error"))};
}

using Printed = std::pair<std::string, std::string>;

TEST(YMsgOut, PrintsALineWithItsHeading) {
    EXPECT_EQ(printed([] { return YMsgOut().printMsg("bexa", "done"); }), Printed("bexa: done\n", ""));
    EXPECT_EQ(printed([] { return YMsgOut().printGuide("bexa", "try again"); }),
              Printed("bexa: try again\n", ""));
    EXPECT_EQ(printed([] { return YMsgOut().printError("bexa", "no"); }), Printed("", "bexa: no\n"));
}

TEST(YMsgOut, PrintsPercentSignsAndMissingTextsAsTheyAre) {
    EXPECT_EQ(printed([] { return YMsgOut().printMsg("%s", "100%n"); }), Printed("%s: 100%n\n", ""));
    EXPECT_EQ(printed([] { return YMsgOut().printMsg(nullptr, "text"); }), Printed("text\n", ""));
    EXPECT_EQ(printed([] { return YMsgOut().printMsg("", "text"); }), Printed("text\n", ""));
    EXPECT_EQ(printed([] { return YMsgOut().printMsg("bexa", nullptr); }), Printed("bexa: \n", ""));
}

TEST(YMsgOut, SaysSoWhenNothingCouldBeWritten) {
    EXPECT_EQ(Child().run([] {
        ::close(STDOUT_FILENO);
        return static_cast<int>(YMsgOut().printMsg("bexa", "lost"));
    }),
              0);
}

} // namespace
