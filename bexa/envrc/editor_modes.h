// The choices of the editors' settings. The numbers are those of the words in files (see BexEnum): never change one.
#pragma once

// How the area of a selection meets an object.
enum BexPickType : int { BexPickInter = 0, BexPickOverLap = 1 };

// How the next net or bus, line, and circle is drawn.
enum BexNetInputType : int { BexNetInputManual = 0, BexNetInputSemiAuto = 1, BexNetInputAuto = 2 };
enum BexLineInputType : int { BexLineInputManual = 0, BexLineInputSemiAuto = 1 };
enum BexCircleInputType : int { BexCircleInputCenter = 0, BexCircleInputRadius = 1, BexCircleInputEdge = 2 };

// The shape of the place where a net leaves a bus, and the way it turns.
enum BexRipperStyle : int { BexRipperNone = 0, BexRipperHook = 1, BexRipperCurl = 2 };
enum BexRipperDir : int { BexRipperCW = 0, BexRipperCCW = 1 };

// How zones move by themselves.
enum BexZoneAutoOffset : int {
    BexZoneOffsetOff = 0,
    BexZoneOffsetCenterEnd = 1,
    BexZoneOffsetCenterCross = 2,
};

// What goes into the copy buffer with net labels and references. Mind the sense: "On" is 0.
enum BexCBufWithMode : int {
    BexCBufWithOn = 0,
    BexCBufWithOff = 1,
    BexCBufWithCopy = 2,
    BexCBufWithCut = 3,
};

// How coordinates are shown while drawing, and where.
enum BexMeasureDisp : int { BexMeasureNoDisp = 0, BexMeasureAbsolute = 1, BexMeasureRelative = 2 };
enum BexMeasurePos : int { BexMeasureMovable = 0, BexMeasureFixed = 1 };

// What keeps a connection when components are swapped.
enum BexSwapSConnMode : int { BexSwapSConnCoord = 0, BexSwapSConnCPin = 1 };

// Which nets a change of a net label reaches.
enum BexChgNetLabelScope : int {
    BexChgNetLabelAllNet = 0,
    BexChgNetLabelSelected = 1,
    BexChgNetLabelNeighboring = 2,
    BexChgNetLabelConnection = 3,
};

// How a selected component is brought into view, and where it is looked for.
enum BexCpsSelectMode : int { BexCpsSelectNone = 0, BexCpsSelectCenter = 1, BexCpsSelectAdjust = 2 };
enum BexCpsSearchMode : int { BexCpsSearchOpenSheet = 0, BexCpsSearchToFind = 1, BexCpsSearchAllSheet = 2 };

// What happens to symbols that are not loaded.
enum BexUnloadSymbCheck : int {
    BexUnloadSymbCheckOff = 0,
    BexUnloadSymbCheckOnly = 1,
    BexUnloadSymbCheckLoad = 2,
};

// When blocks are checked.
enum BexBlockCheckTiming : int {
    BexBlockCheckBoth = 0,
    BexBlockCheckSheetOpen = 1,
    BexBlockCheckSheetSave = 2,
    BexBlockCheckNone = 3,
};
