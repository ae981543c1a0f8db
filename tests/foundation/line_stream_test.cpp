#include "bexa/foundation/line_stream.h"

#include "tests/support/files.h"
#include "tests/support/fresh_process.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using namespace bexa::test;
using namespace std::string_literals;

namespace {

class LineStream : public testing::Test {
protected:
    BexStream& open(std::string_view content) {
        writeFile(path, content);
        EXPECT_EQ(stream.open(path.c_str(), BexStream::ReadOnly), 1UL);
        return stream;
    }
    std::string written(const std::function<void(BexStream&)>& write) {
        BexStream out(path.c_str(), BexStream::Write);
        write(out);
        EXPECT_EQ(out.close(), 1UL);
        return contentOf(path);
    }

    TempDir dir;
    const std::string path = dir.file("stream.txt");
    BexStream stream;
};

// "kanji" in the two codings.
const char* const sjisKanji = "\x8A\xBF\x8E\x9A";
const char* const eucKanji = "\xB4\xC1\xBB\xFA";

} // namespace

TEST_F(LineStream, ClosedStreamDoesNothing) {
    char c = 'x';
    char text[8] = "x";
    int i = 1;
    long l = 2;
    double d = 3;
    float f = 4;
    unsigned u = 5;
    unsigned long ul = 6;
    short s = 7;
    unsigned short us = 8;
    EXPECT_EQ(&(stream >> c >> text >> i >> l >> d >> f >> u >> ul >> s >> us), &stream);
    EXPECT_EQ(&(stream << c << "t" << i << l << d << f << u << ul << s << us << BexEndl << BexFlush),
              &stream);
    EXPECT_EQ(&stream.seek(4).seek(1, BexStream::FromEnd), &stream);
    EXPECT_TRUE(c == 'x' && std::string(text) == "x" && i == 1 && l == 2 && d == 3 && f == 4 && u == 5 &&
                ul == 6 && s == 7 && us == 8);
    EXPECT_EQ(stream.getlines(1), nullptr);
    EXPECT_EQ(stream.getpurelines(1), nullptr);
    EXPECT_EQ(stream.getlinesEx(1), nullptr);
    EXPECT_EQ(stream.getpurelinesEx(1), nullptr);
    EXPECT_EQ(stream.tell(), 0);
    EXPECT_TRUE(stream.eof() && stream.fail());
    EXPECT_EQ(stream.putpurechar("x"), 0UL);
    EXPECT_EQ(stream.close(), 0UL);
}

TEST_F(LineStream, OpensInTheModesOfTheList) {
    writeFile(path, "old");
    const struct {
        int mode;
        unsigned long opens;
        std::string left;
    } rows[] = {
        {0, 1, "old"}, {3, 1, "+ld"}, {2, 1, "+ld+"}, {5, 1, "+ld++"},
        {4, 1, "+"},   {1, 1, "+"},   {6, 0, "+"},    {-1, 0, "+"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(stream.open(path.c_str(), BexStream::mode(row.mode)), row.opens) << row.mode;
        stream << '+';
        EXPECT_EQ(stream.close(), row.opens) << row.mode;
        EXPECT_EQ(contentOf(path), row.left) << row.mode;
    }
    EXPECT_EQ(stream.open(nullptr, BexStream::ReadOnly), 0UL);
    EXPECT_EQ(stream.open(dir.file("none").c_str(), BexStream::ReadOnly), 0UL);
}

TEST_F(LineStream, OpeningAnotherFileClosesTheFirst) {
    open("a\n");
    EXPECT_EQ(stream.open(dir.file("none").c_str(), BexStream::ReadOnly), 0UL);
    EXPECT_EQ(stream.getlines(1), nullptr);
}

TEST_F(LineStream, ReadsSeveralLinesAsOne) {
    const struct {
        const char* content;
        unsigned count;
        const char* text;
        bool eof;
    } rows[] = {
        {"a\nb\nc\n", 1, "a", false},  {"a\nb\nc\n", 2, "a\nb", false},
        {"a\nb\n", 0, "", false},      {"a\nb\n", 2, "a\nb", false},
        {"a\nb\n", 3, "a\nb\n", true}, {"a\nb", 3, "a\nb\n", true},
        {"a\nb", 2, "a\nb", true},     {"", 1, "", true},
        {"\n\n", 2, "\n", false},      {"x\r\n", 1, "x\r", false},
    };
    for (const auto& row : rows) {
        EXPECT_STREQ(open(row.content).getlines(row.count), row.text) << row.content << row.count;
        EXPECT_EQ(stream.eof() != 0, row.eof) << row.content << row.count;
    }
}

TEST_F(LineStream, ALineFeedPutBehindTheLastLineStays) {
    EXPECT_STREQ(open("a\nb").getlines(3), "a\nb\n");
    EXPECT_STREQ(open("a\nb").getlines(9), "a\nb\n") << "a single one";
    EXPECT_STREQ(open("a\nb").getlines(2), "a\nb");
}

TEST_F(LineStream, LineOfAnyLengthComesBackWhole) {
    for (const std::size_t length : {253U, 254U, 255U, 508U, 600U, 100000U}) {
        const std::string line(length, 'x');
        EXPECT_EQ(open(line + "\nnext\n").getlines(1), line) << length;
        EXPECT_STREQ(stream.getlines(1), "next") << length;
    }
}

TEST_F(LineStream, NulByteHidesTheRestOfTheText) {
    EXPECT_STREQ(open("a\0b\nc\nd\n"s).getlines(1), "a");
    EXPECT_STREQ(stream.getlines(1), "c");
    EXPECT_STREQ(open("\0"s).getpurelines(1), "");
    EXPECT_STREQ(open("\n\0\nx"s).getpurelines(2), "\n");
    EXPECT_STREQ(stream.getpurelines(1), "x");
}

TEST_F(LineStream, TolerantReadersLookAtTheFirstCarriageReturnOfAPiece) {
    const std::string piece(253, 'x');
    const struct {
        std::string content, text;
    } rows[] = {
        {"x\r\ny\n", "x"},
        {"a\rb\r\nc\n", "a\rb\r"}, // the first one stands in the text, so the pair behind it is not seen
        {"x\r", "x"},              // the last byte of the piece
        {"a\rb\r", "a\rb"},        // the last byte goes although it is the second carriage return
        {"a\rb", "a\rb"},
        {piece + "\r\nnext\n", piece}, // the pair is cut in two by the end of the piece: the first half goes
        {piece.substr(1) + "\r\nnext\n", piece.substr(1)},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(open(row.content).getpurelinesEx(1), row.text) << row.content;
        EXPECT_EQ(open(row.content).getlinesEx(1), row.text) << row.content;
    }
}

TEST_F(LineStream, PureReaderKeepsTheCarriageReturn) {
    EXPECT_STREQ(open("x\r\n").getpurelines(1), "x\r");
    EXPECT_STREQ(open("x\r\n").getpurelinesEx(1), "x");
}

TEST_F(LineStream, SeeksAndTells) {
    open("0123456789");
    EXPECT_EQ(stream.seek(4).tell(), 4);
    EXPECT_EQ(stream.seek(2, BexStream::FromHere).tell(), 6);
    EXPECT_EQ(stream.seek(-1, BexStream::FromEnd).tell(), 9);
    EXPECT_EQ(stream.seek(3, BexStream::dir(3)).tell(), 9) << "an origin outside the list does nothing";
    char c = 0;
    stream >> c;
    EXPECT_EQ(c, '9');
}

TEST_F(LineStream, WritesInTheTextFormsOfItsTypes) {
    const struct {
        std::function<void(BexStream&)> write;
        const char* text;
    } rows[] = {
        {[](BexStream& s) { s << 'c'; }, "c"},
        {[](BexStream& s) { s << "text"; }, "text"},
        {[](BexStream& s) { s << static_cast<const char*>(nullptr); }, ""},
        {[](BexStream& s) { s << -12; }, "-12"},
        {[](BexStream& s) { s << -1234567890123L; }, "-1234567890123"},
        {[](BexStream& s) { s << 1.5; }, "1.500000"},
        {[](BexStream& s) { s << 0.25F; }, "0.250000"},
        {[](BexStream& s) { s << 4294967295U; }, "4294967295"},
        {[](BexStream& s) { s << 255UL; }, "255"},
        {[](BexStream& s) { s << static_cast<short>(-3); }, "-3"},
        {[](BexStream& s) { s << static_cast<unsigned short>(65535); }, "65535"},
        {[](BexStream& s) { s << "%d" << BexEndl << "x" << BexFlush; }, "%d\nx"},
        {[](BexStream& s) { s.putpurechar("%s"); }, "%s"},
    };
    for (const auto& row : rows) EXPECT_EQ(written(row.write), row.text);
}

TEST_F(LineStream, ReadsTheValuesOfItsTypes) {
    open("c word -12 -1234567890123 1.5 0.25 4294967295 ff -3 65535");
    char c = 0;
    char text[16];
    int i = 0;
    long l = 0;
    double d = 0;
    float f = 0;
    unsigned u = 0;
    unsigned long ul = 0;
    short s = 0;
    unsigned short us = 0;
    stream >> c >> text >> i >> l >> d >> f >> u >> ul >> s >> us;
    EXPECT_EQ(c, 'c');
    EXPECT_STREQ(text, "word");
    EXPECT_EQ(i, -12);
    EXPECT_EQ(l, -1234567890123L);
    EXPECT_EQ(d, 1.5);
    EXPECT_EQ(f, 0.25F);
    EXPECT_EQ(u, 4294967295U);
    EXPECT_EQ(ul, 255UL);
    EXPECT_EQ(s, -3);
    EXPECT_EQ(us, 65535);
}

TEST_F(LineStream, UnsignedLongIsWrittenInDecimalAndReadInHexadecimal) {
    EXPECT_EQ(written([](BexStream& s) { s << 10UL; }), "10");
    unsigned long value = 0;
    stream.open(path.c_str(), BexStream::ReadOnly);
    stream >> value;
    EXPECT_EQ(value, 16UL);
}

TEST_F(LineStream, ShortFormsAreCutToSixteenBits) {
    open("65537 -65537 65537");
    short a = 0;
    short b = 0;
    unsigned short c = 0;
    stream >> a >> b >> c;
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, -1);
    EXPECT_EQ(c, 1);
}

TEST_F(LineStream, UnreadableValueLeavesItsTarget) {
    open("word");
    int i = 7;
    short s = 8;
    stream >> i >> s;
    EXPECT_EQ(i, 7);
    EXPECT_EQ(s, 8);
}

TEST_F(LineStream, CloseTellsOfDataThatCouldNotBeWritten) {
    if (!exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    stream.open("/dev/full", BexStream::Write);
    stream << "x";
    EXPECT_EQ(stream.close(), 0UL);
    EXPECT_EQ(stream.close(), 0UL);
}

TEST_F(LineStream, EucProcessConvertsOnTheWayInAndOut) {
    if (!startedInLocale("ja_JP.eucJP")) return;
    EXPECT_EQ(written([](BexStream& s) { s << eucKanji; }), sjisKanji);
    EXPECT_EQ(written([](BexStream& s) { s.putpurechar(eucKanji); }), eucKanji);
    open(sjisKanji + "\n"s + sjisKanji + "\n" + sjisKanji + "\n" + sjisKanji + " ");
    EXPECT_STREQ(stream.getlines(1), eucKanji);
    EXPECT_STREQ(stream.getpurelines(1), sjisKanji);
    EXPECT_STREQ(stream.getlinesEx(1), eucKanji);
    char text[16];
    stream >> text;
    EXPECT_STREQ(text, eucKanji);
}

TEST_F(LineStream, FaultLeavesThePartBeforeIt) {
    if (!startedInLocale("ja_JP.eucJP")) return;
    EXPECT_EQ(written([](BexStream& s) { s << "ab\xB4"; }), "ab");
    EXPECT_STREQ(open("ab\x8A\n").getlines(1), "ab");
    EXPECT_EQ(written([](BexStream& s) { s << ""; }), "");
}

TEST_F(LineStream, ShiftJisProcessConvertsNothing) {
    if (!startedInLocale("ja_JP.SJIS")) return;
    EXPECT_EQ(written([](BexStream& s) { s << eucKanji; }), eucKanji);
    EXPECT_STREQ(open(sjisKanji).getlines(1), sjisKanji);
}
