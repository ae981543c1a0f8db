#include "tests/tools/program.h"

namespace bexa::test {
namespace {

class Use : public Program {};

TEST_F(Use, VersionAndHelpAreGood) {
    EXPECT_EQ(good({"--version"}), "bexa " BEXA_PROGRAM_VERSION "\n");
    for (const char* command : {"circuit", "sheets", "block", "name",   "kinds", "value", "prop", "props",
                                "find",    "new",    "lock",  "unlock", "locks", "text",  "csv",  "env",
                                "rc",      "diff",   "check", "zone",   "count", "merge", "drc",  "reload"}) {
        EXPECT_NE(good({"--help"}).find(command), std::string::npos) << command;
        EXPECT_NE(good({command, "--help"}).find("bexa " + std::string(command)), std::string::npos);
    }
}

struct Row {
    std::vector<std::string> arguments;
    const char* message;
};

TEST_F(Use, WrongUseIsToldWithTheWayToTheHelp) {
    const Row rows[] = {
        {{}, "bexa: A subcommand is required: bexa: see bexa --help\n"},
        {{"sing"}, "bexa: unknown word sing: bexa: see bexa --help\n"},
        {{"circuit"}, "bexa: PATH.cir is required: bexa circuit: see bexa circuit --help\n"},
        {{"name"}, "bexa: A subcommand is required: bexa name: see bexa name --help\n"},
        {{"name", "sing"}, "bexa: unknown word sing: bexa name: see bexa name --help\n"},
        {{"name", "expand"}, "bexa: NAME is required: bexa name expand: see bexa name expand --help\n"},
        {{"name", "expand", "-VEE"},
         "bexa: unknown word -VEE: bexa name expand: see bexa name expand --help\n"},
        {{"block", "a.blk", "--pure", "--expanded"},
         "bexa: --pure excludes --expanded: bexa block: see bexa block --help\n"},
        {{"kinds", "a", "--loud"}, "bexa: unknown word --loud: bexa kinds: see bexa kinds --help\n"},
        {{"value"}, "bexa: A subcommand is required: bexa value: see bexa value --help\n"},
        {{"props"}, "bexa: FILE is required: bexa props: see bexa props --help\n"},
        {{"zone"}, "bexa: LABEL is required: bexa zone: see bexa zone --help\n"},
        {{"count", "-V5"}, "bexa: unknown word -V5: bexa count: see bexa count --help\n"},
        {{"merge", "first"}, "bexa: SECOND is required: bexa merge: see bexa merge --help\n"},
        {{"new"}, "bexa: PATH.cir is required: bexa new: see bexa new --help\n"},
        {{"lock"}, "bexa: SHEET is required: bexa lock: see bexa lock --help\n"},
        {{"text"}, "bexa: A subcommand is required: bexa text: see bexa text --help\n"},
        {{"text", "convert", "notes.txt"},
         "bexa: --to is required: bexa text convert: see bexa text convert --help\n"},
        {{"text", "convert", "notes.txt", "--to", "jis"},
         "bexa: --to: jis not in {euc,sjis}: bexa text convert: see bexa text convert --help\n"},
        {{"csv", "parts.csv", "--line", "-1"},
         "bexa: --line: Value -1 not in range 0 to 2147483647: bexa csv: see bexa csv --help\n"},
        {{"name", "check", "A", "--circuit", "faulty/broken_rcpath.cir"},
         "bexa: the resource path list cannot be read: faulty/broken_rcpath.cir/rcpath: check that you may "
         "read "
         "it and that each line is NAME : \"DIRECTORY\"\n"},
        {{"name", "check", "A", "--circuit", "library"},
         "bexa: not a circuit: library: give the path of a directory whose name ends in .cir\n"},
    };
    for (const Row& row : rows) {
        const Outcome result = run(row.arguments);
        EXPECT_EQ(result.code, 2) << row.message;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, row.message);
    }
}

} // namespace
} // namespace bexa::test
