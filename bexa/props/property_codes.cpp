#include "bexa/props/property_codes.h"

#include "bexa/circuitrc/datarc.h"
#include "bexa/foundation/component_type.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/ykanji.h"
#include "bexa/props/property_code_table.h"

#include <algorithm>
#include <iterator>
#include <string>

using namespace bexa::detail;

namespace {

constexpr unsigned checkedMode = 1;

struct TypeGroup {
    BexObjectType type;
    BexObjectType tableType;
};

// Whose properties an object has; every other type has none of its own.
constexpr TypeGroup typeGroups[] = {
    // clang-format off
    {BexComponentObject,    BexComponentObject},
    {BexSymbolObject,       BexComponentObject},
    {BexNetObject,          BexNetObject},
    {BexNetStringObject,    BexNetObject},
    {BexNetSegmentObject,   BexNetObject},
    {BexNetNodeObject,      BexNetObject},
    {BexBusObject,          BexBusObject},
    {BexBusStringObject,    BexBusObject},
    {BexBusSegmentObject,   BexBusObject},
    {BexComponentPinObject, BexComponentPinObject},
    {BexSymbolPinObject,    BexComponentPinObject},
    {BexSheetObject,        BexSheetObject},
    // clang-format on
};

BexObjectType tableTypeOf(BexObjectType type) {
    const auto found = std::ranges::find(typeGroups, type, &TypeGroup::type);
    return found == std::end(typeGroups) ? BexNoObject : found->tableType;
}

// Null if there is none.
const PropertyCode* codeOf(std::string_view name, BexObjectType tableType) {
    const auto codes = propertyCodes();
    const auto found = std::ranges::find_if(codes, [&](const PropertyCode& code) {
        return code.name == name && (tableType == BexNoObject || code.type == tableType);
    });
    return found == codes.end() ? nullptr : &*found;
}

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n';
}

// A value whose bytes are known by their classes, see YCheckKanji.
class CheckedValue {
public:
    explicit CheckedValue(std::string_view value) : value_(value), classes_(kanjiClasses(value)) {}

    std::string halfWidthKana() const {
        return collect([](char, char kanjiClass) { return kanjiClass >= 3; });
    }
    std::string doubleBytes() const {
        return collect([](char, char kanjiClass) { return kanjiClass >= 1; });
    }
    std::string singleBytes(std::string_view refused) const {
        return collect([refused](char c, char kanjiClass) {
            return kanjiClass == 0 && refused.find(c) != std::string_view::npos;
        });
    }

private:
    template <class Test>
    std::string collect(Test test) const {
        std::string found;
        for (std::size_t i = 0; i < value_.size(); ++i) {
            if (test(value_[i], classes_[i])) found += value_[i];
        }
        return found;
    }

    std::string_view value_;
    std::string classes_;
};

bool isConnectorOrPower(unsigned compType) {
    return BexCompType::isShtConn(compType) || BexCompType::isHieConn(compType) ||
           BexCompType::isVcc(compType) || BexCompType::isGnd(compType);
}

bool delimiterIsChecked(const PropertyCode& code, BexObjectType tableType, unsigned mode, unsigned compType) {
    switch (tableType) {
    case BexComponentObject:
        if (code.name == "partName" && isConnectorOrPower(compType)) return false;
        return mode == checkedMode && code.refusesDelimiter;
    case BexComponentPinObject: return mode == checkedMode && code.refusesDelimiter;
    // Kept on purpose: whatever the mode and the row say, a comment of a net takes no delimiter.
    case BexNetObject:
    case BexSheetObject: return true;
    // Kept on purpose: a bus takes it in every value, whatever its row says.
    default: return false;
    }
}

// The characters that the first check finds which finds any.
std::string refusedIn(std::string_view name, std::string_view text, char bitEnd, BexObjectType tableType,
                      unsigned mode, unsigned compType) {
    const CheckedValue value(text);
    std::string found = value.halfWidthKana();
    const PropertyCode* code = codeOf(name, tableType);
    if (!found.empty() || !code) return found;
    if (code->refusesDoubleByte) found = value.doubleBytes();
    if (found.empty()) found = value.singleBytes(code->refused);
    if (found.empty() && delimiterIsChecked(*code, tableType, mode, compType)) {
        found = value.singleBytes({&bitEnd, 1});
    }
    return found;
}

} // namespace

YString BexChkPropCode::deleteSpaceAndRet(const char* propName, const char* value) {
    if (!propName || !value) return YString(value);
    const PropertyCode* code = codeOf(propName, BexNoObject);
    std::string text(value);
    if (code && code->origin == PropertyOrigin::BaseSystem) {
        std::erase_if(text, isBlank);
        return YString(std::string_view(text));
    }
    const auto last = std::find_if_not(text.rbegin(), text.rend(), isBlank);
    if (last != text.rend()) text.erase(last.base(), text.end());
    return YString(std::string_view(text));
}

unsigned long BexChkPropCode::chkPropString(const char* propName, const char* value, YString* bad,
                                            char bitEnd, BexObjectType& type, unsigned mode,
                                            unsigned compType) {
    if (!propName) {
        if (bad) bad->assign("");
        return 0;
    }
    if (!value || !*value) return 1;
    const std::string found = refusedIn(propName, value, bitEnd, tableTypeOf(type), mode, compType);
    if (found.empty()) return 1;
    if (bad) bad->assign(found);
    return 0;
}

unsigned long BexChkPropCode::chkPropString(const char* propName, const char* value, YString* bad,
                                            const BexDatarc& rc, BexObjectType& type, unsigned mode,
                                            unsigned compType) {
    return chkPropString(propName, value, bad, rc.bitEndChar(), type, mode, compType);
}
