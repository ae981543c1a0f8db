// The sheets that this process has locked.
#pragma once

#include "bexa/foundation/ygeneral/yset.h"
#include "bexa/store/sheet_locks.h"

#include <cstddef>
#include <memory>
#include <unordered_set>

// A sheet that is locked in this process, or was: the record of a sheet that nobody holds any more stays, with count 0.
struct BexLockRecord : BexLockInfo {
    // For this process as it is now. No lock file has a name yet and `pid` stays 0.
    BexLockRecord(const void* owner, const char* lockedPath);

    YString path;         // the locked file, as the caller spelled it
    bool ownsFile = true; // whether the last unlock removes the lock file
    unsigned count = 0;   // holders in this process
};

namespace bexa::detail {

// A lock is that of a path, taken by a user at a display on a host.
struct SameLock {
    bool operator()(const BexLockRecord* a, const BexLockRecord* b) const;
};
struct LockHash {
    std::size_t operator()(const BexLockRecord* record) const;
};

} // namespace bexa::detail

// The records, which it owns. The hash of the set is that of the dictionaries, by which numbered sheets share few
// values; so an index of its own finds a record at once.
class BexLockRegistry : public YSet {
public:
    BexLockRegistry() = default;
    BexLockRegistry(const BexLockRegistry&) = delete;
    BexLockRegistry& operator=(const BexLockRegistry&) = delete;
    // Lock files stay: they tell that the program ended without unlocking.
    ~BexLockRegistry() override;

    // The record equal to `key`, null if there is none.
    BexLockRecord* find(const BexLockRecord& key) const;
    // That record, or a copy of `key` put in its place.
    BexLockRecord& findOrAdd(const BexLockRecord& key);

protected:
    unsigned long compare(const void* key, const void* held) const override;
    unsigned long hashValue(const void* key) const override;
    void deleteIt(void* element) override;

private:
    std::unordered_set<BexLockRecord*, bexa::detail::LockHash, bexa::detail::SameLock> index_;
};
