// The index-addressed tables of a circuit resource. What a design stores is the index of a row, so a row must
// not move. The tables are plain arrays of the array family: limits and built-in rows are their owner's
// business.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <utility>

// A named directory. The path is kept as configured: relative, absolute, or beginning with a variable
// ($NAME/rest).
//
// The constructor from texts, the copy constructor and the copying assignment bring the path to its canonical
// form: an empty path becomes "."; any other gets "./" in front unless BexDataFile::pathIsExchanged says that
// it needs none, and then goes through BexFile::extChange. The default constructor stores its literals, and
// moving keeps the path as it is.
class BEXA_API BexPathElem {
public:
    using BytesMayMove = BexPathElem;

    BexPathElem() = default;
    BexPathElem(YString name, YString path);
    BexPathElem(const BexPathElem& other);
    BexPathElem(BexPathElem&&) noexcept = default;
    BexPathElem& operator=(const BexPathElem& other);
    BexPathElem& operator=(BexPathElem&&) noexcept = default;
    ~BexPathElem() = default;

    YString name = "current"; // the directory's name for the user
    YString path = ".";
};

// A unit and its scale.
class BexPrecisionElem {
public:
    using BytesMayMove = BexPrecisionElem;

    BexPrecisionElem() = default;
    BexPrecisionElem(YString name, unsigned int factor, double scale)
        : name(std::move(name)),
          factor(factor),
          scale(scale) {}

    YString name = "def";
    unsigned int factor = 1; // how many stored whole numbers make one unit
    double scale = 1.0;      // kept for the drawing programs; nothing here computes with it
};

// An entry of the palette. The components run from 0 to 255.
class BexColorElem {
public:
    using BytesMayMove = BexColorElem;

    BexColorElem() = default;
    BexColorElem(unsigned short red, unsigned short green, unsigned short blue, YString name)
        : name(std::move(name)),
          red(red),
          green(green),
          blue(blue) {}

    YString name = "black";
    unsigned short red = 0;
    unsigned short green = 0;
    unsigned short blue = 0;
};

// A colour by name alone.
class BexColorNameElem {
public:
    using BytesMayMove = BexColorNameElem;

    BexColorNameElem() = default;
    BexColorNameElem(YString name)
        : name(std::move(name)) {} // NOLINT(google-explicit-constructor): a name is a row

    YString name;
};

// A text style: five measures in units of the resource file and two font files. The font file "-" stands for
// the built-in choice, see BexDatarc::textFontFile.
class BexTextSizeElem {
public:
    using BytesMayMove = BexTextSizeElem;

    BexTextSizeElem() = default;
    BexTextSizeElem(double size1, double size2, double size3, double size4, double size5, YString name,
                    YString singleByteFont, YString doubleByteFont)
        : name(std::move(name)),
          singleByteFont(std::move(singleByteFont)),
          doubleByteFont(std::move(doubleByteFont)),
          size1(size1),
          size2(size2),
          size3(size3),
          size4(size4),
          size5(size5) {}

    YString name;
    YString singleByteFont;
    YString doubleByteFont;
    double size1 = 0.0;
    double size2 = 0.0;
    double size3 = 0.0;
    double size4 = 0.0;
    double size5 = 0.0;
};

// A dash pattern, in units of the resource file. The index of the row fixes how many lengths count: none in
// row 0, the solid line, two in row 1, three in rows 2 and 3.
class BexLineStyleElem {
public:
    using BytesMayMove = BexLineStyleElem;

    BexLineStyleElem() = default;
    BexLineStyleElem(double length1, double length2, double length3, YString name)
        : name(std::move(name)),
          length1(length1),
          length2(length2),
          length3(length3) {}

    YString name;
    double length1 = 0.0;
    double length2 = 0.0;
    double length3 = 0.0;
};

// A fill pattern. `type` is 0 no fill, 1 solid, 2 one set of lines, 3 two sets; numbers without a role are 0.
class BexFillStyleElem {
public:
    using BytesMayMove = BexFillStyleElem;

    BexFillStyleElem() = default;
    BexFillStyleElem(unsigned short type, double pitch1, double pitch2, double angle1, double angle2,
                     YString name)
        : name(std::move(name)),
          type(type),
          pitch1(pitch1),
          pitch2(pitch2),
          angle1(angle1),
          angle2(angle2) {}

    YString name;
    unsigned short type = 0;
    double pitch1 = 0.0; // the distances of the line sets, in units of the resource file
    double pitch2 = 0.0;
    double angle1 = 0.0; // their directions, in degrees
    double angle2 = 0.0;
};

class BexPathTable : public bexa::ArrayOf<BexPathElem, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexPrecisionTable : public bexa::ArrayOf<BexPrecisionElem, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexColorTable : public bexa::ArrayOf<BexColorElem, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexColorNameTable : public bexa::ArrayOf<BexColorNameElem, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexTextSizeTable : public bexa::ArrayOf<BexTextSizeElem, 256> {
public:
    using ArrayOf::ArrayOf;
};

// Line widths in units of the resource file. Rows of a gap are 0.0.
class BexLineWidthTable : public bexa::ArrayOf<double, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexLineStyleTable : public bexa::ArrayOf<BexLineStyleElem, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexFillStyleTable : public bexa::ArrayOf<BexFillStyleElem, 256> {
public:
    using ArrayOf::ArrayOf;
};
