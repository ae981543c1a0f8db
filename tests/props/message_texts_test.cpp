// The message catalogue that is installed with the library.
#include "bexa/foundation/ymessage/message_catalogue.h"
#include "bexa/foundation/ymessage/ymsg_out.h"
#include "bexa/props/prop_spec_format.h"
#include "tests/props/spec_fixture.h"

#include <regex>

using namespace bexa::test;
using bexa::detail::MessageCatalogue;

namespace {

// What the check of a Japanese file can find.
constexpr unsigned fileCheckCodes[] = {30031, 30036, 30037, 30038};

// What the program can find in a circuit.
constexpr unsigned firstFinding = 31001;
constexpr unsigned lastFinding = 31021;

std::vector<unsigned> expectedKeys() {
    std::vector<unsigned> keys(std::begin(fileCheckCodes), std::end(fileCheckCodes));
    for (unsigned key = firstFinding; key <= lastFinding; ++key) keys.push_back(key);
    for (const auto& object : bexa::detail::specObjects) keys.push_back(object.message);
    return keys;
}

// The conversions of a text in their order.
std::string conversionsOf(const std::string& text) {
    static const std::regex conversion("%[-+ #0]*[0-9]*(\\.[0-9]*)?l?[a-zA-Z%]");
    std::string all;
    for (std::sregex_iterator found(text.begin(), text.end(), conversion), end; found != end; ++found) {
        all += found->str();
    }
    return all;
}

// The numbers in a file, one for each row.
int rowsOf(const std::string& language) {
    const std::string content = contentOf(testData("../../data/msg/" + language + "/bexa.rsc"));
    static const std::regex row("\n\t[0-9]+ \"[^\"]+\"");
    return static_cast<int>(std::distance(std::sregex_iterator(content.begin(), content.end(), row), {}));
}

class MessageTexts : public testing::Test {
protected:
    EnvGuard root_{"YDSROOT", testData("../../data")};
    EnvGuard language_{"YLANG", "english"};
    EnvGuard locale_{"LC_ALL", "C"};
};

TEST_F(MessageTexts, EveryKeyIsThereInBothLanguagesWithTheSameConversions) {
    const MessageCatalogue english("YDSROOT/bexa");
    language_.set("japanese");
    const MessageCatalogue japanese("YDSROOT/bexa");
    for (const unsigned key : expectedKeys()) {
        ASSERT_NE(english.text(key), nullptr) << key;
        ASSERT_NE(japanese.text(key), nullptr) << key;
        EXPECT_NE(*english.text(key), *japanese.text(key)) << key;
        EXPECT_EQ(conversionsOf(*english.text(key)), conversionsOf(*japanese.text(key))) << key;
    }
    EXPECT_EQ(rowsOf("eng"), static_cast<int>(expectedKeys().size()));
    EXPECT_EQ(rowsOf("jpn"), static_cast<int>(expectedKeys().size()));
}

TEST_F(MessageTexts, SectionsAreCalledInTheLanguageOfTheUser) {
    EXPECT_STREQ(BexPropSpecFile::aliasName("$Component"), "Component");
    EXPECT_STREQ(BexPropSpecFile::aliasName("$Frame"), "Frame");
    language_.set("ja");
    EXPECT_STREQ(BexPropSpecFile::aliasName("$Component"), "\x95\x94\x95\x69");
    locale_.set("ja_JP.eucJP");
    EXPECT_STREQ(BexPropSpecFile::aliasName("$Component"), "\xC9\xF4\xC9\xCA");
    language_.set("german"); // no catalogue of its own
    EXPECT_STREQ(BexPropSpecFile::aliasName("$Component"), "Component");
}

TEST_F(MessageTexts, OtherTextsAreTheirOwnNames) {
    EXPECT_STREQ(BexPropSpecFile::aliasName("Layout"), "Layout");
    EXPECT_STREQ(BexPropSpecFile::aliasName(""), "");
    EXPECT_STREQ(BexPropSpecFile::aliasName(nullptr), "");
}

TEST_F(MessageTexts, WithoutACatalogueASectionIsCalledByItsName) {
    root_.unset();
    EXPECT_STREQ(BexPropSpecFile::aliasName("$Component"), "$Component");
}

TEST_F(MessageTexts, ANewOwnerHasItsNameForPeople) {
    BexPropSpecFile specification;
    EXPECT_STREQ(specification.appendOwnerRec(BexSheetObject)->aliasName(), "Sheet");
}

} // namespace
