// One row per key for the reader, the writer and the keyed setter.

#include "bexa/envrc/envrc_keys.h"

#include "bexa/foundation/rsc_entry_writers.h"
#include "tests/envrc/envrc_fixture.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <type_traits>
#include <variant>

namespace bexa::test {
namespace {

std::string shown(const char* value) {
    return value;
}
std::string shown(char value) {
    return {value};
}
std::string shown(double value) {
    return detail::realText(value);
}
std::string shown(Yangle value) {
    return detail::realText(value.degree());
}
template <class Number>
requires std::is_integral_v<Number> || std::is_enum_v<Number> std::string shown(Number value) {
    return std::to_string(static_cast<long>(value));
}

using Read = std::string (*)(const BexEnvrc&);
#define READ(reader) [](const BexEnvrc& envrc) { return shown(envrc.reader()); }

std::string gridRow(const BexEnvrc& envrc) {
    int count[2];
    long length[2];
    if (!envrc.gridTable(0, count[0], count[1], length[0], length[1])) return "";
    return shown(count[0]) + " " + shown(count[1]) + " " + shown(length[0]) + " " + shown(length[1]);
}
std::string symbolSize(const BexEnvrc& envrc) {
    char name[32];
    long n[4];
    if (!envrc.symSheetSize(0, name, n[0], n[1], n[2], n[3])) return "";
    return shown(name) + " " + shown(n[0]) + " " + shown(n[1]) + " " + shown(n[2]) + " " + shown(n[3]);
}
std::string schematicSize(const BexEnvrc& envrc) {
    char name[32];
    char frame[32];
    long n[4];
    int number = 0;
    if (!envrc.schSheetSize(0, name, n[0], n[1], n[2], n[3], number, frame)) return "";
    return shown(name) + " " + shown(n[0]) + " " + shown(n[1]) + " " + shown(n[2]) + " " + shown(n[3]) + " " +
           shown(number) + " " + shown(frame);
}
std::string attributeRow(const BexEnvrc& envrc) {
    char name[32];
    char value[32];
    return envrc.schSheetAttr(0, name, value) ? shown(name) + "=" + shown(value) : "";
}
// Nothing hands this value out: its row is checked by what is written.
std::string nothing(const BexEnvrc&) {
    return "-";
}

struct FileRow {
    const char* key;
    const char* entry; // what stands behind the key in a file
    Read read;
    const char* before; // what a new resource gives
    const char* after;  // what a resource gives that has read the entry
    const char* saved;  // what a save then writes behind the key; null for nothing
};

// Values that a setter would refuse are taken, and words in any case of letters.
// clang-format off
const FileRow fileRows[] = {
    {"screenTrap",                    " : 123456",             READ(screenTrap),                    "5",        "123456",        " : 123456\n"},
    {"panRatio",                      " : 7",                  READ(panRatio),                      "0.2",      "7",             " : 7\n"},
    {"zoomRatio",                     " : -2",                 READ(zoomRatio),                     "1.25",     "-2",            " : -2\n"},
    {"adjustRatio",                   " : 1e9",                READ(adjustRatio),                   "1.8",      "1e+09",         " : 1e+09\n"},
    {"dFocus",                        " : CPIN",               READ(dFocus),                        "0",        "15",            " : cPin\n"},
    {"areaMode",                      " : INTER",              READ(areaMode),                      "1",        "0",             " : inter\n"},
    {"roundRectCornerRadius",         " : 0",                  READ(roundRectCornerRadius),         "1",        "0",             " : 0\n"},
    {"gridTable",                     " 5 { 0 2 3 5 6 }",      gridRow,                             "1 4 10000 10000", "2 3 5000 6000", " 5 {\n\t0\t2\t3\t5\t6\n}\n"},
    {"inputGrid",                     " : OFF",                READ(inputGrid),                     "1",        "0",             " : Off\n"},
    {"echoGrid",                      " : OFF",                READ(echoGrid),                      "1",        "0",             " : Off\n"},
    {"gridColor",                     " : 7",                  READ(gridColor),                     "0",        "7",             " : 7\n"},
    {"symSheetSizeTable",             " 6 { 0 A4 -1 -2 3 4 }", symbolSize,                          "sym 0 0 10000 10000", "A4 -1000 -2000 3000 4000", " 6 {\n\t0\t\"A4\"\t-1\t-2\t3\t4\n}\n"},
    {"symSheetSizeColor",             " : 8",                  READ(symSheetSizeColor),             "0",        "8",             " : 8\n"},
    {"symSheetDispFlag",              " : OFF",                READ(symSheetDispFlag),              "1",        "0",             " : Off\n"},
    {"schSheetSizeTable",             " 8 { 0 A3 1 2 3 4 5 f }", schematicSize,                       "sch 0 0 297000 210000 0 waku", "A3 1000 2000 3000 4000 5 f", " 8 {\n\t0\t\"A3\"\t1\t2\t3\t4\t5\t\"f\"\n}\n"},
    {"schSheetAttrTable",             " 3 { 0 n \"v w\" }",    attributeRow,                        "",         "n=v w",         " 3 {\n\t0\t\"n\"\t\"v w\"\n}\n"},
    {"schSheetSizeColor",             " : 9",                  READ(schSheetSizeColor),             "0",        "9",             " : 9\n"},
    {"schSheetDispFlag",              " : OFF",                READ(schSheetDispFlag),              "1",        "0",             " : Off\n"},
    {"symbolPath",                    " : 3",                  READ(symbolPath),                    "0",        "3",             " : 3\n"},
    {"cScale",                        " : 0.001",              READ(cScale),                        "1",        "0.001",         " : 0.001\n"},
    {"cPvScaleFlag",                  " : OFF",                READ(cPvScaleFlag),                  "1",        "0",             " : Off\n"},
    {"cAngle",                        " : -90",                READ(cAngle),                        "0",        "-90",           " : -90\n"},
    {"cSearchFlag",                   " : OFF",                READ(cSearchFlag),                   "1",        "0",             " : Off\n"},
    {"cCutinFlag",                    " : on",                 READ(cCutinFlag),                    "0",        "1",             " : On\n"},
    {"netInputMode",                  " : semiauto",           READ(netInputMode),                  "0",        "1",             " : semiAuto\n"},
    {"nSearchFlag",                   " : OFF",                READ(nSearchFlag),                   "1",        "0",             " : Off\n"},
    {"busInputMode",                  " : auto",               READ(busInputMode),                  "0",        "2",             " : Auto\n"},
    {"bSearchFlag",                   " : on",                 READ(bSearchFlag),                   "0",        "1",             " : On\n"},
    {"netTheta",                      " : 720",                READ(netTheta),                      "90",       "720",           " : 720\n"},
    {"slide",                         " : on",                 READ(slide),                         "0",        "1",             " : On\n"},
    {"mvSearchFlag",                  " : on",                 READ(mvSearchFlag),                  "0",        "1",             " : On\n"},
    {"mvPvGridFlag",                  " : on",                 READ(mvPvGridFlag),                  "0",        "1",             " : On\n"},
    {"cpSearchFlag",                  " : on",                 READ(cpSearchFlag),                  "0",        "1",             " : On\n"},
    {"pasteSearchFlag",               " : on",                 READ(pasteSearchFlag),               "0",        "1",             " : On\n"},
    {"deleteWithNet",                 " : on",                 READ(deleteWithNet),                 "0",        "1",             " : On\n"},
    {"netDupCheck",                   " : OFF",                READ(netDupCheck),                   "1",        "0",             " : Off\n"},
    {"swapSConnMode",                 " : CPIN",               READ(swapSConnMode),                 "0",        "1",             " : cpin\n"},
    {"swapSDisconnChgPin",            " : on",                 READ(swapSDisconnChgPin),            "0",        "1",             " : On\n"},
    {"cpNetLabelIncrement",           " : 100000",             READ(cpNetLabelIncrement),           "1",        "100000",        " : 100000\n"},
    {"cbufWithNetLabel",              " : off",                READ(cbufWithNetLabel),              "0",        "1",             " : Off\n"},
    {"cbufWithReference",             " : cut",                READ(cbufWithReference),             "0",        "3",             " : Cut\n"},
    {"ripperStyle",                   " : curl",               READ(ripperStyle),                   "0",        "2",             " : Curl\n"},
    {"ripperDir",                     " : ccw",                READ(ripperDir),                     "0",        "1",             " : CCW\n"},
    {"pvJustify",                     " : upperright",         READ(pvJustify),                     "0",        "10",            " : upperRight\n"},
    {"pvAngle",                       " : 0.5",                READ(pvAngle),                       "0",        "0.5",           " : 0.5\n"},
    {"pvDispMode",                    " : namevalue",          READ(pvDispMode),                    "0",        "1",             " : NameValue\n"},
    {"pvOffsetFromObjX",              " : -2.5",               READ(pvOffsetFromObjX),              "2000",     "-2500",         " : -2.5\n"},
    {"pvOffsetFromObjY",              " : 0.0005",             READ(pvOffsetFromObjY),              "2000",     "1",             " : 0.0005\n"},
    {"lineInputMode",                 " : SEMIAUTO",           READ(lineInputMode),                 "0",        "1",             " : semiAuto\n"},
    {"lineTheta",                     " : 30",                 READ(lineTheta),                     "0",        "30",            " : 30\n"},
    {"circleInputMode",               " : edge",               READ(circleInputMode),               "0",        "2",             " : edge\n"},
    {"circleRadius",                  " : 200000",             READ(circleRadius),                  "10000",    "200000000",     " : 200000\n"},
    {"textJustify",                   " : lowercenter",        READ(textJustify),                   "0",        "1",             " : lowerCenter\n"},
    {"textAngle",                     " : 400",                READ(textAngle),                     "0",        "400",           " : 400\n"},
    {"sPinDispFlag",                  " : OFF",                READ(sPinDispFlag),                  "1",        "0",             " : Off\n"},
    {"zonePitchX",                    " : -5",                 READ(zonePitchX),                    "50000",    "-5000",         " : -5\n"},
    {"zonePitchY",                    " : 0",                  READ(zonePitchY),                    "50000",    "0",             " : 0\n"},
    {"zoneStartTextX",                " : xyz",                READ(zoneStartTextX),                "A",        "x",             " : x\n"},
    {"zoneStartTextY",                " : *",                  READ(zoneStartTextY),                "1",        "*",             " : *\n"},
    {"zoneOrigin",                    " : upright",            READ(zoneOrigin),                    "2",        "3",             " : UpRight\n"},
    {"zoneDispFlag",                  " : OFF",                READ(zoneDispFlag),                  "1",        "0",             " : Off\n"},
    {"zoneOffsetX",                   " : -7",                 READ(zoneOffsetX),                   "0",        "-7000",         " : -7\n"},
    {"zoneOffsetY",                   " : 8",                  READ(zoneOffsetY),                   "0",        "8000",          " : 8\n"},
    {"zoneOffsetMode",                " : centercross",        READ(zoneOffsetMode),                "0",        "2",             " : CenterCross\n"},
    {"compIDDispFlag",                " : on",                 READ(compIDDispFlag),                "0",        "1",             " : On\n"},
    {"netIDDispFlag",                 " : on",                 READ(netIDDispFlag),                 "0",        "1",             " : On\n"},
    {"cPinIDDispFlag",                " : on",                 READ(cPinIDDispFlag),                "0",        "1",             " : On\n"},
    {"sPinIDDispFlag",                " : on",                 READ(sPinIDDispFlag),                "0",        "1",             " : On\n"},
    {"pvIDDispFlag",                  " : on",                 READ(pvIDDispFlag),                  "0",        "1",             " : On\n"},
    {"backupTime",                    " : 0",                  READ(backupTime),                    "10",       "0",             " : 0\n"},
    {"undoLimit",                     " : 5000",               READ(undoLimit),                     "50",       "5000",          " : 5000\n"},
    {"openCheckMarkFlag",             " : OFF",                READ(openCheckFlag),                 "1",        "0",             " : Off\n"},
    {"openCheckMarkColor",            " : 11",                 READ(openCheckMarkColor),            "2",        "11",            " : 11\n"},
    {"liftPointCPin",                 " : OFF",                READ(liftPointCPin),                 "1",        "0",             " : Off\n"},
    {"dispRoute",                     " : on",                 READ(dispRoute),                     "0",        "1",             " : On\n"},
    {"measureColor",                  " : 12",                 READ(measureColor),                  "1",        "12",            " : 12\n"},
    {"measureFontForUNIX",            " : 9x15",               nothing,                             "-",        "-",             " : \"9x15\"\n"},
    {"measureFontForWIN",             " : \"Courier/9/Bold\"", READ(measureFont),                   "FixedSys/12/Normal", "Courier/9/Bold", " : \"Courier/9/Bold\"\n"},
    {"measureDisp",                   " : RELATIVE",           READ(measureDisp),                   "0",        "2",             " : relative\n"},
    {"measurePos",                    " : FIXED",              READ(measurePos),                    "0",        "1",             " : fixed\n"},
    {"dynamicScroll",                 " : OFF",                READ(dynamicScroll),                 "1",        "0",             " : Off\n"},
    {"chgNetLabelScope",              " : connection",         READ(chgNetLabelScope),              "2",        "3",             " : Connection\n"},
    {"chgNetLabelDispFlag",           " : OFF",                READ(chgNetLabelDispFlag),           "1",        "0",             " : Off\n"},
    {"chgNetLabelAutoRefMode",        " : on",                 READ(chgNetLabelAutoRefMode),        "0",        "1",             " : On\n"},
    {"chgNetLabelListHeightSize",     " : 200",                READ(chgNetLabelListHeightSize),     "5",        "200",           " : 200\n"},
    {"chgNetLabelViewSelectBusLabel", " : OFF",                READ(chgNetLabelViewSelectBusLabel), "1",        "0",             " : Off\n"},
    {"selectNetDialogBootMode",       " : on",                 READ(selectNetDialogBootMode),       "0",        "1",             " : On\n"},
    {"cpsSelectMode",                 " : Adjust",             READ(cpsSelectMode),                 "0",        "2",             " : adjust\n"},
    {"cpsSearchMode",                 " : allsheet",           READ(cpsSearchMode),                 "0",        "2",             " : allSheet\n"},
    {"UnloadedSymbolCheck",           " : CHECK",              READ(UnloadedSymbolCheck),           "2",        "1",             " : check\n"},
    {"UpdatedSymbolCheckFlag",        " : OFF",                READ(UpdatedSymbolCheck),            "1",        "0",             " : Off\n"},
    {"symbDefaultcompType",           " : gnd|NET",            READ(symbDefaultcompType),           "0",        "65",            " : net|gnd\n"},
    {"saveAreaFlag",                  " : OFF",                READ(saveArea),                      "1",        "0",             " : Off\n"},
    {"BlockCheckTiming",              " : none",               READ(BlockCheckTiming),              "0",        "3",             " : None\n"},
    {"moveSignMode",                  " : BUS",                READ(moveSignMode),                  "0",        "1",             " : bus\n"},
    {"dynPanFlag",                    " : on",                 READ(dynamicPan),                    "0",        "1",             " : On\n"},
    {"autoSaveRuleCheck",             " : instance",           READ(autoSaveRuleCheck),             "0",        "3",             " : Instance\n"},
    {"autoSaveReload",                " : on",                 READ(autoSaveReload),                "0",        "1",             " : On\n"},
    {"autoSaveReloadKeyName",         " : \"key\"",            READ(autoSaveReloadKeyName),         "partName", "key",           " : \"key\"\n"},
    {"autoSaveReloadRscFile",         " : reload.rsc",         READ(autoSaveReloadRscFile),         "",         "reload.rsc",    " : \"reload.rsc\"\n"},
    {"zipText",                       " : on",                 READ(zipText),                       "0",        "1",             " : On\n"},
    {"doNotSelectUnvisiblePbox",      " : on",                 READ(doNotSelectUnivisiblePbox),     "0",        "1",             " : On\n"},
    {"dProject",                      " : \"p q\"",            READ(dProject),                      ".",        "p q",           nullptr},
    {"logfile",                       " : log",                READ(logfile),                       "logfile",  "log",           nullptr},
    {"mcpSearchFlag",                 " : on",                 READ(mcpSearchFlag),                 "0",        "1",             nullptr},
};
// clang-format on

class EnvrcKeys : public EnvrcFixture {};

TEST_F(EnvrcKeys, OfFilesHaveARowHere) {
    std::multiset<std::string> rows;
    std::multiset<std::string> keys;
    for (const FileRow& row : fileRows) rows.insert(row.key);
    for (const detail::EnvrcSetting& setting : detail::envrcSettings()) {
        if (setting.load.taken) keys.insert(std::string(setting.key));
    }
    EXPECT_EQ(rows, keys);
}

TEST_F(EnvrcKeys, AreReadAndWritten) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        EXPECT_EQ(row.read(*fresh()), row.before);
        EXPECT_TRUE(row.read == nothing || std::string(row.before) != row.after);
        EXPECT_FALSE(row.saved && entryOf(golden(), row.key).value_or("").starts_with(row.saved));

        const Resource envrc = loaded(std::string(row.key) + row.entry + "\n");
        ASSERT_TRUE(envrc);
        EXPECT_EQ(row.read(*envrc), row.after);

        const std::string text = saved(*envrc);
        const auto entry = entryOf(text, row.key);
        ASSERT_EQ(entry.has_value(), row.saved != nullptr);
        if (!row.saved) continue;
        EXPECT_EQ(entry->substr(0, std::string_view(row.saved).size()), row.saved);
        const Resource again = loaded(text);
        ASSERT_TRUE(again);
        EXPECT_EQ(row.read(*again), row.after);
        EXPECT_EQ(saved(*again), text);
    }
}

// No other setting moves: a save differs from the file of a fresh resource in this entry alone.
TEST_F(EnvrcKeys, ChangeNothingButTheirOwnEntry) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        std::string text = saved(*loaded(std::string(row.key) + row.entry + "\n"));
        std::string expected = golden();
        if (row.saved) {
            const std::string entry = row.key + std::string(row.saved);
            text.erase(text.find("\n" + entry) + 1, entry.size());
        }
        if (const auto entry = entryOf(expected, row.key)) {
            const std::size_t at = expected.size() - entry->size() - std::string_view(row.key).size();
            const std::string_view end = row.entry[1] == ':' ? "\n" : "}\n";
            expected.erase(at, expected.find(end, at) + end.size() - at);
        }
        EXPECT_EQ(text, expected);
    }
}

std::string withOtherCase(std::string key) {
    for (char& c : key) {
        const auto letter = static_cast<unsigned char>(c);
        c = static_cast<char>(std::islower(letter) ? std::toupper(letter) : std::tolower(letter));
    }
    return key;
}

TEST_F(EnvrcKeys, OfFilesAreComparedWithoutCase) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        const Resource envrc = loaded(withOtherCase(row.key) + row.entry + "\n");
        ASSERT_TRUE(envrc);
        EXPECT_EQ(row.read(*envrc), row.after);
        EXPECT_EQ(row.read(*loaded(std::string(row.key) + "x" + row.entry + "\n")), row.before);
    }
}

TEST_F(EnvrcKeys, WithoutAValueKeepWhatWasThere) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        for (const char* entry : {"", " \n", " {\n}\n", " nextKey : 1\n", " 99 {\n\t0\t1\n}\n"}) {
            const Resource envrc = loaded(row.key + std::string(entry));
            ASSERT_TRUE(envrc) << entry;
            EXPECT_EQ(saved(*envrc), golden()) << entry;
        }
    }
}

using Value = std::variant<long, double, const char*, char>;

struct SetRow {
    const char* key;
    Value value;
    Read read;
    const char* before;
    const char* after;
};

// clang-format off
const SetRow setRows[] = {
    {"screenTrap",                    7L,             READ(screenTrap),                    "5",                  "7"},
    {"panRatio",                      0.5,            READ(panRatio),                      "0.2",                "0.5"},
    {"zoomRatio",                     2.0,            READ(zoomRatio),                     "1.25",               "2"},
    {"adjustRatio",                   0.25,           READ(adjustRatio),                   "1.8",                "0.25"},
    {"dFocus",                        "sNet",         READ(dFocus),                        "0",                  "8"},
    {"areaMode",                      "inter",        READ(areaMode),                      "1",                  "0"},
    {"roundRectCornerRadius",         2.5,            READ(roundRectCornerRadius),         "1",                  "2.5"},
    {"inputGrid",                     "Off",          READ(inputGrid),                     "1",                  "0"},
    {"echoGrid",                      "Off",          READ(echoGrid),                      "1",                  "0"},
    {"gridColor",                     -1L,            READ(gridColor),                     "0",                  "4294967295"},
    {"symSheetSizeColor",             3L,             READ(symSheetSizeColor),             "0",                  "3"},
    {"symSheetDispFlag",              "Off",          READ(symSheetDispFlag),              "1",                  "0"},
    {"schSheetSizeColor",             4L,             READ(schSheetSizeColor),             "0",                  "4"},
    {"schSheetDispFlag",              "Off",          READ(schSheetDispFlag),              "1",                  "0"},
    {"symbolPath",                    -1L,            READ(symbolPath),                    "0",                  "-1"},
    {"cScale",                        50.0,           READ(cScale),                        "1",                  "50"},
    {"cPvScaleFlag",                  "Off",          READ(cPvScaleFlag),                  "1",                  "0"},
    {"cAngle",                        180.0,          READ(cAngle),                        "0",                  "180"},
    {"cSearchFlag",                   "Off",          READ(cSearchFlag),                   "1",                  "0"},
    {"cCutinFlag",                    "On",           READ(cCutinFlag),                    "0",                  "1"},
    {"netInputMode",                  "Auto",         READ(netInputMode),                  "0",                  "2"},
    {"nSearchFlag",                   "Off",          READ(nSearchFlag),                   "1",                  "0"},
    {"busInputMode",                  "semiAuto",     READ(busInputMode),                  "0",                  "1"},
    {"bSearchFlag",                   "On",           READ(bSearchFlag),                   "0",                  "1"},
    {"netTheta",                      45.0,           READ(netTheta),                      "90",                 "45"},
    {"slide",                         "On",           READ(slide),                         "0",                  "1"},
    {"mvSearchFlag",                  "On",           READ(mvSearchFlag),                  "0",                  "1"},
    {"mvPvGridFlag",                  "On",           READ(mvPvGridFlag),                  "0",                  "1"},
    {"cpSearchFlag",                  "On",           READ(cpSearchFlag),                  "0",                  "1"},
    {"pasteSearchFlag",               "On",           READ(pasteSearchFlag),               "0",                  "1"},
    {"deleteWithNet",                 "On",           READ(deleteWithNet),                 "0",                  "1"},
    {"netDupCheck",                   "Off",          READ(netDupCheck),                   "1",                  "0"},
    {"swapSConnMode",                 "CPin",         READ(swapSConnMode),                 "0",                  "1"},
    {"swapSDisconnChgPin",            "On",           READ(swapSDisconnChgPin),            "0",                  "1"},
    {"cpNetLabelIncrement",           2L,             READ(cpNetLabelIncrement),           "1",                  "2"},
    {"cbufWithNetLabel",              "Cut",          READ(cbufWithNetLabel),              "0",                  "3"},
    {"cbufWithReference",             "Off",          READ(cbufWithReference),             "0",                  "1"},
    {"ripperStyle",                   "Hook",         READ(ripperStyle),                   "0",                  "1"},
    {"ripperDir",                     "CCW",          READ(ripperDir),                     "0",                  "1"},
    {"pvJustify",                     "centerCenter", READ(pvJustify),                     "0",                  "5"},
    {"pvAngle",                       360.0,          READ(pvAngle),                       "0",                  "360"},
    {"pvDispMode",                    "NameValue",    READ(pvDispMode),                    "0",                  "1"},
    {"pvOffsetFromObjX",              0.0,            READ(pvOffsetFromObjX),              "2000",               "0"},
    {"pvOffsetFromObjY",              1.5,            READ(pvOffsetFromObjY),              "2000",               "1500"},
    {"lineInputMode",                 "semiAuto",     READ(lineInputMode),                 "0",                  "1"},
    {"lineTheta",                     15.0,           READ(lineTheta),                     "0",                  "15"},
    {"circleInputMode",               "radius",       READ(circleInputMode),               "0",                  "1"},
    {"circleRadius",                  0.25,           READ(circleRadius),                  "10000",              "250"},
    {"textJustify",                   "upperLeft",    READ(textJustify),                   "0",                  "8"},
    {"textAngle",                     270.0,          READ(textAngle),                     "0",                  "270"},
    {"sPinDispFlag",                  "Off",          READ(sPinDispFlag),                  "1",                  "0"},
    {"zonePitchX",                    25.0,           READ(zonePitchX),                    "50000",              "25000"},
    {"zonePitchY",                    75.0,           READ(zonePitchY),                    "50000",              "75000"},
    {"zoneStartTextX",                'b',            READ(zoneStartTextX),                "A",                  "B"},
    {"zoneStartTextY",                '9',            READ(zoneStartTextY),                "1",                  "9"},
    {"zoneOrigin",                    "DownLeft",     READ(zoneOrigin),                    "2",                  "0"},
    {"zoneDispFlag",                  "Off",          READ(zoneDispFlag),                  "1",                  "0"},
    {"zoneOffsetX",                   1.0,            READ(zoneOffsetX),                   "0",                  "1000"},
    {"zoneOffsetY",                   2.0,            READ(zoneOffsetY),                   "0",                  "2000"},
    {"zoneOffsetMode",                "CenterEnd",    READ(zoneOffsetMode),                "0",                  "1"},
    {"compIDDispFlag",                "On",           READ(compIDDispFlag),                "0",                  "1"},
    {"netIDDispFlag",                 "On",           READ(netIDDispFlag),                 "0",                  "1"},
    {"cPinIDDispFlag",                "On",           READ(cPinIDDispFlag),                "0",                  "1"},
    {"sPinIDDispFlag",                "On",           READ(sPinIDDispFlag),                "0",                  "1"},
    {"pvIDDispFlag",                  "On",           READ(pvIDDispFlag),                  "0",                  "1"},
    {"backupTime",                    99999L,         READ(backupTime),                    "10",                 "99999"},
    {"undoLimit",                     1L,             READ(undoLimit),                     "50",                 "1"},
    {"openCheckMarkFlag",             "Off",          READ(openCheckFlag),                 "1",                  "0"},
    {"openCheckMarkColor",            5L,             READ(openCheckMarkColor),            "2",                  "5"},
    {"liftPointCPin",                 "Off",          READ(liftPointCPin),                 "1",                  "0"},
    {"dispRoute",                     "On",           READ(dispRoute),                     "0",                  "1"},
    {"measureColor",                  6L,             READ(measureColor),                  "1",                  "6"},
    {"measureDisp",                   "absolute",     READ(measureDisp),                   "0",                  "1"},
    {"measurePos",                    "fixed",        READ(measurePos),                    "0",                  "1"},
    {"dynamicScroll",                 "Off",          READ(dynamicScroll),                 "1",                  "0"},
    {"chgNetLabelScope",              "allNet",       READ(chgNetLabelScope),              "2",                  "0"},
    {"chgNetLabelDispFlag",           "Off",          READ(chgNetLabelDispFlag),           "1",                  "0"},
    {"chgNetLabelAutoRefMode",        "On",           READ(chgNetLabelAutoRefMode),        "0",                  "1"},
    {"chgNetLabelListHeightSize",     6L,             READ(chgNetLabelListHeightSize),     "5",                  "6"},
    {"chgNetLabelViewSelectBusLabel", "Off",          READ(chgNetLabelViewSelectBusLabel), "1",                  "0"},
    {"selectNetDialogBootMode",       "On",           READ(selectNetDialogBootMode),       "0",                  "1"},
    {"cpsSelectMode",                 "center",       READ(cpsSelectMode),                 "0",                  "1"},
    {"cpsSearchMode",                 "toFind",       READ(cpsSearchMode),                 "0",                  "1"},
    {"UnloadedSymbolCheck",           "Off",          READ(UnloadedSymbolCheck),           "2",                  "0"},
    {"UpdatedSymbolCheckFlag",        "Off",          READ(UpdatedSymbolCheck),            "1",                  "0"},
    {"symbDefaultcompType",           "block|parts",  READ(symbDefaultcompType),           "0",                  "20"},
    {"saveAreaFlag",                  "Off",          READ(saveArea),                      "1",                  "0"},
    {"BlockCheckTiming",              "SheetSave",    READ(BlockCheckTiming),              "0",                  "2"},
    {"moveSignMode",                  1L,             READ(moveSignMode),                  "0",                  "1"},
    {"dynPanFlag",                    "On",           READ(dynamicPan),                    "0",                  "1"},
    {"autoSaveRuleCheck",             "Definition",   READ(autoSaveRuleCheck),             "0",                  "2"},
    {"autoSaveReload",                "On",           READ(autoSaveReload),                "0",                  "1"},
    {"autoSaveReloadKeyName",         "name",         READ(autoSaveReloadKeyName),         "partName",           "name"},
    {"autoSaveReloadRscFile",         "r",            READ(autoSaveReloadRscFile),         "",                   "r"},
    {"zipText",                       "On",           READ(zipText),                       "0",                  "1"},
    {"doNotSelectUnvisiblePbox",      "On",           READ(doNotSelectUnivisiblePbox),     "0",                  "1"},
    {"dProject",                      "proj",         READ(dProject),                      ".",                  "proj"},
    {"logfile",                       "l",            READ(logfile),                       "logfile",            "l"},
    {"mcpSearchFlag",                 "On",           READ(mcpSearchFlag),                 "0",                  "1"},
    {"chgNetLabelListWidthSize",      15L,            READ(chgNetLabelListWidthSize),      "30",                 "15"},
    {"measureFont",                   "Arial/8",      READ(measureFont),                   "FixedSys/12/Normal", "Arial/8"},
};
// clang-format on

unsigned long setAny(BexEnvrc& envrc, const std::string& key, const Value& value) {
    return std::visit([&](auto typed) { return envrc.set(key.c_str(), typed); }, value);
}

TEST_F(EnvrcKeys, OfSettersHaveARowHere) {
    std::multiset<std::string> rows;
    std::multiset<std::string> keys;
    for (const SetRow& row : setRows) rows.insert(row.key);
    for (const detail::EnvrcSetting& setting : detail::envrcSettings()) {
        if (setting.set.kind != detail::EnvrcSetRule::NoSetter) keys.insert(std::string(setting.key));
    }
    EXPECT_EQ(rows, keys);
}

TEST_F(EnvrcKeys, AreSetInAnyCaseOfLetters) {
    for (const SetRow& row : setRows) {
        SCOPED_TRACE(row.key);
        for (const std::string& key : {std::string(row.key), withOtherCase(row.key)}) {
            const Resource envrc = fresh();
            EXPECT_EQ(row.read(*envrc), row.before);
            EXPECT_STRNE(row.before, row.after);
            EXPECT_TRUE(setAny(*envrc, key, row.value));
            EXPECT_EQ(row.read(*envrc), row.after);
        }
    }
}

TEST_F(EnvrcKeys, AreSetByTheOverloadOfTheirTypeOnly) {
    const Value values[] = {1L, 1.0, "On", "1", '1'};
    for (const SetRow& row : setRows) {
        SCOPED_TRACE(row.key);
        const Resource envrc = fresh();
        for (const Value& value : values) {
            if (value.index() == row.value.index()) continue;
            EXPECT_FALSE(setAny(*envrc, row.key, value));
        }
        EXPECT_EQ(row.read(*envrc), row.before);
        EXPECT_EQ(saved(*envrc), golden());
    }
}

TEST_F(EnvrcKeys, WithoutASetterAreRefused) {
    const Value values[] = {0L, 1.0, "On", 'x'};
    std::set<std::string> settable;
    for (const SetRow& row : setRows) settable.insert(row.key);
    const Resource envrc = fresh();
    for (const detail::EnvrcSetting& setting : detail::envrcSettings()) {
        const std::string key(setting.key);
        if (settable.count(key)) continue;
        for (const Value& value : values) EXPECT_FALSE(setAny(*envrc, key, value)) << key;
    }
    for (const Value& value : values) {
        for (const char* key : {"", "nosuch", "undoLimit ", "undoLimi"})
            EXPECT_FALSE(setAny(*envrc, key, value));
    }
    EXPECT_FALSE(envrc->set(nullptr, 1L));
    EXPECT_FALSE(envrc->set(nullptr, "On"));
    EXPECT_EQ(saved(*envrc), golden());
}

} // namespace
} // namespace bexa::test
