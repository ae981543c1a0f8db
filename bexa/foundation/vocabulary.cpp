#include "bexa/foundation/vocabulary.h"

#include "bexa/foundation/component_type.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/word_table.h"

using namespace bexa::detail;

namespace {

// To add a word: a row here, its enumerator where it has one, a row in the tests. A pair of a new table is declared in
// the header and defined below by BOTH_WAYS.
// clang-format off
constexpr WordTable flagWords                ({"Off", "On"});
constexpr WordTable pickTypeWords            ({"inter", "overLap"});
constexpr WordTable lineInputWords           ({"Manual", "semiAuto"});
constexpr WordTable netInputWords            ({"Manual", "semiAuto", "Auto"});
constexpr WordTable ripperStyleWords         ({"None", "Hook", "Curl"});
constexpr WordTable ripperDirWords           ({"CW", "CCW"});
constexpr WordTable propertyDrawWords        ({"Value", "NameValue"});
constexpr WordTable circleInputWords         ({"center", "radius", "edge"});
constexpr WordTable zoneOriginWords          ({"DownLeft", "DownRight", "UpLeft", "UpRight"});
constexpr WordTable zoneOffsetModeWords      ({"Off", "CenterEnd", "CenterCross"});
constexpr WordTable measureDispWords         ({"noDisp", "absolute", "relative"});
constexpr WordTable measurePosWords          ({"movable", "fixed"});
constexpr WordTable chgNetLabelScopeWords    ({"allNet", "Selected", "Neighboring", "Connection"});
constexpr WordTable cpsSelectModeWords       ({"none", "center", "adjust"});
constexpr WordTable cpsSearchModeWords       ({"openSheet", "toFind", "allSheet"});
constexpr WordTable BexUnloadSymbCheckWords  ({"Off", "check", "load"});
constexpr WordTable BexBlockCheckTimingWords ({"Both", "SheetOpen", "SheetSave", "None"});
constexpr WordTable BexOverWritePortModeWords({"none", "sigToPort", "portToSig", "sigToPortChkArray"});
constexpr WordTable BexMoveSignModeWords     ({"port", "bus"});
constexpr WordTable autoRuleCheckModeWords   ({"Off", "OnMemory", "Definition", "Instance"});

// Kept on purpose: the reverse of flagWords.
constexpr WordTable cBufWithModeWords        ({"On", "Off", "Copy", "Cut"});

constexpr WordTable<9> textJustifyWords({
    {0, "lowerLeft"},  {1, "lowerCenter"},  {2,  "lowerRight"},
    {4, "centerLeft"}, {5, "centerCenter"}, {6,  "centerRight"},
    {8, "upperLeft"},  {9, "upperCenter"},  {10, "upperRight"},
});

constexpr WordTable<18> objTypeWords({
    {BexMainObject,           "mainObject"},
    {BexSubObject,            "subObject"},
    {BexLineObject,           "line"},
    {BexCircleObject,         "circle"},
    {BexTextObject,           "text"},
    {BexFrameObject,          "frame"},
    {BexPatternObject,        "Pattern"},
    {BexComponentObject,      "Component"},
    {BexNetObject,            "sNet"},
    {BexNetStringObject,      "sNetString"},
    {BexNetSegmentObject,     "sNetSeg"},
    {BexBusObject,            "bNet"},
    {BexBusStringObject,      "bNetString"},
    {BexBusSegmentObject,     "bNetSeg"},
    {BexPropertyViewerObject, "pViewer"},
    {BexComponentPinObject,   "cPin"},
    {BexNetNodeObject,        "nNode"},
    {BexSymbolPinNetObject,   "spNet"},
});

// In the order of writing. Kept on purpose: it is not the order of the bits.
constexpr WordTable<11> compTypeWords({
    {BexCompType::Net,            "net"},
    {BexCompType::Frame,          "frame"},
    {BexCompType::Parts,          "parts"},
    {BexCompType::Gate,           "gate"},
    {BexCompType::Block,          "block"},
    {BexCompType::ShtConnector,   "shtConnector"},
    {BexCompType::HieConnector,   "hieConnector"},
    {BexCompType::ShortComponent, "shortComponent"},
    {BexCompType::Vcc,            "vcc"},
    {BexCompType::Gnd,            "gnd"},
    {BexCompType::PowerBox,       "powerBox"},
});
// clang-format on

} // namespace

// The two conversions of a table.
#define BOTH_WAYS(name)                                                                                      \
    static_assert(name##Words.isSound());                                                                    \
    int BexEnum::name(const char* word) {                                                                    \
        return name##Words.value(word);                                                                      \
    }                                                                                                        \
    const char* BexEnum::name(int value) {                                                                   \
        return name##Words.word(value);                                                                      \
    }

BOTH_WAYS(flag)
BOTH_WAYS(pickType)
BOTH_WAYS(lineInput)
BOTH_WAYS(netInput)
BOTH_WAYS(ripperStyle)
BOTH_WAYS(ripperDir)
BOTH_WAYS(propertyDraw)
BOTH_WAYS(circleInput)
BOTH_WAYS(zoneOrigin)
BOTH_WAYS(zoneOffsetMode)
BOTH_WAYS(measureDisp)
BOTH_WAYS(measurePos)
BOTH_WAYS(chgNetLabelScope)
BOTH_WAYS(cpsSelectMode)
BOTH_WAYS(cpsSearchMode)
BOTH_WAYS(BexUnloadSymbCheck)
BOTH_WAYS(BexBlockCheckTiming)
BOTH_WAYS(BexOverWritePortMode)
BOTH_WAYS(BexMoveSignMode)
BOTH_WAYS(autoRuleCheckMode)
BOTH_WAYS(cBufWithMode)
BOTH_WAYS(textJustify)

#undef BOTH_WAYS

static_assert(objTypeWords.isSound());
static_assert(compTypeWords.isSound());

int BexEnum::objType(const char* word) {
    return objTypeWords.value(word);
}

const char* BexEnum::objType(int value) {
    return value == BexSubObject ? nullptr : objTypeWords.word(value);
}

int BexEnum::swapSConnMode(const char* word) {
    return equalIgnoringCase(viewOf(word), "cpin");
}

const char* BexEnum::swapSConnMode(int value) {
    return value == 1 ? "cpin" : "coord";
}

// words = word { "|" word }
unsigned BexEnum::compType(const char* words) {
    unsigned bits = 0;
    TextCursor cursor(viewOf(words));
    do {
        const int bit = compTypeWords.value(cursor.takeUntil('|'));
        if (bit != -1) bits |= static_cast<unsigned>(bit);
    } while (cursor.take('|'));
    return bits;
}

YString BexEnum::compType(unsigned bits) {
    if (bits == 0) return "fig";
    YString words;
    for (const auto& [bit, word] : compTypeWords) {
        if ((bits & static_cast<unsigned>(bit)) == 0) continue;
        if (words.length() != 0) words << '|';
        words << word;
    }
    return words;
}

int BexEnum::hookShapeType(int a, int b) {
    if (b < 0 || b > 2) return -1;
    if (b == 0) return 0;
    return 2 * b + (a == 1);
}

int BexEnum::cornerShapeType(int a) {
    return a == 1 || a == 2 ? 2 * a : 0;
}
