#include "tools/bexa/output.h"

#include "tools/bexa/text_form.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tool {
namespace {

Problem cannotWrite(int reason) {
    return unusable("cannot write the output", std::string("standard output: ") + std::strerror(reason),
                    "make room or keep the reader open, and run again");
}

// False, with the reason in errno, unless all of it was written.
bool writeOut(std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
}

void writeProblem(const Problem& problem) {
    const std::string line = printable(problem.message(), terminalCoding()) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace

Output::Output(Form form)
    : form_(form),
      libraryCoding_(libraryCoding()),
      coding_(form == Form::Json ? Coding::Utf8 : terminalCoding()) {}

std::string Output::resourceText(const char* text) const {
    if (text == nullptr) return {};
    return coding_ == Coding::Utf8 ? toUtf8(text, libraryCoding_) : std::string(text);
}

std::string Output::systemText(const char* text) const {
    if (text == nullptr) return {};
    const bool asItIs = coding_ != Coding::Utf8 || isUtf8(text);
    return asItIs ? std::string(text) : toUtf8(text, libraryCoding_);
}

void Output::print(const Json& document) {
    text_ += form_ == Form::Json ? document.dump(2) + '\n' : textOf(document, coding_);
}

void Output::line(std::string_view text) {
    text_ += printable(text, coding_);
    text_ += '\n';
}

void Output::report(const Problem& problem) {
    problems_.push_back(problem);
}

ExitCode Output::code() const {
    ExitCode code = ExitCode::Good;
    for (const Problem& problem : problems_) code = std::max(code, problem.code());
    return code;
}

ExitCode Output::finish() {
    errno = 0;
    if (!writeOut(text_)) problems_.push_back(cannotWrite(errno));
    for (const Problem& problem : problems_) writeProblem(problem);
    return code();
}

} // namespace tool
