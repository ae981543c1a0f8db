#include "bexa/foundation/ygeneral/ystring.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <new>
#include <ostream>

using bexa::detail::viewOf;

namespace {

std::string_view viewOf(const char* text, unsigned long length) {
    return text ? std::string_view(text, length) : std::string_view();
}

// The decimal digits of a number, in a place of their own.
class Decimal {
public:
    explicit Decimal(long number) : end_(std::to_chars(digits_, digits_ + sizeof digits_, number).ptr) {}
    std::string_view view() const { return {digits_, static_cast<std::size_t>(end_ - digits_)}; }

private:
    char digits_[24];
    char* end_;
};

} // namespace

void YtString::reserve(std::size_t size) {
    if (size < room()) return;
    const std::size_t wanted = std::max(size + 1, 2 * room());
    void* grown = onHeap_ ? std::realloc(heap_.block, wanted) : std::malloc(wanted);
    if (!grown) throw std::bad_alloc();
    if (!onHeap_) std::memcpy(grown, inline_, length_ + 1);
    heap_ = {static_cast<char*>(grown), wanted};
    onHeap_ = 1;
}

void YtString::setLength(std::size_t length) noexcept {
    length_ = length & (~std::size_t{0} >> 1);
    data()[length] = '\0';
}

void YtString::replace(std::string_view text) {
    if (text.size() < room()) {
        // The source may be part of this text, so the bytes may overlap.
        if (!text.empty()) std::memmove(data(), text.data(), text.size());
        setLength(text.size());
        return;
    }
    // A text that needs more room than there is can't lie inside this one.
    setLength(0);
    append(text);
}

void YtString::append(std::string_view text) {
    if (text.empty()) return;
    const char* begin = data();
    const bool inside =
        std::greater_equal<>()(text.data(), begin) && std::less_equal<>()(text.data(), begin + length_);
    const std::size_t offset = inside ? static_cast<std::size_t>(text.data() - begin) : 0;
    reserve(length_ + text.size());
    std::memmove(data() + length_, inside ? data() + offset : text.data(), text.size());
    setLength(length_ + text.size());
}

bool YtString::operator<(const char* other) const noexcept {
    return view() < viewOf(other);
}

unsigned long YtString::hash() const noexcept {
    return static_cast<unsigned long>(std::hash<std::string_view>()(view()));
}

YString::YString(const char* text) {
    replace(viewOf(text));
}

YString::YString(int size) {
    reserve(static_cast<std::size_t>(std::max(size, 0)));
}

YString::YString(char c, int count) {
    const auto size = static_cast<std::size_t>(std::max(count, 0));
    reserve(size);
    std::memset(data(), c, size);
    setLength(size);
}

YString& YString::operator=(const char* text) {
    replace(viewOf(text));
    return *this;
}

unsigned long YString::assign(const char* text) {
    return assign(viewOf(text));
}

unsigned long YString::assign(const char* text, unsigned long length) {
    return assign(viewOf(text, length));
}

unsigned long YString::assign(std::string_view text) {
    replace(text);
    return 1;
}

unsigned long YString::concat(const char* text) {
    return concat(viewOf(text));
}

unsigned long YString::concat(const char* text, unsigned long length) {
    return concat(viewOf(text, length));
}

unsigned long YString::concat(std::string_view text) {
    append(text);
    return 1;
}

YString& YString::operator<<(const char* text) {
    append(viewOf(text));
    return *this;
}

YString& YString::operator<<(char c) {
    append({&c, 1});
    return *this;
}

YString& YString::operator<<(int number) {
    return *this << static_cast<long>(number);
}

YString& YString::operator<<(long number) {
    append(Decimal(number).view());
    return *this;
}

YString& YString::operator+=(int number) {
    return *this << number;
}

YString YString::operator+(const YString& other) const {
    YString result;
    result.reserve(view().size() + other.view().size());
    result.append(view());
    result.append(other.view());
    return result;
}

int YString::index(char c, int start) const noexcept {
    const auto place = view().find(c, static_cast<std::size_t>(std::max(start, 0)));
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

int YString::rindex(char c, int start) const noexcept {
    const auto place = view().rfind(c);
    return place == std::string_view::npos || static_cast<int>(place) < start ? -1 : static_cast<int>(place);
}

unsigned long YString::removeSpace() noexcept {
    char* end = std::remove_if(data(), data() + length(), bexa::detail::isWhite);
    setLength(static_cast<std::size_t>(end - data()));
    return 1;
}

// Nobody may write through the byte; should it happen all the same, the next reader finds NUL again.
char& YString::rescue() noexcept {
    _out_range_rescue = '\0';
    return _out_range_rescue;
}

char YString::_out_range_rescue = '\0';

std::ostream& operator<<(std::ostream& out, const YtString& text) {
    const std::string_view view = text.view();
    return out.write(view.data(), static_cast<std::streamsize>(view.size()));
}
