#include "bexa/foundation/ygeneral/ylocale.h"

#include "tests/support/env_guard.h"

#include <gtest/gtest.h>

using bexa::test::EnvGuard;

namespace {

class LocaleTest : public ::testing::Test {
protected:
    const EnvGuard all_{"LC_ALL", std::nullopt};
    const EnvGuard type_{"LC_CTYPE", std::nullopt};
    const EnvGuard lang_{"LANG", std::nullopt};
    const EnvGuard ylang_{"YLANG", std::nullopt};
};

TEST_F(LocaleTest, LanguageAndCodesetGiveTheNumber) {
    const struct {
        const char* locale;
        long number;
    } rows[] = {
        {"ja_JP.eucJP", 513},
        {"ja_JP.EUC-JP", 513},
        {"ja_JP.euc_jp", 513},
        {"ja_JP.ujis", 513},
        {"ja.UJIS", 513},
        {"ja_JP.eucJP@x", 513},
        {"ja_JP", 512},
        {"ja", 512},
        {"ja_JP.SJIS", 512},
        {"ja_JP.UTF-8", 512},
        {"ja_JP.eucKR", 512},
        {"ja_JP.eucJPx", 512},
        {"ja_JP.JIS7", 256},
        {"ja_JP.jis-7", 256},
        {"ja@x.eucJP", 512},
        {"C", 0},
        {"en_US.eucJP", 0},
        {"jav_JP.eucJP", 0},
        {"j", 0},
        {"ko_KR.eucKR", 0},
        {".eucJP", 0},
        {"japanese", 0},
    };
    for (const auto& row : rows) {
        lang_.set(row.locale);
        EXPECT_EQ(Ylocale(), row.number) << row.locale;
    }
}

TEST_F(LocaleTest, TheFirstVariableThatIsNotEmptyCounts) {
    EXPECT_EQ(Ylocale(), 0);
    lang_.set("ja_JP.eucJP");
    EXPECT_EQ(Ylocale(), 513);
    type_.set("ja_JP.SJIS");
    EXPECT_EQ(Ylocale(), 512);
    all_.set("");
    EXPECT_EQ(Ylocale(), 512);
    all_.set("C");
    EXPECT_EQ(Ylocale(), 0);
}

TEST_F(LocaleTest, TheWordOfTheLanguageVariableCountsInAnyCase) {
    const struct {
        const char* word;
        const char* directory;
        long language;
    } rows[] = {
        {"english", "eng", 0},  {"en_US", "eng", 0},  {"en_UK", "eng", 0},   {"en", "eng", 0},
        {"japanese", "jpn", 1}, {"ja_jp", "jpn", 1},  {"ja", "jpn", 1},      {"japan", "jpn", 1},
        {"JAPAN", "jpn", 1},    {"ja_JP", "jpn", 1},  {"korean", "kor", 2},  {"ko_KR", "kor", 2},
        {"KO_kr", "kor", 2},    {"ko", "eng", 0},     {"chinese", "chn", 3}, {"zh_CN", "chn", 3},
        {"zh", "eng", 0},       {"german", "ger", 0}, {"fr_FR", "eng", 0},   {"jap", "eng", 0},
    };
    lang_.set("ko_KR");
    for (const auto& row : rows) {
        ylang_.set(row.word);
        EXPECT_STREQ(bexa::detail::languageDirectory(), row.directory) << row.word;
        EXPECT_EQ(YgetSystemLang(), row.language) << row.word;
    }
}

TEST_F(LocaleTest, WithoutThatVariableTheLocaleGivesTheLanguage) {
    const struct {
        const char* locale;
        long language;
    } rows[] = {
        {"ja_JP.UTF-8", 1}, {"ja", 1}, {"ko_KR.UTF-8", 2}, {"zh_TW", 3}, {"de_DE", 0}, {"C", 0}, {"en_US", 0},
    };
    for (const auto& row : rows) {
        lang_.set(row.locale);
        EXPECT_EQ(YgetSystemLang(), row.language) << row.locale;
        ylang_.set("");
        EXPECT_EQ(YgetSystemLang(), row.language) << row.locale;
        ylang_.unset();
    }
    EXPECT_STREQ(bexa::detail::languageDirectory(), "eng");
    lang_.unset();
    EXPECT_EQ(YgetSystemLang(), 0);
}

} // namespace
