// The environment resource: the settings of one user's editors.
#pragma once

#include "bexa/envrc/editor_modes.h"
#include "bexa/export.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeometry/yangle.h"

#include <memory>

class BexDatarc;
struct BexEnvrcData;

namespace bexa::detail {
struct RscAccess;
} // namespace bexa::detail

// The settings of the editors of the suite, read from a resource file of a user or a project: how the screen pans and
// zooms, which grids and sheet sizes are offered, what the next object looks like, what is checked and saved by
// itself. The library keeps these settings and acts on none of them.
//
// An object lives from open() to close(). The file holds lengths in millimetres and angles in degrees; readers hand
// out lengths in thousandths of a millimetre, by encode(), and angles as Yangle. Operations with a boolean word return
// nonzero for success and 0 for failure. Texts that readers hand out live until the setting changes.
//
// The file reader is tolerant and the setters are strict: the reader takes nearly any value, in keys of any case of
// letters, and passes over what it can't use; a setter refuses it. A file replaces the built-in values entry by entry;
// one that lacks a key leaves that setting as it is.
class BEXA_API BexEnvrc {
public:
    // Makes an object with the built-in values and, except for BexOpenCreate, reads the file at `path` into it. Null
    // for a null or empty path, when the state of the file doesn't fit `mode`, and when the file can't be read to its
    // end; the file is untouched. End the object with close().
    //
    // `datarc` may be null: it is only kept, and copied with the object. `currentDir` is as for the setter of that
    // name. The environment is asked too: YDS_ZIP_TEXT and YDS_DO_NOT_SELECT_UNVISIBLE_PBOX, if set to any text, switch
    // zipText() and doNotSelectUnivisiblePbox() on, as settings that the next save writes.
    static BexEnvrc* open(const char* path, BexOpenMode mode, BexDatarc* datarc, const char* currentDir);

    // Ends the object, saving it as `mode` says. False for null. On failure (BexCloseSave of a read-only object, or a
    // failed save) the object stays alive.
    static unsigned long close(BexEnvrc* envrc, BexCloseMode mode);

    // Writes the file the object was opened with; false for BexOpenRead. An object made with BexOpenCreate stays in
    // that mode, so a second save() fails because the file exists by now: use saveAs().
    unsigned long save() const;
    // Writes the whole file in place, after the test of `mode`. The object keeps its own path and mode, and a
    // read-only object may be saved elsewhere.
    unsigned long saveAs(const char* path, BexSaveMode mode) const;

    // Kept on purpose: a copy shares the settings of the other object. What is set through one shows in both; path,
    // mode and directory are its own. Since objects end through close() alone, make it with `new`. Both may be closed,
    // in any order.
    BexEnvrc(const BexEnvrc& other);
    // Gives this object settings of its own again, equal to those of `other`, and takes its circuit resource over. It
    // goes on saving to its own file in its own mode, and stays in its own directory.
    // Kept on purpose: the attributes of schematic sheets are not copied, the table is empty afterwards, even after an
    // assignment to itself.
    BexEnvrc& operator=(const BexEnvrc& other);

    // ---- Identity

    // The path given to open(), also after saveAs().
    const char* fileName() const;
    BexOpenMode openMode() const;
    // The directory of the design in work.
    const char* currentDir() const;
    // A path that ends in ".cir" (in any case of letters) stands for its directory, any other for itself, null for
    // ".".
    void currentDir(const char* dir);

    // ---- Scaling by 1000, the thousandths of a millimetre

    // Rounds half away from zero. What no `long` holds gives the nearest one, NaN gives 0.
    long encode(double value) const;
    double decode(long value) const;

    // Flags below are 1 for "On" and 0 for "Off". What has no type of its own but stands in the file as a word is a
    // value of the BexEnum pair named beside it.

    // ---- Screen, and what a selection looks for

    const char* dProject() const; // the default project; not written to the file
    int screenTrap() const;
    double panRatio() const;
    double zoomRatio() const;
    double adjustRatio() const;
    BexObjectType dFocus() const;
    BexPickType areaMode() const;
    double roundRectCornerRadius() const; // in millimetres, not scaled
    unsigned long dynamicScroll() const;
    unsigned long dynamicPan() const;
    unsigned long saveArea() const;

    // ---- Grids and sheets

    unsigned long inputGrid() const;
    unsigned long echoGrid() const;
    unsigned int gridColor() const;
    unsigned long symSheetDispFlag() const;
    unsigned int symSheetSizeColor() const;
    unsigned long schSheetDispFlag() const;
    unsigned int schSheetSizeColor() const;

    // ---- Placing components

    int symbolPath() const; // an index of the symbol directories
    double cScale() const;
    unsigned long cPvScaleFlag() const;
    Yangle cAngle() const;
    unsigned long cSearchFlag() const;
    unsigned long cCutinFlag() const;
    unsigned int symbDefaultcompType() const; // bits of BexCompType

    // ---- Drawing nets and buses

    BexNetInputType netInputMode() const;
    unsigned long nSearchFlag() const;
    BexNetInputType busInputMode() const;
    unsigned long bSearchFlag() const;
    Yangle netTheta() const;
    BexRipperStyle ripperStyle() const;
    BexRipperDir ripperDir() const;
    unsigned long netDupCheck() const;

    // ---- Property values

    unsigned char pvJustify() const; // textJustify
    Yangle pvAngle() const;
    unsigned int pvDispMode() const; // propertyDraw
    long pvOffsetFromObjX() const;
    long pvOffsetFromObjY() const;
    // Kept on purpose: spelt so here, while the key and the variable say "Unvisible".
    unsigned long doNotSelectUnivisiblePbox() const;

    // ---- Lines, circles, texts

    BexLineInputType lineInputMode() const;
    Yangle lineTheta() const;
    BexCircleInputType circleInputMode() const;
    long circleRadius() const;
    unsigned char textJustify() const; // textJustify
    Yangle textAngle() const;
    unsigned long zipText() const;

    // ---- Zones

    long zonePitchX() const;
    long zonePitchY() const;
    char zoneStartTextX() const;
    char zoneStartTextY() const;
    unsigned char zoneOrigin() const; // zoneOrigin
    unsigned long zoneDispFlag() const;
    long zoneOffsetX() const;
    long zoneOffsetY() const;
    BexZoneAutoOffset zoneOffsetMode() const;

    // ---- What is shown beside objects

    unsigned long sPinDispFlag() const;
    unsigned long compIDDispFlag() const;
    unsigned long netIDDispFlag() const;
    unsigned long cPinIDDispFlag() const;
    unsigned long sPinIDDispFlag() const;
    unsigned long pvIDDispFlag() const;
    unsigned long openCheckFlag() const; // the marks of open ends
    unsigned int openCheckMarkColor() const;
    unsigned long liftPointCPin() const;
    unsigned long dispRoute() const;
    unsigned int measureColor() const;
    const char* measureFont() const; // on Windows; the file keeps the one for UNIX beside it
    BexMeasureDisp measureDisp() const;
    BexMeasurePos measurePos() const;

    // ---- Moving, copying, deleting

    unsigned long slide() const;
    unsigned long mvSearchFlag() const;
    unsigned long mvPvGridFlag() const;
    unsigned long cpSearchFlag() const;
    unsigned long mcpSearchFlag() const; // not written to the file
    unsigned long pasteSearchFlag() const;
    unsigned long deleteWithNet() const;
    BexCBufWithMode cbufWithNetLabel() const;
    BexCBufWithMode cbufWithReference() const;
    BexSwapSConnMode swapSConnMode() const;
    unsigned long swapSDisconnChgPin() const;
    unsigned int cpNetLabelIncrement() const;
    int moveSignMode() const; // BexMoveSignMode

    // ---- Changing net labels, finding components

    BexChgNetLabelScope chgNetLabelScope() const;
    unsigned long chgNetLabelDispFlag() const;
    unsigned long chgNetLabelAutoRefMode() const;
    unsigned int chgNetLabelListWidthSize() const; // lives in memory only
    unsigned int chgNetLabelListHeightSize() const;
    unsigned long chgNetLabelViewSelectBusLabel() const;
    unsigned long selectNetDialogBootMode() const;
    BexCpsSelectMode cpsSelectMode() const;
    BexCpsSearchMode cpsSearchMode() const;

    // ---- Checks, backups, and what is saved by itself

    unsigned int backupTime() const;
    unsigned int undoLimit() const;
    const char* logfile() const; // not written to the file
    BexUnloadSymbCheck UnloadedSymbolCheck() const;
    unsigned long UpdatedSymbolCheck() const;
    BexBlockCheckTiming BlockCheckTiming() const;
    int autoSaveRuleCheck() const; // autoRuleCheckMode
    unsigned long autoSaveReload() const;
    const char* autoSaveReloadKeyName() const;
    const char* autoSaveReloadRscFile() const;

    // ---- Settings by key

    // Each overload takes the keys of its kind of value, in any case of letters; they are those of the file save for
    // measureFont, which the file calls measureFontForWIN. False, with nothing changed, for any other key and for a
    // value that is refused. NaN lies in no range.
    //
    // Whole numbers:
    //   0 to 99999   screenTrap, backupTime, cpNetLabelIncrement
    //   1 to 100     undoLimit
    //   15 to 100    chgNetLabelListWidthSize
    //   5 to 100     chgNetLabelListHeightSize
    //   0 or 1       moveSignMode, which is written from then on
    //   any          gridColor, symSheetSizeColor, schSheetSizeColor, openCheckMarkColor, measureColor, symbolPath
    unsigned long set(const char* key, long value);
    // Real numbers, lengths in millimetres and angles in degrees:
    //   above 0 to 1              panRatio
    //   above 0 to 1000           zoomRatio, adjustRatio
    //   above 0 to 100000         roundRectCornerRadius
    //   above 0.01 to 100         cScale
    //   0 to 360                  cAngle, netTheta, pvAngle, lineTheta, textAngle
    //   0 to less than 100000     pvOffsetFromObjX and Y, circleRadius, zoneOffsetX and Y
    //   above 0, below 100000     zonePitchX and Y
    unsigned long set(const char* key, double value);
    // Texts, of which null counts as empty, and words as they stand in the file. zipText and doNotSelectUnvisiblePbox
    // are written from then on.
    // Kept on purpose: a file knows no escapes, so a text with a quote reads back only up to it, and one that ends in a
    // quote makes the file unreadable; and swapSConnMode takes any text and stores 0 unless it is "cpin".
    unsigned long set(const char* key, const char* value);
    // zoneStartTextX and Y: a letter or digit, stored in upper case.
    unsigned long set(const char* key, char value);

    // ---- Tables

    int gridTableCount() const;
    int symSheetSizeTableCount() const;
    int schSheetSizeTableCount() const;
    int schSheetAttrTableCount() const;

    // The row at `index`, with encoded lengths. False, with no output changed, for an index outside the table. A null
    // `char*` leaves that output out; the others are filled without a size limit.
    unsigned long gridTable(short index, int& firstCount, int& secondCount, long& firstLength,
                            long& secondLength) const;
    unsigned long symSheetSize(short index, char* name, long& originX, long& originY, long& width,
                               long& height) const;
    unsigned long schSheetSize(short index, char* name, long& originX, long& originY, long& width,
                               long& height, int& frameNo, char* frameName) const;
    unsigned long schSheetAttr(short index, char* name, char* value) const;

    // Store a row, lengths in millimetres. False, with nothing changed, for an index outside 0 to 15 (grids) or 0 to
    // 31 (sheet sizes), for a null name, and for a value out of range: counts, lengths, widths and heights from 0 to
    // 100000, origins up to 100000. Rows between the end of the table and `index` become copies of row 0. Of `frameNo`
    // the low 16 bits are stored.
    unsigned long setGridTable(short index, int firstCount, int secondCount, double firstLength,
                               double secondLength);
    unsigned long setSymSheetSize(short index, const char* name, double originX, double originY, double width,
                                  double height);
    unsigned long setSchSheetSize(short index, const char* name, double originX, double originY, double width,
                                  double height, int frameNo, const char* frameName);

    // Gives every attribute of this name the value, or adds the attribute; an empty or null value removes them. Always
    // true.
    // Kept on purpose: the index has no effect.
    unsigned long setSchSheetAttr(short index, const char* name, const char* value);

    // Make the row `index` exist: new rows copy row 0, rounded to a thousandth of a millimetre. False outside 0 to 15
    // (grids) or 0 to 31 (sheet sizes).
    unsigned long checkGridTable(short index);
    unsigned long checkSymSSTable(short index);
    unsigned long checkSchSSTable(short index);

private:
    friend struct bexa::detail::RscAccess;

    BexEnvrc(const char* path, BexOpenMode mode, BexDatarc* datarc, const char* currentDir);
    ~BexEnvrc();

    unsigned long load();
    unsigned long save(const char* path) const;

    YString fileName_;
    BexOpenMode openMode_;
    BexDatarc* datarc_;
    std::shared_ptr<BexEnvrcData> data_; // shared with the copies made by construction
    YPathName currentDir_;
};
