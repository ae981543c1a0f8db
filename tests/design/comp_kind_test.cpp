#include "bexa/design/comp_kind.h"
#include "tests/support/child.h"
#include "tests/support/env_guard.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using namespace bexa::test;

namespace {

static_assert(!std::is_copy_constructible_v<BexCompKind>);
static_assert(!std::is_copy_constructible_v<BexCompKindRec>);

// Closes without saving when it goes.
class Kinds {
public:
    Kinds(const std::string& path, BexOpenMode mode) : kinds_(BexCompKind::open(path.c_str(), mode)) {}
    ~Kinds() { BexCompKind::close(kinds_, BexCloseDiscard); }
    Kinds(const Kinds&) = delete;
    Kinds& operator=(const Kinds&) = delete;
    BexCompKind* operator->() const { return kinds_; }
    explicit operator bool() const { return kinds_ != nullptr; }

private:
    BexCompKind* kinds_;
};

// The records in one line: "3 R resistor; 1 U circuit;"
std::string recordsOf(const Kinds& kinds) {
    std::string text;
    for (const BexCompKindRec* record = kinds->first(); record; record = record->next()) {
        text += std::to_string(record->type()) + " " + record->refHeader() + " " + record->comment() + ";";
    }
    return text;
}

std::string headersOf(const Kinds& kinds) {
    return std::string(kinds->netHeader()) + " " + kinds->busHeader() + " " + kinds->defaultBlockRefHeader() +
           " " + kinds->defaultSymbRefHeader();
}

class CompKind : public testing::Test {
protected:
    std::string written(const std::string& content) const {
        writeFile(path_, content);
        return path_;
    }
    bool loads(const std::string& content) const {
        return static_cast<bool>(Kinds(written(content), BexOpenRead));
    }

    TempDir dir_;
    EnvGuard locale_{"LC_ALL", "C"};
    std::string path_ = dir_.file("kinds");
};

TEST_F(CompKind, HasDefaults) {
    const Kinds kinds(written(""), BexOpenRead);
    ASSERT_TRUE(kinds);
    EXPECT_EQ(headersOf(kinds), "SIG BUS X SY");
    EXPECT_EQ(kinds->count(), 0u);
    EXPECT_EQ(kinds->first(), nullptr);
    EXPECT_EQ(kinds->last(), nullptr);
    EXPECT_EQ(kinds->fileName(), path_);
    EXPECT_EQ(kinds->openMode(), BexOpenRead);
}

TEST_F(CompKind, FreshObjectIsWrittenWithoutAHeader) {
    EXPECT_EQ(BexCompKind::close(BexCompKind::open(path_.c_str(), BexOpenCreate), BexCloseSave), 1UL);
    EXPECT_EQ(contentOf(path_), contentOf(testData("comp_kind/fresh.rsc")));
    const Kinds kinds(path_, BexOpenRead);
    ASSERT_TRUE(kinds);
    EXPECT_EQ(headersOf(kinds), "SIG BUS X SY");
    EXPECT_EQ(recordsOf(kinds), "");
}

TEST_F(CompKind, ReadsAndWritesItsFile) {
    const std::string content = contentOf(testData("comp_kind/kinds.rsc"));
    const Kinds kinds(written(content), BexOpenUpdate);
    ASSERT_TRUE(kinds);
    EXPECT_EQ(headersOf(kinds), "N B BLK SYM");
    EXPECT_EQ(recordsOf(kinds), "3 R resistor;1 U integrated circuit;7 C \x83\x5C\x83\x7B\x83\x7D;");
    EXPECT_EQ(kinds->count(), 3u);
    EXPECT_EQ(kinds->last()->type(), 7u);
    EXPECT_EQ(kinds->saveAs(dir_.file("copy").c_str(), BexSaveNew), 1UL);
    EXPECT_EQ(contentOf(dir_.file("copy")), content);
}

TEST_F(CompKind, SpellsItsReferenceHeadersWithASmallH) {
    EXPECT_NE(
        contentOf(testData("comp_kind/fresh.rsc")).find("\ndBlockRefheader : X\ndSymbolRefheader : SY\n"),
        std::string::npos);
    EXPECT_FALSE(Kinds(written("dBlockRefHeader : X\n"), BexOpenRead));
}

TEST_F(CompKind, ReadsKeysInAnyOrder) {
    const Kinds kinds(written("# comment\nComponentKind 3 { 1 \"c\" \"U\" }\n"
                              "dSymbolRefheader : \"a b\" # quoted\nsNetNameHeader:N\n"),
                      BexOpenRead);
    ASSERT_TRUE(kinds);
    EXPECT_EQ(headersOf(kinds), "N BUS X a b");
    EXPECT_EQ(recordsOf(kinds), "1 U c;");
}

TEST_F(CompKind, RefusesABreachOfTheFormat) {
    const char* good = "ComponentKind 3 {\n\t1\t\t\"c\"\t\"U\"\n}\n";
    EXPECT_TRUE(loads(good));
    for (const char* content : {"ComponentKind 2 {\n\t1\t\t\"c\"\t\"U\"\n}\n",
                                "ComponentKind {\n\t1\t\"c\"\t\"U\"\n}\n",
                                "ComponentKind 3\n\t1\t\"c\"\t\"U\"\n}\n",
                                "ComponentKind 3 {\n\t-1\t\"c\"\t\"U\"\n}\n",
                                "ComponentKind 3 {\n\t1\t\"c\"\n}\n",
                                "ComponentKind 3 {\n\t1\n}\n",
                                "ComponentKind 3 {\n",
                                "ComponentKind 3 {\n\t1\t\"c\"\t\"U\"\n",
                                "ComponentKind 3 {\n\t1\t\"c\"\t\"U\n}\n",
                                "ComponentKind 3 { } }\n",
                                "ComponentKind 3 { { }\n",
                                "ComponentKind",
                                "ComponentKind : 3\n",
                                "componentKind 3 { }\n",
                                "sNetNameHeader\n",
                                "sNetNameHeader :",
                                "sNetNameHeader 3 { }\n",
                                "sNetNameHeader : a b\n",
                                "sNetNameHeader : \"a\n",
                                "snetNameHeader : a\n",
                                "unknown : a\n",
                                "\"a\"\n",
                                ": a\n",
                                "}\n"}) {
        EXPECT_FALSE(loads(content)) << content;
    }
    EXPECT_FALSE(loads(std::string(good) + '\0'));
}

TEST_F(CompKind, FailedLoadLeavesTheFileAsItWas) {
    EXPECT_EQ(BexCompKind::open(written("unknown : a\n").c_str(), BexOpenUpdate), nullptr);
    EXPECT_EQ(contentOf(path_), "unknown : a\n");
}

TEST_F(CompKind, ReadsAWordInsteadOfANumberAsZero) {
    EXPECT_EQ(recordsOf(Kinds(written("ComponentKind 3 { x c U }"), BexOpenRead)), "0 U c;");
}

TEST_F(CompKind, CutsCellsToTheirRoom) {
    const std::string comment = std::string(254, 'c') + "\x83\x5C" + "rest";
    const Kinds kinds(
        written("ComponentKind 3 { 12345678999 \"" + comment + "\" \"" + std::string(300, 'U') + "\" }"),
        BexOpenRead);
    ASSERT_TRUE(kinds);
    EXPECT_EQ(kinds->first()->type(), 123456789u);
    EXPECT_EQ(kinds->first()->comment(), std::string(254, 'c')) << "no half character";
    EXPECT_EQ(kinds->first()->refHeader(), std::string(255, 'U'));
}

TEST_F(CompKind, ConvertsItsTextsToTheCodingOfTheProcess) {
    const EnvGuard euc("LC_ALL", "ja_JP.eucJP");
    const std::string content = "# japanese_coding:sjis\n" + contentOf(testData("comp_kind/kinds.rsc"));
    EXPECT_STREQ(Kinds(written(content), BexOpenRead)->last()->comment(), "\xA5\xBD\xA5\xDC\xA5\xDE");
}

TEST_F(CompKind, SecondTextsOfANumberComeExchanged) {
    const Kinds kinds(written("ComponentKind 3 {\n\t1\t\t\"comment\"\t\"U\"\n\t1\t\t\"other\"\t\"V\"\n}\n"),
                      BexOpenRead);
    ASSERT_TRUE(kinds);
    EXPECT_EQ(kinds->count(), 1u);
    EXPECT_EQ(recordsOf(kinds), "1 other V;");
}

TEST_F(CompKind, AddsAndUpdatesKinds) {
    const Kinds kinds(path_, BexOpenCreate);
    EXPECT_EQ(kinds->compKind(5), nullptr);
    EXPECT_EQ(kinds->compKind(5, "R", "resistor"), 1UL);
    EXPECT_EQ(kinds->compKind(2, "C", "capacitor"), 1UL);
    EXPECT_EQ(recordsOf(kinds), "5 R resistor;2 C capacitor;") << "in order of insertion";
    EXPECT_EQ(kinds->compKind(5, "comment", "header"), 1UL);
    EXPECT_EQ(recordsOf(kinds), "5 header comment;2 C capacitor;");
    EXPECT_EQ(kinds->compKind(2), kinds->last());
    EXPECT_EQ(kinds->count(), 2u);
}

TEST_F(CompKind, GivesTheReferenceHeaderOfAKind) {
    const Kinds kinds(path_, BexOpenCreate);
    kinds->compKind(7, "U", "circuit");
    EXPECT_STREQ(kinds->refHeader(7, 0), "U");
    EXPECT_STREQ(kinds->refHeader(7, 1), "U");
    EXPECT_STREQ(kinds->refHeader(8, 0), "SY");
    EXPECT_STREQ(kinds->refHeader(8, 1), "X");
    EXPECT_STREQ(kinds->refHeader(8, 2), "X");
}

TEST_F(CompKind, FindsARecordByTheNumberItWasGiven) {
    const Kinds kinds(path_, BexOpenCreate);
    kinds->compKind(1, "A", "a");
    kinds->compKind(2, "B", "b");
    kinds->compKind(1)->type(2);
    EXPECT_EQ(kinds->compKind(1), nullptr);
    EXPECT_EQ(kinds->compKind(2), kinds->first()) << "the first of two";
    kinds->compKind(3, "C", "c");
    EXPECT_STREQ(kinds->refHeader(3, 0), "C");
}

TEST_F(CompKind, CopiesTheTextsItIsGiven) {
    const Kinds kinds(path_, BexOpenCreate);
    char text[] = "N";
    EXPECT_EQ(kinds->netHeader(text), 1UL);
    EXPECT_EQ(kinds->busHeader("B"), 1UL);
    EXPECT_EQ(kinds->defaultBlockRefHeader("BLK"), 1UL);
    EXPECT_EQ(kinds->defaultSymbRefHeader("SYM"), 1UL);
    text[0] = '?';
    EXPECT_EQ(headersOf(kinds), "N B BLK SYM");
    EXPECT_EQ(kinds->netHeader(nullptr), 0UL);
    EXPECT_EQ(kinds->netHeader(kinds->busHeader()), 1UL) << "a text of its own";
    EXPECT_EQ(headersOf(kinds), "B B BLK SYM") << "null keeps the old text";
}

TEST(CompKindRec, HoldsItsTexts) {
    BexCompKindRec record(3, "R", "resistor");
    EXPECT_EQ(record.type(), 3u);
    EXPECT_STREQ(record.refHeader(), "R");
    EXPECT_STREQ(record.comment(), "resistor");
    EXPECT_EQ(record.next(), nullptr);
    EXPECT_EQ(record.type(4), 1UL);
    EXPECT_EQ(record.refHeader("S"), 1UL);
    EXPECT_EQ(record.comment(nullptr), 0UL);
    EXPECT_EQ(record.type(), 4u);
    EXPECT_STREQ(record.refHeader(), "S");
    EXPECT_STREQ(record.comment(), "resistor");
}

TEST_F(CompKind, OpensByTheStateOfTheFile) {
    EXPECT_FALSE(Kinds(path_, BexOpenRead));
    EXPECT_FALSE(Kinds(path_, BexOpenUpdate));
    EXPECT_TRUE(Kinds(path_, BexOpenCreate));
    EXPECT_TRUE(Kinds("", BexOpenCreate)) << "no test of the path itself";
    EXPECT_FALSE(Kinds(dir_.path(), BexOpenRead)) << "a directory can't be read";
    written("");
    EXPECT_FALSE(Kinds(path_, BexOpenCreate));
    EXPECT_TRUE(Kinds(path_, BexOpenUpdate));
    EXPECT_EQ(BexCompKind::open(nullptr, BexOpenRead), nullptr);
}

TEST_F(CompKind, SavesByItsMode) {
    const Kinds created(path_, BexOpenCreate);
    EXPECT_EQ(created->save(), 1UL);
    EXPECT_EQ(created->save(), 0UL) << "the file is there now";
    const Kinds updated(path_, BexOpenUpdate);
    updated->netHeader("N");
    EXPECT_EQ(updated->save(), 1UL);
    EXPECT_EQ(updated->save(), 1UL);
    const Kinds read(path_, BexOpenRead);
    EXPECT_STREQ(read->netHeader(), "N");
    EXPECT_EQ(read->save(), 0UL);
    EXPECT_EQ(read->saveAs(path_.c_str(), BexSaveNew), 0UL);
    EXPECT_EQ(read->saveAs(dir_.file("other").c_str(), BexSaveOverwrite), 0UL);
    EXPECT_EQ(read->saveAs(dir_.file("other").c_str(), BexSaveAny), 1UL);
    EXPECT_EQ(read->saveAs(dir_.file("none/other").c_str(), BexSaveAny), 0UL);
    EXPECT_EQ(read->fileName(), path_);
    EXPECT_EQ(read->openMode(), BexOpenRead);
}

TEST_F(CompKind, ClosesByTheModeOfClosing) {
    written("");
    BexCompKind* read = BexCompKind::open(path_.c_str(), BexOpenRead);
    EXPECT_EQ(BexCompKind::close(read, BexCloseSave), 0UL);
    EXPECT_STREQ(read->netHeader(), "SIG") << "still usable";
    EXPECT_EQ(BexCompKind::close(read, BexCloseAuto), 1UL);
    EXPECT_EQ(contentOf(path_), "") << "nothing written";
    EXPECT_EQ(BexCompKind::close(BexCompKind::open(path_.c_str(), BexOpenUpdate), BexCloseDiscard), 1UL);
    EXPECT_EQ(contentOf(path_), "");
    EXPECT_EQ(BexCompKind::close(BexCompKind::open(path_.c_str(), BexOpenUpdate), BexCloseAuto), 1UL);
    EXPECT_EQ(contentOf(path_), contentOf(testData("comp_kind/fresh.rsc")));
    EXPECT_EQ(BexCompKind::close(nullptr, BexCloseDiscard), 1UL);
    EXPECT_EQ(BexCompKind::close(nullptr, BexCloseAuto), 0UL);
}

TEST_F(CompKind, HoldsManyKinds) {
    const Kinds kinds(path_, BexOpenCreate);
    for (unsigned type = 0; type < 100'000; ++type) kinds->compKind(type, "U", "c");
    EXPECT_EQ(kinds->count(), 100'000u);
    EXPECT_EQ(kinds->save(), 1UL);
    const Kinds again(path_, BexOpenRead);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->count(), 100'000u);
    EXPECT_EQ(again->compKind(99'999), again->last());
}

} // namespace
