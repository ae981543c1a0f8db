#include "bexa/batch/batch_channel.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/store/file.h"

#include <ctime>
#include <string>
#include <utility>

namespace bexa::detail {

namespace {

constexpr int everybodyWrites = 0666;
constexpr std::string_view emptyFrameLine = "#\n";
constexpr std::string_view textFrameHead = "#            ";

YPathName reportPath(const YPathName& directory, const char* name, const char* suffix) {
    YPathName path = directory.length() != 0 ? directory : YPathName(".");
    path += name;
    return BexFile::extChange(path.addSuffix(suffix));
}

// This moment in the form of `ctime`, with its line feed.
std::string_view dateLine() {
    const std::tm now = os::localTime();
    return viewOf(std::asctime(&now));
}

} // namespace

bool BatchChannel::setFile(const YPathName& directory, const char* name, const char* suffix, bool append) {
    if (viewOf(name).empty()) return false;
    gather(false);
    close();
    path_ = reportPath(directory, name, suffix);
    occurred_ = false;
    append_ = append;
    printHeader_ = true;
    headerText_ = kind_.headerText;
    open(Header::LeftOut);
    if (stream_ == stderr) return false;
    close();
    // A run that reports nothing leaves no file, not even that of an earlier run.
    if (!append_) BexFile::remove(path_);
    return true;
}

void BatchChannel::gather(bool on) {
    if (on && !gathered_) gathered_ = std::make_unique<BexBatErrList>();
    if (on || !gathered_) return;
    printGathered();
    gathered_.reset();
}

// A channel that nothing was written to isn't open, and has nothing to print.
void BatchChannel::printGathered() {
    if (gathered_ && stream_) gathered_->print(stream_);
}

void BatchChannel::writeMessage(unsigned number, std::string_view text, const char* objectId) {
    if (gathered_) {
        if (number != 0) gathered_->message(number, text);
        if (objectId) gathered_->objectId(objectId);
    } else {
        std::string entry;
        if (number != 0) appendMessage(entry, number, text);
        if (objectId) appendObjectId(entry, objectId);
        write(entry);
    }
    noteWritten();
}

void BatchChannel::writeText(std::string_view indent, std::string_view text) {
    open();
    if (gathered_) {
        printGathered();
        gathered_ = std::make_unique<BexBatErrList>();
    }
    write(indent);
    write(text);
    noteWritten();
}

void BatchChannel::open(Header header) {
    if (stream_) return;
    if (path_.length() != 0) stream_ = std::fopen(path_, append_ ? "at" : "wt");
    // Some systems stand at the start of the file until something is appended.
    if (stream_ && append_) std::fseek(stream_, 0, SEEK_END);
    if (!stream_) stream_ = stderr;
    if (header == Header::Printed) writeHeader();
}

void BatchChannel::close() {
    std::FILE* stream = std::exchange(stream_, nullptr);
    if (!stream || stream == stderr) return;
    std::fclose(stream);
    Ychmod(path_, everybodyWrites);
}

void BatchChannel::writeHeader() {
    const std::string rule = std::string(70, '#') + '\n';
    std::string header;
    if (std::ftell(stream_) > 0) header += '\n';
    header.append(rule).append(emptyFrameLine);
    header.append(textFrameHead).append(headerText_.view()).append("\n").append(emptyFrameLine);
    header.append(textFrameHead).append(dateLine()).append(emptyFrameLine);
    write(header.append(rule));
    std::fflush(stream_);
}

void BatchChannel::write(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream_);
}

// What is flushed at once survives a crash of the program.
void BatchChannel::noteWritten() {
    std::fflush(stream_);
    occurred_ = true;
}

} // namespace bexa::detail
