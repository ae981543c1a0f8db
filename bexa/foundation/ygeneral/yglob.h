// Patterns of texts.
#pragma once

#include "bexa/export.h"

#include <string_view>
#include <utility>
#include <vector>

// A pattern that was taken apart once and is matched against whole texts. Made by a derived class, which
// knows the notation.
class BEXA_API YRegexp {
public:
    virtual ~YRegexp();

    // True when the whole text matches. Null counts as an empty text.
    bool operator==(const char* text) const;

protected:
    // A character, single or double-byte, as a number.
    using Code = unsigned;
    // One step of a pattern.
    struct Item {
        enum Kind { Run, OneOf, NoneOf } kind;     // Run: any characters, also none
        std::vector<std::pair<Code, Code>> ranges; // first and last character

        bool takes(Code character) const;
    };

    YRegexp() = default;
    YRegexp(const YRegexp&) = default;
    YRegexp& operator=(const YRegexp&) = default;

    void append(Item item) { items_.push_back(std::move(item)); }

private:
    std::vector<Item> items_;
};

// A wildcard pattern: `*` any characters or none, `?` one character, `[abc]` and `[a-z]` one of those,
// `[!abc]` one that is not among them, a backslash takes the next character's meaning away. A double-byte
// character is one character. A `]` that comes first in the brackets stands for itself, and so do a `[` that
// nothing closes and a backslash at the end.
class BEXA_API YGlob : public YRegexp {
public:
    // Null counts as an empty pattern, which only the empty text matches.
    explicit YGlob(const char* pattern);
};
