// The circuit resource: the settings of one circuit.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <memory>

class Yangle;

namespace bexa::detail {
struct DatarcFields;
struct RscAccess;
} // namespace bexa::detail

// The settings of one circuit, read from its resource file: the delimiters of names, the unit, the tables of
// text, line and fill styles, the palette, the default index of each kind of object and the directories of
// the design.
//
// An object lives from open() to close(). Lengths are decimal numbers in the unit of the file, handed out as
// whole coordinates by encode(). Operations with a boolean word return nonzero for success and 0 for failure.
// An output pointer of a reader may be null unless said otherwise: that output is left out.
//
// The file reader is tolerant and the setters are strict: the reader clamps or passes over what a setter
// refuses.
class BEXA_API BexDatarc {
public:
    // Makes an object with the built-in values and, except for BexOpenCreate, reads `fileName` into it. Null
    // for a null or empty file name, when the state of the file doesn't fit `mode`, and when the load fails;
    // the file is untouched. End the object with close().
    //
    // `currentDir` says where the circuit is, the place that "." and $CIRCUIT_PATH refer to:
    //   null                           directory "." and name "noname.cir"
    //   a path that ends in ".cir"     its directory and its last component
    //   one that ends in ".smb"        its directory and an empty name
    //   an existing regular file       its directory and an empty name
    //   anything else                  the path itself and an empty name
    // Suffixes count in any case of letters.
    //
    // The environment is asked too: YDS_SIMPLE_ARRAY, if set, switches the simple array on; YDS_DATE_FORMAT
    // and YDS_TIME_FORMAT replace the built-in formats. What the environment gave is written by the next
    // save.
    static BexDatarc* open(const char* fileName, BexOpenMode mode, const char* currentDir);

    // Ends the object, saving it as `mode` says. On failure (BexCloseSave of a read-only object, or a failed
    // save) the object stays alive.
    static unsigned long close(BexDatarc* object, BexCloseMode mode);

    // Writes the file the object was opened with; false for BexOpenRead. An object made with BexOpenCreate
    // stays in that mode, so a second save() fails because the file exists by now: use saveAs().
    unsigned long save() const;
    // Writes the whole file in place, after the test of `mode`. The object keeps its own path and mode.
    unsigned long saveAs(const char* fileName, BexSaveMode mode) const;

    // A full copy. Since objects end through close() alone, make it with `new`.
    BexDatarc(const BexDatarc& other);
    // Takes the settings of `other` over, but goes on saving to its own file in its own mode.
    // Kept on purpose: the simple array setting of the target becomes the overwrite-port setting of the
    // source.
    BexDatarc& operator=(const BexDatarc& other);

    // ---- Identity

    const char* fileName() const;
    BexOpenMode openMode() const;
    const char* currentName() const;
    const char* currentDir() const;
    // A null or empty name stores "noname.cir".
    void currentName(const char* name);
    // A path that ends in ".cir" (in any case of letters) is split into directory and name; any other becomes
    // the directory, with the name "noname.cir"; null stores "." and "noname.cir". Kept on purpose: unlike
    // open(), nothing else is tested.
    void currentDir(const char* dir);

    // ---- Scaling by the factor of the unit in use

    // Rounds half away from zero. What no `long` holds gives the nearest one, NaN gives 0.
    long encode(double value) const;
    // 0.0 when the factor is 0.
    double decode(long value) const;

    // ---- Characters of the name notation; NUL means not defined

    char nlogicStartChar() const;
    char nlogicEndChar() const;
    char busStartChar() const;
    char busEndChar() const;
    char bitEndChar() const;
    char rangeEndChar() const;
    char rangeStepChar() const;

    // ---- Lengths, encoded

    long nodeSize() const;
    long cornerRadius() const;
    long dataTrap() const;

    // ---- Default indices: colours; defaultCompColor() is -1 for none

    int defaultCompColor() const;
    unsigned int defaultFrameColor() const;
    unsigned int defaultNetColor() const;
    unsigned int defaultBusColor() const;
    unsigned int defaultLineColor() const;
    unsigned int defaultCircleColor() const;
    unsigned int defaultTextColor() const;
    unsigned int defaultPropBoxColor() const;
    unsigned int defaultSymbSheetColor() const;
    unsigned int defaultSchmSheetColor() const;
    unsigned int defaultSymbFrameColor() const;

    // ---- Default indices: line widths, line styles, fill styles, text styles

    unsigned int defaultLineWidth() const;
    unsigned int defaultFrameLineWidth() const;
    unsigned int defaultNetLineWidth() const;
    unsigned int defaultBusLineWidth() const;
    unsigned int defaultCircleLineWidth() const;
    unsigned long defaultLineStyle() const;
    unsigned long defaultFrameLineStyle() const;
    unsigned long defaultNetLineStyle() const;
    unsigned long defaultBusLineStyle() const;
    unsigned long defaultCircleLineStyle() const;
    unsigned int defaultFillStyle() const;
    unsigned int defaultCircleFillStyle() const;
    unsigned int defaultTextFont() const;
    unsigned int defaultPropBoxFont() const;

    // ---- Display

    // The property display number, -1 or above.
    int propDispNum() const;
    // 1 visible, 0 not visible.
    int contentsViewer() const;
    int contentsFrameIsVisible() const;
    // Component types that stay hidden, joined by a vertical bar.
    YString contentsUnvisibleCmpType() const;
    // The property and the value that mark a part as not mounted, and how such a part is shown: 0 normal, 1
    // not at all, 2 grid, 3 dashed. The "npl" forms are those of the net-list side.
    YString noMountAliasName() const;
    YString noMountAliasValue() const;
    unsigned int noMountDispStyle() const;
    YString nplNoMountCompAliasName() const;
    YString nplNoMountCompAliasValue() const;
    unsigned int nplNoMountCompDispStyle() const;

    // ---- Modes. Each setter also makes the setting one that the writer writes.

    // The variation mark and the property that carries it. The reader gives false, and no output, when the
    // mark is in use but one of its texts is empty, and when `mark` or `propertyName` is null. The `char*`
    // form copies without a size limit.
    unsigned long variationMark(unsigned long& flag, char* mark, char* propertyName) const;
    unsigned long variationMark(unsigned long& flag, YString* mark, YString* propertyName) const;
    // The same reader for an object that isn't const, where the call would otherwise be ambiguous.
    unsigned long variationMark(unsigned long& flag, char* mark, char* propertyName);
    // Stores 1 for every nonzero `flag`, and both texts. Always true.
    unsigned long variationMark(unsigned long flag, const char* mark, const char* propertyName);

    // Simple display of buses and nets: 0 none, 1 both, 2 buses, 3 nets; its separator and its crown
    // character. Always true. Called with variables on an object that isn't const, it is the reader.
    unsigned long busNSimpleDispMode(int& flag, char& separator, char& crown) const;
    unsigned long busNSimpleDispMode(int& flag, char& separator, char& crown);
    unsigned long busNSimpleDispMode(int& flag, YString* separator, YString* crown) const;
    unsigned long busNSimpleDispMode(const int& flag, char separator, char crown);

    unsigned long useBusAlias() const;
    // Takes any value; the file has words for 0 and 1 alone, and any other is written as an empty text.
    // Always true.
    unsigned long useBusAlias(unsigned long value);

    unsigned int createInstNetLabelMode() const;
    // Always true.
    unsigned long createInstNetLabelMode(unsigned int value);

    // 0 normal, 1 hard.
    unsigned int sheetNetErrorLevel() const;
    // Always true.
    unsigned long sheetNetErrorLevel(unsigned int value);

    // A value of BexEnum::BexOverWritePortMode.
    unsigned int overwritePortMode() const;
    // False for a value above 3.
    unsigned long overwritePortMode(unsigned int value);

    unsigned long simpleArrayMode() const;
    // Kept on purpose: the mode can only be switched on. Any value but 1 changes nothing. Always true.
    unsigned long simpleArrayMode(unsigned long value);

    YString dateFormat() const;
    YString timeFormat() const;
    // A null or empty text changes nothing. Always true.
    unsigned long dateFormat(const char* format);
    unsigned long timeFormat(const char* format);

    // ---- Settings by key

    // Each overload takes the keys of the file whose values have its type, in any case of letters;
    // precisionTblNo selects the unit. False, with nothing changed, for a value out of range (an index must
    // lie within its table) and for any other key. The two `short` arguments have no effect.
    unsigned long set(const char* key, long value, short, short);
    unsigned long set(const char* key, double value, short, short);
    // Kept on purpose: this overload returns true for a key that it doesn't know, and stores nothing.
    unsigned long set(const char* key, const char* value, short, short);
    unsigned long set(const char* key, char value, short, short);

    // ---- Tables: counts

    unsigned int precisionNumber() const; // the index of the unit in use
    unsigned int precisionCount() const;
    unsigned int colorCount() const;
    unsigned int textSizeCount() const;
    unsigned int lineWidthCount() const;
    unsigned int lineStyleCount() const;
    unsigned int fillStyleCount() const;
    unsigned int symbPathCount() const;
    unsigned int contPathCount() const;
    unsigned int lcdbPathCount() const;

    // ---- Tables: row readers. False for an index at or beyond the count.

    // `name` is filled without a size limit.
    unsigned long precision(unsigned int index, char* name, unsigned int* factor, double* scale) const;
    // False when the palette isn't valid. The index isn't tested: past the end the name is empty. The
    // components are 255 whatever the palette holds, they have no role here.
    unsigned long color(unsigned int index, short* red, short* green, short* blue, YString* name) const;
    unsigned long color(unsigned int index, YString* name) const;
    // The sizes are encoded.
    unsigned long textSize(unsigned int index, long* size1, long* size2, long* size3, long* size4,
                           long* size5, YString* name) const;
    // The font files of a text style, relative to the installation where the row leaves the choice to the
    // system.
    unsigned long textFontFile(unsigned int index, YString* singleByteFont, YString* doubleByteFont) const;
    // Whether the double-byte font of the row is one of the vector fonts for Korean ("kor") or Chinese
    // ("chn"), told by the file's name alone; false for any other language.
    unsigned long isExtraFont(unsigned int index) const;
    unsigned long isLangExtraFont(unsigned int index, const char* lang) const;
    // The language of such a font, null for any other font. `form` 1 gives "korean", 2 "KOREAN", 3 "KOR", 4
    // "Korean", 5 "Kor", any other "kor"; for Chinese alike.
    const char* isLangFontStr(unsigned int index, unsigned int form) const;
    // Encoded.
    unsigned long lineWidth(unsigned int index, long* width) const;
    // Encoded. Row 0 gives zeros whatever it holds, row 1 gives a zero for the third length.
    unsigned long lineStyle(unsigned long index, long* length1, long* length2, long* length3,
                            YString* name) const;
    // Pitches encoded, angles in radians; what the type gives no role is 0. False also for a type above 3,
    // which is then the only output.
    unsigned long fillStyle(unsigned int index, unsigned long* type, long* pitch1, long* pitch2,
                            Yangle* angle1, Yangle* angle2, YString* name) const;

    // ---- Tables: row setters. Sizes, lengths, widths and pitches are in units of the file, at most 100000.
    //
    // False for an index beyond the limit told here, a null text or a number out of range. A row beyond the
    // end is stored behind rows that repeat row 0, and fails on an empty table. Kept on purpose: the table
    // grows before the values are tested, so a refused call may leave it grown; and of the index only the low
    // 16 bits count.

    // Rows 0 and 1; a factor of at most 100000, a scale from 0.0 to 100000.0.
    unsigned long precision(unsigned int index, const char* name, unsigned int factor, double scale);
    // Rows 0 to 15, named through the palette; false when it isn't valid. The components are not stored.
    unsigned long color(unsigned int index, short red, short green, short blue, const char* name);
    unsigned long color(unsigned int index, const char* name);
    // Rows 0 to 255; size1 and size2 above 0. A null or empty font is stored as "-".
    unsigned long textSize(unsigned int index, double size1, double size2, double size3, double size4,
                           double size5, const char* name, const char* singleByteFont,
                           const char* doubleByteFont);
    // Rows 0 to 4. Kept on purpose: rows of a gap hold the encoded number of row 0, with no way back to the
    // unit.
    unsigned long lineWidth(unsigned int index, double width);
    // Rows 0 to 3. Kept on purpose: row 0 is never changed, and the result is true.
    unsigned long lineStyle(unsigned long index, double length1, double length2, double length3,
                            const char* name);
    // Rows 0 to 255; a type of at most 3, angles from 0.0 to below 360.0 degrees. Row 0 always gets type 0.
    // Kept on purpose: rows of a gap hold the encoded pitches of row 0, as line widths do.
    unsigned long fillStyle(unsigned int index, unsigned long type, double pitch1, double pitch2,
                            double angle1, double angle2, const char* name);
    // Rows 0 to 511 for symbols and contents, 0 to 255 for component libraries. An empty path becomes "."; an
    // empty name with an empty path removes the row if it is the last one, save row 0 of the libraries.
    // Kept on purpose: the setters take the name first, though the readers give the path first; and rows of a
    // gap are named "-" and take the expanded path of row 0, those of the libraries the one of the contents.
    unsigned long symbPath(unsigned int index, const char* name, const char* path);
    unsigned long contPath(unsigned int index, const char* name, const char* path);
    unsigned long lcdbPath(unsigned int index, const char* name, const char* path);

    // ---- Directories of symbols, contents and component libraries. False for an index at or beyond the
    // count.
    //
    // The plain readers expand the stored path: one that begins with "." stands below currentDir(); one that
    // begins with $NAME below the value of that variable, an unset one being empty, or for $CIRCUIT_PATH
    // below currentDir() and currentName(); anything else is taken as it stands. The "pure" readers give the
    // stored path.
    //
    // Kept on purpose: the `char*` forms copy at most size - 1 bytes and write the terminator at position
    // `size`, so a buffer must have room for size + 1 bytes; the byte at size - 1 keeps what it held. A size
    // of 0 or a null pointer leaves that output out.
    unsigned long pureSymbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                               unsigned int nameSize) const;
    unsigned long pureSymbPath(unsigned int index, YString* path, YString* name) const;
    unsigned long symbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                           unsigned int nameSize) const;
    unsigned long symbPath(unsigned int index, YString* path, YString* name) const;
    unsigned long pureContPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                               unsigned int nameSize) const;
    unsigned long pureContPath(unsigned int index, YString* path, YString* name) const;
    unsigned long contPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                           unsigned int nameSize) const;
    unsigned long contPath(unsigned int index, YString* path, YString* name) const;
    unsigned long pureLcdbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                               unsigned int nameSize) const;
    unsigned long pureLcdbPath(unsigned int index, YString* path, YString* name) const;
    unsigned long lcdbPath(unsigned int index, char* path, unsigned int pathSize, char* name,
                           unsigned int nameSize) const;
    unsigned long lcdbPath(unsigned int index, YString* path, YString* name) const;

private:
    friend struct bexa::detail::RscAccess;

    BexDatarc(const char* fileName, BexOpenMode mode, const char* currentDir);
    ~BexDatarc();

    unsigned long load();
    unsigned long save(const char* path) const;

    // Make the row `index` exist, filling a gap from row 0. False beyond the limit and on an empty table.
    unsigned long checkPrecisionTable(short index);
    unsigned long checkTextSizeTable(short index);
    unsigned long checkLineWidthTable(short index);
    unsigned long checkLineStyleTable(short index);
    unsigned long checkFillStyleTable(short index);
    unsigned long checkSymbPathTable(short index);
    unsigned long checkContPathTable(short index);
    unsigned long checkLcdbPathTable(short index);

    std::unique_ptr<bexa::detail::DatarcFields> fields_;
};
