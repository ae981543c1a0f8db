// The reports of batch programs, which have no window to complain in.
//
//     BexBatErr report("YDSROOT/netcheck");
//     report.dirSet("a.cir/log");
//     report.progSet("netcheck", 0);                  a.cir/log/netcheck.err and .wrn
//     report.sortErrMess(1);
//     report.msgWriteErr(120, "U12.3", "VCC");        message 120 of the catalogue, with one argument
//     return report.errOccurred() ? 1 : 0;
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/ymessage/ymsg_out.h"

#include <cstdarg>
#include <memory>

namespace bexa::detail {
class BatchChannel;
}

// Two independent channels, errors and warnings, each with a text file of its own. They differ in the default suffix
// (".err", ".wrn"), in the default header text and in the message class; all that is said here of errors holds for
// warnings.
//
// A channel opens its file at the first write and keeps it open to the end, or until it gets another name. Each write
// is flushed. Without a file, or with one that can't be opened, it writes to the standard error stream in the same
// form. Nothing tells of a write that fails, on a full disk for example.
class BEXA_API BexBatErr : public YMsgOut {
public:
    // Without messages: these come with `setProgram`.
    BexBatErr();
    explicit BexBatErr(const char* program);
    // Prints what both channels have gathered, errors first, and closes the files.
    ~BexBatErr() override;

    // The directory of the files that are named from now on; null or an empty text stands for the current one.
    void dirSet(const char* dir);

    // Names the files of both channels, with the default suffixes. 1 only if both succeed; if the first fails the
    // second is left alone.
    unsigned long progSet(const char* name, unsigned long append);
    // Names the file of a channel and tests that it can be written: `name` with the suffix, which may bring its dot, in
    // the directory. With `append` nonzero reports go behind what the file holds, and the test creates a file that is
    // missing. Otherwise the file is removed, and comes back with the first message.
    //
    // 0 for a null or empty name, with nothing changed; 0 also if the file can't be opened: then the channel writes to
    // the standard error stream. What was gathered is printed to where it belonged, and then all that was set before
    // is forgotten: the header is printed, with its default text, messages are written through, and nothing has
    // occurred.
    unsigned long apoErrFile(const char* name, unsigned long append);
    unsigned long apoErrFile(const char* name, const char* suffix, unsigned long append);
    unsigned long apoWarnFile(const char* name, unsigned long append);
    unsigned long apoWarnFile(const char* name, const char* suffix, unsigned long append);

    // Writes a message of the catalogue, with the arguments that it takes, and below it the object it is about. A null
    // `objectId` is no object; with a `msgNo` of 0 the object goes to the message before, and with both nothing
    // happens.
    //
    // Kept on purpose: the channel is opened before the catalogue is asked. A number that the catalogue doesn't have,
    // or has an empty text for, drops the message and its object and counts as nothing occurred, but the file with its
    // header is there.
    void msgWriteErr(unsigned int msgNo, const char* objectId, ...);
    void msgWriteErrV(unsigned int msgNo, const char* objectId, va_list args);
    void msgWriteWarn(unsigned int msgNo, const char* objectId, ...);
    void msgWriteWarnV(unsigned int msgNo, const char* objectId, va_list args);

    // Write a text as it stands, the T forms behind an indent of thirteen blanks. A line feed is the caller's to add.
    // Null does nothing. What was gathered so far is printed first, and gathering goes on.
    void freeWriteErr(const char* text);
    void freeTWriteErr(const char* text);
    void freeWriteWarn(const char* text);
    void freeTWriteWarn(const char* text);

    // While gathering is on, messages are kept until it is turned off, until a free text, another file name or the end
    // of the object: then they are printed in ascending order of number and text, each distinct one once, with its
    // objects beneath it, each once. Objects are in order by the parts between their dots: numbers by value, so that
    // `A.9` comes before `A.10`, and a missing part first. Turning on or off what is on or off does nothing.
    void sortErrMess(unsigned long on);
    void sortWarnMess(unsigned long on);

    // Whether the file begins with a header: seven lines with a text, the default one or another, and the date of the
    // first write. Off until a file is named. The header is written when the channel opens; later changes don't show.
    void printErrHeader(unsigned long on);
    void printWarnHeader(unsigned long on);
    // Null stands for an empty text.
    void errHeaderStr(const char* text);
    void warnHeaderStr(const char* text);

    // 1 if anything was written since the file was named, gathered messages included; the header doesn't count.
    unsigned long errOccurred() const;
    unsigned long warnOccurred() const;

    // Writes the report `first` and behind it `second`, without the lines at its start that begin with "#", to
    // `target`. 0 if a file can't be opened; a source that can't leaves no `target`. A directory can't be opened. A
    // `target` that is one of the sources is emptied before it is read.
    //
    // Sources are read in pieces of at most 1023 bytes, which end behind a line feed; a NUL byte hides the rest of its
    // piece. Kept on purpose:
    // - if `second` has no line that doesn't begin with "#", the last piece read is written: the last line of
    //   `second`, or, if that is empty, the last line of `first` once more;
    // - if a "#" line at the start of `second` is longer than a piece, nothing of `second` is written.
    static unsigned long mergeFile(const char* first, const char* second, const char* target);

private:
    void writeMessage(bexa::detail::BatchChannel& channel, unsigned msgNo, const char* objectId,
                      va_list args);

    YPathName directory_;
    std::unique_ptr<bexa::detail::BatchChannel> errors_;
    std::unique_ptr<bexa::detail::BatchChannel> warnings_;
};
