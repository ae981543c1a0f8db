#include "bexa/envrc/envrc_keys.h"

#include "bexa/foundation/component_type.h"
#include "bexa/foundation/setting_index.h"

#include <algorithm>
#include <climits>
#include <iterator>

namespace bexa::detail {

namespace {

using F = BexEnvrcData;

// The words of the column "form". The two functions of a vocabulary have one name in BexEnum.
constexpr EnvrcForm None{};
constexpr EnvrcForm Number{EnvrcForm::Number};
constexpr EnvrcForm Real{EnvrcForm::Real};
constexpr EnvrcForm Character{EnvrcForm::Character};
constexpr EnvrcForm Text{EnvrcForm::Text};
constexpr EnvrcForm GridTable{EnvrcForm::GridTable};
constexpr EnvrcForm SymbolSizes{EnvrcForm::SymbolSizes};
constexpr EnvrcForm SchematicSizes{EnvrcForm::SchematicSizes};
constexpr EnvrcForm Attributes{EnvrcForm::Attributes};

template <int (*valueOf)(const char*), const char* (*wordOf)(int)>
constexpr EnvrcForm word(EnvrcForm::Kind kind = EnvrcForm::Word) {
    return {kind, valueOf, [](int value) { return YString(wordOf(value)); }};
}

// BexEnum::compType has no value for an unknown word, so the words are checked first.
int componentBits(const char* words) {
    return BexCompType::isValid(words) ? static_cast<int>(BexEnum::compType(words)) : -1;
}
YString componentWords(int bits) {
    return BexEnum::compType(bits);
}

constexpr EnvrcForm Flag = word<BexEnum::flag, BexEnum::flag>();
constexpr EnvrcForm ObjectType = word<BexEnum::objType, BexEnum::objType>();
constexpr EnvrcForm PickType = word<BexEnum::pickType, BexEnum::pickType>();
constexpr EnvrcForm NetInput = word<BexEnum::netInput, BexEnum::netInput>();
constexpr EnvrcForm LineInput = word<BexEnum::lineInput, BexEnum::lineInput>();
constexpr EnvrcForm CircleInput = word<BexEnum::circleInput, BexEnum::circleInput>();
constexpr EnvrcForm CBufWith = word<BexEnum::cBufWithMode, BexEnum::cBufWithMode>();
constexpr EnvrcForm RipperStyle = word<BexEnum::ripperStyle, BexEnum::ripperStyle>();
constexpr EnvrcForm RipperDir = word<BexEnum::ripperDir, BexEnum::ripperDir>();
constexpr EnvrcForm Justify = word<BexEnum::textJustify, BexEnum::textJustify>();
constexpr EnvrcForm PropertyDraw = word<BexEnum::propertyDraw, BexEnum::propertyDraw>();
constexpr EnvrcForm ZoneOrigin = word<BexEnum::zoneOrigin, BexEnum::zoneOrigin>();
constexpr EnvrcForm ZoneOffset = word<BexEnum::zoneOffsetMode, BexEnum::zoneOffsetMode>();
constexpr EnvrcForm MeasureDisp = word<BexEnum::measureDisp, BexEnum::measureDisp>();
constexpr EnvrcForm MeasurePos = word<BexEnum::measurePos, BexEnum::measurePos>();
constexpr EnvrcForm NetLabelScope = word<BexEnum::chgNetLabelScope, BexEnum::chgNetLabelScope>();
constexpr EnvrcForm CpsSelect = word<BexEnum::cpsSelectMode, BexEnum::cpsSelectMode>();
constexpr EnvrcForm CpsSearch = word<BexEnum::cpsSearchMode, BexEnum::cpsSearchMode>();
constexpr EnvrcForm UnloadCheck = word<BexEnum::BexUnloadSymbCheck, BexEnum::BexUnloadSymbCheck>();
constexpr EnvrcForm BlockCheck = word<BexEnum::BexBlockCheckTiming, BexEnum::BexBlockCheckTiming>();
constexpr EnvrcForm RuleCheck = word<BexEnum::autoRuleCheckMode, BexEnum::autoRuleCheckMode>();
constexpr EnvrcForm ComponentType{EnvrcForm::Word, componentBits, componentWords};
// Kept on purpose: the vocabulary knows no wrong word, so reader and setter take any text, as 0 unless it is "cpin".
constexpr EnvrcForm SwapSConn = word<BexEnum::swapSConnMode, BexEnum::swapSConnMode>();
// Kept on purpose: an unknown word of a file counts as the number it begins with, 0 where it begins with none.
constexpr EnvrcForm MoveSign =
    word<BexEnum::BexMoveSignMode, BexEnum::BexMoveSignMode>(EnvrcForm::WordOrNumber);

// The words of the column "load".
constexpr EnvrcLoadRule taken{};
constexpr EnvrcLoadRule passedOver{.taken = false};
// Kept on purpose: only an entry that can't be read mends the value; one that can is stored however bad it is.
constexpr EnvrcLoadRule mended(EnvrcRange sound, double replacement) {
    return {true, true, sound, replacement};
}

// The words of the column "set".
constexpr EnvrcSetRule noSetter{EnvrcSetRule::NoSetter};
constexpr EnvrcSetRule any{EnvrcSetRule::Any};
constexpr EnvrcSetRule alphanumeric{EnvrcSetRule::Alphanumeric};
// Kept on purpose: each limit is in or out for itself. Ratios leave 0 out and hold their upper end, pitches and offsets
// leave theirs out, and cScale leaves 0.01 out.
constexpr EnvrcRange from(double lowest) {
    return {.lowest = lowest};
}
constexpr EnvrcRange above(double lowest) {
    return {.lowest = lowest, .holdsLowest = false};
}

// The words of the column "save".
constexpr EnvrcSaveRule always{EnvrcSaveRule::Always};
constexpr EnvrcSaveRule never{EnvrcSaveRule::Never};
constexpr EnvrcSaveRule whenGiven(EnvrcPresence presence) {
    return {EnvrcSaveRule::WhenGiven, presence};
}

// To add a setting: give it a field in BexEnvrcData and a row here, at its place in the file; a setting that is
// written only when somebody gave it also needs a presence word, named in the column "save". Then add its plain reader
// to BexEnvrc, a row to the tests of the keys and to the page of the format, and renew the golden file.
//
// clang-format off
constexpr EnvrcSetting settings[] = {
    // key                            field                              form            load                   set                     save
    {"screenTrap",                    &F::screenTrap,                    Number,         taken,                 from(0).to(99999),      always},
    {"panRatio",                      &F::panRatio,                      Real,           taken,                 above(0).to(1),         always},
    {"zoomRatio",                     &F::zoomRatio,                     Real,           taken,                 above(0).to(1000),      always},
    {"adjustRatio",                   &F::adjustRatio,                   Real,           taken,                 above(0).to(1000),      always},
    {"dFocus",                        &F::dFocus,                        ObjectType,     taken,                 any,                    always},
    {"areaMode",                      &F::areaMode,                      PickType,       taken,                 any,                    always},
    {"roundRectCornerRadius",         &F::roundRectCornerRadius,         Real,           taken,                 above(0).to(100000),    always},
    {"gridTable",                     &F::gridTable,                     GridTable,      taken,                 noSetter,               always},
    {"inputGrid",                     &F::inputGrid,                     Flag,           taken,                 any,                    always},
    {"echoGrid",                      &F::echoGrid,                      Flag,           taken,                 any,                    always},
    {"gridColor",                     &F::gridColor,                     Number,         taken,                 any,                    always},
    {"symSheetSizeTable",             &F::symSheetSizeTable,             SymbolSizes,    taken,                 noSetter,               always},
    {"symSheetSizeColor",             &F::symSheetSizeColor,             Number,         taken,                 any,                    always},
    {"symSheetDispFlag",              &F::symSheetDispFlag,              Flag,           taken,                 any,                    always},
    {"schSheetSizeTable",             &F::schSheetSizeTable,             SchematicSizes, taken,                 noSetter,               always},
    {"schSheetAttrTable",             &F::schSheetAttrTable,             Attributes,     taken,                 noSetter,               always},
    {"schSheetSizeColor",             &F::schSheetSizeColor,             Number,         taken,                 any,                    always},
    {"schSheetDispFlag",              &F::schSheetDispFlag,              Flag,           taken,                 any,                    always},
    {"symbolPath",                    &F::symbolPath,                    Number,         taken,                 any,                    always},
    {"cScale",                        &F::cScale,                        Real,           taken,                 above(0.01).to(100),    always},
    {"cPvScaleFlag",                  &F::cPvScaleFlag,                  Flag,           taken,                 any,                    always},
    {"cAngle",                        &F::cAngle,                        Real,           taken,                 from(0).to(360),        always},
    {"cSearchFlag",                   &F::cSearchFlag,                   Flag,           taken,                 any,                    always},
    {"cCutinFlag",                    &F::cCutinFlag,                    Flag,           taken,                 any,                    always},
    {"netInputMode",                  &F::netInputMode,                  NetInput,       taken,                 any,                    always},
    {"nSearchFlag",                   &F::nSearchFlag,                   Flag,           taken,                 any,                    always},
    {"busInputMode",                  &F::busInputMode,                  NetInput,       taken,                 any,                    always},
    {"bSearchFlag",                   &F::bSearchFlag,                   Flag,           taken,                 any,                    always},
    {"netTheta",                      &F::netTheta,                      Real,           taken,                 from(0).to(360),        always},
    {"slide",                         &F::slide,                         Flag,           taken,                 any,                    always},
    {"mvSearchFlag",                  &F::mvSearchFlag,                  Flag,           taken,                 any,                    always},
    {"mvPvGridFlag",                  &F::mvPvGridFlag,                  Flag,           taken,                 any,                    always},
    {"cpSearchFlag",                  &F::cpSearchFlag,                  Flag,           taken,                 any,                    always},
    {"pasteSearchFlag",               &F::pasteSearchFlag,               Flag,           taken,                 any,                    always},
    {"deleteWithNet",                 &F::deleteWithNet,                 Flag,           taken,                 any,                    always},
    {"netDupCheck",                   &F::netDupCheck,                   Flag,           taken,                 any,                    always},
    {"swapSConnMode",                 &F::swapSConnMode,                 SwapSConn,      taken,                 any,                    always},
    {"swapSDisconnChgPin",            &F::swapSDisconnChgPin,            Flag,           taken,                 any,                    always},
    {"cpNetLabelIncrement",           &F::cpNetLabelIncrement,           Number,         taken,                 from(0).to(99999),      always},
    {"cbufWithNetLabel",              &F::cbufWithNetLabel,              CBufWith,       taken,                 any,                    always},
    {"cbufWithReference",             &F::cbufWithReference,             CBufWith,       taken,                 any,                    always},
    {"ripperStyle",                   &F::ripperStyle,                   RipperStyle,    taken,                 any,                    always},
    {"ripperDir",                     &F::ripperDir,                     RipperDir,      taken,                 any,                    always},
    {"pvJustify",                     &F::pvJustify,                     Justify,        taken,                 any,                    always},
    {"pvAngle",                       &F::pvAngle,                       Real,           taken,                 from(0).to(360),        always},
    {"pvDispMode",                    &F::pvDispMode,                    PropertyDraw,   taken,                 any,                    always},
    {"pvOffsetFromObjX",              &F::pvOffsetFromObjX,              Real,           taken,                 from(0).below(100000),  always},
    {"pvOffsetFromObjY",              &F::pvOffsetFromObjY,              Real,           taken,                 from(0).below(100000),  always},
    {"lineInputMode",                 &F::lineInputMode,                 LineInput,      taken,                 any,                    always},
    {"lineTheta",                     &F::lineTheta,                     Real,           taken,                 from(0).to(360),        always},
    {"circleInputMode",               &F::circleInputMode,               CircleInput,    taken,                 any,                    always},
    {"circleRadius",                  &F::circleRadius,                  Real,           taken,                 from(0).below(100000),  always},
    {"textJustify",                   &F::textJustify,                   Justify,        taken,                 any,                    always},
    {"textAngle",                     &F::textAngle,                     Real,           taken,                 from(0).to(360),        always},
    {"sPinDispFlag",                  &F::sPinDispFlag,                  Flag,           taken,                 any,                    always},
    {"zonePitchX",                    &F::zonePitchX,                    Real,           mended(above(0), 1.0), above(0).below(100000), always},
    {"zonePitchY",                    &F::zonePitchY,                    Real,           mended(above(0), 1.0), above(0).below(100000), always},
    {"zoneStartTextX",                &F::zoneStartTextX,                Character,      taken,                 alphanumeric,           always},
    {"zoneStartTextY",                &F::zoneStartTextY,                Character,      taken,                 alphanumeric,           always},
    {"zoneOrigin",                    &F::zoneOrigin,                    ZoneOrigin,     taken,                 any,                    always},
    {"zoneDispFlag",                  &F::zoneDispFlag,                  Flag,           taken,                 any,                    always},
    {"zoneOffsetX",                   &F::zoneOffsetX,                   Real,           mended(from(0), 0.0),  from(0).below(100000),  always},
    {"zoneOffsetY",                   &F::zoneOffsetY,                   Real,           mended(from(0), 0.0),  from(0).below(100000),  always},
    {"zoneOffsetMode",                &F::zoneOffsetMode,                ZoneOffset,     taken,                 any,                    always},
    {"compIDDispFlag",                &F::compIDDispFlag,                Flag,           taken,                 any,                    always},
    {"netIDDispFlag",                 &F::netIDDispFlag,                 Flag,           taken,                 any,                    always},
    {"cPinIDDispFlag",                &F::cPinIDDispFlag,                Flag,           taken,                 any,                    always},
    {"sPinIDDispFlag",                &F::sPinIDDispFlag,                Flag,           taken,                 any,                    always},
    {"pvIDDispFlag",                  &F::pvIDDispFlag,                  Flag,           taken,                 any,                    always},
    {"backupTime",                    &F::backupTime,                    Number,         taken,                 from(0).to(99999),      always},
    {"undoLimit",                     &F::undoLimit,                     Number,         taken,                 from(1).to(100),        always},
    {"openCheckMarkFlag",             &F::openCheckFlag,                 Flag,           taken,                 any,                    always},
    {"openCheckMarkColor",            &F::openCheckMarkColor,            Number,         taken,                 any,                    always},
    {"liftPointCPin",                 &F::liftPointCPin,                 Flag,           taken,                 any,                    always},
    {"dispRoute",                     &F::dispRoute,                     Flag,           taken,                 any,                    always},
    {"measureColor",                  &F::measureColor,                  Number,         taken,                 any,                    always},
    {"measureFontForUNIX",            &F::measureFontForUNIX,            Text,           taken,                 noSetter,               always},
    {"measureFontForWIN",             &F::measureFont,                   Text,           taken,                 noSetter,               always},
    {"measureDisp",                   &F::measureDisp,                   MeasureDisp,    taken,                 any,                    always},
    {"measurePos",                    &F::measurePos,                    MeasurePos,     taken,                 any,                    always},
    {"dynamicScroll",                 &F::dynamicScroll,                 Flag,           taken,                 any,                    always},
    {"chgNetLabelScope",              &F::chgNetLabelScope,              NetLabelScope,  taken,                 any,                    always},
    {"chgNetLabelDispFlag",           &F::chgNetLabelDispFlag,           Flag,           taken,                 any,                    always},
    {"chgNetLabelAutoRefMode",        &F::chgNetLabelAutoRefMode,        Flag,           taken,                 any,                    always},
    {"chgNetLabelListHeightSize",     &F::chgNetLabelListHeightSize,     Number,         taken,                 from(5).to(100),        always},
    {"chgNetLabelViewSelectBusLabel", &F::chgNetLabelViewSelectBusLabel, Flag,           taken,                 any,                    always},
    {"selectNetDialogBootMode",       &F::selectNetDialogBootMode,       Flag,           taken,                 any,                    always},
    {"cpsSelectMode",                 &F::cpsSelectMode,                 CpsSelect,      taken,                 any,                    always},
    {"cpsSearchMode",                 &F::cpsSearchMode,                 CpsSearch,      taken,                 any,                    always},
    {"UnloadedSymbolCheck",           &F::UnloadedSymbolCheck,           UnloadCheck,    taken,                 any,                    always},
    {"UpdatedSymbolCheckFlag",        &F::UpdatedSymbolCheck,            Flag,           taken,                 any,                    always},
    {"symbDefaultcompType",           &F::symbDefaultcompType,           ComponentType,  taken,                 any,                    always},
    {"saveAreaFlag",                  &F::saveArea,                      Flag,           taken,                 any,                    always},
    {"BlockCheckTiming",              &F::BlockCheckTiming,              BlockCheck,     taken,                 any,                    always},
    {"moveSignMode",                  &F::moveSignMode,                  MoveSign,       taken,                 from(0).to(1),          whenGiven(&F::moveSignModeSet)},
    {"dynPanFlag",                    &F::dynamicPan,                    Flag,           taken,                 any,                    always},
    {"autoSaveRuleCheck",             &F::autoSaveRuleCheck,             RuleCheck,      taken,                 any,                    always},
    {"autoSaveReload",                &F::autoSaveReload,                Flag,           taken,                 any,                    always},
    {"autoSaveReloadKeyName",         &F::autoSaveReloadKeyName,         Text,           taken,                 any,                    always},
    {"autoSaveReloadRscFile",         &F::autoSaveReloadRscFile,         Text,           taken,                 any,                    always},
    {"zipText",                       &F::zipText,                       Flag,           taken,                 any,                    whenGiven(&F::zipTextSet)},
    {"doNotSelectUnvisiblePbox",      &F::doNotSelectUnivisiblePbox,     Flag,           taken,                 any,                    whenGiven(&F::doNotSelectUnivisiblePboxSet)},

    // Kept on purpose: read and set, never written. The next save drops them.
    {"dProject",                      &F::dProject,                      Text,           taken,                 any,                    never},
    {"logfile",                       &F::logfile,                       Text,           taken,                 any,                    never},
    {"mcpSearchFlag",                 &F::mcpSearchFlag,                 Flag,           taken,                 any,                    never},

    // Kept on purpose: known to the setters alone. The size lives in memory only; the font has this key beside the one of
    // the file.
    {"chgNetLabelListWidthSize",      &F::chgNetLabelListWidthSize,      Number,         passedOver,            from(15).to(100),       never},
    {"measureFont",                   &F::measureFont,                   Text,           passedOver,            any,                    never},

    // Kept on purpose: older files hold them; they have no effect on reading and are never written.
    {"cursorType",                    std::monostate(),                  None,           passedOver,            noSetter,               never},
    {"cursorColor",                   std::monostate(),                  None,           passedOver,            noSetter,               never},
    {"rotateRatio",                   std::monostate(),                  None,           passedOver,            noSetter,               never},
    {"gridHighlightColor",            std::monostate(),                  None,           passedOver,            noSetter,               never},
};
// clang-format on

constexpr SettingIndex byKey(settings);
static_assert(byKey.keysAreUnique());

template <class... Fields>
constexpr bool holdsOneOf(const EnvrcField& field) {
    return (std::holds_alternative<Fields F::*>(field) || ...);
}

constexpr bool fieldFitsForm(const EnvrcSetting& row) {
    switch (row.form.kind) {
    case EnvrcForm::Real: return holdsOneOf<double>(row.field);
    case EnvrcForm::Character: return holdsOneOf<char>(row.field);
    case EnvrcForm::Text: return holdsOneOf<YString>(row.field);
    case EnvrcForm::GridTable: return holdsOneOf<BexGridRow_Array>(row.field);
    case EnvrcForm::SymbolSizes:
    case EnvrcForm::SchematicSizes: return holdsOneOf<BexSheetSizeRow_Array>(row.field);
    case EnvrcForm::Attributes: return holdsOneOf<BexSheetAttrRow_Array>(row.field);
    case EnvrcForm::Nothing: return !row.load.taken && row.save.when == EnvrcSaveRule::Never;
    default: return holdsOneOf<int, unsigned int, unsigned long>(row.field);
    }
}
static_assert(std::all_of(std::begin(settings), std::end(settings), fieldFitsForm));

} // namespace

void storeNumber(BexEnvrcData& fields, const EnvrcSetting& setting, long value) {
    const auto bounded = std::clamp<long long>(value, INT_MIN, UINT_MAX);
    if (std::holds_alternative<int F::*>(setting.field)) {
        fieldOf<int>(fields, setting) = static_cast<int>(std::min<long long>(bounded, INT_MAX));
    } else if (std::holds_alternative<unsigned int F::*>(setting.field)) {
        fieldOf<unsigned int>(fields, setting) = static_cast<unsigned int>(bounded);
    } else {
        fieldOf<unsigned long>(fields, setting) = static_cast<unsigned long>(value);
    }
}

long numberIn(const BexEnvrcData& fields, const EnvrcSetting& setting) {
    if (std::holds_alternative<int F::*>(setting.field)) return valueOf<int>(fields, setting);
    if (std::holds_alternative<unsigned int F::*>(setting.field)) {
        return static_cast<long>(valueOf<unsigned int>(fields, setting));
    }
    return static_cast<long>(valueOf<unsigned long>(fields, setting));
}

void markGiven(BexEnvrcData& fields, const EnvrcSetting& setting) {
    if (setting.save.presence) fields.*setting.save.presence = 1;
}

std::span<const EnvrcSetting> envrcSettings() {
    return settings;
}

const EnvrcSetting* findEnvrcSetting(std::string_view key) {
    return byKey.find(key);
}

} // namespace bexa::detail
