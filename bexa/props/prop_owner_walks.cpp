// Look-ups and enumerations of an owner, through its tables. None calls itself: a chain of tables may be of any
// length.
#include "bexa/props/prop_spec_index.h"

#include "bexa/foundation/text_cursor.h"

#include <climits>
#include <unordered_set>

using namespace bexa::detail;

namespace {

// Tables that are held at several places multiply, and a small file can ask for more rows than there is memory.
constexpr int mostEnumerated = 1000000;

using References = std::span<const PropTableReference>;

} // namespace

// ---- Look-ups

const BexPropOwnerRec* BexPropOwnerRec::refTable(const char* name, unsigned long deep) const {
    if (!name) return nullptr;
    if (!deep) return heldTable(name);
    PropTableWalk walk(*this);
    while (const BexPropOwnerRec* record = walk.next()) {
        if (const BexPropOwnerRec* table = record->heldTable(name)) return table;
    }
    return nullptr;
}

BexPropOwnerRec* BexPropOwnerRec::refTable(const char* name, unsigned long deep) {
    return const_cast<BexPropOwnerRec*>(std::as_const(*this).refTable(name, deep));
}

// In each record: the tables in front of its own row of this name, then that row.
const BexPropSpecRec* BexPropOwnerRec::propSpec(const char* name) const {
    struct Search {
        const BexPropOwnerRec* record;
        int place;
        References references;
    };
    const std::string_view wanted = viewOf(name);
    const auto searchIn = [wanted](const BexPropOwnerRec& record) {
        return Search{&record, record.rowPlace(wanted), record.references()};
    };
    if (!name) return nullptr;

    std::vector<Search> searches{searchIn(*this)};
    std::unordered_set<const BexPropOwnerRec*> seen;
    while (!searches.empty()) {
        Search& search = searches.back();
        const int end = search.place < 0 ? INT_MAX : search.place;
        if (!search.references.empty() && search.references.front().row < end) {
            const BexPropOwnerRec* table = search.references.front().table;
            search.references = search.references.subspan(1);
            if (seen.insert(table).second) searches.push_back(searchIn(*table));
        } else if (search.place >= 0) {
            return &search.record->rows_.at(search.place);
        } else {
            searches.pop_back();
        }
    }
    return nullptr;
}

BexPropSpecRec* BexPropOwnerRec::propSpec(const char* name) {
    return const_cast<BexPropSpecRec*>(std::as_const(*this).propSpec(name));
}

// ---- Enumerations

template <class Row, class Enter>
bool BexPropOwnerRec::walkRows(Row row, Enter enter) const {
    struct Walk {
        const BexPropOwnerRec* record;
        int next;
        References references;
    };
    std::vector<Walk> walks{{this, 0, references()}};
    while (!walks.empty()) {
        Walk& walk = walks.back();
        if (walk.next == walk.record->rows_.size()) {
            walks.pop_back();
            continue;
        }
        const int place = walk.next++;
        if (!row(walk.record->rows_.at(place))) return false;
        if (walk.references.empty() || walk.references.front().row != place) continue;
        const BexPropOwnerRec* table = walk.references.front().table;
        walk.references = walk.references.subspan(1);
        if (enter(*table)) walks.push_back({table, 0, table->references()});
    }
    return true;
}

// Counts first: what is too much is not gathered.
template <class Add>
bool BexPropOwnerRec::enumerate(unsigned long withRefTables, unsigned long expand, Add add) const {
    const auto isGiven = [withRefTables](const BexPropSpecRec& record) {
        if (record.valueType() == BexPropTypeRefTable) return withRefTables != 0;
        return record.valueType() != BexPropTypeRefFile;
    };
    const auto enter = [=](const BexPropOwnerRec&) { return withRefTables && expand; };
    int count = 0;
    const auto counts = [&](const BexPropSpecRec& record) {
        count += isGiven(record);
        return count <= mostEnumerated;
    };
    const auto adds = [&](const BexPropSpecRec& record) {
        if (isGiven(record)) add(record);
        return true;
    };
    return walkRows(counts, enter) && walkRows(adds, enter);
}

unsigned long BexPropOwnerRec::enumPropNames(YString_Array& out, unsigned long withRefTables,
                                             unsigned long expand) const {
    out.resize(0);
    const auto add = [&out](const BexPropSpecRec& row) { out.append(row.propertyName()); };
    return enumerate(withRefTables, expand, add);
}

unsigned long BexPropOwnerRec::enumDisplayStrings(YString_Array& out, unsigned long withRefTables,
                                                  unsigned long expand) const {
    out.resize(0);
    const auto add = [&out](const BexPropSpecRec& row) { out.append(row.displayString()); };
    return enumerate(withRefTables, expand, add);
}

unsigned long BexPropOwnerRec::enumPropSpecRecs(BexPropSpecRec_Array& out, unsigned long withRefTables,
                                                unsigned long expand) const {
    out.resize(0);
    const auto add = [&out](const BexPropSpecRec& row) { out.append(row); };
    return enumerate(withRefTables, expand, add);
}

// A record, then each of its tables with all that is below, as often as it is held.
template <class Visit>
bool BexPropOwnerRec::walkTables(unsigned long deep, Visit visit) const {
    std::vector<const BexPropOwnerRec*> pending{this};
    while (!pending.empty()) {
        const BexPropOwnerRec* record = pending.back();
        pending.pop_back();
        if (!visit(record->tables_)) return false;
        if (deep) pending.insert(pending.end(), record->tables_.rbegin(), record->tables_.rend());
    }
    return true;
}

unsigned long BexPropOwnerRec::enumRefTableNames(YString_Array& out, unsigned long deep) const {
    out.resize(0);
    std::size_t count = 0;
    const auto counts = [&count](const Tables& tables) { return (count += tables.size()) <= mostEnumerated; };
    const auto adds = [&out](const Tables& tables) {
        for (const BexPropOwnerRec* table : tables) out.append(table->objectName());
        return true;
    };
    return walkTables(deep, counts) && walkTables(deep, adds);
}

std::vector<YString> BexPropOwnerRec::hiddenProperties() const {
    std::vector<YString> hidden;
    std::unordered_set<std::string_view> names;
    std::unordered_set<const BexPropOwnerRec*> seen;
    // Of a name that stands twice a look-up finds the first row.
    const auto row = [&](const BexPropSpecRec& record) {
        if (!names.insert(viewOf(record.propertyName())).second) return true;
        if (record.valueType() == BexPropTypeHide) hidden.emplace_back(record.propertyName());
        return true;
    };
    walkRows(row, [&seen](const BexPropOwnerRec& table) { return seen.insert(&table).second; });
    return hidden;
}
