#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <sys/stat.h>

#include <filesystem>

namespace bexa::test {
namespace {

class TextCheck : public Program {};

struct Row {
    std::string content;
    const char* result;
    int line; // 0: null
    int column;
    const char* message; // behind "bexa: "
};

constexpr const char* badByte = "a byte that is not allowed";

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

TEST_F(TextCheck, TellsWhatIsWrongAndWhere) {
    const std::string remedy =
        ": write it as a character of two bytes, half-width kana too; if this is EUC, see bexa "
        "text convert\n";
    const Row rows[] = {
        {"", "good", 0, 0, ""},
        {"plain\ttext\r\n\x0C", "good", 0, 0, ""},
        {"\x92\xEF\x8D\x52\n", "good", 0, 0, ""},
        {"a\n\x01\n", badByte, 2, 1, "the byte 0x01 cannot stand in Shift-JIS text: t.txt:2:1"},
        {std::string("a\0b\n", 4), badByte, 1, 2, "the byte 0x00 cannot stand in Shift-JIS text: t.txt:1:2"},
        {"\x92\xEF\n\n\x92\xEF \xB1x\n", badByte, 3, 4,
         "the bytes 0xb1 0x78 cannot stand in Shift-JIS text: t.txt:3:4"}, // half-width kana
        {"\x81\x7F", badByte, 1, 1, "the bytes 0x81 0x7f cannot stand in Shift-JIS text: t.txt:1:1"},
        {"ab\x92\n", badByte, 1, 3, "the byte 0x92 cannot stand in Shift-JIS text: t.txt:1:3"}, // half a pair
        {"ab\x92", badByte, 1, 3, "the byte 0x92 cannot stand in Shift-JIS text: t.txt:1:3"},
    };
    for (const Row& row : rows) {
        writeFile(file("t.txt"), row.content);
        const Outcome result = run({"text", "check", "t.txt", "--json"});
        const Json shown = Json::parse(result.out)["files"][0];
        EXPECT_EQ(result.code, row.line > 0 ? 1 : 0) << row.message;
        EXPECT_EQ(shown["result"], row.result) << row.message;
        EXPECT_EQ(shown["line"], row.line > 0 ? Json(row.line) : Json()) << row.message;
        EXPECT_EQ(shown["column"], row.column > 0 ? Json(row.column) : Json()) << row.message;
        EXPECT_EQ(result.err, row.line > 0 ? "bexa: " + std::string(row.message) + remedy : "");
    }
}

TEST_F(TextCheck, LongLinesAndTooManyLinesHaveNoColumn) {
    writeFile(file("long.txt"), "a\n" + std::string(1023, 'x') + "\n");
    writeFile(file("last.txt"), std::string(1023, 'x')); // as long without its line feed
    writeFile(file("many.txt"), repeated("a\n\n", 2001));
    writeFile(file("most.txt"), std::string(1022, 'x') + '\n' + repeated("a\n", 1998));
    const Outcome result = run({"text", "check", "long.txt", "last.txt", "many.txt", "most.txt"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("text_check.txt"));
    EXPECT_EQ(result.err, "bexa: a line of more than 1023 bytes: long.txt:2: break the line\n"
                          "bexa: a line of more than 1023 bytes: last.txt:1: break the line\n"
                          "bexa: 2000 lines with text or more: many.txt:3999: divide the file\n");
}

TEST_F(TextCheck, AFileThatCannotBeReadDoesNotStopTheOthers) {
    const Outcome result = run({"text", "check", "nowhere.txt", "library", "notes.txt", "--json"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the file cannot be read: nowhere.txt: check the path, and that it is a plain file "
              "which you may read\n"
              "bexa: the file cannot be read: library: check the path, and that it is a plain file which "
              "you may read\n");
    const Json files = Json::parse(result.out)["files"];
    EXPECT_EQ(files[0]["result"], "cannot be read");
    EXPECT_EQ(files[2]["result"], "good");
}

class TextConvert : public Program {
protected:
    // What the file holds after a conversion in its place.
    std::string converted(const std::string& content, const std::string& to) const {
        writeFile(file("t.txt"), content);
        good({"text", "convert", "--to", to, "t.txt"});
        return contentOf(file("t.txt"));
    }
};

struct Pair {
    std::string sjis;
    std::string euc;
};

TEST_F(TextConvert, GoesBothWays) {
    const Pair pairs[] = {
        {"", ""},
        {"plain\r\n\ttext\n\n", "plain\r\n\ttext\n\n"},
        {"\x92\xEF\x8D\x52\n", "\xC4\xF1\xB9\xB3\n"},
        {"\xBD\xB2\xAF\xC1", "\x8E\xBD\x8E\xB2\x8E\xAF\x8E\xC1"}, // half-width kana double
        {"\x95\x5C|\n\x81\x40", "\xC9\xBD|\n\xA1\xA1"},           // a second byte that looks like a backslash
        {repeated("\x92\xEF\x8D\x52\n", 3000), repeated("\xC4\xF1\xB9\xB3\n", 3000)},
    };
    for (const Pair& pair : pairs) {
        EXPECT_EQ(converted(pair.sjis, "euc"), pair.euc);
        EXPECT_EQ(converted(pair.euc, "sjis"), pair.sjis);
    }
}

TEST_F(TextConvert, TellsWhatItDid) {
    EXPECT_EQ(good({"text", "convert", "--to", "euc", "notes.txt", "-o", "notes.euc"}),
              expected("text_convert.txt"));
    EXPECT_EQ(json({"text", "convert", "--to", "sjis", "notes.euc"}),
              Json::parse(R"({"file": "notes.euc", "output": "notes.euc", "from": "euc", "to": "sjis",
                  "bytes": 68, "changed": true})"));
    EXPECT_EQ(contentOf(file("notes.euc")), contentOf(file("notes.txt")));
}

struct Fault {
    std::string content;
    const char* to;
    const char* message; // between "bexa: " and the remedy
};

TEST_F(TextConvert, ATextThatCannotBeConvertedWholeStaysAsItIs) {
    const Fault faults[] = {
        {"good\nab\x92\n", "euc", "the byte 0x92 cannot be converted from Shift-JIS to EUC: t.txt:2:3"},
        {"\x92\xEF\xFD\xFD", "euc",
         "the bytes 0xfd 0xfd cannot be converted from Shift-JIS to EUC: t.txt:1:3"},
        {"\xF0\x40", "euc", "the bytes 0xf0 0x40 cannot be converted from Shift-JIS to EUC: t.txt:1:1"},
        {std::string("a\n\0b", 4), "euc",
         "the byte 0x00 cannot be converted from Shift-JIS to EUC: t.txt:2:1"},
        {"\xC4\xF1\x8F\xA2\xAF", "sjis",
         "the bytes 0x8f 0xa2 cannot be converted from EUC to Shift-JIS: t.txt:1:3"},
        {"a\x8E", "sjis", "the byte 0x8e cannot be converted from EUC to Shift-JIS: t.txt:1:2"},
        {"\x8E\n", "sjis", "the byte 0x8e cannot be converted from EUC to Shift-JIS: t.txt:1:1"},
        // Half-width kana mark in front of something else: it could never come back.
        {"\x8E\x41", "sjis", "the bytes 0x8e 0x41 cannot be converted from EUC to Shift-JIS: t.txt:1:1"},
    };
    for (const Fault& fault : faults) {
        writeFile(file("t.txt"), fault.content);
        const auto before = listOf(file(""));
        for (const bool elsewhere : {false, true}) {
            std::vector<std::string> arguments{"text", "convert", "--to", fault.to, "t.txt"};
            if (elsewhere) arguments.insert(arguments.end(), {"-o", "other.txt"});
            const Outcome result = run(arguments);
            EXPECT_EQ(result.code, 1) << fault.message;
            EXPECT_EQ(result.out, "");
            const std::string from = fault.to == std::string("euc") ? "Shift-JIS" : "EUC";
            EXPECT_EQ(result.err, "bexa: " + std::string(fault.message) +
                                      ": correct the text, or check that it is " + from +
                                      "; nothing was written\n");
            EXPECT_EQ(contentOf(file("t.txt")), fault.content);
            EXPECT_EQ(listOf(file("")), before);
        }
    }
}

TEST_F(TextConvert, AnotherFileIsNeverOverwritten) {
    const std::string before = contentOf(file("README.md"));
    const Outcome result = run({"text", "convert", "--to", "euc", "notes.txt", "-o", "README.md"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: something stands there already: README.md: remove it, or give another file with -o\n");
    EXPECT_EQ(contentOf(file("README.md")), before);

    std::filesystem::create_symlink("nowhere", file("link"));
    EXPECT_EQ(run({"text", "convert", "--to", "euc", "notes.txt", "-o", "link"}).code, 2);
    EXPECT_EQ(run({"text", "convert", "--to", "euc", "notes.txt", "-o", "library"}).code, 2);
}

TEST_F(TextConvert, TheInputCanBeNamedAsTheOutput) {
    const std::string before = contentOf(file("notes.txt"));
    good({"text", "convert", "--to", "euc", "notes.txt", "-o", "./library/../notes.txt"});
    EXPECT_NE(contentOf(file("notes.txt")), before);
}

TEST_F(TextConvert, RightsAndLinksStayAsTheyWere) {
    std::filesystem::rename(file("notes.txt"), file("library/notes.txt"));
    std::filesystem::create_symlink("library/notes.txt", file("notes.txt"));
    setMode(file("library/notes.txt"), 0640);
    good({"text", "convert", "--to", "euc", "notes.txt"});
    EXPECT_TRUE(std::filesystem::is_symlink(file("notes.txt")));
    EXPECT_EQ(std::filesystem::status(file("library/notes.txt")).permissions(), std::filesystem::perms(0640));
    EXPECT_EQ(run({"text", "check", "library/notes.txt"}).code, 1) << "EUC by now";
}

TEST_F(TextConvert, ATextThatIsTheSameInBothIsNotTouched) {
    writeFile(file("t.txt"), "plain\n");
    const auto node = [this] {
        struct stat state = {};
        ::stat(file("t.txt").c_str(), &state);
        return state.st_ino;
    };
    const auto before = node();
    EXPECT_EQ(json({"text", "convert", "--to", "euc", "t.txt"})["changed"], false);
    EXPECT_EQ(node(), before);
    good({"text", "convert", "--to", "euc", "t.txt", "-o", "copy.txt"});
    EXPECT_EQ(contentOf(file("copy.txt")), "plain\n");
}

TEST_F(TextConvert, WhatCannotBeWrittenLeavesEverythingAsItWas) {
    const Outcome result = run({"text", "convert", "--to", "euc", "notes.txt", "-o", "nowhere/notes.euc"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the file cannot be written: nowhere/notes.euc: check that its directory is there, "
              "that you may write in it, and that there is room; everything is as it was\n");
    EXPECT_EQ(run({"text", "convert", "--to", "euc", "nowhere.txt"}).code, 2);
    EXPECT_FALSE(exists(file("nowhere.txt")));
}

TEST_F(TextConvert, AProtectedFileStaysAsItIs) {
    if (!becomeNobody()) GTEST_SKIP() << "nobody can't run the program here";
    setMode(file(""), 0777); // the file could be replaced
    setMode(file("notes.txt"), 0444);
    const std::string before = contentOf(file("notes.txt"));
    const Outcome result = run({"text", "convert", "--to", "euc", "notes.txt"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the file is protected against writing: notes.txt: make it writable, or give another "
              "file\n");
    EXPECT_EQ(contentOf(file("notes.txt")), before);
    good({"text", "convert", "--to", "euc", "notes.txt", "-o", "notes.euc"});
}

TEST_F(TextConvert, AProtectedDirectoryStaysAsItIs) {
    if (!becomeNobody()) GTEST_SKIP() << "nobody can't run the program here";
    setMode(file("notes.txt"), 0666);
    setMode(file(""), 0555);
    const std::string before = contentOf(file("notes.txt"));
    const Outcome result = run({"text", "convert", "--to", "euc", "notes.txt"});
    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(result.err.starts_with("bexa: the file cannot be written: notes.txt: ")) << result.err;
    EXPECT_EQ(contentOf(file("notes.txt")), before);
}

TEST_F(TextConvert, OnlyTheTwoCodingsAreKnown) {
    EXPECT_EQ(run({"text", "convert", "--to", "jis", "notes.txt"}).code, 2);
    EXPECT_EQ(run({"text", "convert", "notes.txt"}).code, 2);
}

} // namespace
} // namespace bexa::test
