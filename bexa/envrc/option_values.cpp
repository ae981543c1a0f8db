#include "bexa/envrc/option_values.h"

#include "bexa/foundation/word_table.h"

namespace {

constexpr bexa::detail::WordTable<3> flagWords({
    {BexOptFlagOn, "On"},
    {BexOptFlagOff, "Off"},
    {BexOptFlagToggle, "toggle"},
});
static_assert(flagWords.isSound());

} // namespace

BexOptFlagType BexOptFlag::type(const char* word) {
    const int value = flagWords.value(word);
    return value < 0 ? BexOptFlagNone : BexOptFlagType(value);
}

unsigned long BexOptFlag::value(BexOptFlagType type) {
    switch (type) {
    case BexOptFlagOn: value(1UL); return 1;
    case BexOptFlagOff: value(0UL); return 1;
    case BexOptFlagToggle: value(value() == 1 ? 0UL : 1UL); return 1;
    default: return 0;
    }
}

BexOptString::BexOptString(const BexOptString& other) : isSet_(other.isSet_) {
    if (other.value_) value_ = std::make_shared<const YString>(*other.value_);
}

void BexOptString::value(const char* text) {
    if (text && *text) value_ = std::make_shared<const YString>(text);
}

const char* BexOptString::value() const noexcept {
    return value_ ? static_cast<const char*>(*value_) : nullptr;
}

void BexOptString::defaultValue(const char* text) {
    if (!isSet_) value(text);
}

void BexOptString::clear() noexcept {
    value_.reset();
    isSet_ = 0;
}
