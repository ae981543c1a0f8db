#include "bexa/foundation/vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <string>
#include <utility>
#include <vector>

namespace {

using Read = int (*)(const char*);
using Write = const char* (*)(int);

struct Vocabulary {
    const char* name;
    Read read;
    Write write;
    std::vector<const char*> words; // from value 0
};

#define PAIR(name) #name, static_cast < Read>(BexEnum::name), static_cast < Write>(BexEnum::name)

const Vocabulary vocabularies[] = {
    {PAIR(flag), {"Off", "On"}},
    {PAIR(pickType), {"inter", "overLap"}},
    {PAIR(lineInput), {"Manual", "semiAuto"}},
    {PAIR(netInput), {"Manual", "semiAuto", "Auto"}},
    {PAIR(ripperStyle), {"None", "Hook", "Curl"}},
    {PAIR(ripperDir), {"CW", "CCW"}},
    {PAIR(propertyDraw), {"Value", "NameValue"}},
    {PAIR(circleInput), {"center", "radius", "edge"}},
    {PAIR(zoneOrigin), {"DownLeft", "DownRight", "UpLeft", "UpRight"}},
    {PAIR(zoneOffsetMode), {"Off", "CenterEnd", "CenterCross"}},
    {PAIR(measureDisp), {"noDisp", "absolute", "relative"}},
    {PAIR(measurePos), {"movable", "fixed"}},
    {PAIR(chgNetLabelScope), {"allNet", "Selected", "Neighboring", "Connection"}},
    {PAIR(cpsSelectMode), {"none", "center", "adjust"}},
    {PAIR(cpsSearchMode), {"openSheet", "toFind", "allSheet"}},
    {PAIR(BexUnloadSymbCheck), {"Off", "check", "load"}},
    {PAIR(BexBlockCheckTiming), {"Both", "SheetOpen", "SheetSave", "None"}},
    {PAIR(BexOverWritePortMode), {"none", "sigToPort", "portToSig", "sigToPortChkArray"}},
    {PAIR(BexMoveSignMode), {"port", "bus"}},
    {PAIR(autoRuleCheckMode), {"Off", "OnMemory", "Definition", "Instance"}},
    {PAIR(cBufWithMode), {"On", "Off", "Copy", "Cut"}},
};

std::string upperCase(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

TEST(Vocabulary, ConvertsBothWays) {
    for (const Vocabulary& vocabulary : vocabularies) {
        for (int value = 0; value < static_cast<int>(vocabulary.words.size()); ++value) {
            const char* word = vocabulary.words[static_cast<std::size_t>(value)];
            EXPECT_STREQ(vocabulary.write(value), word) << vocabulary.name;
            EXPECT_EQ(vocabulary.read(word), value) << vocabulary.name;
            EXPECT_EQ(vocabulary.read(upperCase(word).c_str()), value) << vocabulary.name << ": any case";
        }
    }
}

TEST(Vocabulary, RefusesWhatItDoesNotKnow) {
    for (const Vocabulary& vocabulary : vocabularies) {
        for (const char* word : {"", " ", "nosuch", "On ", static_cast<const char*>(nullptr)}) {
            EXPECT_EQ(vocabulary.read(word), -1) << vocabulary.name;
        }
        for (int value : {-1, static_cast<int>(vocabulary.words.size()), INT_MIN, INT_MAX}) {
            EXPECT_EQ(vocabulary.write(value), nullptr) << vocabulary.name;
        }
    }
}

TEST(Vocabulary, ClipboardSwitchIsTheReverseOfAFlag) {
    EXPECT_EQ(BexEnum::cBufWithMode("Off"), 1);
    EXPECT_EQ(BexEnum::flag("Off"), 0);
    EXPECT_EQ(BexEnum::cBufWithMode("On"), 0);
    EXPECT_EQ(BexEnum::flag("On"), 1);
}

// All values that have a word.
std::vector<std::pair<int, std::string>> allOf(Write write) {
    std::vector<std::pair<int, std::string>> all;
    for (int value = -300; value <= 300; ++value) {
        if (const char* word = write(value)) all.emplace_back(value, word);
    }
    return all;
}

TEST(TextJustify, HasGapsBetweenItsRows) {
    const std::vector<std::pair<int, std::string>> words = {
        {0, "lowerLeft"},   {1, "lowerCenter"}, {2, "lowerRight"},  {4, "centerLeft"},  {5, "centerCenter"},
        {6, "centerRight"}, {8, "upperLeft"},   {9, "upperCenter"}, {10, "upperRight"},
    };
    EXPECT_EQ(allOf(BexEnum::textJustify), words);
    for (const auto& [value, word] : words) EXPECT_EQ(BexEnum::textJustify(upperCase(word).c_str()), value);
    EXPECT_EQ(BexEnum::textJustify("lower"), -1);
}

TEST(ObjectType, NamesTheObjectsOfASheet) {
    const std::vector<std::pair<int, std::string>> words = {
        {0, "mainObject"}, {2, "line"},        {3, "circle"},   {4, "text"},       {5, "frame"},
        {6, "Pattern"},    {7, "Component"},   {8, "sNet"},     {9, "sNetString"}, {10, "sNetSeg"},
        {11, "bNet"},      {12, "bNetString"}, {13, "bNetSeg"}, {14, "pViewer"},   {15, "cPin"},
        {17, "nNode"},     {20, "spNet"},
    };
    EXPECT_EQ(allOf(BexEnum::objType), words);
    for (const auto& [value, word] : words) EXPECT_EQ(BexEnum::objType(upperCase(word).c_str()), value);
    EXPECT_EQ(BexEnum::objType("nosuch"), -1);
    EXPECT_EQ(BexEnum::objType(nullptr), -1);
    EXPECT_EQ(BexNetNodeObject, 17);
    EXPECT_EQ(BexSymbolPinNetObject, 20);
}

TEST(ObjectType, SubObjectIsReadButNeverWritten) {
    EXPECT_EQ(BexEnum::objType("subObject"), 1);
    EXPECT_EQ(BexEnum::objType(1), nullptr);
}

TEST(SwapMode, HasNoErrorValue) {
    EXPECT_EQ(BexEnum::swapSConnMode("cpin"), 1);
    EXPECT_EQ(BexEnum::swapSConnMode("CPIN"), 1);
    for (const char* word : {"coord", "nosuch", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(BexEnum::swapSConnMode(word), 0);
    }
    EXPECT_STREQ(BexEnum::swapSConnMode(1), "cpin");
    for (int value : {0, 2, -1}) EXPECT_STREQ(BexEnum::swapSConnMode(value), "coord");
}

TEST(ComponentTypeWords, GiveTheirBits) {
    const struct {
        const char* words;
        unsigned bits;
    } rows[] = {
        {nullptr, 0},
        {"", 0},
        {"fig", 0},
        {"net", 1},
        {"frame", 2},
        {"parts", 4},
        {"gate", 8},
        {"block", 16},
        {"vcc", 32},
        {"gnd", 64},
        {"shortComponent", 128},
        {"hieConnector", 256},
        {"shtConnector", 512},
        {"powerBox", 1024},
        {"PowerBOX", 1024},
        {"net|block", 17},
        {"NET|nosuch", 1},
        {"nosuch", 0},
        {"|", 0},
        {"|net||net|", 1},
        {"net block", 0},
        {"net |block", 16},
        {"fig|gate", 8},
    };
    for (const auto& row : rows) EXPECT_EQ(BexEnum::compType(row.words), row.bits) << row.words;
}

TEST(ComponentTypeBits, GiveTheirWords) {
    const struct {
        unsigned bits;
        const char* words;
    } rows[] = {
        {0, "fig"}, {1, "net"}, {17, "net|block"}, {2048, ""}, {2049, "net"}, {~0x7FFU, ""},
    };
    for (const auto& row : rows) EXPECT_EQ(BexEnum::compType(row.bits), row.words) << row.bits;
    EXPECT_EQ(BexEnum::compType(0), "fig") << "a literal 0 is a number";
}

TEST(ComponentTypeBits, AreNotWrittenInTheirOrder) {
    EXPECT_EQ(BexEnum::compType(768U), "shtConnector|hieConnector");
    EXPECT_EQ(BexEnum::compType(~0U),
              "net|frame|parts|gate|block|shtConnector|hieConnector|shortComponent|vcc|gnd|powerBox");
}

TEST(HookShape, FollowsStyleAndDirection) {
    const struct {
        int a, b, shape;
    } rows[] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 2},  {1, 1, 3},  {2, 1, 2},   {0, 2, 4},
                {1, 2, 5}, {9, 2, 4}, {0, 3, -1}, {1, 3, -1}, {1, -1, -1}, {0, INT_MAX, -1}};
    for (const auto& row : rows)
        EXPECT_EQ(BexEnum::hookShapeType(row.a, row.b), row.shape) << row.a << ' ' << row.b;
}

TEST(CornerShape, FollowsTheStyle) {
    EXPECT_EQ(BexEnum::cornerShapeType(1), 2);
    EXPECT_EQ(BexEnum::cornerShapeType(2), 4);
    for (int other : {0, 3, -1, INT_MAX}) EXPECT_EQ(BexEnum::cornerShapeType(other), 0);
}

} // namespace
