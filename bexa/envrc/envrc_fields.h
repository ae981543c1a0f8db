// The settings of an environment resource, with their built-in values. Internal.
#pragma once

#include "bexa/envrc/editor_modes.h"
#include "bexa/envrc/sheet_tables.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <utility>

namespace bexa::detail {

template <class Table, class Row>
Table tableOfOneRow(Row&& row) {
    Table table;
    table.end() = std::forward<Row>(row);
    return table;
}

} // namespace bexa::detail

// A field has the name of its reader in BexEnvrc. Lengths are in millimetres and angles in degrees; flags are 1 for
// "On" and 0 for "Off", and what is written as another word is an int. A presence word ("...Set") becomes 1 when the
// environment, the file or a setter gives the setting, and only then is the setting written.
struct BexEnvrcData {
    YString dProject = ".";

    int screenTrap = 5;
    double panRatio = 0.2;
    double zoomRatio = 1.25;
    int dFocus = BexMainObject;
    int areaMode = BexPickOverLap;
    double roundRectCornerRadius = 1.0;
    double adjustRatio = 1.8;

    BexGridRow_Array gridTable = bexa::detail::tableOfOneRow<BexGridRow_Array>(BexGridRow{1, 4, 10.0, 10.0});
    unsigned long inputGrid = 1;
    unsigned long echoGrid = 1;
    unsigned int gridColor = 0;
    BexSheetSizeRow_Array symSheetSizeTable = bexa::detail::tableOfOneRow<BexSheetSizeRow_Array>(
        BexSheetSizeRow{"sym", 0.0, 0.0, 10.0, 10.0, 0, "-"});
    unsigned long symSheetDispFlag = 1;
    unsigned int symSheetSizeColor = 0;
    BexSheetSizeRow_Array schSheetSizeTable = bexa::detail::tableOfOneRow<BexSheetSizeRow_Array>(
        BexSheetSizeRow{"sch", 0.0, 0.0, 297.0, 210.0, 0, "waku"});
    unsigned long schSheetDispFlag = 1;
    unsigned int schSheetSizeColor = 0;
    BexSheetAttrRow_Array schSheetAttrTable;

    int symbolPath = 0;
    double cScale = 1.0;
    unsigned long cPvScaleFlag = 1;
    double cAngle = 0.0;
    unsigned long cSearchFlag = 1;
    unsigned long cCutinFlag = 0;

    int netInputMode = BexNetInputManual;
    unsigned long nSearchFlag = 1;
    double netTheta = 90.0;
    int ripperStyle = BexRipperNone;
    int ripperDir = BexRipperCW;

    int pvJustify = 0;
    double pvAngle = 0.0;
    int pvDispMode = 0;
    double pvOffsetFromObjX = 2.0;
    double pvOffsetFromObjY = 2.0;

    int lineInputMode = BexLineInputManual;
    double lineTheta = 0.0;
    int circleInputMode = BexCircleInputCenter;
    double circleRadius = 10.0;
    int textJustify = 0;
    double textAngle = 0.0;
    unsigned long sPinDispFlag = 1;

    double zonePitchX = 50.0;
    double zonePitchY = 50.0;
    char zoneStartTextX = 'A';
    char zoneStartTextY = '1';
    int zoneOrigin = 2;
    unsigned long zoneDispFlag = 1;
    double zoneOffsetX = 0.0;
    double zoneOffsetY = 0.0;
    int zoneOffsetMode = BexZoneOffsetOff;

    unsigned long compIDDispFlag = 0;
    unsigned long netIDDispFlag = 0;
    unsigned long cPinIDDispFlag = 0;
    unsigned long sPinIDDispFlag = 0;
    unsigned long pvIDDispFlag = 0;

    unsigned int backupTime = 10;
    unsigned int undoLimit = 50;
    YString logfile = "logfile";

    int busInputMode = BexNetInputManual;
    unsigned long bSearchFlag = 0;
    unsigned int openCheckMarkColor = 2;
    unsigned long openCheckFlag = 1;

    unsigned long slide = 0;
    unsigned long mvSearchFlag = 0;
    unsigned long mvPvGridFlag = 0;
    unsigned long cpSearchFlag = 0;
    unsigned long mcpSearchFlag = 0;
    unsigned long deleteWithNet = 0;
    unsigned long pasteSearchFlag = 0;
    int cbufWithNetLabel = BexCBufWithOn;
    int cbufWithReference = BexCBufWithOn;

    unsigned long liftPointCPin = 1;
    unsigned long dispRoute = 0;
    unsigned int measureColor = 1;
    YString measureFontForUNIX = "7x14"; // goes from file to file, nothing hands it out
    YString measureFont = "FixedSys/12/Normal";
    int measureDisp = BexMeasureNoDisp;
    int measurePos = BexMeasureMovable;

    unsigned long netDupCheck = 1;
    int swapSConnMode = BexSwapSConnCoord;
    unsigned long swapSDisconnChgPin = 0;
    unsigned int cpNetLabelIncrement = 1;
    unsigned long dynamicScroll = 1;

    int chgNetLabelScope = BexChgNetLabelNeighboring;
    unsigned long chgNetLabelDispFlag = 1;
    unsigned long chgNetLabelAutoRefMode = 0;
    unsigned int chgNetLabelListWidthSize = 30;
    unsigned int chgNetLabelListHeightSize = 5;
    unsigned long chgNetLabelViewSelectBusLabel = 1;
    unsigned long selectNetDialogBootMode = 0;
    int cpsSelectMode = BexCpsSelectNone;
    int cpsSearchMode = BexCpsSearchOpenSheet;

    int UnloadedSymbolCheck = BexUnloadSymbCheckLoad;
    unsigned long UpdatedSymbolCheck = 1;
    int BlockCheckTiming = BexBlockCheckBoth;
    unsigned int symbDefaultcompType = 0;
    unsigned long saveArea = 1;
    unsigned long moveSignModeSet = 0;
    int moveSignMode = 0;
    unsigned long dynamicPan = 0;
    int autoSaveRuleCheck = 0;
    unsigned long autoSaveReload = 0;
    YString autoSaveReloadKeyName = "partName";
    YString autoSaveReloadRscFile;
    unsigned long zipTextSet = 0;
    unsigned long zipText = 0;
    unsigned long doNotSelectUnivisiblePboxSet = 0;
    unsigned long doNotSelectUnivisiblePbox = 0;
};
