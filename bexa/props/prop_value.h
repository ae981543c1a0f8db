// Property value expressions: a plain word, or named groups of keys and values.
//
//     value = { group }
//     group = word | "(" [ word ] item { item } ")"
//     item  = "(" word [ word ] ")"
//
// for instance `(PART (LENGTH 10) (WIDTH 5)) (PACKAGE (TYPE "SOP 8"))`. Words end at a blank, a tab, a line feed or a
// parenthesis; quotes keep these in a word, and a backslash keeps any character that follows it.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ycore/integer_arrays.h"
#include "bexa/foundation/ygeneral/yset.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

#include <cstddef>
#include <memory>

// One token of an expression.
class BEXA_API BexPropValueToken {
public:
    using BytesMayMove = BexPropValueToken;

    // The first four come from the text, the others only ever stand on the stack of tokens.
    enum TokenType : int {
        TokenNone = 0,
        TokenEnd = 1,
        TokenString = 2,
        TokenOpen = 3,
        TokenClose = 4,
        TokenStart = 5,  // the bottom of the stack
        TokenItems = 7,  // the current group has an item
        TokenGroups = 9, // a group in parentheses was read
    };

    BexPropValueToken() = default;
    BexPropValueToken(TokenType tokenType, const YString& tokenText) : type(tokenType), text(tokenText) {}

    TokenType type = TokenNone;
    YString text; // of a word; without a meaning for the others
};

class BexPropValueToken_Array : public bexa::ArrayOf<BexPropValueToken, 256> {
public:
    using ArrayOf::ArrayOf;
};

class BexPropValueToken_Stack : public bexa::StackOf<BexPropValueToken_Array> {
public:
    using StackOf::StackOf;
};

// The value of a property: read by one `expand`, then asked and changed. Copies are deep.
class BEXA_API BexPropValue {
public:
    // A key with its value.
    struct Item {
        YString key;
        YString value;
    };

    // The items of a group by key. Owns them: the end of the set, and of a copy its copy, ends them too. A walk goes
    // in the order of the hash, not of the text; copies keep it.
    class BEXA_API ItemSet : public YSet {
    public:
        ItemSet();
        ItemSet(const ItemSet& other);
        ItemSet& operator=(const ItemSet& other);
        ~ItemSet() override;
        unsigned long copyFrom(const ItemSet& other);

        // Takes the item over. Where its key is held already the older item stays and this one ends.
        void add(std::unique_ptr<Item> item);
        const Item* find(const YString& key) const;
        // Takes all items out of `other`; those held before end.
        void takeOver(ItemSet& other);

    protected:
        unsigned long compare(const void* key, const void* held) const override;
        unsigned long hashValue(const void* key) const override;
        void deleteIt(void* element) override;
    };

    // A name with its items. A plain word is a group without items; the name of a group in parentheses may be empty.
    struct Group {
        YString name;
        ItemSet items;
    };

    // The groups of a value by name, owned as items are.
    class BEXA_API GroupSet : public YSet {
    public:
        GroupSet();
        GroupSet(const GroupSet& other);
        GroupSet& operator=(const GroupSet& other);
        ~GroupSet() override;
        unsigned long copyFrom(const GroupSet& other);

        void add(std::unique_ptr<Group> group);
        const Group* find(const YString& name) const;
        Group* find(const YString& name);

    protected:
        unsigned long compare(const void* key, const void* held) const override;
        unsigned long hashValue(const void* key) const override;
        void deleteIt(void* element) override;
    };

    BexPropValue();
    BexPropValue(const BexPropValue&);
    BexPropValue& operator=(const BexPropValue&);
    ~BexPropValue();

    // Reads a text of any length, and adds its groups to those held. Of two groups of one name, and of two items of
    // one key, the first stays. 1, or 0 at the first token that has no place, with everything before it kept.
    // Kept on purpose: a text that ends halfway is a success, and what is finished counts; a word at the very end of
    // the text is lost, so `abc` holds no group and `abc ` holds one; and the next call goes on in the state in which
    // the last one ended.
    unsigned long expand(const YString& text);

    // 0 for a plain word: exactly one group, without items. Kept on purpose: a value without any group is 1.
    unsigned long isGroup() const;
    // The plain word, else the whole text of the last expand. Kept on purpose: setValue doesn't change that text.
    void getValue(YString& value) const;
    // Appends the names of all groups.
    void getValue(YString_Array& names) const;
    // Appends the keys of a group and, in step, their values. 0, with nothing appended, for an unknown group.
    unsigned long getValue(const YString& group, YString_Array& keys, YString_Array& values) const;
    // The value of a key. 0, with `value` as it was, for an unknown group or key.
    unsigned long getValue(const YString& group, const YString& key, YString& value) const;

    // Sets the value of a key, making group and item where they are missing. Of a value that begins and ends with a
    // quote only what stands between its first two quotes counts.
    void setValue(const YString& group, const YString& key, const YString& value);

    // Appends the expression, groups and items in the order of their sets. In values each blank, quote, parenthesis
    // and backslash gets `escapes` backslashes in front; double-byte characters stay as they are. With `newlines` a
    // line for each item and group.
    // Kept on purpose: without `newlines` plain words run together; and a lead byte at the end of a value is dropped.
    void dump(YString& out, unsigned escapes, unsigned long newlines) const;

private:
    struct Rule;
    static const Rule rules[];

    bool apply(const Rule& rule, BexPropValueToken& token);
    // What the rules do; they may take the token's text. False if the tokens on the stack don't fit.
    bool keepToken(BexPropValueToken& token);
    bool finishWord(BexPropValueToken& token);
    bool finishKey(BexPropValueToken& token);
    bool finishItem(BexPropValueToken& token);
    bool finishNamelessGroup(BexPropValueToken& token);
    bool finishNamedGroup(BexPropValueToken& token);

    // The token on top: there is always one, since the bottom stays.
    BexPropValueToken& topToken() { return tokens_()[tokens_.count() - 1]; }
    YString popText();
    void mark(BexPropValueToken::TokenType type);
    bool takeItemsMark();
    void addItem(YString key, YString value);
    void addGroup(YString name);

    YString text_;
    std::size_t cursor_ = 0; // the place in `text_` that is read next
    ItemSet items_;          // of the group being read
    GroupSet groups_;
    BexPropValueToken_Stack tokens_;
    Yint_Stack states_;
};
