#include "tests/props/spec_fixture.h"
#include "tests/support/child.h"

using namespace bexa::test;

namespace {

class HostileSpec : public SpecTest {
protected:
    BexPropOwnerRec* net() { return specification_.ownerRec("$sNet"); }

    BexPropSpecFile specification_;
};

TEST_F(HostileSpec, AReferenceFileMayNameItself) {
    const std::string path = dir_.file("PropSpec");
    EXPECT_TRUE(read(specification_, "$sNet { ( a int ) ( $RefFile \"" + path + "\" $sNet ) ( b int ) }"));
    EXPECT_EQ(namesOf(net()), "a b");
}

TEST_F(HostileSpec, ReferenceFilesMayNameEachOther) {
    const std::string first = dir_.file("PropSpec");
    const std::string second =
        written("S { ( b int ) ( $RefFile \"" + first + "\" $sNet ) ( c int ) }", "second");
    EXPECT_TRUE(read(specification_, "$sNet { ( a int ) ( $RefFile \"" + second + "\" S ) ( d int ) }"));
    EXPECT_EQ(namesOf(net()), "a b c d");
}

TEST_F(HostileSpec, ACircleByAnotherSpellingOfThePathEndsToo) {
    const std::string path = dir_.path() + "/./PropSpec";
    EXPECT_TRUE(read(specification_, "$sNet { ( a int ) ( $RefFile \"" + path + "\" $sNet ) ( b int ) }"));
    EXPECT_EQ(namesOf(net()), "a b");
}

TEST_F(HostileSpec, ATableThatNamesItselfIsNotPutBelowItself) {
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefTable T ) }\nT { ( a int ) ( $RefTable T ) ( b int ) }"));
    EXPECT_EQ(namesOf(net()), "T a b");
    EXPECT_EQ(net()->propSpec("none"), nullptr);
}

TEST_F(HostileSpec, TablesThatNameEachOtherEnd) {
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefTable T ) ( $RefTable U ) }\n"
                                     "T { ( a int ) ( $RefTable U ) }\nU { ( $RefTable T ) ( b int ) }"));
    EXPECT_EQ(namesOf(net()), "T a U b U b");
    EXPECT_EQ(net()->refTable("T", 0)->useCount(), 1);
    EXPECT_EQ(net()->refTable("U", 0)->useCount(), 2);
    EXPECT_EQ(net()->refTable("none", 1), nullptr);
}

TEST_F(HostileSpec, ATableMayHaveTheNameOfItsOwner) {
    EXPECT_TRUE(read(specification_, "$sNet { ( $RefTable $sNet ) ( a int ) }"));
    EXPECT_EQ(namesOf(net()), "$sNet a a");
    EXPECT_EQ(linesOf(specification_),
              "$sNet {\n\t( $RefTable\t\"$sNet\"\t\"$sNet\" )\n\t( a\tint\t\"\"\tOFF\t-1 )\n}\n");
}

TEST_F(HostileSpec, ACircleThroughATableAndAFileEnds) {
    const std::string path = dir_.file("PropSpec");
    EXPECT_TRUE(read(specification_,
                     "$sNet { ( $RefTable T ) }\nT { ( $RefFile \"" + path + "\" $sNet ) ( a int ) }"));
    EXPECT_EQ(namesOf(net()), "T a");
}

TEST_F(HostileSpec, AChainOfTablesMayBeLong) {
    constexpr int length = 5000;
    std::string content = "$sNet { ( $RefTable T0 ) }\n";
    for (int i = 0; i < length; ++i) {
        content += "T" + std::to_string(i) + " { ( $RefTable T" + std::to_string(i + 1) + " ) }\n";
    }
    EXPECT_TRUE(read(specification_, content + "T" + std::to_string(length) + " { ( last int ) }\n"));
    EXPECT_EQ(specification_.isExist("$sNet", "last"), 1UL);
    EXPECT_EQ(specification_.isExist("$sNet", "none"), 0UL);
    YString_Array names;
    EXPECT_EQ(net()->enumRefTableNames(names, 1), 1UL);
    EXPECT_EQ(names.size(), length + 1);
    YString_Array lines;
    specification_.makeString(lines);
    EXPECT_EQ(lines.size(), 3 * (length + 2));
}

TEST_F(HostileSpec, TablesThatMultiplyAreReadOnceAndNotEnumerated) {
    std::string content = "$sNet { ( $RefTable L0 ) ( $RefTable R0 ) }\n";
    for (int i = 0; i < 40; ++i) {
        const std::string next = std::to_string(i + 1);
        const std::string rows =
            std::to_string(i) + " { ( $RefTable L" + next + " ) ( $RefTable R" + next + " ) }\n";
        content.append("L").append(rows).append("R").append(rows);
    }
    EXPECT_TRUE(read(specification_, content + "L40 { ( l int ) }\nR40 { ( r hide ) }\nr { ( x int ) }\n"));
    EXPECT_EQ(specification_.isExist("$sNet", "r"), 1UL);
    EXPECT_EQ(specification_.isExist("$sNet", "none"), 0UL);
    EXPECT_NE(specification_.ownerRec("r"), nullptr);
    YString_Array names;
    EXPECT_EQ(net()->enumRefTableNames(names, 1), 0UL);
    EXPECT_EQ(names.size(), 0);
    EXPECT_EQ(namesOf(net(), 1, 0), "L0 R0");
}

TEST_F(HostileSpec, FilesThatNameEachOtherTwiceAreReadOnce) {
    std::string content = "$sNet { ( $RefFile FILE S0 ) }\n";
    for (int i = 0; i < 40; ++i) {
        const std::string row = "( $RefFile FILE S" + std::to_string(i + 1) + " ) ";
        content += "S" + std::to_string(i) + " { " + row + row + "}\n";
    }
    content += "S40 { ( last int ) }\n";
    const std::string quoted = "\"" + dir_.file("PropSpec") + "\"";
    for (std::size_t at = 0; (at = content.find("FILE", at)) != std::string::npos;)
        content.replace(at, 4, quoted);
    EXPECT_TRUE(read(specification_, content));
    EXPECT_EQ(namesOf(net()), "last");
}

TEST_F(HostileSpec, ManyRowsOfOneTableAreReadInOneGo) {
    std::string content = "$sNet { ";
    for (int i = 0; i < 20000; ++i) content += "( $RefTable T ) ( a int ) ";
    EXPECT_TRUE(read(specification_, content + "}\nT { ( t int ) }"));
    EXPECT_EQ(namesOf(net()), "T t a");
}

TEST_F(HostileSpec, BrokenFilesAreReadAsFarAsTheyGo) {
    const struct {
        std::string content;
        const char* lines;
    } rows[] = {
        {"$sNet {", ""},
        {"$sNet", ""},
        {"$sNet { ( a int", ""},
        {"$sNet { ( a int }\n", "$sNet {\n\t( a\tint\t\"\"\tOFF\t-1 )\n}\n"},
        {"$sNet { ( a \"int ) }\n", ""},
        {std::string("$sNet { ( a\0int ) }", 19), ""},
        {"\xFF\xFE\x01\x02 {", ""},
        {"$sNet 2 { ( a int ) ( b int ) ( c int ) }",
         "$sNet {\n\t( a\tint\t\"\"\tOFF\t-1 )\n\t( c\tint\t\"\"\tOFF\t-1 )\n}\n"}, // cell 0 of two columns
    };
    for (const auto& row : rows) {
        BexPropSpecFile specification;
        read(specification, row.content);
        EXPECT_EQ(linesOf(specification), row.lines) << row.content;
    }
}

TEST_F(HostileSpec, TextsMayBeLong) {
    const std::string text(100000, 'x');
    EXPECT_TRUE(read(specification_, "$sNet { ( " + text + " int \"" + text + "\" ON 1 " + text + " ) }"));
    EXPECT_EQ(specification_.displayString("$sNet", text.c_str()), text);
    EXPECT_EQ(linesOf(specification_),
              "$sNet {\n\t( " + text + "\tint\t\"" + text + "\"\tON\t1\t" + text + " )\n}\n");
}

TEST_F(HostileSpec, AFileThatMayNotBeReadHasNoOwners) {
    const std::string path = written("$sNet { ( a int ) }");
    setMode(path, 0);
    const auto body = [&] {
        BexPropSpecFile specification;
        return specification.readFrom(path.c_str()) == 1 && linesOf(specification).empty() ? 0 : 1;
    };
    EXPECT_EQ(Child().asNobody().run(body), 0);
}

} // namespace
