#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/ydir_reader.h"
#include "bexa/store/data_file.h"
#include "bexa/store/path_spelling.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

using bexa::detail::backupMark;
using bexa::detail::temporaryMark;

namespace {

constexpr int lastSheet = 999;

bool isCopy(std::string_view name) {
    return name.starts_with(temporaryMark) || name.starts_with(backupMark);
}

bool isOfType(const char* name, BexDataFile::Type type) {
    return type == BexAnyFile || BexDataFile::fileType(name) == type;
}

bool hasSheetNumber(const char* name) {
    const int no = BexDataFile::sheetNo(name);
    return no >= 1 && no <= lastSheet;
}

// Whether the walk over the files themselves, not their copies, gives this name.
bool isListed(const char* name, BexDataFile::Type type) {
    if (isCopy(name)) return false;
    if (type == BexSheetFile && !hasSheetNumber(name)) return false;
    return isOfType(name, type);
}

// The directories of a circuit, in which copies lie as well.
bool isSubdirectory(std::string_view name) {
    constexpr std::string_view words[] = {"log", "frame", "ext", "drc"};
    return std::any_of(std::begin(words), std::end(words),
                       [name](std::string_view word) { return bexa::detail::equalIgnoringCase(word, name); });
}

bexa::detail::EntryPath entriesOf(const char* dir) {
    const std::string directory(bexa::detail::viewOf(dir));
    return bexa::detail::EntryPath(directory.ends_with('/') ? directory : directory + '/');
}

// What a walk over copies looks for, and whom it tells.
struct CopyWalk {
    char mark;
    BexDataFile::Type type;
    BexDataFile::Callback fn;
    void* arg;

    // Goes down without a bound of its own: the system refuses a path that has become too long or too winding.
    bool through(const char* dir) const {
        YDirReader reader(dir);
        if (!fn || !reader.Open()) return false;
        auto path = entriesOf(dir);
        while (const YDirEntry* entry = reader.Read()) {
            if (!visit(entry->name(), path.of(entry->name()))) return false;
        }
        return true;
    }

private:
    bool visit(const char* name, const char* path) const {
        if (isSubdirectory(name)) return through(path);
        return name[0] != mark || !isOfType(name, type) || fn(arg, path) == 0;
    }
};

// Counts a sheet, or a net file, of a walk.
int count(void* number, std::string_view path, BexDataFile::Type type) {
    const char* name = path.substr(path.rfind('/') + 1).data();
    if (isOfType(name, type) && !isCopy(name)) ++*static_cast<unsigned*>(number);
    return 0;
}

int sheetInc(void* number, const char* path) {
    return count(number, path, BexSheetFile);
}

int sheetNetInc(void* number, const char* path) {
    return count(number, path, BexSheetNetFile);
}

} // namespace

unsigned long BexDataFile::enumFileNames(const char* dir, Type type, Callback fn, void* arg) {
    YDirReader reader(dir);
    if (!fn || !reader.Open()) return 0;
    auto path = entriesOf(dir);
    while (const YDirEntry* entry = reader.Read()) {
        if (isListed(entry->name(), type) && fn(arg, path.of(entry->name())) != 0) return 0;
    }
    return 1;
}

unsigned long BexDataFile::enumTmpFileNames(const char* dir, Type type, Callback fn, void* arg) {
    return CopyWalk{temporaryMark, type, fn, arg}.through(dir);
}

unsigned long BexDataFile::enumBackupFileNames(const char* dir, Type type, Callback fn, void* arg) {
    return CopyWalk{backupMark, type, fn, arg}.through(dir);
}

unsigned BexDataFile::sheetCount(const char* path) {
    unsigned number = 0;
    return enumFileNames(path, BexSheetFile, sheetInc, &number) ? number : 0;
}

unsigned BexDataFile::sheetNetCount(const char* path) {
    unsigned number = 0;
    return enumFileNames(path, BexSheetNetFile, sheetNetInc, &number) ? number : 0;
}

unsigned long BexDataFile::enumSheetNames(const char* path, Callback fn, void* arg) {
    return enumFileNames(path, BexSheetFile, fn, arg);
}

unsigned long BexDataFile::enumTmpSheetNames(const char* path, Callback fn, void* arg) {
    return enumTmpFileNames(path, BexSheetFile, fn, arg);
}

unsigned long BexDataFile::enumBackupSheetNames(const char* path, Callback fn, void* arg) {
    return enumBackupFileNames(path, BexSheetFile, fn, arg);
}

unsigned long BexDataFile::enumSheetNetNames(const char* path, Callback fn, void* arg) {
    return enumFileNames(path, BexSheetNetFile, fn, arg);
}

unsigned long BexDataFile::enumTmpSheetNetNames(const char* path, Callback fn, void* arg) {
    return enumTmpFileNames(path, BexSheetNetFile, fn, arg);
}

unsigned long BexDataFile::enumBackupSheetNetNames(const char* path, Callback fn, void* arg) {
    return enumBackupFileNames(path, BexSheetNetFile, fn, arg);
}
