#include "bexa/names/multi_property.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/names/delimiters.h"

#include <algorithm>

using bexa::detail::Delimiters;
using bexa::detail::TextCursor;
using bexa::detail::viewOf;

namespace {

bool hasSeparator(std::string_view text, char separator) {
    return text.find(separator) != std::string_view::npos;
}

// packed = piece, then any number of: separator piece
std::string_view pieceOf(std::string_view text, int bit, char separator) {
    if (!hasSeparator(text, separator)) return text;
    TextCursor rest(text);
    for (int i = 0; i <= bit; ++i) {
        const std::string_view piece = rest.takeUntil(separator);
        if (i == bit) return piece;
        if (!rest.take(separator)) break;
    }
    return {};
}

} // namespace

BexMultiProperty::BexMultiProperty(int bits, const BexDatarc& rc) {
    reset(bits, rc);
}

BexMultiProperty& BexMultiProperty::operator=(const char* text) {
    const YString packed = text; // may be an element
    if (bitCount_ == 1 || !hasSeparator(packed.view(), separator_)) {
        setValues(0, packed.view());
        return *this;
    }
    TextCursor rest(packed.view());
    int bit = 0;
    for (bool goesOn = true; goesOn && bit < bitCount_; ++bit) {
        (*this)[bit].assign(rest.takeUntil(separator_));
        goesOn = rest.take(separator_);
    }
    setValues(bit, {});
    return *this;
}

unsigned long BexMultiProperty::operator==(const char* text) const {
    if (bitCount_ < 1) return 0;
    const std::string_view packed = viewOf(text);
    if (bitCount_ == 1 || !hasSeparator(packed, separator_)) return isEveryValue(packed);
    return equalsPieces(packed);
}

// Kept on purpose: of a piece ahead of the last only the length of the piece is compared.
bool BexMultiProperty::equalsPieces(std::string_view text) const {
    TextCursor rest(text);
    for (int bit = 0; bit < bitCount_; ++bit) {
        const std::string_view piece = rest.takeUntil(separator_);
        if (!rest.take(separator_)) return bit == bitCount_ - 1 && element(bit) == piece;
        if (!element(bit).starts_with(piece)) return false;
    }
    return false;
}

unsigned long BexMultiProperty::operator==(const BexMultiProperty& other) const {
    if (separator_ != other.separator_ || bitCount_ != other.bitCount_) return 0;
    for (int bit = 0; bit < bitCount_; ++bit) {
        if (element(bit) != other.element(bit)) return 0;
    }
    return 1;
}

const char* BexMultiProperty::value(int bit) const noexcept {
    if (bit < 0 || bit >= bitCount_) return nullptr;
    return bit < size() ? static_cast<const char*>(at(bit)) : "";
}

void BexMultiProperty::value(int bit, const char* text) {
    if (bit < 0 || bit >= bitCount_) return;
    const YString value = text; // may be an element, which moves when the array grows
    (*this)[bit] = value;
}

YString BexMultiProperty::pack() const {
    if (size() == 0) return {};
    return isEveryValue(element(0)) ? at(0) : expand();
}

YString BexMultiProperty::expand() const {
    YString text;
    for (int bit = 0; bit < bitCount_; ++bit) {
        if (bit > 0) text << separator_;
        text.concat(element(bit));
    }
    return text;
}

void BexMultiProperty::reset(int bits, const BexDatarc& rc) {
    separator_ = Delimiters::of(rc).bitEnd;
    bitCount_ = bits;
    bitCount(bits);
}

void BexMultiProperty::bitCount(int bits) {
    if (bits < 1) return;
    bitCount_ = bits;
    if (bits > size()) resize(bits);
}

YString BexMultiProperty::getOne(const char* text, int bit, const BexDatarc& rc) {
    return YString(pieceOf(viewOf(text), bit, Delimiters::of(rc).bitEnd));
}

void BexMultiProperty::getOne(const char* text, int bit, const BexDatarc& rc, YString& out) {
    out = getOne(text, bit, rc);
}

std::string_view BexMultiProperty::element(int index) const noexcept {
    return index < size() ? at(index).view() : std::string_view();
}

bool BexMultiProperty::isEveryValue(std::string_view text) const noexcept {
    for (int bit = 0; bit < bitCount_; ++bit) {
        if (element(bit) != text) return false;
    }
    return true;
}

// Those from `begin` on.
void BexMultiProperty::setValues(int begin, std::string_view text) {
    for (int bit = begin; bit < bitCount_; ++bit) (*this)[bit].assign(text);
}
