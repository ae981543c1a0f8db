// The identifying name of one object on a sheet or a symbol.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ygeneral/ystring.h"

// A prefix of three letters, which says what the object is, and a number: `cmp12` is component 12.
//
//     name   = prefix id
//     prefix = three characters, letters in any case
//     id     = one or more decimal digits | "_" followed by anything
//
// A prefix has a meaning only in a context, which is BexSheetObject for names on a sheet and BexSymbolObject
// for names on a symbol; any other context knows no prefix.
//
//     prefix  on a sheet                on a symbol
//     cmp     BexComponentObject
//     snt     BexNetObject
//     bnt     BexBusObject
//     ssg     BexNetSegmentObject
//     bsg     BexBusSegmentObject
//     pvw     BexPropertyViewerObject   BexPropertyViewerObject
//     cpn     BexComponentPinObject     BexSymbolPinObject
//     nnd     BexNetNodeObject
//     sht     BexSheetObject            BexSymbolObject
//
// Numbers too large are the largest int. Kept on purpose: the id that begins with "_" is accepted for a
// property viewer alone and reads as -100, whatever follows.
class BEXA_API BexIdName {
public:
    using BytesMayMove = BexIdName;

    // An empty name without a kind, id -1.
    BexIdName() noexcept = default;
    BexIdName(const char* text, BexObjectType context);
    BexIdName(int id, BexObjectType type);

    // Reads a name. 1 if it is valid. name() is the text whatever the result, empty for null. Kept on
    // purpose: of a name that fails a part may have been read: `cmpX` keeps its kind, `xyz12` its id.
    unsigned long idName(const char* text, BexObjectType context);
    // Builds the name of an object of this type, in lower case; the type need not come with a context. 1 if
    // it is valid. A type without a prefix leaves an empty name and the id -1. Kept on purpose: an id below
    // -1 counts as valid and is written, as `cmp-5`, though no such name can be read.
    unsigned long idName(int id, BexObjectType type);

    const char* name() const noexcept { return name_; }
    // -1 for none.
    int id() const noexcept { return id_; }
    // BexNoObject if the prefix has no meaning.
    BexObjectType objType() const noexcept;
    // 1 for a bus or a bus segment, valid or not.
    unsigned long isBus() const noexcept;
    // 1 if both the kind and the id are known.
    unsigned long isValid() const noexcept { return kind_ != 0 && id_ != -1; }

protected:
    // The steps of reading and building. Cuts name(); 0, with the texts unchanged, if one part would be
    // empty.
    unsigned long divideName(YString& prefix, YString& idText) const;
    // Take the kind, or the id, from its text; 0 if it is none.
    unsigned long type(const YString& prefix, BexObjectType context);
    unsigned long id(const YString& idText);
    // Makes name() of the two.
    void setName(const char* prefix, int id);

private:
    YString name_;
    int id_ = -1;
    int kind_ = 0; // a row of the table in the source, 0 for none
};

class BexIdName_Array : public bexa::ArrayOf<BexIdName, 256> {
public:
    using ArrayOf::ArrayOf;
};
