// How an environment resource comes to its first values: built-in ones, the environment, another resource.

#include "bexa/envrc/envrc.h"
#include "bexa/envrc/envrc_fields.h"
#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ycore/text_compare.h"

#include <utility>

namespace {

// Kept on purpose: a variable that is set switches its setting on, whatever its text says.
void takeEnvironment(BexEnvrcData& data) {
    if (ygetenv("YDS_ZIP_TEXT", 1)) data.zipText = data.zipTextSet = 1;
    if (ygetenv("YDS_DO_NOT_SELECT_UNVISIBLE_PBOX", 1)) {
        data.doNotSelectUnivisiblePbox = data.doNotSelectUnivisiblePboxSet = 1;
    }
}

// The directory of a design that is given as its circuit or as its directory.
YPathName directoryOf(const char* place) {
    const YPathName path(place ? place : ".");
    return Ystricmp(path.getSuffix(), ".cir") == 0 ? path.dirname() : path;
}

} // namespace

BexEnvrc::BexEnvrc(const char* path, BexOpenMode mode, BexDatarc* datarc, const char* currentDir)
    : fileName_(path),
      openMode_(mode),
      datarc_(datarc),
      data_(std::make_shared<BexEnvrcData>()),
      currentDir_(directoryOf(currentDir)) {
    takeEnvironment(*data_);
}

BexEnvrc::~BexEnvrc() = default;

BexEnvrc::BexEnvrc(const BexEnvrc& other) = default;

BexEnvrc& BexEnvrc::operator=(const BexEnvrc& other) {
    auto data = std::make_shared<BexEnvrcData>(*other.data_);
    // Kept on purpose: the attributes of schematic sheets are not taken over, the target has none from now on.
    data->schSheetAttrTable.removeAll();
    data_ = std::move(data);
    datarc_ = other.datarc_;
    return *this;
}

void BexEnvrc::currentDir(const char* dir) {
    currentDir_ = directoryOf(dir);
}
