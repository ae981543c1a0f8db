#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

namespace bexa::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* header = "# TALVO HK8800 systems - resource declaration.\n"
                               "# Resource version:2.1x\n# japanese_coding:sjis\n";

class SettingsCommand : public Program {
protected:
    SettingsCommand() {
        fs::create_directory(file("user"));
        writeFile(file("user/bexenv.rsc"), former_);
    }

    // What the directory of the environment holds.
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(file("user"))) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    std::string environment() const { return contentOf(file("user/bexenv.rsc")); }
    void expectUntouched() const {
        EXPECT_EQ(files(), std::vector<std::string>{"bexenv.rsc"});
        EXPECT_EQ(environment(), former_);
    }
    static std::vector<std::string> setting(const std::string& text) {
        return {"env", "user/bexenv.rsc", "--set", text};
    }

    const std::string former_ = std::string(header) +
                                "undoLimit : 30\nmeasureFontForUNIX : \"9x15\"\nschSheetAttrTable 3 {\n"
                                "\t0\t\"title\"\t\"\x89\xB9\"\n}\n"; // 音 in Shift-JIS
};

TEST_F(SettingsCommand, ShowsAnEnvironment) {
    EXPECT_EQ(good({"env", "user/bexenv.rsc"}), expected("env.txt"));
    EXPECT_EQ(json({"env", "user/bexenv.rsc"}), Json::parse(expected("env.json")));
}

TEST_F(SettingsCommand, ShowsACircuitResource) {
    const Json circuit = json({"circuit", "amplifier.cir"});
    const Json resource = json({"rc", "resources/bexdata.rsc"});
    EXPECT_EQ(resource["file"], "resources/bexdata.rsc");
    EXPECT_EQ(resource["settings"], circuit["settings"]);
    EXPECT_EQ(resource["textTable"], circuit["textTable"]);
}

TEST_F(SettingsCommand, ChangesAnEnvironmentAndKeepsTheFormerFile) {
    const Json told = json({"env", "user/bexenv.rsc", "--set", "undolimit=100", "panRatio=0.5", "--set",
                            "inputGrid=off", "zoneStartTextX=b", "moveSignMode=bus", "cAngle=360",
                            "symbDefaultcompType=parts|gate", "autoSaveReloadKeyName=部品"});
    EXPECT_EQ(told["file"], "user/bexenv.rsc");
    EXPECT_EQ(told["backup"], "user/#bexenv.rsc");
    ASSERT_EQ(told["changed"].size(), 8U);
    EXPECT_EQ(told["changed"][0], Json::parse(R"({"setting": "undoLimit", "before": 30, "after": 100})"));
    EXPECT_EQ(files(), (std::vector<std::string>{"#bexenv.rsc", "bexenv.rsc"}));
    EXPECT_EQ(contentOf(file("user/#bexenv.rsc")), former_);
    EXPECT_EQ(environment(), expected("env_changed.rsc"));
    const Json settings = json({"env", "user/bexenv.rsc"})["settings"];
    for (const Json& change : told["changed"]) {
        EXPECT_EQ(settings[change["setting"].get<std::string>()], change["after"]) << change;
    }
}

struct Refusal {
    const char* setting;
    const char* what;
};

TEST_F(SettingsCommand, WhatASetterOrTheFileRefusesIsAFindingAndWritesNothing) {
    const Refusal refusals[] = {
        {"undoLimit=0", "the setting undoLimit does not take \"0\""},
        {"undoLimit=", "the setting undoLimit does not take \"\""},
        {"undoLimit=1.5", "the setting undoLimit does not take \"1.5\""},
        {"undoLimit=99999999999999999999", "the setting undoLimit does not take"},
        {"panRatio=0", "the setting panRatio does not take \"0\""},
        {"panRatio=nan", "the setting panRatio does not take \"nan\""},
        {"inputGrid=yes", "the setting inputGrid does not take \"yes\""},
        {"zoneStartTextX=*", "the setting zoneStartTextX does not take \"*\""},
        {"moveSignMode=2", "the setting moveSignMode does not take \"2\""},
        {"swapSConnMode=foo", "the setting swapSConnMode does not take \"foo\""},
        {"symbDefaultcompType=gate|foo", "the setting symbDefaultcompType does not take \"gate|foo\""},
        {"nosuch=1", "no setting \"nosuch\""},
        {"gridTable=1", "no setting \"gridTable\""},
        {"measureFont=a\"b", "the file cannot keep the new value of measureFont"},
        {"measureFont=a\"", "the file cannot keep the new value of measureFont"},
        {"measureFont=a\"\nundoLimit : \"3", "the file cannot keep the new value of measureFont"},
        {"panRatio=0.123456789", "the file cannot keep the new value of panRatio"},
        {"dProject=x", "the file cannot keep the new value of dProject"},
        {"measureFont=\xC3\xA9", "a character has no code in resource files"},
        {"measureFont=\xFF", "a character has no code in resource files"},
    };
    for (const Refusal& refusal : refusals) {
        const Outcome result = run({"env", "user/bexenv.rsc", "--set", "backupTime=1", refusal.setting});
        EXPECT_EQ(result.code, 1) << refusal.setting;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.rfind(std::string("bexa: ") + refusal.what, 0), 0U) << result.err;
        EXPECT_NE(result.err.find("nothing was written"), std::string::npos) << result.err;
        expectUntouched();
    }
}

TEST_F(SettingsCommand, ARefusalSaysWhatWhereAndWhatToDo) {
    EXPECT_EQ(
        run(setting("undoLimit=0")).err,
        "bexa: the setting undoLimit does not take \"0\": user/bexenv.rsc: give a value of its kind and "
        "range, it is 30 now; a setting that no editor changes by its key takes none; nothing was "
        "written\n");
}

TEST_F(SettingsCommand, WhatIsNoSettingIsWrongUse) {
    for (const char* text : {"undoLimit", "=5", ""}) {
        const Outcome result = run(setting(text));
        EXPECT_EQ(result.code, 2) << text;
        EXPECT_NE(result.err.find(": write it KEY=VALUE\n"), std::string::npos) << result.err;
    }
    expectUntouched();
}

TEST_F(SettingsCommand, TheCopyOfAnotherProgramIsLeftAlone) {
    writeFile(file("user/_bexenv.rsc"), "being saved");
    const Outcome result = run(setting("undoLimit=5"));
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.err.find("the temporary copy is there already"), std::string::npos) << result.err;
    EXPECT_EQ(contentOf(file("user/_bexenv.rsc")), "being saved");
    fs::remove(file("user/_bexenv.rsc"));
    expectUntouched();
}

TEST_F(SettingsCommand, ABackupThatCannotBeWrittenKeepsTheFileAsItWas) {
    fs::create_directory(file("user/#bexenv.rsc"));
    writeFile(file("user/#bexenv.rsc/inside"), "");
    EXPECT_EQ(run(setting("undoLimit=5")).code, 2);
    fs::remove_all(file("user/#bexenv.rsc"));
    expectUntouched();
}

// What a process writes beyond so many bytes of a file fails, as on a disk that is full.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &former_);
        const rlimit limit = {bytes, former_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, formerHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*formerHandler_)(int);
    rlimit former_ = {};
};

TEST_F(SettingsCommand, AFullDiskKeepsTheFileAsItWas) {
    for (const rlim_t bytes : {300U, 1000U, 2000U}) {
        Outcome result;
        {
            const FileSizeLimit limit(bytes);
            result = run(setting("undoLimit=5"));
        }
        EXPECT_EQ(result.code, 2) << bytes;
        EXPECT_EQ(result.err,
                  "bexa: the file cannot be written: user/bexenv.rsc: make room; the file is as it was\n");
        expectUntouched();
    }
}

TEST_F(SettingsCommand, RightsStayAndALinkLeadsWhereItLed) {
    fs::permissions(file("user/bexenv.rsc"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("user/bexenv.rsc", file("bexenv.rsc"));
    good({"env", "bexenv.rsc", "--set", "undoLimit=5"});
    EXPECT_TRUE(fs::is_symlink(file("bexenv.rsc")));
    EXPECT_NE(environment().find("undoLimit : 5\n"), std::string::npos);
    for (const char* name : {"user/bexenv.rsc", "user/#bexenv.rsc"}) {
        EXPECT_EQ(fs::status(file(name)).permissions(), fs::perms::owner_read | fs::perms::owner_write)
            << name;
    }
}

TEST_F(SettingsCommand, AnEditorsSettingThatTheWriterLeavesOutIsTold) {
    writeFile(file("user/bexenv.rsc"), "logfile : \"trace\"\n");
    const Outcome result = run(setting("undoLimit=5"));
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err,
              "bexa: saving does not keep logfile: user/bexenv.rsc: take it from the backup copy if "
              "it is needed\n");
    EXPECT_EQ(contentOf(file("user/#bexenv.rsc")), "logfile : \"trace\"\n");
}

TEST_F(SettingsCommand, ChangesACircuitResource) {
    const std::string path = "resources/bexdata.rsc";
    const std::string former = contentOf(file(path));
    const std::vector<std::string> command = {"rc",
                                              path,
                                              "--set",
                                              "NODESIZE=3",
                                              "busStartChar=<",
                                              "noMountAliasValue=無し",
                                              "noMountAliasName=5",
                                              "defaultCompColor=-1"};
    const Outcome result = run(command);
    EXPECT_EQ(result.code, 0) << result.err;
    const Json settings = json({"rc", path})["settings"];
    EXPECT_EQ(settings["nodeSize"], 3.0);
    EXPECT_EQ(settings["busStartChar"], "<");
    EXPECT_EQ(settings["noMountAliasValue"], "無し");
    EXPECT_EQ(settings["noMountAliasName"], "5");
    EXPECT_EQ(settings["defaultCompColor"], -1);
    EXPECT_EQ(contentOf(file("resources/#bexdata.rsc")), former);
}

TEST_F(SettingsCommand, KeysThatTheTextSetterOnlyPretendsToTakeAreRefused) {
    const std::string path = "resources/bexdata.rsc";
    const std::string former = contentOf(file(path));
    for (const char* text : {"busEndChar=[x]", "dateFormat=x", "dateFormat=YYYY年MM月DD日", "vmarkStr=*",
                             "vmarkFlag=On", "nosuch=x", "cornerRadius=0", "nodeSize=x", "defaultNetColor=99",
                             "precisionTblNo=7", "defaultCircleFillStyle=1"}) {
        const Outcome result = run({"rc", path, "--set", text});
        EXPECT_EQ(result.code, 1) << text << result.err;
    }
    EXPECT_EQ(contentOf(file(path)), former);
    EXPECT_FALSE(fs::exists(file("resources/#bexdata.rsc")));
}

TEST_F(SettingsCommand, OtherFilesAreRefusedUntouched) {
    const std::string block = contentOf(file("output_stage.blk"));
    const Outcome none = run({"env", "output_stage.blk", "--set", "undoLimit=5"});
    EXPECT_EQ(none.code, 2);
    EXPECT_EQ(none.err,
              "bexa: not the file of an environment resource: output_stage.blk: give a file that has "
              "such settings, or the name bexenv.rsc\n");
    EXPECT_EQ(contentOf(file("output_stage.blk")), block);
    EXPECT_EQ(run({"env", "resources/bexdata.rsc"}).code, 2);
    EXPECT_EQ(run({"rc", "user/bexenv.rsc"}).code, 2);
    EXPECT_EQ(run({"env", "user"}).code, 2);
    EXPECT_EQ(run({"env", "nowhere.rsc", "--set", "undoLimit=5"}).err,
              "bexa: no such file: nowhere.rsc: check the path\n");
    EXPECT_EQ(
        run({"rc", "faulty/broken/bexdata.rsc"}).err,
        "bexa: the circuit resource cannot be read: faulty/broken/bexdata.rsc: check that you may read it, "
        "that each table has the right number of columns, and that each value fits its key\n");
}

} // namespace
} // namespace bexa::test
