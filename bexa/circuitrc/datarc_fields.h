// What a circuit resource holds, with its built-in values. Internal.
#pragma once

#include "bexa/circuitrc/palette.h"
#include "bexa/circuitrc/resource_tables.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <utility>

namespace bexa::detail {

template <class Table, class... Rows>
Table tableOf(Rows&&... rows) {
    Table table;
    ((table.end() = std::forward<Rows>(rows)), ...);
    return table;
}

// A field has the name of its key in the file, where it has one. A presence word ("...Set") becomes 1 when
// the environment, the file or a setter gives the setting, and only then is the setting written.
struct DatarcFields {
    YString fileName;
    BexOpenMode openMode = BexOpenRead;

    BexPrecisionTable precisionTable = tableOf<BexPrecisionTable>(BexPrecisionElem("mm", 1000, 1.0));
    unsigned int precisionNumber = 0;

    char nlogicStartChar = '(';
    char nlogicEndChar = ')';
    char busStartChar = '[';
    char busEndChar = ']';
    char bitEndChar = ',';
    char rangeEndChar = '-';
    char rangeStepChar = '-';
    double nodeSize = 2.0;
    double cornerRadius = 10.0;

    BexColor color;
    BexTextSizeTable textTable =
        tableOf<BexTextSizeTable>(BexTextSizeElem(10.0, 10.0, 0.0, 0.0, 0.0, "def", "-", "-"));
    BexLineWidthTable lineWidth = tableOf<BexLineWidthTable>(0.0);
    // Kept on purpose: the two last styles hold the same numbers and differ only by name.
    BexLineStyleTable lineStyleTable = tableOf<BexLineStyleTable>(
        BexLineStyleElem(0.0, 0.0, 0.0, "solid"), BexLineStyleElem(10.0, 10.0, 0.0, "dash"),
        BexLineStyleElem(10.0, 2.0, 5.0, "dash1"), BexLineStyleElem(10.0, 2.0, 5.0, "dash2"));
    BexFillStyleTable fillStyleTable = tableOf<BexFillStyleTable>(
        BexFillStyleElem(0, 0.0, 0.0, 0.0, 0.0, "none"), BexFillStyleElem(1, 0.0, 0.0, 0.0, 0.0, "solid"));

    int defaultCompColor = -1;
    unsigned int defaultFrameColor = 0;
    unsigned int defaultNetColor = 0;
    unsigned int defaultBusColor = 0;
    unsigned int defaultLineColor = 0;
    unsigned int defaultCircleColor = 0;
    unsigned int defaultTextColor = 0;
    unsigned int defaultPropertyColor = 0;
    unsigned int defaultSymbSheetColor = 0;
    unsigned int defaultSchmSheetColor = 0;
    unsigned int defaultSymbFrameColor = 13;
    unsigned int defaultLineWidth = 0;
    unsigned int defaultFrameLineWidth = 0;
    unsigned int defaultNetLineWidth = 0;
    unsigned int defaultBusLineWidth = 0;
    unsigned int defaultCircleLineWidth = 0;
    unsigned long defaultLineStyle = 0;
    unsigned long defaultFrameLineStyle = 0;
    unsigned long defaultNetLineStyle = 0;
    unsigned long defaultBusLineStyle = 0;
    unsigned long defaultCircleLineStyle = 0;
    unsigned int defaultFillStyle = 0;
    unsigned int defaultCircleFillStyle = 0;
    unsigned int defaultTextFont = 0;
    unsigned int defaultPropertyFont = 0;
    double dataTrap = 0.5;

    BexPathTable symbPathTable = tableOf<BexPathTable>(BexPathElem("current", "."));
    BexPathTable contPathTable = tableOf<BexPathTable>(BexPathElem("current", "."));
    BexPathTable lcdbPathTable = tableOf<BexPathTable>(BexPathElem("system", "."));
    YPathName currentDir;
    YPathName currentName;

    int propDispNum = -1;
    int contentsViewer = 1;
    int contentsFrameIsVisible = 1;
    YString contentsUnvisibleCmpType = "None";
    unsigned long vmarkFlag = 0;
    YString vmarkStr = "*";
    YString vmarkPname = "reference";
    YString noMountAliasName = "noMount";
    YString noMountAliasValue;
    YString nplNoMountCompAliasName = "noMountComponent";
    YString nplNoMountCompAliasValue;
    unsigned int noMountDispStyle = 0;
    unsigned int nplNoMountCompDispStyle = 0;

    unsigned long busNSimpleDispSet = 0;
    int busNSimpleDispFlag = 0;
    char busNSimpleDispSepChar = '_';
    char busNSimpleDispCrownChar = '*';
    unsigned long useBusAliasSet = 0;
    unsigned long useBusAliasFlag = 0;
    unsigned long createNetLabelSet = 0;
    unsigned int createNetLabelFromDefRef = 0;
    unsigned long sheetNetErrorLevelSet = 0;
    unsigned int sheetNetErrorLevel = 0;
    unsigned long overwritePortModeSet = 0;
    unsigned int overwritePortMode = 0;
    unsigned long simpleArraySet = 0;
    unsigned long simpleArray = 0;
    unsigned long dateFormatSet = 0;
    YString dateFormat = "YY/MM/DD";
    unsigned long timeFormatSet = 0;
    YString timeFormat = "HH:MM:SS";
};

} // namespace bexa::detail
