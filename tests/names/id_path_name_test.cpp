#include "bexa/names/id_path_name.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

constexpr BexObjectType onSheet = BexSheetObject;

BexIdName link(const char* text) {
    return {text, onSheet};
}
BexIdPathName path(const char* text) {
    return {text, onSheet};
}

std::vector<std::string> linksOf(const BexIdPathName& path) {
    std::vector<std::string> names;
    for (int i = 0; i < path.idNameCount(); ++i) names.emplace_back(path.at(i).name());
    return names;
}
using Links = std::vector<std::string>;

TEST(IdPathName, IsCutAtEachPoint) {
    BexIdPathName read;
    EXPECT_EQ(read.pathName("cmp4.cmp17.cpn2", onSheet), 1u);
    EXPECT_EQ(linksOf(read), (Links{"cmp4", "cmp17", "cpn2"}));
    EXPECT_STREQ(read.pathName(), "cmp4.cmp17.cpn2");
    EXPECT_EQ(read.isValid(), 1u);
    EXPECT_EQ(read.at(2).objType(), BexComponentPinObject);

    EXPECT_EQ(linksOf(path("cmp4")), (Links{"cmp4"}));
    EXPECT_EQ(linksOf(path("CMP4.pvw_x")), (Links{"CMP4", "pvw_x"}));
}

TEST(IdPathName, HasOneContextForAllLinks) {
    const BexIdPathName onSymbol("pvw1.cpn2", BexSymbolObject);
    EXPECT_EQ(onSymbol.at(1).objType(), BexSymbolPinObject);
    EXPECT_EQ(BexIdPathName("cmp1.cpn2", BexSymbolObject).isValid(), 0u);
}

TEST(IdPathName, WithABadLinkHasNoneButKeepsTheText) {
    for (const char* text : {"", ".", "cmp4..cpn2", "cmp4.", ".cmp4", "cmp4.x", "cmp4.cmp", "cmp4. cmp5",
                             "cmp4/cmp5", "cmp4.cmp5.\xb6"}) {
        SCOPED_TRACE(text);
        BexIdPathName read = path("cmp1.cmp2");
        EXPECT_EQ(read.pathName(text, onSheet), 0u);
        EXPECT_EQ(read.idNameCount(), 0);
        EXPECT_EQ(read.isValid(), 0u);
        EXPECT_STREQ(read.pathName(), text);
    }
}

TEST(IdPathName, OfNullIsEmpty) {
    BexIdPathName read = path("cmp1");
    EXPECT_EQ(read.pathName(nullptr, onSheet), 0u);
    EXPECT_EQ(read.idNameCount(), 0);
    EXPECT_STREQ(read.pathName(), "");
}

TEST(IdPathName, MayBeReadFromItsOwnLink) {
    BexIdPathName read = path("cmp1.cpn2");
    EXPECT_EQ(read.pathName(read.at(1).name(), onSheet), 1u);
    EXPECT_EQ(linksOf(read), (Links{"cpn2"}));
    EXPECT_EQ(read.pathName(read.pathName(), onSheet), 1u);
    EXPECT_STREQ(read.pathName(), "cpn2");
}

TEST(IdPathName, HasNoLimitOfLength) {
    std::string text = "cmp" + std::string(5000, '7');
    for (int i = 0; i < 2000; ++i) text += ".cmp1";
    EXPECT_EQ(path(text.c_str()).idNameCount(), 2001);
    text += ".";
    EXPECT_EQ(path(text.c_str()).idNameCount(), 0);
}

TEST(IdPathName, HandsOutCopiesOfItsLinks) {
    const BexIdPathName read = path("cmp4.cpn2");
    BexIdName out = link("bsg9");
    EXPECT_EQ(read.idName(2, out), 0u);
    EXPECT_EQ(read.idName(-1, out), 0u);
    EXPECT_STREQ(out.name(), "bsg9");
    EXPECT_EQ(read.idName(1, out), 1u);
    EXPECT_STREQ(out.name(), "cpn2");
    EXPECT_EQ(out.id(), 2);
}

TEST(IdPathName, GrowsBehind) {
    BexIdPathName grown;
    EXPECT_EQ(grown.append(link("cmp1")), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp1");
    EXPECT_EQ(grown.append(link("cpn2")), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp1.cpn2");
    EXPECT_EQ(grown.append(path("cmp7.cmp8")), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp1.cpn2.cmp7.cmp8");
    EXPECT_EQ(linksOf(grown), (Links{"cmp1", "cpn2", "cmp7", "cmp8"}));
}

TEST(IdPathName, GrowsAhead) {
    BexIdPathName grown = path("cmp1.cpn2");
    EXPECT_EQ(grown.insert(link("cmp9")), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp9.cmp1.cpn2");
    EXPECT_EQ(grown.insert(path("cmp7.cmp8")), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp7.cmp8.cmp9.cmp1.cpn2");
    EXPECT_EQ(linksOf(grown), (Links{"cmp7", "cmp8", "cmp9", "cmp1", "cpn2"}));
}

TEST(IdPathName, GrowsByItselfAndByItsLinks) {
    BexIdPathName grown = path("cmp1.cpn2");
    EXPECT_EQ(grown.append(grown), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp1.cpn2.cmp1.cpn2");
    EXPECT_EQ(grown.idNameCount(), 4);
    EXPECT_EQ(grown.insert(grown), 1u);
    EXPECT_EQ(grown.idNameCount(), 8);
    for (int i = 0; i < 300; ++i) grown.append(grown.at(1));
    EXPECT_EQ(grown.idNameCount(), 308);
    EXPECT_STREQ(grown.at(307).name(), "cpn2");
    EXPECT_EQ(grown.insert(grown.at(1)), 1u);
    EXPECT_STREQ(grown.at(0).name(), "cpn2");
}

TEST(IdPathName, TakesLinksThatAreNotValid) {
    BexIdPathName grown = path("cmp1");
    EXPECT_EQ(grown.append(link("xyz")), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp1.xyz");
    EXPECT_EQ(grown.append(BexIdName()), 1u); // an empty name adds a link, but no point
    EXPECT_STREQ(grown.pathName(), "cmp1.xyz");
    EXPECT_EQ(grown.idNameCount(), 3);
    EXPECT_EQ(grown.append(BexIdPathName()), 1u);
    EXPECT_STREQ(grown.pathName(), "cmp1.xyz");
    EXPECT_EQ(grown.idNameCount(), 3);
}

TEST(IdPathName, GrowsBehindTheTextThatFailed) {
    BexIdPathName grown = path("cmp4.");
    grown.append(link("cpn2"));
    EXPECT_STREQ(grown.pathName(), "cmp4.cpn2"); // no second point
    EXPECT_EQ(grown.idNameCount(), 1);
}

TEST(IdPathName, IsMadeOfLinks) {
    BexIdName_Array links;
    EXPECT_STREQ(BexIdPathName(links).pathName(), "");
    links.append(link("cmp1"));
    links.append(link("cpn2"));
    const BexIdPathName made(links);
    EXPECT_STREQ(made.pathName(), "cmp1.cpn2");
    EXPECT_EQ(linksOf(made), (Links{"cmp1", "cpn2"}));

    const BexIdPathName single(link("cmp1"));
    EXPECT_STREQ(single.pathName(), "cmp1");
    EXPECT_EQ(single.idNameCount(), 1);
}

TEST(IdPathName, IsCopiedWhole) {
    const BexIdPathName read = path("cmp1.cpn2");
    const BexIdPathName copy(read);
    BexIdPathName assigned = path("bsg1.bsg2.bsg3");
    assigned = read;
    for (const BexIdPathName* other : {&copy, static_cast<const BexIdPathName*>(&assigned)}) {
        EXPECT_STREQ(other->pathName(), "cmp1.cpn2");
        EXPECT_EQ(linksOf(*other), (Links{"cmp1", "cpn2"}));
    }
}

TEST(IdPathName, IsEmptyByDefault) {
    const BexIdPathName empty;
    EXPECT_STREQ(empty.pathName(), "");
    EXPECT_EQ(empty.idNameCount(), 0);
    EXPECT_EQ(empty.isValid(), 0u);
}

} // namespace
