#include "bexa/names/multi_reference.h"

#include "bexa/names/delimiters.h"
#include "bexa/names/reference_text.h"

#include <charconv>

using bexa::detail::BitRange;
using bexa::detail::Delimiters;
using bexa::detail::ReferenceWalk;
using bexa::detail::viewOf;

static_assert(BexMultiReference::maxReferences == ReferenceWalk::maxReferences);

namespace {

// A number in decimal, in a place of its own.
class Digits {
public:
    explicit Digits(int number) : end_(std::to_chars(digits_, digits_ + sizeof digits_, number).ptr) {}
    std::string_view view() const { return {digits_, static_cast<std::size_t>(end_ - digits_)}; }

private:
    char digits_[16];
    char* end_;
};

bool isReference(std::string_view text, std::string_view root, int number) {
    return text.starts_with(root) && text.substr(root.size()) == Digits(number).view();
}

// The number of place `place`, which must be below the count.
int numberAt(const BitRange& numbers, long long place) {
    const long long distance = place * numbers.step;
    return static_cast<int>(numbers.first > numbers.last ? numbers.first - distance
                                                         : numbers.first + distance);
}

YString referenceOf(std::string_view text, int bit, const Delimiters& delimiters) {
    ReferenceWalk walk(text, delimiters);
    long long ahead = 0; // the references in front of this item
    for (; walk.next(); ahead = walk.count()) {
        if (bit < 0 || bit >= walk.count()) continue;
        YString reference(walk.root());
        if (!walk.numbers().isEmpty()) reference << numberAt(walk.numbers(), bit - ahead);
        return reference;
    }
    const bool isOne = !walk.isMalformed() && ahead == 1;
    return YString(isOne ? text : std::string_view());
}

} // namespace

BexMultiReference::BexMultiReference(int bits, const BexDatarc& rc) {
    reset(bits, rc);
}

void BexMultiReference::reset(int bits, const BexDatarc& rc) {
    const Delimiters delimiters = Delimiters::of(rc);
    BexMultiProperty::reset(bits, rc);
    busStart_ = delimiters.busStart;
    busEnd_ = delimiters.busEnd;
    rangeEnd_ = delimiters.rangeEnd;
    isError_ = 1;
}

Delimiters BexMultiReference::delimiters() const {
    return {busStart_, busEnd_, rangeEnd_, separator(), rangeEnd_};
}

BexMultiReference& BexMultiReference::operator=(const char* text) {
    isError_ = 1;
    if (!text) {
        setValues(0, {});
        return *this;
    }
    const YString packed = text; // may be an element
    int count = 0;
    if (!readReferences(packed.view(), count)) return *this;
    if (count == 1) {
        const YString only = at(0);
        setValues(1, only.view());
    } else {
        setValues(count, {});
    }
    isError_ = 0;
    return *this;
}

bool BexMultiReference::readReferences(std::string_view text, int& count) {
    ReferenceWalk walk(text, delimiters());
    while (walk.next()) {
        store(count, walk.root(), walk.numbers());
        count = static_cast<int>(walk.count());
    }
    return !walk.isMalformed();
}

// From element `index` on.
void BexMultiReference::store(int index, std::string_view root, const BitRange& numbers) {
    const int end = index + static_cast<int>(numbers.count());
    if (end > size()) resize(end);
    if (numbers.isEmpty()) {
        at(index).assign(root);
        return;
    }
    numbers.forEach([&](int number) {
        YString& element = at(index++);
        element.assign(root);
        element << number;
    });
}

unsigned long BexMultiReference::operator==(const char* text) const {
    if (!text) return isEveryValue({});
    ReferenceWalk walk(text, delimiters());
    int index = 0;
    bool isEqual = true;
    while (isEqual && walk.next()) {
        if (walk.count() > bitCount()) return 0;
        if (walk.numbers().isEmpty()) {
            isEqual = element(index++) == walk.root();
            continue;
        }
        walk.numbers().forEach(
            [&](int number) { isEqual = isEqual && isReference(element(index++), walk.root(), number); });
    }
    return isEqual && !walk.isMalformed() && index == bitCount();
}

unsigned long BexMultiReference::operator==(const BexMultiReference& other) const {
    return notError() && BexMultiProperty::operator==(other) && busStart_ == other.busStart_ &&
           busEnd_ == other.busEnd_ && rangeEnd_ == other.rangeEnd_;
}

YString BexMultiReference::getOne(const char* text, int bit, const BexDatarc& rc) {
    return referenceOf(viewOf(text), bit, Delimiters::of(rc));
}

void BexMultiReference::getOne(const char* text, int bit, const BexDatarc& rc, YString& out) {
    out = getOne(text, bit, rc);
}
