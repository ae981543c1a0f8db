#include "bexa/store/lock_file.h"

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

using namespace bexa::test;
using bexa::detail::lockFileText;
using bexa::detail::ownerNumber;
using bexa::detail::readLockFile;

namespace {

// All fields as the caller might have left them.
BexLockInfo untouched() {
    BexLockInfo info;
    info.pid = -1;
    info.handle = -2;
    info.date = "date";
    info.user = "user";
    info.display = "display";
    info.host = "host";
    return info;
}

BexLockInfo read(const std::string& content) {
    const TempDir dir;
    writeFile(dir.file("x.___"), content);
    BexLockInfo info = untouched();
    EXPECT_TRUE(readLockFile(dir.file("x.___").c_str(), info));
    EXPECT_EQ(info.fileName, dir.file("x.___").c_str());
    return info;
}

// The fields in one line, in the order of the file.
std::string summary(const BexLockInfo& info) {
    std::string text = std::to_string(info.pid) + '|' + std::to_string(info.handle);
    for (const YString& field : {info.date, info.user, info.display, info.host})
        text += '|' + std::string(field);
    return text;
}

const std::string longText(255, 'x');

} // namespace

TEST(LockFile, SixLinesAreWrittenInTheirOrder) {
    EXPECT_EQ(lockFileText(untouched()), "-1\n-2\ndate\nuser\ndisplay\nhost\n");
}

TEST(LockFile, OwnerIsTheLow32BitsOfTheHandle) {
    EXPECT_EQ(ownerNumber(nullptr), 0);
    EXPECT_EQ(ownerNumber(reinterpret_cast<void*>(std::uintptr_t{4711})), 4711);
    EXPECT_EQ(ownerNumber(reinterpret_cast<void*>(std::uintptr_t{0xFFFFFFFF})), -1);
    EXPECT_EQ(ownerNumber(reinterpret_cast<void*>(static_cast<std::uintptr_t>(0x7FFF00000005))), 5);
}

TEST(LockFile, EachLineFillsItsField) {
    const struct {
        std::string content;
        std::string fields;
        const char* meaning;
    } rows[] = {
        {"1\n2\nd\nu\n:0\nh\n", "1|2|d|u|:0|h", "a whole file"},
        {"1\n2\nd\nu\n:0\nh\nmore\n", "1|2|d|u|:0|h", "what follows is not read"},
        {"1\n2\nd\nu v\n\t:0 \nh\n", "1|2|d|u v|\t:0 |h", "white space belongs to the text"},
        {"", "-1|-2|date|user|display|host", "an empty file"},
        {"1\n2\nd\n", "1|2|d|user|display|host", "fields of missing lines stay"},
        {"\n\n\nu\n\nh\n", "-1|-2|date|u|display|h", "fields of empty lines stay"},
        {"1\n2\nd\nu\n:0\nhost1", "1|2|d|u|:0|host", "the last byte of a line is cut, whatever it is"},
        {"1\n2\nd\nu\n:0\nh", "1|2|d|u|:0|host", "a line of one byte without a line feed counts as empty"},
        {"1\r\n2\r\nd\r\nu\r\n:0\r\nh\r\n", "1|2|d\r|u\r|:0\r|h\r", "only the line feed is cut"},
        {" +12x\nword\n", "12|0|date|user|display|host", "numbers are read as atol reads them"},
        {"99999999999999999999\n-99999999999999999999\n",
         "9223372036854775807|-9223372036854775808|date|user|display|host", "numbers saturate"},
        {"1\n2\nd\n\x8f\x5c\n\xc6\xfc\nh\n", "1|2|d|\x8f\x5c|\xc6\xfc|h", "double-byte text"},
        {"1\n2\nd\n" + longText + "\n:0\nh\n", "1|2|d|" + longText + "|:0|h", "a line of 256 bytes"},
        {"1\n2\nd\n" + longText + "yz\n:0\nh\n", "1|2|d|" + longText + "|z|:0",
         "a longer line goes on as the next, and loses a byte in between"},
    };
    for (const auto& row : rows) EXPECT_EQ(summary(read(row.content)), row.fields) << row.meaning;
}

TEST(LockFile, TheSampleIsReadAndWrittenBack) {
    const std::string sample = contentOf(testData("store/001.___"));
    const BexLockInfo info = read(sample);
    EXPECT_EQ(summary(info), "4711|140229|03/09/2024 17:05|maria|:0|ws12");
    EXPECT_EQ(lockFileText(info), sample);
}

TEST(LockFile, WhatIsWrittenIsReadBack) {
    const BexLockInfo written = bexa::detail::lockOfThisProcess(reinterpret_cast<void*>(std::uintptr_t{77}));
    EXPECT_EQ(summary(read(lockFileText(written))), summary(written));
}

TEST(LockFile, AFileThatCannotBeReadSetsTheNameOnly) {
    const TempDir dir;
    for (const std::string& path : {dir.file("none"), dir.path()}) {
        BexLockInfo info = untouched();
        EXPECT_FALSE(readLockFile(path.c_str(), info));
        EXPECT_EQ(summary(info), summary(untouched()));
        EXPECT_EQ(info.fileName, path.c_str());
    }
}

TEST(LockFile, HostileContentFillsWhatItCan) {
    EXPECT_EQ(summary(read(std::string(10'000'000, 'x'))).size(), std::string("0|0||||").size() + 4 * 255);
    EXPECT_EQ(read(std::string(1000, '\0')).pid, 0);
    EXPECT_EQ(summary(read(std::string(1000, '\n'))), summary(untouched()));
}
