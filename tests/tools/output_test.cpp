#include "tests/tools/program.h"

#include <unistd.h>

namespace bexa::test {
namespace {

class ProgramOutput : public Program {};

TEST_F(ProgramOutput, AFullDiskIsToldNotACrash) {
    if (::access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no full device here";
    EXPECT_EQ(runInto("/dev/full", {"circuit", "amplifier.cir"}), 2);
    EXPECT_EQ(runInto("/dev/full", {"name", "expand", "D[0-9999]"}), 2);
    EXPECT_EQ(runInto("/dev/full", {"--help"}), 2);
}

TEST_F(ProgramOutput, AReaderThatWentAwayIsToldNotACrash) {
    EXPECT_EQ(runIntoClosedPipe({"circuit", "amplifier.cir", "--json"}), 2);
    EXPECT_EQ(runIntoClosedPipe({"--version"}), 2);
}

TEST_F(ProgramOutput, NoOutputAtAllIsToldNotACrash) {
    EXPECT_EQ(runWithoutOutput({"kinds", "system/etc/CompKind"}), 2);
}

} // namespace
} // namespace bexa::test
