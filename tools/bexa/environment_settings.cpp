#include "tools/bexa/environment_settings.h"

#include "tools/bexa/degrees.h"

#include "bexa/envrc/envrc.h"

#include <algorithm>
#include <utility>

namespace tool {
namespace {

using Reader = Json (*)(const BexEnvrc&, const Output&);

// One template for each form of setting; an instance is a row's reader.
template <auto Read>
Json number(const BexEnvrc& resource, const Output&) {
    return (resource.*Read)();
}
template <long (BexEnvrc::*Read)() const>
Json length(const BexEnvrc& resource, const Output&) {
    return resource.decode((resource.*Read)());
}
template <Yangle (BexEnvrc::*Read)() const>
Json angle(const BexEnvrc& resource, const Output&) {
    return degreesOf((resource.*Read)());
}
template <auto Read, const char* (*Word)(int)>
Json word(const BexEnvrc& resource, const Output& out) {
    return out.resourceText(Word(static_cast<int>((resource.*Read)())));
}
template <unsigned long (BexEnvrc::*Read)() const>
Json flag(const BexEnvrc& resource, const Output& out) {
    return word<Read, BexEnum::flag>(resource, out);
}
template <char (BexEnvrc::*Read)() const>
Json character(const BexEnvrc& resource, const Output& out) {
    const char text[] = {(resource.*Read)(), '\0'};
    return out.resourceText(text);
}
template <const char* (BexEnvrc::*Read)() const>
Json text(const BexEnvrc& resource, const Output& out) {
    return out.resourceText((resource.*Read)());
}

Json componentTypes(const BexEnvrc& resource, const Output& out) {
    return out.resourceText(BexEnum::compType(resource.symbDefaultcompType()));
}

struct Setting {
    const char* key;
    Reader read;
};

// In the order in which a resource file is written; behind them what a file never holds. To add a setting: a row,
// at its place.
// clang-format off
constexpr Setting settings[] = {
    {"screenTrap",                    number<&BexEnvrc::screenTrap>},
    {"panRatio",                      number<&BexEnvrc::panRatio>},
    {"zoomRatio",                     number<&BexEnvrc::zoomRatio>},
    {"adjustRatio",                   number<&BexEnvrc::adjustRatio>},
    {"dFocus",                        word<&BexEnvrc::dFocus, BexEnum::objType>},
    {"areaMode",                      word<&BexEnvrc::areaMode, BexEnum::pickType>},
    {"roundRectCornerRadius",         number<&BexEnvrc::roundRectCornerRadius>},
    {"inputGrid",                     flag<&BexEnvrc::inputGrid>},
    {"echoGrid",                      flag<&BexEnvrc::echoGrid>},
    {"gridColor",                     number<&BexEnvrc::gridColor>},
    {"symSheetSizeColor",             number<&BexEnvrc::symSheetSizeColor>},
    {"symSheetDispFlag",              flag<&BexEnvrc::symSheetDispFlag>},
    {"schSheetSizeColor",             number<&BexEnvrc::schSheetSizeColor>},
    {"schSheetDispFlag",              flag<&BexEnvrc::schSheetDispFlag>},
    {"symbolPath",                    number<&BexEnvrc::symbolPath>},
    {"cScale",                        number<&BexEnvrc::cScale>},
    {"cPvScaleFlag",                  flag<&BexEnvrc::cPvScaleFlag>},
    {"cAngle",                        angle<&BexEnvrc::cAngle>},
    {"cSearchFlag",                   flag<&BexEnvrc::cSearchFlag>},
    {"cCutinFlag",                    flag<&BexEnvrc::cCutinFlag>},
    {"netInputMode",                  word<&BexEnvrc::netInputMode, BexEnum::netInput>},
    {"nSearchFlag",                   flag<&BexEnvrc::nSearchFlag>},
    {"busInputMode",                  word<&BexEnvrc::busInputMode, BexEnum::netInput>},
    {"bSearchFlag",                   flag<&BexEnvrc::bSearchFlag>},
    {"netTheta",                      angle<&BexEnvrc::netTheta>},
    {"slide",                         flag<&BexEnvrc::slide>},
    {"mvSearchFlag",                  flag<&BexEnvrc::mvSearchFlag>},
    {"mvPvGridFlag",                  flag<&BexEnvrc::mvPvGridFlag>},
    {"cpSearchFlag",                  flag<&BexEnvrc::cpSearchFlag>},
    {"pasteSearchFlag",               flag<&BexEnvrc::pasteSearchFlag>},
    {"deleteWithNet",                 flag<&BexEnvrc::deleteWithNet>},
    {"netDupCheck",                   flag<&BexEnvrc::netDupCheck>},
    {"swapSConnMode",                 word<&BexEnvrc::swapSConnMode, BexEnum::swapSConnMode>},
    {"swapSDisconnChgPin",            flag<&BexEnvrc::swapSDisconnChgPin>},
    {"cpNetLabelIncrement",           number<&BexEnvrc::cpNetLabelIncrement>},
    {"cbufWithNetLabel",              word<&BexEnvrc::cbufWithNetLabel, BexEnum::cBufWithMode>},
    {"cbufWithReference",             word<&BexEnvrc::cbufWithReference, BexEnum::cBufWithMode>},
    {"ripperStyle",                   word<&BexEnvrc::ripperStyle, BexEnum::ripperStyle>},
    {"ripperDir",                     word<&BexEnvrc::ripperDir, BexEnum::ripperDir>},
    {"pvJustify",                     word<&BexEnvrc::pvJustify, BexEnum::textJustify>},
    {"pvAngle",                       angle<&BexEnvrc::pvAngle>},
    {"pvDispMode",                    word<&BexEnvrc::pvDispMode, BexEnum::propertyDraw>},
    {"pvOffsetFromObjX",              length<&BexEnvrc::pvOffsetFromObjX>},
    {"pvOffsetFromObjY",              length<&BexEnvrc::pvOffsetFromObjY>},
    {"lineInputMode",                 word<&BexEnvrc::lineInputMode, BexEnum::lineInput>},
    {"lineTheta",                     angle<&BexEnvrc::lineTheta>},
    {"circleInputMode",               word<&BexEnvrc::circleInputMode, BexEnum::circleInput>},
    {"circleRadius",                  length<&BexEnvrc::circleRadius>},
    {"textJustify",                   word<&BexEnvrc::textJustify, BexEnum::textJustify>},
    {"textAngle",                     angle<&BexEnvrc::textAngle>},
    {"sPinDispFlag",                  flag<&BexEnvrc::sPinDispFlag>},
    {"zonePitchX",                    length<&BexEnvrc::zonePitchX>},
    {"zonePitchY",                    length<&BexEnvrc::zonePitchY>},
    {"zoneStartTextX",                character<&BexEnvrc::zoneStartTextX>},
    {"zoneStartTextY",                character<&BexEnvrc::zoneStartTextY>},
    {"zoneOrigin",                    word<&BexEnvrc::zoneOrigin, BexEnum::zoneOrigin>},
    {"zoneDispFlag",                  flag<&BexEnvrc::zoneDispFlag>},
    {"zoneOffsetX",                   length<&BexEnvrc::zoneOffsetX>},
    {"zoneOffsetY",                   length<&BexEnvrc::zoneOffsetY>},
    {"zoneOffsetMode",                word<&BexEnvrc::zoneOffsetMode, BexEnum::zoneOffsetMode>},
    {"compIDDispFlag",                flag<&BexEnvrc::compIDDispFlag>},
    {"netIDDispFlag",                 flag<&BexEnvrc::netIDDispFlag>},
    {"cPinIDDispFlag",                flag<&BexEnvrc::cPinIDDispFlag>},
    {"sPinIDDispFlag",                flag<&BexEnvrc::sPinIDDispFlag>},
    {"pvIDDispFlag",                  flag<&BexEnvrc::pvIDDispFlag>},
    {"backupTime",                    number<&BexEnvrc::backupTime>},
    {"undoLimit",                     number<&BexEnvrc::undoLimit>},
    {"openCheckMarkFlag",             flag<&BexEnvrc::openCheckFlag>},
    {"openCheckMarkColor",            number<&BexEnvrc::openCheckMarkColor>},
    {"liftPointCPin",                 flag<&BexEnvrc::liftPointCPin>},
    {"dispRoute",                     flag<&BexEnvrc::dispRoute>},
    {"measureColor",                  number<&BexEnvrc::measureColor>},
    {"measureFont",                   text<&BexEnvrc::measureFont>},
    {"measureDisp",                   word<&BexEnvrc::measureDisp, BexEnum::measureDisp>},
    {"measurePos",                    word<&BexEnvrc::measurePos, BexEnum::measurePos>},
    {"dynamicScroll",                 flag<&BexEnvrc::dynamicScroll>},
    {"chgNetLabelScope",              word<&BexEnvrc::chgNetLabelScope, BexEnum::chgNetLabelScope>},
    {"chgNetLabelDispFlag",           flag<&BexEnvrc::chgNetLabelDispFlag>},
    {"chgNetLabelAutoRefMode",        flag<&BexEnvrc::chgNetLabelAutoRefMode>},
    {"chgNetLabelListHeightSize",     number<&BexEnvrc::chgNetLabelListHeightSize>},
    {"chgNetLabelViewSelectBusLabel", flag<&BexEnvrc::chgNetLabelViewSelectBusLabel>},
    {"selectNetDialogBootMode",       flag<&BexEnvrc::selectNetDialogBootMode>},
    {"cpsSelectMode",                 word<&BexEnvrc::cpsSelectMode, BexEnum::cpsSelectMode>},
    {"cpsSearchMode",                 word<&BexEnvrc::cpsSearchMode, BexEnum::cpsSearchMode>},
    {"UnloadedSymbolCheck",           word<&BexEnvrc::UnloadedSymbolCheck, BexEnum::BexUnloadSymbCheck>},
    {"UpdatedSymbolCheckFlag",        flag<&BexEnvrc::UpdatedSymbolCheck>},
    {"symbDefaultcompType",           componentTypes},
    {"saveAreaFlag",                  flag<&BexEnvrc::saveArea>},
    {"BlockCheckTiming",              word<&BexEnvrc::BlockCheckTiming, BexEnum::BexBlockCheckTiming>},
    {"moveSignMode",                  word<&BexEnvrc::moveSignMode, BexEnum::BexMoveSignMode>},
    {"dynPanFlag",                    flag<&BexEnvrc::dynamicPan>},
    {"autoSaveRuleCheck",             word<&BexEnvrc::autoSaveRuleCheck, BexEnum::autoRuleCheckMode>},
    {"autoSaveReload",                flag<&BexEnvrc::autoSaveReload>},
    {"autoSaveReloadKeyName",         text<&BexEnvrc::autoSaveReloadKeyName>},
    {"autoSaveReloadRscFile",         text<&BexEnvrc::autoSaveReloadRscFile>},
    {"zipText",                       flag<&BexEnvrc::zipText>},
    {"doNotSelectUnvisiblePbox",      flag<&BexEnvrc::doNotSelectUnivisiblePbox>},
    {"dProject",                      text<&BexEnvrc::dProject>},
    {"logfile",                       text<&BexEnvrc::logfile>},
    {"mcpSearchFlag",                 flag<&BexEnvrc::mcpSearchFlag>},
    {"chgNetLabelListWidthSize",      number<&BexEnvrc::chgNetLabelListWidthSize>},
};
// clang-format on

// Longer than any text of a row that the library reads from a file.
struct RowText {
    char bytes[4096] = "";
};

Json gridRow(const BexEnvrc& resource, short index, const Output&) {
    int counts[2] = {};
    long lengths[2] = {};
    resource.gridTable(index, counts[0], counts[1], lengths[0], lengths[1]);
    return {{"index", index},
            {"firstCount", counts[0]},
            {"secondCount", counts[1]},
            {"firstLength", resource.decode(lengths[0])},
            {"secondLength", resource.decode(lengths[1])}};
}

Json sizeRow(const BexEnvrc& resource, short index, const RowText& name, const long (&lengths)[4],
             const Output& out) {
    return {{"index", index},
            {"name", out.resourceText(name.bytes)},
            {"originX", resource.decode(lengths[0])},
            {"originY", resource.decode(lengths[1])},
            {"width", resource.decode(lengths[2])},
            {"height", resource.decode(lengths[3])}};
}

Json symbolSheetRow(const BexEnvrc& resource, short index, const Output& out) {
    RowText name;
    long lengths[4] = {};
    resource.symSheetSize(index, name.bytes, lengths[0], lengths[1], lengths[2], lengths[3]);
    return sizeRow(resource, index, name, lengths, out);
}

Json schematicSheetRow(const BexEnvrc& resource, short index, const Output& out) {
    RowText name, frameName;
    long lengths[4] = {};
    int frameNo = 0;
    resource.schSheetSize(index, name.bytes, lengths[0], lengths[1], lengths[2], lengths[3], frameNo,
                          frameName.bytes);
    Json row = sizeRow(resource, index, name, lengths, out);
    row["frameNo"] = frameNo;
    row["frameName"] = out.resourceText(frameName.bytes);
    return row;
}

Json attributeRow(const BexEnvrc& resource, short index, const Output& out) {
    RowText name, value;
    resource.schSheetAttr(index, name.bytes, value.bytes);
    return {
        {"index", index}, {"name", out.resourceText(name.bytes)}, {"value", out.resourceText(value.bytes)}};
}

struct Table {
    const char* key;
    int (BexEnvrc::*count)() const;
    Json (*row)(const BexEnvrc&, short index, const Output&);
};

// clang-format off
constexpr Table tables[] = {
    {"gridTable",         &BexEnvrc::gridTableCount,         gridRow},
    {"symSheetSizeTable", &BexEnvrc::symSheetSizeTableCount, symbolSheetRow},
    {"schSheetSizeTable", &BexEnvrc::schSheetSizeTableCount, schematicSheetRow},
    {"schSheetAttrTable", &BexEnvrc::schSheetAttrTableCount, attributeRow},
};
// clang-format on

// Rows are addressed by a short; a table of a file may have more.
int shownRows(const BexEnvrc& resource, const Table& table) {
    constexpr int addressable = 32768;
    return std::min((resource.*table.count)(), addressable);
}

} // namespace

Json settingsOf(const BexEnvrc& resource, const Output& out) {
    Json result = Json::object();
    for (const Setting& setting : settings) result[setting.key] = setting.read(resource, out);
    return result;
}

void addTables(Json& document, const BexEnvrc& resource, const Output& out) {
    for (const Table& table : tables) {
        Json rows = Json::array();
        for (int i = 0; i < shownRows(resource, table); ++i) {
            rows.push_back(table.row(resource, static_cast<short>(i), out));
        }
        document[table.key] = std::move(rows);
    }
}

std::vector<std::string> environmentKeys() {
    std::vector<std::string> keys;
    for (const Setting& setting : settings) keys.emplace_back(setting.key);
    for (const Table& table : tables) keys.emplace_back(table.key);
    return keys;
}

} // namespace tool
