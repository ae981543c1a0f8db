// The words of settings in resource files and the numbers they stand for. Words and numbers stand in files that other
// programs read: never change one.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <concepts>

// The objects on a sheet. The numbers have gaps.
enum BexObjectType : int {
    BexMainObject = 0,
    BexSubObject = 1,
    BexLineObject = 2,
    BexCircleObject = 3,
    BexTextObject = 4,
    BexFrameObject = 5,
    BexPatternObject = 6,
    BexComponentObject = 7,
    BexNetObject = 8,
    BexNetStringObject = 9,
    BexNetSegmentObject = 10,
    BexBusObject = 11,
    BexBusStringObject = 12,
    BexBusSegmentObject = 13,
    BexPropertyViewerObject = 14,
    BexComponentPinObject = 15,
    BexSymbolPinObject = 16, // has no word
    BexNetNodeObject = 17,
    BexSheetObject = 18,  // has no word
    BexSymbolObject = 19, // has no word
    BexSymbolPinNetObject = 20,
    BexNoObject = 21, // has no word: the end of lists of objects
};

// Each pair converts one vocabulary. The word is compared ignoring case: -1 for an unknown or null one. The word of an
// unknown value is null.
class BEXA_API BexEnum {
public:
    static int flag(const char* word);
    static const char* flag(int value);
    static int pickType(const char* word);
    static const char* pickType(int value);
    static int lineInput(const char* word);
    static const char* lineInput(int value);
    static int netInput(const char* word);
    static const char* netInput(int value);
    static int ripperStyle(const char* word);
    static const char* ripperStyle(int value);
    static int ripperDir(const char* word);
    static const char* ripperDir(int value);
    static int propertyDraw(const char* word);
    static const char* propertyDraw(int value);
    static int circleInput(const char* word);
    static const char* circleInput(int value);
    static int zoneOrigin(const char* word);
    static const char* zoneOrigin(int value);
    static int zoneOffsetMode(const char* word);
    static const char* zoneOffsetMode(int value);
    static int measureDisp(const char* word);
    static const char* measureDisp(int value);
    static int measurePos(const char* word);
    static const char* measurePos(int value);
    static int chgNetLabelScope(const char* word);
    static const char* chgNetLabelScope(int value);
    static int cpsSelectMode(const char* word);
    static const char* cpsSelectMode(int value);
    static int cpsSearchMode(const char* word);
    static const char* cpsSearchMode(int value);
    static int BexUnloadSymbCheck(const char* word);
    static const char* BexUnloadSymbCheck(int value);
    static int BexBlockCheckTiming(const char* word);
    static const char* BexBlockCheckTiming(int value);
    static int BexOverWritePortMode(const char* word);
    static const char* BexOverWritePortMode(int value);
    static int BexMoveSignMode(const char* word);
    static const char* BexMoveSignMode(int value);
    static int autoRuleCheckMode(const char* word);
    static const char* autoRuleCheckMode(int value);

    // Kept on purpose: "On" is 0 and "Off" is 1 here, the reverse of `flag`.
    static int cBufWithMode(const char* word);
    static const char* cBufWithMode(int value);

    // Vertical place times 4 plus horizontal place, so the values have gaps.
    static int textJustify(const char* word);
    static const char* textJustify(int value);

    // The words of BexObjectType. Kept on purpose: "subObject" is 1, but 1 has no word.
    static int objType(const char* word);
    static const char* objType(int value);

    // Kept on purpose: there is no error value. "cpin" is 1 and any other word 0; 1 is "cpin" and any other value
    // "coord".
    static int swapSConnMode(const char* word);
    static const char* swapSConnMode(int value);

    // The bits of a component type (see BexCompType) of one word or of words joined by "|". A word that is unknown
    // adds nothing; null gives 0.
    static unsigned compType(const char* words);
    // The words of these bits joined by "|", "fig" for 0. Unknown bits are left out, and bits of which none is known
    // give an empty text. Kept on purpose: the order of the words is not that of the bits.
    static YString compType(unsigned bits);
    template <std::integral Bits>
    static YString compType(Bits bits) { // so that a literal 0 is a number
        return compType(static_cast<unsigned>(bits));
    }

    // The shape of a bus hook of style `b` that turns in direction `a`: 0 for style 0, -1 for a style above 2.
    static int hookShapeType(int a, int b);
    // The shape of a corner of style `a`, 0 for a style other than 1 and 2.
    static int cornerShapeType(int a);
};
