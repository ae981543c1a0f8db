#include "bexa/batch/reload_resource.h"

#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/foundation/ycore/text_compare.h"
#include "bexa/foundation/ygeneral/yenviron.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/yrsc/keyed_file.h"
#include "bexa/store/file.h"
#include "bexa/store/install_roots.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <unordered_set>
#include <variant>

using bexa::detail::RscText;

namespace {

constexpr char resourceName[] = "reload";

enum Origin : int { NoFile = 0, SystemFile = 1, UserFile = 2, NamedFile = 3 };

// Null if the value is missing or no text.
const char* textOf(const YioRscValue* value) {
    return value ? value->string() : nullptr;
}

} // namespace

struct BexReloadResource::Setting {
    // A text. Where the key is missing it is `otherwise`, which also stands in the file for an empty text.
    struct Text {
        YString BexReloadResource::*field;
        const char* otherwise;
    };
    // A table of names, each kept once.
    struct Names {
        YString_Array BexReloadResource::*field;
    };
    // A list of `least` members, or of one more; where that is left out it is `last`.
    struct Members {
        YString_Array BexReloadResource::*field;
        unsigned least;
        const char* last;
    };
    // Set by the word "yes".
    struct Yes {
        unsigned long BexReloadResource::*field;
    };

    const char* key;
    std::variant<Text, Names, Members, Yes> form;
    int written; // its place in the file, from 1 on; `never` is read only
};

namespace {

constexpr int never = 0;

} // namespace

// In the order of reading. To add a setting: a row here, its field and its reader in the class.
// clang-format off
constexpr BexReloadResource::Setting BexReloadResource::settings_[] = {
    // key                     form                                                                   written
    {"compRefmode",            Setting::Text{&BexReloadResource::compRefmode_, "ALL"},                2},
    {"pinRefmode",             Setting::Text{&BexReloadResource::pinRefmode_, "ALL"},                 3},
    {"compProperty",           Setting::Names{&BexReloadResource::compProperty_},                     4},
    {"pinProperty",            Setting::Names{&BexReloadResource::pinProperty_},                      5},
    {"noMountReload",          Setting::Text{&BexReloadResource::noMountReload_, "NO"},               1},
    {"writeEmptyProperty",     Setting::Text{&BexReloadResource::writeEmptyProperty_, "YES"},         6},
    {"writeEmptyPinProperty",  Setting::Text{&BexReloadResource::writeEmptyPinProperty_, "YES"},      7},
    {"dispPartName",           Setting::Members{&BexReloadResource::dispPartName_, 1, "partName"},    8},
    {"skipCompByProp",         Setting::Members{&BexReloadResource::skipCompByProp_, 2, "always"},    9},
    // Kept on purpose: a saved file lacks these two.
    {"checkSymbolPinMatching", Setting::Yes{&BexReloadResource::checkSymbolPinMatching_},             never},
    {"checkSymbolPinKey",      Setting::Text{&BexReloadResource::checkSymbolPinKey_, ""},             never},
};
// clang-format on

namespace {

void writeSetting(RscText& file, const char* key, const char* value) {
    file.text(key).text(": ").text(value).text("\n");
}

void writeNames(RscText& file, const char* key, const YString_Array& names) {
    file.text(key).text("\n{\n");
    for (int i = 0; i < names.size(); ++i) file.text("\t").text(names.at(i).view()).text("\n");
    file.text("}\n");
}

void writeMembers(RscText& file, const char* key, const YString_Array& members) {
    file.text(key).text(": ( \n");
    for (int i = 0; i < members.size(); ++i) file.text(members.at(i).view()).text(" ");
    file.text(")\n");
}

} // namespace

unsigned long BexReloadResource::open(const char* path) {
    if (!path) return load();
    const YString named = YEnviron::substituteByEnvs(path, nullptr, 0, 1);
    return loadfile(named);
}

unsigned long BexReloadResource::load() {
    loadmap_ = UserFile;
    pathname_ = YPathName(BexPersonalFile().fileName(BexPersonalFile::Resource, resourceName)).expand();
    if (!Yaccess(pathname_, 0)) {
        loadmap_ = SystemFile;
        pathname_ = YPathName(BexSysFile::fileNameLang(resourceName, BexSysFile::InfoResource)).expand();
    }
    return Yaccess(pathname_, 0) ? readAll() : foundNothing();
}

unsigned long BexReloadResource::loadfile(const char* path) {
    loadmap_ = NamedFile;
    pathname_ = YPathName(path).expand();
    return Yaccess(path, 0) ? readAll() : foundNothing();
}

unsigned long BexReloadResource::readAll() {
    isValid_ = isLoadOK_ = 1;
    const YioRscFile file(pathname_);
    for (int index = 0; index < static_cast<int>(std::size(settings_)); ++index) {
        if (!readParameter(file, index)) isLoadOK_ = 0;
    }
    return 1;
}

unsigned long BexReloadResource::foundNothing() {
    loadmap_ = NoFile;
    pathname_ = "";
    isValid_ = isLoadOK_ = 0;
    return 0;
}

unsigned long BexReloadResource::readParameter(const YioRscFile& file, int index) {
    const Setting& setting = settings_[index];
    const std::unique_ptr<YioRscValue> value(file.value(setting.key));
    if (!value) {
        setMissing(setting);
        return 0;
    }
    switch (value->kind()) {
    case YioRscValue::KindTable: return takeTable(setting, *value->table());
    case YioRscValue::KindList: return takeList(setting, *value->list());
    default: return takeText(setting, value->string());
    }
}

void BexReloadResource::setMissing(const Setting& setting) {
    if (const auto* text = std::get_if<Setting::Text>(&setting.form)) this->*text->field = text->otherwise;
    if (const auto* names = std::get_if<Setting::Names>(&setting.form)) (this->*names->field).removeAll();
    if (const auto* members = std::get_if<Setting::Members>(&setting.form))
        (this->*members->field).removeAll();
    if (const auto* yes = std::get_if<Setting::Yes>(&setting.form)) this->*yes->field = 0;
}

bool BexReloadResource::takeText(const Setting& setting, const char* text) {
    if (const auto* whole = std::get_if<Setting::Text>(&setting.form)) {
        this->*whole->field = text;
        return true;
    }
    const auto* yes = std::get_if<Setting::Yes>(&setting.form);
    if (yes && Ystricmp(text, "yes") == 0) this->*yes->field = 1;
    return yes != nullptr;
}

// A row without a text ends the table, even where nothing is taken of it; what stands before is kept.
bool BexReloadResource::takeTable(const Setting& setting, const YioRscTable& table) {
    const auto* names = std::get_if<Setting::Names>(&setting.form);
    std::unordered_set<std::string> known;
    for (int i = 0; names && i < (this->*names->field).size(); ++i) {
        known.emplace((this->*names->field).at(i).view());
    }
    for (unsigned row = 0; row < table.rowCount(); ++row) {
        const char* text = textOf(table.value(row, 0));
        if (!text) return false;
        if (names && known.emplace(text).second) (this->*names->field).append(YString(text));
    }
    return true;
}

// A list where none belongs is passed over.
bool BexReloadResource::takeList(const Setting& setting, const YioRscList& list) {
    const auto* members = std::get_if<Setting::Members>(&setting.form);
    if (!members) return true;
    if (list.count() < members->least || list.count() > members->least + 1) return false;
    YString_Array& field = this->*members->field;
    for (unsigned i = 0; i < list.count(); ++i) field.append(YString(textOf(list.value(i))));
    if (list.count() == members->least) field.append(YString(members->last));
    return true;
}

const char* BexReloadResource::checkSymbolPinKey() const {
    return checkSymbolPinKey_.length() != 0 ? static_cast<const char*>(checkSymbolPinKey_) : nullptr;
}

const BexReloadResource::Setting& BexReloadResource::writtenAt(int place) {
    return *std::ranges::find(settings_, place, &Setting::written);
}

unsigned long BexReloadResource::save() {
    constexpr int last = std::ranges::max(settings_, {}, &Setting::written).written;
    static_assert(last + std::ranges::count(settings_, never, &Setting::written) == std::size(settings_));
    RscText file;
    for (int place = 1; place <= last; ++place) {
        const Setting& setting = writtenAt(place);
        if (const auto* text = std::get_if<Setting::Text>(&setting.form)) {
            const YString& value = this->*text->field;
            writeSetting(file, setting.key,
                         value.length() != 0 ? static_cast<const char*>(value) : text->otherwise);
        }
        if (const auto* names = std::get_if<Setting::Names>(&setting.form)) {
            writeNames(file, setting.key, this->*names->field);
        }
        if (const auto* members = std::get_if<Setting::Members>(&setting.form)) {
            writeMembers(file, setting.key, this->*members->field);
        }
    }
    return file.writeTo(BexPersonalFile().fileName(BexPersonalFile::Resource, resourceName));
}
