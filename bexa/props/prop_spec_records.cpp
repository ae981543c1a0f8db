#include "bexa/props/prop_spec_records.h"

#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/props/prop_spec_format.h"

#include <algorithm>

using namespace bexa::detail;

void BexPropSpecRec::propertyName(const char* name) {
    propertyName_ = YString(name);
    link_.changed();
}

unsigned long BexPropSpecRec::valueType(BexPropValueType type) {
    // Only what stands for a table matters to the index.
    if (type != valueType_ && (type == BexPropTypeRefTable || valueType_ == BexPropTypeRefTable))
        link_.changed();
    valueType_ = type;
    return 1;
}

unsigned long BexPropSpecRec::displayString(const char* text) {
    displayString_ = text ? std::optional<YString>(text) : std::nullopt;
    return 1;
}

unsigned long BexPropSpecRec::displayFlag(unsigned long flag) {
    displayFlag_ = flag;
    return 1;
}

unsigned long BexPropSpecRec::viewerColor(int color) {
    viewerColor_ = color;
    return 1;
}

unsigned long BexPropSpecRec::propPlace(const char* word) {
    propPlace_ = string2place(word);
    editFlag_ = string2editF(word);
    return 1;
}

unsigned long BexPropSpecRec::valueSelection(const YString_Array& values) {
    valueSelection_ = values;
    return 1;
}

unsigned long BexPropSpecRec::appendValueSelection(const char* value) {
    if (!value || !*value) return 0;
    const YString* begin = valueSelection_();
    const YString* end = begin + valueSelection_.size();
    if (std::find(begin, end, value) != end) return 0;
    return valueSelection_.append(value);
}

BexPropValueType BexPropSpecRec::string2valueType(const char* word) {
    const int value = valueTypeWords.value(word);
    return value < 0 ? BexPropTypeUnknown : static_cast<BexPropValueType>(value);
}

const char* BexPropSpecRec::valueType2string(BexPropValueType type) {
    const char* word = valueTypeWords.word(type);
    return word ? word : "";
}

unsigned long BexPropSpecRec::string2flag(const char* word) {
    return equalIgnoringCase(viewOf(word), "ON");
}

BexPropPlace BexPropSpecRec::string2place(const char* word) {
    const PlaceWord* known = placeWord(viewOf(word));
    return known ? known->place : BexPlaceCirc;
}

const char* BexPropSpecRec::place2string(BexPropPlace place) {
    const char* word = placeNames.word(place);
    return word ? word : "";
}

unsigned long BexPropSpecRec::string2editF(const char* word) {
    const PlaceWord* known = placeWord(viewOf(word));
    return known ? known->editFlag : 1;
}

int BexPropSpecRec::string2col(const char* text) {
    const int color = numberOf(viewOf(text));
    return color == 0 ? -1 : color;
}
