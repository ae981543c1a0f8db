#include "bexa/foundation/sjis_check.h"

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>

using namespace bexa::test;
using namespace std::string_literals;

namespace {

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
}

// 0 for a good file, else the reason; the reason must stay alone on success.
unsigned checked(const std::string& path) {
    unsigned code = 1;
    const unsigned long good = BexSjisCheck::sjisTextFile(path.c_str(), code);
    if (good) {
        EXPECT_EQ(code, 1U);
    }
    return good ? 0 : code;
}

} // namespace

TEST(SjisCheck, PairsAtTheEdgesOfTheTable) {
    const struct {
        unsigned short pair;
        bool good;
    } rows[] = {
        {0x8140, true},  {0x813F, true},  {0x813E, false}, {0x817E, true},  {0x817F, false}, {0x8180, true},
        {0x81FC, true},  {0x81FD, true},  {0x81FE, false}, {0x823D, false}, {0x823E, false}, {0x8240, false},
        {0x824E, false}, {0x824F, true},  {0x83DD, true},  {0x83DE, false}, {0x843E, false}, {0x843F, true},
        {0x84CD, true},  {0x84CE, false}, {0x889E, false}, {0x889F, true},  {0x987E, true},  {0x987F, false},
        {0x989E, false}, {0x989F, true},  {0x9FFD, true},  {0x9FFE, false}, {0xE03E, false}, {0xE03F, true},
        {0xEAAD, true},  {0xEAAE, false}, {0xB100, false}, {0x0041, false}, {0xFFFF, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(BexSjisCheck::sjisText(row.pair) != 0, row.good) << std::hex << row.pair;
}

TEST(SjisCheck, PairsOfEucHaveBothBytesFromA1ToFE) {
    const struct {
        unsigned short pair;
        bool good;
    } rows[] = {
        {0xA1A1, true},  {0xFEFE, true},  {0xA1FF, false}, {0xA1A0, false},
        {0xA0A1, false}, {0xFFA1, false}, {0x8EB1, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(BexSjisCheck::eucText(row.pair) != 0, row.good) << std::hex << row.pair;
}

TEST(SjisCheck, JudgesFilesByTheirBytes) {
    const std::string longest(1022, 'x');
    const struct {
        const char* what;
        std::string content;
        unsigned code;
    } rows[] = {
        {"an empty file", "", 0},
        {"tab, carriage return and form feed", "a\tb\f\r\n", 0},
        {"Japanese", "\x8A\xBF\x8E\x9A\n", 0},
        {"no line feed at the end", "a\n\x8A\xBF", 0},
        {"a control character", "a\x01\n", 30038},
        {"delete", "\x7F\n", 30038},
        {"a NUL byte", "a\0b\n"s, 30038},
        {"a lead byte at the end of a line", "a\x8A\nb\n", 30038},
        {"a lead byte at the end of the file", "a\x8A", 30038},
        {"a byte that leads nothing", "\xFE\xFE\n", 30038},
        {"a second byte that is a control character", "\x8A\x01\n", 30038},
        {"the longest line", longest + "\n", 0},
        {"a line one byte longer", longest + "x\n", 30037},
        {"the longest line without a line feed", longest, 0},
        {"a last line that fills the buffer", longest + "x", 30037},
        {"one line fewer than too many", repeated("x\n", 1999), 0},
        {"too many lines", repeated("x\n", 2000), 30036},
        {"too many lines, the last unfinished", repeated("x\n", 1999) + "x", 30036},
        {"empty lines don't count", repeated("\n", 5000) + "x\n", 0},
        {"a line of a carriage return counts", repeated("\r\n", 2000), 30036},
    };
    const TempDir dir;
    const std::string path = dir.file("text");
    for (const auto& row : rows) {
        writeFile(path, row.content);
        EXPECT_EQ(checked(path), row.code) << row.what;
    }
}

TEST(SjisCheck, BadByteFarDownIsReportedBeforeTooManyLines) {
    const TempDir dir;
    writeFile(dir.file("text"), repeated("x\n", 2999) + "\x01\n");
    EXPECT_EQ(checked(dir.file("text")), 30038U);
}

TEST(SjisCheck, HalfWidthKanaFail) {
    const TempDir dir;
    writeFile(dir.file("text"), "\xB1\n");
    EXPECT_EQ(checked(dir.file("text")), 30038U);
    // Two of them make a pair outside the table.
    writeFile(dir.file("text"), "\xB1\xB2\n");
    EXPECT_EQ(checked(dir.file("text")), 30038U);
}

TEST(SjisCheck, OnlyPlainFilesAreTextFiles) {
    const TempDir dir;
    EXPECT_EQ(checked(dir.file("missing")), 30031U);
    EXPECT_EQ(checked(dir.path()), 30031U);
    unsigned code = 0;
    EXPECT_EQ(BexSjisCheck::sjisTextFile(nullptr, code), 0UL);
    EXPECT_EQ(code, 30031U);
}
