// What the tests of the name grammar share: delimiters as one value, and names as lists of texts.
#pragma once

#include "bexa/names/bundle_name.h"

#include <random>
#include <string>
#include <vector>

namespace naming {

struct Marks {
    char busStart = '[';
    char busEnd = ']';
    char rangeEnd = '-';
    char bitEnd = ',';
    char rangeStep = '-';
};

inline BexChkSigName signal(const std::string& text, const Marks& m = {}) {
    return {text.c_str(), m.busStart, m.busEnd, m.rangeEnd, m.bitEnd};
}
inline BexChkArrayName array(const std::string& text, const Marks& m = {}) {
    return {text.c_str(), m.busStart, m.busEnd, m.rangeEnd, m.bitEnd, m.rangeStep};
}
inline BexChkBundleName bundle(const std::string& text, const Marks& m = {}) {
    return {text.c_str(), m.busStart, m.busEnd, m.rangeEnd, m.bitEnd, m.rangeStep};
}

using Texts = std::vector<std::string>;

inline Texts signalsOf(const BexChkArrayName& array) {
    Texts texts;
    for (int i = 0; i < array.sigCount(); ++i) texts.emplace_back(array.sigName(i));
    return texts;
}
// Reads a copy: reading through at() would tell the bundle that somebody may change it.
inline std::vector<BexChkArrayName> membersOf(const BexChkBundleName& bundle) {
    const BexChkBundleName copy = bundle;
    std::vector<BexChkArrayName> members;
    for (int i = 0; i < copy.arrayCount(); ++i) members.push_back(copy.at(i));
    return members;
}
inline Texts arraysOf(const BexChkBundleName& bundle) {
    Texts texts;
    for (int i = 0; i < bundle.arrayCount(); ++i) texts.emplace_back(bundle.arrayName(i));
    return texts;
}
inline Texts signalsOf(const BexChkBundleName& bundle) {
    Texts texts;
    for (const BexChkArrayName& member : membersOf(bundle)) {
        for (const std::string& text : signalsOf(member)) texts.push_back(text);
    }
    return texts;
}

// A text of random characters of `alphabet`.
inline std::string randomText(std::mt19937& random, const std::string& alphabet, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) c = alphabet[random() % alphabet.size()];
    return text;
}

} // namespace naming
