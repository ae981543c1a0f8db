#include "tests/support/files.h"
#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class ReloadCommand : public Program {
protected:
    Outcome show(std::string_view content) const {
        writeFile(file("reload.rsc"), content);
        return run({"reload", "reload.rsc"});
    }
};

TEST_F(ReloadCommand, ShowsTheSettings) {
    EXPECT_EQ(good({"reload", "resources/reload.rsc"}), expected("reload.txt"));
}

TEST_F(ReloadCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"reload", "resources/reload.rsc"}), Json::parse(expected("reload.json")));
}

TEST_F(ReloadCommand, AFileThatAProgramSavedIsGoodButNotComplete) {
    EXPECT_EQ(show(contentOf(testData("batch/saved_reload.rsc"))).err, "");
    const Json reload = json({"reload", "reload.rsc"});
    EXPECT_EQ(reload["complete"], false);
    EXPECT_EQ(reload["settings"]["checkSymbolPinMatching"], false);
}

TEST_F(ReloadCommand, WhatTheReloadPassesOverIsAFinding) {
    const Outcome result = run({"reload", "faulty/reload.rsc"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("reload_faulty.txt"));
    EXPECT_EQ(
        result.err,
        "bexa: the setting compProperty is not read whole: faulty/reload.rsc: write it as a table of names\n"
        "bexa: the setting dispPartName is not read whole: faulty/reload.rsc: write it as a list of 1 or 2 "
        "texts\n");
}

TEST_F(ReloadCommand, RowsSayWhichValuesFit) {
    const struct {
        const char* content;
        const char* form; // null if it fits
    } rows[] = {
        {"compRefmode: ALL", nullptr},
        {"compRefmode:\n", nullptr},
        {"compRefmode: ( ALL )", "one text"},
        {"checkSymbolPinKey { KEY }", "one text"},
        {"checkSymbolPinMatching: maybe", nullptr},
        {"pinProperty { A B A }", nullptr},
        {"pinProperty { }", nullptr},
        {"pinProperty { A ( B ) }", "a table of names"},
        {"pinProperty: ( A )", "a table of names"},
        {"dispPartName: ( )", "a list of 1 or 2 texts"},
        {"dispPartName: ( A B )", nullptr},
        {"skipCompByProp: ( A )", "a list of 2 or 3 texts"},
        {"skipCompByProp: ( A B C )", nullptr},
        {"skipCompByProp: ( A B C D )", "a list of 2 or 3 texts"},
    };
    for (const auto& row : rows) {
        const Outcome result = show(row.content);
        EXPECT_EQ(result.code, row.form ? 1 : 0) << row.content;
        const std::string end = row.form ? std::string("write it as ") + row.form + '\n' : "";
        EXPECT_TRUE(result.err.ends_with(end)) << result.err;
    }
}

TEST_F(ReloadCommand, VariablesInThePathAreReplaced) {
    set("PLACE", "resources");
    const Json reload = json({"reload", "${PLACE}/reload.rsc"});
    EXPECT_EQ(reload["file"], "${PLACE}/reload.rsc");
    EXPECT_EQ(reload["complete"], true);
}

TEST_F(ReloadCommand, AFileWithoutAnySettingIsAFinding) {
    for (const std::string_view content : {std::string_view(""), std::string_view("\0\x01\xFF", 3)}) {
        const Outcome result = show(content);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.err,
                  "bexa: none of the settings stands in the file: reload.rsc: check that it is a reload "
                  "resource; the built-in settings are shown\n");
    }
}

TEST_F(ReloadCommand, AFileThatCannotBeReadIsTold) {
    for (const char* path : {"nowhere", "library", ""}) {
        const Outcome result = run({"reload", path});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("bexa: the file cannot be read: ") + (*path ? path : "\"\"") +
                                  ": check the path, and that it is a plain file which you may read\n");
    }
}

} // namespace
} // namespace bexa::test
