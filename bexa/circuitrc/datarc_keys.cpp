#include "bexa/circuitrc/datarc_keys.h"

#include "bexa/foundation/setting_index.h"
#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace bexa::detail {

namespace {

using F = DatarcFields;
using enum DatarcForm;
using enum DatarcLimit;

// The words of the column "load".
constexpr DatarcLoadRule fatal{DatarcLoadRule::OnMissing::Fatal};
constexpr DatarcLoadRule ignored{DatarcLoadRule::OnMissing::Ignored};
constexpr DatarcLoadRule clamped(DatarcLimit limit, unsigned int replacement = 0) {
    return {DatarcLoadRule::OnMissing::Fatal, limit, replacement};
}

// The words of the column "set". `below` means from 0 to the last row.
constexpr double lengthEnd = 100000.0;
constexpr DatarcSetRule noSetter{};
constexpr DatarcSetRule any{DatarcSetRule::Kind::Any};
constexpr DatarcSetRule atLeast(int lowest) {
    return {DatarcSetRule::Kind::Range, static_cast<double>(lowest)};
}
constexpr DatarcSetRule length{DatarcSetRule::Kind::Range, 0.0, lengthEnd};
constexpr DatarcSetRule positiveLength{DatarcSetRule::Kind::RangeAbove, 0.0, lengthEnd};
constexpr DatarcSetRule below(DatarcLimit limit) {
    return {DatarcSetRule::Kind::Below, 0.0, 0.0, limit};
}
constexpr DatarcSetRule noneOrBelow(DatarcLimit limit) {
    return {DatarcSetRule::Kind::NoneOrBelow, 0.0, 0.0, limit};
}

// The words of the column "save".
constexpr DatarcSaveRule always{DatarcSaveRule::When::Always};
constexpr DatarcSaveRule never{DatarcSaveRule::When::Never};
constexpr DatarcSaveRule whenSet(DatarcPresence presence) {
    return {DatarcSaveRule::When::WhenSet, presence};
}

// To add a setting: give it a field in DatarcFields and a row here, at its place in the file; a setting that
// is written only when somebody gave it also needs a presence word, named in the columns "load" and "save".
// Then add its plain reader to BexDatarc, a row to the tests of the keys, and renew the golden file.
//
// clang-format off
constexpr DatarcSetting settings[] = {
    // key                       field                         form           load                                       set                     save
    {"nlogicStartChar",          &F::nlogicStartChar,          Char,          fatal,                                     any,                    always},
    {"nlogicEndChar",            &F::nlogicEndChar,            Char,          fatal,                                     any,                    always},
    {"busStartChar",             &F::busStartChar,             Char,          fatal,                                     any,                    always},
    {"busEndChar",               &F::busEndChar,               Char,          fatal,                                     any,                    always},
    {"bitEndChar",               &F::bitEndChar,               Char,          fatal,                                     any,                    always},
    {"rangeEndChar",             &F::rangeEndChar,             Char,          fatal,                                     any,                    always},
    {"rangeStepChar",            &F::rangeStepChar,            Char,          fatal,                                     any,                    always},
    {"nodeSize",                 &F::nodeSize,                 Real,          fatal,                                     length,                 always},
    {"cornerRadius",             &F::cornerRadius,             Real,          fatal,                                     positiveLength,         always},
    {"textTable",                &F::textTable,                TextTable,     fatal,                                     noSetter,               always},
    {"lineWidth",                &F::lineWidth,                WidthTable,    fatal,                                     noSetter,               always},
    {"lineStyleTable",           &F::lineStyleTable,           LineTable,     fatal,                                     noSetter,               always},
    {"fillStyleTable",           &F::fillStyleTable,           FillTable,     fatal,                                     noSetter,               always},
    {"defaultCompColor",         &F::defaultCompColor,         IndexOrNone,   clamped(Colours),                          noneOrBelow(Colours),   always},
    {"defaultFrameColor",        &F::defaultFrameColor,        Index,         clamped(Colours),                          below(Colours),         always},
    {"defaultNetColor",          &F::defaultNetColor,          Index,         clamped(Colours),                          below(Colours),         always},
    {"defaultBusColor",          &F::defaultBusColor,          Index,         clamped(Colours),                          below(Colours),         always},
    {"defaultLineColor",         &F::defaultLineColor,         Index,         clamped(Colours),                          below(Colours),         always},
    {"defaultCircleColor",       &F::defaultCircleColor,       Index,         clamped(Colours),                          below(Colours),         always},
    {"defaultTextColor",         &F::defaultTextColor,         Index,         clamped(Colours),                          below(Colours),         always},
    {"defaultPropertyColor",     &F::defaultPropertyColor,     Index,         clamped(Colours),                          below(Colours),         always},
    // Kept on purpose: the one index that falls back to its built-in value, even past the end of the palette.
    {"defaultSymbFrameColor",    &F::defaultSymbFrameColor,    Index,         clamped(Colours, 13),                      below(Colours),         always},
    {"defaultLineWidth",         &F::defaultLineWidth,         Index,         clamped(LineWidths),                       below(LineWidths),      always},
    {"defaultFrameLineWidth",    &F::defaultFrameLineWidth,    Index,         clamped(LineWidths),                       below(LineWidths),      always},
    {"defaultNetLineWidth",      &F::defaultNetLineWidth,      Index,         clamped(LineWidths),                       below(LineWidths),      always},
    {"defaultBusLineWidth",      &F::defaultBusLineWidth,      Index,         clamped(LineWidths),                       below(LineWidths),      always},
    {"defaultCircleLineWidth",   &F::defaultCircleLineWidth,   Index,         clamped(LineWidths),                       below(LineWidths),      always},
    {"defaultLineStyle",         &F::defaultLineStyle,         Index,         clamped(LineStyles),                       below(LineStyles),      always},
    {"defaultFrameLineStyle",    &F::defaultFrameLineStyle,    Index,         clamped(LineStyles),                       below(LineStyles),      always},
    {"defaultNetLineStyle",      &F::defaultNetLineStyle,      Index,         clamped(LineStyles),                       below(LineStyles),      always},
    {"defaultBusLineStyle",      &F::defaultBusLineStyle,      Index,         clamped(LineStyles),                       below(LineStyles),      always},
    {"defaultCircleLineStyle",   &F::defaultCircleLineStyle,   Index,         clamped(LineStyles),                       below(LineStyles),      always},
    {"defaultFillStyle",         &F::defaultFillStyle,         Index,         clamped(FillStyles),                       below(FillStyles),      always},
    {"defaultTextFont",          &F::defaultTextFont,          Index,         clamped(TextStyles),                       below(TextStyles),      always},
    {"defaultPropertyFont",      &F::defaultPropertyFont,      Index,         clamped(TextStyles),                       below(TextStyles),      always},
    {"dataTrap",                 &F::dataTrap,                 Real,          fatal,                                     positiveLength,         always},
    {"symbPathTable",            &F::symbPathTable,            PathTable,     fatal,                                     noSetter,               always},
    {"contPathTable",            &F::contPathTable,            PathTable,     fatal,                                     noSetter,               always},
    {"lcdbPathTable",            &F::lcdbPathTable,            PathTable,     fatal,                                     noSetter,               always},
    {"propDispNum",              &F::propDispNum,              Whole,         fatal,                                     atLeast(-1),            always},
    {"contentsViewer",           &F::contentsViewer,           Whole,         fatal,                                     atLeast(-1),            always.with("\t\t\t# (1:VISIBLE 0:UNVISIBLE)")},
    {"contentsFrameIsVisible",   &F::contentsFrameIsVisible,   Whole,         fatal,                                     atLeast(-1),            always.with("\t\t# (1:VISIBLE 0:UNVISIBLE)")},
    {"contentsUnvisibleCmpType", &F::contentsUnvisibleCmpType, Text,          fatal,                                     any,                    always.with("\t\t# (ex. \"gate|parts|vcc....\")")},
    {"vmarkFlag",                &F::vmarkFlag,                OnOff,         ignored,                                   noSetter,               always},
    {"vmarkStr",                 &F::vmarkStr,                 Text,          ignored,                                   noSetter,               always},
    {"vmarkPname",               &F::vmarkPname,               Text,          ignored,                                   noSetter,               always},
    {"noMountAliasName",         &F::noMountAliasName,         Text,          ignored,                                   any,                    always},
    {"noMountAliasValue",        &F::noMountAliasValue,        Text,          ignored,                                   any,                    always},
    {"noMountDispStyle",         &F::noMountDispStyle,         Index,         clamped(DisplayStyles),                    below(DisplayStyles),   always.with("\t\t# (0:Normal 1:NoDisp 2:Grid 3:Dash)")},
    // Kept on purpose: the two characters alone don't make the three written.
    {"busNSimpleDispFlag",       &F::busNSimpleDispFlag,       Whole,         fatal.marking(&F::busNSimpleDispSet),      noSetter,               whenSet(&F::busNSimpleDispSet).with("\t\t\t# (0:NONE 1:BOTH 2:BUS 3:NET)")},
    {"busNSimpleDispSepChar",    &F::busNSimpleDispSepChar,    OptionalChar,  ignored,                                   noSetter,               whenSet(&F::busNSimpleDispSet)},
    {"busNSimpleDispCrownChar",  &F::busNSimpleDispCrownChar,  OptionalChar,  ignored,                                   noSetter,               whenSet(&F::busNSimpleDispSet)},
    {"useBusAliasFlag",          &F::useBusAliasFlag,          OnOff,         ignored.marking(&F::useBusAliasSet),       noSetter,               whenSet(&F::useBusAliasSet)},
    {"createNetLabelFromDefRef", &F::createNetLabelFromDefRef, OptionalOnOff, ignored.marking(&F::createNetLabelSet),    noSetter,               whenSet(&F::createNetLabelSet)},
    {"sheetNetErrorLevel",       &F::sheetNetErrorLevel,       ErrorLevel,    ignored.marking(&F::sheetNetErrorLevelSet), noSetter,              whenSet(&F::sheetNetErrorLevelSet)},
    {"overwritePortMode",        &F::overwritePortMode,        PortMode,      ignored.marking(&F::overwritePortModeSet), noSetter,               whenSet(&F::overwritePortModeSet)},
    {"simpleArray",              &F::simpleArray,              SwitchOn,      ignored.marking(&F::simpleArraySet),       noSetter,               whenSet(&F::simpleArraySet)},
    {"dateFormat",               &F::dateFormat,               OptionalText,  ignored.marking(&F::dateFormatSet),        noSetter,               whenSet(&F::dateFormatSet)},
    {"timeFormat",               &F::timeFormat,               OptionalText,  ignored.marking(&F::timeFormatSet),        noSetter,               whenSet(&F::timeFormatSet)},
    {"nplNoMountCompAliasName",  &F::nplNoMountCompAliasName,  Text,          ignored,                                   noSetter,               always},
    {"nplNoMountCompAliasValue", &F::nplNoMountCompAliasValue, Text,          ignored,                                   noSetter,               always},
    {"nplNoMountCompDispStyle",  &F::nplNoMountCompDispStyle,  Index,         clamped(DisplayStyles),                    noSetter,               always.with("\t\t# (0:Normal 1:NoDisp 2:Grid 3:Dash)")},

    // Kept on purpose: read and set, never written. The next save drops them.
    {"defaultSymbSheetColor",    &F::defaultSymbSheetColor,    Index,         clamped(Colours),                          below(Colours),         never},
    {"defaultSchmSheetColor",    &F::defaultSchmSheetColor,    Index,         clamped(Colours),                          below(Colours),         never},
    {"defaultCircleFillStyle",   &F::defaultCircleFillStyle,   Index,         clamped(FillStyles),                       below(FillStyles),      never},

    // Kept on purpose: older files hold them; they have no effect on reading and are never written.
    {"precisionTable",           std::monostate(),             PassedOver,    ignored,                                   noSetter,               never},
    {"precisionTblNo",           &F::precisionNumber,          PassedOver,    ignored,                                   below(Units),           never},
    {"colorTable",               std::monostate(),             PassedOver,    ignored,                                   noSetter,               never},
};
// clang-format on

constexpr SettingIndex byKey(settings);
static_assert(byKey.keysAreUnique());

template <class... Fields>
constexpr bool holdsOneOf(const DatarcField& field) {
    return (std::holds_alternative<Fields F::*>(field) || ...);
}

constexpr bool fieldFitsForm(const DatarcSetting& row) {
    switch (row.form) {
    case Char:
    case OptionalChar: return holdsOneOf<char>(row.field);
    case Real: return holdsOneOf<double>(row.field);
    case Whole:
    case IndexOrNone: return holdsOneOf<int>(row.field);
    case Text:
    case OptionalText: return holdsOneOf<YString>(row.field);
    case TextTable: return holdsOneOf<BexTextSizeTable>(row.field);
    case WidthTable: return holdsOneOf<BexLineWidthTable>(row.field);
    case LineTable: return holdsOneOf<BexLineStyleTable>(row.field);
    case FillTable: return holdsOneOf<BexFillStyleTable>(row.field);
    case PathTable: return holdsOneOf<BexPathTable>(row.field);
    case PassedOver: return row.save.when == DatarcSaveRule::When::Never;
    default: return holdsOneOf<unsigned int, unsigned long>(row.field);
    }
}
static_assert(std::all_of(std::begin(settings), std::end(settings), fieldFitsForm));

} // namespace

unsigned long upperBound(DatarcLimit limit, const DatarcFields& fields) {
    const auto rows = [](const auto& table) { return static_cast<unsigned long>(table.size()); };
    switch (limit) {
    case Units: return rows(fields.precisionTable);
    case Colours: return rows(fields.color);
    case LineWidths: return rows(fields.lineWidth);
    case LineStyles: return rows(fields.lineStyleTable);
    case FillStyles: return rows(fields.fillStyleTable);
    case TextStyles: return rows(fields.textTable);
    case DisplayStyles: return 4;
    case None: break;
    }
    return std::numeric_limits<unsigned long>::max();
}

bool DatarcSetRule::takes(long value, const DatarcFields& fields) const {
    // Kept on purpose: "no colour" and colour 0 are taken without a look at the palette.
    if (kind == Kind::NoneOrBelow && (value == -1 || value == 0)) return true;
    if (kind == Kind::Below || kind == Kind::NoneOrBelow) {
        return value >= 0 && static_cast<unsigned long>(value) < upperBound(limit, fields);
    }
    return kind == Kind::Range && static_cast<double>(value) >= lowest;
}

// NaN lies in no range.
bool DatarcSetRule::takes(double value) const {
    if (kind == Kind::RangeAbove && value == lowest) return false;
    return value >= lowest && value < end;
}

bool DatarcSaveRule::applies(const DatarcFields& fields) const {
    if (when == When::WhenSet) return fields.*presence != 0;
    return when == When::Always;
}

bool storeNumber(DatarcFields& fields, const DatarcSetting& setting, long value) {
    if (int* whole = fieldOf<int>(fields, setting)) {
        *whole = static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
    } else if (unsigned int* index = fieldOf<unsigned int>(fields, setting)) {
        *index = static_cast<unsigned int>(value);
    } else if (unsigned long* wide = fieldOf<unsigned long>(fields, setting)) {
        *wide = static_cast<unsigned long>(value);
    } else {
        return false;
    }
    return true;
}

long numberIn(const DatarcFields& fields, const DatarcSetting& setting) {
    if (std::holds_alternative<int F::*>(setting.field)) return valueOf<int>(fields, setting);
    if (std::holds_alternative<unsigned int F::*>(setting.field))
        return valueOf<unsigned int>(fields, setting);
    return static_cast<long>(valueOf<unsigned long>(fields, setting));
}

std::span<const DatarcSetting> datarcSettings() {
    return settings;
}

const DatarcSetting* findDatarcSetting(std::string_view key) {
    const DatarcSetting* found = byKey.find(key);
    return found && found->key == key ? found : nullptr;
}

const DatarcSetting* findDatarcSettingIgnoringCase(const char* key) {
    return byKey.find(viewOf(key));
}

} // namespace bexa::detail
