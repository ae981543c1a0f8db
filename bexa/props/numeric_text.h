// Numbers as schematic users write them: `4.7k`, `10meg`, `1e-3`, `5mil`.
//
// number = [ sign ] digits [ "." digits ] [ exponent | factor ]
// factor = f p n u m k K M x meg G T mil           `M` is mega, `m` is milli; a mil is a thousandth of an inch
//
// The texts are brought from form to form on their digits alone, so nothing is ever rounded, at any length of
// mantissa and exponent, in time that grows with the length.
#pragma once

#include "bexa/export.h"

class YString;

// A group of static operations. Those on a YString rewrite it in place: 1 for success, 0 for failure. A failure
// before the number is understood leaves the text as it was; a later one leaves it in the normal form. A text that
// holds nothing is a success and stays empty.
class BEXA_API BexCheckValue {
public:
    // What isFloat and isInteger find first, from the left. The numbers are kept by callers: never change one.
    enum Fault : int {
        NoFault = 0,
        BadCharacter = 1,
        SignNotFirst = 2,
        SignWithoutDigit = 3,
        SignAlone = 4,
        SecondSign = 5,
        PointInExponent = 6,
        PointWithoutDigit = 7,
        PointAlone = 8,
        SecondPoint = 9,
        ExponentFirst = 10,
        BadExponent = 11, // no digit or sign behind the mark, or a letter behind the exponent
        SecondExponent = 12,
        FactorFirst = 13,
        TextAfterFactor = 14,
    };

    // The fault of a text as a number with optional fraction, exponent and factor. Null and empty texts have none.
    // Kept on purpose: what stands behind a sign of the exponent isn't looked at, so `1e+` has no fault.
    static int isFloat(const char* text);
    // The same for a number without point and exponent.
    static int isInteger(const char* text);
    // Every text is a string: always NoFault.
    static int isString(const char* text);
    // 1 if the text is null or empty.
    static unsigned long isNull(const char* text);

    // Replaces a factor by an exponent: `1.5k` gives `1.5e3`. A text that has an exponent or no letter stays as it
    // is; zeros and points in front of a letter give `0`, whatever the letter. Fails for a letter that begins no
    // factor. Kept on purpose: a number of mils with a point in it gives `0`.
    static unsigned long transExp(YString& value);

    // The normal form: `-` if negative, digits that neither begin nor end with `0`, and the exponent behind `e`
    // where it isn't 0; zero is `0`. Fails for characters that no number has and for a last letter that is no
    // factor. Kept on purpose: signs and points in odd places go unnoticed, so check with isFloat first.
    static unsigned long optimizeExp(YString& value);

    // Plain decimal notation. A failure that leaves the normal form says that it would take more than twenty zeros.
    static unsigned long changeNum(YString& value);

    // Whole digits with the largest factor that needs no point: `1.5k` gives `1500`. Fails for an exponent of the
    // normal form below -15 or above 32.
    static unsigned long changeFactor(YString& value);

    // The value in the units of `factor`, which stands behind it as given; without a factor as changeNum. "mil" takes
    // the value as metres. Zero is `0`, without a factor. Fails, before anything else, for an unknown factor, and for
    // more than twenty zeros. Of a factor of three letters that doesn't begin with `m` only the first letter counts.
    // Kept on purpose: a point among the digits stands behind the first d-1 of them, d being how many powers of ten
    // the last digit lies below the factor. That agrees with the value only for 2d-1 digits: with "k", 1250 gives
    // `1.25k`, but 1500 gives `.15k` and 1234 gives `12.34k`.
    static unsigned long changeFactor(YString& value, const char* factor);

    // The nearest double; a text that is no number counts up to where it stops being one, from 0. Kept on purpose:
    // `end` is not written to, nor through.
    static double toDouble(const YString& value, char* end);
};
