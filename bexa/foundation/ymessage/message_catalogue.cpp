#include "bexa/foundation/ymessage/message_catalogue.h"

#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ygeneral/ylocale.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/yrsc/token_reader.h"

#include <charconv>
#include <optional>
#include <string_view>

namespace {

using Texts = std::unordered_map<unsigned, std::string>;

constexpr unsigned cellSize = 4096;

struct Program {
    std::string root; // the environment variable that names the directory
    std::string name;
};

Program programOf(std::string_view text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos) return {"YDSROOT", std::string(text)};
    return {std::string(text.substr(0, slash)), std::string(text.substr(slash + 1))};
}

YPathName filePath(const Program& program, const char* language) {
    YPathName path(ygetenv(program.root.c_str(), 1));
    path += "msg";
    path += language;
    path += program.name.c_str();
    path.addSuffix(".rsc");
    return path;
}

YPathName existingFile(const Program& program) {
    const YPathName path = filePath(program, bexa::detail::languageDirectory());
    return path.Test() == YPathName::TestFile ? path : filePath(program, "eng");
}

std::optional<unsigned> numberOf(std::string_view text) {
    unsigned number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

bool takeTableHead(YioRscLoad& reader) {
    const YioRscLoad::Token count = reader.next(cellSize);
    if (count.type != YioRscLoad::TypeCount || count.text != "2") return false;
    return reader.next(cellSize).type == YioRscLoad::TypeOpen;
}

// row = number text
bool takeRows(YioRscLoad& reader, Texts& texts) {
    while (true) {
        const YioRscLoad::Token first = reader.next(cellSize);
        if (first.type == YioRscLoad::TypeClose) return true;
        const auto number = numberOf(first.text);
        if (first.type != YioRscLoad::TypeValue || !number) return false;
        const YioRscLoad::Token text = reader.next(cellSize);
        if (text.type != YioRscLoad::TypeValue) return false;
        texts.try_emplace(*number, text.text);
    }
}

// Nothing for a file with anything else in it than one table of messages.
std::optional<Texts> textsOf(YioRscLoad reader) {
    Texts texts;
    const YioRscLoad::Token key = reader.next(cellSize);
    if (key.type == YioRscLoad::TypeEnd) return texts;
    if (key.type != YioRscLoad::TypeKeyword || key.text != "message") return std::nullopt;
    if (!takeTableHead(reader) || !takeRows(reader, texts)) return std::nullopt;
    if (reader.next(cellSize).type != YioRscLoad::TypeEnd) return std::nullopt;
    return texts;
}

} // namespace

bexa::detail::MessageCatalogue::MessageCatalogue(const char* program) {
    const YPathName path = existingFile(programOf(program));
    texts_ = textsOf(openReader(path)).value_or(Texts());
}

const std::string* bexa::detail::MessageCatalogue::text(unsigned id) const {
    const auto found = texts_.find(id);
    return found == texts_.end() ? nullptr : &found->second;
}
