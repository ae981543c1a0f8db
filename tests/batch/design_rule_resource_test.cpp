#include "bexa/batch/design_rule_resource.h"

#include "tests/batch/batch_fixture.h"
#include "tests/support/child.h"

#include <filesystem>
#include <string>

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

constexpr char file[] = "drccheck.rsc";

std::string joined(const YString_Array& texts) {
    std::string all;
    for (int i = 0; i < texts.size(); ++i) all += (i ? "," : "") + std::string(texts.at(i));
    return all;
}

// The parameters of all checks, one after the other.
std::string parametersOf(const DrcResource& drc) {
    std::string all = joined(drc.pinKind);
    for (const YString* text : {&drc.fanoutCount, &drc.nearNetClearance}) all += '|' + std::string(*text);
    all += '|' + std::to_string(drc.connectPin);
    for (const YString* text : {&drc.labelClearance, &drc.propertyFocus}) all += '|' + std::string(*text);
    return all + '|' + joined(drc.lackingFocusName) + '|' + joined(drc.lackingFocusValue) + '|' +
           std::string(drc.refdupMode);
}

std::string settingsOf(const DrcResource& drc) {
    return joined(drc.checkSwitch) + '|' + joined(drc.checkColor) + '|' + parametersOf(drc);
}

constexpr char names[] = "pin,node,fanout,nearnet,netviewer,refdup,net,dprop,eprop,netshort,bus,powerground";
constexpr char defaultParameters[] = "|10|5.0|1|10.0|all|||pinNumber";
constexpr char defaults[] =
    "ON,ON,ON,ON,ON,ON,ON,ON,ON,ON,ON,ON|2,2,2,2,2,2,2,2,2,2,2,2||10|5.0|1|10.0|all|||pinNumber";
constexpr char everySetting[] = "OFF,ON,OFF,OFF,ON,OFF,OFF,OFF,ON,OFF,ON,OFF|3,4,5,6,7,8,9,10,11,12,13,14|"
                                "IN,OUT|20|2.5|1|7.5|VALUE|VALUE,TOLERANCE|resistor,capacitor|pinNumber";

class DesignRuleResource : public BatchFixture {
protected:
    // The settings of a user's file with this content.
    DrcResource read(std::string_view content) const {
        giveUser(file, content);
        DrcResource drc;
        EXPECT_EQ(drc.load(), 1UL);
        return drc;
    }
    std::string saved(DrcResource& drc) const {
        dir.makeDirectory("home/hk8800/ds");
        EXPECT_EQ(drc.save(), 1UL);
        return contentOf(userFile(file));
    }
};

} // namespace

TEST_F(DesignRuleResource, ANewObjectHoldsTheDefaults) {
    const DrcResource drc;
    EXPECT_EQ(settingsOf(drc), defaults);
    EXPECT_EQ(joined(drc.checkName), names);
}

TEST_F(DesignRuleResource, WithoutAnyFileTheDefaultsStand) {
    DrcResource drc;
    EXPECT_EQ(drc.load(), 0UL);
    EXPECT_EQ(settingsOf(drc), defaults);
}

TEST_F(DesignRuleResource, TheInstallationsFileStandsBesideTheLanguages) {
    giveSystem("eng/drccheck.rsc", "FanOut { ( count english ) }");
    DrcResource drc;
    EXPECT_EQ(drc.load(), 0UL);
    giveSystem(file, "FanOut { ( count theirs ) }");
    EXPECT_EQ(drc.load(), 1UL);
    EXPECT_EQ(drc.fanoutCount, "theirs");
}

TEST_F(DesignRuleResource, TheUsersFileBeatsTheInstallations) {
    giveSystem(file, "FanOut { ( count theirs ) }\nOpenPin { ( pinKind IN ) }");
    const DrcResource drc = read("FanOut { ( count mine ) }");
    EXPECT_EQ(drc.fanoutCount, "mine");
    EXPECT_EQ(joined(drc.pinKind), "");
}

TEST_F(DesignRuleResource, AFileThatIsNamedIsReadWhoeverHasAnother) {
    giveUser(file, "FanOut { ( count mine ) }\nOpenPin { ( pinKind IN ) }");
    const std::string path = dir.file("named");
    writeFile(path, "FanOut { ( count named ) }");
    DrcResource drc;
    EXPECT_EQ(drc.load(path.c_str()), 1UL);
    EXPECT_EQ(drc.fanoutCount, "named");
    EXPECT_EQ(joined(drc.pinKind), "");
}

TEST_F(DesignRuleResource, ANamedFileThatIsNotThereChangesNothing) {
    giveUser(file, "FanOut { ( count mine ) }");
    DrcResource drc;
    EXPECT_EQ(drc.load(dir.file("nowhere").c_str()), 0UL);
    EXPECT_EQ(drc.load(nullptr), 0UL);
    EXPECT_EQ(settingsOf(drc), defaults);
}

TEST_F(DesignRuleResource, EverySettingIsReadAndWrittenBack) {
    const std::string content = contentOf(testData("batch/every_setting_drccheck.rsc"));
    DrcResource drc = read(content);
    EXPECT_EQ(settingsOf(drc), everySetting);
    EXPECT_EQ(joined(drc.checkName), names);
    fs::remove(userFile(file));
    EXPECT_EQ(saved(drc), content);
}

TEST_F(DesignRuleResource, AFreshObjectIsWrittenWhole) {
    DrcResource drc;
    EXPECT_EQ(saved(drc), contentOf(testData("batch/fresh_drccheck.rsc")));
}

TEST_F(DesignRuleResource, AMissingCheckKeepsItsDefaults) {
    EXPECT_EQ(settingsOf(read("")), defaults);
    const DrcResource drc = read("OpenNode { ( switch OFF ) ( color 9 ) }");
    EXPECT_EQ(joined(drc.checkSwitch), "ON,OFF,ON,ON,ON,ON,ON,ON,ON,ON,ON,ON");
    EXPECT_EQ(joined(drc.checkColor), "2,9,2,2,2,2,2,2,2,2,2,2");
    EXPECT_EQ(parametersOf(drc), defaultParameters);
}

TEST_F(DesignRuleResource, AnythingButOnSwitchesACheckOff) {
    const struct {
        const char* value;
        const char* state;
    } rows[] = {{"ON", "ON"},   {"on", "ON"}, {"On", "ON"},   {"OFF", "OFF"},
                {"yes", "OFF"}, {"1", "OFF"}, {"\"\"", "OFF"}};
    for (const auto& row : rows) {
        const DrcResource drc = read(std::string("ShortNet { ( switch ") + row.value + " ) }");
        EXPECT_EQ(drc.checkSwitch.at(DrcResource::ShortNet), row.state) << row.value;
    }
}

TEST_F(DesignRuleResource, RowsSayWhatAParameterGives) {
    const struct {
        const char* content;
        const char* parameters;
    } rows[] = {
        {"OpenPin { ( pinKind IN ) ( PINKIND \"a b\" ) }", "IN,a b|10|5.0|1|10.0|all|||pinNumber"},
        {"FanOut { ( Count 3 ) }", "|3|5.0|1|10.0|all|||pinNumber"},
        {"FanOut { ( count 3 ) ( count 4 x ) }", "|4|5.0|1|10.0|all|||pinNumber"},
        {"NearNet { ( clearance 1 ) ( connectPin off ) }", "|10|1|0|10.0|all|||pinNumber"},
        {"NearNet { ( connectPin OFF ) ( connectPin ON ) }", defaultParameters},
        {"NearNet { ( connectPin 1 ) }", "|10|5.0|0|10.0|all|||pinNumber"},
        {"NetlabelPosition { ( clearance 1 ) }", "|10|5.0|1|1|all|||pinNumber"},
        {"DuplicateProperty { ( focus x ) }", "|10|5.0|1|10.0|x|||pinNumber"},
        {"LackingProperty { ( focus a b ) ( focus c d e ) }", "|10|5.0|1|10.0|all|a,c|b,d|pinNumber"},
        // A word of another check is passed over, and so is any other word.
        {"OpenPin { ( count 3 ) ( pinKind IN ) }", "IN|10|5.0|1|10.0|all|||pinNumber"},
        {"FanOut { ( pinKind IN ) ( clearance 1 ) ( connectPin off ) ( focus x ) }", defaultParameters},
        {"NetlabelPosition { ( connectPin off ) }", defaultParameters},
        {"OpenNode { ( word x ) ( switch ) ( count 3 ) }", defaultParameters},
        // A row that is a word alone, or nothing, is passed over.
        {"FanOut { ( count ) ( ) ( count 3 ) }", "|3|5.0|1|10.0|all|||pinNumber"},
        // Only the first column counts.
        {"FanOut 2 { ( count 3 ) ( count 4 ) ( color 5 ) }", "|3|5.0|1|10.0|all|||pinNumber"},
        // Keys compare exactly.
        {"fanout { ( count 3 ) }", defaultParameters},
        {"FanOut: ( count 3 )", defaultParameters},
        {"FanOut: 3", defaultParameters},
        {"OpenPin { ( pinKind \x83\x7D ) }", "\x83\x7D|10|5.0|1|10.0|all|||pinNumber"},
    };
    const EnvGuard locale("LC_ALL", "C");
    for (const auto& row : rows) EXPECT_EQ(parametersOf(read(row.content)), row.parameters) << row.content;
}

TEST_F(DesignRuleResource, AMalformedRowEndsItsCheckAndHarmsNoOther) {
    const struct {
        const char* content;
        const char* parameters;
    } rows[] = {
        {"FanOut { ( count 3 ) word ( count 4 ) }\nNearNet { ( clearance 1 ) }",
         "|3|1|1|10.0|all|||pinNumber"},
        {"LackingProperty { ( focus a b ) ( focus c ) ( focus d e ) }\nNearNet { ( clearance 1 ) }",
         "|10|1|1|10.0|all|a|b|pinNumber"},
        {"FanOut { ( count 3 ) \"text\" ( count 4 ) }", "|3|5.0|1|10.0|all|||pinNumber"},
    };
    for (const auto& row : rows) EXPECT_EQ(parametersOf(read(row.content)), row.parameters) << row.content;
}

TEST_F(DesignRuleResource, ConnectPinIsReadAndNeverWritten) {
    DrcResource drc = read("NearNet { ( connectPin off ) }");
    EXPECT_EQ(drc.connectPin, 0UL);
    EXPECT_EQ(saved(drc), contentOf(testData("batch/fresh_drccheck.rsc")));
    DrcResource other;
    ASSERT_EQ(other.load(), 1UL);
    EXPECT_EQ(other.connectPin, 1UL);
    ASSERT_EQ(drc.load(), 1UL);
    EXPECT_EQ(drc.connectPin, 0UL); // the file doesn't say it
}

TEST_F(DesignRuleResource, RefdupModeIsWrittenAndNeverRead) {
    DrcResource drc;
    drc.refdupMode = "gate";
    EXPECT_NE(
        saved(drc).find("DuplicateReference {\n\t( switch\tON )\n\t( color\t2 )\n\t( mode\tgate )\n}\n"),
        std::string::npos);
    DrcResource other;
    ASSERT_EQ(other.load(), 1UL);
    EXPECT_EQ(other.refdupMode, "pinNumber");
}

TEST_F(DesignRuleResource, ASecondLoadAddsToTheArrays) {
    DrcResource drc = read("OpenPin { ( pinKind IN ) }\nLackingProperty { ( focus a b ) }");
    ASSERT_EQ(drc.load(), 1UL);
    EXPECT_EQ(parametersOf(drc), "IN,IN|10|5.0|1|10.0|all|a,a|b,b|pinNumber");
}

TEST_F(DesignRuleResource, AssignmentTakesEveryMemberButTheNames) {
    const DrcResource drc = read(contentOf(testData("batch/every_setting_drccheck.rsc")));
    DrcResource source(drc);
    EXPECT_EQ(settingsOf(source), everySetting);
    source.connectPin = 0;
    source.refdupMode = "gate";
    source.checkName.at(0) = "other";
    DrcResource target;
    EXPECT_EQ(&(target = source), &target);
    EXPECT_EQ(settingsOf(target), settingsOf(source));
    EXPECT_EQ(joined(target.checkName), names);
    EXPECT_EQ(settingsOf(drc), everySetting); // the copy was independent
    EXPECT_EQ(joined(DrcResource(source).checkName), "other" + std::string(names).substr(3));
}

TEST_F(DesignRuleResource, ValuesAreNotQuotedSoWhatIsEmptyOrHasABlankIsNotReadBack) {
    DrcResource drc;
    drc.fanoutCount = "";
    drc.labelClearance = "1 2";
    saved(drc);
    DrcResource other;
    ASSERT_EQ(other.load(), 1UL);
    EXPECT_EQ(parametersOf(other), "|10|5.0|1|1|all|||pinNumber");
}

TEST_F(DesignRuleResource, ArraysThatACallerCutAreWrittenAsFarAsTheyGo) {
    DrcResource drc;
    drc.checkSwitch.removeAll();
    drc.lackingFocusName.append("a");
    drc.lackingFocusName.append("b");
    drc.lackingFocusValue.append("c");
    const std::string content = saved(drc);
    EXPECT_NE(content.find("OpenPin {\n\t( switch\t )\n"), std::string::npos);
    EXPECT_NE(content.find("\t( focus\ta\tc )\n}\nShortNet"), std::string::npos);
    EXPECT_EQ(drc.checkSwitch.size(), 0);
}

TEST_F(DesignRuleResource, HostileFilesCostTheirChecksOnly) {
    const std::string whole = "FanOut { ( count 3 ) }\n";
    const std::string rest = "|3|5.0|1|10.0|all|||pinNumber";
    for (const std::string& tail :
         {std::string("OpenPin { ( pinKind IN ) "), std::string("OpenPin { ( pinKind \"IN ) }\n"),
          std::string(1, '\0'), std::string("\xFF\x81\x00\x01", 4), std::string(1000, '('),
          std::string(1000, '{')}) {
        EXPECT_EQ(parametersOf(read(whole + tail)), rest) << tail;
    }
    const std::string longWord(1'000'000, 'x');
    EXPECT_EQ(read("FanOut { ( count " + longWord + " ) }").fanoutCount, longWord.c_str());
}

TEST_F(DesignRuleResource, ADirectoryIsAFileWithoutChecks) {
    fs::create_directories(userFile(file));
    DrcResource drc;
    EXPECT_EQ(drc.load(), 1UL);
    EXPECT_EQ(settingsOf(drc), defaults);
    EXPECT_EQ(drc.save(), 0UL);
}

TEST_F(DesignRuleResource, WithoutTheUsersDirectoryNothingIsSaved) {
    DrcResource drc;
    EXPECT_EQ(drc.save(), 0UL);
    EXPECT_TRUE(listOf(dir.path()).empty());
}

TEST_F(DesignRuleResource, AFileThatMayNotBeWrittenIsNotSaved) {
    giveUser(file, "old");
    setMode(userFile(file), 0444);
    EXPECT_EQ(Child().asNobody().run([] { return DrcResource().save() ? 1 : 0; }), 0);
    EXPECT_EQ(contentOf(userFile(file)), "old");
}

TEST_F(DesignRuleResource, AFullDiskIsNotNoticed) {
    dir.makeDirectory("home/hk8800/ds");
    const auto body = [] {
        fillDisk(10);
        return DrcResource().save() == 1 ? 0 : 1;
    };
    EXPECT_EQ(Child().run(body), 0);
    EXPECT_EQ(contentOf(userFile(file)), "OpenPin {\n");
}
