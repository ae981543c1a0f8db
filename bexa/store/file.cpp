#include "bexa/store/file.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/foundation/ygeneral/ydir_reader.h"
#include "bexa/foundation/ygeneral/ykanji.h"
#include "bexa/foundation/ygeneral/ylocale.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/path_spelling.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

using bexa::detail::viewOf;

namespace {

constexpr std::size_t chunkSize = 1024;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// A piece of a file under way, and the terminator that the conversion needs.
struct Chunk {
    std::array<char, chunkSize + 1> bytes = {};
    std::size_t size = 0;

    std::string_view view() const { return {bytes.data(), size}; }
};

using Conversion = void (*)(Chunk& chunk);

void keepBytes(Chunk&) {}

// The conversion knows terminated texts only, so each text between NUL bytes goes through it for itself. It never
// makes a text longer, and what it leaves free stays NUL.
void convertFromEuc(Chunk& chunk) {
    Chunk converted;
    converted.size = chunk.size;
    char* out = converted.bytes.data();
    for (std::size_t begin = 0; begin < chunk.size;) {
        const char* text = chunk.bytes.data() + begin;
        YeuctosjisStr(text, out);
        out += std::strlen(out) + 1;
        begin += std::strlen(text) + 1;
    }
    chunk = converted;
}

// A short write is tried again for what remains, as long as it gets on.
bool writeAll(std::FILE* file, std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), file);
        if (written == 0) return false;
        bytes.remove_prefix(written);
    }
    return true;
}

bool copyChunks(std::FILE* source, std::FILE* target, Conversion convert) {
    for (;;) {
        Chunk chunk;
        chunk.size = std::fread(chunk.bytes.data(), 1, chunkSize, source);
        if (chunk.size == 0) return !std::ferror(source) && std::fflush(target) == 0;
        convert(chunk);
        if (!writeAll(target, chunk.view())) return false;
    }
}

// Two names of one file, through a link or a ".." step. Opening the one for writing would empty the other. A system
// that numbers no files tells nothing.
bool isSameFile(const char* a, const char* b) {
    struct _stat first = {};
    struct _stat second = {};
    if (Ystat(a, &first) != 0 || Ystat(b, &second) != 0) return false;
    return first.st_ino != 0 && first.st_ino == second.st_ino && first.st_dev == second.st_dev;
}

bool copyFile(const char* from, const char* to, bool append, Conversion convert) {
    if (!from || !to) return false;
    const YPathName source = YPathName(from).expand();
    const YPathName target = YPathName(to).expand();
    if (bexa::detail::samePathIgnoringCase(source.view(), target.view())) return true;
    if (BexFile::isDir(source)) return false;
    if (isSameFile(source, target)) return true;
    const OpenFile in(std::fopen(source, "rb"));
    if (!in) return false;
    const OpenFile out(std::fopen(target, append ? "ab" : "wb"));
    return out && copyChunks(in.get(), out.get(), convert);
}

// A path in the form in which paths are compared.
YPathName comparable(const char* path) {
    return YPathName(bexa::detail::canonicalPath(viewOf(path))).expand();
}

} // namespace

int BexFile::access(const char* path, int mode) {
    return Yaccess(path, mode) ? 0 : -1;
}

unsigned long BexFile::isExist(const char* path) {
    struct _stat state = {};
    return Ystat(path, &state) == 0;
}

unsigned long BexFile::isDir(const char* path) {
    return YPathName(path).Test() == YPathName::TestDirectory;
}

unsigned long BexFile::mkdir(const char* path) {
    return YPathName(path).Mkdir();
}

unsigned long BexFile::fileCopy(const char* from, const char* to, unsigned long append) {
    return copyFile(from, to, append != 0, keepBytes);
}

unsigned long BexFile::EUCfileCopy(const char* from, const char* to, unsigned long append) {
    return copyFile(from, to, append != 0, convertFromEuc);
}

unsigned long BexFile::remove(const char* path) {
    // Each refuses what is the other's.
    return bexa::detail::os::removeFile(path) || bexa::detail::os::removeDirectory(path);
}

unsigned long BexFile::rename(const char* from, const char* to) {
    if (viewOf(from).empty() || viewOf(to).empty()) return 0;
    return std::rename(from, to) == 0;
}

YString BexFile::LangDir() {
    return bexa::detail::languageDirectory();
}

unsigned long BexFile::enumFileNames(const char* dir, int (*fn)(void* arg, const char* path), void* arg) {
    YDirReader reader(dir);
    if (!fn || !reader.Open()) return 0;
    const std::string_view directory = viewOf(dir);
    const bool separated = directory.ends_with('/') || bexa::detail::endsInBackslash(directory);
    bexa::detail::EntryPath path(std::string(directory) + (separated ? "" : "/"));
    while (const YDirEntry* entry = reader.Read()) {
        if (fn(arg, path.of(entry->name())) != 0) return 0;
    }
    return 1;
}

int BexFile::fileNameCmp(const char* a, const char* b) {
    const int order = comparable(a).view().compare(comparable(b).view());
    return std::clamp(order, -1, 1);
}

YString BexFile::extChange(const char* path) {
    return bexa::detail::canonicalPath(viewOf(path));
}
