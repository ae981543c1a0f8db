#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/str_set.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/props/prop_spec_file.h"
#include "bexa/props/prop_spec_format.h"
#include "bexa/props/prop_spec_index.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <string>

using namespace bexa::detail;

namespace {

// The names of the sections that are written, ended with the run.
class WrittenNames {
public:
    WrittenNames() = default;
    WrittenNames(const WrittenNames&) = delete;
    WrittenNames& operator=(const WrittenNames&) = delete;
    ~WrittenNames() { names_.deleteAll(); }
    BexStrSet& operator*() { return names_; }

private:
    BexStrSet names_;
};

// A copy from the heap of the C library, for the set to take over.
bool attachCopy(BexStrSet& names, const char* name) {
    const std::size_t size = std::strlen(name) + 1;
    auto* copy = static_cast<char*>(std::malloc(size));
    if (!copy) return false;
    std::memcpy(copy, name, size);
    names.attach(copy);
    return true;
}

bool needsQuotes(std::string_view value) {
    static constexpr std::string_view marks = " #():{}";
    return std::ranges::any_of(value, [](char c) {
        return marks.find(c) != std::string_view::npos || isLeadByte(static_cast<unsigned char>(c));
    });
}

// The value and a blank. Kept on purpose: an empty value, or one with a quote or a tab, gets no quotes, so that it
// doesn't read back as it was.
void appendValue(std::string& line, std::string_view value) {
    const bool quoted = needsQuotes(value);
    if (quoted) line += '"';
    line += value;
    line += quoted ? "\" " : " ";
}

void appendNumber(std::string& line, int number) {
    char digits[16];
    line.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

std::string referenceLine(const BexPropOwnerRec& table) {
    std::string line = "\t( ";
    line.append(refTableWord).append("\t\"").append(viewOf(table.objectName()));
    if (!viewOf(table.aliasName()).empty()) line.append("\"\t\"").append(table.aliasName());
    return line.append("\" )");
}

} // namespace

YString BexPropSpecRec::makeString(unsigned long withPlace) const {
    std::string line = "( ";
    line.append(viewOf(propertyName())).append("\t");
    line.append(valueType2string(valueType_)).append("\t\"");
    line.append(viewOf(displayString())).append("\"\t");
    line.append(displayFlag_ ? "ON\t" : "OFF\t");
    if (withPlace) {
        line.append(place2string(propPlace_ == BexPlaceLcdb ? BexPlaceLcdb : BexPlaceCirc));
        line.append(propPlace_ != BexPlaceLcdb && !editFlag_ ? "UNEDIT\t" : "\t");
    }
    appendNumber(line, viewerColor_);
    line += valueSelection_.size() != 0 ? '\t' : ' ';
    for (int i = 0; i < valueSelection_.size(); ++i) appendValue(line, valueSelection_.at(i).view());
    line += ')';
    return YString(std::string_view(line));
}

void BexPropOwnerRec::makeString(YString_Array& out, unsigned long withPlace, BexStrSet& done) const {
    std::vector<const BexPropOwnerRec*> pending{this};
    while (!pending.empty()) {
        const BexPropOwnerRec* record = pending.back();
        pending.pop_back();
        if (!record->makeSection(out, withPlace, done)) continue;
        pending.insert(pending.end(), record->tables_.rbegin(), record->tables_.rend());
    }
}

// False for a section that is written already.
bool BexPropOwnerRec::makeSection(YString_Array& out, unsigned long withPlace, BexStrSet& done) const {
    const char* name = objectName() ? objectName() : "";
    if (done.contains(name) || !attachCopy(done, name)) return false;
    out.append(YString(name) << " {");
    auto tables = references();
    for (int i = 0; i < rows_.size(); ++i) {
        const BexPropSpecRec& row = rows_.at(i);
        if (row.valueType() != BexPropTypeRefTable) {
            out.append(YString("\t") << row.makeString(withPlace));
        } else if (!tables.empty() && tables.front().row == i) {
            out.append(YString(std::string_view(referenceLine(*tables.front().table))));
            tables = tables.subspan(1);
        }
    }
    out.append("}");
    return true;
}

void BexPropSpecFile::makeString(YString_Array& out) const {
    out.resize(0);
    WrittenNames done;
    for (int i = 0; i < owners_.size(); ++i) {
        const BexPropOwnerRec& owner = owners_.at(i);
        const bool withPlace = specObject(viewOf(owner.objectName())).place == PlaceColumn::Written;
        owner.makeString(out, withPlace, *done);
    }
}
