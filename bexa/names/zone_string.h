// The label of a zone of a sheet.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

// Letters, counted like the columns of a spreadsheet from 0 on (`A`, `B`, ... `Z`, `AA`), or a decimal
// number. A label counts in its own style.
//
// Every change of the value builds the text anew: a digits label shows nothing below 1, a letters label
// nothing below 0. Values saturate at the ends of a long.
class BEXA_API BexZoneString {
public:
    enum Style : int {
        NoStyle = 0, // not valid
        Letters = 1, // a to z too
        Digits = 2,
    };

    // Not valid; the value is 0.
    BexZoneString() noexcept = default;
    // The text stays as given, `007`, until the value changes. One of mixed style, empty or null is not
    // valid.
    BexZoneString(const char* text); // NOLINT(google-explicit-constructor): callers rely on it

    // Change the value and the text. An object without a style keeps no text, though its value changes.
    BexZoneString& operator=(int value);
    BexZoneString& operator+=(int steps);
    BexZoneString& operator-=(int steps);
    BexZoneString& operator++() { return *this += 1; }
    BexZoneString& operator--() { return *this -= 1; }

    // Equality is that of the texts, byte by byte.
    unsigned long operator==(const BexZoneString& other) const noexcept { return text_ == other.text_; }
    unsigned long operator!=(const BexZoneString& other) const noexcept { return !(*this == other); }
    // Kept on purpose: the order is that of the values, whatever the styles. `01` and `1` are not equal, yet
    // each is <= the other, and `A` is less than `1`.
    unsigned long operator<(const BexZoneString& other) const noexcept { return value_ < other.value_; }
    unsigned long operator>(const BexZoneString& other) const noexcept { return value_ > other.value_; }
    unsigned long operator<=(const BexZoneString& other) const noexcept { return value_ <= other.value_; }
    unsigned long operator>=(const BexZoneString& other) const noexcept { return value_ >= other.value_; }

    // The label, null without a style. Valid until the object changes.
    // NOLINTNEXTLINE(google-explicit-constructor): callers rely on it
    operator const char*() const noexcept {
        return style_ == NoStyle ? nullptr : static_cast<const char*>(text_);
    }

    Style style() const noexcept { return style_; }
    unsigned long isAlpha() const noexcept { return style_ == Letters; }
    unsigned long isDigit() const noexcept { return style_ == Digits; }
    unsigned long isValid() const noexcept { return style_ != NoStyle; }

    // The style of a text, of letters A to Z in any case or of decimal digits alone.
    static Style style(const char* text) noexcept;

    // The value of a letters label, -1 for an empty or null one. Kept on purpose: lower-case letters are not
    // folded but counted by their code, so `a` is 32.
    static long alpha2num(const char* text) noexcept;
    // The label of a value, empty for a negative one. Valid until the next call in the same thread.
    static const char* num2alpha(long number);

    // The number at the front of a text, behind white space and a sign; 0 if there is none.
    static long digit2num(const char* text) noexcept;
    // The label of a value, empty for one below 1. Valid until the next call in the same thread.
    static const char* num2digit(long number);

private:
    BexZoneString& change(long value);

    Style style_ = NoStyle;
    long value_ = 0;
    YString text_;
};
