// The tokens of a property value expression.
#pragma once

#include "bexa/foundation/text_cursor.h"
#include "bexa/props/prop_value.h"

#include <cstddef>
#include <string_view>

namespace bexa::detail {

// Takes tokens off a text that somebody else owns.
class PropValueTokens {
public:
    // Begins at `position`.
    PropValueTokens(std::string_view text, std::size_t position) : cursor_(text) { cursor_.moveTo(position); }

    // The next token, in `token`. At the end of the text TokenEnd, also with a word begun.
    void next(BexPropValueToken& token);
    std::size_t position() const { return cursor_.position(); }

private:
    bool takeWord(YString& word);
    void takeQuoted(YString& word);

    TextCursor cursor_;
};

} // namespace bexa::detail
