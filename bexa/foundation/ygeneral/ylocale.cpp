#include "bexa/foundation/ygeneral/ylocale.h"

#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ycore/text_compare.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

enum Language : long { English = 0, Japanese = 1, Korean = 2, Chinese = 3 };
enum Locale : long { OtherLocale = 0, SevenBitJis = 256, ShiftJis = 512, Euc = 513 };

// To add a word of YLANG: a row here. Words are compared without regard to case. A directory of a language
// that has no number of its own counts as English there.
struct LanguageWord {
    const char* word;
    const char* directory;
    Language language;
};

// clang-format off
constexpr LanguageWord languageWords[] = {
    {"english",  "eng", English},
    {"en_US",    "eng", English},
    {"en_UK",    "eng", English},
    {"en",       "eng", English},
    {"japanese", "jpn", Japanese},
    {"ja_jp",    "jpn", Japanese},
    {"ja",       "jpn", Japanese},
    {"japan",    "jpn", Japanese},
    {"korean",   "kor", Korean},
    {"ko_KR",    "kor", Korean},
    {"chinese",  "chn", Chinese},
    {"zh_CN",    "chn", Chinese},
    {"german",   "ger", English},
};
// clang-format on

struct CodesetWord {
    std::string_view word; // in lower case, without "-" and "_"
    Locale locale;
};

constexpr CodesetWord codesetWords[] = {{"eucjp", Euc}, {"ujis", Euc}, {"jis7", SevenBitJis}};

struct LocaleWord {
    std::string_view language; // in lower case, as a locale begins
    Language number;
};

constexpr LocaleWord localeWords[] = {{"ja", Japanese}, {"ko", Korean}, {"zh", Chinese}};

bool isGiven(const char* value) {
    return value && *value;
}

const LanguageWord& languageOf(const char* word) {
    const auto equals = [word](const LanguageWord& row) { return Ystricmp(row.word, word) == 0; };
    const auto found = std::ranges::find_if(languageWords, equals);
    return found == std::end(languageWords) ? languageWords[0] : *found;
}

// A locale's name in lower case, as it comes apart: language[_territory][.codeset][@modifier]
struct LocaleName {
    std::string language;
    std::string codeset; // without "-" and "_"
};

std::string inLowerCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return result;
}

LocaleName localeName() {
    constexpr const char* variables[] = {"LC_ALL", "LC_CTYPE", "LANG"};
    const auto given =
        std::ranges::find_if(variables, [](const char* name) { return isGiven(ygetenv(name, 1)); });
    if (given == std::end(variables)) return {};
    const std::string all = inLowerCase(ygetenv(*given, 1));
    const std::string_view name = std::string_view(all).substr(0, all.find('@'));
    const std::size_t point = std::min(name.find('.'), name.size());
    LocaleName result{std::string(name.substr(0, std::min(name.find('_'), point))),
                      std::string(name.substr(point))};
    std::erase_if(result.codeset, [](char c) { return c == '.' || c == '-' || c == '_'; });
    return result;
}

} // namespace

long Ylocale() {
    const LocaleName name = localeName();
    if (name.language != "ja") return OtherLocale;
    const auto found = std::ranges::find(codesetWords, name.codeset, &CodesetWord::word);
    return found == std::end(codesetWords) ? ShiftJis : found->locale;
}

long YgetSystemLang() {
    const char* word = ygetenv("YLANG", 1);
    if (isGiven(word)) return languageOf(word).language;
    const auto found = std::ranges::find(localeWords, localeName().language, &LocaleWord::language);
    return found == std::end(localeWords) ? English : found->number;
}

const char* bexa::detail::languageDirectory() {
    return languageOf(ygetenv("YLANG", 1)).directory;
}
