#include "bexa/props/prop_value_tokens.h"

namespace bexa::detail {

namespace {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n';
}
constexpr bool isParenthesis(char c) {
    return c == '(' || c == ')';
}
// Not what a word stores in one piece, outside and inside quotes.
constexpr bool isPlain(char c) {
    return !isBlank(c) && !isParenthesis(c) && c != '"' && c != '\\';
}
constexpr bool isPlainInQuotes(char c) {
    return c != '\t' && c != '"' && c != '\\';
}

} // namespace

void PropValueTokens::next(BexPropValueToken& token) {
    cursor_.takeWhile(isBlank);
    const char c = cursor_.peek();
    if (isParenthesis(c)) {
        cursor_.skip(1);
        token = {c == '(' ? BexPropValueToken::TokenOpen : BexPropValueToken::TokenClose, {}};
    } else if (!takeWord(token.text)) {
        // Kept on purpose: a word that the text ends with is lost.
        token = {BexPropValueToken::TokenEnd, {}};
    } else {
        token.type = BexPropValueToken::TokenString;
    }
}

// word = { plain | "\" any | '"' { quoted } '"' }, up to a blank, which is taken, or a parenthesis, which stays.
// False if the text ends first.
bool PropValueTokens::takeWord(YString& word) {
    word.assign(cursor_.takeWhile(isPlain));
    for (;;) {
        if (cursor_.atEnd()) return false;
        if (isParenthesis(cursor_.peek())) return true;
        const char c = cursor_.take();
        if (isBlank(c)) return true;
        if (c == '"') {
            takeQuoted(word);
        } else if (!cursor_.atEnd()) {
            word << cursor_.take();
        }
        word.concat(cursor_.takeWhile(isPlain));
    }
}

// quoted = any character but a quote | "\" any
void PropValueTokens::takeQuoted(YString& word) {
    for (;;) {
        word.concat(cursor_.takeWhile(isPlainInQuotes));
        if (cursor_.atEnd() || cursor_.take('"')) return;
        if (cursor_.take('\t')) {
            word << ' ';
        } else {
            cursor_.skip(1);
            if (!cursor_.atEnd()) word << cursor_.take();
        }
    }
}

} // namespace bexa::detail
