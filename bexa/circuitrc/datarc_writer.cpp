// Writes a circuit resource to its file: the header, then the entries in the order of the table of keys.

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/circuitrc/datarc_keys.h"
#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/rsc_header.h"
#include "bexa/foundation/vocabulary.h"

#include <string_view>

namespace bexa::detail {

namespace {

// A value without a word is written as an empty text.
std::string_view wordOrNothing(const char* word) {
    return word ? std::string_view(word) : std::string_view();
}

std::string_view flagWord(long value) {
    return value == 0 || value == 1 ? BexEnum::flag(static_cast<int>(value)) : std::string_view();
}

void writeRows(RscText& file, std::string_view key, const BexTextSizeTable& table) {
    file.openTable(key, 9);
    for (int i = 0; i < table.size(); ++i) {
        const BexTextSizeElem& row = table.at(i);
        file.cell(i).cell(row.size1).cell(row.size2).cell(row.size3).cell(row.size4).cell(row.size5);
        file.quotedCell(row.singleByteFont.view()).quotedCell(row.doubleByteFont.view());
        file.quotedCell(row.name.view()).endRow();
    }
    file.closeTable();
}

void writeRows(RscText& file, std::string_view key, const BexLineWidthTable& table) {
    file.openTable(key, 2);
    for (int i = 0; i < table.size(); ++i) file.cell(i).cell(table.at(i)).endRow();
    file.closeTable();
}

void writeRows(RscText& file, std::string_view key, const BexLineStyleTable& table) {
    file.openTable(key, 5);
    for (int i = 0; i < table.size(); ++i) {
        const BexLineStyleElem& row = table.at(i);
        file.cell(i)
            .cell(row.length1)
            .cell(row.length2)
            .cell(row.length3)
            .quotedCell(row.name.view())
            .endRow();
    }
    file.closeTable();
}

void writeRows(RscText& file, std::string_view key, const BexFillStyleTable& table) {
    file.openTable(key, 7);
    for (int i = 0; i < table.size(); ++i) {
        const BexFillStyleElem& row = table.at(i);
        file.cell(i).cell(static_cast<int>(row.type)).cell(row.pitch1).cell(row.pitch2);
        file.cell(row.angle1).cell(row.angle2).quotedCell(row.name.view()).endRow();
    }
    file.closeTable();
}

void writeRows(RscText& file, std::string_view key, const BexPathTable& table) {
    file.openTable(key, 3);
    for (int i = 0; i < table.size(); ++i) {
        const BexPathElem& row = table.at(i);
        file.cell(i).quotedCell(row.name.view()).quotedCell(row.path.view()).endRow();
    }
    file.closeTable();
}

// The word of a setting that is written as one.
std::string_view wordOf(const DatarcFields& fields, const DatarcSetting& setting) {
    const long value = numberIn(fields, setting);
    switch (setting.form) {
    case DatarcForm::OptionalOnOff: return flagWord(value != 0);
    case DatarcForm::ErrorLevel: return value == 1 ? "Hard" : "Normal";
    case DatarcForm::PortMode: return wordOrNothing(BexEnum::BexOverWritePortMode(static_cast<int>(value)));
    // Kept on purpose: the presence alone decides, even if an assignment left the switch itself off.
    case DatarcForm::SwitchOn: return "YES";
    default: return flagWord(value);
    }
}

void writeEntry(RscText& file, const DatarcFields& fields, const DatarcSetting& setting) {
    const std::string_view key = setting.key;
    const std::string_view comment = setting.save.comment;
    switch (setting.form) {
    case DatarcForm::Char:
    case DatarcForm::OptionalChar: file.quotedCharacter(key, valueOf<char>(fields, setting), comment); break;
    case DatarcForm::Real: file.real(key, valueOf<double>(fields, setting), comment); break;
    case DatarcForm::Whole:
    case DatarcForm::Index: file.number(key, numberIn(fields, setting), comment); break;
    case DatarcForm::IndexOrNone:
        if (numberIn(fields, setting) == -1) {
            file.word(key, "-", comment);
        } else {
            file.number(key, numberIn(fields, setting), comment);
        }
        break;
    case DatarcForm::Text:
    case DatarcForm::OptionalText: file.quoted(key, valueOf<YString>(fields, setting).view(), comment); break;
    case DatarcForm::TextTable: writeRows(file, key, valueOf<BexTextSizeTable>(fields, setting)); break;
    case DatarcForm::WidthTable: writeRows(file, key, valueOf<BexLineWidthTable>(fields, setting)); break;
    case DatarcForm::LineTable: writeRows(file, key, valueOf<BexLineStyleTable>(fields, setting)); break;
    case DatarcForm::FillTable: writeRows(file, key, valueOf<BexFillStyleTable>(fields, setting)); break;
    case DatarcForm::PathTable: writeRows(file, key, valueOf<BexPathTable>(fields, setting)); break;
    case DatarcForm::PassedOver: break;
    default: file.word(key, wordOf(fields, setting), comment); break;
    }
}

} // namespace

} // namespace bexa::detail

unsigned long BexDatarc::save(const char* path) const {
    bexa::detail::RscText file;
    file.text(BexYioRsc::getHeaderString().view());
    for (const bexa::detail::DatarcSetting& setting : bexa::detail::datarcSettings()) {
        if (setting.save.applies(*fields_)) bexa::detail::writeEntry(file, *fields_, setting);
    }
    return file.writeTo(path);
}
