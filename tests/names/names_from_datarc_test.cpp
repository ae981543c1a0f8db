// The name classes with the delimiters of a circuit resource.
#include "bexa/circuitrc/datarc.h"
#include "bexa/names/bundle_name.h"
#include "bexa/names/name_compression.h"
#include "tests/names/naming.h"

#include <gtest/gtest.h>

namespace {

using namespace naming;

// A new circuit resource that is never written.
class NamesFromDatarc : public testing::Test {
protected:
    ~NamesFromDatarc() override { BexDatarc::close(rc_, BexCloseDiscard); }

    const BexDatarc& withBuiltIn() { return *rc_; }
    const BexDatarc& with(const Marks& marks) {
        rc_->set("busStartChar", marks.busStart, 0, 0);
        rc_->set("busEndChar", marks.busEnd, 0, 0);
        rc_->set("rangeEndChar", marks.rangeEnd, 0, 0);
        rc_->set("bitEndChar", marks.bitEnd, 0, 0);
        rc_->set("rangeStepChar", marks.rangeStep, 0, 0);
        return *rc_;
    }

private:
    BexDatarc* rc_ = BexDatarc::open("never-written", BexOpenCreate, nullptr);
};

TEST_F(NamesFromDatarc, TakeTheBuiltInDelimiters) {
    EXPECT_EQ(BexChkSigName("D[7]", withBuiltIn()).bitNumber(), 7);
    EXPECT_EQ(signalsOf(BexChkArrayName("D[0-4-2]", withBuiltIn())), (Texts{"D[0]", "D[2]", "D[4]"}));
    EXPECT_EQ(BexChkBundleName("A,D[0-3]", withBuiltIn()).sigCount(), 5);
    EXPECT_STREQ(BexChkPressName("D[0],D[2],D[4]", withBuiltIn()).newName(), "D[0-4-2]");
}

TEST_F(NamesFromDatarc, TakeEachDelimiterFromItsPlace) {
    const BexDatarc& rc = with({'<', '>', ':', ';', '/'});
    EXPECT_EQ(BexChkSigName("D<7>", rc).bitNumber(), 7);
    EXPECT_EQ(signalsOf(BexChkArrayName("D<0:4/2;9>", rc)), (Texts{"D<0>", "D<2>", "D<4>", "D<9>"}));
    EXPECT_EQ(arraysOf(BexChkBundleName("A;D<0:3>", rc)), (Texts{"A", "D<0:3>"}));
    EXPECT_STREQ(BexChkPressName("D<0>;D<2>;D<4>", rc).newName(), "D<0:4/2>");
}

TEST_F(NamesFromDatarc, MissADelimiterOnlyForAName) {
    const BexDatarc& rc = with({'[', ']', '\0', ',', '-'});
    EXPECT_EQ(BexChkSigName("D", rc).errType(), BexNetNameNoDelimiter);
    EXPECT_EQ(BexChkSigName("", rc).errType(), BexNetNameUnchecked);
    EXPECT_EQ(BexChkArrayName("D", rc).errType(), BexNetNameNoDelimiter);
    EXPECT_STREQ(BexChkArrayName("D", rc).arrayName(), "D");
    EXPECT_EQ(BexChkBundleName("D", rc).errType(), BexNetNameNoDelimiter);
    EXPECT_EQ(BexChkPressName("D", rc).isValid(), 0u);
}

TEST_F(NamesFromDatarc, PutTheRangeDelimiterForAMissingStep) {
    EXPECT_STREQ(BexChkPressName("D[0],D[2],D[4]", with({'[', ']', ':', ',', '\0'})).newName(), "D[0:4:2]");
}

TEST_F(NamesFromDatarc, BundleKeepsTextAndSeparatorAfterAFailure) {
    BexChkBundleName failed("X[", withBuiltIn());
    EXPECT_EQ(failed.errType(), BexNetNameSyntax);
    EXPECT_STREQ(failed.bundleName(), "X[");
    EXPECT_STREQ(bundle("X[").bundleName(), ""); // the other constructor

    BexChkBundleName undelimited("X", with({'\0', ']', '-', ';', '-'}));
    EXPECT_EQ(undelimited.errType(), BexNetNameNoDelimiter);
    EXPECT_STREQ(undelimited.bundleName(), "X");
    undelimited.append(array("A"));
    undelimited.append(array("B"));
    EXPECT_STREQ(undelimited.bundleName(), "A;B");
}

} // namespace
