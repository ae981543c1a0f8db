#include "tests/support/files.h"
#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class KindsCommand : public Program {};

TEST_F(KindsCommand, ShowsHeadersAndKindsAlignedByDisplayWidth) {
    EXPECT_EQ(good({"kinds", "system/etc/CompKind"}), expected("kinds.txt"));
}

TEST_F(KindsCommand, JsonHoldsTheSame) {
    EXPECT_EQ(json({"kinds", "system/etc/CompKind"}), Json::parse(expected("kinds.json")));
}

TEST_F(KindsCommand, TextsKeepTheirBytesWhereTheLocaleIsNotUtf8) {
    set("LANG", "C");
    EXPECT_NE(good({"kinds", "system/etc/CompKind"}).find("\x92\xEF\x8D\x52\n"), std::string::npos)
        << "Shift-JIS";
    set("LANG", "ja_JP.eucJP");
    EXPECT_NE(good({"kinds", "system/etc/CompKind"}).find("\xC4\xF1\xB9\xB3\n"), std::string::npos) << "EUC";
    EXPECT_EQ(json({"kinds", "system/etc/CompKind"}), Json::parse(expected("kinds.json")))
        << "JSON is always UTF-8";
}

TEST_F(KindsCommand, AnEmptyFileHasTheBuiltInHeaders) {
    writeFile(file("empty"), "");
    EXPECT_EQ(json({"kinds", "empty"}),
              Json::parse(R"({"file": "empty", "netHeader": "SIG", "busHeader": "BUS",
        "defaultBlockRefHeader": "X", "defaultSymbRefHeader": "SY", "kinds": []})"));
}

TEST_F(KindsCommand, TextsThatSteerATerminalAreShownAsCodes) {
    writeFile(file("hostile"), "ComponentKind 3 {\n\t1\t\t\"\x1B[2J\"\t\"\xFF\"\n}\n");
    const Outcome result = run({"kinds", "hostile"});
    EXPECT_NE(result.out.find("\\x1b[2J"), std::string::npos) << result.out;
    EXPECT_EQ(result.out.find('\x1B'), std::string::npos);
    EXPECT_EQ(json({"kinds", "hostile"})["kinds"][0]["refHeader"], "\xEF\xBF\xBD");
}

TEST_F(KindsCommand, AFileThatCannotBeReadIsTold) {
    const Outcome broken = run({"kinds", "faulty/wrong_columns.kinds"});
    EXPECT_EQ(broken.code, 2);
    EXPECT_EQ(
        broken.err,
        "bexa: the component kinds cannot be read: faulty/wrong_columns.kinds: check that you may read it, "
        "that ComponentKind has 3 columns, and that no other key than those of the headers stands in it\n");
    const Outcome missing = run({"kinds", "nowhere"});
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.err, "bexa: no such file: nowhere: check the path\n");
}

} // namespace
} // namespace bexa::test
