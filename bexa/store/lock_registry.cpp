#include "bexa/store/lock_registry.h"

#include "bexa/foundation/str_dictionary.h"
#include "bexa/store/lock_file.h"

#include <functional>
#include <string_view>

BexLockRecord::BexLockRecord(const void* owner, const char* lockedPath) : path(lockedPath) {
    handle = bexa::detail::ownerNumber(owner);
    bexa::detail::identify(*this);
}

namespace bexa::detail {

bool SameLock::operator()(const BexLockRecord* a, const BexLockRecord* b) const {
    return a->path == b->path && a->user == b->user && a->display == b->display && a->host == b->host;
}

std::size_t LockHash::operator()(const BexLockRecord* record) const {
    return std::hash<std::string_view>()(record->path.view());
}

} // namespace bexa::detail

BexLockRegistry::~BexLockRegistry() {
    deleteAll();
}

BexLockRecord* BexLockRegistry::find(const BexLockRecord& key) const {
    // The index looks and never changes what it is asked with.
    const auto found = index_.find(const_cast<BexLockRecord*>(&key));
    return found == index_.end() ? nullptr : *found;
}

BexLockRecord& BexLockRegistry::findOrAdd(const BexLockRecord& key) {
    if (BexLockRecord* found = find(key)) return *found;
    auto added = std::make_unique<BexLockRecord>(key);
    void* held = attach(added.get());
    if (held == added.get()) static_cast<void>(added.release());
    return **index_.insert(static_cast<BexLockRecord*>(held)).first;
}

unsigned long BexLockRegistry::compare(const void* key, const void* held) const {
    return bexa::detail::SameLock()(static_cast<const BexLockRecord*>(key),
                                    static_cast<const BexLockRecord*>(held));
}

unsigned long BexLockRegistry::hashValue(const void* key) const {
    return BexStrHash(static_cast<const BexLockRecord*>(key)->path);
}

void BexLockRegistry::deleteIt(void* element) {
    delete static_cast<BexLockRecord*>(element);
}
