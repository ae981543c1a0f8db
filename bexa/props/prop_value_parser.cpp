// The stack machine that reads property value expressions.
#include "bexa/props/prop_value.h"
#include "bexa/props/prop_value_tokens.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace {

using Token = BexPropValueToken;

enum State : int {
    BetweenGroups = 0,
    InGroup = 1,      // behind the opening parenthesis of a group
    InNamedGroup = 2, // behind its name
    InItem = 3,       // behind the opening parenthesis of an item
    BehindKey = 4,
    BehindValue = 5,
};
constexpr int noState = -1;

} // namespace

struct BexPropValue::Rule {
    int state;
    Token::TokenType token;
    bool (BexPropValue::*action)(Token&);
    int pops; // states taken off the stack
    int push; // the state put on it
};

// A pair of state and token that stands in no row is an error.
// clang-format off
constexpr BexPropValue::Rule BexPropValue::rules[] = {
    {BetweenGroups, Token::TokenString, &BexPropValue::finishWord,          0, noState},
    {BetweenGroups, Token::TokenOpen,   &BexPropValue::keepToken,           0, InGroup},
    {InGroup,       Token::TokenString, &BexPropValue::keepToken,           0, InNamedGroup},
    {InGroup,       Token::TokenOpen,   &BexPropValue::keepToken,           0, InItem},
    {InNamedGroup,  Token::TokenOpen,   &BexPropValue::keepToken,           0, InItem},
    {InItem,        Token::TokenString, &BexPropValue::keepToken,           0, BehindKey},
    {BehindKey,     Token::TokenString, &BexPropValue::keepToken,           0, BehindValue},
    {BehindKey,     Token::TokenClose,  &BexPropValue::finishKey,           2, noState},
    {BehindValue,   Token::TokenClose,  &BexPropValue::finishItem,          3, noState},
    {InGroup,       Token::TokenClose,  &BexPropValue::finishNamelessGroup, 1, noState},
    {InNamedGroup,  Token::TokenClose,  &BexPropValue::finishNamedGroup,    2, noState},
};
// clang-format on

unsigned long BexPropValue::expand(const YString& text) {
    text_ = text;
    cursor_ = 0;
    bexa::detail::PropValueTokens tokens(text_.view(), cursor_);
    Token token;
    for (;;) {
        tokens.next(token);
        cursor_ = tokens.position();
        if (token.type == Token::TokenEnd) return 1;
        const auto* rule = std::ranges::find_if(rules, [&, state = states_.top()](const Rule& candidate) {
            return candidate.state == state && candidate.token == token.type;
        });
        if (rule == std::end(rules) || !apply(*rule, token)) return 0;
    }
}

bool BexPropValue::apply(const Rule& rule, BexPropValueToken& token) {
    if (!(this->*rule.action)(token)) return false;
    for (int i = 0; i < rule.pops; ++i) states_.pop();
    if (rule.push != noState) states_.push(rule.push);
    return true;
}

bool BexPropValue::keepToken(BexPropValueToken& token) {
    tokens_.push(std::move(token));
    return true;
}

// The word stays on the stack for good.
bool BexPropValue::finishWord(BexPropValueToken& token) {
    tokens_.push(token);
    items_.deleteAll();
    addGroup(std::move(token.text));
    return true;
}

bool BexPropValue::finishKey(BexPropValueToken&) {
    addItem(popText(), {});
    return true;
}

bool BexPropValue::finishItem(BexPropValueToken&) {
    YString value = popText();
    addItem(popText(), std::move(value));
    return true;
}

bool BexPropValue::finishNamelessGroup(BexPropValueToken&) {
    if (!takeItemsMark()) return false;
    tokens_.pop();
    addGroup({});
    mark(Token::TokenGroups);
    return true;
}

bool BexPropValue::finishNamedGroup(BexPropValueToken&) {
    if (!takeItemsMark()) return false;
    YString name = popText();
    tokens_.pop();
    addGroup(std::move(name));
    mark(Token::TokenGroups);
    return true;
}

// Takes the token on top away.
YString BexPropValue::popText() {
    return tokens_.pop().text;
}

// Puts a mark on top, once.
void BexPropValue::mark(BexPropValueToken::TokenType type) {
    if (topToken().type != type) tokens_.push({type, {}});
}

// A group without items is none.
bool BexPropValue::takeItemsMark() {
    if (topToken().type != Token::TokenItems) return false;
    tokens_.pop();
    return true;
}

// Ends the item whose opening parenthesis is on top.
void BexPropValue::addItem(YString key, YString value) {
    tokens_.pop();
    items_.add(std::make_unique<Item>(Item{std::move(key), std::move(value)}));
    mark(Token::TokenItems);
}

// A group with the items read, which are none for a plain word.
void BexPropValue::addGroup(YString name) {
    auto group = std::make_unique<Group>();
    group->name = std::move(name);
    group->items.takeOver(items_);
    groups_.add(std::move(group));
}
