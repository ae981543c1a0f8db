#include "bexa/store/lock_registry.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bexa/foundation/str_dictionary.h"
#include "tests/store/lock_fixture.h"

using namespace bexa::test;

namespace {

BexLockRecord recordOf(const std::string& path) {
    return {nullptr, path.c_str()};
}

// Opens what the set asks of its kind of element.
struct OpenRegistry : BexLockRegistry {
    using BexLockRegistry::compare;
    using BexLockRegistry::hashValue;
};

} // namespace

TEST(LockRecord, IsMadeForThisProcess) {
    const EnvGuard display("DISPLAY", ":7");
    const BexLockRecord record(reinterpret_cast<void*>(12), "a.cir/001.sht");
    EXPECT_EQ(record.pid, 0);
    EXPECT_EQ(record.handle, 12);
    EXPECT_EQ(record.fileName, "");
    EXPECT_EQ(record.user, YgetUserName());
    EXPECT_EQ(record.display, ":7");
    EXPECT_EQ(record.host, hostName().c_str());
    EXPECT_EQ(record.path, "a.cir/001.sht");
    EXPECT_TRUE(record.ownsFile);
    EXPECT_EQ(record.count, 0u);
}

TEST(LockRecord, WithoutDisplayHasTheUserInItsPlace) {
    const EnvGuard display("DISPLAY", "");
    EXPECT_EQ(recordOf("x").display, YgetUserName());
}

TEST(LockRegistry, RecordsAreEqualByPathUserDisplayAndHost) {
    const OpenRegistry registry;
    const BexLockRecord record = recordOf("a");
    BexLockRecord other = recordOf("a");
    other.handle = 5;
    other.count = 3;
    other.date = other.fileName = "other";
    EXPECT_TRUE(registry.compare(&record, &other));
    for (YString* field : {&other.path, &other.user, &other.display, &other.host}) {
        const YString before = *field;
        *field << "x";
        EXPECT_FALSE(registry.compare(&record, &other));
        *field = before;
    }
}

TEST(LockRegistry, ANullPathCountsAsEmpty) {
    const OpenRegistry registry;
    const BexLockRecord null(nullptr, nullptr);
    const BexLockRecord empty = recordOf("");
    EXPECT_TRUE(registry.compare(&null, &empty));
    EXPECT_EQ(registry.hashValue(&null), 0u);
}

TEST(LockRegistry, HashesThePathAsDictionariesDo) {
    const OpenRegistry registry;
    const BexLockRecord record = recordOf("a.cir/001.sht");
    EXPECT_EQ(registry.hashValue(&record), BexStrHash("a.cir/001.sht"));
}

TEST(LockRegistry, ARecordIsAddedOnce) {
    BexLockRegistry registry;
    EXPECT_EQ(registry.find(recordOf("a")), nullptr);
    BexLockRecord& added = registry.findOrAdd(recordOf("a"));
    added.count = 2;
    EXPECT_EQ(registry.find(recordOf("a")), &added);
    EXPECT_EQ(&registry.findOrAdd(recordOf("a")), &added);
    EXPECT_EQ(added.count, 2u);
    EXPECT_EQ(registry.find(recordOf("b")), nullptr);
    EXPECT_EQ(registry.count(), 1);
}

TEST(LockRegistry, KeepsThousandsOfSheetsApart) {
    BexLockRegistry registry;
    const unsigned sheets = 5000;
    const auto path = [](unsigned i) { return "a.cir/" + std::to_string(i) + ".sht"; };
    std::set<BexLockRecord*> records;
    for (unsigned i = 0; i < sheets; ++i) records.insert(&registry.findOrAdd(recordOf(path(i))));
    EXPECT_EQ(records.size(), sheets);
    for (unsigned i = 0; i < sheets; ++i) EXPECT_EQ(registry.find(recordOf(path(i)))->path, path(i).c_str());
    EXPECT_EQ(registry.contains(*records.begin()), 1u);
}
