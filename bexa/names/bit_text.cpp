#include "bexa/names/bit_text.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

using bexa::detail::TextCursor;
using bexa::detail::viewOf;

namespace {

constexpr char escape = '\\';
constexpr char quote = '"';

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr bool beginsPair(char c) {
    return static_cast<unsigned char>(c) > 127;
}

std::string_view takeBytes(TextCursor& text, std::size_t count) {
    const std::size_t begin = text.position();
    text.skip(count);
    return text.since(begin);
}

// Takes an item and leaves the text at its end or at a separator. The separator may be any character; the
// order of the tests tells which meaning wins.
YString takeItem(TextCursor& text, char separator) {
    YString item;
    bool inQuotes = false;
    while (!text.atEnd()) {
        std::size_t size = 1;
        const char c = text.peek();
        if (c == escape) {
            text.skip(1);
        } else if (c == quote) {
            inQuotes = !inQuotes;
        } else if (c == separator) {
            if (!inQuotes) break;
        } else if (isBlank(c)) {
            text.skip(1);
            continue;
        } else if (beginsPair(c)) {
            size = 2;
        }
        item.concat(takeBytes(text, size));
    }
    return item;
}

} // namespace

BexBitStr::BexBitStr(int bits) : BexBitStr(bits, ',') {}

BexBitStr::BexBitStr(int bits, char separator)
    : separator_(separator),
      items_(bits),
      bitCount_(std::max(bits, 0)) {}

BexBitStr::BexBitStr(int bits, const char* text) : BexBitStr(bits, ',', text) {}

BexBitStr::BexBitStr(int bits, char separator, const char* text)
    : separator_(separator),
      bitCount_(std::max(bits, 0)) {
    strSet(text);
}

BexBitStr::BexBitStr(const char* text, char separator) : separator_(separator) {
    strSet(text);
    bitCount_ = items_.size();
}

void BexBitStr::strSet(const char* text) {
    const YString list = text; // may be an item
    items_.removeAll();
    if (list.length() == 0) return;
    readItems(list.view());
    fillUp();
}

// list = item, then any number of: separator item
void BexBitStr::readItems(std::string_view text) {
    TextCursor rest(text);
    do {
        items_.end() = takeItem(rest, separator_);
    } while (items_.size() != bitCount_ && rest.take(separator_));
}

void BexBitStr::fillUp() {
    const int found = items_.size();
    if (found >= bitCount_) return;
    items_.resize(bitCount_);
    if (found == 1) std::fill(items_() + 1, items_() + bitCount_, items_.at(0));
}

void BexBitStr::set(int bit, const char* text) {
    if (bit < 0 || bit >= bitCount_) return;
    const YString item = text; // may be an item, which moves when the array grows
    items_[bit] = item;
}

YString BexBitStr::string() const {
    YString text;
    for (int i = 0; i < bitCount_; ++i) {
        if (i > 0) text << separator_;
        if (i < items_.size()) text.concat(items_.at(i).view());
    }
    return text;
}
