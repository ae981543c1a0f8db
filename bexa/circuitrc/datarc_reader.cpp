// Reads a circuit resource from its file.
//
// Keys come in any order, and one that the table of keys doesn't hold is passed over with its value. An index
// is tested against its table as far as that has been read.

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/circuitrc/datarc_keys.h"
#include "bexa/circuitrc/row_rules.h"
#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ycore/text_compare.h"
#include "bexa/foundation/yrsc/token_reader.h"

#include <string_view>
#include <utility>

namespace bexa::detail {

namespace {

class DatarcReader {
public:
    DatarcReader(DatarcFields& fields, YioRscLoad& reader) : fields_(fields), reader_(reader) {}

    // False at the first entry that a load doesn't survive; what was read until then stays.
    bool readAll();

private:
    using Setting = DatarcSetting;

    bool readValue(const Setting& setting);
    bool readChar(const Setting& setting);
    bool readOptionalChar(const Setting& setting);
    bool readReal(const Setting& setting);
    bool readWhole(const Setting& setting);
    bool readIndex(const Setting& setting);
    bool readIndexOrNone(const Setting& setting);
    bool readText(const Setting& setting);
    bool readWord(const Setting& setting);
    bool takeWord(const Setting& setting, const char* word);

    template <class TakeRow>
    bool loadTable(int columns, unsigned size, int rowLimit, TakeRow takeRow);
    bool loadTextSizeTable(BexTextSizeTable& table);
    bool loadLineWidthTable(BexLineWidthTable& table);
    bool loadLineStyleTable(BexLineStyleTable& table);
    bool loadFillStyleTable(BexFillStyleTable& table);
    bool loadPathTable(BexPathTable& table);
    bool loadMeasure(double& value);
    bool loadText(YString& text, unsigned size);

    void storeIndex(const Setting& setting, unsigned int value);
    void mark(const Setting& setting) {
        if (setting.load.presence) fields_.*setting.load.presence = 1;
    }

    DatarcFields& fields_;
    YioRscLoad& reader_;
};

// The room for cells that are names, fonts and paths, and for the other tokens of a path table.
constexpr unsigned nameSize = 256;
constexpr unsigned fontSize = 512;
constexpr unsigned pathSize = 1024;
constexpr unsigned pathTableSize = 20;

bool DatarcReader::readAll() {
    // A file without rangeStepChar has one character for both.
    fields_.rangeStepChar = '\0';
    for (;;) {
        const YioRscLoad::Token token = reader_.next(keySize);
        if (token.type == YioRscLoad::TypeInvalid) return false;
        if (token.type == YioRscLoad::TypeEnd) break;
        // What an entry leaves over, and the values of unknown keys.
        if (token.type != YioRscLoad::TypeKeyword) continue;
        const Setting* setting = findDatarcSetting(token.text);
        if (!setting || readValue(*setting)) continue;
        if (setting->load.onMissing == DatarcLoadRule::OnMissing::Fatal) return false;
    }
    if (fields_.rangeStepChar == '\0') fields_.rangeStepChar = fields_.rangeEndChar;
    return true;
}

// False when the entry is no good; the setting is then as it was.
bool DatarcReader::readValue(const Setting& setting) {
    switch (setting.form) {
    case DatarcForm::Char: return readChar(setting);
    case DatarcForm::OptionalChar: return readOptionalChar(setting);
    case DatarcForm::Real: return readReal(setting);
    case DatarcForm::Whole: return readWhole(setting);
    case DatarcForm::Index: return readIndex(setting);
    case DatarcForm::IndexOrNone: return readIndexOrNone(setting);
    case DatarcForm::Text:
    case DatarcForm::OptionalText: return readText(setting);
    case DatarcForm::TextTable: return loadTextSizeTable(*fieldOf<BexTextSizeTable>(fields_, setting));
    case DatarcForm::WidthTable: return loadLineWidthTable(*fieldOf<BexLineWidthTable>(fields_, setting));
    case DatarcForm::LineTable: return loadLineStyleTable(*fieldOf<BexLineStyleTable>(fields_, setting));
    case DatarcForm::FillTable: return loadFillStyleTable(*fieldOf<BexFillStyleTable>(fields_, setting));
    case DatarcForm::PathTable: return loadPathTable(*fieldOf<BexPathTable>(fields_, setting));
    case DatarcForm::PassedOver: return true;
    default: return readWord(setting);
    }
}

bool DatarcReader::readChar(const Setting& setting) {
    return loadChar(reader_, *fieldOf<char>(fields_, setting));
}

bool DatarcReader::readOptionalChar(const Setting& setting) {
    std::string_view text;
    if (!detail::loadText(reader_, text)) return false;
    if (!text.empty()) *fieldOf<char>(fields_, setting) = text.front();
    return true;
}

bool DatarcReader::readReal(const Setting& setting) {
    return loadFloat(reader_, *fieldOf<double>(fields_, setting));
}

bool DatarcReader::readWhole(const Setting& setting) {
    if (!loadInt(reader_, *fieldOf<int>(fields_, setting))) return false;
    mark(setting);
    return true;
}

bool DatarcReader::readIndex(const Setting& setting) {
    unsigned int value;
    if (!loadUint(reader_, value)) return false;
    storeIndex(setting, value);
    return true;
}

bool DatarcReader::readIndexOrNone(const Setting& setting) {
    constexpr std::size_t longest = 19;
    std::string_view text;
    if (!detail::loadText(reader_, text) || text.size() > longest) return false;
    if (text == "-") return storeNumber(fields_, setting, -1);
    const int value = numberOf(text);
    if (value < 0) return false;
    storeIndex(setting, static_cast<unsigned int>(value));
    return true;
}

void DatarcReader::storeIndex(const Setting& setting, unsigned int value) {
    const bool fits = value < upperBound(setting.load.limit, fields_);
    storeNumber(fields_, setting, static_cast<long>(fits ? value : setting.load.replacement));
}

bool DatarcReader::readText(const Setting& setting) {
    std::string_view text;
    if (!detail::loadText(reader_, text)) return false;
    if (text.empty() && setting.form == DatarcForm::OptionalText) return true;
    fieldOf<YString>(fields_, setting)->assign(text);
    mark(setting);
    return true;
}

bool DatarcReader::readWord(const Setting& setting) {
    std::string_view text;
    if (!detail::loadText(reader_, text)) return false;
    if (text.empty() && setting.form != DatarcForm::OnOff) return true;
    if (takeWord(setting, YString(text))) mark(setting);
    return true;
}

// True when the word counts as given, so that the setting will be written.
bool DatarcReader::takeWord(const Setting& setting, const char* word) {
    switch (setting.form) {
    case DatarcForm::ErrorLevel: return storeNumber(fields_, setting, Ystricmp(word, "Hard") == 0);
    case DatarcForm::PortMode: {
        const int mode = BexEnum::BexOverWritePortMode(word);
        storeNumber(fields_, setting, mode < 0 ? 0 : mode);
        return mode >= 0;
    }
    // Kept on purpose: a file can't switch off what the environment has switched on.
    case DatarcForm::SwitchOn: return Ystricmp(word, "NO") != 0 && storeNumber(fields_, setting, 1);
    default: return storeNumber(fields_, setting, BexEnum::flag(word) == 1);
    }
}

// Rows overlay the table at their index; `takeRow` reads the cells behind the index.
template <class TakeRow>
bool DatarcReader::loadTable(int columns, unsigned size, int rowLimit, TakeRow takeRow) {
    if (!loadTableHead(reader_, columns, size)) return false;
    for (;;) {
        const YioRscLoad::Token token = reader_.next(size);
        if (token.type == YioRscLoad::TypeClose) return true;
        if (token.type != YioRscLoad::TypeValue) return false;
        const int index = numberOf(token.text);
        if (index < 0 || index >= rowLimit || !takeRow(index)) return false;
    }
}

bool DatarcReader::loadMeasure(double& value) {
    return loadCell(reader_, value, numberSize) && value >= 0.0;
}

bool DatarcReader::loadText(YString& text, unsigned size) {
    std::string_view cell;
    return loadCell(reader_, cell, size) && text.assign(cell);
}

bool DatarcReader::loadTextSizeTable(BexTextSizeTable& table) {
    return loadTable(9, numberSize, maxRowsFromFile, [&](int index) {
        BexTextSizeElem row;
        for (double* size : {&row.size1, &row.size2, &row.size3, &row.size4, &row.size5}) {
            if (!loadMeasure(*size)) return false;
        }
        if (!loadText(row.singleByteFont, fontSize) || !loadText(row.doubleByteFont, fontSize)) return false;
        if (!loadText(row.name, nameSize)) return false;
        table[index] = std::move(row);
        return true;
    });
}

bool DatarcReader::loadLineWidthTable(BexLineWidthTable& table) {
    return loadTable(2, numberSize, maxRowsFromFile, [&](int index) {
        double width;
        if (!loadMeasure(width)) return false;
        table[index] = width;
        return true;
    });
}

bool DatarcReader::loadLineStyleTable(BexLineStyleTable& table) {
    constexpr int lineStyles = 4;
    return loadTable(5, numberSize, lineStyles, [&](int index) {
        double length[3];
        YString name;
        for (double& value : length) {
            if (!loadMeasure(value)) return false;
        }
        if (!loadText(name, nameSize)) return false;
        table[index] = lineStyleRow(index, length[0], length[1], length[2], std::move(name));
        return true;
    });
}

bool DatarcReader::loadFillStyleTable(BexFillStyleTable& table) {
    return loadTable(7, numberSize, maxRowsFromFile, [&](int index) {
        int type;
        double pitch[2];
        double angle[2];
        YString name;
        if (!loadCell(reader_, type, numberSize) || type < 0 || type > 3) return false;
        if (!loadMeasure(pitch[0]) || !loadMeasure(pitch[1])) return false;
        if (!loadCell(reader_, angle[0], numberSize) || !loadCell(reader_, angle[1], numberSize))
            return false;
        if (!loadText(name, nameSize)) return false;
        table[index] = fillStyleRow(type, pitch[0], pitch[1], angle[0], angle[1], std::move(name));
        return true;
    });
}

bool DatarcReader::loadPathTable(BexPathTable& table) {
    return loadTable(3, pathTableSize, maxRowsFromFile, [&](int index) {
        YString name;
        YString path;
        if (!loadText(name, nameSize) || !loadText(path, pathSize) || path == "") return false;
        table[index] = BexPathElem(std::move(name), std::move(path));
        return true;
    });
}

} // namespace

} // namespace bexa::detail

unsigned long BexDatarc::load() {
    YioRscLoad reader = bexa::detail::openReader(fields_->fileName);
    return reader.isValid() && bexa::detail::DatarcReader(*fields_, reader).readAll();
}
