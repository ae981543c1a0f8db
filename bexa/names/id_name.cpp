#include "bexa/names/id_name.h"

#include "bexa/foundation/text_cursor.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

using bexa::detail::equalIgnoringCase;
using bexa::detail::TextCursor;
using bexa::detail::viewOf;

namespace {

constexpr std::size_t prefixSize = 3;
constexpr int idOfText = -100;

enum Kind : int { NoKind, BusKind = 3, BusSegmentKind = 5, ViewerKind = 6 };

// To add a kind: a row here, its prefix in the header, a row in the tests.
struct KindRow {
    int kind;
    const char* prefix;
    BexObjectType type;
    bool onSheet;
    bool onSymbol;

    constexpr bool isKnownIn(BexObjectType context) const {
        return (context == BexSheetObject && onSheet) || (context == BexSymbolObject && onSymbol);
    }
};

// clang-format off
constexpr KindRow kinds[] = {
    // kind         prefix  type                     on a sheet  on a symbol
    {1,              "cmp", BexComponentObject,      true,       false},
    {2,              "snt", BexNetObject,            true,       false},
    {BusKind,        "bnt", BexBusObject,            true,       false},
    {4,              "ssg", BexNetSegmentObject,     true,       false},
    {BusSegmentKind, "bsg", BexBusSegmentObject,     true,       false},
    {ViewerKind,     "pvw", BexPropertyViewerObject, true,       true},
    {7,              "cpn", BexComponentPinObject,   true,       false},
    {8,              "cpn", BexSymbolPinObject,      false,      true},
    {9,              "nnd", BexNetNodeObject,        true,       false},
    {10,             "sht", BexSymbolObject,         false,      true},
    {11,             "sht", BexSheetObject,          true,       false},
};
// clang-format on

constexpr bool kindsCountFromOne() {
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
        if (kinds[i].kind != static_cast<int>(i) + 1) return false;
        if (std::string_view(kinds[i].prefix).size() != prefixSize) return false;
    }
    return true;
}
static_assert(kindsCountFromOne());

template <class Test>
const KindRow* findKind(Test test) {
    const KindRow* const row = std::find_if(std::begin(kinds), std::end(kinds), test);
    return row == std::end(kinds) ? nullptr : row;
}

} // namespace

BexIdName::BexIdName(const char* text, BexObjectType context) {
    idName(text, context);
}

BexIdName::BexIdName(int id, BexObjectType type) {
    idName(id, type);
}

unsigned long BexIdName::idName(const char* text, BexObjectType context) {
    name_ = text;
    id_ = -1;
    kind_ = NoKind;
    YString prefix;
    YString idText;
    if (!divideName(prefix, idText)) return 0;
    type(prefix, context);
    id(idText);
    return isValid();
}

unsigned long BexIdName::idName(int id, BexObjectType type) {
    *this = BexIdName();
    const KindRow* const row = findKind([type](const KindRow& kind) { return kind.type == type; });
    if (!row) return 0;
    kind_ = row->kind;
    id_ = id;
    setName(row->prefix, id);
    return isValid();
}

BexObjectType BexIdName::objType() const noexcept {
    return kind_ == NoKind ? BexNoObject : kinds[kind_ - 1].type;
}

unsigned long BexIdName::isBus() const noexcept {
    return kind_ == BusKind || kind_ == BusSegmentKind;
}

unsigned long BexIdName::divideName(YString& prefix, YString& idText) const {
    const std::string_view text = name_.view();
    if (text.size() <= prefixSize) return 0;
    prefix.assign(text.substr(0, prefixSize));
    idText.assign(text.substr(prefixSize));
    return 1;
}

unsigned long BexIdName::type(const YString& prefix, BexObjectType context) {
    const KindRow* const row = findKind([&](const KindRow& kind) {
        return kind.isKnownIn(context) && equalIgnoringCase(kind.prefix, prefix.view());
    });
    kind_ = row ? row->kind : NoKind;
    return row != nullptr;
}

unsigned long BexIdName::id(const YString& idText) {
    TextCursor text(idText.view());
    const auto number = text.takeNumber();
    if (number && text.atEnd()) {
        id_ = *number;
    } else {
        id_ = kind_ == ViewerKind && idText[0] == '_' ? idOfText : -1;
    }
    return id_ != -1;
}

void BexIdName::setName(const char* prefix, int id) {
    name_ = prefix;
    name_ << id;
}
