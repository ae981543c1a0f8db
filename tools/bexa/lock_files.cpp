#include "tools/bexa/lock_files.h"

#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <string_view>

namespace tool {
namespace {

constexpr std::string_view lockSuffix = ".___";

int takeLockFile(void* sheets, const char* path) {
    const YString base = YPathName(path).basename();
    const std::string_view name = base.view();
    if (!name.ends_with(lockSuffix)) return 0;
    std::string sheet(name.substr(0, name.size() - lockSuffix.size()));
    static_cast<std::vector<std::string>*>(sheets)->push_back(sheet + ".sht");
    return 0;
}

} // namespace

std::vector<std::string> lockedSheets(const std::string& circuit, Output& out) {
    std::vector<std::string> sheets;
    const YString log = BexDataFile::fileName(circuit.c_str(), BexDataFile::BexLogDir, nullptr);
    if (!BexFile::enumFileNames(log, takeLockFile, &sheets)) {
        out.report(unusable("the directory of the locks cannot be read", out.systemText(log),
                            "check that it is there and that you may read it"));
    }
    std::sort(sheets.begin(), sheets.end(), sheetBefore);
    return sheets;
}

bool sheetBefore(const std::string& a, const std::string& b) {
    const int left = BexDataFile::sheetNo(a.c_str());
    const int right = BexDataFile::sheetNo(b.c_str());
    return left != right ? left < right : a < b;
}

} // namespace tool
