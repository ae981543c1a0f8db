// The records of a property specification: one property, and the properties of one kind of object.
//
// An owner holds rows, and reference tables: owners of their own whose rows it shares with others. Its row of type
// BexPropTypeRefTable says where in the order of rows the table of that name stands. Look-ups and enumerations go
// through tables in row order, at any depth.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"
#include "bexa/props/prop_value_type.h"

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

class BexPropSpecFile;
class BexStrSet;
class YioRscList;
class YioRscTable;

// Where a property is stored. The numbers are kept by callers.
enum BexPropPlace : int {
    BexPlaceCirc = 0, // in the circuit
    BexPlaceLcdb = 1, // in the library of components
};

namespace bexa::detail {

class PropSpecReader;
class PropTableWalk;
struct PropRowIndex;
struct PropTableReference;

// Tells the list that a record stands in that its index of names is out of date. It belongs to the place in the list
// and not to what stands there: a copy has none, and an assignment keeps and uses that of its target.
class IndexLink {
public:
    IndexLink() = default;
    IndexLink(const IndexLink&) noexcept {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is copied
    IndexLink& operator=(const IndexLink&) noexcept {
        changed();
        return *this;
    }
    void join(bool* stale) noexcept { stale_ = stale; }
    void changed() const noexcept {
        if (stale_) *stale_ = true;
    }

private:
    bool* stale_ = nullptr;
};

} // namespace bexa::detail

// One property. Setters copy and always succeed.
class BEXA_API BexPropSpecRec {
public:
    using BytesMayMove = BexPropSpecRec;

    BexPropSpecRec() = default;

    // Takes the fields of a row in their order; those behind its end stay as they are, so a new record has its
    // defaults there:
    //     name  type  display string  ON or OFF  [ CIRC, CIRCUNEDIT or LCDB ]  colour  { selection value }
    // Without the word for the place, the colour follows the flag. Selection values are added as they stand,
    // duplicates too. False, with nothing changed, for null and for a list without a first text.
    unsigned long readFrom(const YioRscList* list);
    // The row as text, its place only if `withPlace` is nonzero. Kept on purpose: only selection values are ever
    // quoted by need (a blank, one of `#():{}`, a double-byte character), and an empty one is not; an unknown type is
    // an empty word. Such a row does not read back as it was.
    YString makeString(unsigned long withPlace) const;

    // The row has a name, and a type that is known.
    unsigned long isValid() const { return propertyName_ && valueType_ != BexPropTypeUnknown; }

    // Null if there is none. The texts live until they are replaced.
    const char* propertyName() const {
        return propertyName_ ? static_cast<const char*>(*propertyName_) : nullptr;
    }
    const char* displayString() const {
        return displayString_ ? static_cast<const char*>(*displayString_) : nullptr;
    }
    // BexPropTypeUnknown to begin with.
    BexPropValueType valueType() const { return valueType_; }
    // 1 if the property is shown; 0 to begin with.
    unsigned long displayFlag() const { return displayFlag_; }
    // 1 if it can be edited, as to begin with.
    unsigned long editFlag() const { return editFlag_; }
    BexPropPlace propPlace() const { return propPlace_; }
    // -1 for none, as to begin with.
    int viewerColor() const { return viewerColor_; }
    // The values offered for selection. Never null; owned by the record.
    const YString_Array* valueSelection() const { return &valueSelection_; }

    unsigned long valueType(BexPropValueType type);
    // Null takes the text away.
    unsigned long displayString(const char* text);
    unsigned long displayFlag(unsigned long flag);
    unsigned long viewerColor(int color);
    // Sets the place and whether the property can be edited, both from one word: see `string2place` and
    // `string2editF`.
    unsigned long propPlace(const char* word);
    // Replaces the list.
    unsigned long valueSelection(const YString_Array& values);
    // Adds a value. False for null, an empty text and a value that is there already.
    unsigned long appendValueSelection(const char* value);

    // The words of a file. Case doesn't matter; null is an unknown word.
    static BexPropValueType string2valueType(const char* word);
    // An empty text for BexPropTypeUnknown and for a number that is no type.
    static const char* valueType2string(BexPropValueType type);
    // 1 for "ON", else 0.
    static unsigned long string2flag(const char* word);
    // BexPlaceLcdb for "LCDB", else BexPlaceCirc.
    static BexPropPlace string2place(const char* word);
    // An empty text for a number that is no place.
    static const char* place2string(BexPropPlace place);
    // 0 for "CIRCUNEDIT" and "LCDB", else 1.
    static unsigned long string2editF(const char* word);
    // The number that the text begins with. Kept on purpose: 0, and so a text without a number, is -1: no colour.
    static int string2col(const char* text);

private:
    friend class BexPropOwnerRec;

    void propertyName(const char* name);

    std::optional<YString> propertyName_;
    BexPropValueType valueType_ = BexPropTypeUnknown;
    std::optional<YString> displayString_;
    unsigned long displayFlag_ = 0;
    unsigned long editFlag_ = 1;
    BexPropPlace propPlace_ = BexPlaceCirc;
    int viewerColor_ = -1;
    YString_Array valueSelection_;
    bexa::detail::IndexLink link_;
};

class BEXA_API BexPropSpecRec_Array : public bexa::ArrayOf<BexPropSpecRec, 256> {
public:
    using ArrayOf::ArrayOf;
};

// The properties of one kind of object, or of one reference table.
//
// A table belongs to all owners that hold it and ends with the last of them. Tables never form a circle: an operation
// that would put one below itself leaves it out.
class BEXA_API BexPropOwnerRec {
public:
    BexPropOwnerRec();
    // Names and rows are copied, tables are shared.
    // Kept on purpose: a copy has the use count of its source, an assignment leaves that of its target alone.
    BexPropOwnerRec(const BexPropOwnerRec& other);
    BexPropOwnerRec(BexPropOwnerRec&& other) noexcept;
    BexPropOwnerRec& operator=(const BexPropOwnerRec& other);
    BexPropOwnerRec& operator=(BexPropOwnerRec&& other) noexcept;
    ~BexPropOwnerRec();

    // Takes over the names and the tables of `other`, which then has none, and copies its rows. A table below which
    // this record stands itself remains with `other`. With itself: nothing happens.
    void realCopy(BexPropOwnerRec& other);

    // Reads the rows of a section of the file at `path` into this record. The first row of a name counts. A
    // "$RefTable" row brings in the section that it names as a table, shared with all owners of `file`; one whose
    // table this record is below of is passed over. A "$RefFile" row brings the rows of a section of another file in
    // among those of this record; if they break off, the reading goes on behind it. A section that is being read into
    // this record already is not read into it again, so files may name each other in a circle. Rows that name what
    // doesn't exist do nothing.
    //
    // False for a null table, and where a row is no list, here or in a table below; what was read until there stays.
    unsigned long readFrom(BexPropSpecFile& file, const char* path, const YioRscTable* table);
    // Appends the lines of this record, then of its tables, to `out`; a record whose name is in `done` is left out,
    // each one written is put there. The texts in `done` are the set's: the caller ends them with its `deleteAll`.
    void makeString(YString_Array& out, unsigned long withPlace, BexStrSet& done) const;

    unsigned long isValid() const { return objectName_.has_value(); }

    // The name of the section, and the name for people. Null if there is none. The setters copy; null takes the name
    // away. Always true.
    const char* objectName() const { return objectName_ ? static_cast<const char*>(*objectName_) : nullptr; }
    const char* aliasName() const { return aliasName_ ? static_cast<const char*>(*aliasName_) : nullptr; }
    unsigned long objectName(const char* name);
    unsigned long aliasName(const char* name);

    // How many owners hold this record as a table. Whoever raises the count keeps the record alive and must lower it
    // again before the last owner goes; lowering never ends the record. The new count is returned.
    int useCount() const { return useCount_; }
    int incrUseCount() { return ++useCount_; }
    int decrUseCount() { return --useCount_; }

    // Replace `out` by the rows in their order. Rows of type BexPropTypeRefFile are left out; those of type
    // BexPropTypeRefTable are given only if `withRefTables`, and then, if `expand`, followed by what their table
    // gives. A table that is held at several places is given at each of them. False, with `out` empty, if that makes
    // more than a million.
    unsigned long enumPropNames(YString_Array& out, unsigned long withRefTables, unsigned long expand) const;
    unsigned long enumDisplayStrings(YString_Array& out, unsigned long withRefTables,
                                     unsigned long expand) const;
    unsigned long enumPropSpecRecs(BexPropSpecRec_Array& out, unsigned long withRefTables,
                                   unsigned long expand) const;
    // Replaces `out` by the names of the tables, in their order; if `deep`, followed by what the same gives for each
    // of them. The same bound.
    unsigned long enumRefTableNames(YString_Array& out, unsigned long deep) const;

    // The table of this name: one of those that this record holds; if `deep`, else the first one below them. Null if
    // there is none. It lives until the last owner lets go of it.
    BexPropOwnerRec* refTable(const char* name, unsigned long deep);
    const BexPropOwnerRec* refTable(const char* name, unsigned long deep) const;
    // Holds the table of this name: the one held already, else the first one below an owner of `file`, else a new one
    // with this alias (its name, for null and an empty text). The row of the name is made a row for it. Null for a
    // null or empty name and for a table that leads back to this record.
    BexPropOwnerRec* appendRefTable(BexPropSpecFile& file, const char* name, const char* alias);
    // Lets go of a table and removes the row of its name. False if there is no such table or no such row.
    unsigned long removeRefTable(const char* name);
    // The same, but the table's rows, without its tables, remain as rows of this record: behind its row, or at the
    // end if there is none. Names may then stand twice.
    unsigned long breakRefTable(const char* name);

    // The first row of this name, in row order and through the tables. Null if there is none. Valid until rows are
    // added to or removed from the record that holds it.
    BexPropSpecRec* propSpec(const char* name);
    const BexPropSpecRec* propSpec(const char* name) const;
    // The row of this name, not looked for in tables; a new one at the end if there is none. Null for a null or empty
    // name.
    BexPropSpecRec* appendPropSpecRec(const char* name);
    // Removes the first row of this name, and lets go of the table of this name. False if there is no such row.
    unsigned long removePropSpecRec(const char* name);

private:
    friend class BexPropSpecFile;
    friend class bexa::detail::PropSpecReader;
    friend class bexa::detail::PropTableWalk;

    using Tables = std::vector<BexPropOwnerRec*>;

    static BexPropOwnerRec* newTable(const char* name, const char* alias);
    BexPropOwnerRec* hold(BexPropOwnerRec* table);
    BexPropOwnerRec* heldTable(std::string_view name) const;
    bool leadsTo(const BexPropOwnerRec& record) const;
    void takeTables(Tables& from);
    static void release(Tables tables);

    bexa::detail::PropRowIndex& index() const;
    std::span<const bexa::detail::PropTableReference> references() const;
    void forgetRows();
    void forgetReferences();
    int rowPlace(std::string_view name) const;
    BexPropSpecRec& addRow(BexPropSpecRec&& record);

    // `row` is called for each row, and `enter` for the table of each that has one: false leaves the table out. False
    // as soon as `row` says so.
    template <class Row, class Enter>
    bool walkRows(Row row, Enter enter) const;
    template <class Add>
    bool enumerate(unsigned long withRefTables, unsigned long expand, Add add) const;
    template <class Visit>
    bool walkTables(unsigned long deep, Visit visit) const;
    // The properties of type BexPropTypeHide, in row order and through the tables, each once.
    std::vector<YString> hiddenProperties() const;

    bool makeSection(YString_Array& out, unsigned long withPlace, BexStrSet& done) const;

    std::optional<YString> objectName_;
    std::optional<YString> aliasName_;
    BexPropSpecRec_Array rows_;
    Tables tables_;
    int useCount_ = 0;
    unsigned long renamed_ = 0; // how often: tells the holders of a table
    bexa::detail::IndexLink link_;
    mutable std::unique_ptr<bexa::detail::PropRowIndex> index_; // made when first needed
};

class BEXA_API BexPropOwnerRec_Array : public bexa::ArrayOf<BexPropOwnerRec, 256> {
public:
    using ArrayOf::ArrayOf;
};
