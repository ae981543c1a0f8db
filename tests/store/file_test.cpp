#include "bexa/store/file.h"

#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/fresh_process.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

using namespace bexa::test;
using testing::UnorderedElementsAre;

namespace {

struct Files : testing::Test {
    TempDir dir;
    std::string source = dir.file("source");
    std::string target = dir.file("target");

    bool copy(unsigned long append = 0) {
        return BexFile::fileCopy(source.c_str(), target.c_str(), append) != 0;
    }
    bool copyEuc(unsigned long append = 0) {
        return BexFile::EUCfileCopy(source.c_str(), target.c_str(), append) != 0;
    }
};

using BexFileTest = Files;
using FileCopy = Files;
using EucFileCopy = Files;

struct Visits {
    std::vector<std::string> paths;
    std::size_t limit = 1000;

    static int add(void* visits, const char* path) {
        auto& self = *static_cast<Visits*>(visits);
        self.paths.emplace_back(path);
        return self.paths.size() >= self.limit;
    }
};

} // namespace

TEST_F(BexFileTest, AccessHasTheSenseOfTheSystemCall) {
    writeFile(source, "x");
    EXPECT_EQ(BexFile::access(source.c_str(), 0), 0);
    EXPECT_EQ(BexFile::access(source.c_str(), 2), 0);
    EXPECT_EQ(BexFile::access(source.c_str(), 4), 0);
    EXPECT_EQ(BexFile::access(target.c_str(), 0), -1);
    EXPECT_EQ(BexFile::access(nullptr, 0), -1);
    EXPECT_EQ(BexFile::access(dir.path().c_str(), 0), 0) << "a directory passes";
}

TEST_F(BexFileTest, AccessTellsWhatPermissionsForbid) {
    writeFile(source, "x");
    setMode(source, 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return BexFile::access(source.c_str(), 2) == -1 ? 0 : 1; }), 0);
    EXPECT_EQ(Child().asNobody().run([&] { return BexFile::access(source.c_str(), 4) == 0 ? 0 : 1; }), 0);
}

TEST_F(BexFileTest, ExistenceAndDirectories) {
    writeFile(source, "");
    EXPECT_TRUE(BexFile::isExist(source.c_str()));
    EXPECT_TRUE(BexFile::isExist(dir.path().c_str()));
    EXPECT_FALSE(BexFile::isExist(target.c_str()));
    EXPECT_FALSE(BexFile::isExist(""));
    EXPECT_FALSE(BexFile::isExist(nullptr));
    EXPECT_TRUE(BexFile::isDir(dir.path().c_str()));
    EXPECT_FALSE(BexFile::isDir(source.c_str()));
    EXPECT_FALSE(BexFile::isDir(nullptr));
}

TEST_F(BexFileTest, PathsOfEveryLengthAreJustPaths) {
    const std::string tooLong = "/" + std::string(5000, 'x');
    EXPECT_FALSE(BexFile::isExist(tooLong.c_str()));
    EXPECT_FALSE(BexFile::fileCopy(tooLong.c_str(), target.c_str(), 0));
    EXPECT_FALSE(BexFile::remove(tooLong.c_str()));
    EXPECT_FALSE(BexFile::mkdir(tooLong.c_str()));
}

TEST_F(BexFileTest, MkdirMakesOneLevelOnce) {
    EXPECT_TRUE(BexFile::mkdir(target.c_str()));
    EXPECT_TRUE(BexFile::isDir(target.c_str()));
    EXPECT_FALSE(BexFile::mkdir(target.c_str()));
    EXPECT_FALSE(BexFile::mkdir(dir.file("a/b").c_str()));
    EXPECT_FALSE(BexFile::mkdir(nullptr));
    EXPECT_FALSE(BexFile::mkdir(""));
}

TEST_F(BexFileTest, RemoveTakesFilesAndEmptyDirectories) {
    writeFile(source, "x");
    const std::string empty = dir.makeDirectory("empty");
    const std::string full = dir.makeDirectory("full");
    writeFile(full + "/x", "");
    EXPECT_TRUE(BexFile::remove(source.c_str()));
    EXPECT_TRUE(BexFile::remove(empty.c_str()));
    EXPECT_FALSE(BexFile::remove(full.c_str()));
    EXPECT_FALSE(BexFile::remove(source.c_str())) << "it is gone";
    EXPECT_FALSE(BexFile::remove(""));
    EXPECT_FALSE(BexFile::remove(nullptr));
    EXPECT_EQ(listOf(dir.path()), std::vector<std::string>{"full"});
}

TEST_F(BexFileTest, RemoveTakesALinkAndNotWhatItLeadsTo) {
    const std::string directory = dir.makeDirectory("directory");
    std::filesystem::create_symlink(directory, source);
    std::filesystem::create_symlink(dir.file("nowhere"), target);
    EXPECT_TRUE(BexFile::remove(source.c_str()));
    EXPECT_TRUE(BexFile::remove(target.c_str()));
    EXPECT_EQ(listOf(dir.path()), std::vector<std::string>{"directory"});
}

TEST_F(BexFileTest, Rename) {
    writeFile(source, "x");
    EXPECT_FALSE(BexFile::rename(nullptr, target.c_str()));
    EXPECT_FALSE(BexFile::rename(source.c_str(), nullptr));
    EXPECT_FALSE(BexFile::rename("", target.c_str()));
    EXPECT_FALSE(BexFile::rename(source.c_str(), ""));
    EXPECT_TRUE(BexFile::rename(source.c_str(), target.c_str()));
    EXPECT_EQ(contentOf(target), "x");
    EXPECT_FALSE(BexFile::rename(source.c_str(), target.c_str())) << "it is gone";
}

TEST_F(FileCopy, CopiesAllBytes) {
    std::string content;
    for (int i = 0; i < 3000; ++i) content += static_cast<char>(i);
    for (const std::size_t size : {0U, 1U, 1023U, 1024U, 1025U, 2048U, 3000U}) {
        writeFile(source, content.substr(0, size));
        writeFile(target, "what was here before");
        ASSERT_TRUE(copy()) << size;
        EXPECT_EQ(contentOf(target), content.substr(0, size));
    }
}

TEST_F(FileCopy, AppendsBehindTheTarget) {
    writeFile(source, "new");
    EXPECT_TRUE(copy(1));
    EXPECT_TRUE(copy(7));
    EXPECT_EQ(contentOf(target), "newnew");
}

TEST_F(FileCopy, OfAMissingSourceNeverCreatesTheTarget) {
    EXPECT_FALSE(copy());
    EXPECT_FALSE(exists(target));
    writeFile(target, "kept");
    EXPECT_FALSE(copy());
    EXPECT_EQ(contentOf(target), "kept");
}

TEST_F(FileCopy, OfADirectoryLeavesTheTargetAlone) {
    writeFile(target, "kept");
    EXPECT_FALSE(BexFile::fileCopy(dir.path().c_str(), target.c_str(), 0));
    EXPECT_EQ(contentOf(target), "kept");
    EXPECT_FALSE(BexFile::fileCopy(target.c_str(), dir.path().c_str(), 0)) << "nor over one";
}

TEST_F(FileCopy, OfAFileThatMayNotBeRead) {
    writeFile(source, "secret");
    setMode(source, 0);
    dir.openToAll();
    EXPECT_EQ(Child().asNobody().run([&] { return copy() ? 1 : 0; }), 0);
    EXPECT_FALSE(exists(target));
}

TEST_F(FileCopy, OverAFileThatMayNotBeWritten) {
    writeFile(source, "new");
    writeFile(target, "kept");
    setMode(target, 0444);
    EXPECT_EQ(Child().asNobody().run([&] { return copy() || copy(1) ? 1 : 0; }), 0);
    EXPECT_EQ(contentOf(target), "kept");
}

TEST_F(FileCopy, OntoItselfIsTrueAndLeavesTheFileAlone) {
    writeFile(source, "kept");
    EXPECT_TRUE(BexFile::fileCopy(source.c_str(), source.c_str(), 0));
    EXPECT_TRUE(BexFile::fileCopy(source.c_str(), source.c_str(), 1));
    EXPECT_EQ(contentOf(source), "kept");
}

TEST_F(FileCopy, ToTheSameNameInAnotherCaseCopiesNothing) {
    writeFile(source, "kept");
    const std::string other = dir.file("SOURCE");
    EXPECT_TRUE(BexFile::fileCopy(source.c_str(), other.c_str(), 0));
    EXPECT_FALSE(exists(other));
    EXPECT_TRUE(BexFile::fileCopy(dir.file("a").c_str(), dir.file("A").c_str(), 0)) << "not even looked for";
}

TEST_F(FileCopy, ExpandsBothPaths) {
    const EnvGuard variable("BEXA_TEST_DIR", dir.path());
    writeFile(source, "x");
    EXPECT_TRUE(BexFile::fileCopy("$BEXA_TEST_DIR/source", "${BEXA_TEST_DIR}/target", 0));
    EXPECT_EQ(contentOf(target), "x");
    EXPECT_TRUE(BexFile::fileCopy("$BEXA_TEST_DIR/SOURCE", source.c_str(), 0)) << "the same path";
}

TEST_F(FileCopy, ToAnotherNameOfTheSameFileDoesNotEmptyIt) {
    writeFile(source, "kept");
    std::filesystem::create_symlink(source, target);
    std::filesystem::create_hard_link(source, dir.file("hard"));
    dir.makeDirectory("sub");
    for (const std::string& name :
         {target, dir.file("hard"), dir.file("./source"), dir.file("sub/../source")}) {
        EXPECT_TRUE(BexFile::fileCopy(source.c_str(), name.c_str(), 0)) << name;
        EXPECT_TRUE(BexFile::fileCopy(source.c_str(), name.c_str(), 1)) << name;
    }
    EXPECT_EQ(contentOf(source), "kept");
}

TEST_F(FileCopy, OfNullPathsIsFalse) {
    EXPECT_FALSE(BexFile::fileCopy(nullptr, target.c_str(), 0));
    EXPECT_FALSE(BexFile::fileCopy(source.c_str(), nullptr, 0));
    EXPECT_FALSE(BexFile::fileCopy(nullptr, nullptr, 0));
    EXPECT_FALSE(BexFile::EUCfileCopy(nullptr, nullptr, 0));
}

TEST_F(FileCopy, ToAFullDiskEndsWithFalse) {
    if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no device that is always full";
    writeFile(source, "x");
    EXPECT_FALSE(BexFile::fileCopy(source.c_str(), "/dev/full", 0));
    writeFile(source, std::string(100000, 'x'));
    EXPECT_FALSE(BexFile::fileCopy(source.c_str(), "/dev/full", 0));
}

TEST_F(EucFileCopy, ConvertsToShiftJis) {
    writeFile(source, "ab \xA5\xA2 c\n");
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target), "ab \x83\x41 c\n");
    ASSERT_TRUE(copyEuc(1));
    EXPECT_EQ(contentOf(target), "ab \x83\x41 c\nab \x83\x41 c\n");
}

TEST_F(EucFileCopy, APieceComesOutAsLongAsItWentIn) {
    writeFile(source, "\x8E\xB1\x8E\xB2z");
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target), std::string("\xB1\xB2z\0\0", 5)) << "two kana are two bytes shorter";
    writeFile(source, "\x8E\xB1" + std::string(1022, 'x') + "\x8E\xB2y");
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target), "\xB1" + std::string(1022, 'x') + '\0' + "\xB2y" + '\0')
        << "each piece for itself";
}

TEST_F(EucFileCopy, NulBytesEndNoFile) {
    const std::string content("a\0\xA5\xA2\0\0b\0", 8);
    writeFile(source, content);
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target), std::string("a\0\x83\x41\0\0b\0", 8));
    writeFile(source, std::string(2000, '\0'));
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target), std::string(2000, '\0'));
}

TEST_F(EucFileCopy, APairThatTwoPiecesShareIsNotPutTogether) {
    writeFile(source, std::string(1023, 'x') + "\xA5\xA2");
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target), std::string(1023, 'x') + "\xA5\xA2");
}

TEST_F(EucFileCopy, EveryByteStringPasses) {
    std::string content;
    for (int i = 0; i < 20000; ++i) content += static_cast<char>(i * 7919 >> 5);
    writeFile(source, content);
    ASSERT_TRUE(copyEuc());
    EXPECT_EQ(contentOf(target).size(), content.size());
}

TEST(LangDir, TurnsTheLanguageIntoADirectory) {
    struct Row {
        const char* language;
        const char* result;
    };
    constexpr Row rows[] = {
        {"english", "eng"}, {"en_US", "eng"}, {"en_UK", "eng"},  {"en", "eng"},     {"japanese", "jpn"},
        {"ja_jp", "jpn"},   {"ja", "jpn"},    {"japan", "jpn"},  {"JAPAN", "jpn"},  {"Ja_JP", "jpn"},
        {"korean", "kor"},  {"ko_KR", "kor"}, {"KO_kr", "kor"},  {"ko", "eng"},     {"chinese", "chn"},
        {"zh_CN", "chn"},   {"zh", "eng"},    {"german", "ger"}, {"GERMAN", "ger"}, {"de", "eng"},
        {"fr_FR", "eng"},   {"", "eng"},      {"jap", "eng"},
    };
    const EnvGuard language("YLANG", std::nullopt);
    EXPECT_EQ(BexFile::LangDir(), "eng");
    for (const Row& row : rows) {
        language.set(row.language);
        EXPECT_EQ(BexFile::LangDir(), row.result) << row.language;
    }
}

TEST_F(BexFileTest, EnumFileNamesGivesFullPathsOfAllEntries) {
    writeFile(dir.file("a"), "");
    writeFile(dir.file("_b"), "");
    dir.makeDirectory("log");
    Visits visits;
    EXPECT_TRUE(BexFile::enumFileNames(dir.path().c_str(), Visits::add, &visits));
    EXPECT_THAT(visits.paths, UnorderedElementsAre(dir.file("a"), dir.file("_b"), dir.file("log")));
    Visits again;
    EXPECT_TRUE(BexFile::enumFileNames((dir.path() + "/").c_str(), Visits::add, &again));
    EXPECT_EQ(again.paths, visits.paths) << "no second separator";
}

TEST_F(BexFileTest, EnumFileNamesTakesABackslashAtTheEndForASeparator) {
    writeFile(dir.makeDirectory("sub\\") + "/a", "");
    Visits visits;
    EXPECT_TRUE(BexFile::enumFileNames(dir.file("sub\\").c_str(), Visits::add, &visits));
    EXPECT_EQ(visits.paths, std::vector<std::string>{dir.file("sub\\a")});
}

TEST_F(BexFileTest, InShiftJisEnumFileNamesKnowsTheSecondByte) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    writeFile(dir.makeDirectory("\x83\x5C") + "/a", "");
    Visits visits;
    EXPECT_TRUE(BexFile::enumFileNames(dir.file("\x83\x5C").c_str(), Visits::add, &visits));
    EXPECT_EQ(visits.paths, std::vector<std::string>{dir.file("\x83\x5C/a")});
}

TEST_F(BexFileTest, EnumFileNamesStopsWhenTheCallbackSaysSo) {
    for (const char* name : {"a", "b", "c"}) writeFile(dir.file(name), "");
    Visits visits;
    visits.limit = 2;
    EXPECT_FALSE(BexFile::enumFileNames(dir.path().c_str(), Visits::add, &visits));
    EXPECT_EQ(visits.paths.size(), 2U);
}

TEST_F(BexFileTest, EnumFileNamesOfWhatIsNoDirectory) {
    writeFile(source, "");
    Visits visits;
    EXPECT_FALSE(BexFile::enumFileNames(source.c_str(), Visits::add, &visits));
    EXPECT_FALSE(BexFile::enumFileNames(target.c_str(), Visits::add, &visits));
    EXPECT_FALSE(BexFile::enumFileNames(nullptr, Visits::add, &visits));
    EXPECT_FALSE(BexFile::enumFileNames("", Visits::add, &visits));
    EXPECT_FALSE(BexFile::enumFileNames(dir.path().c_str(), nullptr, nullptr)) << "nobody to tell";
    EXPECT_TRUE(visits.paths.empty());
    EXPECT_TRUE(BexFile::enumFileNames(dir.makeDirectory("empty").c_str(), Visits::add, &visits));
}

TEST(FileNameCmp, ComparesCanonicalSpelling) {
    const EnvGuard variable("BEXA_TEST_DIR", "/dir");
    EXPECT_EQ(BexFile::fileNameCmp("/a/X.CIR/001.SHT", "/a//X.cir/001.sht/"), 0);
    EXPECT_EQ(BexFile::fileNameCmp("$BEXA_TEST_DIR/x", "/dir/x"), 0);
    EXPECT_EQ(BexFile::fileNameCmp("/a/X", "/a/x"), -1) << "other names keep their case";
    EXPECT_EQ(BexFile::fileNameCmp("/z", "/a"), 1);
    EXPECT_EQ(BexFile::fileNameCmp("/\xFF", "/a"), 1) << "bytes are unsigned";
    EXPECT_EQ(BexFile::fileNameCmp(nullptr, ""), 0);
    EXPECT_EQ(BexFile::fileNameCmp(nullptr, "/"), -1);
}
