#include "tools/bexa/text_form.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

namespace tool {
namespace {

struct Cell {
    std::string text;
    bool toTheRight = false;
};
using Row = std::vector<Cell>;

constexpr std::string_view indent = "  ";
constexpr std::string_view gap = "  ";

std::string decimal(double value) {
    char digits[32];
    const auto end =
        std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::general, 6);
    return {digits, end.ptr};
}

std::string plainText(const Json& value, Coding coding) {
    if (value.is_null()) return "-";
    if (value.is_boolean()) return value.get<bool>() ? "yes" : "no";
    if (value.is_number_float()) return decimal(value.get<double>());
    if (!value.is_string()) return value.dump();
    const auto text = printable(value.get_ref<const std::string&>(), coding);
    return text.empty() ? "\"\"" : text;
}

Cell cellOf(const Json& value, Coding coding) {
    return {plainText(value, coding), value.is_number()};
}

bool isTable(const Json& value) {
    return value.is_array() && !value.empty() &&
           std::all_of(value.begin(), value.end(), [](const Json& row) { return row.is_object(); });
}

std::vector<std::size_t> widthsOf(const std::vector<Row>& rows, Coding coding) {
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], displayWidth(row[i].text, coding));
        }
    }
    return widths;
}

std::string lineOf(const Row& row, const std::vector<std::size_t>& widths, Coding coding) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::string blanks(widths[i] - displayWidth(row[i].text, coding), ' ');
        if (i > 0) line += gap;
        line += row[i].toTheRight ? blanks + row[i].text : row[i].text + blanks;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string linesOf(const std::vector<Row>& rows, std::string_view start, Coding coding) {
    const auto widths = widthsOf(rows, coding);
    std::string lines;
    for (const Row& row : rows) lines.append(start).append(lineOf(row, widths, coding));
    return lines;
}

// The rows of an array of objects. The first object says the columns; a head stands as its column does.
std::vector<Row> tableRows(const Json& table, Coding coding) {
    Row head;
    for (const auto& [key, value] : table.front().items()) head.push_back({key, value.is_number()});
    std::vector<Row> rows{head};
    for (const Json& object : table) {
        Row row;
        for (const Json& value : object) row.push_back(cellOf(value, coding));
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<Row> sectionRows(const Json& section, Coding coding) {
    if (isTable(section)) return tableRows(section, coding);
    std::vector<Row> rows;
    for (const auto& [key, value] : section.items()) {
        rows.push_back(section.is_object() ? Row{{key}, {plainText(value, coding)}}
                                           : Row{{plainText(value, coding)}});
    }
    if (rows.empty()) rows.push_back({{"none"}});
    return rows;
}

} // namespace

std::string textOf(const Json& document, Coding coding) {
    std::vector<Row> head;
    std::string sections;
    for (const auto& [key, value] : document.items()) {
        if (value.is_structured()) {
            sections +=
                '\n' + printable(key, coding) + '\n' + linesOf(sectionRows(value, coding), indent, coding);
        } else {
            head.push_back({{key}, {plainText(value, coding)}});
        }
    }
    const std::string text = linesOf(head, "", coding) + sections;
    return head.empty() && !text.empty() ? text.substr(1) : text;
}

} // namespace tool
