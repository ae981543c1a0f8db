// The rows and tables of an owner: who holds what, and what changes it.
#include "bexa/props/prop_spec_file.h"
#include "bexa/props/prop_spec_index.h"

#include <algorithm>
#include <utility>

using namespace bexa::detail;

namespace {

std::optional<YString> textOrNothing(const char* text) {
    return text ? std::optional<YString>(text) : std::nullopt;
}

} // namespace

BexPropOwnerRec::BexPropOwnerRec() = default;

BexPropOwnerRec::BexPropOwnerRec(const BexPropOwnerRec& other)
    : objectName_(other.objectName_),
      aliasName_(other.aliasName_),
      rows_(other.rows_),
      tables_(other.tables_),
      useCount_(other.useCount_) {
    for (BexPropOwnerRec* table : tables_) table->incrUseCount();
}

BexPropOwnerRec::BexPropOwnerRec(BexPropOwnerRec&& other) noexcept
    : objectName_(std::exchange(other.objectName_, std::nullopt)),
      aliasName_(std::exchange(other.aliasName_, std::nullopt)),
      rows_(std::move(other.rows_)),
      tables_(std::exchange(other.tables_, {})),
      useCount_(other.useCount_),
      index_(std::move(other.index_)) {}

BexPropOwnerRec& BexPropOwnerRec::operator=(const BexPropOwnerRec& other) {
    if (this != &other) *this = BexPropOwnerRec(other);
    return *this;
}

BexPropOwnerRec& BexPropOwnerRec::operator=(BexPropOwnerRec&& other) noexcept {
    if (this == &other) return *this;
    // The rows are linked to their index, so the two stay together.
    rows_ = std::move(other.rows_);
    std::swap(index_, other.index_);
    other.rows_.removeAll();
    other.forgetRows();
    objectName_ = std::exchange(other.objectName_, std::nullopt);
    aliasName_ = std::exchange(other.aliasName_, std::nullopt);
    ++renamed_;
    link_.changed();
    takeTables(other.tables_);
    return *this;
}

BexPropOwnerRec::~BexPropOwnerRec() {
    release(std::exchange(tables_, {}));
}

void BexPropOwnerRec::realCopy(BexPropOwnerRec& other) {
    if (this == &other) return;
    rows_ = other.rows_;
    forgetRows();
    objectName_ = std::exchange(other.objectName_, std::nullopt);
    aliasName_ = std::exchange(other.aliasName_, std::nullopt);
    ++renamed_;
    ++other.renamed_;
    link_.changed();
    other.link_.changed();
    other.forgetReferences();
    takeTables(other.tables_);
}

unsigned long BexPropOwnerRec::objectName(const char* name) {
    objectName_ = textOrNothing(name);
    ++renamed_;
    link_.changed();
    return 1;
}

unsigned long BexPropOwnerRec::aliasName(const char* name) {
    aliasName_ = textOrNothing(name);
    return 1;
}

// ---- Tables

// The tables that were held go last: this may be the end of the record that `from` belongs to.
void BexPropOwnerRec::takeTables(Tables& from) {
    Tables before = std::exchange(tables_, {});
    Tables circular;
    for (BexPropOwnerRec* table : from) (table->leadsTo(*this) ? circular : tables_).push_back(table);
    from = std::move(circular);
    forgetReferences();
    release(std::move(before));
}

// One after the other instead of through destructors that call each other: a chain of tables may be of any length.
void BexPropOwnerRec::release(Tables tables) {
    while (!tables.empty()) {
        BexPropOwnerRec* table = tables.back();
        tables.pop_back();
        if (table->decrUseCount() >= 1) continue;
        tables.insert(tables.end(), table->tables_.begin(), table->tables_.end());
        table->tables_.clear();
        delete table;
    }
}

bool BexPropOwnerRec::leadsTo(const BexPropOwnerRec& record) const {
    PropTableWalk walk(*this);
    while (const BexPropOwnerRec* table = walk.next()) {
        if (table == &record) return true;
    }
    return false;
}

BexPropOwnerRec* BexPropOwnerRec::heldTable(std::string_view name) const {
    const auto found = std::ranges::find_if(tables_, [name](const BexPropOwnerRec* table) {
        return table->objectName_ && table->objectName_->view() == name;
    });
    return found == tables_.end() ? nullptr : *found;
}

BexPropOwnerRec* BexPropOwnerRec::newTable(const char* name, const char* alias) {
    auto table = std::make_unique<BexPropOwnerRec>();
    table->objectName(name);
    table->aliasName(alias && *alias ? alias : name);
    return table.release();
}

BexPropOwnerRec* BexPropOwnerRec::hold(BexPropOwnerRec* table) {
    tables_.push_back(table);
    table->incrUseCount();
    BexPropSpecRec& row = *appendPropSpecRec(table->objectName());
    row.valueType_ = BexPropTypeRefTable; // past the setter: the names of the rows stay right
    row.displayString(table->aliasName() ? table->aliasName() : table->objectName());
    row.displayFlag(1UL);
    forgetReferences();
    return table;
}

BexPropOwnerRec* BexPropOwnerRec::appendRefTable(BexPropSpecFile& file, const char* name, const char* alias) {
    if (!name || !*name) return nullptr;
    if (BexPropOwnerRec* held = heldTable(name)) return held;
    BexPropOwnerRec* shared = file.sharedTable(name);
    if (!shared) return hold(newTable(name, alias));
    return shared->leadsTo(*this) ? nullptr : hold(shared);
}

unsigned long BexPropOwnerRec::removeRefTable(const char* name) {
    BexPropOwnerRec* table = name ? heldTable(name) : nullptr;
    if (!table) return 0;
    // The name may be the table's own, and the table may end.
    const YString row(name);
    std::erase(tables_, table);
    forgetReferences();
    release({table});
    return removePropSpecRec(row);
}

unsigned long BexPropOwnerRec::breakRefTable(const char* name) {
    BexPropOwnerRec* table = name ? heldTable(name) : nullptr;
    BexPropSpecRec_Array flat;
    if (!table || !table->enumPropSpecRecs(flat, 0, 1)) return 0;

    // The name may be that of a row, and rows are about to move.
    const YString kept(name);
    const int before = rows_.size();
    const auto isRow = [&kept](const BexPropSpecRec& row) {
        return row.valueType() == BexPropTypeRefTable && row.propertyName() && kept == row.propertyName();
    };
    const auto place = std::find_if(rows_(), rows_() + before, isRow) - rows_();
    for (int i = 0; i < flat.size(); ++i) addRow(std::move(flat.at(i)));
    if (place != before) std::rotate(rows_() + place + 1, rows_() + before, rows_() + rows_.size());
    forgetRows();
    return removeRefTable(kept);
}

// ---- Rows

BexPropSpecRec& BexPropOwnerRec::addRow(BexPropSpecRec&& record) {
    PropRowIndex& names = index();
    const int place = rows_.size();
    BexPropSpecRec& row = rows_.end();
    row.link_.join(nullptr); // an element that was dropped before comes back with its link
    row = std::move(record);
    row.link_.join(&names.stale);
    names.add(row.propertyName(), place);
    if (row.valueType() == BexPropTypeRefTable) names.referencesAreStale = true;
    return row;
}

BexPropSpecRec* BexPropOwnerRec::appendPropSpecRec(const char* name) {
    if (!name || !*name) return nullptr;
    const int known = rowPlace(name);
    if (known >= 0) return &rows_.at(known);
    BexPropSpecRec row;
    row.propertyName(name);
    return &addRow(std::move(row));
}

// A table takes its row with it, so that only one row goes.
unsigned long BexPropOwnerRec::removePropSpecRec(const char* name) {
    if (!name) return 0;
    const int place = rowPlace(name);
    if (place < 0) return 0;
    if (heldTable(name)) return removeRefTable(name);
    rows_.remove(place);
    forgetRows();
    return 1;
}

// ---- Indexes

PropRowIndex& BexPropOwnerRec::index() const {
    if (!index_) index_ = std::make_unique<PropRowIndex>();
    if (!index_->stale) return *index_;
    index_->places.clear();
    for (int i = 0; i < rows_.size(); ++i) {
        index_->add(rows_.at(i).propertyName(), i);
        rows_.at(i).link_.join(&index_->stale);
    }
    index_->stale = false;
    index_->referencesAreStale = true;
    return *index_;
}

int BexPropOwnerRec::rowPlace(std::string_view name) const {
    return index().find(name);
}

// The index itself stays: rows are linked to it.
void BexPropOwnerRec::forgetRows() {
    if (index_) index_->stale = true;
}

void BexPropOwnerRec::forgetReferences() {
    if (index_) index_->referencesAreStale = true;
}

std::span<const PropTableReference> BexPropOwnerRec::references() const {
    if (tables_.empty()) return {};
    PropRowIndex& names = index();
    unsigned long renamed = 0;
    for (const BexPropOwnerRec* table : tables_) renamed += table->renamed_;
    if (!names.referencesAreStale && names.tablesRenamed == renamed) return names.references;

    std::unordered_map<std::string_view, BexPropOwnerRec*> tables;
    for (BexPropOwnerRec* table : tables_) {
        if (table->objectName_) tables.try_emplace(table->objectName_->view(), table);
    }
    names.references.clear();
    for (int i = 0; i < rows_.size(); ++i) {
        const BexPropSpecRec& row = rows_.at(i);
        if (row.valueType() != BexPropTypeRefTable || !row.propertyName()) continue;
        const auto table = tables.find(row.propertyName());
        if (table != tables.end()) names.references.push_back({i, table->second});
    }
    names.referencesAreStale = false;
    names.tablesRenamed = renamed;
    return names.references;
}
