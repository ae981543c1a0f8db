// How a circuit resource comes to its first values: built-in ones, the environment, another resource.

#include "bexa/circuitrc/datarc.h"
#include "bexa/circuitrc/datarc_fields.h"
#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ycore/text_compare.h"

#include <utility>

using bexa::detail::DatarcFields;

namespace {

constexpr const char* unnamedCircuit = "noname.cir";

bool hasSuffix(const YPathName& path, const char* suffix) {
    return Ystricmp(path.getSuffix(), suffix) == 0;
}

void standAt(DatarcFields& fields, const YPathName& dir, const char* name) {
    fields.currentDir = dir;
    fields.currentName = name;
}

void standAtCircuit(DatarcFields& fields, const YPathName& circuit) {
    standAt(fields, circuit.dirname(), circuit.basename());
}

// Where a new object stands: see BexDatarc::open.
void standWhereOpened(DatarcFields& fields, const char* place) {
    if (!place) return standAt(fields, ".", unnamedCircuit);
    const YPathName path(place);
    if (hasSuffix(path, ".cir")) return standAtCircuit(fields, path);
    if (hasSuffix(path, ".smb") || path.Test() == YPathName::TestFile)
        return standAt(fields, path.dirname(), "");
    standAt(fields, path, "");
}

void takeFormat(const char* variable, YString& format, unsigned long& presence) {
    const char* value = ygetenv(variable, 1);
    if (!value) return;
    format = value;
    presence = 1;
}

void takeEnvironment(DatarcFields& fields) {
    if (ygetenv("YDS_SIMPLE_ARRAY", 1)) fields.simpleArray = fields.simpleArraySet = 1;
    takeFormat("YDS_DATE_FORMAT", fields.dateFormat, fields.dateFormatSet);
    takeFormat("YDS_TIME_FORMAT", fields.timeFormat, fields.timeFormatSet);
}

} // namespace

BexDatarc::BexDatarc(const char* fileName, BexOpenMode mode, const char* currentDir)
    : fields_(std::make_unique<DatarcFields>()) {
    fields_->fileName = fileName;
    fields_->openMode = mode;
    standWhereOpened(*fields_, currentDir);
    takeEnvironment(*fields_);
}

BexDatarc::~BexDatarc() = default;

BexDatarc::BexDatarc(const BexDatarc& other) : fields_(std::make_unique<DatarcFields>(*other.fields_)) {}

BexDatarc& BexDatarc::operator=(const BexDatarc& other) {
    DatarcFields settings = *other.fields_;
    settings.fileName = fields_->fileName;
    settings.openMode = fields_->openMode;
    // Kept on purpose: the source's overwrite setting becomes the simple array setting too, and the source's
    // own simple array setting is not looked at.
    settings.simpleArraySet = other.fields_->overwritePortModeSet;
    settings.simpleArray = other.fields_->overwritePortMode;
    *fields_ = std::move(settings);
    return *this;
}

void BexDatarc::currentName(const char* name) {
    fields_->currentName = name && *name ? name : unnamedCircuit;
}

void BexDatarc::currentDir(const char* dir) {
    if (!dir) return standAt(*fields_, ".", unnamedCircuit);
    const YPathName path(dir);
    if (hasSuffix(path, ".cir")) return standAtCircuit(*fields_, path);
    standAt(*fields_, path, unnamedCircuit);
}
