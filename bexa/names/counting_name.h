// A name with a number in it that counts.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <string_view>

class BexDatarc;

namespace bexa::detail {
struct Delimiters;
}

// Counts the number of a name up and down: `R001`, `R002`, ... or `D[7]`, `D[8]`, ....
//
//     name = a bundle of one signal, see BexChkBundleName | busStart { digit } busEnd
//
// The number is what stands between the last `busStart` and the last `busEnd`; without a `busStart` it is the
// run of digits at the end. It keeps its width in digits and takes more when it outgrows them. It is never
// below 0 for a name just read and saturates at the largest int.
class BEXA_API BexStep {
public:
    using BytesMayMove = BexStep;

    // Nothing to count, not valid, a step of 1.
    BexStep() noexcept = default;

    // Reads a name. 1 if it can count. 0 for
    // - a name that isn't valid or has two or more signals, `D[0-3]`: the object stays as it was;
    // - a name without a number, `ABC` or `[]`: the object holds the name, but isn't valid.
    // Kept on purpose: a range whose step overshoots is one signal, so `D[0-5-9]` is accepted; its number is
    // 0, as wide as all that stands between the brackets.
    unsigned long init(const char* text, const BexDatarc& rc, int step);
    unsigned long init(const char* text, char busStart, char busEnd, char rangeEnd, char bitEnd,
                       char rangeStep, int step);

    // Count by the step, of a valid object only. Counting down stops at the last number that isn't negative:
    // what would go below 0 leaves the number as it is.
    BexStep& operator++() noexcept;
    BexStep& operator--() noexcept;

    // The current name, and the current number with its brackets, if it has some. 0, with an empty text, if
    // the object isn't valid or a negative step took the number below 0.
    unsigned long now(YString& out) const;
    unsigned long nowNumericPart(YString& out) const;

    // The name as given, and the part of it ahead of the number and its bracket; the whole where there is no
    // number.
    const char* orgStr() const noexcept { return orgStr_; }
    const char* headerPart() const noexcept { return headerPart_; }
    int step() const noexcept { return step_; }
    unsigned long isValid() const noexcept { return isValid_; }

private:
    unsigned long init(std::string_view text, const bexa::detail::Delimiters& delimiters, int step);
    bool divide(char start, char end);
    std::string_view divideByBrackets(char start, char end);
    void appendNumericPart(YString& out) const;

    YString orgStr_;
    YString headerPart_;
    int number_ = 0;
    int width_ = 0; // in digits
    char start_ = '\0';
    char end_ = '\0';
    int step_ = 1;
    unsigned long isValid_ = 0;
};

class BexStep_Array : public bexa::ArrayOf<BexStep, 256> {
public:
    using ArrayOf::ArrayOf;
};
