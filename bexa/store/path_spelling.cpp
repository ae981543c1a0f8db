#include "bexa/store/path_spelling.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>

namespace bexa::detail {

namespace {

// A path that grows by components, the newest of which can still be changed together with its parents. Level 0 is the
// newest component, 1 its parent, and so on.
class GrowingPath {
public:
    static constexpr std::size_t levels = 4;

    explicit GrowingPath(bool hasRoot) : text_(hasRoot ? "/" : "") {}

    void add(std::string_view component) {
        if (count_ != 0) text_ += '/';
        std::shift_right(begins_.begin(), begins_.end(), 1);
        begins_[0] = text_.size();
        text_ += component;
        ++count_;
    }

    bool has(std::size_t level) const { return level < count_; }
    // Empty where there is no component.
    std::string_view at(std::size_t level) const {
        if (!has(level)) return {};
        const std::size_t end = level == 0 ? text_.size() : begins_[level - 1] - 1;
        return std::string_view(text_).substr(begins_[level], end - begins_[level]);
    }
    bool endsInCir(std::size_t level) const;

    // Gives a component that equals one of the words, whatever its case, the spelling of that word.
    bool adopt(std::size_t level, std::initializer_list<std::string_view> words) {
        const auto same = [this, level](std::string_view word) { return equalIgnoringCase(at(level), word); };
        const auto* word = std::find_if(words.begin(), words.end(), same);
        if (word == words.end()) return false;
        std::copy(word->begin(), word->end(), place(level));
        return true;
    }
    void lower(std::size_t level) {
        const std::string_view component = at(level);
        const ByteSet& leads = processLeadBytes();
        for (std::size_t i = 0; i < component.size();) {
            const std::size_t length = characterLength(component, i, leads);
            if (length == 1)
                *std::next(place(level), static_cast<std::ptrdiff_t>(i)) = lowerCase(component[i]);
            i += length;
        }
    }

    // Puts text over the end of the path, takes as much away, appends.
    void overwriteEnd(std::string_view text) { text_.replace(text_.size() - text.size(), text.size(), text); }
    void cutEnd(std::string_view text) { text_.resize(text_.size() - text.size()); }
    void append(std::string_view text) { text_ += text; }

    std::string_view text() const { return text_; }

private:
    std::string::iterator place(std::size_t level) {
        return std::next(text_.begin(), static_cast<std::ptrdiff_t>(begins_[level]));
    }

    std::string text_;
    std::size_t count_ = 0;
    std::array<std::size_t, levels> begins_ = {};
};

// From the last dot on; empty without a dot.
std::string_view suffixOf(std::string_view component) {
    const auto dot = component.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : component.substr(dot);
}

bool GrowingPath::endsInCir(std::size_t level) const {
    return equalIgnoringCase(suffixOf(at(level)), ".cir");
}

// What becomes of the newest component, which ends in a suffix of the table or is a name of it, in any case of
// letters. `spelling` is that of the table.
using Rule = void (*)(GrowingPath& path, std::string_view spelling);

void plain(GrowingPath& path, std::string_view spelling) {
    path.overwriteEnd(spelling);
}

// Kept on purpose: every such file loses its suffix, except the one whose name is known.
void hot(GrowingPath& path, std::string_view spelling) {
    path.cutEnd(spelling);
    if (path.adopt(0, {"SwsPrDef"})) path.append(spelling);
}

void inCircuit(GrowingPath& path, std::string_view spelling) {
    if (path.endsInCir(1)) path.overwriteEnd(spelling);
}

void inCircuitLog(GrowingPath& path, std::string_view spelling) {
    if (!path.endsInCir(2)) return;
    path.lower(1);
    path.overwriteEnd(spelling);
}

void resource(GrowingPath& path, std::string_view spelling) {
    path.cutEnd(spelling);
    path.adopt(0, {"bexdata", "bexenv", "bexcolor", "geneblk"});
    path.append(spelling);
    path.adopt(1, {"info"});
}

void macro(GrowingPath& path, std::string_view spelling) {
    if (!path.has(3)) return;
    for (std::size_t level = 1; level <= 3; ++level) path.lower(level);
    path.overwriteEnd(spelling);
}

void specification(GrowingPath& path, std::string_view spelling) {
    if (!equalIgnoringCase(path.at(2), "etc") || !path.adopt(1, {"jpn", "eng"})) return;
    path.adopt(2, {"etc"});
    path.overwriteEnd(spelling);
}

void underEtc(GrowingPath& path, std::string_view spelling) {
    if (path.adopt(1, {"etc"})) path.overwriteEnd(spelling);
}

struct Spelling {
    std::string_view text;
    Rule rule;
};

// clang-format off
// Components with a dot, by what stands from their last dot on. To add a row: the suffix as the suite writes it.
constexpr Spelling suffixes[] = {
    {".cir", plain},
    {".smb", plain},
    {".blk", plain},
    {".rlt", plain},
    {".cmp", plain},
    {".dbf", plain},
    {".prf", plain},
    {".evf", plain},
    {".elf", plain},
    {".htb", hot},
    {".eds", plain},
    {".sht", inCircuit},
    {".net", inCircuit},
    {".err", inCircuitLog},
    {".wrn", inCircuitLog},
    {".rsc", resource},
    {".mac", macro},
};

// Components without a dot. To add a row: the name as the suite writes it.
constexpr Spelling names[] = {
    {"PropSpec", specification},
    {"PartSpec", specification},
    {"CompKind", underEtc},
    {"rcpath",   inCircuit},
    {"instnc",   inCircuit},
    {"log",      inCircuit},
    {"ext",      inCircuit},
    {"drc",      inCircuit},
    {"frame",    inCircuit},
    {"netlist",  inCircuitLog},
    {"marklist", inCircuitLog},
    {"cpinopn",  inCircuitLog},
    {"nnodeopn", inCircuitLog},
    {"ioopn",    inCircuitLog},
    {"snetunm",  inCircuitLog},
    {"sbusunm",  inCircuitLog},
    {"prnmdup",  inCircuitLog},
    {"prnmopn",  inCircuitLog},
    {"drcchk",   inCircuitLog},
    {"sherc",    inCircuitLog},
};
// clang-format on

template <std::size_t Size>
constexpr bool areUnique(const Spelling (&table)[Size]) {
    for (std::size_t i = 0; i < Size; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (equalIgnoringCase(table[i].text, table[j].text)) return false;
        }
    }
    return true;
}
static_assert(areUnique(suffixes) && areUnique(names));

template <std::size_t Size>
void applyRule(GrowingPath& path, const Spelling (&table)[Size], std::string_view key) {
    const auto row = std::find_if(std::begin(table), std::end(table), [key](const Spelling& spelling) {
        return equalIgnoringCase(spelling.text, key);
    });
    if (row != std::end(table)) row->rule(path, row->text);
}

void spellNewest(GrowingPath& path) {
    const std::string_view suffix = suffixOf(path.at(0));
    if (suffix.empty()) {
        applyRule(path, names, path.at(0));
    } else {
        applyRule(path, suffixes, suffix);
    }
}

} // namespace

YString canonicalPath(std::string_view path) {
    if (path.size() <= 1) return YString(path);
    GrowingPath canonical(path.starts_with('/'));
    for (TextCursor rest(path); !rest.atEnd(); rest.skip(1)) {
        const std::string_view component = rest.takeUntil('/');
        if (component.empty()) continue;
        canonical.add(component);
        spellNewest(canonical);
    }
    return YString(canonical.text());
}

bool isAnchored(std::string_view path) {
    constexpr std::string_view anchors = "/.$\\";
    if (path.empty()) return false;
    if (anchors.find(path[0]) != std::string_view::npos) return true;
    return path.size() >= 2 && isLetter(path[0]) && path[1] == ':';
}

YString normalisedPath(std::string_view path) {
    return isAnchored(path) ? canonicalPath(path) : canonicalPath("./" + std::string(path));
}

bool samePathIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    const ByteSet& leads = processLeadBytes();
    for (std::size_t i = 0; i < a.size();) {
        const std::size_t length = characterLength(a, i, leads);
        const bool same =
            length == 1 ? lowerCase(a[i]) == lowerCase(b[i]) : a.substr(i, length) == b.substr(i, length);
        if (!same) return false;
        i += length;
    }
    return true;
}

bool hasBackslash(std::string_view path) {
    const ByteSet& leads = processLeadBytes();
    for (std::size_t i = 0; i < path.size(); i += characterLength(path, i, leads)) {
        if (path[i] == '\\') return true;
    }
    return false;
}

bool endsInBackslash(std::string_view path) {
    const ByteSet& leads = processLeadBytes();
    bool result = false;
    for (std::size_t i = 0; i < path.size(); i += characterLength(path, i, leads)) result = path[i] == '\\';
    return result;
}

} // namespace bexa::detail
