// The check of a property's value before a tool stores it.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ygeneral/ystring.h"

class BexDatarc;

// What the values of the properties that the suite itself defines may hold. Objects that belong together share their
// properties: symbols those of components, all parts of a net those of nets, all parts of a bus those of buses, pins
// of every kind those of component pins. Any other type stands for all: the first property of the name counts.
class BEXA_API BexChkPropCode {
public:
    // The value without blanks, tabs and line feeds: without any for a property of the base system, without those at
    // the end for every other and unknown ones. A value of nothing else stays as it is in the second case. With a null
    // text the value comes back as it stands, a null one as an empty text.
    static YString deleteSpaceAndRet(const char* propName, const char* value);

    // 1 if the value may be stored. Otherwise 0, and `bad`, if not null, takes the characters that are refused, in
    // their order in the value; it is left alone on success. One kind of character is looked for after the other, and
    // the first kind found is what `bad` holds:
    //   half-width kana        refused in every value, that of an unknown property too
    //   double-byte characters refused by most known properties
    //   characters             blank, tab, line feed, `"`, `\`; some properties take blanks
    //   `bitEnd`               see below
    // A value of an unknown property passes after the first. A null or empty value passes; a null name is refused, with
    // `bad` empty.
    //
    // The delimiter of bits is refused in the values of
    //   components             with `mode` 1, unless the property takes it, or is `partName` and `compType`, a mask of
    //                          BexCompType, names a connector, power or ground
    //   pins                   with `mode` 1, unless the property takes it
    //   nets and sheets        Kept on purpose: always, also in `netComment`
    // Kept on purpose: in the values of buses it is never refused.
    //
    // `type` is only read.
    static unsigned long chkPropString(const char* propName, const char* value, YString* bad, char bitEnd,
                                       BexObjectType& type, unsigned mode, unsigned compType);
    // The same with the delimiter of a circuit.
    static unsigned long chkPropString(const char* propName, const char* value, YString* bad,
                                       const BexDatarc& rc, BexObjectType& type, unsigned mode,
                                       unsigned compType);
};
