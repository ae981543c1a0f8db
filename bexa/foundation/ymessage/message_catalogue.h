// The texts of a program's messages, by number.
//
// A catalogue is a resource file with one table, `message 2 { number "text" ... }`. Of a number that stands twice the
// first row counts. A file with anything else in it counts as one without messages.
#pragma once

#include <string>
#include <unordered_map>

namespace bexa::detail {

class MessageCatalogue {
public:
    // The catalogue of a program, see YMsgOut::setProgram. Without a readable file it is empty.
    explicit MessageCatalogue(const char* program);

    // Null if there is no such message.
    const std::string* text(unsigned id) const;

private:
    std::unordered_map<unsigned, std::string> texts_;
};

} // namespace bexa::detail
