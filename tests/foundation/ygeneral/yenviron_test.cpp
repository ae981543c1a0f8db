#include "bexa/foundation/ygeneral/yenviron.h"

#include "tests/support/env_guard.h"
#include "tests/support/fresh_process.h"

#include <gtest/gtest.h>

#include <string>

using namespace bexa::test;

namespace {

class YEnvironTest : public ::testing::Test {
protected:
    static std::string substituted(const char* text) {
        return YEnviron::substituteByEnvs(text, nullptr, 0, 1);
    }

    const EnvGuard full_{"BEXA_TEST_1", "one"};
    const EnvGuard reference_{"BEXA_TEST_REF", "$BEXA_TEST_1"};
    const EnvGuard empty_{"BEXA_TEST_EMPTY", ""};
    const EnvGuard unset_{"BEXA_TEST_UNSET", std::nullopt};
    const EnvGuard underscore_{"_BEXA", "under"};
};

TEST_F(YEnvironTest, ReplacesReferencesAnywhere) {
    const struct {
        const char* text;
        const char* result;
    } rows[] = {
        {"", ""},
        {"plain", "plain"},
        {"$BEXA_TEST_1", "one"},
        {"${BEXA_TEST_1}", "one"},
        {"a/$BEXA_TEST_1/b", "a/one/b"},
        {"a${BEXA_TEST_1}b", "aoneb"},
        {"$BEXA_TEST_1$BEXA_TEST_1", "oneone"},
        {"$_BEXA", "under"},
        {"[$BEXA_TEST_EMPTY]", "[]"},
        {"$BEXA_TEST_REF", "$BEXA_TEST_1"}, // values are not looked through again
        {"$BEXA_TEST_UNSET/x", "$BEXA_TEST_UNSET/x"},
        {"${BEXA_TEST_UNSET}", "${BEXA_TEST_UNSET}"},
        {"$BEXA_TEST_1x", "$BEXA_TEST_1x"}, // the longest name counts
        {"$$BEXA_TEST_1", "$one"},
        {"${$BEXA_TEST_1}", "${one}"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(substituted(row.text), row.result) << row.text;
    }
}

TEST_F(YEnvironTest, LeavesAloneWhatIsNoReference) {
    for (const char* text : {"$", "${", "${}", "$1", "${1}", "$ BEXA_TEST_1", "${BEXA_TEST_1",
                             "${BEXA_TEST_1 }", "$(BEXA_TEST_1)", "%BEXA_TEST_1%", "a$"}) {
        EXPECT_EQ(substituted(text), text);
    }
}

TEST_F(YEnvironTest, WritesIntoABufferWhatFits) {
    char buffer[] = "xxxxxxxxxx";
    EXPECT_EQ(YEnviron::substituteByEnvs("a$BEXA_TEST_1", buffer, 5, 1), buffer);
    EXPECT_STREQ(buffer, "aone");
    EXPECT_EQ(YEnviron::substituteByEnvs("ab$BEXA_TEST_1", buffer, 5, 1), nullptr);
    EXPECT_STREQ(buffer, "abon");
    EXPECT_EQ(std::string(buffer + 5), "xxxxx");
    EXPECT_EQ(YEnviron::substituteByEnvs("", buffer, 1, 1), buffer);
    EXPECT_STREQ(buffer, "");
    buffer[0] = 'x';
    EXPECT_EQ(YEnviron::substituteByEnvs("a", buffer, 0, 1), nullptr);
    EXPECT_EQ(YEnviron::substituteByEnvs("a", buffer, -1, 1), nullptr);
    EXPECT_EQ(buffer[0], 'x');
}

TEST_F(YEnvironTest, ItsOwnResultCanBeItsNextText) {
    const char* first =
        YEnviron::substituteByEnvs("$BEXA_TEST_REF and more to lie on the heap", nullptr, 0, 1);
    EXPECT_STREQ(YEnviron::substituteByEnvs(first, nullptr, 0, 1), "one and more to lie on the heap");
}

TEST_F(YEnvironTest, NullGivesNull) {
    char buffer[4] = "abc";
    EXPECT_EQ(YEnviron::substituteByEnvs(nullptr, nullptr, 0, 1), nullptr);
    EXPECT_EQ(YEnviron::substituteByEnvs(nullptr, buffer, 4, 1), nullptr);
    EXPECT_STREQ(buffer, "abc");
}

TEST(YEnviron, CutsNoDoubleByteCharacterApart) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    char buffer[4];
    EXPECT_EQ(YEnviron::substituteByEnvs("\x82\xA0\x82\xA2", buffer, 4, 1), nullptr);
    EXPECT_STREQ(buffer, "\x82\xA0");
}

} // namespace
