// Reads an environment resource from its file.
//
// Keys come in any order and in any case of letters. Nothing that an entry does wrong fails the load: it costs that
// entry, or the rest of its table, and what it leaves over is passed over token by token.

#include "bexa/envrc/envrc.h"
#include "bexa/envrc/envrc_fields.h"
#include "bexa/envrc/envrc_keys.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/yrsc/token_reader.h"

#include <string_view>
#include <utility>

namespace bexa::detail {

namespace {

// The room for cells that are numbers, and for those of the attribute table.
constexpr unsigned cellSize = 20;
constexpr unsigned attributeSize = 64;

class EnvrcReader {
public:
    EnvrcReader(BexEnvrcData& fields, YioRscLoad& reader) : fields_(fields), reader_(reader) {}

    // False when the file holds something that is no token; what was read until then stays.
    bool readAll();

private:
    using Setting = EnvrcSetting;

    void readEntry(const Setting& setting);
    bool readValue(const Setting& setting);
    bool readNumber(const Setting& setting);
    bool readText(const Setting& setting);
    bool readWord(const Setting& setting);

    template <class Table, class ReadRow>
    bool loadTable(Table& table, int columns, ReadRow readRow);
    bool loadGridTable(BexGridRow_Array& table);
    bool loadSymSheetSizeTable(BexSheetSizeRow_Array& table);
    bool loadSchSheetSizeTable(BexSheetSizeRow_Array& table);
    bool loadSchSheetAttrTable(BexSheetAttrRow_Array& table);
    bool loadSheetSize(BexSheetSizeRow& row);
    bool loadFrame(BexSheetSizeRow& row);
    bool loadCount(int& count);
    bool loadLength(double& length, const EnvrcRange& range);
    bool loadText(YString& text, unsigned size);

    BexEnvrcData& fields_;
    YioRscLoad& reader_;
};

bool EnvrcReader::readAll() {
    for (;;) {
        const YioRscLoad::Token token = reader_.next(keySize);
        if (token.type == YioRscLoad::TypeInvalid) return false;
        if (token.type == YioRscLoad::TypeEnd) return true;
        if (token.type != YioRscLoad::TypeKeyword) continue;
        const Setting* setting = findEnvrcSetting(token.text);
        if (setting && setting->load.taken) readEntry(*setting);
    }
}

void EnvrcReader::readEntry(const Setting& setting) {
    if (readValue(setting)) return markGiven(fields_, setting);
    if (!setting.load.mends) return;
    double& value = fieldOf<double>(fields_, setting);
    if (!setting.load.sound.holds(value)) value = setting.load.replacement;
}

// False when the entry is no good; the setting is then as it was, a table as far as it was read.
bool EnvrcReader::readValue(const Setting& setting) {
    switch (setting.form.kind) {
    case EnvrcForm::Number: return readNumber(setting);
    case EnvrcForm::Real: return loadFloat(reader_, fieldOf<double>(fields_, setting));
    case EnvrcForm::Character: return loadChar(reader_, fieldOf<char>(fields_, setting));
    case EnvrcForm::Text: return readText(setting);
    case EnvrcForm::Word:
    case EnvrcForm::WordOrNumber: return readWord(setting);
    case EnvrcForm::GridTable: return loadGridTable(fieldOf<BexGridRow_Array>(fields_, setting));
    case EnvrcForm::SymbolSizes:
        return loadSymSheetSizeTable(fieldOf<BexSheetSizeRow_Array>(fields_, setting));
    case EnvrcForm::SchematicSizes:
        return loadSchSheetSizeTable(fieldOf<BexSheetSizeRow_Array>(fields_, setting));
    case EnvrcForm::Attributes:
        return loadSchSheetAttrTable(fieldOf<BexSheetAttrRow_Array>(fields_, setting));
    case EnvrcForm::Nothing: break;
    }
    return false;
}

bool EnvrcReader::readNumber(const Setting& setting) {
    unsigned int value = 0;
    if (!loadUint(reader_, value)) return false;
    storeNumber(fields_, setting, static_cast<long>(value));
    return true;
}

bool EnvrcReader::readText(const Setting& setting) {
    std::string_view text;
    return detail::loadText(reader_, text) && fieldOf<YString>(fields_, setting).assign(text);
}

bool EnvrcReader::readWord(const Setting& setting) {
    std::string_view text;
    if (!detail::loadText(reader_, text)) return false;
    int value = setting.form.valueOf(YString(text));
    if (value == -1 && setting.form.kind == EnvrcForm::WordOrNumber) value = numberOf(text);
    if (value < 0 || !setting.set.takes(value)) return false;
    storeNumber(fields_, setting, value);
    return true;
}

// A row is stored at its own index, whatever its place in the table; rows that it leaves out hold nothing. The first
// row that is refused ends the table.
template <class Table, class ReadRow>
bool EnvrcReader::loadTable(Table& table, int columns, ReadRow readRow) {
    if (!loadTableHead(reader_, columns, cellSize)) return false;
    for (;;) {
        const YioRscLoad::Token token = reader_.next(cellSize);
        if (token.type == YioRscLoad::TypeClose) return true;
        if (token.type != YioRscLoad::TypeValue) return false;
        const int index = numberOf(token.text);
        typename Table::Element row;
        if (index < 0 || index >= maxRowsFromFile || !readRow(row)) return false;
        table[index] = std::move(row);
    }
}

bool EnvrcReader::loadGridTable(BexGridRow_Array& table) {
    constexpr EnvrcRange positive{.holdsLowest = false};
    return loadTable(table, 5, [&](BexGridRow& row) {
        return loadCount(row.firstCount) && loadCount(row.secondCount) &&
               loadLength(row.firstLength, positive) && loadLength(row.secondLength, positive);
    });
}

bool EnvrcReader::loadSymSheetSizeTable(BexSheetSizeRow_Array& table) {
    return loadTable(table, 6, [&](BexSheetSizeRow& row) { return loadSheetSize(row); });
}

bool EnvrcReader::loadSchSheetSizeTable(BexSheetSizeRow_Array& table) {
    return loadTable(table, 8, [&](BexSheetSizeRow& row) { return loadSheetSize(row) && loadFrame(row); });
}

bool EnvrcReader::loadSchSheetAttrTable(BexSheetAttrRow_Array& table) {
    return loadTable(table, 3, [&](BexSheetAttrRow& row) {
        return loadText(row.name, attributeSize) && loadText(row.value, attributeSize);
    });
}

bool EnvrcReader::loadSheetSize(BexSheetSizeRow& row) {
    constexpr EnvrcRange notNegative{};
    return loadText(row.name, stringSize) && loadCell(reader_, row.originX, cellSize) &&
           loadCell(reader_, row.originY, cellSize) && loadLength(row.width, notNegative) &&
           loadLength(row.height, notNegative);
}

bool EnvrcReader::loadFrame(BexSheetSizeRow& row) {
    int number = 0;
    if (!loadCell(reader_, number, cellSize) || number < 0) return false;
    row.frameNo = static_cast<unsigned short>(number);
    return loadText(row.frameName, stringSize);
}

bool EnvrcReader::loadCount(int& count) {
    return loadCell(reader_, count, cellSize) && count >= 1;
}

bool EnvrcReader::loadLength(double& length, const EnvrcRange& range) {
    return loadCell(reader_, length, cellSize) && range.holds(length);
}

bool EnvrcReader::loadText(YString& text, unsigned size) {
    std::string_view cell;
    return loadCell(reader_, cell, size) && text.assign(cell);
}

} // namespace

} // namespace bexa::detail

unsigned long BexEnvrc::load() {
    YioRscLoad reader = bexa::detail::openReader(fileName_);
    return reader.isValid() && bexa::detail::EnvrcReader(*data_, reader).readAll();
}
