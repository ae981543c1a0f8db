// The shortest text for a list of signals.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

class BexDatarc;

namespace bexa::detail {
struct Delimiters;
}

// The inverse of expansion: from a bundle, see BexChkBundleName, the text of array notation that reads back
// into the same signals in the same order. `D[0],D[1],D[2],D[5]` becomes `D[0-2,5]`.
//
// Neighbours of one root share their brackets; nothing is moved across another root. Runs are greedy: the
// first two numbers of a run set its step, and the run goes on while the step holds. `D[0],D[1],D[3],D[5]`
// becomes `D[0-1,3-5-2]`. Leading zeros go.
//
// The delimiters are those of the name grammar. Where `rangeStep` is NUL, `rangeEnd` takes its place.
class BEXA_API BexChkPressName {
public:
    using BytesMayMove = BexChkPressName;

    // No texts, and all delimiters NUL.
    BexChkPressName() noexcept = default;
    // Kept on purpose: with a null or empty name the delimiters aren't taken either.
    BexChkPressName(const char* name, const BexDatarc& rc);
    BexChkPressName(const char* name, char busStart, char busEnd, char rangeEnd, char bitEnd, char rangeStep);

    // The text given. The setter replaces it and keeps the delimiters; null empties it.
    const char* name() const noexcept { return name_; }
    void name(const char* name) { name_ = name; }
    // 1 if there is a name and the first four delimiters are given. Says nothing about the grammar.
    unsigned long isValid() const noexcept;

    // The compressed text; a name that isn't a valid bundle or has at most one signal as it stands. Valid
    // until the object changes.
    const char* newName();

private:
    void take(const char* name, const bexa::detail::Delimiters& delimiters);

    YString name_;
    YString newName_;
    char busStart_ = '\0';
    char busEnd_ = '\0';
    char rangeEnd_ = '\0';
    char bitEnd_ = '\0';
    char rangeStep_ = '\0';
};
