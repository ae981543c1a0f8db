#include "bexa/foundation/csv_input.h"

#include "tests/support/files.h"
#include "tests/support/fresh_process.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace bexa::test;
using namespace std::string_literals;

namespace {

using Items = std::vector<std::string>;
using Records = std::vector<std::pair<int, std::string>>;

struct Closer {
    void operator()(BexCsvInput* input) const { BexCsvInput::Close(input); }
};
using Input = std::unique_ptr<BexCsvInput, Closer>;

class ItemCollector : public BexCsvItemReader {
public:
    unsigned long ReadItem(const char* item) override {
        items.emplace_back(item);
        return items.size() != stopAfter;
    }
    Items items;
    std::size_t stopAfter = 0;
};

class RecordCollector : public BexCsvLineReader {
public:
    unsigned long ReadLine(const BexCsvLine& line, int lineNumber) override {
        records.emplace_back(lineNumber, std::string(line.GetString().view()));
        return records.size() != stopAfter;
    }
    Records records;
    std::size_t stopAfter = 0;
};

class CsvFile : public testing::Test {
protected:
    Input open(std::string_view content) {
        writeFile(path, content);
        return Input(BexCsvInput::Open(path.c_str()));
    }
    Records recordsOf(std::string_view content) {
        RecordCollector collector;
        EXPECT_EQ(open(content)->Read(&collector), 1UL);
        return collector.records;
    }

    TempDir dir;
    const std::string path = dir.file("parts.csv");
};

Items itemsOf(const YString_Array& items) {
    Items result;
    for (int i = 0; i < items.size(); ++i) result.emplace_back(items.at(i).view());
    return result;
}

} // namespace

TEST(CsvLine, SplitsAtCommasAndKeepsBlanks) {
    const struct {
        const char* record;
        Items items;
    } rows[] = {
        {"a,b", {"a", "b"}},
        {"a", {"a"}},
        {" a , b ", {" a ", " b "}},
        {"a,", {"a", ""}},
        {",", {"", ""}},
        {"", {}},
        {"\n", {}},
        {"\r\nx", {}},
        {"\rx", {""}},
        {"a\nb", {"a"}},
        {"a,b\rc", {"a", "b"}},
        {"\"a,b\",c", {"a,b", "c"}},
        {"\"x\"\"y\"", {"x\"y"}},
        {"\"\"", {""}},
        {"\"\",", {"", ""}},
        {"\"\"\"\"", {"\""}},
        {"\"a\nb\r\",c", {"a\nb\r", "c"}},
        {"\"a\"\nb", {"a"}},
        {"\"open", {"open"}},
        {"\"open\"\"", {"open\""}},
        {"\"", {""}},
    };
    for (const auto& row : rows) {
        ItemCollector collector;
        EXPECT_EQ(BexCsvLine(row.record).Read(&collector, 0), 1UL) << row.record;
        EXPECT_EQ(collector.items, row.items) << row.record;
    }
}

TEST(CsvLine, MalformedRecordHandsNothingOn) {
    for (const char* record : {"a\"b", "a,b\"", " \"a\"", "\"a\"b", "\"a\" ,b", "a,\"b\"c", "x,\"\"y\""}) {
        ItemCollector collector;
        EXPECT_EQ(BexCsvLine(record).Read(&collector, 0), 0UL) << record;
        EXPECT_TRUE(collector.items.empty()) << record;
    }
}

TEST(CsvLine, ReaderStopsTheReading) {
    ItemCollector collector;
    collector.stopAfter = 2;
    EXPECT_EQ(BexCsvLine("a,b,c").Read(&collector, 0), 0UL);
    EXPECT_EQ(collector.items, (Items{"a", "b"}));
    EXPECT_EQ(BexCsvLine("a").Read(nullptr, 0), 0UL);
    EXPECT_STREQ(BexCsvLine(nullptr).GetString(), "");
}

TEST(CsvLine, SplittingLooksAtBytesAlone) {
    // 0x83 0x2C is no double-byte character, and splitting doesn't ask.
    ItemCollector collector;
    BexCsvLine("\x83,\x83").Read(&collector, 0);
    EXPECT_EQ(collector.items, (Items{"\x83", "\x83"}));
}

TEST_F(CsvFile, EmptyLineTakesANumber) {
    EXPECT_EQ(open("a,b\n\nc\n")->HowManyLines(), 3);
    EXPECT_EQ(recordsOf("a,b\n\nc"), (Records{{0, "a,b"}, {2, "c"}}));
}

TEST_F(CsvFile, QuotedLineBreakJoinsLines) {
    EXPECT_EQ(recordsOf("a,\"b\r\nc\"\r\nd\r\n"), (Records{{0, "a,\"b\nc\""}, {1, "d"}}));
    EXPECT_EQ(recordsOf("\"\n\n\"\n"), (Records{{0, "\"\n\n\""}}));
}

TEST_F(CsvFile, OpenQuoteAtTheEndIsDropped) {
    EXPECT_EQ(recordsOf("a\n\"b\nc\n"), (Records{{0, "a"}}));
    EXPECT_EQ(open("a\n\"b\nc\n")->HowManyLines(), 1);
}

TEST_F(CsvFile, ControlCharactersVanishAndTabsStay) {
    EXPECT_EQ(recordsOf("a\x01\x02\tb\x1F\x7F\n"), (Records{{0, "a\tb"}}));
    EXPECT_EQ(recordsOf("\x01\n"), Records{});
}

TEST_F(CsvFile, NulByteVanishesLikeAnyControlCharacter) {
    EXPECT_EQ(recordsOf("a\0,b\0\nc\n"s), (Records{{0, "a,b"}, {1, "c"}}));
}

TEST_F(CsvFile, LinesLongerThanAnyBuffer) {
    const std::string item(100000, 'x');
    EXPECT_EQ(recordsOf("\"" + item + "\n" + item + "\",b\n"),
              (Records{{0, "\"" + item + "\n" + item + "\",b"}}));
    YString_Array items;
    EXPECT_EQ(open(item + "," + item)->ReadSelectedLine(items, 0), 1UL);
    EXPECT_EQ(itemsOf(items), (Items{item, item}));
}

TEST_F(CsvFile, SelectsARecordByItsNumber) {
    const Input input = open("a,b\n\n\"c\nd\",e\nx\"\n");
    YString_Array items;
    EXPECT_EQ(input->ReadSelectedLine(items, 2), 1UL);
    EXPECT_EQ(itemsOf(items), (Items{"c\nd", "e"}));
    for (const int missing : {1, 4, 5, -1})
        EXPECT_EQ(input->ReadSelectedLine(items, missing), 0UL) << missing;
    EXPECT_EQ(itemsOf(items), (Items{"c\nd", "e"})) << "a record that isn't there leaves the items alone";
    EXPECT_EQ(input->ReadSelectedLine(items, 3), 0UL) << "malformed";
}

TEST_F(CsvFile, MalformedRecordDoesNotStopTheWalk) {
    EXPECT_EQ(recordsOf("x\"\"y\nb\n"), (Records{{0, "x\"\"y"}, {1, "b"}}));
}

TEST_F(CsvFile, ReaderStopsTheWalk) {
    RecordCollector collector;
    collector.stopAfter = 1;
    const Input input = open("a\nb\n");
    EXPECT_EQ(input->Read(&collector), 0UL);
    EXPECT_EQ(collector.records.size(), 1U);
    EXPECT_EQ(input->Read(nullptr), 0UL);
}

TEST_F(CsvFile, FileThatCannotBeReadShowsLater) {
    for (const char* unreadable : {"/nonexistent/parts.csv", "/", static_cast<const char*>(nullptr)}) {
        const Input input(BexCsvInput::Open(unreadable));
        ASSERT_NE(input, nullptr);
        EXPECT_STREQ(input->GetFilename(), unreadable ? unreadable : "");
        RecordCollector collector;
        YString_Array items;
        EXPECT_EQ(input->HowManyLines(), 0);
        EXPECT_EQ(input->Read(&collector), 0UL);
        EXPECT_EQ(input->ReadSelectedLine(items, 0), 0UL);
    }
    EXPECT_EQ(BexCsvInput::Close(nullptr), 1UL);
}

TEST_F(CsvFile, EmptyFileIsReadToItsEnd) {
    EXPECT_EQ(recordsOf(""), Records{});
    EXPECT_EQ(open("")->HowManyLines(), 0);
}

TEST_F(CsvFile, SecondByteOfADoubleByteCharacterIsNoQuote) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    // 0x83 and 0x22 are no character of the coding, but the walk takes any byte behind a lead byte.
    EXPECT_EQ(recordsOf("\x83\"a\nb\n"), (Records{{0, "\x83\"a"}, {1, "b"}}));
    EXPECT_EQ(recordsOf("\x83\x01,\x8F\x5C\n"), (Records{{0, "\x83\x01,\x8F\x5C"}}));
}

TEST_F(CsvFile, LeadByteThatEndsTheLineIsDropped) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    EXPECT_EQ(recordsOf("a\x83\nb\n"), (Records{{0, "a"}, {1, "b"}}));
}

TEST_F(CsvFile, DoubleByteCharactersOfAnEucProcess) {
    if (!startedInLocale("ja_JP.eucJP")) return;
    EXPECT_EQ(recordsOf("\xB0\xA1,\x8E\xB1\n"), (Records{{0, "\xB0\xA1,\x8E\xB1"}}));
    // Outside the coding of the process a byte from 127 to 159 vanishes alone.
    EXPECT_EQ(recordsOf("\x83\"\n\"\n"), (Records{{0, "\"\n\""}}));
}

TEST_F(CsvFile, NoByteLeadsInAnEnglishProcess) {
    if (!startedInLocale("C")) return;
    EXPECT_EQ(recordsOf("\x83x,\xE0\x01y\n"), (Records{{0, "x,\xE0y"}}));
}
