#include "tools/bexa/spec_references.h"

#include "bexa/foundation/ygeneral/yenviron.h"
#include "bexa/foundation/yrsc/keyed_file.h"

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace tool {
namespace {

// The text of a field; nothing if there is no such field.
std::optional<std::string> textAt(const YioRscList& row, unsigned index) {
    const YioRscValue* field = row.value(index);
    if (field == nullptr || field->string() == nullptr) return std::nullopt;
    return field->string();
}

class ReferenceWalk {
public:
    SpecReferences walk(const std::string& path, const std::vector<std::string>& sections) {
        for (const std::string& section : sections) visitLater({path, section, section});
        while (!waiting_.empty()) {
            const Section section = std::move(waiting_.front());
            waiting_.pop_front();
            visit(section);
        }
        return std::move(found_);
    }

private:
    // A section, and the owner or table that its rows belong to.
    struct Section {
        std::string file;
        std::string name;
        std::string owner;
    };

    // Each section once for each owner, so files may name each other in a circle.
    void visitLater(Section section) {
        if (seen_.emplace(section.file, section.name, section.owner).second) {
            waiting_.push_back(std::move(section));
        }
    }

    void visit(const Section& section) {
        const std::optional<YioRscTable> rows = rowsOf(section.file, section.name);
        if (!rows) return;
        for (unsigned i = 0; i < rows->rowCount(); ++i) {
            YioRscValue* cell = rows->value(i, 0);
            const YioRscList* row = cell != nullptr ? cell->list() : nullptr;
            // What stands behind a row that is no list is not read at all.
            if (row == nullptr) return;
            const std::optional<std::string> first = textAt(*row, 0);
            if (first == "$RefTable") takeTable(section, *row);
            if (first == "$RefFile") takeFile(section, *row);
        }
    }

    void takeTable(const Section& section, const YioRscList& row) {
        const std::optional<std::string> table = textAt(row, 1);
        if (!table || table->empty()) return;
        if (rowsOf(section.file, *table)) {
            visitLater({section.file, *table, *table});
        } else {
            found_.lostTables.push_back({section.file, section.owner, *table});
        }
    }

    void takeFile(const Section& section, const YioRscList& row) {
        const std::optional<std::string> path = textAt(row, 1);
        const std::optional<std::string> from = textAt(row, 2);
        if (!path || !from) return;
        const std::string leadsTo = YEnviron::substituteByEnvs(path->c_str(), nullptr, 0, 0);
        const bool present = rowsOf(leadsTo, *from).has_value();
        found_.files.push_back({section.file, section.owner, *path, *from, leadsTo, present});
        if (present) visitLater({leadsTo, *from, section.owner});
    }

    std::optional<YioRscTable> rowsOf(const std::string& path, const std::string& section) {
        std::unique_ptr<YioRscFile>& file = files_[path];
        if (!file) file = std::make_unique<YioRscFile>(path.c_str());
        const std::unique_ptr<YioRscValue> value(file->value(section.c_str()));
        if (!value || value->table() == nullptr) return std::nullopt;
        return *value->table();
    }

    SpecReferences found_;
    std::deque<Section> waiting_;
    std::set<std::tuple<std::string, std::string, std::string>> seen_;
    std::map<std::string, std::unique_ptr<YioRscFile>> files_;
};

} // namespace

SpecReferences referencesOf(const std::string& path, const std::vector<std::string>& sections) {
    return ReferenceWalk().walk(path, sections);
}

} // namespace tool
