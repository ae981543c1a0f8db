#include "bexa/foundation/rsc_lifecycle.h"

#include "bexa/foundation/ycore/file_access.h"

namespace bexa::detail {

namespace {

constexpr int exists = 0;
constexpr int writable = 2;
constexpr int readable = 4;

} // namespace

bool mayOpen(const char* path, BexOpenMode mode) {
    if (mode == BexOpenCreate) return !Yaccess(path, exists);
    return Yaccess(path, mode == BexOpenUpdate ? writable : readable) != 0;
}

bool maySave(const char* target, BexSaveMode mode) {
    if (mode == BexSaveNew) return !Yaccess(target, exists);
    return mode != BexSaveOverwrite || Yaccess(target, writable) != 0;
}

} // namespace bexa::detail
