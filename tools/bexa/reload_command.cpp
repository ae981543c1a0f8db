#include "tools/bexa/command.h"
#include "tools/bexa/text_file.h"

#include "bexa/batch/reload_resource.h"
#include "bexa/foundation/yrsc/keyed_file.h"

#include <memory>
#include <string>

namespace tool {
namespace {

// How a value of the file must look for the library to take it.
struct Key {
    const char* key;
    YioRscValue::Kind kind;
    const char* form;
    unsigned fewest = 0; // members of a list
    unsigned most = 0;
};

// clang-format off
constexpr Key keys[] = {
    {"noMountReload",          YioRscValue::KindText,  "one text"},
    {"compRefmode",            YioRscValue::KindText,  "one text"},
    {"pinRefmode",             YioRscValue::KindText,  "one text"},
    {"writeEmptyProperty",     YioRscValue::KindText,  "one text"},
    {"writeEmptyPinProperty",  YioRscValue::KindText,  "one text"},
    {"checkSymbolPinMatching", YioRscValue::KindText,  "one text"},
    {"checkSymbolPinKey",      YioRscValue::KindText,  "one text"},
    {"compProperty",           YioRscValue::KindTable, "a table of names"},
    {"pinProperty",            YioRscValue::KindTable, "a table of names"},
    {"dispPartName",           YioRscValue::KindList,  "a list of 1 or 2 texts", 1, 2},
    {"skipCompByProp",         YioRscValue::KindList,  "a list of 2 or 3 texts", 2, 3},
};
// clang-format on

bool isTableOfTexts(const YioRscTable& table) {
    for (unsigned row = 0; row < table.rowCount(); ++row) {
        if (table.value(row, 0)->string() == nullptr) return false;
    }
    return true;
}

bool fits(YioRscValue& value, const Key& key) {
    if (value.kind() != key.kind) return false;
    if (const YioRscTable* table = value.table()) return isTableOfTexts(*table);
    const YioRscList* list = value.list();
    return list == nullptr || (list->count() >= key.fewest && list->count() <= key.most);
}

// The library passes over what it doesn't understand, without a word.
void reportFaults(const std::string& path, const std::string& shown, Output& out) {
    const YioRscFile file(path.c_str());
    bool isAnyThere = false;
    for (const Key& key : keys) {
        const std::unique_ptr<YioRscValue> value(file.value(key.key));
        isAnyThere = isAnyThere || value;
        if (!value || fits(*value, key)) continue;
        out.report(finding(std::string("the setting ") + key.key + " is not read whole", shown,
                           std::string("write it as ") + key.form));
    }
    if (isAnyThere) return;
    out.report(finding("none of the settings stands in the file", shown,
                       "check that it is a reload resource; the built-in settings are shown"));
}

Json textsOf(const YString_Array& texts, const Output& out) {
    Json all = Json::array();
    for (int i = 0; i < texts.size(); ++i) all.push_back(out.resourceText(texts.at(i)));
    return all;
}

Json settingsOf(const BexReloadResource& reload, const Output& out) {
    return {{"noMountReload", out.resourceText(reload.noMountReload())},
            {"compRefmode", out.resourceText(reload.compRefmode())},
            {"pinRefmode", out.resourceText(reload.pinRefmode())},
            {"writeEmptyProperty", out.resourceText(reload.writeEmptyProperty())},
            {"writeEmptyPinProperty", out.resourceText(reload.writeEmptyPinProperty())},
            {"checkSymbolPinMatching", reload.checkSymbolPinMatching() != 0},
            {"checkSymbolPinKey", out.resourceText(reload.checkSymbolPinKey())}};
}

void showReload(const std::string& path, Output& out) {
    const std::string shown = out.systemText(path.c_str());
    BexReloadResource reload;
    if (!reload.open(path.c_str())) throw cannotRead(shown);
    // Variables in the path have been replaced. The library takes a file that can't be read for an empty one.
    const std::string leadsTo(reload.pathname());
    contentOf(leadsTo, shown);
    reportFaults(leadsTo, shown, out);
    out.print({{"file", shown},
               {"complete", reload.isLoadOK() != 0},
               {"settings", settingsOf(reload, out)},
               {"compProperty", textsOf(reload.compProperty(), out)},
               {"pinProperty", textsOf(reload.pinProperty(), out)},
               {"dispPartName", textsOf(reload.dispPartName(), out)},
               {"skipCompByProp", textsOf(reload.skipCompByProp(), out)}});
}

} // namespace

void addReloadCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("reload", "Shows the settings of the reload in a file");
    const auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "A reload resource")->required();
    finishCommand(*command, request, [path](Output& out) { showReload(*path, out); });
}

} // namespace tool
