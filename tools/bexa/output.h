#pragma once

#include "tools/bexa/problem.h"
#include "tools/bexa/text_coding.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace tool {

// What a command has found: an object whose members stand in the order in which they are shown.
using Json = nlohmann::ordered_json;

// Gathers what a command has to say and writes it once, at the end: what it found on stdout, its problems on
// stderr. A command builds one document and doesn't care in which form it is shown.
class Output {
public:
    enum class Form { Text, Json };

    explicit Output(Form form);

    Form form() const { return form_; }

    // Texts on their way into a document. A resource text came out of a file through the library; a system
    // text is the name of a file or an argument, whose coding nobody declares. Null is an empty text.
    std::string resourceText(const char* text) const;
    std::string systemText(const char* text) const;

    // Shows a whole document: as JSON, or in readable columns (see text_form.h).
    void print(const Json& document);
    // Text as it is, and a line of a command that has a text form of its own.
    void text(std::string_view text) { text_ += text; }
    void line(std::string_view text);
    // A problem that leaves the rest of the output good. The gravest one decides how the program ends.
    void report(const Problem& problem);

    // How the program would end now.
    ExitCode code() const;

    // Writes everything. An output that can't be written is a problem too.
    ExitCode finish();

private:
    Form form_;
    Coding libraryCoding_;
    Coding coding_;
    std::string text_;
    std::vector<Problem> problems_;
};

} // namespace tool
