#include "bexa/store/access_snapshot.h"

#include "bexa/foundation/os.h"

#include <string>

namespace os = bexa::detail::os;

namespace {

bool hasEntries(const char* directory) {
    os::DirectorySearch search(directory);
    std::string name;
    return search.isOpen() && search.next(name);
}

} // namespace

BexSecFile::BexSecFile(const char* path) {
    SetPathname(path);
}

BexSecFile& BexSecFile::operator=(const char* path) {
    SetPathname(path);
    return *this;
}

BexSecFile& BexSecFile::operator=(const BexSecFile& other) {
    SetPathname(other.path_);
    return *this;
}

void BexSecFile::SetPathname(const char* path) {
    path_ = path;
    flags_ = look(path_);
}

unsigned long BexSecFile::look(const char* path) {
    const os::PathKind kind = os::kindOf(path);
    if (kind == os::PathKind::Missing) return 0;
    unsigned long flags = Exists | Executable;
    if (kind == os::PathKind::Directory) {
        flags |= Directory | Writable;
        if (hasEntries(path)) flags |= Readable;
        return flags;
    }
    if (os::opensForReading(path)) flags |= Readable;
    if (os::opensForAppending(path)) flags |= Writable;
    return flags;
}

unsigned long BexSecFile::IsExist() const {
    return isFileWith(Exists);
}

unsigned long BexSecFile::IsReadable() const {
    return isFileWith(Readable);
}

unsigned long BexSecFile::IsWritable() const {
    return isFileWith(Writable);
}

unsigned long BexSecFile::IsRWable() const {
    return isFileWith(Readable | Writable);
}

unsigned long BexSecFile::IsDir() const {
    return has(Directory);
}

bool BexSecFile::isFileWith(unsigned long flags) const {
    return !has(Directory) && has(flags);
}

BexSecDirectory::BexSecDirectory(const char* path) : BexSecFile(path) {}

// NOLINTNEXTLINE(bugprone-copy-constructor-init): the base's copy would take over what was seen before
BexSecDirectory::BexSecDirectory(const BexSecDirectory& other) : BexSecFile() {
    SetPathname(other.GetPathname());
}

BexSecDirectory& BexSecDirectory::operator=(const char* path) {
    SetPathname(path);
    return *this;
}

unsigned long BexSecDirectory::IsExist() const {
    return has(Directory);
}

unsigned long BexSecDirectory::IsReadable() const {
    return has(Directory | Readable);
}

unsigned long BexSecDirectory::IsWritable() const {
    return has(Directory | Writable);
}

unsigned long BexSecDirectory::IsExecutable() const {
    return has(Directory | Executable);
}

unsigned long BexSecDirectory::IsFullControl() const {
    return has(Directory | Exists | Executable | Writable);
}
