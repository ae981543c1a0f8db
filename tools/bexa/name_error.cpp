#include "tools/bexa/name_error.h"

namespace tool {
namespace {

struct Words {
    BexNetNameErrType result;
    const char* what;
    const char* remedy;
};

// clang-format off
constexpr Words words[] = {
    {BexNetNameUnchecked,   "is empty",                      "give it at least one signal"},
    {BexNetNameSyntax,      "breaks the grammar of names",   "write it like CLK, D[7], D[0-31], D[0-14-2,20] or A[0-3],B"},
    {BexNetNameNoDelimiter, "has no delimiters to be read with", "define busStartChar, busEndChar, rangeEndChar and bitEndChar in the circuit resource"},
};
// clang-format on

const Words& entryOf(BexNetNameErrType result) {
    for (const Words& entry : words) {
        if (entry.result == result) return entry;
    }
    return words[1];
}

} // namespace

const char* wordsOf(BexNetNameErrType result) {
    return entryOf(result).what;
}

Problem badName(const std::string& subject, BexNetNameErrType result, const std::string& where) {
    const Words& entry = entryOf(result);
    return finding(subject + ' ' + entry.what, where, entry.remedy);
}

std::string quoted(const std::string& text) {
    return '"' + text + '"';
}

} // namespace tool
