// Conditions on the value of a property.
//
//     condition = operand | "!" operand | operand "<" [ operand ] | "<" operand | operand "=<" operand
//
// Blanks count for nothing. `5` is equal to 5, `!7` not equal to 7, `2<9` between 2 and 9, and `R*`, for texts, every
// text that begins with R. The condition `*` stands for all values.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/props/prop_value_type.h"

#include <string_view>

namespace bexa::detail {
// Lets the tests reach the comparison that no condition can ask for.
struct SearchProbe;
} // namespace bexa::detail

// One condition, for values of one type: whole numbers, floating point numbers or texts.
class BEXA_API BexSearch {
public:
    // No condition: its type is BexPropTypeUnknown.
    BexSearch();
    // A condition that is refused leaves the type BexPropTypeUnknown.
    BexSearch(const char* condition, BexPropValueType type);

    // Takes a condition; null counts as empty, which is refused like every text that the grammar or the type has no
    // meaning for. 1 or 0. The type BexPropTypeUnknown is refused with nothing changed. Kept on purpose: any other
    // refused call leaves the new type beside the old condition, and isValid stays 1.
    //
    // Kept on purpose, and relied on by stored conditions:
    //     - the character behind a `<` at the front is lost: `<10` means below 0, and `<5` holds for every value;
    //     - equal or less is written `=<`, and can be written for texts only: `a=<b` has the bounds `a=` and `<b`;
    //     - of two floating point bounds the upper one may not be written longer than the lower: `1<100` is refused,
    //       `100<1` passes. Without an upper bound the lower one isn't checked, so `abc<` has a lower bound of 0.
    unsigned long condition(const char* text, BexPropValueType type);
    // The condition as it was given, with its blanks; stays until the next one is taken.
    const char* condition() const { return condition_; }

    BexPropValueType valueType() const { return type_; }
    unsigned long isValid() const { return type_ != BexPropTypeUnknown; }

    // 1 if the value meets the condition; null counts as empty. Numbers are read as far as the text is one, from 0. Of
    // the types that are neither numbers nor texts only BexPropTypeHide ever answers 1, to the condition `*`.
    // Kept on purpose: blanks beside the star make it a condition of its own, which is not met by every value.
    unsigned long contains(const char* value) const;

    // Equal in type, text and bounds.
    unsigned long operator==(const BexSearch& other) const;

private:
    friend struct bexa::detail::SearchProbe;

    enum Operator { None, Equal, NotEqual, Less, EqualLess };
    enum BoundFlag : unsigned { LowerSet = 1, UpperSet = 2 };

    // One value; which, the type says.
    struct Bound {
        long whole = 0;
        double real = 0.0;
        YString text;
    };
    // What a condition means.
    struct Meaning {
        Operator relation = Equal;
        unsigned set = 0;
        Bound lower;
        Bound upper; // also the operand of equal and not equal
    };
    // A condition cut at its operator.
    struct Cut {
        Operator relation;
        std::string_view lower;
        std::string_view upper;
    };
    struct Comparisons;
    static const Comparisons comparisons[];

    static bool errCheckCondition(std::string_view text, BexPropValueType type);
    static bool cutCondition(std::string_view text, Cut& cut);
    static bool transValue(const Cut& cut, BexPropValueType type, Meaning& meaning);
    static bool transValueLong(const Cut& cut, Meaning& meaning);
    static bool transValueFloat(const Cut& cut, Meaning& meaning);
    static bool transValueString(const Cut& cut, Meaning& meaning);

    bool isAny() const { return condition_ == "*"; }
    bool lowerSet() const { return (meaning_.set & LowerSet) != 0; }
    bool upperSet() const { return (meaning_.set & UpperSet) != 0; }

    bool equalLong(const char* value) const;
    bool notEqualLong(const char* value) const;
    bool lessLong(const char* value) const;
    bool equalLessLong(const char* value) const;
    bool equalFloat(const char* value) const;
    bool notEqualFloat(const char* value) const;
    bool lessFloat(const char* value) const;
    bool equalLessFloat(const char* value) const;
    bool equalString(const char* value) const;
    bool notEqualString(const char* value) const;
    bool lessString(const char* value) const;
    bool equalLessString(const char* value) const;

    BexPropValueType type_ = BexPropTypeUnknown;
    YString condition_;
    Meaning meaning_;
};
