#include "bexa/batch/batch_errors.h"

#include "bexa/batch/batch_channel.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/store/file.h"

#include <exception>

using bexa::detail::BatchChannel;
using bexa::detail::viewOf;

namespace {

constexpr const char* continuationIndent = "             ";

// Without memory a text is lost, but nothing crosses the interface.
template <class Action>
void write(Action action) noexcept {
    try {
        action();
    } catch (const std::exception&) {
        return;
    }
}

void writeText(BatchChannel& channel, const char* indent, const char* text) {
    if (text) write([&] { channel.writeText(indent, text); });
}

} // namespace

BexBatErr::BexBatErr()
    : errors_(std::make_unique<BatchChannel>(bexa::detail::errorChannel)),
      warnings_(std::make_unique<BatchChannel>(bexa::detail::warningChannel)) {}

BexBatErr::BexBatErr(const char* program) : BexBatErr() {
    setProgram(program);
}

BexBatErr::~BexBatErr() {
    for (BatchChannel* channel : {errors_.get(), warnings_.get()}) {
        write([channel] { channel->printGathered(); });
    }
}

void BexBatErr::dirSet(const char* dir) {
    directory_ = BexFile::extChange(dir);
}

unsigned long BexBatErr::progSet(const char* name, unsigned long append) {
    return apoErrFile(name, append) && apoWarnFile(name, append);
}

unsigned long BexBatErr::apoErrFile(const char* name, unsigned long append) {
    return apoErrFile(name, errors_->kind().suffix, append);
}

unsigned long BexBatErr::apoErrFile(const char* name, const char* suffix, unsigned long append) {
    return errors_->setFile(directory_, name, suffix, append != 0);
}

unsigned long BexBatErr::apoWarnFile(const char* name, unsigned long append) {
    return apoWarnFile(name, warnings_->kind().suffix, append);
}

unsigned long BexBatErr::apoWarnFile(const char* name, const char* suffix, unsigned long append) {
    return warnings_->setFile(directory_, name, suffix, append != 0);
}

void BexBatErr::msgWriteErr(unsigned int msgNo, const char* objectId, ...) {
    va_list args;
    va_start(args, objectId);
    writeMessage(*errors_, msgNo, objectId, args);
    va_end(args);
}

void BexBatErr::msgWriteErrV(unsigned int msgNo, const char* objectId, va_list args) {
    writeMessage(*errors_, msgNo, objectId, args);
}

void BexBatErr::msgWriteWarn(unsigned int msgNo, const char* objectId, ...) {
    va_list args;
    va_start(args, objectId);
    writeMessage(*warnings_, msgNo, objectId, args);
    va_end(args);
}

void BexBatErr::msgWriteWarnV(unsigned int msgNo, const char* objectId, va_list args) {
    writeMessage(*warnings_, msgNo, objectId, args);
}

void BexBatErr::writeMessage(BatchChannel& channel, unsigned msgNo, const char* objectId, va_list args) {
    if (msgNo == 0 && !objectId) return;
    write([&] {
        channel.open();
        const char* text = msgNo != 0 ? getShortMsgV(msgNo, channel.kind().messageClass, args) : nullptr;
        if (msgNo == 0 || !viewOf(text).empty()) channel.writeMessage(msgNo, viewOf(text), objectId);
    });
}

void BexBatErr::freeWriteErr(const char* text) {
    writeText(*errors_, "", text);
}

void BexBatErr::freeTWriteErr(const char* text) {
    writeText(*errors_, continuationIndent, text);
}

void BexBatErr::freeWriteWarn(const char* text) {
    writeText(*warnings_, "", text);
}

void BexBatErr::freeTWriteWarn(const char* text) {
    writeText(*warnings_, continuationIndent, text);
}

void BexBatErr::sortErrMess(unsigned long on) {
    write([&] { errors_->gather(on != 0); });
}

void BexBatErr::sortWarnMess(unsigned long on) {
    write([&] { warnings_->gather(on != 0); });
}

void BexBatErr::printErrHeader(unsigned long on) {
    errors_->printHeader(on != 0);
}

void BexBatErr::printWarnHeader(unsigned long on) {
    warnings_->printHeader(on != 0);
}

void BexBatErr::errHeaderStr(const char* text) {
    errors_->headerText(text);
}

void BexBatErr::warnHeaderStr(const char* text) {
    warnings_->headerText(text);
}

unsigned long BexBatErr::errOccurred() const {
    return errors_->occurred();
}

unsigned long BexBatErr::warnOccurred() const {
    return warnings_->occurred();
}
