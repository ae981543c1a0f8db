#include "bexa/props/prop_value.h"

#include <string_view>
#include <utility>

using Item = BexPropValue::Item;
using ItemSet = BexPropValue::ItemSet;
using Group = BexPropValue::Group;
using GroupSet = BexPropValue::GroupSet;

namespace {

// Values have few groups and groups few items: a small table costs less to make.
constexpr unsigned slots = 7;
// So deep the stacks get without more memory.
constexpr int usualDepth = 8;

// Hands a record to its set, unless an equal one is held.
template <class Record>
void attach(YSet& set, std::unique_ptr<Record> record) {
    if (set.attach(record.get()) == record.get()) static_cast<void>(record.release());
}

// In a table of the same size the copies are walked in the same order.
template <class Record>
void copyRecords(YSet& target, const YSet& source) {
    if (source.count() == 0) return;
    target.tableSize(source.tableSize());
    YSetIterator walk(source);
    while (const void* record = walk.doNext()) {
        attach(target, std::make_unique<Record>(*static_cast<const Record*>(record)));
    }
}

// What a value proper is: the part between the first two quotes of a text that begins and ends with one.
YString withoutQuotes(const YString& value) {
    std::string_view text = value.view();
    if (!text.starts_with('"') || !text.ends_with('"')) return value;
    text.remove_prefix(1);
    return YString(text.substr(0, text.find('"')));
}

} // namespace

ItemSet::ItemSet() : YSet(slots) {}

ItemSet::ItemSet(const ItemSet& other) : YSet(slots) {
    copyRecords<Item>(*this, other);
}

ItemSet& ItemSet::operator=(const ItemSet& other) {
    if (this == &other) return *this;
    deleteAll();
    copyRecords<Item>(*this, other);
    return *this;
}

ItemSet::~ItemSet() {
    deleteAsTheyCame();
}

unsigned long ItemSet::copyFrom(const ItemSet& other) {
    *this = other;
    return 1;
}

void ItemSet::add(std::unique_ptr<Item> item) {
    ::attach(*this, std::move(item));
}

const Item* ItemSet::find(const YString& key) const {
    const Item sought{key, {}};
    return static_cast<const Item*>(search(&sought));
}

void ItemSet::takeOver(ItemSet& other) {
    deleteAll();
    YSet::operator=(other);
    other.detachAll();
}

unsigned long ItemSet::compare(const void* key, const void* held) const {
    return static_cast<const Item*>(key)->key == static_cast<const Item*>(held)->key;
}

unsigned long ItemSet::hashValue(const void* key) const {
    return static_cast<const Item*>(key)->key.hash();
}

void ItemSet::deleteIt(void* element) {
    std::unique_ptr<Item>(static_cast<Item*>(element)).reset();
}

GroupSet::GroupSet() : YSet(slots) {}

GroupSet::GroupSet(const GroupSet& other) : YSet(slots) {
    copyRecords<Group>(*this, other);
}

GroupSet& GroupSet::operator=(const GroupSet& other) {
    if (this == &other) return *this;
    deleteAll();
    copyRecords<Group>(*this, other);
    return *this;
}

GroupSet::~GroupSet() {
    deleteAsTheyCame();
}

unsigned long GroupSet::copyFrom(const GroupSet& other) {
    *this = other;
    return 1;
}

void GroupSet::add(std::unique_ptr<Group> group) {
    ::attach(*this, std::move(group));
}

const Group* GroupSet::find(const YString& name) const {
    const Group sought{name, {}};
    return static_cast<const Group*>(search(&sought));
}

Group* GroupSet::find(const YString& name) {
    const Group sought{name, {}};
    return static_cast<Group*>(search(&sought));
}

unsigned long GroupSet::compare(const void* key, const void* held) const {
    return static_cast<const Group*>(key)->name == static_cast<const Group*>(held)->name;
}

unsigned long GroupSet::hashValue(const void* key) const {
    return static_cast<const Group*>(key)->name.hash();
}

void GroupSet::deleteIt(void* element) {
    std::unique_ptr<Group>(static_cast<Group*>(element)).reset();
}

BexPropValue::BexPropValue() : tokens_(usualDepth), states_(usualDepth) {
    tokens_.push({BexPropValueToken::TokenStart, {}});
    states_.push(0);
}

BexPropValue::BexPropValue(const BexPropValue&) = default;

BexPropValue& BexPropValue::operator=(const BexPropValue&) = default;

BexPropValue::~BexPropValue() = default;

unsigned long BexPropValue::isGroup() const {
    if (groups_.count() != 1) return 1;
    YSetIterator walk(groups_);
    return static_cast<const Group*>(walk.doNext())->items.count() != 0;
}

void BexPropValue::getValue(YString& value) const {
    YSetIterator walk(groups_);
    value = isGroup() ? text_ : static_cast<const Group*>(walk.doNext())->name;
}

void BexPropValue::getValue(YString_Array& names) const {
    YSetIterator walk(groups_);
    while (const void* group = walk.doNext()) {
        names.append(static_cast<const Group*>(group)->name);
    }
}

unsigned long BexPropValue::getValue(const YString& group, YString_Array& keys, YString_Array& values) const {
    const Group* found = groups_.find(group);
    if (!found) return 0;
    YSetIterator walk(found->items);
    while (const void* element = walk.doNext()) {
        const Item* item = static_cast<const Item*>(element);
        keys.append(item->key);
        values.append(item->value);
    }
    return 1;
}

unsigned long BexPropValue::getValue(const YString& group, const YString& key, YString& value) const {
    const Group* found = groups_.find(group);
    const Item* item = found ? found->items.find(key) : nullptr;
    if (!item) return 0;
    value = item->value;
    return 1;
}

void BexPropValue::setValue(const YString& group, const YString& key, const YString& value) {
    auto item = std::make_unique<Item>(Item{key, withoutQuotes(value)});
    if (Group* found = groups_.find(group)) {
        std::unique_ptr<Item>(static_cast<Item*>(found->items.detach(item.get()))).reset();
        found->items.add(std::move(item));
        return;
    }
    auto added = std::make_unique<Group>(Group{group, {}});
    added->items.add(std::move(item));
    groups_.add(std::move(added));
}
