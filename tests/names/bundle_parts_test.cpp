#include "bexa/names/bundle_parts.h"

#include "bexa/names/array_text.h"
#include "bexa/names/delimiters.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace {

using bexa::detail::ArrayText;
using bexa::detail::BundleParts;
using bexa::detail::BundleResult;
using bexa::detail::Delimiters;

using Texts = std::vector<std::string>;

std::optional<Texts> partsOf(std::string_view text) {
    const Delimiters delimiters{'[', ']', '-', ',', '-'};
    BundleParts parts(text, delimiters);
    Texts texts;
    while (!parts.atEnd()) texts.emplace_back(parts.next());
    const auto count = bexa::detail::countParts(text, delimiters);
    EXPECT_EQ(count.has_value(), parts.isBalanced());
    if (!parts.isBalanced()) return std::nullopt;
    EXPECT_EQ(count, texts.size());
    return texts;
}

TEST(BundleParts, AreCutOutsideOfBrackets) {
    EXPECT_EQ(partsOf("A"), Texts{"A"});
    EXPECT_EQ(partsOf("A,B"), (Texts{"A", "B"}));
    EXPECT_EQ(partsOf("A[1,2],B"), (Texts{"A[1,2]", "B"}));
    EXPECT_EQ(partsOf("A[1,[2,]],B"), (Texts{"A[1,[2,]]", "B"}));
    EXPECT_EQ(partsOf(","), (Texts{"", ""}));
    EXPECT_EQ(partsOf("A,"), (Texts{"A", ""}));
    EXPECT_EQ(partsOf("A],B["), Texts{"A],B["}); // counted, not matched
    EXPECT_EQ(partsOf("A],B[,C"), (Texts{"A],B[", "C"}));
}

TEST(BundleParts, NeedAsManyOpeningAsClosingBrackets) {
    for (const char* text : {"[", "]", "A[1,", "A[1]],B", "A,B[", "A[1],]", "[,["}) {
        EXPECT_EQ(partsOf(text), std::nullopt) << text;
    }
}

TEST(BundleResult, IsThatOfTheFirstMemberThatFails) {
    BundleResult result;
    EXPECT_TRUE(result.take("", BexNetNameUnchecked, 1));
    EXPECT_EQ(result.errType(), BexNetNameUnchecked); // an empty member says nothing
    EXPECT_TRUE(result.take("A[0-1]", BexNetNameOk, 2));
    EXPECT_TRUE(result.take("", BexNetNameUnchecked, 1));
    EXPECT_EQ(result.errType(), BexNetNameOk);
    EXPECT_EQ(result.signalCount(), 4);
    EXPECT_FALSE(result.take("D[,]", BexNetNameUnchecked, 2));
    EXPECT_EQ(result.errType(), BexNetNameUnchecked);
}

TEST(BundleResult, RefusesMoreSignalsThanTheLimit) {
    BundleResult result;
    EXPECT_TRUE(result.take("A", BexNetNameOk, ArrayText::maxSignals - 1));
    EXPECT_TRUE(result.take("", BexNetNameUnchecked, 1));
    BundleResult other = result;
    EXPECT_FALSE(result.take("B", BexNetNameOk, 1));
    EXPECT_EQ(result.errType(), BexNetNameSyntax);
    EXPECT_FALSE(other.take("", BexNetNameUnchecked, 1));
    EXPECT_EQ(other.errType(), BexNetNameSyntax);
}

} // namespace
