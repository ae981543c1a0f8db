// The text of a resource file, gathered entry by entry and written once.
#pragma once

#include <string>
#include <string_view>

namespace bexa::detail {

// Texts are written as they are: nothing is escaped.
//     RscText file;
//     file.number("netCount", 3);                    netCount : 3
//     file.quoted("title", "A B");                   title : "A B"
//     file.openTable("lineWidth", 2);                lineWidth 2 {
//     file.cell(0).cell(0.5).endRow();               <tab>0<tab>0.5
//     file.closeTable();                             }
class RscText {
public:
    // Lines `key : value`. `behind` is what follows the value on its line, with its own white space.
    RscText& word(std::string_view key, std::string_view value, std::string_view behind = {});
    RscText& quoted(std::string_view key, std::string_view value, std::string_view behind = {});
    RscText& number(std::string_view key, long value, std::string_view behind = {});
    // At most six significant digits, as an output stream writes a double.
    RscText& real(std::string_view key, double value, std::string_view behind = {});
    // One character, quoted or bare. NUL is written as an empty text, which reads back as NUL.
    RscText& quotedCharacter(std::string_view key, char value, std::string_view behind = {});
    RscText& character(std::string_view key, char value, std::string_view behind = {});

    // A table: its head line, rows, and the closing line. Each cell begins with a tab.
    RscText& openTable(std::string_view key, int columns);
    RscText& cell(int value);
    RscText& cell(unsigned value);
    RscText& cell(long value);
    RscText& cell(unsigned long value);
    RscText& cell(double value);
    RscText& cell(std::string_view word);
    RscText& quotedCell(std::string_view text);
    // One tab more in front of the next cell.
    RscText& gap();
    RscText& endRow();
    RscText& closeTable();

    // Any other text, as it is.
    RscText& text(std::string_view text);

    std::string_view view() const { return text_; }

    // Writes the gathered text over the file. False only when the file cannot be opened for writing; what happens
    // behind that is not looked at.
    bool writeTo(const char* path) const;

private:
    std::string text_;
};

// The text of a real number with at most six significant digits, as an output stream writes it.
std::string realText(double value);

} // namespace bexa::detail
