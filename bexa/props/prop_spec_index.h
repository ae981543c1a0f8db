// What makes look-ups in a property specification fast. Nothing of it shows at the interface.
#pragma once

#include "bexa/props/prop_spec_records.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace bexa::detail {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept {
        return std::hash<std::string_view>()(text);
    }
};
template <class Value>
using ByText = std::unordered_map<std::string, Value, TextHash, std::equal_to<>>;

// The first place of each name in a list of records.
struct NameIndex {
    bool stale = true; // the records of the list are linked to this word, so it must not move
    ByText<int> places;

    // -1 if there is none.
    int find(std::string_view name) const {
        const auto found = places.find(name);
        return found == places.end() ? -1 : found->second;
    }
    void add(const char* name, int place) {
        if (name) places.try_emplace(name, place);
    }
};

// A row that stands for a table, by its place.
struct PropTableReference {
    int row;
    BexPropOwnerRec* table;
};

// The rows of one owner by name, and which of them stand for a table it holds, in order.
struct PropRowIndex : NameIndex {
    bool referencesAreStale = true;
    unsigned long tablesRenamed = 0; // the state of the tables' names that the references belong to
    std::vector<PropTableReference> references;
};

// Walks through a record and the tables below it, each once, in the order in which look-ups go through them: a record,
// then each of its tables with all that is below.
class PropTableWalk {
public:
    PropTableWalk() = default;
    explicit PropTableWalk(const BexPropOwnerRec& record) : pending_{&record} {}

    // Null at the end.
    const BexPropOwnerRec* next() {
        while (!pending_.empty()) {
            const BexPropOwnerRec* record = pending_.back();
            pending_.pop_back();
            if (!seen_.insert(record).second) continue;
            pending_.insert(pending_.end(), record->tables_.rbegin(), record->tables_.rend());
            return record;
        }
        return nullptr;
    }
    // Goes on with this record and what is below, as far as it was not seen yet.
    void goOn(const BexPropOwnerRec& record) { pending_.push_back(&record); }

private:
    std::vector<const BexPropOwnerRec*> pending_;
    std::unordered_set<const BexPropOwnerRec*> seen_;
};

} // namespace bexa::detail
