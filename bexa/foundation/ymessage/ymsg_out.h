// Messages to the user, by number from a catalogue or as texts.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <cstdarg>
#include <memory>

namespace bexa::detail {
class MessageCatalogue;
}

class BEXA_API YMsgOut {
public:
    YMsgOut();
    YMsgOut(const YMsgOut&) = delete;
    YMsgOut& operator=(const YMsgOut&) = delete;
    virtual ~YMsgOut();

    // Selects the catalogue: "ROOT/name" stands for the file "msg/<language>/name.rsc" below the directory
    // that the environment variable ROOT names, and "name" alone for the same with `YDSROOT`. English takes
    // the place of a language that has no such file. The file is read when a message is first asked for. Null
    // or an empty text selects none. Always 1: a missing file shows in the messages.
    unsigned long setProgram(const char* program);

    // The text of a message with its arguments filled in, null when the catalogue has no such message. Valid
    // until the next call on this object. The text doesn't depend on the message class.
    //
    // Arguments are taken for `%s %d %u %x %c %f` and their `l` forms, with flags, width and precision; `%%`
    // is a percent sign. Any other conversion is printed as it stands and takes no argument. A null text
    // prints nothing.
    const char* getShortMsg(unsigned id, unsigned messageClass, ...);
    // The same with an argument list, which is the caller's to end.
    const char* getShortMsgV(unsigned id, unsigned messageClass, va_list arguments);

    // Print a line "heading: text", or the text alone for a null or empty heading: messages and guidance to
    // the standard output, errors to the standard error. 1 on success, 0 if nothing could be written.
    virtual unsigned long printMsg(const char* heading, const char* text);
    virtual unsigned long printError(const char* heading, const char* text);
    virtual unsigned long printGuide(const char* heading, const char* text);

private:
    std::unique_ptr<bexa::detail::MessageCatalogue> catalogue_;
    YString program_;
    YString text_;
};
