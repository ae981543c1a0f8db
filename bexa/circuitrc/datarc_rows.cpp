// The rows of the tables: readers, setters, and the checks that make a row exist before it is set.

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/circuitrc/row_rules.h"
#include "bexa/foundation/unit_scale.h"
#include "bexa/foundation/ygeometry/yangle.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>

using bexa::detail::fillStyleRow;
using bexa::detail::lineStyleRow;
using bexa::detail::lowBits;
using bexa::detail::provideRow;
using bexa::detail::radiansPerDegree;

namespace {

// The first index that each table refuses.
// Kept on purpose: these bind the setters alone. A file may hold more rows, which are read and never set.
constexpr int precisionLimit = 2;
constexpr int textSizeLimit = 256;
constexpr int lineWidthLimit = 5;
constexpr int lineStyleLimit = 4;
constexpr int fillStyleLimit = 256;

template <class Out, class Value>
void give(Out* out, const Value& value) {
    if (out) *out = value;
}

template <class Table>
unsigned int countOf(const Table& table) {
    return static_cast<unsigned int>(table.size());
}

// The row at `index`, null outside the table.
template <class Table>
const typename Table::Element* rowAt(const Table& table, unsigned long index) {
    return index < countOf(table) ? &table.at(static_cast<int>(index)) : nullptr;
}

// NaN lies in no range.
bool isMeasure(double value) {
    return value >= 0.0 && value <= 100000.0;
}
bool isPositiveMeasure(double value) {
    return value > 0.0 && value <= 100000.0;
}
bool isDirection(double degrees) {
    return degrees >= 0.0 && degrees < 360.0;
}

const char* fontOrBuiltIn(const char* font) {
    return font && *font ? font : "-";
}

struct ExtraFont {
    std::string_view lang;
    std::string_view files[3];
    const char* spellings[6]; // by `form`, the first for any other
};

constexpr ExtraFont extraFonts[] = {
    {"kor",
     {"hangle.vec", "yhangul.vec", "yhankul.vec"},
     {"kor", "korean", "KOREAN", "KOR", "Korean", "Kor"}},
    {"chn", {"ychinese.vec"}, {"chn", "chinese", "CHINESE", "CHN", "Chinese", "Chn"}},
};

} // namespace

unsigned int BexDatarc::precisionCount() const {
    return countOf(fields_->precisionTable);
}

unsigned int BexDatarc::colorCount() const {
    return countOf(fields_->color);
}

unsigned int BexDatarc::textSizeCount() const {
    return countOf(fields_->textTable);
}

unsigned int BexDatarc::lineWidthCount() const {
    return countOf(fields_->lineWidth);
}

unsigned int BexDatarc::lineStyleCount() const {
    return countOf(fields_->lineStyleTable);
}

unsigned int BexDatarc::fillStyleCount() const {
    return countOf(fields_->fillStyleTable);
}

unsigned int BexDatarc::symbPathCount() const {
    return countOf(fields_->symbPathTable);
}

unsigned int BexDatarc::contPathCount() const {
    return countOf(fields_->contPathTable);
}

unsigned int BexDatarc::lcdbPathCount() const {
    return countOf(fields_->lcdbPathTable);
}

// ---- Row readers

unsigned long BexDatarc::precision(unsigned int index, char* name, unsigned int* factor,
                                   double* scale) const {
    const BexPrecisionElem* row = rowAt(fields_->precisionTable, index);
    if (!row) return 0;
    if (name) std::strcpy(name, row->name);
    give(factor, row->factor);
    give(scale, row->scale);
    return 1;
}

unsigned long BexDatarc::color(unsigned int index, short* red, short* green, short* blue,
                               YString* name) const {
    if (!color(index, name)) return 0;
    // Kept on purpose: colours are chosen by index and name, the components of the palette have no role.
    for (short* component : {red, green, blue}) give(component, short{255});
    return 1;
}

unsigned long BexDatarc::color(unsigned int index, YString* name) const {
    if (!fields_->color.isValid()) return 0;
    give(name, fields_->color.color(static_cast<int>(index)));
    return 1;
}

unsigned long BexDatarc::textSize(unsigned int index, long* size1, long* size2, long* size3, long* size4,
                                  long* size5, YString* name) const {
    const BexTextSizeElem* row = rowAt(fields_->textTable, index);
    if (!row) return 0;
    give(size1, encode(row->size1));
    give(size2, encode(row->size2));
    give(size3, encode(row->size3));
    give(size4, encode(row->size4));
    give(size5, encode(row->size5));
    give(name, row->name);
    return 1;
}

unsigned long BexDatarc::textFontFile(unsigned int index, YString* singleByteFont,
                                      YString* doubleByteFont) const {
    const BexTextSizeElem* row = rowAt(fields_->textTable, index);
    if (!row) return 0;
    give(singleByteFont, row->singleByteFont == "-" ? YString("font/eng/_sysfont.vec") : row->singleByteFont);
    give(doubleByteFont, row->doubleByteFont == "-" ? YString("font/jpn/yqfont.vec") : row->doubleByteFont);
    return 1;
}

unsigned long BexDatarc::isExtraFont(unsigned int index) const {
    return isLangFontStr(index, 0) != nullptr;
}

unsigned long BexDatarc::isLangExtraFont(unsigned int index, const char* lang) const {
    YString font;
    if (!lang || !textFontFile(index, nullptr, &font)) return 0;
    const auto extra = std::find_if(std::begin(extraFonts), std::end(extraFonts),
                                    [lang](const ExtraFont& candidate) { return candidate.lang == lang; });
    if (extra == std::end(extraFonts)) return 0;
    const YString file = YPathName(font).basename();
    return std::any_of(std::begin(extra->files), std::end(extra->files),
                       [&file](std::string_view name) { return !name.empty() && name == file.view(); });
}

const char* BexDatarc::isLangFontStr(unsigned int index, unsigned int form) const {
    for (const ExtraFont& extra : extraFonts) {
        if (isLangExtraFont(index, extra.lang.data())) {
            return extra.spellings[form < std::size(extra.spellings) ? form : 0];
        }
    }
    return nullptr;
}

unsigned long BexDatarc::lineWidth(unsigned int index, long* width) const {
    const double* row = rowAt(fields_->lineWidth, index);
    if (!row) return 0;
    give(width, encode(*row));
    return 1;
}

unsigned long BexDatarc::lineStyle(unsigned long index, long* length1, long* length2, long* length3,
                                   YString* name) const {
    const BexLineStyleElem* row = rowAt(fields_->lineStyleTable, index);
    if (!row) return 0;
    give(length1, index >= 1 ? encode(row->length1) : 0);
    give(length2, index >= 1 ? encode(row->length2) : 0);
    give(length3, index >= 2 ? encode(row->length3) : 0);
    give(name, row->name);
    return 1;
}

unsigned long BexDatarc::fillStyle(unsigned int index, unsigned long* type, long* pitch1, long* pitch2,
                                   Yangle* angle1, Yangle* angle2, YString* name) const {
    const BexFillStyleElem* row = rowAt(fields_->fillStyleTable, index);
    if (!row) return 0;
    give(type, row->type);
    if (row->type > 3) return 0;
    const bool oneSet = row->type >= 2;
    const bool twoSets = row->type == 3;
    give(pitch1, oneSet ? encode(row->pitch1) : 0);
    give(pitch2, twoSets ? encode(row->pitch2) : 0);
    give(angle1, Yangle(oneSet ? row->angle1 * radiansPerDegree : 0.0));
    give(angle2, Yangle(twoSets ? row->angle2 * radiansPerDegree : 0.0));
    give(name, row->name);
    return 1;
}

// ---- Checks

unsigned long BexDatarc::checkPrecisionTable(short index) {
    const BexPrecisionElem* first = rowAt(fields_->precisionTable, 0);
    return provideRow(fields_->precisionTable, index, precisionLimit,
                      [&] { return first ? std::optional(*first) : std::nullopt; });
}

unsigned long BexDatarc::checkTextSizeTable(short index) {
    return provideRow(fields_->textTable, index, textSizeLimit, [&]() -> std::optional<BexTextSizeElem> {
        long size[5];
        if (!textSize(0, &size[0], &size[1], &size[2], &size[3], &size[4], nullptr)) return std::nullopt;
        return BexTextSizeElem(decode(size[0]), decode(size[1]), decode(size[2]), decode(size[3]),
                               decode(size[4]), "-", "-", "-");
    });
}

unsigned long BexDatarc::checkLineWidthTable(short index) {
    return provideRow(fields_->lineWidth, index, lineWidthLimit, [&]() -> std::optional<double> {
        long width;
        if (!lineWidth(0, &width)) return std::nullopt;
        // Kept on purpose: the encoded number is stored as if it were in the unit of the file.
        return static_cast<double>(width);
    });
}

unsigned long BexDatarc::checkLineStyleTable(short index) {
    return provideRow(fields_->lineStyleTable, index, lineStyleLimit,
                      [&]() -> std::optional<BexLineStyleElem> {
                          if (lineStyleCount() == 0) return std::nullopt;
                          // Row 0 is the solid line, which has no lengths whatever it holds.
                          return BexLineStyleElem(0.0, 0.0, 0.0, "-");
                      });
}

unsigned long BexDatarc::checkFillStyleTable(short index) {
    return provideRow(
        fields_->fillStyleTable, index, fillStyleLimit, [&]() -> std::optional<BexFillStyleElem> {
            unsigned long type;
            long pitch[2];
            Yangle angle[2];
            if (!fillStyle(0, &type, &pitch[0], &pitch[1], &angle[0], &angle[1], nullptr))
                return std::nullopt;
            // Kept on purpose: the encoded pitches are stored as if they were in the unit of the file.
            return BexFillStyleElem(static_cast<unsigned short>(type), static_cast<double>(pitch[0]),
                                    static_cast<double>(pitch[1]), angle[0].degree(), angle[1].degree(), "-");
        });
}

// ---- Row setters

unsigned long BexDatarc::precision(unsigned int index, const char* name, unsigned int factor, double scale) {
    const short row = lowBits(index);
    if (!checkPrecisionTable(row)) return 0;
    if (!name || factor > 100000 || !isMeasure(scale)) return 0;
    fields_->precisionTable[row] = BexPrecisionElem(name, factor, scale);
    return 1;
}

unsigned long BexDatarc::color(unsigned int index, short, short, short, const char* name) {
    return color(index, name);
}

unsigned long BexDatarc::color(unsigned int index, const char* name) {
    return fields_->color.isValid() ? fields_->color.color(static_cast<int>(index), name) : 0;
}

unsigned long BexDatarc::textSize(unsigned int index, double size1, double size2, double size3, double size4,
                                  double size5, const char* name, const char* singleByteFont,
                                  const char* doubleByteFont) {
    const short row = lowBits(index);
    if (!checkTextSizeTable(row)) return 0;
    if (!isPositiveMeasure(size1) || !isPositiveMeasure(size2)) return 0;
    if (!isMeasure(size3) || !isMeasure(size4) || !isMeasure(size5) || !name) return 0;
    fields_->textTable[row] = BexTextSizeElem(size1, size2, size3, size4, size5, name,
                                              fontOrBuiltIn(singleByteFont), fontOrBuiltIn(doubleByteFont));
    return 1;
}

unsigned long BexDatarc::lineWidth(unsigned int index, double width) {
    const short row = lowBits(index);
    if (!checkLineWidthTable(row) || !isMeasure(width)) return 0;
    fields_->lineWidth[row] = width;
    return 1;
}

unsigned long BexDatarc::lineStyle(unsigned long index, double length1, double length2, double length3,
                                   const char* name) {
    const short row = lowBits(index);
    if (!checkLineStyleTable(row)) return 0;
    if (!isMeasure(length1) || !isMeasure(length2) || !isMeasure(length3) || !name) return 0;
    // Kept on purpose: the solid line can't be changed, its name included, and the caller isn't told.
    if (row != 0) fields_->lineStyleTable[row] = lineStyleRow(row, length1, length2, length3, name);
    return 1;
}

unsigned long BexDatarc::fillStyle(unsigned int index, unsigned long type, double pitch1, double pitch2,
                                   double angle1, double angle2, const char* name) {
    const short row = lowBits(index);
    if (!checkFillStyleTable(row)) return 0;
    if (type > 3 || !isMeasure(pitch1) || !isMeasure(pitch2)) return 0;
    if (!isDirection(angle1) || !isDirection(angle2) || !name) return 0;
    // Kept on purpose: the first style is no fill whatever type is given; its name is taken.
    const int stored = row == 0 ? 0 : static_cast<int>(type);
    fields_->fillStyleTable[row] = fillStyleRow(stored, pitch1, pitch2, angle1, angle2, name);
    return 1;
}
