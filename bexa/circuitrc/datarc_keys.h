// The table of keys of the circuit resource. Internal.
//
// Reader, writer and keyed setters are loops over its rows. They are no mirrors of each other, and each
// difference stands as a word in a column.
#pragma once

#include "bexa/circuitrc/datarc_fields.h"

#include <limits>
#include <span>
#include <string_view>
#include <variant>

namespace bexa::detail {

// Where the value of a key lives; nowhere for a key that is only passed over.
using DatarcField =
    std::variant<std::monostate, char DatarcFields::*, double DatarcFields::*, int DatarcFields::*,
                 unsigned int DatarcFields::*, unsigned long DatarcFields::*, YString DatarcFields::*,
                 BexTextSizeTable DatarcFields::*, BexLineWidthTable DatarcFields::*,
                 BexLineStyleTable DatarcFields::*, BexFillStyleTable DatarcFields::*,
                 BexPathTable DatarcFields::*>;

using DatarcPresence = unsigned long DatarcFields::*;

// How the value stands in the file. The reader and the writer have one small function for each form.
enum class DatarcForm {
    Char,         // quoted
    OptionalChar, // the same, but reading nothing changes nothing
    Real,
    Whole,
    Index,       // a whole number, negative only by mistake
    IndexOrNone, // "-" stands for -1
    Text,        // quoted
    OptionalText,
    OnOff,         // whatever isn't "On" reads as off
    OptionalOnOff, // and whatever isn't 0 is written as "On"
    ErrorLevel,    // "Normal" or "Hard"
    PortMode,      // a word of BexEnum::BexOverWritePortMode
    SwitchOn,      // "YES": a file can only switch the setting on
    TextTable,
    WidthTable,
    LineTable,
    FillTable,
    PathTable,
    PassedOver, // its tokens are skipped
};

// What an index is tested against: the rows of a table at that moment, or a fixed number of choices.
enum class DatarcLimit {
    None,
    Units,
    Colours,
    LineWidths,
    LineStyles,
    FillStyles,
    TextStyles,
    DisplayStyles
};

// The first value that is too large.
unsigned long upperBound(DatarcLimit limit, const DatarcFields& fields);

// Column "load": what a missing value means to the load, what replaces an index that is too large, and which
// presence word a value sets.
struct DatarcLoadRule {
    enum class OnMissing { Fatal, Ignored };

    OnMissing onMissing = OnMissing::Fatal;
    DatarcLimit limit = DatarcLimit::None;
    unsigned int replacement = 0;
    DatarcPresence presence = nullptr;

    constexpr DatarcLoadRule marking(DatarcPresence word) const {
        return {onMissing, limit, replacement, word};
    }
};

// Column "set": which values the keyed setter takes. The overload that a key belongs to is told by its field.
struct DatarcSetRule {
    enum class Kind { NoSetter, Any, Range, RangeAbove, Below, NoneOrBelow };

    Kind kind = Kind::NoSetter;
    double lowest = 0.0;
    double end = std::numeric_limits<double>::infinity(); // the first value that is too large
    DatarcLimit limit = DatarcLimit::None;

    constexpr bool hasSetter() const { return kind != Kind::NoSetter; }
    bool takes(long value, const DatarcFields& fields) const;
    bool takes(double value) const;
};

// Column "save": when the entry is written, and the comment behind its value.
struct DatarcSaveRule {
    enum class When { Always, WhenSet, Never };

    When when = When::Always;
    DatarcPresence presence = nullptr;
    std::string_view comment = {};

    constexpr DatarcSaveRule with(std::string_view text) const { return {when, presence, text}; }
    bool applies(const DatarcFields& fields) const;
};

struct DatarcSetting {
    std::string_view key; // a literal, so terminated
    DatarcField field;
    DatarcForm form;
    DatarcLoadRule load;
    DatarcSetRule set;
    DatarcSaveRule save;
};

// The value of a setting, for a field of this type only; null for any other.
template <class Value>
Value* fieldOf(DatarcFields& fields, const DatarcSetting& setting) {
    const auto* member = std::get_if<Value DatarcFields::*>(&setting.field);
    return member ? &(fields.*(*member)) : nullptr;
}
template <class Value>
const Value& valueOf(const DatarcFields& fields, const DatarcSetting& setting) {
    return fields.*std::get<Value DatarcFields::*>(setting.field);
}

// The same for a field of any of the number types. What the type can't hold is stored as the nearest it
// holds.
bool storeNumber(DatarcFields& fields, const DatarcSetting& setting, long value);
long numberIn(const DatarcFields& fields, const DatarcSetting& setting);

// All settings, in the order of writing.
std::span<const DatarcSetting> datarcSettings();

// The setting with this key, exactly, or ignoring case; null if there is none. A null key is no key.
const DatarcSetting* findDatarcSetting(std::string_view key);
const DatarcSetting* findDatarcSettingIgnoringCase(const char* key);

} // namespace bexa::detail
