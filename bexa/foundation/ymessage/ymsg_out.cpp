#include "bexa/foundation/ymessage/ymsg_out.h"

#include "bexa/foundation/ymessage/message_catalogue.h"
#include "bexa/foundation/ymessage/message_format.h"

#include <cstdio>
#include <string>

namespace {

unsigned long printLine(std::FILE* stream, const char* heading, const char* text) {
    std::string line;
    if (heading && *heading) line.append(heading).append(": ");
    if (text) line += text;
    line += '\n';
    const bool written = std::fwrite(line.data(), 1, line.size(), stream) == line.size();
    return written && std::fflush(stream) == 0;
}

} // namespace

YMsgOut::YMsgOut() = default;

YMsgOut::~YMsgOut() = default;

unsigned long YMsgOut::setProgram(const char* program) {
    program_ = program;
    catalogue_.reset();
    return 1;
}

const char* YMsgOut::getShortMsg(unsigned id, unsigned messageClass, ...) {
    va_list arguments;
    va_start(arguments, messageClass);
    const char* text = getShortMsgV(id, messageClass, arguments);
    va_end(arguments);
    return text;
}

const char* YMsgOut::getShortMsgV(unsigned id, unsigned, va_list arguments) {
    if (program_.length() == 0) return nullptr;
    if (!catalogue_) catalogue_ = std::make_unique<bexa::detail::MessageCatalogue>(program_);
    const std::string* format = catalogue_->text(id);
    if (!format) return nullptr;
    text_.assign(bexa::detail::formatMessage(*format, arguments));
    return text_;
}

unsigned long YMsgOut::printMsg(const char* heading, const char* text) {
    return printLine(stdout, heading, text);
}

unsigned long YMsgOut::printError(const char* heading, const char* text) {
    return printLine(stderr, heading, text);
}

unsigned long YMsgOut::printGuide(const char* heading, const char* text) {
    return printLine(stdout, heading, text);
}
