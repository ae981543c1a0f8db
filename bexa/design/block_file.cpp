#include "bexa/design/block_file.h"

#include "bexa/circuitrc/datarc.h"
#include "bexa/design/block_file_reader.h"
#include "bexa/design/block_file_writer.h"
#include "bexa/design/pin_finder.h"
#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/names/bundle_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"
#include "bexa/store/install_roots.h"
#include "bexa/store/path_spelling.h"

#include <cstring>

using bexa::detail::Delimiters;
using bexa::detail::RscAccess;

namespace {

// What `BexFile::access` and `Yaccess` are asked.
constexpr int readable = 4;

constexpr Delimiters builtInDelimiters = {'[', ']', '-', ',', '-'};

// Those of the system's default circuit resource.
Delimiters systemDelimiters() {
    const YString path = BexSysFile::fileName("bexdata", BexSysFile::InfoResource);
    BexDatarc* rc = BexFile::isExist(path) ? BexDatarc::open(path, BexOpenRead, ".") : nullptr;
    if (!rc) return builtInDelimiters;
    const Delimiters found = Delimiters::of(*rc);
    BexDatarc::close(rc, BexCloseAuto);
    return found;
}

std::optional<YString> copyOf(const char* text) {
    return text ? std::optional<YString>(text) : std::nullopt;
}

const char* textOf(const std::optional<YString>& text) {
    return text ? static_cast<const char*>(*text) : nullptr;
}

// The last component of a path in its canonical spelling.
YString canonicalName(const char* path) {
    return YPathName(BexFile::extChange(path)).basename();
}

// `component` below the directory that stands at `index`; nothing if either is missing.
using DirectoryReader = unsigned long (BexDatarc::*)(unsigned, YString*, YString*) const;
std::optional<YPathName> below(const BexDatarc& rc, DirectoryReader reader, unsigned index,
                               const char* component) {
    YString directory;
    if (!component || !(rc.*reader)(index, &directory, nullptr)) return std::nullopt;
    return YPathName(directory, component);
}

bool existsIn(const char* directory, const char* name) {
    return YPathName(directory, name).Test() != YPathName::TestNothing;
}

bool isSamePath(const char* a, const char* b) {
    return bexa::detail::samePathIgnoringCase(YPathName(a).expand().view(), YPathName(b).expand().view());
}

struct Directory {
    YString path;
    unsigned index = 0;
};

// The first of the symbol directories that `accepts` takes.
template <class Accepts>
std::optional<Directory> firstSymbolDirectory(const BexDatarc& rc, Accepts accepts) {
    Directory directory;
    for (; rc.symbPath(directory.index, &directory.path, nullptr); ++directory.index) {
        if (accepts(directory.path)) return directory;
    }
    return std::nullopt;
}

} // namespace

BexBlockFile* BexBlockFile::open(const char* path, const char* name, BexOpenMode mode, const BexDatarc* rc) {
    const YPathName full(path, name);
    if (BexDataFile::fileType(full) == BexDataFile::BexSymbolFile) {
        return RscAccess::make<BexBlockFile>(false, path, name, mode, rc);
    }
    return RscAccess::open<BexBlockFile>(full, mode, path, name, mode, rc);
}

BexBlockFile* BexBlockFile::open(const BexDatarc& rc, unsigned index, const char* name, BexOpenMode mode) {
    YString path;
    return rc.contPath(index, &path, nullptr) ? open(path, name, mode, &rc) : nullptr;
}

unsigned long BexBlockFile::close(BexBlockFile* file, BexCloseMode mode, unsigned long pure) {
    return RscAccess::close(file, mode, [pure](const BexBlockFile& open) { return open.save(pure); });
}

unsigned long BexBlockFile::save(unsigned long pure) const {
    return bexa::detail::saveByMode(openMode_, fullPath(), [this, pure](BexSaveMode mode) {
        return saveAs(filePath(), fileName(), mode, pure);
    });
}

unsigned long BexBlockFile::saveAs(const char* path, const char* name, BexSaveMode mode,
                                   unsigned long pure) const {
    const YPathName target(path, name);
    const BexBlockPinAssignTable& pins = pure ? pure_ : expanded_;
    return bexa::detail::maySave(target, mode) && bexa::detail::blockText(*this, pins).writeTo(target);
}

BexBlockFile::BexBlockFile(const char* path, const char* name, BexOpenMode mode, const BexDatarc* rc)
    : filePath_(copyOf(path)),
      fileName_(copyOf(name)),
      openMode_(mode),
      delimiters_(rc ? Delimiters::of(*rc) : systemDelimiters()),
      finder_(std::make_unique<bexa::detail::PinFinder>()) {
    if (BexDataFile::fileType(name) != BexDataFile::BexSymbolFile) return;
    symbName_ = copyOf(name);
    circuitName_ = YPathName(name).cutSuffix(nullptr).addSuffix(".cir");
}

BexBlockFile::~BexBlockFile() = default;

unsigned long BexBlockFile::load() {
    return bexa::detail::BlockFileReader(*this, fullPath()).read();
}

// ---- Delimiters

char BexBlockFile::busStartChar() const {
    return delimiters_.busStart;
}

char BexBlockFile::busEndChar() const {
    return delimiters_.busEnd;
}

char BexBlockFile::bitEndChar() const {
    return delimiters_.bitEnd;
}

char BexBlockFile::rangeEndChar() const {
    return delimiters_.rangeEnd;
}

char BexBlockFile::rangeStepChar() const {
    return delimiters_.rangeStep;
}

BexChkBundleName BexBlockFile::bundleOf(const char* name) const {
    const Delimiters& d = delimiters_;
    return {name, d.busStart, d.busEnd, d.rangeEnd, d.bitEnd, d.rangeStep};
}

// ---- Names

YPathName BexBlockFile::fullPath() const {
    return {filePath(), fileName()};
}

const char* BexBlockFile::fileName() const {
    return textOf(fileName_);
}

const char* BexBlockFile::filePath() const {
    return textOf(filePath_);
}

const char* BexBlockFile::pathName() const {
    if (!filePath_ || !fileName_) return nullptr;
    pathName_ = fullPath();
    return pathName_;
}

BexOpenMode BexBlockFile::openMode() const {
    return openMode_;
}

const char* BexBlockFile::circuitName() const {
    return textOf(circuitName_);
}

unsigned long BexBlockFile::circuitName(const char* path) {
    if (path) circuitName_ = canonicalName(path);
    return path != nullptr;
}

const char* BexBlockFile::symbName() const {
    return textOf(symbName_);
}

unsigned long BexBlockFile::symbName(const char* path) {
    if (path) symbName_ = canonicalName(path);
    return path != nullptr;
}

unsigned long BexBlockFile::autoGenerated() const {
    return autoGenerated_;
}

unsigned long BexBlockFile::autoGenerated(unsigned long flag) {
    autoGenerated_ = flag;
    return 1;
}

// ---- Pins

BexBlockPinAssignTable& BexBlockFile::pinAssignTable() {
    finder_->rowsMayChange();
    return expanded_;
}

const BexBlockPinAssignTable& BexBlockFile::pinAssignTable() const {
    return expanded_;
}

unsigned BexBlockFile::pinAssignTableCount() const {
    return static_cast<unsigned>(expanded_.size());
}

BexBlockPinAssignTable& BexBlockFile::purePinAssignTable() {
    return pure_;
}

const BexBlockPinAssignTable& BexBlockFile::purePinAssignTable() const {
    return pure_;
}

unsigned BexBlockFile::purePinAssignTableCount() const {
    return static_cast<unsigned>(pure_.size());
}

const char* BexBlockFile::signalAt(unsigned figId) const {
    const int row = finder_->rowOf(expanded_, figId);
    if (row < 0) return nullptr;
    const char* name = expanded_.at(row).sigN();
    return name ? name : "";
}

unsigned long BexBlockFile::pinAssignTable(unsigned figId, YString* sigN) const {
    const char* name = signalAt(figId);
    if (name && sigN) *sigN = name;
    return name != nullptr;
}

unsigned long BexBlockFile::pinAssignTable(unsigned figId, char* sigN) const {
    const char* name = signalAt(figId);
    if (name && sigN) std::strcpy(sigN, name);
    return name != nullptr;
}

unsigned BexBlockFile::pinAssignTable(const char* sigName) const {
    if (!sigName || expanded_.size() == 0) return 0;
    BexChkBundleName bundle = bundleOf(sigName);
    const char* first = bundle.sigName(0);
    const int row = first ? finder_->rowOf(expanded_, first) : -1;
    return row < 0 ? 0 : expanded_.at(row).figId();
}

// ---- Looks at the disk

unsigned long BexBlockFile::isExistCircuit(const BexDatarc& rc, unsigned index, unsigned sheet) const {
    const auto circuit = below(rc, &BexDatarc::contPath, index, circuitName());
    if (!circuit) return 0;
    const YString path = BexDataFile::sheetName(*circuit, sheet);
    return path.length() > 0 && Yaccess(path, readable);
}

unsigned long BexBlockFile::isExistCircuit(const BexDatarc& rc, unsigned index, const char* name) const {
    const auto circuit = below(rc, &BexDatarc::contPath, index, circuitName());
    return circuit &&
           BexDataFile::access(YPathName(*circuit, name), readable, BexDataFile::BexSheetFile) == 0;
}

unsigned long BexBlockFile::isExistCircuitDir(const BexDatarc& rc, unsigned index) const {
    const auto circuit = below(rc, &BexDatarc::contPath, index, circuitName());
    return circuit && BexDataFile::access(*circuit, readable, BexDataFile::BexCircuitFile) == 0;
}

unsigned long BexBlockFile::isExistSymbol(const BexDatarc& rc, unsigned index) const {
    const auto symbol = below(rc, &BexDatarc::symbPath, index, symbName());
    return symbol && BexDataFile::access(*symbol, readable, BexDataFile::BexSymbolFile) == 0;
}

unsigned long BexBlockFile::symbPath(const BexDatarc& rc, const char* name, unsigned& index) const {
    if (!name) return 0;
    const auto holds = [name](const char* directory) { return existsIn(directory, name); };
    const auto isOwn = [this](const char* directory) { return isSamePath(directory, *filePath_); };
    auto found = filePath_ ? firstSymbolDirectory(rc, isOwn) : std::nullopt;
    if (!found || !holds(found->path)) found = firstSymbolDirectory(rc, holds);
    if (found) index = found->index;
    return found.has_value();
}

unsigned long BexBlockFile::sheetCount(unsigned& count) const {
    const char* path = pathName();
    const unsigned found = path ? BexDataFile::sheetCount(path) : 0;
    if (found > 0) count = found;
    return found > 0;
}

bool BexBlockFile::isSheet(const char* name) {
    return BexDataFile::fileType(name) == BexDataFile::BexBlockDataFile;
}
