// One row per key for the reader, the writer and the keyed setter.

#include "bexa/circuitrc/datarc_keys.h"

#include "tests/circuitrc/datarc_fixture.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <string>
#include <variant>

namespace bexa::test {
namespace {

std::string shown(char value) {
    return {value};
}
std::string shown(int value) {
    return std::to_string(value);
}
std::string shown(unsigned int value) {
    return std::to_string(value);
}
std::string shown(long value) {
    return std::to_string(value);
}
std::string shown(unsigned long value) {
    return std::to_string(value);
}
std::string shown(const YString& value) {
    return static_cast<const char*>(value);
}

using Read = std::string (*)(const BexDatarc&);
#define READ(reader) [](const BexDatarc& rc) { return shown(rc.reader()); }

std::string markOf(const BexDatarc& rc) {
    unsigned long flag = 0;
    YString mark;
    YString name;
    if (!rc.variationMark(flag, &mark, &name)) return "refused";
    return std::to_string(flag) + shown(mark) + shown(name);
}

std::string busDisplayOf(const BexDatarc& rc) {
    int flag = 0;
    YString separator;
    YString crown;
    rc.busNSimpleDispMode(flag, &separator, &crown);
    return std::to_string(flag) + shown(separator) + shown(crown);
}

std::string textStyleOf(const BexDatarc& rc) {
    YString name;
    rc.textSize(1, nullptr, nullptr, nullptr, nullptr, nullptr, &name);
    return shown(name);
}
std::string lineWidthOf(const BexDatarc& rc) {
    long width = 0;
    rc.lineWidth(1, &width);
    return shown(width);
}
std::string lineStyleOf(const BexDatarc& rc) {
    YString name;
    rc.lineStyle(1, nullptr, nullptr, nullptr, &name);
    return shown(name);
}
std::string fillStyleOf(const BexDatarc& rc) {
    YString name;
    rc.fillStyle(1, nullptr, nullptr, nullptr, nullptr, nullptr, &name);
    return shown(name);
}
template <unsigned long (BexDatarc::*reader)(unsigned int, YString*, YString*) const>
std::string directoryOf(const BexDatarc& rc) {
    YString path;
    (rc.*reader)(0, &path, nullptr);
    return shown(path);
}

// Rows that the defaults below can point at.
const std::string moreRows = "textTable 9 {\n\t1\t1\t1\t0\t0\t0\t\"-\"\t\"-\"\t\"second\"\n}\n"
                             "lineWidth 2 {\n\t1\t0.5\n}\n";

struct FileRow {
    const char* key;
    const char* entry; // what stands behind the key in a file
    Read read;
    const char* before; // what a new resource gives
    const char* after;  // what a resource gives that has read the entry
    const char* saved;  // what a save then writes behind the key; null for nothing
};

// clang-format off
const FileRow fileRows[] = {
    {"nlogicStartChar",          " : \"<\"",     READ(nlogicStartChar),          "(",   "<",  " : \"<\"\n"},
    {"nlogicEndChar",            " : >",         READ(nlogicEndChar),            ")",   ">",  " : \">\"\n"},
    {"busStartChar",             " : \"{\"",     READ(busStartChar),             "[",   "{",  " : \"{\"\n"},
    {"busEndChar",               " : \"}\"",     READ(busEndChar),               "]",   "}",  " : \"}\"\n"},
    {"bitEndChar",               " : \";x\"",    READ(bitEndChar),               ",",   ";",  " : \";\"\n"},
    {"rangeEndChar",             " : \":\"",     READ(rangeEndChar),             "-",   ":",  " : \":\"\n"},
    {"rangeStepChar",            " : \"/\"",     READ(rangeStepChar),            "-",   "/",  " : \"/\"\n"},
    {"nodeSize",                 " : 2.5",       READ(nodeSize),                 "2000", "2500",   " : 2.5\n"},
    {"cornerRadius",             " : 1e3",       READ(cornerRadius),             "10000", "1000000", " : 1000\n"},
    {"dataTrap",                 " : -0.25",     READ(dataTrap),                 "500", "-250", " : -0.25\n"},
    {"textTable",                " 9 { 1 1 2 0 0 0 \"s\" \"d\" \"big\" }", textStyleOf, "", "big",
                                 " 9 {\n\t0\t10\t10\t0\t0\t0\t\"-\"\t\"-\"\t\"def\"\n\t1\t1\t2\t0\t0\t0\t\"s\"\t\"d\"\t\"big\"\n}\n"},
    {"lineWidth",                " 2 { 1 0.25 }", lineWidthOf,                   "0", "250", " 2 {\n\t0\t0\n\t1\t0.25\n}\n"},
    {"lineStyleTable",           " 5 { 1 4 2 9 \"dots\" }", lineStyleOf,         "dash", "dots",
                                 " 5 {\n\t0\t0\t0\t0\t\"solid\"\n\t1\t4\t2\t0\t\"dots\"\n\t2\t10\t2\t5\t\"dash1\"\n\t3\t10\t2\t5\t\"dash2\"\n}\n"},
    {"fillStyleTable",           " 7 { 1 2 4 5 45 90 \"hatch\" }", fillStyleOf,  "solid", "hatch",
                                 " 7 {\n\t0\t0\t0\t0\t0\t0\t\"none\"\n\t1\t2\t4\t0\t45\t0\t\"hatch\"\n}\n"},
    {"defaultCompColor",         " : 3",         READ(defaultCompColor),         "-1",  "3",  " : 3\n"},
    {"defaultFrameColor",        " : 14",        READ(defaultFrameColor),        "0",   "14", " : 14\n"},
    {"defaultNetColor",          " : 4",         READ(defaultNetColor),          "0",   "4",  " : 4\n"},
    {"defaultBusColor",          " : 5",         READ(defaultBusColor),          "0",   "5",  " : 5\n"},
    {"defaultLineColor",         " : 6",         READ(defaultLineColor),         "0",   "6",  " : 6\n"},
    {"defaultCircleColor",       " : 7",         READ(defaultCircleColor),       "0",   "7",  " : 7\n"},
    {"defaultTextColor",         " : 8",         READ(defaultTextColor),         "0",   "8",  " : 8\n"},
    {"defaultPropertyColor",     " : 9",         READ(defaultPropBoxColor),      "0",   "9",  " : 9\n"},
    {"defaultSymbFrameColor",    " : 10",        READ(defaultSymbFrameColor),    "13",  "10", " : 10\n"},
    {"defaultSymbSheetColor",    " : 11",        READ(defaultSymbSheetColor),    "0",   "11", nullptr},
    {"defaultSchmSheetColor",    " : 12",        READ(defaultSchmSheetColor),    "0",   "12", nullptr},
    {"defaultLineWidth",         " : 1",         READ(defaultLineWidth),         "0",   "1",  " : 1\n"},
    {"defaultFrameLineWidth",    " : 1",         READ(defaultFrameLineWidth),    "0",   "1",  " : 1\n"},
    {"defaultNetLineWidth",      " : 1",         READ(defaultNetLineWidth),      "0",   "1",  " : 1\n"},
    {"defaultBusLineWidth",      " : 1",         READ(defaultBusLineWidth),      "0",   "1",  " : 1\n"},
    {"defaultCircleLineWidth",   " : 1",         READ(defaultCircleLineWidth),   "0",   "1",  " : 1\n"},
    {"defaultLineStyle",         " : 1",         READ(defaultLineStyle),         "0",   "1",  " : 1\n"},
    {"defaultFrameLineStyle",    " : 2",         READ(defaultFrameLineStyle),    "0",   "2",  " : 2\n"},
    {"defaultNetLineStyle",      " : 3",         READ(defaultNetLineStyle),      "0",   "3",  " : 3\n"},
    {"defaultBusLineStyle",      " : 1",         READ(defaultBusLineStyle),      "0",   "1",  " : 1\n"},
    {"defaultCircleLineStyle",   " : 2",         READ(defaultCircleLineStyle),   "0",   "2",  " : 2\n"},
    {"defaultFillStyle",         " : 1",         READ(defaultFillStyle),         "0",   "1",  " : 1\n"},
    {"defaultCircleFillStyle",   " : 1",         READ(defaultCircleFillStyle),   "0",   "1",  nullptr},
    {"defaultTextFont",          " : 1",         READ(defaultTextFont),          "0",   "1",  " : 1\n"},
    {"defaultPropertyFont",      " : 1",         READ(defaultPropBoxFont),       "0",   "1",  " : 1\n"},
    {"symbPathTable",            " 3 { 0 \"s\" \"/s\" }", directoryOf<&BexDatarc::symbPath>, ".", "/s", " 3 {\n\t0\t\"s\"\t\"/s\"\n}\n"},
    {"contPathTable",            " 3 { 0 \"c\" \"/c\" }", directoryOf<&BexDatarc::contPath>, ".", "/c", " 3 {\n\t0\t\"c\"\t\"/c\"\n}\n"},
    {"lcdbPathTable",            " 3 { 0 \"l\" \"/l\" }", directoryOf<&BexDatarc::lcdbPath>, ".", "/l", " 3 {\n\t0\t\"l\"\t\"/l\"\n}\n"},
    {"propDispNum",              " : 7",         READ(propDispNum),              "-1",  "7",  " : 7\n"},
    {"contentsViewer",           " : 0",         READ(contentsViewer),           "1",   "0",  " : 0\t\t\t# (1:VISIBLE 0:UNVISIBLE)\n"},
    {"contentsFrameIsVisible",   " : -5",        READ(contentsFrameIsVisible),   "1",   "-5", " : -5\t\t# (1:VISIBLE 0:UNVISIBLE)\n"},
    {"contentsUnvisibleCmpType", " : \"gate|parts\"", READ(contentsUnvisibleCmpType), "None", "gate|parts",
                                 " : \"gate|parts\"\t\t# (ex. \"gate|parts|vcc....\")\n"},
    {"vmarkFlag",                " : ON",        markOf,                         "0*reference", "1*reference", " : On\n"},
    {"vmarkStr",                 " : \"@\"",     markOf,                         "0*reference", "0@reference", " : \"@\"\n"},
    {"vmarkPname",               " : mark",      markOf,                         "0*reference", "0*mark", " : \"mark\"\n"},
    {"noMountAliasName",         " : \"nm\"",    READ(noMountAliasName),         "noMount", "nm", " : \"nm\"\n"},
    {"noMountAliasValue",        " : \"yes\"",   READ(noMountAliasValue),        "",    "yes", " : \"yes\"\n"},
    {"noMountDispStyle",         " : 3",         READ(noMountDispStyle),         "0",   "3",  " : 3\t\t# (0:Normal 1:NoDisp 2:Grid 3:Dash)\n"},
    {"nplNoMountCompAliasName",  " : \"nc\"",    READ(nplNoMountCompAliasName),  "noMountComponent", "nc", " : \"nc\"\n"},
    {"nplNoMountCompAliasValue", " : \"on\"",    READ(nplNoMountCompAliasValue), "",    "on", " : \"on\"\n"},
    {"nplNoMountCompDispStyle",  " : 2",         READ(nplNoMountCompDispStyle),  "0",   "2",  " : 2\t\t# (0:Normal 1:NoDisp 2:Grid 3:Dash)\n"},
    {"busNSimpleDispFlag",       " : 2",         busDisplayOf,                   "0_*", "2_*", " : 2\t\t\t# (0:NONE 1:BOTH 2:BUS 3:NET)\n"},
    {"busNSimpleDispSepChar",    " : \"+\"",     busDisplayOf,                   "0_*", "0+*", nullptr},
    {"busNSimpleDispCrownChar",  " : \"^\"",     busDisplayOf,                   "0_*", "0_^", nullptr},
    {"useBusAliasFlag",          " : on",        READ(useBusAlias),              "0",   "1",  " : On\n"},
    {"createNetLabelFromDefRef", " : On",        READ(createInstNetLabelMode),   "0",   "1",  " : On\n"},
    {"sheetNetErrorLevel",       " : HARD",      READ(sheetNetErrorLevel),       "0",   "1",  " : Hard\n"},
    {"overwritePortMode",        " : PORTTOSIG", READ(overwritePortMode),        "0",   "2",  " : portToSig\n"},
    {"simpleArray",              " : yes",       READ(simpleArrayMode),          "0",   "1",  " : YES\n"},
    {"dateFormat",               " : \"DD.MM\"", READ(dateFormat),               "YY/MM/DD", "DD.MM", " : \"DD.MM\"\n"},
    {"timeFormat",               " : \"HHMM\"",  READ(timeFormat),               "HH:MM:SS", "HHMM", " : \"HHMM\"\n"},
    {"precisionTable",           " 4 { 0 \"mil\" 40 1 }", READ(precisionCount),  "1",   "1",  nullptr},
    {"precisionTblNo",           " : 5",         READ(precisionNumber),          "0",   "0",  nullptr},
    {"colorTable",               " 5 { 0 1 2 3 \"ink\" 20 1 2 3 \"far\" }", READ(colorCount), "15", "15", nullptr},
};
// clang-format on

class Keys : public DatarcFixture {};

// Where the entry of a key begins in a saved text, behind the key.
std::optional<std::string> entryOf(const std::string& text, const std::string& key) {
    const std::size_t at = text.find("\n" + key + " ");
    if (at == std::string::npos) return std::nullopt;
    return text.substr(at + 1 + key.size());
}

TEST_F(Keys, EachHasARowHere) {
    std::multiset<std::string> rows;
    std::multiset<std::string> keys;
    for (const FileRow& row : fileRows) rows.insert(row.key);
    for (const detail::DatarcSetting& setting : detail::datarcSettings())
        keys.insert(std::string(setting.key));
    EXPECT_EQ(rows, keys);
}

TEST_F(Keys, AreReadAndWritten) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        const bool passedOver = std::string_view(row.before) == row.after;
        EXPECT_EQ(row.read(*fresh()), row.before);
        EXPECT_EQ(passedOver, detail::findDatarcSetting(row.key)->form == detail::DatarcForm::PassedOver);

        const bool isTable = row.entry[1] != ':';
        const Resource rc = loaded((isTable ? "" : moreRows) + row.key + row.entry + "\n");
        ASSERT_TRUE(rc);
        EXPECT_EQ(row.read(*rc), row.after);
        EXPECT_EQ(rc->rangeStepChar(), row.key == std::string("rangeStepChar") ? '/' : rc->rangeEndChar());

        const std::string text = saved(*rc);
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

TEST_F(Keys, AreCopiedAndAssigned) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        const bool isTable = row.entry[1] != ':';
        const Resource source = loaded((isTable ? "" : moreRows) + row.key + row.entry + "\n");
        const Resource copy(new BexDatarc(*source));
        const Resource target = fresh();
        *target = *source;
        EXPECT_EQ(row.read(*copy), row.after);
        // The one setting that an assignment takes from another, which is off here.
        const bool crossed = row.key == std::string_view("simpleArray");
        EXPECT_EQ(row.read(*target), crossed ? row.before : row.after);
    }
}

TEST_F(Keys, OfTheUnitAreCopiedAndAssigned) {
    const Resource source = fresh();
    ASSERT_TRUE(source->precision(1, "mil", 40, 2.0) && source->set("precisionTblNo", 1L, 0, 0));
    const Resource copy(new BexDatarc(*source));
    const Resource target = fresh();
    *target = *source;
    for (const BexDatarc* rc : {copy.get(), target.get()}) {
        EXPECT_EQ(rc->precisionCount(), 2u);
        EXPECT_EQ(rc->precisionNumber(), 1u);
        EXPECT_EQ(rc->encode(1.0), 40);
    }
}

TEST_F(Keys, OfAFileAreComparedExactly) {
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        std::string key = row.key;
        key[0] = static_cast<char>(std::toupper(key[0]));
        const Resource rc = loaded(moreRows + key + row.entry + "\n" + row.key + "x" + row.entry + "\n");
        ASSERT_TRUE(rc);
        const std::string before = row.read(*loaded(moreRows));
        EXPECT_EQ(row.read(*rc), before);
    }
}

TEST_F(Keys, WithoutAValueFailTheLoadOrAreIgnored) {
    const std::set<std::string> ignored = {"vmarkFlag",
                                           "vmarkStr",
                                           "vmarkPname",
                                           "noMountAliasName",
                                           "noMountAliasValue",
                                           "nplNoMountCompAliasName",
                                           "nplNoMountCompAliasValue",
                                           "busNSimpleDispSepChar",
                                           "busNSimpleDispCrownChar",
                                           "useBusAliasFlag",
                                           "createNetLabelFromDefRef",
                                           "sheetNetErrorLevel",
                                           "overwritePortMode",
                                           "simpleArray",
                                           "dateFormat",
                                           "timeFormat",
                                           "precisionTable",
                                           "precisionTblNo",
                                           "colorTable"};
    for (const FileRow& row : fileRows) {
        SCOPED_TRACE(row.key);
        for (const char* entry : {" \n", " {\n}\n", " nextKey : 1\n"}) {
            const Resource rc = loaded(row.key + std::string(entry) + "propDispNum : 42\n");
            ASSERT_EQ(rc != nullptr, ignored.count(row.key) == 1) << entry;
            if (!rc) continue;
            EXPECT_EQ(row.read(*rc), row.before);
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
    {"precisionTblNo",           1L,    READ(precisionNumber),          "0",     "1"},
    {"defaultCompColor",         14L,   READ(defaultCompColor),         "-1",    "14"},
    {"defaultFrameColor",        1L,    READ(defaultFrameColor),        "0",     "1"},
    {"defaultNetColor",          2L,    READ(defaultNetColor),          "0",     "2"},
    {"defaultBusColor",          3L,    READ(defaultBusColor),          "0",     "3"},
    {"defaultLineColor",         4L,    READ(defaultLineColor),         "0",     "4"},
    {"defaultCircleColor",       5L,    READ(defaultCircleColor),       "0",     "5"},
    {"defaultTextColor",         6L,    READ(defaultTextColor),         "0",     "6"},
    {"defaultPropertyColor",     7L,    READ(defaultPropBoxColor),      "0",     "7"},
    {"defaultSymbSheetColor",    8L,    READ(defaultSymbSheetColor),    "0",     "8"},
    {"defaultSchmSheetColor",    9L,    READ(defaultSchmSheetColor),    "0",     "9"},
    {"defaultSymbFrameColor",    0L,    READ(defaultSymbFrameColor),    "13",    "0"},
    {"defaultLineWidth",         1L,    READ(defaultLineWidth),         "0",     "1"},
    {"defaultFrameLineWidth",    1L,    READ(defaultFrameLineWidth),    "0",     "1"},
    {"defaultNetLineWidth",      1L,    READ(defaultNetLineWidth),      "0",     "1"},
    {"defaultBusLineWidth",      1L,    READ(defaultBusLineWidth),      "0",     "1"},
    {"defaultCircleLineWidth",   1L,    READ(defaultCircleLineWidth),   "0",     "1"},
    {"defaultLineStyle",         3L,    READ(defaultLineStyle),         "0",     "3"},
    {"defaultFrameLineStyle",    2L,    READ(defaultFrameLineStyle),    "0",     "2"},
    {"defaultNetLineStyle",      1L,    READ(defaultNetLineStyle),      "0",     "1"},
    {"defaultBusLineStyle",      2L,    READ(defaultBusLineStyle),      "0",     "2"},
    {"defaultCircleLineStyle",   3L,    READ(defaultCircleLineStyle),   "0",     "3"},
    {"defaultFillStyle",         1L,    READ(defaultFillStyle),         "0",     "1"},
    {"defaultCircleFillStyle",   1L,    READ(defaultCircleFillStyle),   "0",     "1"},
    {"defaultTextFont",          1L,    READ(defaultTextFont),          "0",     "1"},
    {"defaultPropertyFont",      1L,    READ(defaultPropBoxFont),       "0",     "1"},
    {"propDispNum",              7L,    READ(propDispNum),              "-1",    "7"},
    {"contentsViewer",           -1L,   READ(contentsViewer),           "1",     "-1"},
    {"contentsFrameIsVisible",   0L,    READ(contentsFrameIsVisible),   "1",     "0"},
    {"noMountDispStyle",         3L,    READ(noMountDispStyle),         "0",     "3"},
    {"nodeSize",                 3.0,   READ(nodeSize),                 "2000",  "3000"},
    {"cornerRadius",             0.5,   READ(cornerRadius),             "10000", "500"},
    {"dataTrap",                 0.25,  READ(dataTrap),                 "500",   "250"},
    {"contentsUnvisibleCmpType", "gnd", READ(contentsUnvisibleCmpType), "None",  "gnd"},
    {"noMountAliasName",         "nm",  READ(noMountAliasName),         "noMount", "nm"},
    {"noMountAliasValue",        "yes", READ(noMountAliasValue),        "",      "yes"},
    {"nlogicStartChar",          '<',   READ(nlogicStartChar),          "(",     "<"},
    {"nlogicEndChar",            '>',   READ(nlogicEndChar),            ")",     ">"},
    {"busStartChar",             '{',   READ(busStartChar),             "[",     "{"},
    {"busEndChar",               '}',   READ(busEndChar),               "]",     "}"},
    {"bitEndChar",               ';',   READ(bitEndChar),               ",",     ";"},
    {"rangeEndChar",             ':',   READ(rangeEndChar),             "-",     ":"},
    {"rangeStepChar",            '/',   READ(rangeStepChar),            "-",     "/"},
};
// clang-format on

unsigned long setAny(BexDatarc& rc, const std::string& key, const Value& value) {
    return std::visit([&](auto typed) { return rc.set(key.c_str(), typed, short{1}, short{-1}); }, value);
}

Resource withMoreRows(Resource rc) {
    EXPECT_TRUE(rc->precision(1, "mil", 1000, 1.0));
    EXPECT_TRUE(rc->textSize(1, 1.0, 1.0, 0.0, 0.0, 0.0, "second", "-", "-"));
    EXPECT_TRUE(rc->lineWidth(1, 0.5));
    return rc;
}

TEST_F(Keys, AreSetInAnyCaseOfLetters) {
    for (const SetRow& row : setRows) {
        SCOPED_TRACE(row.key);
        const Resource rc = withMoreRows(fresh());
        EXPECT_EQ(row.read(*rc), row.before);
        std::string key = row.key;
        std::transform(key.begin(), key.end(), key.begin(),
                       [](char c) { return static_cast<char>(std::toupper(c)); });
        EXPECT_TRUE(setAny(*rc, key, row.value));
        EXPECT_EQ(row.read(*rc), row.after);
    }
}

TEST_F(Keys, WithoutASetterAreRefusedExceptAsTexts) {
    std::set<std::string> settable;
    for (const SetRow& row : setRows) settable.insert(row.key);
    for (const FileRow& row : fileRows) {
        if (settable.count(row.key)) continue;
        SCOPED_TRACE(row.key);
        const Resource rc = fresh();
        EXPECT_FALSE(rc->set(row.key, 0L, 0, 0));
        EXPECT_FALSE(rc->set(row.key, 1.0, 0, 0));
        EXPECT_FALSE(rc->set(row.key, 'x', 0, 0));
        EXPECT_TRUE(rc->set(row.key, "x", 0, 0));
        EXPECT_EQ(row.read(*rc), row.before);
        EXPECT_EQ(saved(*rc), saved(*fresh()));
    }
}

TEST_F(Keys, AreSetByTheOverloadOfTheirTypeOnly) {
    const Value values[] = {1L, 1.0, "1", '1'};
    for (const SetRow& row : setRows) {
        SCOPED_TRACE(row.key);
        for (const Value& value : values) {
            if (value.index() == row.value.index()) continue;
            const Resource rc = withMoreRows(fresh());
            EXPECT_EQ(setAny(*rc, row.key, value), std::holds_alternative<const char*>(value) ? 1u : 0u);
            EXPECT_EQ(row.read(*rc), row.before);
        }
    }
}

} // namespace
} // namespace bexa::test
