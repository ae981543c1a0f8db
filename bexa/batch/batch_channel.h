// One of the two report files of a batch program.
#pragma once

#include "bexa/batch/batch_error_list.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <cstdio>
#include <memory>
#include <string_view>

namespace bexa::detail {

// What errors and warnings have of their own.
struct BatchChannelKind {
    const char* suffix;
    unsigned messageClass;
    const char* headerText;
};

inline constexpr BatchChannelKind errorChannel = {".err", 2, "Error Occurred !!!"};
inline constexpr BatchChannelKind warningChannel = {".wrn", 1, "Warning Occurred !!!"};

// Unopened, open on its file, or open on the standard error stream: there it goes when it has no file, or one that
// can't be opened.
class BatchChannel {
public:
    explicit BatchChannel(const BatchChannelKind& kind) : kind_(kind) {}
    BatchChannel(const BatchChannel&) = delete;
    BatchChannel& operator=(const BatchChannel&) = delete;
    // Closes the file. What was gathered and not printed is lost.
    ~BatchChannel() { close(); }

    const BatchChannelKind& kind() const { return kind_; }
    bool occurred() const { return occurred_; }

    // Names the file and forgets all that was set before; see BexBatErr::apoErrFile.
    bool setFile(const YPathName& directory, const char* name, const char* suffix, bool append);
    void printHeader(bool on) { printHeader_ = on; }
    void headerText(const char* text) { headerText_ = text; }
    // Turned off, prints what was gathered.
    void gather(bool on);
    void printGathered();

    // Opens the channel, if it isn't open, with the header that was asked for.
    void open() { open(printHeader_ ? Header::Printed : Header::LeftOut); }
    // On an open channel. A number of 0 is no message, and a null identifier is none.
    void writeMessage(unsigned number, std::string_view text, const char* objectId);
    // Opens the channel; what was gathered so far comes before the text.
    void writeText(std::string_view indent, std::string_view text);

private:
    enum class Header { Printed, LeftOut };

    void open(Header header);
    void close();
    void writeHeader();
    void write(std::string_view text);
    void noteWritten();

    const BatchChannelKind& kind_;
    std::FILE* stream_ = nullptr;
    YPathName path_;
    bool occurred_ = false;
    bool append_ = false;
    bool printHeader_ = false;
    YString headerText_;
    std::unique_ptr<BexBatErrList> gathered_; // null while messages are written through
};

} // namespace bexa::detail
