#include "tools/bexa/settings_command.h"

#include "tools/bexa/protected_save.h"
#include "tools/bexa/setting_change.h"
#include "tools/bexa/text_file.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

struct Options {
    SettingsKind kind;
    std::string path;
    std::vector<std::string> settings; // KEY=VALUE
};

void showFile(const Options& options, Output& out) {
    Json document = {{"file", out.systemText(options.path.c_str())}};
    document.update(openSettings(options.kind, options.path, out)->content(out));
    out.print(document);
}

// The library doesn't tell whether there was room for the file. Entries are written in a fixed order, so a file
// with the last of them is complete.
void checkComplete(const SettingsFile& file, const std::string& path, const std::string& shown) {
    const std::string content = contentOf(path, path);
    const std::string lastEntry = std::string("\n") + file.lastKey() + " : ";
    if (content.ends_with('\n') && content.find(lastEntry) != std::string::npos) return;
    throw unusable("the file cannot be written", shown, "make room; the file is as it was");
}

// A text with a quote, say, would read back as another. If it leaves no readable file at all, it is one of the texts.
bool isKept(const Change& change, const Json& kept) {
    return kept.empty() ? !change.after.is_string() : kept["settings"][change.key] == change.after;
}

void checkKept(const std::vector<Change>& changes, const Json& kept, const std::string& shown) {
    for (const Change& change : changes) {
        if (isKept(change, kept)) continue;
        throw finding("the file cannot keep the new value of " + change.key, shown,
                      "give a text without quotes and line breaks, a number of at most six digits; some "
                      "settings no file keeps; nothing was written");
    }
}

// What was read, what was changed, and what reading the written file gives.
struct Saved {
    Json before;
    std::vector<Change> changes;
    Json after;
};

Saved writeChanged(const Options& options, const std::string& target, const std::string& shown,
                   const Output& out) {
    const auto file = openSettings(options.kind, options.path, out);
    Saved saved{file->content(out), changesFrom(options.settings, *file, shown, out), Json::object()};
    makeChanges(saved.changes, *file, shown, out);
    if (!file->saveOver(target)) {
        throw unusable("the file cannot be written", shown, "make room; the file is as it was");
    }
    checkComplete(*file, target, shown);
    const auto written = loadSettings(options.kind, target);
    if (written) saved.after = written->content(out);
    checkKept(saved.changes, saved.after, shown);
    return saved;
}

// What the file held and the writer of the suite leaves out.
std::vector<std::string> lostBy(const Saved& saved) {
    std::vector<std::string> lost;
    for (const auto& [key, value] : saved.before["settings"].items()) {
        const bool isChanged = std::any_of(saved.changes.begin(), saved.changes.end(),
                                           [&key = key](const Change& change) { return change.key == key; });
        if (!isChanged && saved.after["settings"][key] != value) lost.push_back(key);
    }
    for (const auto& [key, value] : saved.before.items()) {
        if (key != "settings" && saved.after[key] != value) lost.push_back(key);
    }
    return lost;
}

void changeFile(const Options& options, Output& out) {
    const std::string shown = out.systemText(options.path.c_str());
    // What isn't there or is no such file is told before a copy is begun; it is read again behind the temporary
    // copy, which keeps other programs from saving it meanwhile.
    openSettings(options.kind, options.path, out);
    Saved saved;
    const std::string backup = saveProtected(options.path, shown, [&](const std::string& temporary) {
        saved = writeChanged(options, temporary, shown, out);
    });
    Json rows = Json::array();
    for (const Change& change : saved.changes) {
        rows.push_back({{"setting", change.key}, {"before", change.before}, {"after", change.after}});
    }
    out.print({{"file", shown}, {"backup", out.systemText(backup.c_str())}, {"changed", std::move(rows)}});
    for (const std::string& key : lostBy(saved)) {
        out.report(Problem(ExitCode::Good, "saving does not keep " + key, shown,
                           "take it from the backup copy if it is needed"));
    }
}

} // namespace

void addSettingsCommand(CLI::App& program, Request& request, SettingsKind kind, const char* word,
                        const char* description) {
    CLI::App* command = program.add_subcommand(word, description);
    const auto options = std::make_shared<Options>(Options{kind, {}, {}});
    command->add_option("FILE", options->path, "The file of " + inWords(kind))->required();
    command
        ->add_option("--set", options->settings, "Settings to change; all of them, or none if one is refused")
        ->type_name("KEY=VALUE");
    finishCommand(*command, request, [options](Output& out) {
        const auto work = options->settings.empty() ? showFile : changeFile;
        work(*options, out);
    });
}

} // namespace tool
