#include "tests/support/files.h"
#include "tests/tools/program.h"

#include <gmock/gmock.h>

namespace bexa::test {
namespace {

constexpr const char* specification = "system/etc/eng/PropSpec";

class PropsCommand : public Program {
protected:
    PropsCommand() { set("AMPLIFIER_LIBRARY", "library"); }

    // The sections of a specification as it is shown, by their names.
    std::vector<std::string> sections(const Arguments& arguments) const {
        std::vector<std::string> names;
        const Json document = json(arguments);
        for (const Json& section : document["sections"]) names.push_back(section["section"]);
        return names;
    }
};

using testing::ElementsAre;

TEST_F(PropsCommand, ShowsOwnersTablesAndReferences) {
    EXPECT_EQ(good({"props", specification}), expected("props.txt"));
}

TEST_F(PropsCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"props", specification}), Json::parse(expected("props.json")));
}

TEST_F(PropsCommand, OneOwnerIsShownWithItsTables) {
    EXPECT_EQ(good({"props", specification, "--owner", "$bNet"}), expected("props_owner.txt"));
    EXPECT_EQ(good({"props", specification, "--owner", "bNet"}), expected("props_owner.txt"));
    EXPECT_THAT(sections({"props", specification, "--owner", "Component"}),
                ElementsAre("$Component", "Layout", "Ordering"));
    EXPECT_THAT(sections({"props", specification, "--owner", "Layout"}), ElementsAre("Layout"));
    EXPECT_THAT(sections({"props", specification, "--owner", "simulation"}), ElementsAre("simulation"));
}

TEST_F(PropsCommand, ReferencesAreThoseOfTheSectionsShown) {
    EXPECT_EQ(json({"props", specification, "--owner", "Component"})["references"].size(), 1U);
    EXPECT_EQ(json({"props", specification, "--owner", "bNet"})["references"].size(), 0U);
}

TEST_F(PropsCommand, AnOwnerThatIsNotThereIsTold) {
    const Outcome result = run({"props", specification, "--owner", "$nNode"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "bexa: no section \"$nNode\": system/etc/eng/PropSpec: see bexa props "
                          "system/etc/eng/PropSpec\n");
}

TEST_F(PropsCommand, AReferenceFileThatIsNotThereIsNoFinding) {
    set("AMPLIFIER_LIBRARY", "/nowhere");
    EXPECT_EQ(run({"props", specification}).code, 0);
    const Json shown = json({"props", specification});
    EXPECT_EQ(shown["references"],
              Json::parse(R"([{"file": "system/etc/eng/PropSpec", "section": "$Component",
        "path": "$AMPLIFIER_LIBRARY/settings/PartSpec", "from": "$Component",
        "leadsTo": "/nowhere/settings/PartSpec", "present": false}])"));
}

TEST_F(PropsCommand, UnknownTypesAndLostTablesAreFindings) {
    const Outcome result = run({"props", "faulty/PropSpec"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, expected("props_faulty.txt"));
    EXPECT_EQ(result.err,
              "bexa: the property \"weight\" of $Component has no type that is known: "
              "faulty/PropSpec: write int, float, text or hide behind its name\n"
              "bexa: the table \"Packaging\" of $Component is not there: faulty/PropSpec: write its "
              "section, or remove the row\n");
}

TEST_F(PropsCommand, TablesBelowTablesAreShownWithTheirUsers) {
    writeFile(file("deep"), "$sNet {\n( $RefTable A )\n}\n$Frame {\n( $RefTable B )\n}\n"
                            "A {\n( a int )\n( $RefTable B )\n}\nB {\n( b int )\n}\n");
    const Json shown = json({"props", "deep"})["sections"];
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[3]["section"], "B");
    EXPECT_EQ(shown[3]["usedBy"], Json::parse(R"(["$Frame", "A"])"));
    EXPECT_THAT(sections({"props", "deep", "--owner", "$sNet"}), ElementsAre("$sNet", "A", "B"));
}

TEST_F(PropsCommand, FilesThatNameEachOtherInACircleComeToAnEnd) {
    writeFile(file("one"), "$sNet {\n( a int )\n( $RefFile two $sNet )\n}\n");
    writeFile(file("two"), "$sNet {\n( b int )\n( $RefFile one $sNet )\n}\n");
    const Json shown = json({"props", "one"});
    EXPECT_EQ(shown["sections"][0]["properties"].size(), 2U);
    ASSERT_EQ(shown["references"].size(), 2U);
    EXPECT_EQ(shown["references"][1]["file"], "two");
    EXPECT_EQ(shown["references"][1]["path"], "one");
}

TEST_F(PropsCommand, ARowThatIsNoListEndsTheReadingAndTheRestIsShown) {
    writeFile(file("broken"), "$Component {\n( a int )\n}\n$sNet {\n( b int )\nc\n( d int )\n}\n");
    const Outcome result = run({"props", "broken", "--json"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "bexa: the property specification cannot be read to its end: broken: check that each "
              "row of a section is a list in parentheses\n");
    const Json shown = Json::parse(result.out)["sections"];
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1]["properties"].size(), 1U);
}

TEST_F(PropsCommand, AFileThatCannotBeReadIsTold) {
    for (const std::string path : {"nowhere", "system"}) {
        const Outcome result = run({"props", path});
        EXPECT_EQ(result.code, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "bexa: the file cannot be read: " + path +
                                  ": check the path, and that it is a plain file which you may read\n");
    }
}

TEST_F(PropsCommand, AFileOfSomethingElseHasNoSections) {
    EXPECT_EQ(good({"props", "system/etc/CompKind"}), "file  system/etc/CompKind\n"
                                                      "\n"
                                                      "sections\n"
                                                      "  none\n"
                                                      "\n"
                                                      "references\n"
                                                      "  none\n");
}

TEST_F(PropsCommand, JapaneseTextsAreShownInTheCodingOfTheTerminal) {
    writeFile(file("japanese"), "# TALVO HK8800 systems - resource declaration.\n# Resource version:2.1x\n"
                                "# japanese_coding:sjis\n$sNet {\n( a text \"\x92\xEF\x8D\x52\" ON 3 "
                                "\x92\xEF\x8D\x52 )\n}\n");
    const Json row = json({"props", "japanese"})["sections"][0]["properties"][0];
    EXPECT_EQ(row["text"], "抵抗");
    EXPECT_EQ(row["choices"], Json::parse("[\"抵抗\"]"));
    set("LANG", "C");
    EXPECT_NE(good({"props", "japanese"}).find("\x92\xEF\x8D\x52\n"), std::string::npos);
}

TEST_F(PropsCommand, NamesThatSteerATerminalAreShownAsCodes) {
    writeFile(file("hostile"),
              "$sNet {\n( \x1B[2J int )\n( $RefTable \x1B[3J )\n}\n\x1B[3J {\n( a int )\n}\n");
    const std::string out = good({"props", "hostile"});
    EXPECT_NE(out.find("table \\x1b[3J"), std::string::npos) << out;
    EXPECT_EQ(out.find('\x1B'), std::string::npos);
}

} // namespace
} // namespace bexa::test
