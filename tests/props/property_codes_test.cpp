#include "bexa/props/property_codes.h"

#include "bexa/circuitrc/datarc.h"
#include "bexa/foundation/component_type.h"
#include "bexa/props/property_code_table.h"
#include "tests/support/env_guard.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace bexa::test;

namespace {

constexpr char untouched[] = "untouched";

// The refused characters, "ok" for a value that passes. Holds that a null `bad` gives the same result.
std::string checked(const char* name, const char* value, int type, unsigned mode = 0, unsigned compType = 0,
                    char bitEnd = ',') {
    auto object = BexObjectType(type);
    YString bad = untouched;
    const unsigned long passes =
        BexChkPropCode::chkPropString(name, value, &bad, bitEnd, object, mode, compType);
    EXPECT_EQ(BexChkPropCode::chkPropString(name, value, nullptr, bitEnd, object, mode, compType), passes);
    EXPECT_EQ(object, type);
    if (passes) {
        EXPECT_STREQ(bad, untouched);
    }
    return passes ? "ok" : std::string(bad.view());
}

class PropertyCodes : public testing::Test {
protected:
    EnvGuard locale_{"LC_ALL", "ja_JP.SJIS"};
};

// The rows with these marks in their order, "type name name ..." for each run of rows of one type.
std::string rowsOf(bexa::detail::PropertyOrigin origin, bool doubleByte, bool delimiter,
                   std::string_view refused) {
    std::string rows;
    int type = -1;
    for (const auto& code : bexa::detail::propertyCodes()) {
        if (code.origin != origin || code.refused != refused) continue;
        if (code.refusesDoubleByte != doubleByte || code.refusesDelimiter != delimiter) continue;
        if (code.type != type) rows += (rows.empty() ? "" : "\n") + std::to_string(code.type);
        rows.append(" ").append(code.name);
        type = code.type;
    }
    return rows;
}

TEST(PropertyCodeTable, HasItsRows) {
    using enum bexa::detail::PropertyOrigin;
    constexpr char blanksToo[] = " \t\n\"\\";
    const std::string signals =
        " colorId patternWidth shieldWidth viaCountForFanout maxXtalk voldAmplitude riseTime "
        "duty period ICX_CLASS voltage minImpedance shieldGap daisy";
    const std::string nets = " netMaxLeng netMinLeng maxDelay maxImpedance pinpairMaxLeng pinpairMinLeng "
                             "pinpairSameLeng midDriven netPriority maxStab shield shieldSname priorLayer1 "
                             "priorLayer2 TBranch loop innerNetParallelWidth innerNetParallelLeng";
    EXPECT_EQ(rowsOf(BaseSystem, true, true, blanksToo),
              "18 defaultPower defaultGround\n"
              "7 partName reference cdbName function componentName partNumber isvGate\n"
              "15 pinLabel pinNumber io isCommonTerminal pinType isAcceptNet\n"
              "8 netLabel global netKind\n"
              "11 netLabel global netKind");
    EXPECT_EQ(rowsOf(Other, false, false, "\"\\"),
              "7 compComment\n15 pinComment\n8 netComment\n11 netComment");
    EXPECT_EQ(
        rowsOf(Other, true, true, blanksToo),
        "7 compGroup compFix layoutName footprintA footprintB placementLayer placementAngle originalName "
        "pa_phase pa_lock rmbsType reusedFile reusedComp ICX_PART_MODEL decoupleDist\n"
        "15 testPin driverKind pinFix pinOrder ICX_SERIES ICX_PORT_TYPE\n8" +
            signals + nets);
    EXPECT_EQ(rowsOf(Other, true, false, blanksToo), "11" + signals + " netKind" + nets);
    EXPECT_EQ(bexa::detail::propertyCodes().size(), 111U);
}

TEST_F(PropertyCodes, SingleCharactersAreRefusedByTheRow) {
    const struct {
        const char* name;
        const char* value;
        int type;
        const char* result;
    } rows[] = {
        {"partName", "ABC 1", 7, " "},
        {"partName", "ABC1", 7, "ok"},
        {"partName", "a b\tc\n\"d\\", 7, " \t\n\"\\"},
        {"compComment", "ABC 1", 7, "ok"},
        {"compComment", "ABC\t1", 7, "ok"},
        {"compComment", "A\"B \\ C\"", 7, "\"\\\""},
        {"unknown", "A B\"\\", 7, "ok"},
        {"PartName", "A B", 7, "ok"}, // names are compared exactly
        {"partName", "A B", 8, "ok"}, // no property of nets
        {"partName", "A B", 19, " "}, // a symbol has those of components
        {"pinLabel", "A B", 16, " "}, // type 16 those of pins
        {"netLabel", "A B", 9, " "},
        {"netLabel", "A B", 10, " "},
        {"netLabel", "A B", 17, " "},
        {"netLabel", "A B", 12, " "},
        {"netLabel", "A B", 13, " "},
        {"defaultPower", "A B", 18, " "},
        {"partName", "A B", 3, " "}, // any other type: the first row of the name
        {"netLabel", "A B", 21, " "},
        {"partName", "", 7, "ok"},
        {"partName", nullptr, 7, "ok"},
    };
    for (const auto& row : rows) EXPECT_EQ(checked(row.name, row.value, row.type), row.result) << row.name;
}

TEST_F(PropertyCodes, ANullNameIsRefused) {
    EXPECT_EQ(checked(nullptr, "x", 7), "");
    EXPECT_EQ(checked(nullptr, nullptr, 7), "");
}

TEST_F(PropertyCodes, TheDelimiterIsRefusedByTypeAndMode) {
    const struct {
        const char* name;
        int type;
        unsigned mode;
        unsigned compType;
        const char* result;
    } rows[] = {
        {"partName", 7, 1, 0, ","},
        {"partName", 7, 0, 0, "ok"},
        {"partName", 7, 2, 0, "ok"},
        {"partName", 7, 1, BexCompType::Vcc, "ok"},
        {"partName", 7, 1, BexCompType::Gnd, "ok"},
        {"partName", 7, 1, BexCompType::ShtConnector, "ok"},
        {"partName", 7, 1, BexCompType::HieConnector | BexCompType::Net, "ok"},
        {"partName", 7, 1, BexCompType::Parts, ","},
        {"reference", 7, 1, BexCompType::Vcc, ","},
        {"partName", 19, 1, 0, ","},
        {"compComment", 7, 1, 0, "ok"},
        {"pinLabel", 15, 1, 0, ","},
        {"pinLabel", 15, 0, 0, "ok"},
        {"pinComment", 15, 1, 0, "ok"},
        {"partName", 21, 1, 0, "ok"},
        {"unknown", 8, 1, 0, "ok"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(checked(row.name, "A,B", row.type, row.mode, row.compType), row.result) << row.name;
    }
}

TEST_F(PropertyCodes, NetsAndSheetsRefuseTheDelimiterWhateverModeAndRowSay) {
    for (const unsigned mode : {0U, 1U, 2U}) {
        EXPECT_EQ(checked("netLabel", "A,B,C", 8, mode), ",,");
        EXPECT_EQ(checked("netComment", "A, B", 8, mode), ",");
        EXPECT_EQ(checked("netComment", "A, B", 17, mode), ",");
        EXPECT_EQ(checked("defaultPower", "A,B", 18, mode), ",");
    }
}

TEST_F(PropertyCodes, BusesNeverRefuseTheDelimiter) {
    for (const unsigned mode : {0U, 1U, 2U}) {
        EXPECT_EQ(checked("netLabel", "A,B", 11, mode), "ok");
        EXPECT_EQ(checked("netKind", "A,B", 12, mode), "ok");
        EXPECT_EQ(checked("colorId", "A,B", 13, mode), "ok");
    }
}

TEST_F(PropertyCodes, HalfWidthKanaIsRefusedEverywhere) {
    EXPECT_EQ(checked("unknown",
                      "A\xB1"
                      "B\xB2",
                      7),
              "\xB1\xB2");
    EXPECT_EQ(checked("compComment", "\xB1", 7), "\xB1");
    EXPECT_EQ(checked("partName", "\x83\x5C \xB1", 7), "\xB1"); // and before all else
}

TEST_F(PropertyCodes, HalfWidthKanaOfEucTakesTwoBytes) {
    locale_.set("ja_JP.eucJP");
    EXPECT_EQ(checked("unknown",
                      "A\x8E\xB1"
                      "B",
                      7),
              "\x8E\xB1");
    EXPECT_EQ(checked("partName", "\xB1\xB2", 7), "\xB1\xB2"); // a double-byte character
}

TEST_F(PropertyCodes, DoubleBytesAreRefusedByTheRow) {
    EXPECT_EQ(checked("partName",
                      "A\x83\x5C"
                      "B \x95\x5C",
                      7),
              "\x83\x5C\x95\x5C"); // before the blank
    EXPECT_EQ(checked("compComment",
                      "A\x83\x5C"
                      "B",
                      7),
              "ok");                                                   // a second byte is no backslash
    EXPECT_EQ(checked("netComment", "\x83\x5C", 8, 0, 0, '\\'), "ok"); // and no delimiter
    EXPECT_EQ(checked("unknown", "\x83\x5C", 7), "ok");
}

TEST_F(PropertyCodes, RefusedCharactersComeBeforeTheDelimiter) {
    EXPECT_EQ(checked("netLabel", "A, B", 8), " ");
}

TEST_F(PropertyCodes, LongValuesAreWalkedOnce) {
    const std::string value(300000, 'x');
    EXPECT_EQ(checked("partName", (value + " ").c_str(), 7), " ");
}

TEST_F(PropertyCodes, TheDelimiterComesFromTheResource) {
    const TempDir dir;
    BexDatarc* rc = BexDatarc::open(dir.file("rc").c_str(), BexOpenCreate, nullptr);
    ASSERT_NE(rc, nullptr);
    YString bad;
    BexObjectType type = BexNetObject;
    EXPECT_EQ(BexChkPropCode::chkPropString("netLabel", "A,B", &bad, *rc, type, 0, 0), 0UL);
    EXPECT_STREQ(bad, ",");
    EXPECT_EQ(BexChkPropCode::chkPropString("netLabel", "A;B", &bad, *rc, type, 0, 0), 1UL);
    BexDatarc::close(rc, BexCloseDiscard);
}

TEST(PropertyBlanks, GoEverywhereOrAtTheEnd) {
    const struct {
        const char* name;
        const char* value;
        const char* result;
    } rows[] = {
        {"reference", " R 1 ", "R1"},
        {"reference", "\tR\n1 \n", "R1"},
        {"reference", " \t\n", ""},
        {"netKind", " a b ", "ab"},
        {"compComment", " R 1 ", " R 1"},
        {"compComment", "R\r \n", "R\r"},
        {"compComment", " \t ", " \t "},
        {"unknown", " R 1\t\n ", " R 1"},
        {"unknown", "   ", "   "},
        {"", "a ", "a"},
        {nullptr, " a ", " a "},
        {"reference", nullptr, ""},
        {"reference", "", ""},
    };
    for (const auto& row : rows)
        EXPECT_STREQ(BexChkPropCode::deleteSpaceAndRet(row.name, row.value), row.result);
}

} // namespace
