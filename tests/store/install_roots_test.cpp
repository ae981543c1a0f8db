#include "bexa/store/install_roots.h"

#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/fresh_process.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <optional>
#include <string>

using namespace bexa::test;

namespace {

// No root is set.
struct Roots : testing::Test {
    TempDir dir;
    EnvGuard system{"YDSROOT", std::nullopt};
    EnvGuard project{"YDS_PROJECT_ROOT", std::nullopt};
    EnvGuard family{"HK8_PROJECT_ROOT", std::nullopt};
    EnvGuard home{"HOME", std::nullopt};
    EnvGuard language{"YLANG", std::nullopt};

    // The empty file `name` below a directory of the fixture.
    void make(const std::string& directory, const std::string& name) const {
        dir.makeDirectory(directory);
        writeFile(dir.file(directory + "/" + name), "");
    }
};

using SysFile = Roots;
using CaeFile = Roots;
using PersonalFile = Roots;

YString sys(const char* name, int type) {
    return BexSysFile::fileName(name, BexSysFile::Type(type));
}

YString adFile(const char* name, int type) {
    return BexCaeFile::adfileName(name, BexCaeFile::Type(type));
}

YString adPersonal(const char* name, int type) {
    return BexCaeFile::adPfileName(name, BexCaeFile::Type(type));
}

YString personal(const BexPersonalFile& file, int type, const char* name) {
    return file.fileName(BexPersonalFile::Type(type), name);
}

} // namespace

TEST_F(SysFile, WithoutARootPathsAreRelative) {
    EXPECT_EQ(BexSysFile::systemDir(), "");
    EXPECT_EQ(sys("bexdata", 1), "info/bexdata.rsc");
    EXPECT_EQ(sys("msg", 0), "msg");
    EXPECT_EQ(sys("x", 3), "");
}

TEST_F(SysFile, TheTypeSaysWhereAFileLies) {
    system.set("/root");
    EXPECT_EQ(BexSysFile::systemDir(), "/root");
    EXPECT_EQ(sys("a", 0), "/root/a");
    EXPECT_EQ(sys("a", 1), "/root/info/a.rsc");
    EXPECT_EQ(sys("x.abc", 1), "/root/info/x.abc") << "a suffix stays";
    EXPECT_EQ(sys("a.b/x", 1), "/root/info/a.b/x.rsc") << "that of a directory isn't one";
    EXPECT_EQ(sys("x", 2), "/root/etc/x") << "no suffix";
    EXPECT_EQ(sys("x", 3), "/root") << "any other type";
    EXPECT_EQ(sys("x", -1), "/root");
    EXPECT_EQ(sys(nullptr, 0), "/root");
    EXPECT_EQ(sys(nullptr, 1), "/root/info");
    EXPECT_EQ(sys(nullptr, 2), "/root/etc");
    EXPECT_EQ(sys("A.RSC", 1), "/root/info/A.RSC") << "not in canonical spelling";
}

TEST_F(SysFile, TheProjectComesBeforeTheFamilyAndTheSystem) {
    system.set("/root");
    project.set(dir.file("project"));
    family.set(dir.file("family"));
    EXPECT_EQ(sys("bexdata", 1), "/root/info/bexdata.rsc") << "there is none";
    make("family/yds/info", "bexdata.rsc");
    EXPECT_EQ(sys("bexdata", 1), dir.file("family/yds/info/bexdata.rsc").c_str());
    make("project/info", "bexdata.rsc");
    EXPECT_EQ(sys("bexdata", 1), dir.file("project/info/bexdata.rsc").c_str());
    EXPECT_EQ(sys("bexdata", 2), "/root/etc/bexdata") << "each directory for itself";
    EXPECT_EQ(sys("info/bexdata.rsc", 0), "/root/info/bexdata.rsc") << "no search under the root";
}

TEST_F(SysFile, EtcFilesAreSearchedToo) {
    system.set("/root");
    family.set(dir.file("family"));
    make("family/yds/etc", "CompKind");
    EXPECT_EQ(sys("CompKind", 2), dir.file("family/yds/etc/CompKind").c_str());
}

TEST_F(SysFile, ANullNameGivesTheProjectRootWithoutTheDirectoryWord) {
    system.set("/root");
    project.set(dir.file("project"));
    family.set(dir.file("family"));
    EXPECT_EQ(sys(nullptr, 1), "/root/info");
    dir.makeDirectory("family/yds");
    EXPECT_EQ(sys(nullptr, 1), dir.file("family/yds").c_str());
    dir.makeDirectory("project");
    EXPECT_EQ(sys(nullptr, 1), dir.file("project").c_str());
    EXPECT_EQ(sys(nullptr, 2), dir.file("project").c_str());
    EXPECT_EQ(sys(nullptr, 0), "/root");
}

TEST_F(SysFile, AFamilyRootWithABackslashIsExpanded) {
    make("family/yds/info", "x.rsc");
    family.set(dir.path() + "\\family");
    EXPECT_EQ(sys("x", 1), dir.file("family/yds/info/x.rsc").c_str());
}

TEST_F(SysFile, InShiftJisASecondByteIsNoBackslash) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    make("\x83\x5C/yds/info", "x.rsc");
    const EnvGuard variable("BEXA_TEST_DIR", dir.path());
    family.set(dir.file("\x83\x5C"));
    EXPECT_EQ(sys("x", 1), dir.file("\x83\x5C/yds/info/x.rsc").c_str());
    family.set("$BEXA_TEST_DIR/\x83\x5C");
    EXPECT_EQ(sys("x", 1), "info/x.rsc") << "not expanded, so not found";
}

TEST_F(SysFile, TheLanguageIsOneMoreComponent) {
    system.set("/root");
    EXPECT_EQ(BexSysFile::fileNameLang("reload", BexSysFile::InfoResource), "/root/info/eng/reload.rsc");
    language.set("JAPAN");
    EXPECT_EQ(BexSysFile::fileNameLang("PropSpec", BexSysFile::EtcFile), "/root/etc/jpn/PropSpec");
    EXPECT_EQ(BexSysFile::fileNameLang("x", BexSysFile::RootFile), "/root/jpn/x");
    project.set(dir.path());
    make("etc/jpn", "PropSpec");
    EXPECT_EQ(BexSysFile::fileNameLang("PropSpec", BexSysFile::EtcFile),
              dir.file("etc/jpn/PropSpec").c_str());
}

TEST_F(SysFile, RootsOfTheFamilyAndTheMachine) {
    const EnvGuard familyRoot("YSYSROOT", "/family/");
    const EnvGuard localRoot("YLOCALROOT", "/local");
    EXPECT_EQ(BexSysFile::hk8PathName("a/b"), "/family/a/b");
    EXPECT_EQ(BexSysFile::hk8PathName(nullptr), "/family/");
    EXPECT_EQ(BexSysFile::localSysName("a"), "/local/ysys/a");
    EXPECT_EQ(BexSysFile::localSysName(nullptr), "/local/ysys");
    localRoot.unset();
    EXPECT_EQ(BexSysFile::localSysName("a"), "ysys/a");
}

TEST_F(SysFile, AccessAndExistenceOfTheFile) {
    system.set(dir.path());
    make("info", "x.rsc");
    EXPECT_TRUE(BexSysFile::isExist("x", BexSysFile::InfoResource));
    EXPECT_FALSE(BexSysFile::isExist("x", BexSysFile::EtcFile));
    EXPECT_EQ(BexSysFile::access("x", 4, BexSysFile::InfoResource), 0);
    EXPECT_EQ(BexSysFile::access("y", 4, BexSysFile::InfoResource), -1);
}

TEST_F(SysFile, AChangeOfTheEnvironmentTakesEffectAtOnce) {
    system.set("/one");
    EXPECT_EQ(sys("a", 0), "/one/a");
    system.set("/two");
    EXPECT_EQ(sys("a", 0), "/two/a");
}

TEST_F(SysFile, TheTemporaryDirectoryIsTheFirstThatExists) {
    const EnvGuard temp("TEMP", dir.path());
    EXPECT_EQ(BexSysFile::tmpDir(), dir.path().c_str());
    EXPECT_EQ(BexCaeFile::adtmpDir(), dir.path().c_str());
    EXPECT_EQ(BexCaeFile::ldtmpDir(), dir.path().c_str());
    EXPECT_EQ(BexCaeFile::trtmpDir(), dir.path().c_str());
    for (const std::optional<std::string>& none :
         {std::optional<std::string>(dir.file("missing")), std::optional<std::string>("")}) {
        temp.set(*none);
        const std::string next = std::filesystem::exists("/usr/tmp") ? "/usr/tmp" : "/tmp";
        EXPECT_EQ(BexSysFile::tmpDir(), next.c_str());
        EXPECT_EQ(BexCaeFile::trtmpDir(), next.c_str());
    }
}

// In a root of its own, where the usual directories are missing.
TEST_F(SysFile, TheLastTemporaryDirectoriesAreThePersonalOneAndTheCurrent) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may change its root";
    dir.makeDirectory("home/hk8800/ds");
    dir.makeDirectory("home/hk8800/ld");
    const int status = Child().with("HOME", "/home").without("TEMP").run([&] {
        if (chroot(dir.path().c_str()) != 0 || chdir("/") != 0) return 1;
        if (!(BexSysFile::tmpDir() == "/home/hk8800/ds")) return 2;
        if (!(BexCaeFile::ldtmpDir() == "/home/hk8800/ld")) return 3;
        if (!(BexCaeFile::adtmpDir() == ".")) return 4;
        unsetenv("HOME");
        return BexSysFile::tmpDir() == "." && BexCaeFile::trtmpDir() == "." ? 0 : 5;
    });
    EXPECT_EQ(status, 0);
}

TEST_F(CaeFile, ThreeFamiliesDifferInRootAndDirectory) {
    const EnvGuard ad("YADROOT", "/ad");
    const EnvGuard ld("YLDROOT", "/ld");
    const EnvGuard tr("YTRROOT", "/tr");
    home.set("/home/me");
    EXPECT_EQ(BexCaeFile::adsystemDir(), "/ad");
    EXPECT_EQ(BexCaeFile::ldsystemDir(), "/ld");
    EXPECT_EQ(BexCaeFile::trsystemDir(), "/tr");
    EXPECT_EQ(BexCaeFile::adfileName("a", BexCaeFile::EtcFile), "/ad/etc/a");
    EXPECT_EQ(BexCaeFile::ldfileName("a", BexCaeFile::EtcFile), "/ld/etc/a");
    EXPECT_EQ(BexCaeFile::trfileName("a", BexCaeFile::EtcFile), "/tr/etc/a");
    EXPECT_EQ(BexCaeFile::adPfileName("a", BexCaeFile::PersonalFile), "/home/me/hk8800/ad/a");
    EXPECT_EQ(BexCaeFile::ldPfileName("a", BexCaeFile::PersonalFile), "/home/me/hk8800/ld/a");
    EXPECT_EQ(BexCaeFile::trPfileName("a", BexCaeFile::PersonalFile), "/home/me/hk8800/tr/a");
}

TEST_F(CaeFile, TheTypeSaysWhereAFileLies) {
    const EnvGuard ad("YADROOT", "/ad");
    EXPECT_EQ(adFile("a", 0), "/ad/a");
    EXPECT_EQ(adFile("a", 1), "/ad/info/a.rsc");
    EXPECT_EQ(adFile("a.x", 1), "/ad/info/a.x");
    EXPECT_EQ(adFile("a", 2), "/ad/etc/a");
    EXPECT_EQ(adFile("a", 3), "/ad");
    EXPECT_EQ(adFile("a", -1), "/ad");
    EXPECT_EQ(adFile(nullptr, 1), "/ad/info");
    ad.unset();
    EXPECT_EQ(adFile("a", 1), "info/a.rsc");
}

TEST_F(CaeFile, ThereIsNoSearchInProjects) {
    project.set(dir.path());
    make("info", "a.rsc");
    const EnvGuard ad("YADROOT", "/ad");
    EXPECT_EQ(adFile("a", 1), "/ad/info/a.rsc");
}

TEST_F(CaeFile, PersonalFiles) {
    home.set("/home/me");
    EXPECT_EQ(adPersonal("x", 0), "/home/me/hk8800/ad/x");
    EXPECT_EQ(adPersonal("x", 1), "/home/me/hk8800/ad/x.rsc");
    EXPECT_EQ(adPersonal("x", 2), "") << "there is no such file";
    EXPECT_EQ(adPersonal("x", 3), "/home/me/hk8800/ad") << "the directory, without the name";
    EXPECT_EQ(adPersonal("x", 4), "/home/me/hk8800/ad/log");
    EXPECT_EQ(adPersonal("x", 5), "/home/me/hk8800/ad/x.mac");
    EXPECT_EQ(adPersonal("x", 6), "/home/me/hk8800/ad/x.ini");
    EXPECT_EQ(adPersonal("x", 7), "");
    EXPECT_EQ(adPersonal("x", -1), "");
    for (const int type : {0, 1, 5, 6}) EXPECT_EQ(adPersonal(nullptr, type), "") << type;
}

TEST_F(CaeFile, APersonalResourceKeepsTheSuffixItHas) {
    home.set("/home/me");
    EXPECT_EQ(adPersonal("x.rsc", 1), "/home/me/hk8800/ad/x.rsc.rsc");
}

TEST_F(CaeFile, PersonalPathsAreNotExpanded) {
    EXPECT_EQ(adPersonal("x", 0), "hk8800/ad/x") << "HOME isn't set";
    home.set("$BEXA_TEST_DIR");
    EXPECT_EQ(adPersonal("x", 0), "$BEXA_TEST_DIR/hk8800/ad/x");
}

TEST_F(PersonalFile, TheTypeSaysWhereAFileLies) {
    home.set("/home/me");
    const BexPersonalFile file;
    EXPECT_EQ(file.homeDir(), "/home/me");
    EXPECT_EQ(personal(file, 0, "x"), "/home/me/hk8800/ds");
    EXPECT_EQ(personal(file, 1, "x"), "/home/me/hk8800/ds/log");
    EXPECT_EQ(personal(file, 2, "x"), "/home/me/hk8800/ds/x.rsc");
    EXPECT_EQ(personal(file, 3, "x"), "/home/me/hk8800/ds/x.mac");
    EXPECT_EQ(personal(file, 4, "x"), "/home/me/hk8800/ds/x.ini");
    EXPECT_EQ(personal(file, 5, "x"), "/home/me/hk8800/ds/x");
    EXPECT_EQ(personal(file, 6, "x"), "");
    EXPECT_EQ(personal(file, -1, "x"), "");
    EXPECT_EQ(personal(file, 0, nullptr), "/home/me/hk8800/ds");
    for (const int type : {2, 3, 4, 5}) EXPECT_EQ(personal(file, type, nullptr), "") << type;
}

TEST_F(PersonalFile, TheDirectoryIsExpanded) {
    const EnvGuard variable("BEXA_TEST_DIR", "/home/me");
    home.set("$BEXA_TEST_DIR");
    EXPECT_EQ(personal(BexPersonalFile(), 5, "x"), "/home/me/hk8800/ds/x");
    home.unset();
    const std::string current = std::filesystem::current_path().string();
    EXPECT_EQ(personal(BexPersonalFile(), 5, "x"), (current + "/hk8800/ds/x").c_str());
}

TEST_F(PersonalFile, WorksForAnotherUser) {
    BexPersonalFile file;
    file.homeDir("/home/you");
    EXPECT_EQ(personal(file, 1, nullptr), "/home/you/hk8800/ds/log");
    file.homeDir(nullptr);
    EXPECT_EQ(file.homeDir(), "");
}

TEST_F(PersonalFile, KindsOfPaths) {
    struct Row {
        const char* path;
        int type;
    };
    constexpr Row rows[] = {
        {"C:/foo/LOG", 1}, {"log", 1},     {"/a/log/", 1}, {"/a/log/x", 5}, {"foo.MAC", 3}, {"/a/foo.mac", 3},
        {"a.RSC", 2},      {"a.Ini", 4},   {"a.log", 5},   {"a.rsc.x", 5},  {"rsc", 5},     {"", 5},
        {"/hk8800/ds", 5}, {"a.rsc/b", 5}, {"/", 5},       {".mac", 3},
    };
    const BexPersonalFile file;
    for (const Row& row : rows) EXPECT_EQ(file.fileType(row.path), row.type) << row.path;
    EXPECT_EQ(file.fileType(nullptr), BexPersonalFile::PlainFile);
}

TEST_F(PersonalFile, ThePersonalDirectoryIsKnownBelowTheCurrentDirectoryOnly) {
    home.set(dir.path());
    const BexPersonalFile file;
    EXPECT_EQ(file.fileType("hk8800/ds"), BexPersonalFile::Directory);
    EXPECT_EQ(file.fileType("hk8800//ds/"), BexPersonalFile::Directory);
    EXPECT_EQ(file.fileType("HK8800/DS"), BexPersonalFile::PlainFile);
    EXPECT_EQ(file.fileType(dir.file("hk8800/ds").c_str()), BexPersonalFile::PlainFile)
        << "though it is the one";
}

TEST_F(PersonalFile, AccessAndExistenceOfTheFile) {
    home.set(dir.path());
    make("hk8800/ds", "x.rsc");
    const BexPersonalFile file;
    EXPECT_TRUE(file.isExist(BexPersonalFile::Resource, "x"));
    EXPECT_TRUE(file.isExist(BexPersonalFile::Directory, nullptr));
    EXPECT_FALSE(file.isExist(BexPersonalFile::Macro, "x"));
    EXPECT_EQ(file.access(4, BexPersonalFile::Resource, "x"), 0);
    EXPECT_EQ(file.access(0, BexPersonalFile::Macro, "x"), -1);
    EXPECT_EQ(file.access(0, BexPersonalFile::Type(6), "x"), -1) << "no path";
    EXPECT_FALSE(file.isExist(BexPersonalFile::Type(6), "x"));
}
