#include "tools/bexa/circuit_settings.h"

#include "tools/bexa/degrees.h"

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/palette.h"
#include "bexa/store/file.h"

namespace tool {
namespace {

using Reader = Json (*)(const BexDatarc&, const Output&);

// One template for each type of setting; an instance is a row's reader.
template <char (BexDatarc::*Read)() const>
Json character(const BexDatarc& resource, const Output& out) {
    const char text[] = {(resource.*Read)(), '\0'};
    return out.resourceText(text);
}
template <int (BexDatarc::*Read)() const>
Json whole(const BexDatarc& resource, const Output&) {
    return (resource.*Read)();
}
template <unsigned (BexDatarc::*Read)() const>
Json index(const BexDatarc& resource, const Output&) {
    return (resource.*Read)();
}
template <unsigned long (BexDatarc::*Read)() const>
Json style(const BexDatarc& resource, const Output&) {
    return (resource.*Read)();
}
template <unsigned long (BexDatarc::*Read)() const>
Json flag(const BexDatarc& resource, const Output&) {
    return (resource.*Read)() != 0;
}
template <long (BexDatarc::*Read)() const>
Json length(const BexDatarc& resource, const Output&) {
    return resource.decode((resource.*Read)());
}
template <YString (BexDatarc::*Read)() const>
Json text(const BexDatarc& resource, const Output& out) {
    return out.resourceText((resource.*Read)());
}

struct VariationMark {
    unsigned long flag = 0;
    YString mark;
    YString property;
};

VariationMark variationMark(const BexDatarc& resource) {
    VariationMark result;
    resource.variationMark(result.flag, &result.mark, &result.property);
    return result;
}

struct SimpleDisplay {
    int flag = 0;
    YString separator;
    YString crown;
};

SimpleDisplay simpleDisplay(const BexDatarc& resource) {
    SimpleDisplay result;
    resource.busNSimpleDispMode(result.flag, &result.separator, &result.crown);
    return result;
}

struct Setting {
    const char* key;
    Reader read;
};

// In the order in which a resource file is written. To add a setting: a row, at its place.
// clang-format off
constexpr Setting settings[] = {
    {"nlogicStartChar",          character<&BexDatarc::nlogicStartChar>},
    {"nlogicEndChar",            character<&BexDatarc::nlogicEndChar>},
    {"busStartChar",             character<&BexDatarc::busStartChar>},
    {"busEndChar",               character<&BexDatarc::busEndChar>},
    {"bitEndChar",               character<&BexDatarc::bitEndChar>},
    {"rangeEndChar",             character<&BexDatarc::rangeEndChar>},
    {"rangeStepChar",            character<&BexDatarc::rangeStepChar>},
    {"precisionTblNo",           index<&BexDatarc::precisionNumber>},
    {"nodeSize",                 length<&BexDatarc::nodeSize>},
    {"cornerRadius",             length<&BexDatarc::cornerRadius>},
    {"defaultCompColor",         whole<&BexDatarc::defaultCompColor>},
    {"defaultFrameColor",        index<&BexDatarc::defaultFrameColor>},
    {"defaultNetColor",          index<&BexDatarc::defaultNetColor>},
    {"defaultBusColor",          index<&BexDatarc::defaultBusColor>},
    {"defaultLineColor",         index<&BexDatarc::defaultLineColor>},
    {"defaultCircleColor",       index<&BexDatarc::defaultCircleColor>},
    {"defaultTextColor",         index<&BexDatarc::defaultTextColor>},
    {"defaultPropertyColor",     index<&BexDatarc::defaultPropBoxColor>},
    {"defaultSymbSheetColor",    index<&BexDatarc::defaultSymbSheetColor>},
    {"defaultSchmSheetColor",    index<&BexDatarc::defaultSchmSheetColor>},
    {"defaultSymbFrameColor",    index<&BexDatarc::defaultSymbFrameColor>},
    {"defaultLineWidth",         index<&BexDatarc::defaultLineWidth>},
    {"defaultFrameLineWidth",    index<&BexDatarc::defaultFrameLineWidth>},
    {"defaultNetLineWidth",      index<&BexDatarc::defaultNetLineWidth>},
    {"defaultBusLineWidth",      index<&BexDatarc::defaultBusLineWidth>},
    {"defaultCircleLineWidth",   index<&BexDatarc::defaultCircleLineWidth>},
    {"defaultLineStyle",         style<&BexDatarc::defaultLineStyle>},
    {"defaultFrameLineStyle",    style<&BexDatarc::defaultFrameLineStyle>},
    {"defaultNetLineStyle",      style<&BexDatarc::defaultNetLineStyle>},
    {"defaultBusLineStyle",      style<&BexDatarc::defaultBusLineStyle>},
    {"defaultCircleLineStyle",   style<&BexDatarc::defaultCircleLineStyle>},
    {"defaultFillStyle",         index<&BexDatarc::defaultFillStyle>},
    {"defaultCircleFillStyle",   index<&BexDatarc::defaultCircleFillStyle>},
    {"defaultTextFont",          index<&BexDatarc::defaultTextFont>},
    {"defaultPropertyFont",      index<&BexDatarc::defaultPropBoxFont>},
    {"dataTrap",                 length<&BexDatarc::dataTrap>},
    {"propDispNum",              whole<&BexDatarc::propDispNum>},
    {"contentsViewer",           whole<&BexDatarc::contentsViewer>},
    {"contentsFrameIsVisible",   whole<&BexDatarc::contentsFrameIsVisible>},
    {"contentsUnvisibleCmpType", text<&BexDatarc::contentsUnvisibleCmpType>},
    {"vmarkFlag",     [](const BexDatarc& rc, const Output&) -> Json { return variationMark(rc).flag != 0; }},
    {"vmarkStr",      [](const BexDatarc& rc, const Output& out) -> Json { return out.resourceText(variationMark(rc).mark); }},
    {"vmarkPname",    [](const BexDatarc& rc, const Output& out) -> Json { return out.resourceText(variationMark(rc).property); }},
    {"noMountAliasName",         text<&BexDatarc::noMountAliasName>},
    {"noMountAliasValue",        text<&BexDatarc::noMountAliasValue>},
    {"noMountDispStyle",         index<&BexDatarc::noMountDispStyle>},
    {"busNSimpleDispFlag",      [](const BexDatarc& rc, const Output&) -> Json { return simpleDisplay(rc).flag; }},
    {"busNSimpleDispSepChar",   [](const BexDatarc& rc, const Output& out) -> Json { return out.resourceText(simpleDisplay(rc).separator); }},
    {"busNSimpleDispCrownChar", [](const BexDatarc& rc, const Output& out) -> Json { return out.resourceText(simpleDisplay(rc).crown); }},
    {"useBusAliasFlag",          flag<&BexDatarc::useBusAlias>},
    {"createNetLabelFromDefRef", index<&BexDatarc::createInstNetLabelMode>},
    {"sheetNetErrorLevel",       index<&BexDatarc::sheetNetErrorLevel>},
    {"overwritePortMode",        index<&BexDatarc::overwritePortMode>},
    {"simpleArray",              flag<&BexDatarc::simpleArrayMode>},
    {"dateFormat",               text<&BexDatarc::dateFormat>},
    {"timeFormat",               text<&BexDatarc::timeFormat>},
    {"nplNoMountCompAliasName",  text<&BexDatarc::nplNoMountCompAliasName>},
    {"nplNoMountCompAliasValue", text<&BexDatarc::nplNoMountCompAliasValue>},
    {"nplNoMountCompDispStyle",  index<&BexDatarc::nplNoMountCompDispStyle>},
};
// clang-format on

Json unitRow(const BexDatarc& resource, unsigned index, const Output& out) {
    char name[256] = ""; // no file holds units, so the name is one of the library's own
    unsigned factor = 0;
    double scale = 0;
    resource.precision(index, name, &factor, &scale);
    return {{"index", index}, {"name", out.resourceText(name)}, {"factor", factor}, {"scale", scale}};
}

Json textStyleRow(const BexDatarc& resource, unsigned index, const Output& out) {
    long sizes[5] = {};
    YString name, singleByteFont, doubleByteFont;
    resource.textSize(index, &sizes[0], &sizes[1], &sizes[2], &sizes[3], &sizes[4], &name);
    resource.textFontFile(index, &singleByteFont, &doubleByteFont);
    return {{"index", index},
            {"name", out.resourceText(name)},
            {"size1", resource.decode(sizes[0])},
            {"size2", resource.decode(sizes[1])},
            {"size3", resource.decode(sizes[2])},
            {"size4", resource.decode(sizes[3])},
            {"size5", resource.decode(sizes[4])},
            {"singleByteFont", out.resourceText(singleByteFont)},
            {"doubleByteFont", out.resourceText(doubleByteFont)}};
}

Json lineWidthRow(const BexDatarc& resource, unsigned index, const Output&) {
    long width = 0;
    resource.lineWidth(index, &width);
    return {{"index", index}, {"width", resource.decode(width)}};
}

Json lineStyleRow(const BexDatarc& resource, unsigned index, const Output& out) {
    long lengths[3] = {};
    YString name;
    resource.lineStyle(index, &lengths[0], &lengths[1], &lengths[2], &name);
    return {{"index", index},
            {"name", out.resourceText(name)},
            {"length1", resource.decode(lengths[0])},
            {"length2", resource.decode(lengths[1])},
            {"length3", resource.decode(lengths[2])}};
}

Json fillStyleRow(const BexDatarc& resource, unsigned index, const Output& out) {
    unsigned long type = 0;
    long pitch1 = 0, pitch2 = 0;
    Yangle angle1, angle2;
    YString name;
    resource.fillStyle(index, &type, &pitch1, &pitch2, &angle1, &angle2, &name);
    return {{"index", index},
            {"name", out.resourceText(name)},
            {"type", type},
            {"pitch1", resource.decode(pitch1)},
            {"pitch2", resource.decode(pitch2)},
            {"angle1", degreesOf(angle1)},
            {"angle2", degreesOf(angle2)}};
}

// The two readers of a table of directories: what stands in the file, and the directory it leads to.
using PathReader = unsigned long (BexDatarc::*)(unsigned, YString*, YString*) const;

template <PathReader Written, PathReader LeadsTo>
Json pathRow(const BexDatarc& resource, unsigned index, const Output& out) {
    YString written, leadsTo, name;
    (resource.*Written)(index, &written, &name);
    (resource.*LeadsTo)(index, &leadsTo, nullptr);
    return {{"index", index},
            {"name", out.resourceText(name)},
            {"path", out.resourceText(written)},
            {"leadsTo", out.systemText(leadsTo)},
            {"present", BexFile::isDir(leadsTo) != 0}};
}

struct Table {
    const char* key;
    unsigned (BexDatarc::*count)() const;
    Json (*row)(const BexDatarc&, unsigned index, const Output&);
};

// clang-format off
constexpr Table tables[] = {
    {"precisionTable", &BexDatarc::precisionCount, unitRow},
    {"textTable",      &BexDatarc::textSizeCount,  textStyleRow},
    {"lineWidth",      &BexDatarc::lineWidthCount, lineWidthRow},
    {"lineStyleTable", &BexDatarc::lineStyleCount, lineStyleRow},
    {"fillStyleTable", &BexDatarc::fillStyleCount, fillStyleRow},
    {"symbPathTable",  &BexDatarc::symbPathCount,  pathRow<&BexDatarc::pureSymbPath, &BexDatarc::symbPath>},
    {"contPathTable",  &BexDatarc::contPathCount,  pathRow<&BexDatarc::pureContPath, &BexDatarc::contPath>},
    {"lcdbPathTable",  &BexDatarc::lcdbPathCount,  pathRow<&BexDatarc::pureLcdbPath, &BexDatarc::lcdbPath>},
};
// clang-format on

// The resource keeps a palette of its own, but gives out the names of one from a file only.
Json paletteRows(const Output& out) {
    const BexColor palette;
    Json rows = Json::array();
    for (int i = 0; i < palette.colorCount(); ++i) {
        rows.push_back({{"index", i}, {"name", out.resourceText(palette.color(i))}});
    }
    return rows;
}

} // namespace

Json settingsOf(const BexDatarc& resource, const Output& out) {
    Json result = Json::object();
    for (const Setting& setting : settings) result[setting.key] = setting.read(resource, out);
    return result;
}

void addTables(Json& document, const BexDatarc& resource, const Output& out) {
    for (const Table& table : tables) {
        Json rows = Json::array();
        for (unsigned i = 0; i < (resource.*table.count)(); ++i) rows.push_back(table.row(resource, i, out));
        document[table.key] = std::move(rows);
    }
    document["colorTable"] = paletteRows(out);
}

std::vector<std::string> circuitResourceKeys() {
    std::vector<std::string> keys;
    for (const Setting& setting : settings) keys.emplace_back(setting.key);
    for (const Table& table : tables) keys.emplace_back(table.key);
    return keys;
}

} // namespace tool
