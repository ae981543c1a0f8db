// The palette: the colour names of the suite.
#pragma once

#include "bexa/circuitrc/resource_tables.h"
#include "bexa/export.h"

class YioRscLoad;

// A table of colours, the index being the colour number, and the file it came from. Only the names are
// configured: a row that a file or a setter writes gets the components 255, 255, 255.
//
// The object reads its file when it is made: `bexcolor.rsc` in the user's directory, else in the
// installation. It is valid when one of them could be read, and nothing later makes it valid. Without a file
// the built-in rows stand: "black", "white", "red" and twelve more "white".
class BEXA_API BexColor : public BexColorTable {
public:
    BexColor();
    BexColor(const BexColor&) = default;
    BexColor& operator=(const BexColor&) = default;
    ~BexColor() = default;

    // True when the palette was read from a file.
    unsigned long isValid() const;

    // The number of rows, the built-in ones included, valid or not.
    int colorCount() const;

    // The name of a colour. Outside the table it is an empty text, and the table stays as it is.
    const YString& color(int index) const;

    // Names a colour; a gap in front of it is filled with rows named "-". False for an index outside 0 to 15,
    // even if the file gave the table more rows, and for a null name, which may leave the table grown.
    unsigned long color(int index, const char* name);

    // Writes the table to the file it was read from. False when there is none, or when it can't be opened.
    // Kept on purpose: the file has five columns, and a palette is read from two, so a written file is
    // refused by the next reader.
    unsigned long save();

private:
    unsigned long loadColorTable();
    unsigned long loadColorTable(YioRscLoad& reader);
    unsigned long loadFrom(const YString& path);
    unsigned long checkColorTable(int index);

    YString fileName_; // empty: no file
};
