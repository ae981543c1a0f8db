#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ygeneral/yenviron.h"
#include "bexa/foundation/yrsc/keyed_file.h"
#include "bexa/props/prop_spec_file.h"
#include "bexa/props/prop_spec_format.h"
#include "bexa/props/prop_spec_index.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>

using namespace bexa::detail;

namespace {

// The text of a field; a field that is no text counts as an empty one, and null stands for none.
const char* textAt(const YioRscList& list, unsigned index) {
    const YioRscValue* field = list.value(index);
    if (!field) return nullptr;
    return field->string() ? field->string() : "";
}

// The fields of a row, one after the other.
class Fields {
public:
    explicit Fields(const YioRscList& list) : list_(list) {}

    // False at the end.
    bool take(const char*& field) {
        field = textAt(list_, next_);
        if (field) ++next_;
        return field != nullptr;
    }
    bool nextIsPlace() const { return placeWord(viewOf(textAt(list_, next_))) != nullptr; }

private:
    const YioRscList& list_;
    unsigned next_ = 0;
};

std::optional<YioRscTable> sectionOf(const YioRscFile& file, const char* name) {
    const std::unique_ptr<YioRscValue> value(file.value(name));
    if (!value || !value->table()) return std::nullopt;
    return *value->table();
}

} // namespace

unsigned long BexPropSpecRec::readFrom(const YioRscList* list) {
    if (!list || list->count() == 0 || !list->value(0)->string()) return 0;
    Fields fields(*list);
    const char* field = nullptr;
    if (fields.take(field)) propertyName(field);
    if (fields.take(field)) valueType(string2valueType(field));
    if (fields.take(field)) displayString(field);
    if (fields.take(field)) displayFlag(string2flag(field));
    if (fields.nextIsPlace() && fields.take(field)) propPlace(field);
    if (fields.take(field)) viewerColor(string2col(field));
    while (fields.take(field)) valueSelection_.append(field);
    return 1;
}

// Reads sections into records. Each section is read into a record once: what a second reading would add is there
// already, and sections that lead to each other in a circle come to an end. Nothing calls itself, so they may lead to
// each other at any depth.
class bexa::detail::PropSpecReader {
public:
    explicit PropSpecReader(BexPropSpecFile& specification) : specification_(specification) {
        for (int i = 0; i < specification.owners_.size(); ++i) addTablesBelow(specification.owners_.at(i));
    }

    // The section of a kind of object, and those of its hidden properties. False if one of them fails; one that the
    // file doesn't have is left out.
    bool readObject(const char* path, const char* section) {
        const YioRscFile& file = fileAt(path);
        const auto rows = sectionOf(file, section);
        if (!rows) return true;
        if (!readOwner(file, section, *rows)) return false;
        const std::vector<YString> hidden = specification_.ownerRec(section)->hiddenProperties();
        return std::ranges::all_of(hidden, [&](const YString& name) {
            const auto rowsBehind = sectionOf(file, name);
            return !rowsBehind || readOwner(file, name, *rowsBehind);
        });
    }

    bool readRows(BexPropOwnerRec& owner, const char* path, const YioRscTable& rows) {
        addTablesBelow(owner);
        return read(owner, fileAt(path), "", rows);
    }

private:
    enum class Cause { First, Table, File };
    enum class State { Reading, Read, Failed };

    // One section on its way into a record.
    struct Reading {
        BexPropOwnerRec* record;
        const YioRscFile* file;
        YioRscTable rows;
        Cause cause;
        State* state;
        unsigned next = 0;
    };

    bool readOwner(const YioRscFile& file, const char* section, const YioRscTable& rows) {
        BexPropOwnerRec* owner = specification_.appendOwnerRec(section);
        return owner && read(*owner, file, section, rows);
    }

    bool read(BexPropOwnerRec& owner, const YioRscFile& file, const char* section, const YioRscTable& rows) {
        if (!begin(owner, file, section, rows, Cause::First)) return false;
        while (!readings_.empty()) {
            Reading& reading = readings_.back();
            if (reading.next == reading.rows.rowCount()) {
                *reading.state = State::Read;
                readings_.pop_back();
                continue;
            }
            YioRscValue* cell = reading.rows.value(reading.next++, 0);
            const YioRscList* row = cell ? cell->list() : nullptr;
            if ((!row || !takeRow(*row)) && !breakOff()) return false;
        }
        return true;
    }

    // False if the section was read before and failed.
    bool begin(BexPropOwnerRec& record, const YioRscFile& file, const char* section, const YioRscTable& rows,
               Cause cause) {
        const auto [known, isNew] = states_.try_emplace({&record.index(), &file, section}, State::Reading);
        if (!isNew) return known->second != State::Failed;
        readings_.push_back({&record, &file, rows, cause, &known->second});
        return true;
    }

    // Ends all readings that a failure concerns. What a "$RefFile" row stands for is no concern of the row's record.
    // False if none is left.
    bool breakOff() {
        while (!readings_.empty()) {
            const Cause cause = readings_.back().cause;
            *readings_.back().state = State::Failed;
            readings_.pop_back();
            if (cause == Cause::File) return true;
        }
        return false;
    }

    // False if this ends the reading of the section.
    bool takeRow(const YioRscList& row) {
        BexPropOwnerRec& record = *readings_.back().record;
        const char* first = textAt(row, 0);
        if (!first || record.rowPlace(first) >= 0) return true;
        if (first == refTableWord) return takeTable(row);
        if (first == refFileWord) return takeFile(row);
        BexPropSpecRec property;
        if (property.readFrom(&row)) record.addRow(std::move(property));
        return true;
    }

    // A failure below belongs to this section too.
    bool takeTable(const YioRscList& row) {
        const char* name = textAt(row, 1);
        if (!name || !*name) return true;
        const Reading& reading = readings_.back();
        const auto rows = sectionOf(*reading.file, name);
        if (!rows) return true;
        BexPropOwnerRec* table = addTable(*reading.record, name, textAt(row, 2));
        return !table || begin(*table, *reading.file, name, *rows, Cause::Table);
    }

    bool takeFile(const YioRscList& row) {
        const char* path = textAt(row, 1);
        const char* section = textAt(row, 2);
        if (!path || !section) return true;
        const YioRscFile& file = fileAt(withEnvironment(path));
        if (const auto rows = sectionOf(file, section)) {
            begin(*readings_.back().record, file, section, *rows, Cause::File);
        }
        return true;
    }

    // Null if the record has a table of this name, or stands below it.
    BexPropOwnerRec* addTable(BexPropOwnerRec& record, const char* name, const char* alias) {
        if (!namesHeldBy(record).insert(name).second) return nullptr;
        const auto known = tables_.find(name);
        if (known != tables_.end()) {
            return known->second->leadsTo(record) ? nullptr : record.hold(known->second);
        }
        BexPropOwnerRec* table = record.hold(BexPropOwnerRec::newTable(name, alias));
        tables_.try_emplace(name, table);
        return table;
    }

    std::unordered_set<std::string>& namesHeldBy(const BexPropOwnerRec& record) {
        const auto [held, isNew] = held_.try_emplace(&record.index());
        if (isNew) {
            for (const BexPropOwnerRec* table : record.tables_)
                held->second.emplace(viewOf(table->objectName()));
        }
        return held->second;
    }

    void addTablesBelow(const BexPropOwnerRec& owner) {
        walk_.goOn(owner);
        while (const BexPropOwnerRec* record = walk_.next()) {
            for (BexPropOwnerRec* table : record->tables_) {
                if (table->objectName()) tables_.try_emplace(table->objectName(), table);
            }
        }
    }

    const YioRscFile& fileAt(const std::string& path) {
        std::unique_ptr<YioRscFile>& file = files_[path];
        if (!file) file = std::make_unique<YioRscFile>(path.c_str());
        return *file;
    }

    BexPropSpecFile& specification_;
    std::vector<Reading> readings_; // the last is at work, each waits for the one behind it
    ByText<std::unique_ptr<YioRscFile>> files_;
    ByText<BexPropOwnerRec*> tables_; // those below the owners; of several with one name the first
    PropTableWalk walk_;

    // Records are known by their indexes, which stay in their places while the owners of a file move.
    std::map<std::tuple<const PropRowIndex*, const YioRscFile*, std::string>, State> states_;
    std::unordered_map<const PropRowIndex*, std::unordered_set<std::string>> held_;
};

unsigned long BexPropOwnerRec::readFrom(BexPropSpecFile& file, const char* path, const YioRscTable* table) {
    return table && PropSpecReader(file).readRows(*this, path ? path : "", *table);
}

unsigned long BexPropSpecFile::readFrom(const char* path) {
    if (!path || !BexFile::isExist(path)) return 0;
    fileName_ = YString(path);
    PropSpecReader reader(*this);
    for (const SpecObject& object : specObjects) {
        if (object.section && !reader.readObject(path, object.section)) return 0;
    }
    return 1;
}
