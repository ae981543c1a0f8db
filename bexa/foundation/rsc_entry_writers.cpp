#include "bexa/foundation/rsc_entry_writers.h"

#include "bexa/foundation/os.h"

#include <charconv>

namespace bexa::detail {

namespace {

// The text of a number, in a place of its own.
class NumberText {
public:
    template <class Number>
    explicit NumberText(Number number) : end_(std::to_chars(text_, text_ + sizeof text_, number).ptr) {}
    explicit NumberText(double number)
        : end_(std::to_chars(text_, text_ + sizeof text_, number, std::chars_format::general, 6).ptr) {}
    std::string_view view() const { return {text_, static_cast<std::size_t>(end_ - text_)}; }

private:
    char text_[32];
    char* end_;
};

std::string_view textOf(const char& character) {
    return {&character, character == '\0' ? std::size_t{0} : std::size_t{1}};
}

} // namespace

RscText& RscText::word(std::string_view key, std::string_view value, std::string_view behind) {
    return text(key).text(" : ").text(value).text(behind).text("\n");
}

RscText& RscText::quoted(std::string_view key, std::string_view value, std::string_view behind) {
    return text(key).text(" : \"").text(value).text("\"").text(behind).text("\n");
}

RscText& RscText::number(std::string_view key, long value, std::string_view behind) {
    return word(key, NumberText(value).view(), behind);
}

RscText& RscText::real(std::string_view key, double value, std::string_view behind) {
    return word(key, NumberText(value).view(), behind);
}

RscText& RscText::quotedCharacter(std::string_view key, char value, std::string_view behind) {
    return quoted(key, textOf(value), behind);
}

RscText& RscText::character(std::string_view key, char value, std::string_view behind) {
    return word(key, textOf(value), behind);
}

RscText& RscText::openTable(std::string_view key, int columns) {
    return text(key).text(" ").text(NumberText(columns).view()).text(" {\n");
}

RscText& RscText::cell(int value) {
    return cell(NumberText(value).view());
}

RscText& RscText::cell(unsigned value) {
    return cell(NumberText(value).view());
}

RscText& RscText::cell(long value) {
    return cell(NumberText(value).view());
}

RscText& RscText::cell(unsigned long value) {
    return cell(NumberText(value).view());
}

RscText& RscText::cell(double value) {
    return cell(NumberText(value).view());
}

RscText& RscText::cell(std::string_view word) {
    return text("\t").text(word);
}

RscText& RscText::quotedCell(std::string_view content) {
    return text("\t\"").text(content).text("\"");
}

RscText& RscText::gap() {
    return text("\t");
}

RscText& RscText::endRow() {
    return text("\n");
}

RscText& RscText::closeTable() {
    return text("}\n");
}

RscText& RscText::text(std::string_view more) {
    text_ += more;
    return *this;
}

bool RscText::writeTo(const char* path) const {
    return os::writeWholeFile(path, text_);
}

std::string realText(double value) {
    return std::string(NumberText(value).view());
}

} // namespace bexa::detail
