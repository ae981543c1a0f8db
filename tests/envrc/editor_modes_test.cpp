#include "bexa/envrc/editor_modes.h"

#include "tests/envrc/envrc_fixture.h"

#include <string>

namespace bexa::test {
namespace {

class EditorModes : public EnvrcFixture {};

#define READ(reader) [](const BexEnvrc& envrc) { return static_cast<int>(envrc.reader()); }

struct ChoiceRow {
    const char* key;
    int value;
    const char* word;
    int (*read)(const BexEnvrc&);
};

// The choices of the editors and their words.
// clang-format off
const ChoiceRow choices[] = {
    {"areaMode",            BexPickInter,                "inter",       READ(areaMode)},
    {"areaMode",            BexPickOverLap,              "overLap",     READ(areaMode)},
    {"netInputMode",        BexNetInputManual,           "Manual",      READ(netInputMode)},
    {"netInputMode",        BexNetInputSemiAuto,         "semiAuto",    READ(netInputMode)},
    {"netInputMode",        BexNetInputAuto,             "Auto",        READ(netInputMode)},
    {"busInputMode",        BexNetInputAuto,             "Auto",        READ(busInputMode)},
    {"lineInputMode",       BexLineInputManual,          "Manual",      READ(lineInputMode)},
    {"lineInputMode",       BexLineInputSemiAuto,        "semiAuto",    READ(lineInputMode)},
    {"circleInputMode",     BexCircleInputCenter,        "center",      READ(circleInputMode)},
    {"circleInputMode",     BexCircleInputRadius,        "radius",      READ(circleInputMode)},
    {"circleInputMode",     BexCircleInputEdge,          "edge",        READ(circleInputMode)},
    {"ripperStyle",         BexRipperNone,               "None",        READ(ripperStyle)},
    {"ripperStyle",         BexRipperHook,               "Hook",        READ(ripperStyle)},
    {"ripperStyle",         BexRipperCurl,               "Curl",        READ(ripperStyle)},
    {"ripperDir",           BexRipperCW,                 "CW",          READ(ripperDir)},
    {"ripperDir",           BexRipperCCW,                "CCW",         READ(ripperDir)},
    {"zoneOffsetMode",      BexZoneOffsetOff,            "Off",         READ(zoneOffsetMode)},
    {"zoneOffsetMode",      BexZoneOffsetCenterEnd,      "CenterEnd",   READ(zoneOffsetMode)},
    {"zoneOffsetMode",      BexZoneOffsetCenterCross,    "CenterCross", READ(zoneOffsetMode)},
    {"cbufWithNetLabel",    BexCBufWithOn,               "On",          READ(cbufWithNetLabel)},
    {"cbufWithNetLabel",    BexCBufWithOff,              "Off",         READ(cbufWithNetLabel)},
    {"cbufWithReference",   BexCBufWithCopy,             "Copy",        READ(cbufWithReference)},
    {"cbufWithReference",   BexCBufWithCut,              "Cut",         READ(cbufWithReference)},
    {"measureDisp",         BexMeasureNoDisp,            "noDisp",      READ(measureDisp)},
    {"measureDisp",         BexMeasureAbsolute,          "absolute",    READ(measureDisp)},
    {"measureDisp",         BexMeasureRelative,          "relative",    READ(measureDisp)},
    {"measurePos",          BexMeasureMovable,           "movable",     READ(measurePos)},
    {"measurePos",          BexMeasureFixed,             "fixed",       READ(measurePos)},
    {"swapSConnMode",       BexSwapSConnCoord,           "coord",       READ(swapSConnMode)},
    {"swapSConnMode",       BexSwapSConnCPin,            "cpin",        READ(swapSConnMode)},
    {"chgNetLabelScope",    BexChgNetLabelAllNet,        "allNet",      READ(chgNetLabelScope)},
    {"chgNetLabelScope",    BexChgNetLabelSelected,      "Selected",    READ(chgNetLabelScope)},
    {"chgNetLabelScope",    BexChgNetLabelNeighboring,   "Neighboring", READ(chgNetLabelScope)},
    {"chgNetLabelScope",    BexChgNetLabelConnection,    "Connection",  READ(chgNetLabelScope)},
    {"cpsSelectMode",       BexCpsSelectNone,            "none",        READ(cpsSelectMode)},
    {"cpsSelectMode",       BexCpsSelectCenter,          "center",      READ(cpsSelectMode)},
    {"cpsSelectMode",       BexCpsSelectAdjust,          "adjust",      READ(cpsSelectMode)},
    {"cpsSearchMode",       BexCpsSearchOpenSheet,       "openSheet",   READ(cpsSearchMode)},
    {"cpsSearchMode",       BexCpsSearchToFind,          "toFind",      READ(cpsSearchMode)},
    {"cpsSearchMode",       BexCpsSearchAllSheet,        "allSheet",    READ(cpsSearchMode)},
    {"UnloadedSymbolCheck", BexUnloadSymbCheckOff,       "Off",         READ(UnloadedSymbolCheck)},
    {"UnloadedSymbolCheck", BexUnloadSymbCheckOnly,      "check",       READ(UnloadedSymbolCheck)},
    {"UnloadedSymbolCheck", BexUnloadSymbCheckLoad,      "load",        READ(UnloadedSymbolCheck)},
    {"BlockCheckTiming",    BexBlockCheckBoth,           "Both",        READ(BlockCheckTiming)},
    {"BlockCheckTiming",    BexBlockCheckSheetOpen,      "SheetOpen",   READ(BlockCheckTiming)},
    {"BlockCheckTiming",    BexBlockCheckSheetSave,      "SheetSave",   READ(BlockCheckTiming)},
    {"BlockCheckTiming",    BexBlockCheckNone,           "None",        READ(BlockCheckTiming)},
    {"dFocus",              BexPropertyViewerObject,     "pViewer",     READ(dFocus)},
};
// clang-format on

TEST_F(EditorModes, HaveTheNumbersOfTheirWords) {
    const Resource envrc = fresh();
    for (const ChoiceRow& row : choices) {
        SCOPED_TRACE(std::string(row.key) + " " + row.word);
        EXPECT_TRUE(envrc->set(row.key, row.word));
        EXPECT_EQ(row.read(*envrc), row.value);
        EXPECT_EQ(valueIn(*envrc, row.key), row.word);
    }
}

} // namespace
} // namespace bexa::test
