// Writes an environment resource to its file: the header, then the entries in the order of the table of keys.

#include "bexa/envrc/envrc.h"
#include "bexa/envrc/envrc_fields.h"
#include "bexa/envrc/envrc_keys.h"
#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/rsc_header.h"

#include <string_view>

namespace bexa::detail {

namespace {

void writeRows(RscText& file, std::string_view key, const BexGridRow_Array& table) {
    file.openTable(key, 5);
    for (int i = 0; i < table.size(); ++i) {
        const BexGridRow& row = table.at(i);
        file.cell(i).cell(row.firstCount).cell(row.secondCount);
        file.cell(row.firstLength).cell(row.secondLength).endRow();
    }
    file.closeTable();
}

void writeSize(RscText& file, int index, const BexSheetSizeRow& row) {
    file.cell(index).quotedCell(row.name.view());
    file.cell(row.originX).cell(row.originY).cell(row.width).cell(row.height);
}

void writeSymbolSizes(RscText& file, std::string_view key, const BexSheetSizeRow_Array& table) {
    file.openTable(key, 6);
    for (int i = 0; i < table.size(); ++i) {
        writeSize(file, i, table.at(i));
        file.endRow();
    }
    file.closeTable();
}

void writeSchematicSizes(RscText& file, std::string_view key, const BexSheetSizeRow_Array& table) {
    file.openTable(key, 8);
    for (int i = 0; i < table.size(); ++i) {
        const BexSheetSizeRow& row = table.at(i);
        writeSize(file, i, row);
        file.cell(static_cast<int>(row.frameNo)).quotedCell(row.frameName.view()).endRow();
    }
    file.closeTable();
}

void writeRows(RscText& file, std::string_view key, const BexSheetAttrRow_Array& table) {
    file.openTable(key, 3);
    for (int i = 0; i < table.size(); ++i) {
        const BexSheetAttrRow& row = table.at(i);
        file.cell(i).quotedCell(row.name.view()).quotedCell(row.value.view()).endRow();
    }
    file.closeTable();
}

void writeEntry(RscText& file, const BexEnvrcData& fields, const EnvrcSetting& setting) {
    const std::string_view key = setting.key;
    switch (setting.form.kind) {
    case EnvrcForm::Number: file.number(key, numberIn(fields, setting)); break;
    case EnvrcForm::Real: file.real(key, valueOf<double>(fields, setting)); break;
    case EnvrcForm::Character: file.character(key, valueOf<char>(fields, setting)); break;
    case EnvrcForm::Text: file.quoted(key, valueOf<YString>(fields, setting).view()); break;
    case EnvrcForm::Word:
    case EnvrcForm::WordOrNumber:
        // A value without a word leaves the entry empty.
        file.word(key, setting.form.wordOf(static_cast<int>(numberIn(fields, setting))).view());
        break;
    case EnvrcForm::GridTable: writeRows(file, key, valueOf<BexGridRow_Array>(fields, setting)); break;
    case EnvrcForm::SymbolSizes:
        writeSymbolSizes(file, key, valueOf<BexSheetSizeRow_Array>(fields, setting));
        break;
    case EnvrcForm::SchematicSizes:
        writeSchematicSizes(file, key, valueOf<BexSheetSizeRow_Array>(fields, setting));
        break;
    case EnvrcForm::Attributes: writeRows(file, key, valueOf<BexSheetAttrRow_Array>(fields, setting)); break;
    case EnvrcForm::Nothing: break;
    }
}

} // namespace

} // namespace bexa::detail

unsigned long BexEnvrc::save(const char* path) const {
    bexa::detail::RscText file;
    file.text(BexYioRsc::getHeaderString().view());
    for (const bexa::detail::EnvrcSetting& setting : bexa::detail::envrcSettings()) {
        if (setting.save.applies(*data_)) bexa::detail::writeEntry(file, *data_, setting);
    }
    return file.writeTo(path);
}
