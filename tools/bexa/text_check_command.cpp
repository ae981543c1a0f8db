#include "tools/bexa/command.h"
#include "tools/bexa/text_file.h"

#include "bexa/foundation/sjis_check.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

// The bounds of BexSjisCheck, to find where a text has left them.
constexpr std::size_t longestLine = 1023;
constexpr std::size_t tooManyLines = 2000;

// One line of a text, its line feed included.
struct Line {
    std::string_view text;
    std::size_t offset; // where it begins in the text

    std::string_view withoutEnd() const { return text.substr(0, text.size() - (isEnded() ? 1 : 0)); }
    bool isEnded() const { return text.back() == '\n'; }
};

// Calls `take(line)` for each line until it gives true.
template <typename Take>
void walkLines(std::string_view text, Take take) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        const std::size_t end = std::min(text.find('\n', offset), text.size() - 1) + 1;
        if (take(Line{text.substr(offset, end - offset), offset})) return;
        offset = end;
    }
}

bool isPlain(unsigned char byte) {
    return (byte >= ' ' && byte < 0x7F) || (byte >= '\t' && byte <= '\r');
}

// The first byte of a line that begins nothing allowed.
std::optional<std::size_t> badByte(std::string_view line) {
    const auto byteAt = [line](std::size_t at) {
        return at < line.size() ? static_cast<unsigned char>(line[at]) : static_cast<unsigned char>(0);
    };
    for (std::size_t at = 0; at < line.size(); ++at) {
        const unsigned char byte = byteAt(at);
        if (byte < 0x80 && !isPlain(byte)) return at;
        if (byte < 0x80) continue;
        if (!BexSjisCheck::sjisText(static_cast<unsigned short>(byte << 8U | byteAt(at + 1)))) return at;
        ++at;
    }
    return std::nullopt;
}

// Where a text has the fault that it failed for.
using Find = std::size_t (*)(std::string_view text);

std::size_t findTooManyLines(std::string_view text) {
    std::size_t lines = 0, offset = 0;
    walkLines(text, [&](const Line& line) {
        if (!line.withoutEnd().empty()) ++lines;
        offset = line.offset;
        return lines == tooManyLines;
    });
    return offset;
}

std::size_t findLongLine(std::string_view text) {
    std::size_t offset = 0;
    walkLines(text, [&](const Line& line) {
        offset = line.offset;
        return line.text.size() > longestLine || (line.text.size() == longestLine && !line.isEnded());
    });
    return offset;
}

std::size_t findBadByte(std::string_view text) {
    std::size_t offset = 0;
    walkLines(text, [&](const Line& line) {
        const auto at = badByte(line.withoutEnd());
        if (at) offset = line.offset + *at;
        return at.has_value();
    });
    return offset;
}

struct Fault {
    unsigned code;
    Find find;
    bool isByte; // told with its column
    const char* words;
    const char* remedy;
};

// clang-format off
constexpr Fault faults[] = {
    {BexSjisCheck::CodeBadByte,      findBadByte,      true,  "a byte that is not allowed",     "write it as a character of two bytes, half-width kana too; if this is EUC, see bexa text convert"},
    {BexSjisCheck::CodeLongLine,     findLongLine,     false, "a line of more than 1023 bytes", "break the line"},
    {BexSjisCheck::CodeTooManyLines, findTooManyLines, false, "2000 lines with text or more",   "divide the file"},
};
// clang-format on

Json rowOf(const std::string& file, const char* result, const Place& place) {
    const auto number = [](std::size_t value) { return value == 0 ? Json() : Json(value); };
    return {
        {"file", file}, {"result", result}, {"line", number(place.line)}, {"column", number(place.column)}};
}

Json check(const std::string& path, Output& out) {
    const std::string shown = out.systemText(path.c_str());
    const std::string text = contentOf(path, shown);
    unsigned code = 0;
    if (BexSjisCheck::sjisTextFile(path.c_str(), code)) return rowOf(shown, "good", {});
    const auto* fault = std::find_if(std::begin(faults), std::end(faults),
                                     [code](const Fault& row) { return row.code == code; });
    if (fault == std::end(faults)) throw cannotRead(shown);
    const std::size_t offset = fault->find(text);
    Place place = placeAt(text, offset);
    if (!fault->isByte) place.column = 0;
    const std::string words =
        fault->isByte ? bytesInWords(text, offset) + " cannot stand in Shift-JIS text" : fault->words;
    out.report(finding(words, inWords(shown, place), fault->remedy));
    return rowOf(shown, fault->words, place);
}

void checkTexts(const std::vector<std::string>& paths, Output& out) {
    Json rows = Json::array();
    for (const std::string& path : paths) {
        try {
            rows.push_back(check(path, out));
        } catch (const Problem& problem) {
            out.report(problem);
            rows.push_back(rowOf(out.systemText(path.c_str()), "cannot be read", {}));
        }
    }
    out.print({{"files", std::move(rows)}});
}

} // namespace

void addTextCheckCommand(CLI::App& text, Request& request) {
    CLI::App* command = text.add_subcommand("check", "Tells of each file whether it is good Shift-JIS text");
    const auto paths = std::make_shared<std::vector<std::string>>();
    command->add_option("FILE", *paths, "Text files")->required();
    finishCommand(*command, request, [paths](Output& out) { checkTexts(*paths, out); });
}

} // namespace tool
