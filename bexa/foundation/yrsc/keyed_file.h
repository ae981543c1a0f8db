// The keyed reader of resource files: entries are looked up by name, their order doesn't matter.
//
// file  = { comment | entry }
// entry = key ":" value | key ":" list | key [ count ] "{" { row } "}"
// row   = bare word | quoted text | list; with a count, that many of them
// list  = "(" { bare word | quoted text } ")"
//
// Comments, quoted texts and values are those of the token reader; a bare word ends at a parenthesis too. Of a key
// that stands twice the first entry counts. What doesn't fit the grammar is passed over; a quote left open or a NUL
// byte ends the reading, and the entry it stands in is lost.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

class YioRscValue;

// The members of a list. Copies share them.
class BEXA_API YioRscList {
public:
    explicit YioRscList(std::vector<YioRscValue> items);

    unsigned count() const;
    // The member at `index`, null past the end. It lives as long as the list or a copy of it.
    YioRscValue* value(unsigned index) const;

private:
    std::shared_ptr<std::vector<YioRscValue>> items_;
};

// The rows of a table. Copies share them.
class BEXA_API YioRscTable {
public:
    // `columns` cells make a row.
    YioRscTable(std::vector<YioRscValue> cells, unsigned columns);

    unsigned rowCount() const;
    // A cell, null past the end. It lives as long as the table or a copy of it. Without a count behind its key a
    // table has one column.
    YioRscValue* value(unsigned row, unsigned column) const;

private:
    std::shared_ptr<std::vector<YioRscValue>> cells_;
    unsigned columns_;
};

// A value of a keyed file: a text, a table or a list. Independent of the file it came from. The order of the virtual
// operations is part of the interface.
class BEXA_API YioRscValue {
public:
    enum Kind : int {
        KindText = 0,
        KindTable = 4,
        KindList = 5,
    };

    explicit YioRscValue(YString text) : content_(std::move(text)) {}
    explicit YioRscValue(YioRscTable table) : content_(std::move(table)) {}
    explicit YioRscValue(YioRscList list) : content_(std::move(list)) {}
    YioRscValue(const YioRscValue&) = default;
    YioRscValue(YioRscValue&&) noexcept = default;
    YioRscValue& operator=(const YioRscValue&) = default;
    YioRscValue& operator=(YioRscValue&&) noexcept = default;
    virtual ~YioRscValue();

    // A copy, which the caller owns.
    virtual YioRscValue* copy() const;
    virtual int kind() const;
    // The table or the list, owned by this value; null if it is of another kind.
    virtual YioRscTable* table();
    virtual YioRscList* list();
    // The rows of a table, the members of a list, 1 for a text.
    virtual unsigned count() const;
    // The text, owned by this value; null for a table and a list.
    virtual const char* string() const;

private:
    std::variant<YString, YioRscTable, YioRscList> content_;
};

class BEXA_API YioRscFile {
public:
    // Reads the whole file, by the coding its header declares. A file that cannot be read has no entries.
    explicit YioRscFile(const char* path);
    ~YioRscFile();
    YioRscFile(const YioRscFile&) = delete;
    YioRscFile& operator=(const YioRscFile&) = delete;

    // The value of the entry with this key, compared exactly; null when there is none. The caller owns it and may
    // keep it longer than the file.
    YioRscValue* value(const char* key) const;

private:
    std::unordered_map<std::string, YioRscValue> entries_;
};
