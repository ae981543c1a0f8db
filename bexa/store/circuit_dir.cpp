#include "bexa/store/circuit_dir.h"

#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/install_roots.h"

#include <algorithm>
#include <array>

namespace {

constexpr const char* resourceName = "bexdata";

// "circuit/name", or the bare name without a circuit.
YString below(const YString& circuit, const char* name) {
    if (circuit.length() == 0) return name;
    YString path(circuit);
    path << '/' << name;
    return path;
}

// Kept on purpose: a directory in the place of the report counts as no report, and holds nobody back.
bool isAbsent(const BexSecFile& report) {
    return !report.IsExist();
}

YPathName withoutSheetSuffix(const char* name) {
    return YPathName(name).cutSuffix(".sht");
}

} // namespace

BexCirDir::BexCirDir(const char* path) {
    look(path);
}

BexCirDir& BexCirDir::operator=(const char* path) {
    look(path);
    return *this;
}

BexCirDir& BexCirDir::operator=(const BexCirDir& other) {
    return *this = static_cast<const char*>(other);
}

void BexCirDir::look(const char* path) {
    const YString circuit(path);
    SetPathname(circuit);
    log_ = below(circuit, "log");
    ext_ = below(circuit, "ext");
    drc_ = below(circuit, "drc");
    frame_ = below(circuit, "frame");
    netlist_ = below(circuit, "log/netlist");
    rcpath_ = circuit.length() ? below(circuit, "rcpath") : YString();
    YString resource = BexDataFile::fileName(circuit, BexDataFile::BexResourceByPath, resourceName);
    if (resource.length() == 0) resource = BexSysFile::fileName(resourceName, BexSysFile::InfoResource);
    datarc_ = resource;
}

unsigned long BexCirDir::IsEditableCircuit() const {
    const std::array directories = {static_cast<const BexSecDirectory*>(this), &log_, &ext_, &drc_, &frame_};
    return std::ranges::all_of(directories, [](auto* directory) { return directory->IsFullControl(); }) &&
           rcpath_.IsReadable() && datarc_.IsReadable() && (isAbsent(netlist_) || netlist_.IsRWable());
}

unsigned long BexCirDir::IsReadableCircuit() const {
    const std::array directories = {&log_, &ext_, &drc_, &frame_};
    return IsExist() && IsReadable() && IsExecutable() &&
           std::ranges::all_of(directories, [](auto* directory) { return directory->IsReadable(); }) &&
           rcpath_.IsReadable() && datarc_.IsReadable() && (isAbsent(netlist_) || netlist_.IsReadable());
}

void BexCirDir::GetSheetFile(const char* name, BexSecFile& out) const {
    out = YPathName(*this, name);
}

void BexCirDir::GetTempSheetFile(const char* name, BexSecFile& out) const {
    out = BexDataFile::fname2temp(YPathName(*this, name));
}

void BexCirDir::GetLockSheetFile(const char* name, BexSecFile& out) const {
    out = YPathName(log_, withoutSheetSuffix(name).addSuffix("___"));
}

void BexCirDir::GetSheetNetFile(const char* name, BexSecFile& out) const {
    out = YPathName(*this, withoutSheetSuffix(name).addSuffix(".net"));
}
