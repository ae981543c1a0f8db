#include "bexa/props/search_condition.h"

#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/yglob.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

using bexa::detail::isDigit;
using bexa::detail::numberOf;
using bexa::detail::realOf;
using bexa::detail::viewOf;

namespace {

constexpr auto none = std::string_view::npos;

bool isRepeated(std::string_view text, char c) {
    return text.find(c) != text.rfind(c);
}

bool isRealDigit(char c) {
    return isDigit(c) || c == '.';
}

} // namespace

// The comparisons of a type, in the order of the operators.
struct BexSearch::Comparisons {
    BexPropValueType type;
    bool (BexSearch::*of[4])(const char* value) const;
};

constexpr BexSearch::Comparisons BexSearch::comparisons[] = {
    {BexPropTypeInt,
     {&BexSearch::equalLong, &BexSearch::notEqualLong, &BexSearch::lessLong, &BexSearch::equalLessLong}},
    {BexPropTypeFloat,
     {&BexSearch::equalFloat, &BexSearch::notEqualFloat, &BexSearch::lessFloat, &BexSearch::equalLessFloat}},
    {BexPropTypeText,
     {&BexSearch::equalString, &BexSearch::notEqualString, &BexSearch::lessString,
      &BexSearch::equalLessString}},
};

BexSearch::BexSearch() = default;

BexSearch::BexSearch(const char* condition, BexPropValueType type) {
    if (!this->condition(condition, type)) type_ = BexPropTypeUnknown;
}

unsigned long BexSearch::condition(const char* text, BexPropValueType type) {
    if (type == BexPropTypeUnknown) return 0;
    type_ = type;
    YString spaceless(text);
    spaceless.removeSpace();
    Cut cut{};
    Meaning meaning;
    if (!errCheckCondition(spaceless.view(), type) || !cutCondition(spaceless.view(), cut)) return 0;
    if (!transValue(cut, type, meaning)) return 0;
    condition_.assign(text);
    meaning_ = std::move(meaning);
    return 1;
}

// Whether the marks of a condition, its blanks removed, stand where they may.
bool BexSearch::errCheckCondition(std::string_view text, BexPropValueType type) {
    const std::size_t equal = text.find('=');
    const std::size_t except = text.find('!');
    const std::size_t less = text.find('<');
    if (isRepeated(text, '=') || isRepeated(text, '!') || isRepeated(text, '<')) return false;
    if (except != none && (except != 0 || equal != none || less != none)) return false;
    // Kept on purpose: equal or less is `=<`; `<=` is refused.
    if (equal != none && less != equal + 1) return false;
    const std::size_t star = text.find('*');
    if (star == none) return true;
    if (equal != none || except != none || less != none) return false;
    if (type != BexPropTypeText && text != "*") return false;
    // Kept on purpose: a second star stands last, and a third one is not looked at.
    const std::size_t second = text.find('*', star + 1);
    return second == none || second == text.size() - 1;
}

// Cuts a condition that passed the check.
bool BexSearch::cutCondition(std::string_view text, Cut& cut) {
    const std::size_t equal = text.find('=');
    const std::size_t less = text.find('<');
    if (text.starts_with('!')) {
        cut = {NotEqual, {}, text.substr(1)};
    } else if (less == none) {
        cut = {Equal, {}, text};
        return !text.empty();
    } else if (less == 0) {
        // Kept on purpose: the character behind the mark is lost.
        if (text.size() < 2) return false;
        cut = {Less, {}, text.substr(2)};
    } else if (less == text.size() - 1) {
        cut = {Less, text.substr(0, less), {}};
    } else if (equal != none && equal != 0) {
        // Kept on purpose: both bounds hold a part of the mark.
        cut = {EqualLess, text.substr(0, less), text.substr(equal + 1)};
    } else {
        cut = {Less, text.substr(0, less), text.substr(less + 1)};
    }
    return true;
}

bool BexSearch::transValue(const Cut& cut, BexPropValueType type, Meaning& meaning) {
    meaning.relation = cut.relation;
    if (cut.relation == Equal && cut.upper == "*") return true;
    if (type == BexPropTypeInt && !transValueLong(cut, meaning)) return false;
    if (type == BexPropTypeFloat && !transValueFloat(cut, meaning)) return false;
    if (type == BexPropTypeText && !transValueString(cut, meaning)) return false;
    meaning.set = (cut.lower.empty() ? 0U : LowerSet) | (cut.upper.empty() ? 0U : UpperSet);
    return true;
}

// Digits only: a sign is refused, and so is what is left of a mark.
bool BexSearch::transValueLong(const Cut& cut, Meaning& meaning) {
    if (!std::ranges::all_of(cut.lower, isDigit) || !std::ranges::all_of(cut.upper, isDigit)) return false;
    meaning.lower.whole = numberOf(cut.lower);
    meaning.upper.whole = numberOf(cut.upper);
    return true;
}

// Kept on purpose: the lower text is checked over the length of the upper one, and a place that it doesn't have is
// refused. So `1<100` fails, `100<1` passes, and without an upper text the lower one isn't checked at all.
bool BexSearch::transValueFloat(const Cut& cut, Meaning& meaning) {
    if (!std::ranges::all_of(cut.upper, isRealDigit)) return false;
    if (!cut.lower.empty()) {
        if (cut.lower.size() < cut.upper.size()) return false;
        if (!std::ranges::all_of(cut.lower.substr(0, cut.upper.size()), isRealDigit)) return false;
    }
    meaning.lower.real = realOf(cut.lower);
    meaning.upper.real = realOf(cut.upper);
    return true;
}

bool BexSearch::transValueString(const Cut& cut, Meaning& meaning) {
    meaning.lower.text.assign(cut.lower);
    meaning.upper.text.assign(cut.upper);
    return true;
}

unsigned long BexSearch::contains(const char* value) const {
    if (condition_.length() == 0) return 0;
    if (type_ == BexPropTypeHide || type_ == BexPropTypeUnknown) return isAny();
    const auto* family = std::ranges::find(comparisons, type_, &Comparisons::type);
    if (family == std::end(comparisons) || meaning_.relation == None) return 0;
    return (this->*family->of[meaning_.relation - Equal])(value);
}

unsigned long BexSearch::operator==(const BexSearch& other) const {
    if (type_ != other.type_ || condition_ != other.condition_) return 0;
    const Meaning& a = meaning_;
    const Meaning& b = other.meaning_;
    if (a.relation != b.relation || a.set != b.set) return 0;
    switch (type_) {
    case BexPropTypeInt: return a.lower.whole == b.lower.whole && a.upper.whole == b.upper.whole;
    case BexPropTypeText: return a.lower.text == b.lower.text && a.upper.text == b.upper.text;
    case BexPropTypeFloat:
    case BexPropTypeHide:
    case BexPropTypeUnknown: return a.lower.real == b.lower.real && a.upper.real == b.upper.real;
    default: return 1;
    }
}

bool BexSearch::equalLong(const char* value) const {
    return isAny() || numberOf(viewOf(value)) == meaning_.upper.whole;
}

bool BexSearch::notEqualLong(const char* value) const {
    return numberOf(viewOf(value)) != meaning_.upper.whole;
}

bool BexSearch::lessLong(const char* value) const {
    const long number = numberOf(viewOf(value));
    return (!lowerSet() || meaning_.lower.whole < number) && (!upperSet() || number < meaning_.upper.whole);
}

bool BexSearch::equalLessLong(const char* value) const {
    const long number = numberOf(viewOf(value));
    return (!lowerSet() || meaning_.lower.whole <= number) && (!upperSet() || number <= meaning_.upper.whole);
}

bool BexSearch::equalFloat(const char* value) const {
    return isAny() || realOf(viewOf(value)) == meaning_.upper.real;
}

bool BexSearch::notEqualFloat(const char* value) const {
    return realOf(viewOf(value)) != meaning_.upper.real;
}

bool BexSearch::lessFloat(const char* value) const {
    const double number = realOf(viewOf(value));
    return (!lowerSet() || meaning_.lower.real < number) && (!upperSet() || number < meaning_.upper.real);
}

// Kept on purpose: the value must be at least the upper bound, unlike in the other families.
bool BexSearch::equalLessFloat(const char* value) const {
    const double number = realOf(viewOf(value));
    return (!lowerSet() || meaning_.lower.real <= number) && (!upperSet() || number >= meaning_.upper.real);
}

bool BexSearch::equalString(const char* value) const {
    if (isAny()) return true;
    const bool isPattern = meaning_.upper.text.index('*') >= 0;
    return isPattern ? YGlob(meaning_.upper.text) == value : meaning_.upper.text == value;
}

bool BexSearch::notEqualString(const char* value) const {
    return meaning_.upper.text != value;
}

bool BexSearch::lessString(const char* value) const {
    const std::string_view text = viewOf(value);
    return (!lowerSet() || meaning_.lower.text.view() < text) &&
           (!upperSet() || text < meaning_.upper.text.view());
}

bool BexSearch::equalLessString(const char* value) const {
    const std::string_view text = viewOf(value);
    return (!lowerSet() || meaning_.lower.text.view() <= text) &&
           (!upperSet() || text <= meaning_.upper.text.view());
}
