#include "bexa/store/rcpath_file.h"

#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/yrsc/token_reader.h"

#include <algorithm>
#include <memory>
#include <utility>

using bexa::detail::RscAccess;

namespace {

constexpr unsigned tokenSize = 1023;

int rcpathCompare(const void* a, const void* b) {
    if (!a || !b) return 0;
    return static_cast<const BexRcpath*>(a)->compare(*static_cast<const BexRcpath*>(b));
}

// entry = name ":" path, the name being read already
bool loadPaths(YioRscLoad& reader, BexRcpath& entry) {
    if (reader.next(tokenSize).type != YioRscLoad::TypeColon) return false;
    const YioRscLoad::Token value = reader.next(tokenSize);
    if (value.type != YioRscLoad::TypeValue) return false;
    entry.rawPath.assign(value.text);
    entry.path = BexRcpathVariableEnv::extractPath(entry.rawPath);
    return true;
}

} // namespace

BexRcpathIO* BexRcpathIO::open(const char* path, BexOpenMode mode) {
    return RscAccess::open<BexRcpathIO>(path, mode, path, mode);
}

unsigned long BexRcpathIO::close(BexRcpathIO* list, BexCloseMode mode) {
    const std::unique_ptr<BexRcpathIO, RscAccess::Destroy> ending(list);
    if (!list) return 0;
    switch (mode) {
    case BexCloseDiscard: return 1;
    case BexCloseSave: return list->save(BexSaveOverwrite);
    case BexCloseAuto: break;
    }
    if (list->mode_ == BexOpenRead) return 1;
    return bexa::detail::saveByMode(list->mode_, [list](BexSaveMode save) { return list->save(save); });
}

unsigned long BexRcpathIO::save(BexSaveMode mode) {
    const bool fits = (mode == BexSaveNew && mode_ == BexOpenCreate) ||
                      (mode == BexSaveOverwrite && mode_ == BexOpenUpdate);
    if (!fits || !write()) return 0;
    mode_ = BexOpenUpdate;
    edited_ = 0;
    return 1;
}

bool BexRcpathIO::write() const {
    bexa::detail::RscText file;
    for (int i = 0; i < table_.size(); ++i) {
        const BexRcpath& entry = table_.at(i);
        // A variable survives as long as it means the same; a path changed since wins.
        const bool unchanged = BexRcpathVariableEnv::extractPath(entry.rawPath) == entry.path;
        file.quoted(entry.name.view(), (unchanged ? entry.rawPath : entry.path).view());
    }
    return file.writeTo(path_);
}

unsigned long BexRcpathIO::load() {
    table_.removeAll();
    YioRscLoad reader = bexa::detail::openReader(path_);
    if (!reader.isValid()) return 0;
    for (auto token = reader.next(tokenSize); token.type != YioRscLoad::TypeEnd;
         token = reader.next(tokenSize)) {
        if (token.type != YioRscLoad::TypeKeyword) return 0;
        BexRcpath entry;
        entry.name.assign(token.text);
        if (!loadPaths(reader, entry)) return 0;
        // Copied, not moved: the copy brings the paths to their form.
        table_.end() = std::as_const(entry);
    }
    sort();
    return 1;
}

void BexRcpathIO::rcpathTbl(const BexRcpathTable& table) {
    table_ = table;
    sorted_ = false;
    edited_ = 1;
}

unsigned long BexRcpathIO::rcpath(int index, BexRcpath& out) const {
    if (index < 0 || index >= rcpathCount()) return 0;
    out = table_.at(index);
    return 1;
}

void BexRcpathIO::rcpath(const BexRcpath& entry) {
    edited_ = 1;
    const int found = searchRcpath(entry.name);
    if (found >= 0) {
        table_[found] = entry;
    } else {
        table_.insertBefore(sorted_ ? placeOf(entry.name) : rcpathCount(), entry);
    }
    if (!sorted_) sort();
}

int BexRcpathIO::searchRcpath(const char* name) const {
    if (!name) return -1;
    const int index = placeOf(name);
    return index < rcpathCount() && table_.at(index).name == name ? index : -1;
}

unsigned long BexRcpathIO::deleteRcpath(int index) {
    if (index < 0 || index >= rcpathCount()) return 0;
    table_.remove(index);
    edited_ = 1;
    return 1;
}

void BexRcpathIO::sort() {
    table_.sort(rcpathCompare);
    sorted_ = true;
}

// In a sorted table the first entry that isn't before `name`; in one that a caller handed over in an order of its own,
// the first entry of that name.
int BexRcpathIO::placeOf(const char* name) const {
    const BexRcpath* begin = table_();
    const BexRcpath* end = begin + table_.size();
    const BexRcpath* place =
        sorted_
            ? std::partition_point(begin, end, [name](const BexRcpath& entry) { return entry.name < name; })
            : std::find_if(begin, end, [name](const BexRcpath& entry) { return entry.name == name; });
    return static_cast<int>(place - begin);
}
