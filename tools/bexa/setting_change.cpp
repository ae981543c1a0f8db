#include "tools/bexa/setting_change.h"

#include "tools/bexa/name_error.h"

#include "bexa/foundation/ycore/text_compare.h"

#include <algorithm>
#include <charconv>

namespace tool {
namespace {

// The coding of the command line is that of the terminal.
std::string inLibraryCoding(const std::string& argument, const Output& out) {
    if (terminalCoding() != Coding::Utf8) return argument;
    if (auto text = fromUtf8(argument, libraryCoding())) return *std::move(text);
    throw finding("a character has no code in resource files", out.systemText(argument.c_str()),
                  "use characters of Shift-JIS or EUC; nothing was written");
}

template <class Number>
std::optional<Number> numberIn(const std::string& text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

// The words of a value in a fixed order: words joined by "|" may come in any.
std::vector<std::string> wordsIn(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char c : text) {
        if (c == '|') {
            words.emplace_back();
        } else {
            words.back() += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
        }
    }
    std::sort(words.begin(), words.end());
    return words;
}

// Of some words the setter stores what it knows and answers true, so what is stored counts.
bool tookText(SettingsFile& file, const Change& change, const Output& out) {
    if (!file.set(change.key, change.value)) return false;
    const Json now = file.content(out)["settings"][change.key];
    if (!now.is_string()) return false;
    return wordsIn(now.get<std::string>()) == wordsIn(out.resourceText(change.value.c_str()));
}

// Each key has a setter of one type; the others refuse it.
bool took(SettingsFile& file, const Change& change, const Output& out) {
    const auto whole = numberIn<long>(change.value);
    if (whole && file.set(change.key, *whole)) return true;
    const auto real = numberIn<double>(change.value);
    if (real && file.set(change.key, *real)) return true;
    if (change.value.size() == 1 && file.set(change.key, change.value.front())) return true;
    return tookText(file, change, out);
}

// The value for a message, as text columns would show it.
std::string inWords(const Json& value) {
    return value.is_string() ? quoted(value.get<std::string>()) : value.dump();
}

} // namespace

std::vector<Change> changesFrom(const std::vector<std::string>& texts, const SettingsFile& file,
                                const std::string& shown, const Output& out) {
    const Json settings = file.content(out)["settings"];
    std::vector<Change> changes;
    for (const std::string& text : texts) {
        const std::size_t sign = text.find('=');
        const std::string key = text.substr(0, sign);
        if (sign == std::string::npos || key.empty()) {
            throw unusable("not a setting", out.systemText(text.c_str()), "write it KEY=VALUE");
        }
        const auto& members = settings.items();
        const auto found = std::find_if(members.begin(), members.end(), [&key](const auto& member) {
            return Ystricmp(member.key().c_str(), key.c_str()) == 0;
        });
        if (found == members.end()) {
            throw finding("no setting " + quoted(out.systemText(key.c_str())), shown,
                          "take one of those that the command shows; nothing was written");
        }
        changes.push_back({found.key(), inLibraryCoding(text.substr(sign + 1), out), found.value(), Json()});
    }
    return changes;
}

void makeChanges(std::vector<Change>& changes, SettingsFile& file, const std::string& shown,
                 const Output& out) {
    for (const Change& change : changes) {
        if (took(file, change, out)) continue;
        throw finding(
            "the setting " + change.key + " does not take " + quoted(out.resourceText(change.value.c_str())),
            shown,
            "give a value of its kind and range, it is " + inWords(change.before) +
                " now; a setting that no editor changes by its key takes none; nothing was written");
    }
    const Json settings = file.content(out)["settings"];
    for (Change& change : changes) change.after = settings[change.key];
}

} // namespace tool
