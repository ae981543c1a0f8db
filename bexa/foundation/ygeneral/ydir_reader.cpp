#include "bexa/foundation/ygeneral/ydir_reader.h"

#include "bexa/foundation/os.h"

#include <string>

namespace os = bexa::detail::os;

YDirReader::YDirReader(const char* dir) : dir_(dir) {}

YDirReader::~YDirReader() = default;

unsigned long YDirReader::Open() {
    search_ = std::make_unique<os::DirectorySearch>(dir_);
    if (!search_->isOpen()) search_.reset();
    return search_ != nullptr;
}

const YDirEntry* YDirReader::Read(FileType) {
    std::string name;
    if (!search_ || !search_->next(name)) return nullptr;
    entry_.name_.assign(name);
    return &entry_;
}

void YDirReader::Close() {
    search_.reset();
}
