// A place in a text, with the verbs that small parsers are made of.
#pragma once

#include <climits>
#include <cstddef>
#include <optional>
#include <string_view>

namespace bexa::detail {

// A C text as a view; null is empty.
constexpr std::string_view viewOf(const char* text) {
    return text ? std::string_view(text) : std::string_view();
}

// The white space of resource files and of numbers in them, whatever the locale.
constexpr bool isWhite(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
// A to Z become a to z; every other byte stays.
constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
constexpr bool equalIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lowerCase(a[i]) != lowerCase(b[i])) return false;
    }
    return true;
}

// Walks a text that somebody else owns. Reading past the end gives NUL.
class TextCursor {
public:
    constexpr explicit TextCursor(std::string_view text) : text_(text) {}

    constexpr bool atEnd() const { return at_ == text_.size(); }
    constexpr std::size_t position() const { return at_; }
    // What is not read yet.
    constexpr std::string_view rest() const { return text_.substr(at_); }
    // What was read since `begin`, a former position.
    constexpr std::string_view since(std::size_t begin) const { return text_.substr(begin, at_ - begin); }

    // The byte `ahead` places further on.
    constexpr char peek(std::size_t ahead = 0) const {
        return ahead < text_.size() - at_ ? text_[at_ + ahead] : '\0';
    }
    constexpr bool nextIs(std::string_view word) const { return rest().starts_with(word); }

    // Moves on by at most `count` bytes.
    constexpr void skip(std::size_t count) { at_ += count < text_.size() - at_ ? count : text_.size() - at_; }
    // Goes back, or on, to a former position.
    constexpr void moveTo(std::size_t position) { at_ = position < text_.size() ? position : text_.size(); }

    // Takes one byte, NUL at the end.
    constexpr char take() {
        const char c = peek();
        skip(1);
        return c;
    }
    // Take what is expected; false, with nothing taken, if something else stands there.
    constexpr bool take(char c) {
        if (atEnd() || text_[at_] != c) return false;
        ++at_;
        return true;
    }
    constexpr bool take(std::string_view word) {
        if (!nextIs(word)) return false;
        at_ += word.size();
        return true;
    }

    // Take the bytes for which `test` holds; `takeUntil` those in front of the first `stop`, or all.
    template <class Test>
    constexpr std::string_view takeWhile(Test test) {
        const std::size_t begin = at_;
        while (at_ < text_.size() && test(text_[at_])) ++at_;
        return since(begin);
    }
    constexpr std::string_view takeUntil(char stop) {
        return takeWhile([stop](char c) { return c != stop; });
    }
    constexpr std::string_view takeRest() {
        const std::string_view all = rest();
        at_ = text_.size();
        return all;
    }
    constexpr void skipWhite() { takeWhile(isWhite); }

    // Takes a run of decimal digits. A number above `most` counts as `most`. Nothing, with nothing taken, when no
    // digit stands here.
    constexpr std::optional<int> takeNumber(int most = INT_MAX) {
        if (!isDigit(peek())) return std::nullopt;
        long long number = 0;
        for (char digit : takeWhile(isDigit)) {
            number = number * 10 + (digit - '0');
            if (number > most) number = most;
        }
        return static_cast<int>(number);
    }

private:
    std::string_view text_;
    std::size_t at_ = 0;
};

} // namespace bexa::detail
