#include "tools/bexa/circuit_resource.h"
#include "tools/bexa/command.h"
#include "tools/bexa/lock_files.h"
#include "tools/bexa/sheet_lock.h"

#include "bexa/store/data_file.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

enum class Mark { None, Copy };

using Walk = unsigned long (*)(const char* circuit, BexDataFile::Callback take, void* arg);

struct Column {
    const char* key;
    Walk walk;
    Mark mark; // a copy has one in front of its name
};

constexpr Column columns[] = {
    {"sheet", BexDataFile::enumSheetNames, Mark::None},
    {"net", BexDataFile::enumSheetNetNames, Mark::None},
    {"tmpSheet", BexDataFile::enumTmpSheetNames, Mark::Copy},
    {"tmpNet", BexDataFile::enumTmpSheetNetNames, Mark::Copy},
    {"backupSheet", BexDataFile::enumBackupSheetNames, Mark::Copy},
    {"backupNet", BexDataFile::enumBackupSheetNetNames, Mark::Copy},
};

int takePath(void* paths, const char* path) {
    static_cast<std::vector<std::string>*>(paths)->emplace_back(path);
    return 0;
}

// What the files of one sheet have in common: their number, and the name without mark and suffix. Copies are found
// below the circuit as well, so the name may have a directory in front.
using Stem = std::pair<int, std::string>;

Stem stemOf(const std::string& name, Mark mark) {
    const std::size_t slash = name.rfind('/');
    const std::size_t start = slash == std::string::npos ? 0 : slash + 1;
    std::string stem = name.substr(0, name.rfind('.'));
    if (mark == Mark::Copy) stem.erase(start, 1);
    return {BexDataFile::sheetNo(name.c_str()), stem};
}

// The rows of the table, by sheet. Names that differ only in the case of their suffix, or don't fit in one row for
// another reason, get rows of their own.
class Table {
public:
    void add(const Stem& stem, const char* key, std::string name) {
        std::vector<Json>& rows = rows_[stem];
        for (Json& row : rows) {
            if (!row[key].is_null()) continue;
            row[key] = std::move(name);
            return;
        }
        rows.push_back(emptyRow(stem.first));
        rows.back()[key] = std::move(name);
    }

    Json rows() const {
        Json all = Json::array();
        for (const auto& [stem, rows] : rows_) {
            for (const Json& row : rows) all.push_back(row);
        }
        return all;
    }

private:
    static Json emptyRow(int number) {
        Json row = {{"number", number}};
        for (const Column& column : columns) row[column.key] = nullptr;
        row["lockedBy"] = nullptr;
        return row;
    }

    std::map<Stem, std::vector<Json>> rows_;
};

void addFiles(Table& table, const Column& column, const std::string& circuit, Output& out) {
    std::vector<std::string> paths;
    if (!column.walk(circuit.c_str(), takePath, &paths)) {
        out.report(
            unusable(std::string("not all files could be found for the column ") + column.key,
                     out.systemText(circuit.c_str()),
                     "check that you may read it, and that log, ext, drc and frame in it are directories"));
    }
    for (const std::string& path : paths) {
        const std::string name = path.substr(circuit.size() + 1);
        table.add(stemOf(name, column.mark), column.key, out.systemText(name.c_str()));
    }
}

void addLocks(Table& table, const std::string& circuit, Output& out) {
    const std::string directory = circuit + '/';
    for (const std::string& name : lockedSheets(circuit, out)) {
        const SheetLock lock = lockOf(directory + name);
        if (lock.state == SheetLock::State::Unreadable) out.report(unreadableLock(lock, out));
        if (lock.state != SheetLock::State::Held) continue;
        table.add(stemOf(name, Mark::None), "lockedBy", out.systemText(lock.info.user));
    }
}

void showSheets(const std::string& path, Output& out) {
    const std::string circuit = circuitAt(path);
    Table table;
    for (const Column& column : columns) addFiles(table, column, circuit, out);
    addLocks(table, circuit, out);
    out.print({{"circuit", out.systemText(circuit.c_str())}, {"sheets", table.rows()}});
}

} // namespace

void addSheetsCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("sheets", "Shows the sheets of a circuit, their net files, copies and locks");
    const auto circuit = std::make_shared<std::string>();
    command->add_option("PATH.cir", *circuit, "The directory of the circuit")->required();
    finishCommand(*command, request, [circuit](Output& out) { showSheets(*circuit, out); });
}

} // namespace tool
