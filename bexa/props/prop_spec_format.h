// The words of a property specification file, for its reader and its writer.
#pragma once

#include "bexa/foundation/vocabulary.h"
#include "bexa/foundation/word_table.h"
#include "bexa/props/prop_spec_records.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace bexa::detail {

inline constexpr std::string_view refTableWord = "$RefTable";
inline constexpr std::string_view refFileWord = "$RefFile";

inline constexpr WordTable valueTypeWords({"int", "float", "text", "hide", "refTable", "refFile"});
static_assert(valueTypeWords.isSound());
static_assert(valueTypeWords.value("refFile") == BexPropTypeRefFile);

inline constexpr WordTable placeNames({"CIRC", "LCDB"});
static_assert(placeNames.isSound());
static_assert(placeNames.value("LCDB") == BexPlaceLcdb);

// What may stand in the place of a row.
struct PlaceWord {
    std::string_view word;
    BexPropPlace place;
    unsigned long editFlag;
};

inline constexpr PlaceWord placeWords[] = {
    // clang-format off
    // word         place         editFlag
    {"CIRC",        BexPlaceCirc, 1},
    {"CIRCUNEDIT",  BexPlaceCirc, 0},
    {"LCDB",        BexPlaceLcdb, 0},
    // clang-format on
};

// Null for any other word.
constexpr const PlaceWord* placeWord(std::string_view word) {
    const auto found = std::ranges::find_if(
        placeWords, [word](const PlaceWord& row) { return equalIgnoringCase(row.word, word); });
    return found == std::end(placeWords) ? nullptr : found;
}

enum class PlaceColumn { Written, LeftOut };

// A kind of object: its section in the file and the message with its name for people.
struct SpecObject {
    const char* section;
    BexObjectType type;
    unsigned message;
    PlaceColumn place;
};

// In the order of reading. The last row closes the table and stands for every other section.
inline constexpr SpecObject specObjects[] = {
    // clang-format off
    {"$Component", BexComponentObject,    30526, PlaceColumn::Written},
    {"$cPin",      BexComponentPinObject, 30527, PlaceColumn::Written},
    {"$sNet",      BexNetObject,          30528, PlaceColumn::LeftOut},
    {"$bNet",      BexBusObject,          30529, PlaceColumn::LeftOut},
    {"$nNode",     BexNetNodeObject,      30530, PlaceColumn::LeftOut},
    {"$Symbol",    BexSymbolObject,       30531, PlaceColumn::LeftOut},
    {"$Sheet",     BexSheetObject,        30532, PlaceColumn::LeftOut},
    {"$Frame",     BexFrameObject,        30533, PlaceColumn::LeftOut},
    {nullptr,      BexNoObject,           30534, PlaceColumn::LeftOut},
    // clang-format on
};

// The closing row if there is none.
constexpr const SpecObject& specObject(std::string_view section) {
    return *std::ranges::find_if(
        specObjects, [section](const SpecObject& row) { return !row.section || row.section == section; });
}
constexpr const SpecObject& specObject(BexObjectType type) {
    return *std::ranges::find_if(specObjects,
                                 [type](const SpecObject& row) { return !row.section || row.type == type; });
}

} // namespace bexa::detail
