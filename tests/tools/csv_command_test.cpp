#include "tests/support/files.h"
#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class CsvCommand : public Program {
protected:
    CsvCommand() { set("LANG", "ja_JP.UTF-8"); }
};

TEST_F(CsvCommand, ShowsTheRecordsInColumns) {
    EXPECT_EQ(good({"csv", "parts.csv"}), expected("csv.txt"));
}

TEST_F(CsvCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"csv", "parts.csv"}), Json::parse(expected("csv.json")));
}

TEST_F(CsvCommand, EucIsReadInALocaleOfEuc) {
    good({"text", "convert", "--to", "euc", "parts.csv"});
    unset("LANG");
    set("LC_ALL", "ja_JP.eucJP");
    EXPECT_EQ(json({"csv", "parts.csv"}), Json::parse(expected("csv.json")));
}

TEST_F(CsvCommand, OneRecordCanBeAskedFor) {
    EXPECT_EQ(json({"csv", "parts.csv", "--line", "1"})["records"],
              Json::parse(R"([{"number": 1, "items": ["R1", "抵抗", "10k", "金属皮膜, 1%"]}])"));
    EXPECT_EQ(json({"csv", "parts.csv", "--line", "3"})["records"], Json::array())
        << "an empty line has a number";
}

TEST_F(CsvCommand, ARecordThatIsNotThereIsAFinding) {
    const Outcome result = run({"csv", "parts.csv", "--line", "6"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "bexa: there is no record 6: parts.csv: give a number from 0 to 5\n");
    writeFile(file("empty.csv"), "");
    EXPECT_EQ(run({"csv", "empty.csv", "--line", "0"}).err,
              "bexa: there is no record 0: empty.csv: the file has no records\n");
}

TEST_F(CsvCommand, MalformedRecordsAreFindingsBesideTheOthers) {
    const Outcome result = run({"csv", "faulty/parts.csv"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("csv_faulty.txt"));
    const std::string remedy =
        ": faulty/parts.csv: put an item with a quote in it into quotes, and each quote twice\n";
    EXPECT_EQ(result.err,
              "bexa: record 1 is malformed" + remedy + "bexa: record 2 is malformed" + remedy +
                  "bexa: the quote in record 3 is still open at the end: faulty/parts.csv: close it; the "
                  "record is left out\n");
    EXPECT_EQ(json({"csv", "faulty/parts.csv"})["records"][1],
              Json::parse(R"({"number": 1, "items": null})"));
}

TEST_F(CsvCommand, ASecondByteIsNoQuote) {
    // Outside a Japanese locale each byte would count; 0x81 in front of a quote takes it along.
    writeFile(file("t.csv"), "a,\x81\"b\n");
    EXPECT_EQ(run({"csv", "t.csv"}).err.find("still open"), std::string::npos);
}

TEST_F(CsvCommand, ALeadByteAtALineEndTakesNothingAlong) {
    writeFile(file("t.csv"), "a,\x92\n\"b\",c\n");
    EXPECT_EQ(run({"csv", "t.csv"}).code, 0);
    EXPECT_EQ(json({"csv", "t.csv"})["records"][1]["items"], Json::parse(R"(["b", "c"])"));
}

TEST_F(CsvCommand, JapaneseTextOutsideAJapaneseLocaleIsAFinding) {
    set("LANG", "C.UTF-8");
    const Outcome result = run({"csv", "parts.csv"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err,
              "bexa: Japanese text is not read whole in this locale: parts.csv:1:1: run with LC_ALL=ja_JP "
              "for Shift-JIS, LC_ALL=ja_JP.eucJP for EUC\n");
    EXPECT_NE(result.out.find("4.7k"), std::string::npos);
    writeFile(file("plain.csv"), "a,b\n");
    EXPECT_EQ(good({"csv", "plain.csv"}), "file  plain.csv\n\nrecords\n  record  1  2\n       0  a  b\n");
}

TEST_F(CsvCommand, RecordsMayHaveAnyNumberOfItems) {
    writeFile(file("t.csv"), "a\nb,,\n\"\"\n");
    EXPECT_EQ(good({"csv", "t.csv"}), "file  t.csv\n\nrecords\n  record  1   2   3\n       0  a   -   -\n"
                                      "       1  b   \"\"  \"\"\n       2  \"\"  -   -\n");
}

TEST_F(CsvCommand, AFileThatCannotBeReadIsTold) {
    for (const char* path : {"nowhere.csv", "library"}) {
        const Outcome result = run({"csv", path});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.err, "bexa: the file cannot be read: " + std::string(path) +
                                  ": check the path, and that it is a plain file which you may read\n");
    }
    EXPECT_EQ(run({"csv", "parts.csv", "--line", "-1"}).code, 2);
    EXPECT_EQ(run({"csv", "parts.csv", "--line", "99999999999"}).code, 2);
}

} // namespace
} // namespace bexa::test
