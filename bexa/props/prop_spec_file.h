// The property specification: which properties each kind of design object has.
//
// A resource file with a section for each kind of object and for each reference table:
//     $Component {
//         ( partName   text  "Part name"  ON  LCDB  3 )
//         ( tolerance  text  "Tolerance"  OFF CIRC  5  1% 5% 10% )
//         ( $RefTable  Layout  "Layout" )
//         ( $RefFile   "$COMPANY/PropSpec"  $Component )
//     }
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"
#include "bexa/props/prop_spec_records.h"

#include <memory>
#include <optional>

namespace bexa::detail {
class PropSpecReader;
struct NameIndex;
} // namespace bexa::detail

// The owners of a specification. A copy has owners of its own, which share their tables with those of the source.
//
// An owner is asked for by the name of its section or by the kind of object; null, an empty name and a kind without a
// section stand for no owner. Look-ups of properties go through reference tables.
class BEXA_API BexPropSpecFile {
public:
    BexPropSpecFile();
    BexPropSpecFile(const BexPropSpecFile& other);
    BexPropSpecFile& operator=(const BexPropSpecFile& other);
    ~BexPropSpecFile();

    // Reads the sections of all kinds of objects, in the order of their table, and behind each the sections that have
    // the name of one of its properties of type BexPropTypeHide. See BexPropOwnerRec::readFrom for the rows. What is
    // held already stays and comes first, so a second file adds to it.
    //
    // False, with the object unchanged, for a path where nothing is; false where a row is no list: what was read until
    // there stays. What the file lacks is left out.
    unsigned long readFrom(const char* path);
    // Replaces `out` by the lines of the file, without line ends. A table is written once, behind the first owner that
    // holds it. Kept on purpose: only components and pins are written with a place, so that of any other owner's row is
    // lost; and rows that came from a reference file are rows of their owner.
    void makeString(YString_Array& out) const;

    // The path that was last read, null if there is none.
    const char* fileName() const { return fileName_ ? static_cast<const char*>(*fileName_) : nullptr; }

    // The kind of object of a section, BexNoObject for any other text; and the section of a kind, empty if there is
    // none.
    static BexObjectType objectType(const char* section);
    static YString objectName(BexObjectType type);
    // The name of a section for people, from the message catalogue "YDSROOT/bexa" in the user's language. The text
    // itself if it is no section, and when the catalogue doesn't have it.
    static YString aliasName(const char* section);

    // ---- Owners

    // Replaces `out` by their names, in order. Always true.
    unsigned long enumOwnerRecNames(YString_Array& out) const;
    // Null if there is none. Valid until an owner is added or removed.
    BexPropOwnerRec* ownerRec(const char* owner);
    BexPropOwnerRec* ownerRec(BexObjectType owner);
    const BexPropOwnerRec* ownerRec(const char* owner) const;
    const BexPropOwnerRec* ownerRec(BexObjectType owner) const;
    // The owner of this name; a new one, with its name for people, if there is none. Null for no name.
    BexPropOwnerRec* appendOwnerRec(const char* owner);
    BexPropOwnerRec* appendOwnerRec(BexObjectType owner);
    // False if there is none.
    unsigned long removeOwnerRec(const char* owner);
    unsigned long removeOwnerRec(BexObjectType owner);

    // ---- Properties. What an unknown owner or property gives, each line says.

    // Replace `out` as the operations of the owner do, tables expanded. False, with `out` empty.
    unsigned long enumPropNames(const char* owner, YString_Array& out, unsigned long withRefTables) const;
    unsigned long enumPropNames(BexObjectType owner, YString_Array& out, unsigned long withRefTables) const;
    unsigned long enumDisplayStrings(const char* owner, YString_Array& out,
                                     unsigned long withRefTables) const;
    unsigned long enumDisplayStrings(BexObjectType owner, YString_Array& out,
                                     unsigned long withRefTables) const;

    // `property` itself. Null for a row that has no text. Valid as long as the row, or the text given.
    const char* displayString(const char* owner, const char* property) const;
    const char* displayString(BexObjectType owner, const char* property) const;
    // False.
    unsigned long isExist(const char* owner, const char* property) const;
    unsigned long isExist(BexObjectType owner, const char* property) const;
    // BexPropTypeUnknown.
    BexPropValueType valueType(const char* owner, const char* property) const;
    BexPropValueType valueType(BexObjectType owner, const char* property) const;
    // Kept on purpose: 6, which is no flag and counts as shown.
    unsigned long displayFlag(const char* owner, const char* property) const;
    unsigned long displayFlag(BexObjectType owner, const char* property) const;
    // BexPlaceCirc.
    BexPropPlace propPlace(const char* owner, const char* property) const;
    BexPropPlace propPlace(BexObjectType owner, const char* property) const;
    // 1.
    unsigned long editFlag(const char* owner, const char* property) const;
    unsigned long editFlag(BexObjectType owner, const char* property) const;
    // -1.
    int viewerColor(const char* owner, const char* property) const;
    int viewerColor(BexObjectType owner, const char* property) const;
    // Replaces `out` by the values. False, with `out` empty; false also for a property without values.
    unsigned long valueSelection(const char* owner, const char* property, YString_Array& out) const;
    unsigned long valueSelection(BexObjectType owner, const char* property, YString_Array& out) const;

private:
    friend class BexPropOwnerRec;
    friend class bexa::detail::PropSpecReader;

    int ownerPlace(std::string_view name) const;
    void forgetOwners();
    const BexPropSpecRec* propSpec(const char* owner, const char* property) const;
    // The first table of this name below an owner, null if there is none.
    BexPropOwnerRec* sharedTable(const char* name);

    std::optional<YString> fileName_;
    BexPropOwnerRec_Array owners_;
    mutable std::unique_ptr<bexa::detail::NameIndex> index_; // made when first needed
};
