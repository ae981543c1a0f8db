#include "tools/bexa/document_difference.h"

#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace tool {
namespace {

// A value of a document and the way to it.
struct Leaf {
    std::string where;
    const Json* value;
};

class Leaves {
public:
    explicit Leaves(const LeftOut& leftOut) : leftOut_(leftOut) {}

    std::vector<Leaf> of(const Json& document) {
        leaves_.clear();
        addMembers(document, "", "");
        return std::move(leaves_);
    }

private:
    void add(const Json& value, const std::string& where, const std::string& member) {
        if (leftOut_(member)) return;
        if (value.is_object()) {
            addMembers(value, where + '.', member + '.');
        } else if (value.is_array()) {
            addRows(value, where, member);
        } else {
            leaves_.push_back({where, &value});
        }
    }

    void addMembers(const Json& object, const std::string& where, const std::string& member) {
        for (const auto& [key, value] : object.items()) add(value, where + key, member + key);
    }

    void addRows(const Json& rows, const std::string& where, const std::string& member) {
        std::map<std::string, int> seen;
        for (const Json& row : rows) {
            const std::string name = nameOf(row);
            const int before = seen[name]++;
            const std::string again = before == 0 ? "" : '#' + std::to_string(before + 1);
            add(row, where + '[' + name + again + ']', member);
        }
    }

    static std::string nameOf(const Json& row) {
        if (row.is_object() && !row.empty()) return nameOf(row.front());
        return row.is_string() ? row.get<std::string>() : row.dump();
    }

    const LeftOut& leftOut_;
    std::vector<Leaf> leaves_;
};

// A file may hold "nan" for a number; two of them are no difference.
bool isSame(const Json& first, const Json& second) {
    const auto isNan = [](const Json& value) {
        return value.is_number_float() && std::isnan(value.get<double>());
    };
    return first == second || (isNan(first) && isNan(second));
}

std::map<std::string, const Json*> byPlace(const std::vector<Leaf>& leaves) {
    std::map<std::string, const Json*> result;
    for (const Leaf& leaf : leaves) result.emplace(leaf.where, leaf.value);
    return result;
}

} // namespace

Json differencesOf(const Json& first, const Json& second, const LeftOut& leftOut) {
    Leaves leaves(leftOut);
    const auto inFirst = leaves.of(first);
    const auto inSecond = leaves.of(second);
    const auto placesInFirst = byPlace(inFirst);
    const auto placesInSecond = byPlace(inSecond);
    Json differences = Json::array();
    for (const auto& [where, value] : inFirst) {
        const auto other = placesInSecond.find(where);
        const Json there = other == placesInSecond.end() ? Json() : *other->second;
        if (other != placesInSecond.end() && isSame(there, *value)) continue;
        differences.push_back({{"where", where}, {"first", *value}, {"second", there}});
    }
    for (const auto& [where, value] : inSecond) {
        if (placesInFirst.contains(where)) continue;
        differences.push_back({{"where", where}, {"first", nullptr}, {"second", *value}});
    }
    return differences;
}

} // namespace tool
