// The limits of the keyed setters.

#include "tests/envrc/envrc_fixture.h"

#include <climits>
#include <limits>
#include <string>
#include <vector>

namespace bexa::test {
namespace {

class EnvrcSetters : public EnvrcFixture {};

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct NumberRow {
    const char* key;
    std::vector<long> taken;
    std::vector<long> refused;
};

const NumberRow numbers[] = {
    {"screenTrap", {0, 99999}, {-1, 100000, LONG_MIN, LONG_MAX}},
    {"backupTime", {0, 99999}, {-1, 100000}},
    {"cpNetLabelIncrement", {0, 99999}, {-1, 100000}},
    {"undoLimit", {1, 100}, {0, 101, -1}},
    {"chgNetLabelListWidthSize", {15, 100}, {14, 101, 0, -1}},
    {"chgNetLabelListHeightSize", {5, 100}, {4, 101, 0, -1}},
    {"moveSignMode", {0, 1}, {2, -1, LONG_MAX}},
    {"gridColor", {0, -1, INT_MAX, LONG_MIN, LONG_MAX}, {}},
    {"symSheetSizeColor", {0, -1, LONG_MAX}, {}},
    {"schSheetSizeColor", {0, -1, LONG_MAX}, {}},
    {"openCheckMarkColor", {0, -1, LONG_MAX}, {}},
    {"measureColor", {0, -1, LONG_MAX}, {}},
    {"symbolPath", {0, -1, LONG_MIN, LONG_MAX}, {}},
};

TEST_F(EnvrcSetters, TakeWholeNumbersWithinTheirLimits) {
    for (const NumberRow& row : numbers) {
        SCOPED_TRACE(row.key);
        const Resource envrc = fresh();
        for (const long value : row.refused) EXPECT_FALSE(envrc->set(row.key, value)) << value;
        EXPECT_EQ(saved(*envrc), golden());
        for (const long value : row.taken) EXPECT_TRUE(envrc->set(row.key, value)) << value;
    }
}

TEST_F(EnvrcSetters, StoreNumbersThatDoNotFitAsTheNearest) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("symbolPath", LONG_MAX));
    EXPECT_EQ(envrc->symbolPath(), INT_MAX);
    EXPECT_TRUE(envrc->set("symbolPath", LONG_MIN));
    EXPECT_EQ(envrc->symbolPath(), INT_MIN);
    EXPECT_TRUE(envrc->set("gridColor", LONG_MAX));
    EXPECT_EQ(envrc->gridColor(), UINT_MAX);
    EXPECT_TRUE(envrc->set("gridColor", -2L));
    EXPECT_EQ(envrc->gridColor(), UINT_MAX - 1);
}

struct RealRow {
    std::vector<const char*> keys;
    std::vector<double> taken;
    std::vector<double> refused;
};

// Ratios leave 0 out and hold their upper end; pitches and offsets leave theirs out.
const RealRow reals[] = {
    {{"panRatio"}, {1.0, 1e-9}, {0.0, -0.5, 1.0001}},
    {{"zoomRatio", "adjustRatio"}, {1000.0, 0.001}, {0.0, -1.0, 1000.001}},
    {{"roundRectCornerRadius"}, {100000.0, 0.001}, {0.0, 100000.1}},
    {{"cScale"}, {0.0101, 100.0}, {0.01, 0.0, -1.0, 100.001}},
    {{"cAngle", "netTheta", "pvAngle", "lineTheta", "textAngle"}, {0.0, 360.0}, {-0.001, 360.001}},
    {{"pvOffsetFromObjX", "pvOffsetFromObjY", "circleRadius", "zoneOffsetX", "zoneOffsetY"},
     {0.0, 99999.999},
     {-0.001, 100000.0}},
    {{"zonePitchX", "zonePitchY"}, {0.001, 99999.999}, {0.0, -1.0, 100000.0}},
};

TEST_F(EnvrcSetters, TakeRealNumbersWithinTheirLimits) {
    for (const RealRow& row : reals) {
        for (const char* key : row.keys) {
            SCOPED_TRACE(key);
            const Resource envrc = fresh();
            for (const double value : row.refused) EXPECT_FALSE(envrc->set(key, value)) << value;
            for (const double value : {inf, -inf, nan}) EXPECT_FALSE(envrc->set(key, value)) << value;
            EXPECT_EQ(saved(*envrc), golden());
            for (const double value : row.taken) EXPECT_TRUE(envrc->set(key, value)) << value;
        }
    }
}

TEST_F(EnvrcSetters, HoldOrLeaveOutEachLimitForItself) {
    const struct {
        const char* key;
        double limit;
        unsigned long taken;
    } rows[] = {
        {"panRatio", 0.0, 0},        {"panRatio", 1.0, 1},    {"roundRectCornerRadius", 100000.0, 1},
        {"zonePitchX", 100000.0, 0}, {"zoneOffsetX", 0.0, 1}, {"zoneOffsetX", 100000.0, 0},
        {"cScale", 0.01, 0},         {"cScale", 100.0, 1},    {"cAngle", 360.0, 1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fresh()->set(row.key, row.limit), row.taken) << row.key << row.limit;
}

TEST_F(EnvrcSetters, RefuseUnknownWords) {
    const char* const keys[] = {"dFocus",
                                "areaMode",
                                "netInputMode",
                                "busInputMode",
                                "ripperStyle",
                                "ripperDir",
                                "pvJustify",
                                "pvDispMode",
                                "lineInputMode",
                                "circleInputMode",
                                "textJustify",
                                "zoneOrigin",
                                "zoneOffsetMode",
                                "cbufWithNetLabel",
                                "cbufWithReference",
                                "measureDisp",
                                "measurePos",
                                "chgNetLabelScope",
                                "cpsSelectMode",
                                "cpsSearchMode",
                                "BlockCheckTiming",
                                "symbDefaultcompType",
                                "autoSaveRuleCheck",
                                "inputGrid",
                                "UnloadedSymbolCheck",
                                "zipText",
                                "doNotSelectUnvisiblePbox",
                                "autoSaveReload"};
    const Resource envrc = fresh();
    for (const char* key : keys) {
        SCOPED_TRACE(key);
        for (const char* word : {"nosuch", "", "1", "0", "|", "on "})
            EXPECT_FALSE(envrc->set(key, word)) << word;
        EXPECT_FALSE(envrc->set(key, static_cast<const char*>(nullptr)));
    }
    EXPECT_EQ(saved(*envrc), golden());
}

TEST_F(EnvrcSetters, TakeAnyTextForSwapSConnModeAndStore0UnlessItIsCpin) {
    const Resource envrc = fresh();
    for (const char* text : {"coord", "nosuch", "", static_cast<const char*>(nullptr)}) {
        EXPECT_TRUE(envrc->set("swapSConnMode", "cpin"));
        EXPECT_EQ(envrc->swapSConnMode(), BexSwapSConnCPin);
        EXPECT_TRUE(envrc->set("swapSConnMode", text));
        EXPECT_EQ(envrc->swapSConnMode(), BexSwapSConnCoord);
    }
}

TEST_F(EnvrcSetters, TakeComponentTypesOfWhichOneIsKnown) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("symbDefaultcompType", "nosuch|gate"));
    EXPECT_EQ(envrc->symbDefaultcompType(), 8u);
    EXPECT_FALSE(envrc->set("symbDefaultcompType", "nosuch|other"));
    EXPECT_EQ(envrc->symbDefaultcompType(), 8u);
    EXPECT_TRUE(envrc->set("symbDefaultcompType", "FIG"));
    EXPECT_EQ(envrc->symbDefaultcompType(), 0u);
}

TEST_F(EnvrcSetters, CanNotWriteTheFocusOnSubObjects) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("dFocus", "subObject"));
    EXPECT_EQ(envrc->dFocus(), BexSubObject);
    EXPECT_EQ(valueIn(*envrc, "dFocus"), "");
}

TEST_F(EnvrcSetters, TakeLettersAndDigitsAndStoreThemInUpperCase) {
    const Resource envrc = fresh();
    for (const char* key : {"zoneStartTextX", "zoneStartTextY"}) {
        for (const char c : {'*', ' ', '\0', '_', '\x83', '\xff'}) EXPECT_FALSE(envrc->set(key, c));
    }
    EXPECT_EQ(saved(*envrc), golden());
    EXPECT_TRUE(envrc->set("zoneStartTextX", 'b'));
    EXPECT_EQ(envrc->zoneStartTextX(), 'B');
    EXPECT_TRUE(envrc->set("zoneStartTextY", '0'));
    EXPECT_EQ(envrc->zoneStartTextY(), '0');
}

TEST_F(EnvrcSetters, TakeTextsAsTheyStand) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("dProject", "a \"b\" \x83\x5c"));
    EXPECT_STREQ(envrc->dProject(), "a \"b\" \x83\x5c");
    EXPECT_TRUE(envrc->set("dProject", envrc->dProject() + 2)); // a part of itself
    EXPECT_STREQ(envrc->dProject(), "\"b\" \x83\x5c");
    EXPECT_TRUE(envrc->set("logfile", static_cast<const char*>(nullptr)));
    EXPECT_STREQ(envrc->logfile(), "");
}

TEST_F(EnvrcSetters, KeepTheirOwnCopyOfATextThatTheCallerChanges) {
    const Resource envrc = fresh();
    char text[] = "key";
    EXPECT_TRUE(envrc->set("autoSaveReloadKeyName", text));
    text[0] = 'x';
    EXPECT_STREQ(envrc->autoSaveReloadKeyName(), "key");
}

TEST_F(EnvrcSetters, KnowTheFontForWindowsByAKeyThatFilesDoNotKnow) {
    const Resource envrc = fresh();
    EXPECT_TRUE(envrc->set("measureFont", "Arial"));
    EXPECT_EQ(valueIn(*envrc, "measureFontForWIN"), "\"Arial\"");
    EXPECT_FALSE(envrc->set("measureFontForWIN", "x"));
    EXPECT_FALSE(envrc->set("measureFontForUNIX", "x"));
    EXPECT_STREQ(loaded("measureFont : \"x\"\n")->measureFont(), "FixedSys/12/Normal");
}

TEST_F(EnvrcSetters, MakeTheSettingsWithAPresenceWordWritten) {
    const Resource envrc = fresh();
    EXPECT_FALSE(envrc->set("moveSignMode", "bus")); // a number here, a word in files
    EXPECT_EQ(saved(*envrc), golden());
    EXPECT_TRUE(envrc->set("moveSignMode", 0L));
    EXPECT_TRUE(envrc->set("zipText", "Off"));
    EXPECT_TRUE(envrc->set("doNotSelectUnvisiblePbox", "Off"));
    EXPECT_EQ(valueIn(*envrc, "moveSignMode"), "port");
    EXPECT_EQ(valueIn(*envrc, "zipText"), "Off");
    EXPECT_EQ(valueIn(*envrc, "doNotSelectUnvisiblePbox"), "Off");
}

} // namespace
} // namespace bexa::test
