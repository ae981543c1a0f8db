// The rows of the tables: readers, setters, and the checks that make a row exist before it is set.

#include "bexa/envrc/envrc.h"
#include "bexa/envrc/envrc_fields.h"
#include "bexa/foundation/text_cursor.h"

#include <cstring>
#include <utility>

namespace {

// The first index that each setter refuses.
constexpr short gridLimit = 16;
constexpr short sheetSizeLimit = 32;

constexpr double largest = 100000.0;

// NaN lies in no range.
bool isCount(int value) {
    return value >= 0 && value <= largest;
}
bool isLength(double value) {
    return value >= 0.0 && value <= largest;
}
bool isOrigin(double value) {
    return value <= largest;
}

void give(char* out, const YString& text) {
    if (out) std::strcpy(out, text);
}

// The row at `index`, null outside the table.
template <class Table>
const typename Table::Element* rowAt(const Table& table, short index) {
    return index >= 0 && index < table.size() ? &table.at(index) : nullptr;
}

// Row 0 as a caller would read it and set it again: rounded to what the readers hand out.
void round(const BexEnvrc& envrc, BexGridRow& row) {
    for (double* length : {&row.firstLength, &row.secondLength})
        *length = envrc.decode(envrc.encode(*length));
}
void round(const BexEnvrc& envrc, BexSheetSizeRow& row) {
    for (double* length : {&row.originX, &row.originY, &row.width, &row.height})
        *length = envrc.decode(envrc.encode(*length));
}

// Makes the row at `index` exist; new rows copy row 0.
template <class Table>
bool provideRow(const BexEnvrc& envrc, Table& table, short index, short limit) {
    if (index < 0 || index >= limit) return false;
    if (index < table.size()) return true;
    if (table.size() == 0) return false;
    typename Table::Element row = table.at(0);
    round(envrc, row);
    while (table.size() <= index) table.append(row);
    return true;
}

} // namespace

int BexEnvrc::gridTableCount() const {
    return data_->gridTable.size();
}

int BexEnvrc::symSheetSizeTableCount() const {
    return data_->symSheetSizeTable.size();
}

int BexEnvrc::schSheetSizeTableCount() const {
    return data_->schSheetSizeTable.size();
}

int BexEnvrc::schSheetAttrTableCount() const {
    return data_->schSheetAttrTable.size();
}

unsigned long BexEnvrc::gridTable(short index, int& firstCount, int& secondCount, long& firstLength,
                                  long& secondLength) const {
    const BexGridRow* row = rowAt(data_->gridTable, index);
    if (!row) return 0;
    firstCount = row->firstCount;
    secondCount = row->secondCount;
    firstLength = encode(row->firstLength);
    secondLength = encode(row->secondLength);
    return 1;
}

unsigned long BexEnvrc::symSheetSize(short index, char* name, long& originX, long& originY, long& width,
                                     long& height) const {
    const BexSheetSizeRow* row = rowAt(data_->symSheetSizeTable, index);
    if (!row) return 0;
    give(name, row->name);
    originX = encode(row->originX);
    originY = encode(row->originY);
    width = encode(row->width);
    height = encode(row->height);
    return 1;
}

unsigned long BexEnvrc::schSheetSize(short index, char* name, long& originX, long& originY, long& width,
                                     long& height, int& frameNo, char* frameName) const {
    const BexSheetSizeRow* row = rowAt(data_->schSheetSizeTable, index);
    if (!row) return 0;
    give(name, row->name);
    originX = encode(row->originX);
    originY = encode(row->originY);
    width = encode(row->width);
    height = encode(row->height);
    frameNo = row->frameNo;
    give(frameName, row->frameName);
    return 1;
}

unsigned long BexEnvrc::schSheetAttr(short index, char* name, char* value) const {
    const BexSheetAttrRow* row = rowAt(data_->schSheetAttrTable, index);
    if (!row) return 0;
    give(name, row->name);
    give(value, row->value);
    return 1;
}

unsigned long BexEnvrc::checkGridTable(short index) {
    return provideRow(*this, data_->gridTable, index, gridLimit);
}

unsigned long BexEnvrc::checkSymSSTable(short index) {
    return provideRow(*this, data_->symSheetSizeTable, index, sheetSizeLimit);
}

unsigned long BexEnvrc::checkSchSSTable(short index) {
    return provideRow(*this, data_->schSheetSizeTable, index, sheetSizeLimit);
}

unsigned long BexEnvrc::setGridTable(short index, int firstCount, int secondCount, double firstLength,
                                     double secondLength) {
    if (!isCount(firstCount) || !isCount(secondCount)) return 0;
    if (!isLength(firstLength) || !isLength(secondLength)) return 0;
    if (!checkGridTable(index)) return 0;
    data_->gridTable.at(index) = {firstCount, secondCount, firstLength, secondLength};
    return 1;
}

unsigned long BexEnvrc::setSymSheetSize(short index, const char* name, double originX, double originY,
                                        double width, double height) {
    if (!name || !isOrigin(originX) || !isOrigin(originY)) return 0;
    if (!isLength(width) || !isLength(height)) return 0;
    if (!checkSymSSTable(index)) return 0;
    data_->symSheetSizeTable.at(index) = {name, originX, originY, width, height, 0, ""};
    return 1;
}

unsigned long BexEnvrc::setSchSheetSize(short index, const char* name, double originX, double originY,
                                        double width, double height, int frameNo, const char* frameName) {
    if (!name || !frameName || !isOrigin(originX) || !isOrigin(originY)) return 0;
    if (!isLength(width) || !isLength(height)) return 0;
    if (!checkSchSSTable(index)) return 0;
    // Kept on purpose: the low 16 bits of the frame number are stored, and the caller is told success.
    data_->schSheetSizeTable.at(index) = {
        name, originX, originY, width, height, static_cast<unsigned short>(frameNo), frameName};
    return 1;
}

// Kept on purpose: the name finds the row, the index has no effect. Every row of the name is replaced, or dropped.
unsigned long BexEnvrc::setSchSheetAttr(short, const char* name, const char* value) {
    const BexSheetAttrRow given{name, value};
    const bool keeps = given.value.length() != 0;
    bool found = false;
    BexSheetAttrRow_Array table;
    for (int i = 0; i < data_->schSheetAttrTable.size(); ++i) {
        const BexSheetAttrRow& row = data_->schSheetAttrTable.at(i);
        const bool named = row.name == given.name;
        found = found || named;
        if (!named) table.append(row);
        if (named && keeps) table.append(given);
    }
    if (!found && keeps) table.append(given);
    data_->schSheetAttrTable = std::move(table);
    return 1;
}
