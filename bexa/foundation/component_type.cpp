#include "bexa/foundation/component_type.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/vocabulary.h"

using namespace bexa::detail;

unsigned long BexCompType::isFig(unsigned bits) {
    return bits == 0;
}

unsigned long BexCompType::isFig(const char* words) {
    return isFig(BexEnum::compType(words));
}

// The two forms of the test of a bit.
#define BOTH_FORMS(test, bit)                                                                                \
    unsigned long BexCompType::test(unsigned bits) {                                                         \
        return (bits & (bit)) != 0;                                                                          \
    }                                                                                                        \
    unsigned long BexCompType::test(const char* words) {                                                     \
        return test(BexEnum::compType(words));                                                               \
    }

BOTH_FORMS(isNet, Net)
BOTH_FORMS(isFrame, Frame)
BOTH_FORMS(isParts, Parts)
BOTH_FORMS(isGate, Gate)
BOTH_FORMS(isBlock, Block)
BOTH_FORMS(isVcc, Vcc)
BOTH_FORMS(isGnd, Gnd)
BOTH_FORMS(isShort, ShortComponent)
BOTH_FORMS(isHieConn, HieConnector)
BOTH_FORMS(isShtConn, ShtConnector)
BOTH_FORMS(isPowerBox, PowerBox)

#undef BOTH_FORMS

unsigned long BexCompType::isValid(unsigned bits) {
    return bits == 0 || BexEnum::compType(BexEnum::compType(bits)) != 0;
}

unsigned long BexCompType::isValid(const char* words) {
    return equalIgnoringCase(viewOf(words), "fig") || BexEnum::compType(words) != 0;
}
