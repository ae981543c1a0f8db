// Tests of component types: a mask of bits, or its words as `BexEnum::compType` reads them.
#pragma once

#include "bexa/export.h"

#include <concepts>

class BEXA_API BexCompType {
public:
    // The bits of the mask. 0 is a plain figure.
    enum Bit : unsigned {
        Net = 1,
        Frame = 2,
        Parts = 4,
        Gate = 8,
        Block = 16,
        Vcc = 32,
        Gnd = 64,
        ShortComponent = 128,
        HieConnector = 256,
        ShtConnector = 512,
        PowerBox = 1024,
    };

    // Kept on purpose: true for 0, so also for words that are all unknown.
    static unsigned long isFig(unsigned bits);
    static unsigned long isFig(const char* words);

    // True when the bit is set; several may be.
    static unsigned long isNet(unsigned bits);
    static unsigned long isNet(const char* words);
    static unsigned long isFrame(unsigned bits);
    static unsigned long isFrame(const char* words);
    static unsigned long isParts(unsigned bits);
    static unsigned long isParts(const char* words);
    static unsigned long isGate(unsigned bits);
    static unsigned long isGate(const char* words);
    static unsigned long isBlock(unsigned bits);
    static unsigned long isBlock(const char* words);
    static unsigned long isVcc(unsigned bits);
    static unsigned long isVcc(const char* words);
    static unsigned long isGnd(unsigned bits);
    static unsigned long isGnd(const char* words);
    static unsigned long isShort(unsigned bits);
    static unsigned long isShort(const char* words);
    static unsigned long isHieConn(unsigned bits);
    static unsigned long isHieConn(const char* words);
    static unsigned long isShtConn(unsigned bits);
    static unsigned long isShtConn(const char* words);
    static unsigned long isPowerBox(unsigned bits);
    static unsigned long isPowerBox(const char* words);

    // True for 0 and for a mask with at least one known bit; unknown bits beside it don't matter.
    static unsigned long isValid(unsigned bits);
    // True for "fig" in any case of letters, and for words of which at least one is known.
    static unsigned long isValid(const char* words);

    // So that a literal 0 is a number and no null pointer.
    // clang-format off
    template <std::integral Bits> static unsigned long isFig(Bits bits) { return isFig(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isNet(Bits bits) { return isNet(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isFrame(Bits bits) { return isFrame(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isParts(Bits bits) { return isParts(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isGate(Bits bits) { return isGate(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isBlock(Bits bits) { return isBlock(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isVcc(Bits bits) { return isVcc(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isGnd(Bits bits) { return isGnd(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isShort(Bits bits) { return isShort(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isHieConn(Bits bits) { return isHieConn(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isShtConn(Bits bits) { return isShtConn(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isPowerBox(Bits bits) { return isPowerBox(static_cast<unsigned>(bits)); }
    template <std::integral Bits> static unsigned long isValid(Bits bits) { return isValid(static_cast<unsigned>(bits)); }
    // clang-format on
};
