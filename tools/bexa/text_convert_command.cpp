#include "tools/bexa/command.h"
#include "tools/bexa/text_file.h"

#include "bexa/foundation/kanji.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

namespace fs = std::filesystem;

struct Options {
    std::string to;
    std::string input;
    std::string output; // empty: in the place of the input
};

using Convert = long (*)(const char* text, YString& out);

struct Direction {
    const char* from;
    const char* to;
    const char* fromName;
    const char* toName;
    Convert there;
    Convert back;
};

constexpr Direction directions[] = {
    {"sjis", "euc", "Shift-JIS", "EUC", YsjistoeucStr, YeuctosjisStr},
    {"euc", "sjis", "EUC", "Shift-JIS", YeuctosjisStr, YsjistoeucStr},
};

std::vector<std::string> targets() {
    std::vector<std::string> words;
    for (const Direction& direction : directions) words.emplace_back(direction.to);
    return words;
}

const Direction& directionTo(const std::string& to) {
    return *std::find_if(std::begin(directions), std::end(directions),
                         [&to](const Direction& direction) { return direction.to == to; });
}

// The whole text in the other coding; nothing if it has a byte that can't be converted, or whose conversion
// wouldn't lead back to it, as with a NUL byte or an EUC mark of half-width kana in front of something else.
std::optional<std::string> converted(const std::string& text, const Direction& direction) {
    if (text.empty()) return text;
    YString there, back;
    const bool done = direction.there(text.c_str(), there) >= 0 && direction.back(there, back) >= 0;
    if (!done || back.view() != text) return std::nullopt;
    return std::string(there.view());
}

// The offset of the first character in a line that can't be converted.
std::size_t faultIn(std::string_view line, const Direction& direction) {
    std::size_t at = 0;
    const auto isGood = [&](std::size_t length) {
        return converted(std::string(line.substr(at, length)), direction).has_value();
    };
    while (at < line.size()) {
        const std::size_t length = isGood(1) ? 1 : 2;
        if (length == 2 && !isGood(2)) break;
        at += length;
    }
    return at;
}

// The offset of the first character in a text that can't be converted. No character reaches over a line end.
std::size_t faultInText(std::string_view text, const Direction& direction) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        const std::size_t end = std::min(text.find('\n', offset), text.size() - 1) + 1;
        const std::string line(text.substr(offset, end - offset));
        if (!converted(line, direction)) return offset + faultIn(line, direction);
        offset = end;
    }
    return offset;
}

std::string convert(const std::string& text, const Direction& direction, const std::string& shown) {
    if (auto result = converted(text, direction)) return *std::move(result);
    const std::size_t offset = faultInText(text, direction);
    throw finding(bytesInWords(text, offset) + " cannot be converted from " + direction.fromName + " to " +
                      direction.toName,
                  inWords(shown, placeAt(text, offset)),
                  std::string("correct the text, or check that it is ") + direction.fromName +
                      "; nothing was written");
}

// Only a file that isn't there, or the input itself, can be the output: what else stands there is somebody's.
void checkOutput(const Options& options, const std::string& shown) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(options.output, failed))) return;
    if (fs::equivalent(options.input, options.output, failed)) return;
    throw unusable("something stands there already", shown, "remove it, or give another file with -o");
}

void convertText(const Options& options, Output& out) {
    const Direction& direction = directionTo(options.to);
    const std::string& output = options.output.empty() ? options.input : options.output;
    const std::string shownInput = out.systemText(options.input.c_str());
    const std::string shownOutput = out.systemText(output.c_str());
    const std::string text = contentOf(options.input, shownInput);
    if (!options.output.empty()) checkOutput(options, shownOutput);
    const std::string result = convert(text, direction, shownInput);
    std::error_code failed;
    const bool isSame = fs::equivalent(options.input, output, failed) && result == text;
    if (!isSame) placeContent(output, shownOutput, result);
    out.print({{"file", shownInput},
               {"output", shownOutput},
               {"from", direction.from},
               {"to", direction.to},
               {"bytes", result.size()},
               {"changed", result != text}});
}

} // namespace

void addTextConvertCommand(CLI::App& text, Request& request) {
    CLI::App* command = text.add_subcommand(
        "convert", "Converts a text between Shift-JIS and EUC, in its place or into another file");
    const auto options = std::make_shared<Options>();
    command->add_option("--to", options->to, "The coding to convert to; the text is in the other one")
        ->required()
        ->check(CLI::IsMember(targets()));
    command->add_option("FILE", options->input, "The text file")->required();
    command->add_option("-o,--output", options->output, "The file to make, in place of FILE itself")
        ->type_name("OUT");
    finishCommand(*command, request, [options](Output& out) { convertText(*options, out); });
}

} // namespace tool
