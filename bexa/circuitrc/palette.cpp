#include "bexa/circuitrc/palette.h"

#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/yrsc/token_reader.h"
#include "bexa/store/file.h"
#include "bexa/store/install_roots.h"

#include <string_view>
#include <utility>

namespace {

constexpr const char* paletteName = "bexcolor";
constexpr std::string_view tableKey = "colorTable";
constexpr int rowLimit = 16; // of the setter; a file may hold more
constexpr int columnsRead = 2;
constexpr int columnsWritten = 5;
constexpr unsigned indexSize = 20;
constexpr unsigned nameSize = 256;

// The components have no role where colours are chosen by name.
BexColorElem namedColor(YString name) {
    return {255, 255, 255, std::move(name)};
}

// One row: the colour number and the name.
bool loadRow(YioRscLoad& reader, int index, BexColorTable& table) {
    std::string_view name;
    if (index < 0 || index >= bexa::maxRowsFromFile) return false;
    if (!bexa::detail::loadCell(reader, name, nameSize)) return false;
    table[index] = namedColor(YString(name));
    return true;
}

bool loadRows(YioRscLoad& reader, BexColorTable& table) {
    for (;;) {
        const YioRscLoad::Token token = reader.next(indexSize);
        if (token.type == YioRscLoad::TypeClose) return true;
        if (token.type != YioRscLoad::TypeValue) return false;
        if (!loadRow(reader, bexa::detail::numberOf(token.text), table)) return false;
    }
}

} // namespace

BexColor::BexColor() {
    constexpr int builtInRows = 15;
    for (int i = 0; i < builtInRows; ++i) end() = namedColor("white");
    at(0) = BexColorElem(0, 0, 0, "black");
    at(2) = BexColorElem(255, 0, 0, "red");
    loadColorTable();
}

unsigned long BexColor::isValid() const {
    return fileName_.length() != 0;
}

int BexColor::colorCount() const {
    return size();
}

const YString& BexColor::color(int index) const {
    static const YString none;
    return index >= 0 && index < size() ? at(index).name : none;
}

unsigned long BexColor::color(int index, const char* name) {
    if (!checkColorTable(index) || !name) return 0;
    at(index) = namedColor(name);
    return 1;
}

unsigned long BexColor::save() {
    if (!isValid()) return 0;
    bexa::detail::RscText file;
    file.openTable(tableKey, columnsWritten);
    for (int i = 0; i < size(); ++i) {
        const BexColorElem& row = at(i);
        file.cell(i).cell(unsigned{row.red}).cell(unsigned{row.green}).cell(unsigned{row.blue});
        file.quotedCell(row.name.length() != 0 ? row.name.view() : "_").endRow();
    }
    file.closeTable();
    return file.writeTo(fileName_);
}

// Rows of a personal file that breaks off stay; the installation's file is read over them.
unsigned long BexColor::loadColorTable() {
    const YString personal = BexPersonalFile().fileName(BexPersonalFile::Resource, paletteName);
    if (BexFile::isExist(personal) && loadFrom(personal)) return 1;
    return loadFrom(BexSysFile::fileName(paletteName, BexSysFile::InfoResource));
}

unsigned long BexColor::loadFrom(const YString& path) {
    YioRscLoad reader = bexa::detail::openReader(path);
    if (!loadColorTable(reader)) return 0;
    fileName_ = path;
    return 1;
}

unsigned long BexColor::loadColorTable(YioRscLoad& reader) {
    if (!reader.isValid()) return 0;
    for (;;) {
        const YioRscLoad::Token token = reader.next(bexa::detail::keySize);
        if (token.type == YioRscLoad::TypeInvalid) return 0;
        if (token.type == YioRscLoad::TypeEnd) return 1;
        if (token.type != YioRscLoad::TypeKeyword || token.text != tableKey) continue;
        if (!bexa::detail::loadTableHead(reader, columnsRead, indexSize) || !loadRows(reader, *this))
            return 0;
    }
}

unsigned long BexColor::checkColorTable(int index) {
    if (index < 0 || index >= rowLimit) return 0;
    while (size() <= index) end() = namedColor("-");
    return 1;
}
