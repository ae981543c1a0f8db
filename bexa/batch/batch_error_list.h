// Messages that a report gathers before it prints them: each distinct message once, with the identifiers of all objects
// that caused it beneath it.
#pragma once

#include "bexa/foundation/ygeneral/ystring.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace bexa::detail {

// The lines of one entry of a report:
//     <blank line>
//     <Mess.30526> Text of the message
//                  objectId:U12.3
// Kept on purpose: the number is printed as an int, so one above 2147483647 comes out negative.
void appendMessage(std::string& report, unsigned number, std::string_view text);
void appendObjectId(std::string& report, std::string_view identifier);

} // namespace bexa::detail

// Finding a message or an identifier takes the same time however many there are: they are put in order only when they
// are printed.
class BexBatErrList {
public:
    BexBatErrList() = default;
    BexBatErrList(const BexBatErrList&) = delete;
    BexBatErrList& operator=(const BexBatErrList&) = delete;

    // Makes this message the current one, and adds it unless its number and text are there already.
    void message(unsigned number, std::string_view text);
    // Adds an identifier to the current message, unless it has it. Dropped when there is no message yet.
    void objectId(std::string_view identifier);

    // Writes the messages in ascending order of number and text, each with its identifiers in order, and flushes. The
    // list stays as it is.
    void print(std::FILE* stream) const;

private:
    struct Message {
        unsigned number;
        YString text;

        bool operator==(const Message&) const = default;
    };
    using ObjectIds = std::vector<const YString*>;

    // An identifier of one message; the message is known by where its identifiers are.
    struct ObjectId {
        const ObjectIds* message;
        YString text;

        bool operator==(const ObjectId&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Message& message) const;
        std::size_t operator()(const ObjectId& identifier) const;
    };
    // The elements of neither container ever move.
    using Messages = std::unordered_map<Message, ObjectIds, Hash>;

    std::vector<const Messages::value_type*> inOrder() const;

    Messages messages_;
    std::unordered_set<ObjectId, Hash> objectIds_;
    ObjectIds* current_ = nullptr;
};
