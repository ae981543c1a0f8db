// One setting of a program's option list: a value, and a word that says whether the user set it.
//
// A program first lets the user's input set its options and then gives the defaults, and a default never
// replaces what the user set:
//
//     BexOptInt width;
//     width.value(5);         // from the command line
//     width.defaultValue(7);  // stays 5
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeometry/yangle.h"
#include "bexa/foundation/ygeometry/yint_point.h"

#include <memory>

namespace bexa {

// What the options share, save for texts.
template <class T>
class OptionOf {
public:
    // Sets the value, from then on the user's.
    void value(T v) {
        value_ = v;
        isSet_ = 1;
    }
    T value() const { return value_; }
    // Sets the value unless it is the user's. The next default replaces it again.
    void defaultValue(T v) {
        if (!isSet_) value_ = v;
    }
    // Back to the value at the start, which is nobody's.
    void clear() { *this = OptionOf(); }

private:
    T value_{};
    unsigned long isSet_ = 0;
};

} // namespace bexa

// 0 at the start.
class BexOptInt : public bexa::OptionOf<int> {};
class BexOptBool : public bexa::OptionOf<unsigned long> {};
class BexOptFloat : public bexa::OptionOf<double> {};
class BexOptPoint : public bexa::OptionOf<YintPoint> {};
class BexOptAngle : public bexa::OptionOf<Yangle> {};

// What a word means to a flag.
enum BexOptFlagType : int {
    BexOptFlagNone = 0,   // any other word, without effect
    BexOptFlagOn = 1,     // "On": the value becomes 1
    BexOptFlagOff = 2,    // "Off": the value becomes 0
    BexOptFlagToggle = 3, // "toggle": the value becomes 1, unless it is 1, then 0
};

// A switch, off at the start.
class BEXA_API BexOptFlag : public bexa::OptionOf<unsigned long> {
public:
    using OptionOf::value;

    // The meaning of a word, in any case of letters.
    static BexOptFlagType type(const char* word);
    // Sets the value by the meaning of a word, from then on the user's. 0, and nothing changes, for
    // BexOptFlagNone and for numbers that mean nothing.
    unsigned long value(BexOptFlagType type);
};

// A text; none at the start.
class BEXA_API BexOptString {
public:
    BexOptString() noexcept = default;
    // The copy has a text of its own.
    BexOptString(const BexOptString& other);
    // Kept on purpose: unlike a copy, an assigned option hands out the very text of the other, under the same
    // address, until either gets a new one. The text lives as long as one of them holds it.
    BexOptString& operator=(const BexOptString& other) = default;

    // Sets a copy of the text; null and an empty text do nothing. Kept on purpose: unlike all other options a
    // text isn't marked as the user's, so that a default replaces it.
    void value(const char* text);
    // Null where there is no text. Valid until the next change of this option.
    const char* value() const noexcept;
    // Sets a copy of the text unless there is one of the user's; null and an empty text do nothing.
    void defaultValue(const char* text);
    // Back to no text.
    void clear() noexcept;

private:
    std::shared_ptr<const YString> value_;
    unsigned long isSet_ = 0;
};
