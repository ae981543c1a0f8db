// The directories of symbols, contents and component libraries: their rows, as stored and expanded.

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/circuitrc/row_rules.h"
#include "bexa/foundation/ycore/environment.h"

#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

using bexa::detail::DatarcFields;
using bexa::detail::lowBits;
using bexa::detail::provideRow;

namespace {

// The first index that each table refuses.
constexpr int symbPathLimit = 512;
constexpr int contPathLimit = 512;
constexpr int lcdbPathLimit = 256;

std::string_view cText(const YString& text) {
    return static_cast<const char*>(text);
}

// A path that begins with "$NAME": what the variable stands for, then the rest behind the first separator.
YPathName belowVariable(const DatarcFields& fields, std::string_view path) {
    const std::string_view text = path.substr(1);
    const std::string name(text.substr(0, text.find('/')));
    YPathName result = name == "CIRCUIT_PATH" ? YPathName(fields.currentDir, fields.currentName)
                                              : YPathName(ygetenv(name.c_str(), 1));
    if (name.size() < text.size()) result += text.substr(name.size() + 1).data();
    // A variable that isn't set and nothing behind it: no directory, not the current one.
    if (result.length() != 0) result.pack();
    return result;
}

YString expanded(const DatarcFields& fields, const YString& stored) {
    const std::string_view path = cText(stored);
    if (path.starts_with('$')) return belowVariable(fields, path);
    if (!path.starts_with('.')) return stored;
    YPathName result(fields.currentDir, stored);
    return result.pack();
}

// A text output of the `char*` readers.
struct Buffer {
    char* bytes;
    unsigned int size;

    explicit operator bool() const { return bytes && size != 0; }

    // Kept on purpose: at most size - 1 bytes, filled up with NUL, and a terminator at position `size`. The
    // byte in between isn't touched, so a text that is cut there ends in what the caller's buffer held.
    void take(const YString& text) const {
        if (!*this) return;
        const std::size_t room = size - 1;
        const std::string_view copied = cText(text).substr(0, room);
        std::memcpy(bytes, copied.data(), copied.size());
        std::memset(bytes + copied.size(), 0, room - copied.size());
        bytes[size] = '\0';
    }
};

// A text output of the other readers.
struct Text {
    YString* target;

    explicit operator bool() const { return target != nullptr; }

    void take(const YString& text) const {
        if (target) *target = text;
    }
};

enum class Form { AsStored, Expanded };

template <class Output>
unsigned long readRow(const DatarcFields& fields, const BexPathTable& table, unsigned int index, Form form,
                      const Output& path, const Output& name) {
    if (index >= static_cast<unsigned int>(table.size())) return 0;
    const BexPathElem& row = table.at(static_cast<int>(index));
    name.take(row.name);
    if (path) path.take(form == Form::Expanded ? expanded(fields, row.path) : row.path);
    return 1;
}

// What fills a gap: the expanded path of the first row of `pattern`.
std::optional<BexPathElem> gapRow(const DatarcFields& fields, const BexPathTable& pattern) {
    if (pattern.size() == 0) return std::nullopt;
    return BexPathElem("-", expanded(fields, pattern.at(0).path));
}

enum class FirstRow { MayGo, Stays };

// Stores a row that exists. Two empty texts take the last row away.
unsigned long storeRow(BexPathTable& table, short index, FirstRow firstRow, const char* name,
                       const char* path) {
    if (!name || !path) return 0;
    const bool isLast = index == table.size() - 1;
    const bool stays = index == 0 && firstRow == FirstRow::Stays;
    if (!*name && !*path && isLast && !stays) return table.remove(index);
    table[index] = BexPathElem(name, path);
    return 1;
}

} // namespace

// ---- Symbols

unsigned long BexDatarc::pureSymbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                                      unsigned int nameSize) const {
    return readRow(*fields_, fields_->symbPathTable, index, Form::AsStored, Buffer{path, pathSize},
                   Buffer{name, nameSize});
}

unsigned long BexDatarc::pureSymbPath(unsigned int index, YString* path, YString* name) const {
    return readRow(*fields_, fields_->symbPathTable, index, Form::AsStored, Text{path}, Text{name});
}

unsigned long BexDatarc::symbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                                  unsigned int nameSize) const {
    return readRow(*fields_, fields_->symbPathTable, index, Form::Expanded, Buffer{path, pathSize},
                   Buffer{name, nameSize});
}

unsigned long BexDatarc::symbPath(unsigned int index, YString* path, YString* name) const {
    return readRow(*fields_, fields_->symbPathTable, index, Form::Expanded, Text{path}, Text{name});
}

unsigned long BexDatarc::checkSymbPathTable(short index) {
    return provideRow(fields_->symbPathTable, index, symbPathLimit,
                      [&] { return gapRow(*fields_, fields_->symbPathTable); });
}

unsigned long BexDatarc::symbPath(unsigned int index, const char* name, const char* path) {
    const short row = lowBits(index);
    return checkSymbPathTable(row) ? storeRow(fields_->symbPathTable, row, FirstRow::MayGo, name, path) : 0;
}

// ---- Contents

unsigned long BexDatarc::pureContPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                                      unsigned int nameSize) const {
    return readRow(*fields_, fields_->contPathTable, index, Form::AsStored, Buffer{path, pathSize},
                   Buffer{name, nameSize});
}

unsigned long BexDatarc::pureContPath(unsigned int index, YString* path, YString* name) const {
    return readRow(*fields_, fields_->contPathTable, index, Form::AsStored, Text{path}, Text{name});
}

unsigned long BexDatarc::contPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                                  unsigned int nameSize) const {
    return readRow(*fields_, fields_->contPathTable, index, Form::Expanded, Buffer{path, pathSize},
                   Buffer{name, nameSize});
}

unsigned long BexDatarc::contPath(unsigned int index, YString* path, YString* name) const {
    return readRow(*fields_, fields_->contPathTable, index, Form::Expanded, Text{path}, Text{name});
}

unsigned long BexDatarc::checkContPathTable(short index) {
    return provideRow(fields_->contPathTable, index, contPathLimit,
                      [&] { return gapRow(*fields_, fields_->contPathTable); });
}

unsigned long BexDatarc::contPath(unsigned int index, const char* name, const char* path) {
    const short row = lowBits(index);
    return checkContPathTable(row) ? storeRow(fields_->contPathTable, row, FirstRow::MayGo, name, path) : 0;
}

// ---- Component libraries

unsigned long BexDatarc::pureLcdbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                                      unsigned int nameSize) const {
    return readRow(*fields_, fields_->lcdbPathTable, index, Form::AsStored, Buffer{path, pathSize},
                   Buffer{name, nameSize});
}

unsigned long BexDatarc::pureLcdbPath(unsigned int index, YString* path, YString* name) const {
    return readRow(*fields_, fields_->lcdbPathTable, index, Form::AsStored, Text{path}, Text{name});
}

unsigned long BexDatarc::lcdbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                                  unsigned int nameSize) const {
    return readRow(*fields_, fields_->lcdbPathTable, index, Form::Expanded, Buffer{path, pathSize},
                   Buffer{name, nameSize});
}

unsigned long BexDatarc::lcdbPath(unsigned int index, YString* path, YString* name) const {
    return readRow(*fields_, fields_->lcdbPathTable, index, Form::Expanded, Text{path}, Text{name});
}

unsigned long BexDatarc::checkLcdbPathTable(short index) {
    // Kept on purpose: the gap repeats the first directory of the contents, not of the libraries.
    return provideRow(fields_->lcdbPathTable, index, lcdbPathLimit,
                      [&] { return gapRow(*fields_, fields_->contPathTable); });
}

unsigned long BexDatarc::lcdbPath(unsigned int index, const char* name, const char* path) {
    const short row = lowBits(index);
    return checkLcdbPathTable(row) ? storeRow(fields_->lcdbPathTable, row, FirstRow::Stays, name, path) : 0;
}
