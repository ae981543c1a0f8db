#include "bexa/design/circuit_creator.h"

#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bexa/store/circuit_dir.h"
#include "bexa/store/rcpath_file.h"
#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

const Names members = {"drc", "ext", "frame", "log", "rcpath"};

class CircuitCreator : public ::testing::Test {
protected:
    unsigned long create(const std::string& name, const BexRcpathTable& table = {}) const {
        return BexCircuitCreator::create(dir.file(name).c_str(), table);
    }

    const TempDir dir;
};

BexRcpathTable twoEntries() {
    BexRcpathTable table;
    table[0] = BexRcpath("symbols", "lib");
    table[1] = BexRcpath("bexdata", "$BEXA_TEST_HOME/x");
    return table;
}

} // namespace

TEST_F(CircuitCreator, MakesTheWholeTree) {
    ASSERT_TRUE(create("a.cir"));
    EXPECT_EQ(listOf(dir.path()), Names{"a.cir"});
    EXPECT_EQ(listOf(dir.file("a.cir")), members);
    for (const char* name : {"log", "drc", "ext", "frame"}) {
        EXPECT_EQ(listOf(dir.file("a.cir/" + std::string(name))), Names{"readme.txt"}) << name;
    }
}

TEST_F(CircuitCreator, EachDirectoryHasItsNote) {
    ASSERT_TRUE(create("a.cir"));
    const struct {
        const char* directory;
        const char* note;
    } rows[] = {
        {"log", "This is a directory to which error messages are output.\n"},
        {"drc", "This is a directory to which DRC messages are output.\n"},
        {"ext", "This is a directory to which Netlist are output.\n"},
        {"frame", "This is a directory to which Frame data are output.\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(contentOf(dir.file("a.cir/" + std::string(row.directory) + "/readme.txt")), row.note);
    }
}

TEST_F(CircuitCreator, TheListIsWrittenInTheGivenOrderAndSortedByTheNextLoad) {
    const EnvGuard home("BEXA_TEST_HOME", "/home/x");
    ASSERT_TRUE(create("a.cir", twoEntries()));
    const std::string list = dir.file("a.cir/rcpath");
    EXPECT_EQ(contentOf(list), contentOf(testData("design/new_circuit_rcpath")));
    BexRcpathIO* loaded = BexRcpathIO::open(list.c_str(), BexOpenRead);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->searchRcpath("bexdata"), 0);
    EXPECT_EQ(loaded->searchRcpath("symbols"), 1);
    BexRcpathIO::close(loaded, BexCloseDiscard);
}

TEST_F(CircuitCreator, AnEmptyListIsAnEmptyFile) {
    ASSERT_TRUE(create("a.cir"));
    EXPECT_EQ(contentOf(dir.file("a.cir/rcpath")), "");
}

TEST_F(CircuitCreator, IsReadableOnceTheCircuitResourceIsFound) {
    const EnvGuard root("YDSROOT", dir.file("system"));
    const EnvGuard project("YDS_PROJECT_ROOT", std::nullopt);
    const EnvGuard family("HK8_PROJECT_ROOT", std::nullopt);
    ASSERT_TRUE(create("a.cir"));
    EXPECT_FALSE(BexCirDir(dir.file("a.cir").c_str()).IsReadableCircuit());
    writeFile(dir.makeDirectory("system/info") + "/bexdata.rsc", "");
    EXPECT_TRUE(BexCirDir(dir.file("a.cir").c_str()).IsReadableCircuit());
    EXPECT_TRUE(BexCirDir(dir.file("a.cir").c_str()).IsEditableCircuit());
}

TEST_F(CircuitCreator, LeavesAnExistingDirectoryAlone) {
    dir.makeDirectory("a.cir");
    EXPECT_FALSE(create("a.cir", twoEntries()));
    EXPECT_EQ(listOf(dir.file("a.cir")), Names());
    writeFile(dir.file("b.cir"), "x");
    EXPECT_FALSE(create("b.cir"));
    EXPECT_EQ(contentOf(dir.file("b.cir")), "x");
}

TEST_F(CircuitCreator, WithoutTheSuffixLeavesTheDirectoryBehind) {
    for (const char* name : {"a", "a.dat"}) {
        EXPECT_FALSE(create(name));
        EXPECT_EQ(listOf(dir.file(name)), Names()) << name;
    }
}

TEST_F(CircuitCreator, MakesTheCircuitUnderTheCanonicalSpelling) {
    ASSERT_TRUE(create("X.CIR"));
    EXPECT_EQ(listOf(dir.path()), Names{"X.cir"});
    EXPECT_EQ(listOf(dir.file("X.cir")), members);
    EXPECT_FALSE(create("X.Cir"));
    ASSERT_TRUE(create("b.cir/"));
    EXPECT_EQ(listOf(dir.file("b.cir")), members);
}

TEST_F(CircuitCreator, MakesOneLevelOnly) {
    EXPECT_FALSE(create("none/a.cir"));
    EXPECT_EQ(listOf(dir.path()), Names());
}

TEST_F(CircuitCreator, WithoutAPathMakesNothing) {
    EXPECT_FALSE(BexCircuitCreator().create());
    EXPECT_FALSE(BexCircuitCreator::create(nullptr, {}));
    EXPECT_FALSE(BexCircuitCreator::create("", {}));
}

TEST_F(CircuitCreator, InADirectoryThatMayNotBeWrittenMakesNothing) {
    setMode(dir.path(), 0555);
    EXPECT_EQ(Child().asNobody().run([&] { return create("a.cir") ? 1 : 0; }), 0);
    EXPECT_EQ(listOf(dir.path()), Names());
}

TEST_F(CircuitCreator, ANoteThatCannotBeWrittenIsNoFailure) {
    const auto body = [&] {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit none = {0, RLIM_INFINITY};
        ::getrlimit(RLIMIT_FSIZE, &none);
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_FSIZE, &none);
        return create("a.cir") ? 0 : 1;
    };
    EXPECT_EQ(Child().run(body), 0);
    EXPECT_EQ(listOf(dir.file("a.cir")), members);
}

TEST_F(CircuitCreator, CarriesItsTable) {
    BexCircuitCreator creator(dir.file("a.cir").c_str(), {});
    EXPECT_EQ(creator.rcpathTable().size(), 0);
    creator.rcpathTable(twoEntries());
    EXPECT_EQ(creator.rcpathTable().size(), 2);
    const BexCircuitCreator copy(creator);
    BexCircuitCreator assigned;
    assigned = copy;
    ASSERT_TRUE(assigned.create());
    EXPECT_EQ(contentOf(dir.file("a.cir/rcpath")), contentOf(testData("design/new_circuit_rcpath")));
    EXPECT_FALSE(creator.create());
}
