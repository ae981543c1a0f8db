// The tables of an environment resource: grids, sheet sizes and the attributes of schematic sheets. They are plain
// arrays of the array family; limits and built-in rows are their owner's business.
#pragma once

#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"

// A grid. Lengths in millimetres.
struct BexGridRow {
    int firstCount = 0;
    int secondCount = 0;
    double firstLength = 0.0;
    double secondLength = 0.0;
};

// A size that a sheet may have. Lengths in millimetres.
struct BexSheetSizeRow {
    using BytesMayMove = BexSheetSizeRow;

    YString name;
    double originX = 0.0; // may be negative
    double originY = 0.0;
    double width = 0.0;
    double height = 0.0;
    unsigned short frameNo = 0; // the drawing frame, of schematic sheets alone
    YString frameName;
};

// An attribute of schematic sheets.
struct BexSheetAttrRow {
    using BytesMayMove = BexSheetAttrRow;

    YString name;
    YString value;
};

class BexGridRow_Array : public bexa::ArrayOf<BexGridRow, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexSheetSizeRow_Array : public bexa::ArrayOf<BexSheetSizeRow, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexSheetAttrRow_Array : public bexa::ArrayOf<BexSheetAttrRow, 256> {
public:
    using ArrayOf::ArrayOf;
};
