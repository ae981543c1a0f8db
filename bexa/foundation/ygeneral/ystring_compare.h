// Orders of texts in which numbers count by their value.
#pragma once

#include "bexa/export.h"

class YString;

// Null counts as an empty text. Numbers may have any length.
class BEXA_API YStringCmp {
public:
    // The human order of names: byte by byte as unsigned values, but a run of digits against a run of digits
    // by value, so that "A2" sorts before "A10". If nothing else differs, the text with fewer leading zeros
    // at the first difference sorts first. Below, equal to or above 0, as of `strcmp`.
    static int NameCmp(const char* a, const char* b);

    // Two decimal numbers (an optional sign, digits, an optional point with digits) by value, exactly; any
    // other two texts by `NameCmp`. Over a mix of numbers and other texts this need not be an order.
    static int ArithCmp(const char* a, const char* b);

    // Splits a text before the digits at its end: `tail` gets these, `head` all before. Without a digit at
    // the end false, with the whole text in `head` and an empty `tail`.
    static unsigned long ArithDivide(const char* text, YString& head, YString& tail);
};
