#include "bexa/props/prop_spec_file.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ymessage/ymsg_out.h"
#include "bexa/props/prop_spec_format.h"
#include "bexa/props/prop_spec_index.h"

#include <algorithm>

using namespace bexa::detail;

namespace {

constexpr char messageProgram[] = "YDSROOT/bexa";

// Kept on purpose: what is unknown gives this value of no flag.
constexpr unsigned long unknownDisplayFlag = 6;

} // namespace

BexPropSpecFile::BexPropSpecFile() = default;

BexPropSpecFile::BexPropSpecFile(const BexPropSpecFile& other)
    : fileName_(other.fileName_),
      owners_(other.owners_) {}

// The old owners go first, so that none of their tables lingers in an element that is not counted.
BexPropSpecFile& BexPropSpecFile::operator=(const BexPropSpecFile& other) {
    if (this == &other) return *this;
    fileName_ = other.fileName_;
    owners_.removeAll();
    owners_ = other.owners_;
    forgetOwners();
    return *this;
}

BexPropSpecFile::~BexPropSpecFile() = default;

// ---- Kinds of objects

BexObjectType BexPropSpecFile::objectType(const char* section) {
    return specObject(viewOf(section)).type;
}

YString BexPropSpecFile::objectName(BexObjectType type) {
    return YString(specObject(type).section);
}

YString BexPropSpecFile::aliasName(const char* section) {
    const SpecObject& object = specObject(viewOf(section));
    if (!object.section) return YString(section);
    YMsgOut messages;
    messages.setProgram(messageProgram);
    const char* alias = messages.getShortMsg(object.message, 1);
    return YString(alias ? alias : section);
}

// ---- Owners

int BexPropSpecFile::ownerPlace(std::string_view name) const {
    if (!index_) index_ = std::make_unique<NameIndex>();
    if (index_->stale) {
        index_->places.clear();
        for (int i = 0; i < owners_.size(); ++i) {
            index_->add(owners_.at(i).objectName(), i);
            owners_.at(i).link_.join(&index_->stale);
        }
        index_->stale = false;
    }
    return index_->find(name);
}

// The index itself stays: owners are linked to it.
void BexPropSpecFile::forgetOwners() {
    if (index_) index_->stale = true;
}

unsigned long BexPropSpecFile::enumOwnerRecNames(YString_Array& out) const {
    out.resize(0);
    for (int i = 0; i < owners_.size(); ++i) out.append(owners_.at(i).objectName());
    return 1;
}

const BexPropOwnerRec* BexPropSpecFile::ownerRec(const char* owner) const {
    const int place = owner && *owner ? ownerPlace(owner) : -1;
    return place < 0 ? nullptr : &owners_.at(place);
}

BexPropOwnerRec* BexPropSpecFile::ownerRec(const char* owner) {
    return const_cast<BexPropOwnerRec*>(std::as_const(*this).ownerRec(owner));
}

BexPropOwnerRec* BexPropSpecFile::appendOwnerRec(const char* owner) {
    if (!owner || !*owner) return nullptr;
    if (BexPropOwnerRec* known = ownerRec(owner)) return known;
    const BexPropOwnerRec* before = owners_();
    const int place = owners_.size();
    BexPropOwnerRec& added = owners_.end();
    added.link_.join(nullptr);
    added.objectName(owner);
    added.aliasName(aliasName(owner));
    index_->add(owner, place);
    added.link_.join(&index_->stale);
    // Owners that moved have left their links behind.
    if (before != owners_()) {
        for (int i = 0; i < place; ++i) owners_.at(i).link_.join(&index_->stale);
    }
    return &added;
}

// Emptied before it is dropped: elements beyond the count stay alive, and would hold on to their tables.
unsigned long BexPropSpecFile::removeOwnerRec(const char* owner) {
    const int place = owner && *owner ? ownerPlace(owner) : -1;
    if (place < 0) return 0;
    const int last = owners_.size() - 1;
    std::rotate(owners_() + place, owners_() + place + 1, owners_() + last + 1);
    owners_.at(last) = BexPropOwnerRec();
    owners_.remove(last);
    forgetOwners();
    return 1;
}

BexPropOwnerRec* BexPropSpecFile::sharedTable(const char* name) {
    for (int i = 0; i < owners_.size(); ++i) {
        if (BexPropOwnerRec* table = owners_.at(i).refTable(name, 1)) return table;
    }
    return nullptr;
}

// ---- Properties

const BexPropSpecRec* BexPropSpecFile::propSpec(const char* owner, const char* property) const {
    const BexPropOwnerRec* record = ownerRec(owner);
    return record ? record->propSpec(property) : nullptr;
}

unsigned long BexPropSpecFile::enumPropNames(const char* owner, YString_Array& out,
                                             unsigned long withRefTables) const {
    out.resize(0);
    const BexPropOwnerRec* record = ownerRec(owner);
    return record && record->enumPropNames(out, withRefTables, 1);
}

unsigned long BexPropSpecFile::enumDisplayStrings(const char* owner, YString_Array& out,
                                                  unsigned long withRefTables) const {
    out.resize(0);
    const BexPropOwnerRec* record = ownerRec(owner);
    return record && record->enumDisplayStrings(out, withRefTables, 1);
}

const char* BexPropSpecFile::displayString(const char* owner, const char* property) const {
    const BexPropSpecRec* row = propSpec(owner, property);
    return row ? row->displayString() : property;
}

unsigned long BexPropSpecFile::isExist(const char* owner, const char* property) const {
    return propSpec(owner, property) != nullptr;
}

BexPropValueType BexPropSpecFile::valueType(const char* owner, const char* property) const {
    const BexPropSpecRec* row = propSpec(owner, property);
    return row ? row->valueType() : BexPropTypeUnknown;
}

unsigned long BexPropSpecFile::displayFlag(const char* owner, const char* property) const {
    const BexPropSpecRec* row = propSpec(owner, property);
    return row ? row->displayFlag() : unknownDisplayFlag;
}

BexPropPlace BexPropSpecFile::propPlace(const char* owner, const char* property) const {
    const BexPropSpecRec* row = propSpec(owner, property);
    return row ? row->propPlace() : BexPlaceCirc;
}

unsigned long BexPropSpecFile::editFlag(const char* owner, const char* property) const {
    const BexPropSpecRec* row = propSpec(owner, property);
    return row ? row->editFlag() : 1;
}

int BexPropSpecFile::viewerColor(const char* owner, const char* property) const {
    const BexPropSpecRec* row = propSpec(owner, property);
    return row ? row->viewerColor() : -1;
}

unsigned long BexPropSpecFile::valueSelection(const char* owner, const char* property,
                                              YString_Array& out) const {
    out.resize(0);
    const BexPropSpecRec* row = propSpec(owner, property);
    if (row) out = *row->valueSelection();
    return out.size() != 0;
}

// ---- The same by the kind of object

BexPropOwnerRec* BexPropSpecFile::ownerRec(BexObjectType owner) {
    return ownerRec(objectName(owner));
}

const BexPropOwnerRec* BexPropSpecFile::ownerRec(BexObjectType owner) const {
    return ownerRec(objectName(owner));
}

BexPropOwnerRec* BexPropSpecFile::appendOwnerRec(BexObjectType owner) {
    return appendOwnerRec(objectName(owner));
}

unsigned long BexPropSpecFile::removeOwnerRec(BexObjectType owner) {
    return removeOwnerRec(objectName(owner));
}

unsigned long BexPropSpecFile::enumPropNames(BexObjectType owner, YString_Array& out,
                                             unsigned long withRefTables) const {
    return enumPropNames(objectName(owner), out, withRefTables);
}

unsigned long BexPropSpecFile::enumDisplayStrings(BexObjectType owner, YString_Array& out,
                                                  unsigned long withRefTables) const {
    return enumDisplayStrings(objectName(owner), out, withRefTables);
}

const char* BexPropSpecFile::displayString(BexObjectType owner, const char* property) const {
    return displayString(objectName(owner), property);
}

unsigned long BexPropSpecFile::isExist(BexObjectType owner, const char* property) const {
    return isExist(objectName(owner), property);
}

BexPropValueType BexPropSpecFile::valueType(BexObjectType owner, const char* property) const {
    return valueType(objectName(owner), property);
}

unsigned long BexPropSpecFile::displayFlag(BexObjectType owner, const char* property) const {
    return displayFlag(objectName(owner), property);
}

BexPropPlace BexPropSpecFile::propPlace(BexObjectType owner, const char* property) const {
    return propPlace(objectName(owner), property);
}

unsigned long BexPropSpecFile::editFlag(BexObjectType owner, const char* property) const {
    return editFlag(objectName(owner), property);
}

int BexPropSpecFile::viewerColor(BexObjectType owner, const char* property) const {
    return viewerColor(objectName(owner), property);
}

unsigned long BexPropSpecFile::valueSelection(BexObjectType owner, const char* property,
                                              YString_Array& out) const {
    return valueSelection(objectName(owner), property, out);
}
