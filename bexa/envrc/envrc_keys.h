// The table of keys of the environment resource. Internal.
//
// Reader, writer and keyed setters are loops over its rows. They are no mirrors of each other, and each difference
// stands as a word in a column.
#pragma once

#include "bexa/envrc/envrc_fields.h"

#include <limits>
#include <span>
#include <string_view>
#include <variant>

namespace bexa::detail {

// Where the value of a key lives; nowhere for a key that is only known to be passed over.
using EnvrcField =
    std::variant<std::monostate, char BexEnvrcData::*, double BexEnvrcData::*, int BexEnvrcData::*,
                 unsigned int BexEnvrcData::*, unsigned long BexEnvrcData::*, YString BexEnvrcData::*,
                 BexGridRow_Array BexEnvrcData::*, BexSheetSizeRow_Array BexEnvrcData::*,
                 BexSheetAttrRow_Array BexEnvrcData::*>;

using EnvrcPresence = unsigned long BexEnvrcData::*;

// Column "form": how the value stands in the file, and with that the overload of `set` that the key belongs to. The
// reader and the writer have one small function for each kind.
struct EnvrcForm {
    enum Kind {
        Nothing,
        Number,       // read if it isn't negative; set(long)
        Real,         // read without a range; set(double)
        Character,    // bare; set(char)
        Text,         // quoted; set(const char*)
        Word,         // of a vocabulary; set(const char*)
        WordOrNumber, // written as a word, an unknown one read as a number; set(long)
        GridTable,
        SymbolSizes,
        SchematicSizes,
        Attributes,
    };

    Kind kind = Nothing;
    // The vocabulary of words: -1 for an unknown word, an empty text for an unknown value.
    int (*valueOf)(const char* word) = nullptr;
    YString (*wordOf)(int value) = nullptr;
};

// An interval that holds either end or not. NaN lies in none.
struct EnvrcRange {
    double lowest = 0.0;
    bool holdsLowest = true;
    double highest = std::numeric_limits<double>::infinity();
    bool holdsHighest = true;

    constexpr EnvrcRange to(double end) const { return {lowest, holdsLowest, end, true}; }
    constexpr EnvrcRange below(double end) const { return {lowest, holdsLowest, end, false}; }
    constexpr bool holds(double value) const {
        return (value > lowest || (holdsLowest && value == lowest)) &&
               (value < highest || (holdsHighest && value == highest));
    }
};

// Column "load": whether files may give the setting. An entry that can't be read leaves the value as it was, unless
// that lies outside `sound`: it then becomes `replacement`.
struct EnvrcLoadRule {
    bool taken = true;
    bool mends = false;
    EnvrcRange sound = {};
    double replacement = 0.0;
};

// Column "set": which values the keyed setter takes. What can be said as a word is limited by its vocabulary.
struct EnvrcSetRule {
    enum Kind { NoSetter, Any, Alphanumeric, InRange };

    Kind kind = NoSetter;
    EnvrcRange range = {};

    constexpr explicit EnvrcSetRule(Kind kind) : kind(kind) {}
    constexpr EnvrcSetRule(EnvrcRange range) // NOLINT(google-explicit-constructor): a range is a rule
        : kind(InRange),
          range(range) {}

    constexpr bool takes(double value) const {
        return kind == Any || (kind == InRange && range.holds(value));
    }
};

// Column "save": when the entry is written. A presence word is marked by whatever gives the setting.
struct EnvrcSaveRule {
    enum When { Always, WhenGiven, Never };

    When when = Always;
    EnvrcPresence presence = nullptr;

    bool applies(const BexEnvrcData& fields) const {
        return when == Always || (when == WhenGiven && fields.*presence != 0);
    }
};

struct EnvrcSetting {
    std::string_view key;
    EnvrcField field;
    EnvrcForm form;
    EnvrcLoadRule load;
    EnvrcSetRule set;
    EnvrcSaveRule save;
};

// The value of a setting, whose field must be of this type.
template <class Value>
Value& fieldOf(BexEnvrcData& fields, const EnvrcSetting& setting) {
    return fields.*std::get<Value BexEnvrcData::*>(setting.field);
}
template <class Value>
const Value& valueOf(const BexEnvrcData& fields, const EnvrcSetting& setting) {
    return fields.*std::get<Value BexEnvrcData::*>(setting.field);
}

// The same for a field of any of the whole types. What a signed field can't hold is stored as the nearest it holds;
// in an unsigned one a negative number stands for one near its upper end.
void storeNumber(BexEnvrcData& fields, const EnvrcSetting& setting, long value);
long numberIn(const BexEnvrcData& fields, const EnvrcSetting& setting);

// Notes that the setting was given.
void markGiven(BexEnvrcData& fields, const EnvrcSetting& setting);

// All settings, in the order of writing.
std::span<const EnvrcSetting> envrcSettings();

// The setting with this key, in any case of letters; null if there is none.
const EnvrcSetting* findEnvrcSetting(std::string_view key);

} // namespace bexa::detail
