// BexBatErr::mergeFile.
#include "bexa/batch/batch_errors.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/store/file.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <string>

namespace {

constexpr int pieceSize = 1024; // with the terminator

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile openSource(const char* path) {
    return OpenFile(path && !BexFile::isDir(path) ? std::fopen(path, "rb") : nullptr);
}

// The text of two reports, gathered before any of it is written: a target that is the second report as well would
// grow before its reader for ever.
class Merge {
public:
    const std::string& text() const { return text_; }

    bool takeAll(const char* path) {
        const OpenFile file = openSource(path);
        if (!file) return false;
        takeRest(file.get());
        return true;
    }

    // Kept on purpose: where no line is left behind the header, the piece that was read last is taken, be it of the
    // report before this one; and a header line that goes on behind its first piece ends the merge.
    bool takeBehindHeader(const char* path) {
        const OpenFile file = openSource(path);
        if (!file) return false;
        while (readPiece(file.get()) && piece_.front() == '#') {
            if (std::strchr(piece_.data(), '\n')) continue;
            if (readPiece(file.get())) return true;
            break; // the file ends inside the line: no line feed is to come
        }
        text_ += piece_.data();
        takeRest(file.get());
        return true;
    }

private:
    // At the end of the file the piece stays as it was.
    bool readPiece(std::FILE* file) { return std::fgets(piece_.data(), pieceSize, file) != nullptr; }
    void takeRest(std::FILE* file) {
        while (readPiece(file)) text_ += piece_.data();
    }

    std::array<char, pieceSize> piece_ = {};
    std::string text_;
};

bool gather(Merge& merge, const char* first, const char* second) try {
    return merge.takeAll(first) && merge.takeBehindHeader(second);
} catch (const std::exception&) {
    return false; // no memory
}

} // namespace

unsigned long BexBatErr::mergeFile(const char* first, const char* second, const char* target) {
    OpenFile out(target ? std::fopen(target, "wt") : nullptr);
    if (!out) return 0;
    Merge merge;
    if (!gather(merge, first, second)) {
        out.reset();
        Yunlink(target);
        return 0;
    }
    std::fwrite(merge.text().data(), 1, merge.text().size(), out.get());
    return 1;
}
