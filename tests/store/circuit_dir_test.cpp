#include "bexa/store/circuit_dir.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "bexa/store/sheet_locks.h"
#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

// A whole circuit that leads to its own circuit resource, in an installation with nothing in it.
class CircuitDir : public ::testing::Test {
protected:
    CircuitDir() {
        for (const char* name : {"log", "ext", "drc", "frame"}) {
            dir.makeDirectory(std::string("a.cir/") + name);
            writeFile(dir.file(std::string("a.cir/") + name + "/readme.txt"), "\n");
        }
        dir.makeDirectory("lib");
        dir.makeDirectory("system/info");
        writeFile(dir.file("lib/bexdata.rsc"), "");
        writeFile(dir.file("a.cir/rcpath"), "bexdata : \"./lib\"\n");
    }

    std::string inside(const std::string& name) const { return circuit + '/' + name; }
    // What the tests say at this moment, "ER" for editable and readable.
    std::string state() const {
        const BexCirDir look(circuit.c_str());
        return std::string(look.IsEditableCircuit() ? "E" : "-") + (look.IsReadableCircuit() ? "R" : "-");
    }

    const TempDir dir;
    const std::string circuit = dir.file("a.cir");
    const EnvGuard root{"YDSROOT", dir.file("system")};
    const EnvGuard project{"YDS_PROJECT_ROOT", std::nullopt};
    const EnvGuard family{"HK8_PROJECT_ROOT", std::nullopt};
};

std::string pathOf(const BexSecFile& file) {
    return static_cast<const char*>(file);
}

} // namespace

TEST_F(CircuitDir, NamesItsMembers) {
    const BexCirDir look(circuit.c_str());
    EXPECT_EQ(pathOf(look), circuit);
    EXPECT_EQ(pathOf(look.GetLogDir()), inside("log"));
    EXPECT_EQ(pathOf(look.GetExtDir()), inside("ext"));
    EXPECT_EQ(pathOf(look.GetDrcDir()), inside("drc"));
    EXPECT_EQ(pathOf(look.GetFrameDir()), inside("frame"));
    EXPECT_EQ(pathOf(look.GetNetlist()), inside("log/netlist"));
    EXPECT_EQ(pathOf(look.GetRcpath()), inside("rcpath"));
    EXPECT_EQ(pathOf(look.GetDatarc()), dir.file("lib/bexdata.rsc"));
}

TEST_F(CircuitDir, AWholeCircuitIsEditableAndReadable) {
    EXPECT_EQ(state(), "ER"); // without a net-list report
    writeFile(inside("log/netlist"), "");
    EXPECT_EQ(state(), "ER");
}

TEST_F(CircuitDir, WithoutADirectoryItIsNeither) {
    for (const char* name : {"log", "ext", "drc", "frame"}) {
        fs::rename(inside(name), inside("away"));
        EXPECT_EQ(state(), "--") << name;
        writeFile(inside(name), "");
        EXPECT_EQ(state(), "--") << name << " as a file";
        fs::remove(inside(name));
        fs::rename(inside("away"), inside(name));
        EXPECT_EQ(state(), "ER") << name;
    }
}

TEST_F(CircuitDir, AnEmptyDirectoryIsEditableButNotReadable) {
    for (const char* name : {"log", "ext", "drc", "frame"}) {
        fs::remove(inside(name) + "/readme.txt");
        EXPECT_EQ(state(), "E-") << name;
        writeFile(inside(name) + "/readme.txt", "");
    }
}

TEST_F(CircuitDir, WithoutItsResourcePathListItIsNeitherThoughTheSystemsResourceIsFound) {
    fs::remove(inside("rcpath"));
    writeFile(dir.file("system/info/bexdata.rsc"), "");
    const BexCirDir look(circuit.c_str());
    EXPECT_EQ(pathOf(look.GetDatarc()), dir.file("system/info/bexdata.rsc"));
    EXPECT_TRUE(look.GetDatarc().IsReadable());
    EXPECT_EQ(state(), "--");
}

TEST_F(CircuitDir, AListWithoutTheEntryLeadsToTheSystemsResource) {
    writeFile(inside("rcpath"), "other : \"./lib\"\n");
    EXPECT_EQ(state(), "--");
    writeFile(dir.file("system/info/bexdata.rsc"), "");
    EXPECT_EQ(state(), "ER");
}

TEST_F(CircuitDir, WithoutACircuitResourceItIsNeither) {
    fs::remove(dir.file("lib/bexdata.rsc"));
    EXPECT_EQ(state(), "--");
}

TEST_F(CircuitDir, TheCircuitResourceNeedNotBeWritable) {
    setMode(dir.file("lib/bexdata.rsc"), 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return state() == "ER" ? 0 : 1; }), 0);
}

TEST_F(CircuitDir, ADirectoryNeedNotBeWritable) {
    setMode(inside("log"), 0555);
    EXPECT_EQ(Child().asNobody().run([&] { return state() == "ER" ? 0 : 1; }), 0);
}

TEST_F(CircuitDir, AReportInPlaceOfADirectoryHoldsNobodyBack) {
    dir.makeDirectory("a.cir/log/netlist");
    EXPECT_EQ(state(), "ER");
}

TEST_F(CircuitDir, AReportMustBeReadableAndForEditingWritable) {
    writeFile(inside("log/netlist"), "");
    const struct {
        unsigned mode;
        std::string state;
    } rows[] = {{0666, "ER"}, {0444, "-R"}, {0222, "--"}, {0, "--"}};
    for (const auto& row : rows) {
        setMode(inside("log/netlist"), row.mode);
        EXPECT_EQ(Child().asNobody().run([&] { return state() == row.state ? 0 : 1; }), 0) << row.state;
    }
}

TEST_F(CircuitDir, ItsAnswersAreThoseOfTheMomentItLooked) {
    const BexCirDir before(circuit.c_str());
    fs::remove_all(inside("frame"));
    EXPECT_TRUE(before.IsEditableCircuit());
    EXPECT_FALSE(BexCirDir(before).IsEditableCircuit());
    BexCirDir assigned;
    assigned = before;
    EXPECT_FALSE(assigned.IsEditableCircuit());
    EXPECT_EQ(pathOf(assigned), circuit);
}

TEST_F(CircuitDir, AssigningAPathLooksAnew) {
    BexCirDir look;
    EXPECT_FALSE(look.IsEditableCircuit());
    look = circuit.c_str();
    EXPECT_TRUE(look.IsEditableCircuit());
    fs::remove_all(inside("frame"));
    const BexCirDir& same = look;
    look = same;
    EXPECT_FALSE(look.IsEditableCircuit());
    EXPECT_EQ(pathOf(look), circuit);
}

TEST_F(CircuitDir, WithoutAPathTheNamesAreBare) {
    for (const BexCirDir& look : {BexCirDir(), BexCirDir(""), BexCirDir(nullptr)}) {
        EXPECT_EQ(pathOf(look), "");
        EXPECT_EQ(pathOf(look.GetLogDir()), "log");
        EXPECT_EQ(pathOf(look.GetExtDir()), "ext");
        EXPECT_EQ(pathOf(look.GetDrcDir()), "drc");
        EXPECT_EQ(pathOf(look.GetFrameDir()), "frame");
        EXPECT_EQ(pathOf(look.GetNetlist()), "log/netlist");
        EXPECT_EQ(pathOf(look.GetRcpath()), "");
        EXPECT_EQ(pathOf(look.GetDatarc()), dir.file("system/info/bexdata.rsc"));
        EXPECT_FALSE(look.IsEditableCircuit());
        EXPECT_FALSE(look.IsReadableCircuit());
    }
}

TEST_F(CircuitDir, ANameInPlaceOfACircuitIsNeither) {
    for (const std::string& path : {dir.file("none.cir"), inside("rcpath"), dir.file("lib")}) {
        const BexCirDir look(path.c_str());
        EXPECT_FALSE(look.IsEditableCircuit()) << path;
        EXPECT_FALSE(look.IsReadableCircuit()) << path;
    }
}

TEST_F(CircuitDir, NamesTheFilesOfASheet) {
    const struct {
        void (BexCirDir::*file)(const char*, BexSecFile&) const;
        const char* name;
        const char* path;
    } rows[] = {
        {&BexCirDir::GetSheetFile, "001.sht", "001.sht"},
        {&BexCirDir::GetSheetFile, "001", "001"},
        {&BexCirDir::GetTempSheetFile, "001.sht", "_001.sht"},
        {&BexCirDir::GetLockSheetFile, "001.sht", "log/001.___"},
        {&BexCirDir::GetLockSheetFile, "001", "log/001.___"},
        {&BexCirDir::GetLockSheetFile, "001.net", "log/001.net.___"},
        {&BexCirDir::GetSheetNetFile, "001.sht", "001.net"},
        {&BexCirDir::GetSheetNetFile, "001", "001.net"},
        {&BexCirDir::GetSheetNetFile, "001.smb", "001.smb.net"},
    };
    const BexCirDir look(circuit.c_str());
    for (const auto& row : rows) {
        BexSecFile file;
        (look.*row.file)(row.name, file);
        EXPECT_EQ(pathOf(file), inside(row.path)) << row.name;
    }
}

TEST_F(CircuitDir, ASheetFileIsLookedAtWhenItIsAskedFor) {
    const BexCirDir look(circuit.c_str());
    BexSecFile file;
    look.GetSheetFile("001.sht", file);
    EXPECT_FALSE(file.IsExist());
    writeFile(inside("001.sht"), "");
    EXPECT_FALSE(file.IsExist());
    look.GetSheetFile("001.sht", file);
    EXPECT_TRUE(file.IsRWable());
}

TEST_F(CircuitDir, TheLockOfASheetIsTheOneThatLockingMakes) {
    const std::string sheet = inside("001.sht");
    YString lockFile;
    ASSERT_TRUE(BexGetLockFilename(LexSheetLogged, sheet.c_str(), lockFile));
    BexSecFile file;
    BexCirDir(circuit.c_str()).GetLockSheetFile("001.sht", file);
    EXPECT_EQ(file.GetPathname(), lockFile);
}
