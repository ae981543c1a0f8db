// The search for symbols, circuits and blocks through the directories of a circuit resource. They are members
// of BexDataFile and stand here because they look into the resource.

#include "bexa/circuitrc/datarc.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

namespace {

// Gives the expanded directory of a row; false past the end.
using DirectoryReader = unsigned long (BexDatarc::*)(unsigned int, YString*, YString*) const;

// The first directory that holds the file wins.
YString search(const char* name, const char* suffix, const BexDatarc& rc, DirectoryReader directoryAt,
               int& index) {
    index = -1;
    if (!name) return {};
    YPathName file(name);
    file.cutSuffix(nullptr).addSuffix(suffix);
    YString directory;
    for (unsigned int row = 0; (rc.*directoryAt)(row, &directory, nullptr); ++row) {
        YString path = BexFile::extChange(YPathName(directory, file));
        if (!BexFile::isExist(path)) continue;
        index = static_cast<int>(row);
        return path;
    }
    return {};
}

} // namespace

YString BexDataFile::searchSymb(const char* name, const BexDatarc& rc, int& index) {
    return search(name, ".smb", rc, &BexDatarc::symbPath, index);
}

YString BexDataFile::searchCirc(const char* name, const BexDatarc& rc, int& index) {
    return search(name, ".cir", rc, &BexDatarc::contPath, index);
}

YString BexDataFile::searchBlock(const char* name, const BexDatarc& rc, int& index) {
    return search(name, ".blk", rc, &BexDatarc::contPath, index);
}
