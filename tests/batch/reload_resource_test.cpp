#include "bexa/batch/reload_resource.h"

#include "tests/batch/batch_fixture.h"
#include "tests/support/child.h"

#include <filesystem>
#include <string>
#include <type_traits>
#include <utility>

using namespace bexa::test;
namespace fs = std::filesystem;

namespace {

constexpr char file[] = "reload.rsc";

std::string joined(const YString_Array& texts) {
    std::string all;
    for (int i = 0; i < texts.size(); ++i) all += (i ? "," : "") + std::string(texts.at(i));
    return all;
}

// All settings, one after the other.
std::string settingsOf(const BexReloadResource& reload) {
    const char* key = reload.checkSymbolPinKey();
    std::string all;
    for (const YString* text : {&reload.noMountReload(), &reload.compRefmode(), &reload.pinRefmode()}) {
        all += std::string(*text) + '|';
    }
    all += joined(reload.compProperty()) + '|' + joined(reload.pinProperty()) + '|';
    all += std::string(reload.writeEmptyProperty()) + '|' + std::string(reload.writeEmptyPinProperty()) + '|';
    all += joined(reload.dispPartName()) + '|' + joined(reload.skipCompByProp()) + '|';
    return all + std::to_string(reload.checkSymbolPinMatching()) + '|' + (key ? key : "null");
}

constexpr char untouched[] = "||||||||"
                             "|0|null";
constexpr char missing[] = "NO|ALL|ALL|||YES|YES|||0|null";
constexpr char whole[] =
    "YES|SELECT|NONE|VALUE,TOLERANCE|PINTYPE|NO|NO|value,partName|MOUNT,no,always|1|PINKEY";

class ReloadResource : public BatchFixture {
protected:
    // The settings of a user's file with this content.
    BexReloadResource read(std::string_view content) const {
        giveUser(file, content);
        BexReloadResource reload;
        EXPECT_EQ(reload.open(nullptr), 1UL);
        EXPECT_EQ(reload.isValid(), 1UL);
        return reload;
    }
};

} // namespace

TEST_F(ReloadResource, ANewObjectHoldsNothing) {
    const BexReloadResource reload;
    EXPECT_EQ(settingsOf(reload), untouched);
    EXPECT_EQ(reload.checkSymbolPinKey(), nullptr);
    EXPECT_EQ(reload.loadmap(), 0);
    EXPECT_EQ(reload.pathname(), "");
    EXPECT_EQ(reload.isValid(), 0UL);
    EXPECT_EQ(reload.isLoadOK(), 0UL);
    EXPECT_EQ(reload.compPropSize(), 0);
    EXPECT_EQ(reload.pinPropSize(), 0);
}

// Where the settings come from

TEST_F(ReloadResource, WithoutAnyFileNothingIsOpened) {
    BexReloadResource reload;
    EXPECT_EQ(reload.open(nullptr), 0UL);
    EXPECT_EQ(reload.isValid(), 0UL);
    EXPECT_EQ(reload.loadmap(), 0);
    EXPECT_EQ(settingsOf(reload), untouched); // not the values of missing keys
}

TEST_F(ReloadResource, TheInstallationsFileIsThatOfTheLanguage) {
    giveSystem(file, "noMountReload: wrong\n");
    BexReloadResource reload;
    EXPECT_EQ(reload.open(nullptr), 0UL);
    giveSystem("eng/reload.rsc", "noMountReload: english\n");
    EXPECT_EQ(reload.open(nullptr), 1UL);
    EXPECT_EQ(reload.loadmap(), 1);
    EXPECT_STREQ(reload.pathname(), systemFile("eng/reload.rsc").c_str());
    EXPECT_EQ(reload.noMountReload(), "english");
    const EnvGuard japanese("YLANG", "japanese");
    EXPECT_EQ(reload.open(nullptr), 0UL);
}

TEST_F(ReloadResource, TheUsersFileBeatsTheInstallations) {
    giveSystem("eng/reload.rsc", "noMountReload: theirs\n");
    const BexReloadResource reload = read("noMountReload: mine\n");
    EXPECT_EQ(reload.loadmap(), 2);
    EXPECT_STREQ(reload.pathname(), userFile(file).c_str());
    EXPECT_EQ(reload.noMountReload(), "mine");
}

TEST_F(ReloadResource, ANamedFileHasItsEnvironmentReferencesReplaced) {
    writeFile(dir.file("named.rsc"), "noMountReload: named\n");
    giveUser(file, "noMountReload: mine\n");
    const EnvGuard place("BEXA_TEST_PLACE", dir.path());
    BexReloadResource reload;
    EXPECT_EQ(reload.open("${BEXA_TEST_PLACE}/named.rsc"), 1UL);
    EXPECT_EQ(reload.loadmap(), 3);
    EXPECT_STREQ(reload.pathname(), dir.file("named.rsc").c_str());
    EXPECT_EQ(reload.noMountReload(), "named");
}

TEST_F(ReloadResource, ANamedFileThatIsMissingResetsTheStateAndKeepsTheSettings) {
    giveUser(file, contentOf(testData("batch/whole_reload.rsc")));
    for (const std::string& path : {dir.file("none"), std::string(), std::string("$BEXA_TEST_NOT_SET")}) {
        BexReloadResource reload;
        ASSERT_EQ(reload.open(nullptr), 1UL);
        ASSERT_EQ(reload.isLoadOK(), 1UL);
        EXPECT_EQ(reload.open(path.c_str()), 0UL);
        EXPECT_EQ(reload.loadmap(), 0);
        EXPECT_EQ(reload.pathname(), "");
        EXPECT_EQ(reload.isValid(), 0UL);
        EXPECT_EQ(reload.isLoadOK(), 0UL);
        EXPECT_EQ(settingsOf(reload), whole);
    }
}

TEST_F(ReloadResource, ARelativePathIsRecordedExpanded) {
    const auto body = [this] {
        fs::current_path(dir.path());
        writeFile("named.rsc", "");
        BexReloadResource reload;
        return reload.open("named.rsc") && reload.pathname() == dir.file("named.rsc").c_str() ? 0 : 1;
    };
    EXPECT_EQ(Child().run(body), 0);
}

// Reading

TEST_F(ReloadResource, AWholeFileIsRead) {
    const BexReloadResource reload = read(contentOf(testData("batch/whole_reload.rsc")));
    EXPECT_EQ(settingsOf(reload), whole);
    EXPECT_EQ(reload.isLoadOK(), 1UL);
    EXPECT_EQ(reload.compPropSize(), 2);
    EXPECT_EQ(reload.pinPropSize(), 1);
}

TEST_F(ReloadResource, AnyMissingKeyMakesTheLoadIncomplete) {
    const std::string content = contentOf(testData("batch/whole_reload.rsc"));
    const char* const keys[] = {"noMountReload",         "compRefmode",           "pinRefmode",
                                "compProperty",          "pinProperty",           "writeEmptyProperty",
                                "writeEmptyPinProperty", "dispPartName",          "skipCompByProp",
                                "checkSymbolPinKey",     "checkSymbolPinMatching"};
    for (const std::string key : keys) {
        std::string lacking = content;
        lacking.insert(lacking.find('\n' + key) + 1, "x");
        EXPECT_EQ(read(lacking).isLoadOK(), 0UL) << key;
        EXPECT_NE(settingsOf(read(lacking)), whole) << key;
    }
}

TEST_F(ReloadResource, MissingKeysSetTheirFieldsWhateverTheyHeld) {
    BexReloadResource reload = read(contentOf(testData("batch/whole_reload.rsc")));
    giveUser(file, "");
    EXPECT_EQ(reload.open(nullptr), 1UL);
    EXPECT_EQ(settingsOf(reload), missing);
    EXPECT_EQ(reload.isValid(), 1UL);
    EXPECT_EQ(reload.isLoadOK(), 0UL);
}

TEST_F(ReloadResource, RowsSayWhatAValueGives) {
    const struct {
        const char* content;
        const char* settings;
    } rows[] = {
        {"noMountReload: x", "x|ALL|ALL|||YES|YES|||0|null"},
        {"noMountReload:\n", "|ALL|ALL|||YES|YES|||0|null"}, // an empty value is a value
        {"compRefmode: \"a b\"", "NO|a b|ALL|||YES|YES|||0|null"},
        {"compRefmode: x\ncompRefmode: y", "NO|x|ALL|||YES|YES|||0|null"}, // the first counts
        {"COMPREFMODE: x", missing},
        {"compProperty { a b a }", "NO|ALL|ALL|a,b||YES|YES|||0|null"},
        {"compProperty { a A }", "NO|ALL|ALL|a,A||YES|YES|||0|null"},
        {"pinProperty { a ( b ) c }", "NO|ALL|ALL||a|YES|YES|||0|null"}, // up to the row without a text
        {"pinProperty 2 { a b c }", "NO|ALL|ALL||a,c|YES|YES|||0|null"}, // the first column
        {"pinProperty { }", missing},
        {"pinProperty: a", missing},
        {"pinProperty: ( a )", missing},
        {"dispPartName: ( x )", "NO|ALL|ALL|||YES|YES|x,partName||0|null"},
        {"dispPartName: ( x y )", "NO|ALL|ALL|||YES|YES|x,y||0|null"},
        {"dispPartName: ( x y z )", missing},
        {"dispPartName: ( )", missing},
        {"dispPartName: x", missing},
        {"dispPartName { x }", missing},
        {"skipCompByProp: ( x y )", "NO|ALL|ALL|||YES|YES||x,y,always|0|null"},
        {"skipCompByProp: ( x y z )", "NO|ALL|ALL|||YES|YES||x,y,z|0|null"},
        {"skipCompByProp: ( x )", missing},
        {"skipCompByProp: ( a b c d )", missing},
        {"checkSymbolPinMatching: yes", "NO|ALL|ALL|||YES|YES|||1|null"},
        {"checkSymbolPinMatching: YeS", "NO|ALL|ALL|||YES|YES|||1|null"},
        {"checkSymbolPinMatching: no", missing},
        {"checkSymbolPinMatching: 1", missing},
        {"checkSymbolPinKey: K", "NO|ALL|ALL|||YES|YES|||0|K"},
        {"checkSymbolPinKey:\n", missing},
        // A field is left alone, here empty as in a new object, by a table and a list in place of a text.
        {"pinRefmode { x }", "NO|ALL||||YES|YES|||0|null"},
        {"writeEmptyProperty: ( x )", "NO|ALL|ALL||||YES|||0|null"},
        {"writeEmptyPinProperty: \"\x83\x7B\"", "NO|ALL|ALL|||YES|\x83\x7B|||0|null"},
    };
    const EnvGuard locale("LC_ALL", "C");
    for (const auto& row : rows) EXPECT_EQ(settingsOf(read(row.content)), row.settings) << row.content;
}

TEST_F(ReloadResource, AValueOfTheWrongKindMakesTheLoadIncompleteOrIsPassedOver) {
    const struct {
        const char* right;
        const char* wrong;
        unsigned long isLoadOK;
    } rows[] = {
        {"dispPartName: ( value )", "dispPartName: ( a b c )", 0},
        {"dispPartName: ( value )", "dispPartName: a", 0},
        {"skipCompByProp: ( MOUNT no )", "skipCompByProp: ( a )", 0},
        {"pinProperty {\n\tPINTYPE\n}", "pinProperty: a", 0},
        {"pinProperty {\n\tPINTYPE\n}", "pinProperty { ( a ) }", 0},
        {"pinRefmode: NONE", "pinRefmode { ( a ) }", 0},
        {"pinRefmode: NONE", "pinRefmode { a }", 1},
        {"pinRefmode: NONE", "pinRefmode: ( a )", 1},
        {"pinProperty {\n\tPINTYPE\n}", "pinProperty: ( a )", 1},
        {"pinProperty {\n\tPINTYPE\n}", "pinProperty { }", 1},
        {"dispPartName: ( value )", "dispPartName { a }", 1},
        {"checkSymbolPinMatching: YES", "checkSymbolPinMatching: maybe", 1},
    };
    for (const auto& row : rows) {
        std::string content = contentOf(testData("batch/whole_reload.rsc"));
        content.replace(content.find(row.right), std::string(row.right).size(), row.wrong);
        EXPECT_EQ(read(content).isLoadOK(), row.isLoadOK) << row.wrong;
    }
}

TEST_F(ReloadResource, AnythingButYesLeavesTheMatchingAsItWas) {
    BexReloadResource reload = read("checkSymbolPinMatching: yes\n");
    giveUser(file, "checkSymbolPinMatching: no\n");
    ASSERT_EQ(reload.open(nullptr), 1UL);
    EXPECT_EQ(reload.checkSymbolPinMatching(), 1UL);
}

TEST_F(ReloadResource, ASecondOpenAddsToTheArrays) {
    BexReloadResource reload =
        read("compProperty { a }\npinProperty { p }\ndispPartName: ( x )\nskipCompByProp: ( y z )");
    giveUser(file, "compProperty { b a }\ndispPartName: ( x )\nskipCompByProp: ( y z )");
    ASSERT_EQ(reload.open(nullptr), 1UL);
    EXPECT_EQ(joined(reload.compProperty()), "a,b");
    EXPECT_EQ(joined(reload.pinProperty()), ""); // a missing key empties
    EXPECT_EQ(joined(reload.dispPartName()), "x,partName,x,partName");
    EXPECT_EQ(joined(reload.skipCompByProp()), "y,z,always,y,z,always");
}

TEST_F(ReloadResource, CopiesAreIndependent) {
    static_assert(std::is_copy_constructible_v<BexReloadResource> &&
                  std::is_copy_assignable_v<BexReloadResource>);
    BexReloadResource reload = read(contentOf(testData("batch/whole_reload.rsc")));
    const BexReloadResource copy(reload);
    BexReloadResource assigned;
    assigned = reload;
    giveUser(file, "compProperty { other }");
    ASSERT_EQ(reload.open(nullptr), 1UL);
    for (const BexReloadResource* same : {&copy, &std::as_const(assigned)}) {
        EXPECT_EQ(settingsOf(*same), whole);
        EXPECT_EQ(same->loadmap(), 2);
        EXPECT_STREQ(same->pathname(), userFile(file).c_str());
        EXPECT_EQ(same->isValid() + same->isLoadOK(), 2UL);
    }
}

TEST_F(ReloadResource, HostileFilesCostTheirKeysOnly) {
    const std::string binary = std::string("noMountReload: a\n\0\xFF\x81", 20) + "pinRefmode: b\n";
    EXPECT_EQ(settingsOf(read(binary)), "a|ALL|ALL|||YES|YES|||0|null");
    EXPECT_EQ(settingsOf(read("noMountReload: a\ncompProperty {\n\tb\n")), "a|ALL|ALL|||YES|YES|||0|null");
    EXPECT_EQ(settingsOf(read("noMountReload: a\npinRefmode: \"b\n")), "a|ALL|ALL|||YES|YES|||0|null");
    const std::string longWord(1'000'000, 'x');
    EXPECT_EQ(read("noMountReload: " + longWord).noMountReload(), longWord.c_str());
}

TEST_F(ReloadResource, ADirectoryIsAFileWithoutKeys) {
    fs::create_directories(userFile(file));
    BexReloadResource reload;
    EXPECT_EQ(reload.open(nullptr), 1UL);
    EXPECT_EQ(settingsOf(reload), missing);
    EXPECT_EQ(reload.isLoadOK(), 0UL);
}

TEST_F(ReloadResource, ManyPropertiesAreReadInOneGo) {
    std::string names;
    for (int i = 0; i < 50'000; ++i) names += 'P' + std::to_string(i % 40'000) + '\n';
    EXPECT_EQ(read("compProperty {\n" + names + "}").compPropSize(), 40'000);
}

// Writing

TEST_F(ReloadResource, AFreshObjectIsWrittenWithTheValuesOfMissingKeys) {
    dir.makeDirectory("home/hk8800/ds");
    BexReloadResource reload;
    EXPECT_EQ(reload.save(), 1UL);
    EXPECT_EQ(contentOf(userFile(file)), contentOf(testData("batch/fresh_reload.rsc")));
}

TEST_F(ReloadResource, SettingsAreWrittenToTheUsersFileWhereverTheyComeFrom) {
    dir.makeDirectory("home/hk8800/ds");
    BexReloadResource reload;
    ASSERT_EQ(reload.open(testData("batch/whole_reload.rsc").c_str()), 1UL);
    EXPECT_EQ(reload.save(), 1UL);
    EXPECT_EQ(contentOf(userFile(file)), contentOf(testData("batch/saved_reload.rsc")));
    EXPECT_EQ(reload.loadmap(), 3);
}

TEST_F(ReloadResource, ASavedFileNeverCountsAsWhollyLoadedAndTurnsTheMatchingOff) {
    BexReloadResource reload = read(contentOf(testData("batch/whole_reload.rsc")));
    ASSERT_EQ(reload.isLoadOK(), 1UL);
    ASSERT_EQ(reload.save(), 1UL);
    BexReloadResource other;
    ASSERT_EQ(other.open(nullptr), 1UL);
    EXPECT_EQ(other.isLoadOK(), 0UL);
    EXPECT_EQ(settingsOf(other),
              "YES|SELECT|NONE|VALUE,TOLERANCE|PINTYPE|NO|NO|value,partName|MOUNT,no,always|0|null");
    ASSERT_EQ(reload.open(nullptr), 1UL);
    EXPECT_EQ(reload.checkSymbolPinMatching(), 0UL);
    EXPECT_EQ(reload.checkSymbolPinKey(), nullptr);
}

TEST_F(ReloadResource, ValuesAreNotQuotedSoABlankDividesThem) {
    BexReloadResource reload =
        read("noMountReload: \"a b\"\ncompProperty { \"c d\" }\ndispPartName: ( \"e f\" g )\n");
    ASSERT_EQ(reload.save(), 1UL);
    BexReloadResource other;
    ASSERT_EQ(other.open(nullptr), 1UL);
    EXPECT_EQ(settingsOf(other), "a|ALL|ALL|c,d||YES|YES|||0|null"); // a list of three members is none
}

TEST_F(ReloadResource, WithoutTheUsersDirectoryNothingIsSaved) {
    BexReloadResource reload;
    EXPECT_EQ(reload.save(), 0UL);
    EXPECT_TRUE(listOf(dir.path()).empty());
}

TEST_F(ReloadResource, AFileThatMayNotBeWrittenIsNotSaved) {
    giveUser(file, "old");
    setMode(userFile(file), 0444);
    EXPECT_EQ(Child().asNobody().run([] { return BexReloadResource().save() ? 1 : 0; }), 0);
    EXPECT_EQ(contentOf(userFile(file)), "old");
}

TEST_F(ReloadResource, AFullDiskIsNotNoticed) {
    dir.makeDirectory("home/hk8800/ds");
    const auto body = [] {
        fillDisk(18);
        return BexReloadResource().save() == 1 ? 0 : 1;
    };
    EXPECT_EQ(Child().run(body), 0);
    EXPECT_EQ(contentOf(userFile(file)), "noMountReload: NO\n");
}
