#include "bexa/foundation/line_stream.h"

#include "bexa/foundation/kanji.h"
#include "bexa/foundation/ygeneral/ylocale.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <string>
#include <utility>

namespace {

constexpr long eucLocale = 513;
constexpr int firstCapacity = 256;
constexpr std::size_t pieceSize = 255; // with the terminator

constexpr std::array modeTexts = {"rb", "wb", "ab", "rb+", "wb+", "ab+"};
constexpr std::array origins = {SEEK_SET, SEEK_CUR, SEEK_END};

// Reads up to the next line feed, which is kept, or as much as a piece holds. A NUL byte counts like any other: what
// was read ends at the one that fgets wrote, the first behind which all is as it was before.
bool readPiece(std::FILE* file, std::string& piece) {
    char buffer[pieceSize];
    std::memset(buffer, '\n', sizeof buffer);
    if (!std::fgets(buffer, sizeof buffer, file)) return false;
    const char* const lineFeed = std::find(buffer, std::end(buffer), '\n');
    const bool read = lineFeed + 1 < std::end(buffer) && lineFeed[1] == '\0';
    // Without a line feed of the file the first one is filling, behind the terminator.
    const char* const end = read ? lineFeed + 1 : lineFeed - 1;
    piece.assign(buffer, static_cast<std::size_t>(end - buffer));
    return true;
}

// Reduces the first carriage return of the piece, if it stands before a line feed or ends the piece.
void tolerateCarriageReturn(std::string& piece) {
    const std::size_t place = piece.find('\r');
    if (place == std::string::npos) return;
    if (place + 1 < piece.size() && piece[place + 1] == '\n') {
        piece.resize(place);
        piece += '\n';
    } else if (piece.back() == '\r') {
        piece.pop_back();
    }
}

} // namespace

BexStream::BexStream() : line_(firstCapacity), work_(firstCapacity), toEuc_(Ylocale() == eucLocale) {}

BexStream::BexStream(const char* path, BexStream::mode mode) : BexStream() {
    open(path, mode);
}

BexStream::~BexStream() {
    close();
}

unsigned long BexStream::open(const char* path, BexStream::mode mode) {
    close();
    const auto index = static_cast<std::size_t>(mode);
    if (!path || index >= modeTexts.size()) return 0;
    file_ = std::fopen(path, modeTexts[index]);
    return file_ != nullptr;
}

unsigned long BexStream::close() {
    std::FILE* file = std::exchange(file_, nullptr);
    return file && std::fclose(file) == 0;
}

BexStream& BexStream::seek(long offset) {
    return seek(offset, FromStart);
}

BexStream& BexStream::seek(long offset, BexStream::dir origin) {
    const auto index = static_cast<std::size_t>(origin);
    if (file_ && index < origins.size()) std::fseek(file_, offset, origins[index]);
    return *this;
}

long BexStream::tell() {
    return file_ ? std::ftell(file_) : 0;
}

unsigned long BexStream::eof() const {
    return !file_ || std::feof(file_);
}

unsigned long BexStream::fail() const {
    return !file_ || std::ferror(file_);
}

const char* BexStream::getlines(unsigned int count) {
    return readLines(count, Conversion::ToProcess, CarriageReturns::Kept);
}

const char* BexStream::getpurelines(unsigned int count) {
    return readLines(count, Conversion::None, CarriageReturns::Kept);
}

const char* BexStream::getlinesEx(unsigned int count) {
    return readLines(count, Conversion::ToProcess, CarriageReturns::Tolerated);
}

const char* BexStream::getpurelinesEx(unsigned int count) {
    return readLines(count, Conversion::None, CarriageReturns::Tolerated);
}

const char* BexStream::readLines(unsigned int count, Conversion conversion, CarriageReturns returns) {
    if (!file_) return nullptr;
    work_.assign("");
    for (unsigned int line = 0; line < count; ++line) {
        if (line > 0) work_ << '\n';
        if (!readLine(returns)) break;
    }
    if (conversion == Conversion::ToProcess && toEuc_) {
        YsjistoeucStr(work_, line_);
    } else {
        line_ = work_;
    }
    return line_;
}

// Appends a line to the work text, piece by piece. False at the end of the file, unless a piece without a line feed
// came before it: that is a finished line.
bool BexStream::readLine(CarriageReturns returns) {
    bool begun = false;
    std::string piece;
    while (readPiece(file_, piece)) {
        if (returns == CarriageReturns::Tolerated) tolerateCarriageReturn(piece);
        const bool ended = !piece.empty() && piece.back() == '\n';
        if (ended) piece.pop_back();
        work_.concat(std::string_view(piece));
        if (ended) return true;
        begun = true;
    }
    return begun;
}

unsigned long BexStream::putpurechar(const char* text) {
    if (!file_ || !text) return 0;
    std::fputs(text, file_);
    return 1;
}

#if defined(__GNUC__)
#    pragma GCC diagnostic push
#    pragma GCC diagnostic ignored "-Wformat-nonliteral"
#endif

template <class Value>
BexStream& BexStream::read(const char* format, Value* value) {
    if (file_ && std::fscanf(file_, format, value) == EOF) return *this;
    return *this;
}

template <class Value>
BexStream& BexStream::write(const char* format, Value value) {
    if (file_) std::fprintf(file_, format, value);
    return *this;
}

#if defined(__GNUC__)
#    pragma GCC diagnostic pop
#endif

BexStream& BexStream::operator>>(char& value) {
    return read("%c", &value);
}

BexStream& BexStream::operator>>(char* value) {
    if (!file_ || std::fscanf(file_, "%s", value) != 1 || !toEuc_) return *this;
    YsjistoeucStr(value, work_);
    std::memcpy(value, static_cast<const char*>(work_), static_cast<std::size_t>(work_.length()) + 1);
    return *this;
}

BexStream& BexStream::operator>>(int& value) {
    return read("%d", &value);
}

BexStream& BexStream::operator>>(long& value) {
    return read("%ld", &value);
}

BexStream& BexStream::operator>>(double& value) {
    return read("%lf", &value);
}

BexStream& BexStream::operator>>(float& value) {
    return read("%f", &value);
}

BexStream& BexStream::operator>>(unsigned int& value) {
    return read("%u", &value);
}

BexStream& BexStream::operator>>(unsigned long& value) {
    return read("%lx", &value);
}

BexStream& BexStream::operator>>(short& value) {
    int wide = value;
    read("%d", &wide);
    value = static_cast<short>(wide);
    return *this;
}

BexStream& BexStream::operator>>(unsigned short& value) {
    unsigned int wide = value;
    read("%u", &wide);
    value = static_cast<unsigned short>(wide);
    return *this;
}

BexStream& BexStream::operator<<(char value) {
    return write("%c", value);
}

BexStream& BexStream::operator<<(const char* value) {
    if (!toEuc_) {
        putpurechar(value);
    } else if (value) {
        YeuctosjisStr(value, work_);
        putpurechar(work_);
    }
    return *this;
}

BexStream& BexStream::operator<<(int value) {
    return write("%d", value);
}

BexStream& BexStream::operator<<(long value) {
    return write("%ld", value);
}

BexStream& BexStream::operator<<(double value) {
    return write("%f", value);
}

BexStream& BexStream::operator<<(float value) {
    return *this << static_cast<double>(value);
}

BexStream& BexStream::operator<<(unsigned int value) {
    return write("%u", value);
}

BexStream& BexStream::operator<<(unsigned long value) {
    return write("%lu", value);
}

BexStream& BexStream::operator<<(short value) {
    return *this << static_cast<int>(value);
}

BexStream& BexStream::operator<<(unsigned short value) {
    return *this << static_cast<unsigned int>(value);
}

BexStream& BexEndl(BexStream& stream) {
    if (stream.file_) std::fputc('\n', stream.file_);
    return stream;
}

BexStream& BexFlush(BexStream& stream) {
    if (stream.file_) std::fflush(stream.file_);
    return stream;
}
