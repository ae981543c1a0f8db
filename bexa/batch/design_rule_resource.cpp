#include "bexa/batch/design_rule_resource.h"

#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/ycore/file_access.h"
#include "bexa/foundation/ycore/text_compare.h"
#include "bexa/foundation/yrsc/keyed_file.h"
#include "bexa/store/install_roots.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string_view>
#include <variant>

using bexa::detail::RscText;

namespace {

constexpr char resourceName[] = "drccheck";

struct CheckNames {
    int check;
    const char* key;
    const char* name;
};

// In the order of their numbers, which is that of writing.
// clang-format off
constexpr CheckNames checks[] = {
    {DrcResource::OpenPin,            "OpenPin",            "pin"},
    {DrcResource::OpenNode,           "OpenNode",           "node"},
    {DrcResource::FanOut,             "FanOut",             "fanout"},
    {DrcResource::NearNet,            "NearNet",            "nearnet"},
    {DrcResource::NetlabelPosition,   "NetlabelPosition",   "netviewer"},
    {DrcResource::DuplicateReference, "DuplicateReference", "refdup"},
    {DrcResource::DuplicateNetLabel,  "DuplicateNetLabel",  "net"},
    {DrcResource::DuplicateProperty,  "DuplicateProperty",  "dprop"},
    {DrcResource::LackingProperty,    "LackingProperty",    "eprop"},
    {DrcResource::ShortNet,           "ShortNet",           "netshort"},
    {DrcResource::UnmatchBus,         "UnmatchBus",         "bus"},
    {DrcResource::PowerGround,        "PowerGround",        "powerground"},
};
// clang-format on
constexpr int checkCount = static_cast<int>(std::size(checks));

constexpr bool checksStandAtTheirNumbers() {
    for (int i = 0; i < checkCount; ++i) {
        if (checks[i].check != i) return false;
    }
    return true;
}
static_assert(checksStandAtTheirNumbers());

// A row of a check's table, `( word value )` or `( word value second )`. Null where there is no text.
struct Row {
    explicit Row(const YioRscList& list) : word(text(list, 0)), value(text(list, 1)), second(text(list, 2)) {}

    static const char* text(const YioRscList& list, unsigned index) {
        const YioRscValue* member = list.value(index);
        return member ? member->string() : nullptr;
    }

    const char* word;
    const char* value;
    const char* second;
};

bool isOn(const char* value) {
    return Ystricmp(value, "on") == 0;
}

void writeRow(RscText& file, std::string_view word, std::string_view value) {
    file.text("\t( ").text(word).text("\t").text(value).text(" )\n");
}

// Empty for a check that a caller cut off.
std::string_view textOf(const YString_Array& texts, int check) {
    return check < texts.size() ? texts.at(check).view() : std::string_view();
}

// The forms of values. `take` stores that of a row, false if the row lacks something; `write` writes the rows.

// "ON" or "OFF" for each check.
struct CheckSwitch {
    YString_Array DrcResource::*field;

    bool take(DrcResource& settings, int check, const Row& row) const {
        (settings.*field)[check] = isOn(row.value) ? "ON" : "OFF";
        return true;
    }
    void write(RscText& file, const DrcResource& settings, int check, const char* word) const {
        writeRow(file, word, textOf(settings.*field, check));
    }
};

// A text for each check.
struct CheckText {
    YString_Array DrcResource::*field;

    bool take(DrcResource& settings, int check, const Row& row) const {
        (settings.*field)[check] = row.value;
        return true;
    }
    void write(RscText& file, const DrcResource& settings, int check, const char* word) const {
        writeRow(file, word, textOf(settings.*field, check));
    }
};

struct Text {
    YString DrcResource::*field;

    bool take(DrcResource& settings, int, const Row& row) const {
        settings.*field = row.value;
        return true;
    }
    void write(RscText& file, const DrcResource& settings, int, const char* word) const {
        writeRow(file, word, (settings.*field).view());
    }
};

struct OnOff {
    unsigned long DrcResource::*field;

    bool take(DrcResource& settings, int, const Row& row) const {
        settings.*field = isOn(row.value);
        return true;
    }
    void write(RscText& file, const DrcResource& settings, int, const char* word) const {
        writeRow(file, word, settings.*field ? "ON" : "OFF");
    }
};

// A row for each text.
struct Texts {
    YString_Array DrcResource::*field;

    bool take(DrcResource& settings, int, const Row& row) const {
        (settings.*field).append(YString(row.value));
        return true;
    }
    void write(RscText& file, const DrcResource& settings, int, const char* word) const {
        const YString_Array& texts = settings.*field;
        for (int i = 0; i < texts.size(); ++i) writeRow(file, word, texts.at(i).view());
    }
};

// A row for each pair.
struct Pairs {
    YString_Array DrcResource::*names;
    YString_Array DrcResource::*values;

    bool take(DrcResource& settings, int, const Row& row) const {
        if (!row.second) return false;
        (settings.*names).append(YString(row.value));
        (settings.*values).append(YString(row.second));
        return true;
    }
    void write(RscText& file, const DrcResource& settings, int, const char* word) const {
        const YString_Array& first = settings.*names;
        const YString_Array& second = settings.*values;
        for (int i = 0; i < std::min(first.size(), second.size()); ++i) {
            file.text("\t( ").text(word).text("\t").text(first.at(i).view());
            file.text("\t").text(second.at(i).view()).text(" )\n");
        }
    }
};

constexpr int everyCheck = -1;

enum class Use { ReadAndWritten, OnlyRead, OnlyWritten };

// A word that may stand in the rows of a check.
struct Parameter {
    int check;
    const char* word;
    std::variant<CheckSwitch, CheckText, Text, OnOff, Texts, Pairs> form;
    Use use = Use::ReadAndWritten;

    bool isOf(int index) const { return check == everyCheck || check == index; }
};

// In the order of writing.
// clang-format off
constexpr Parameter parameters[] = {
    {everyCheck,                      "switch",     CheckSwitch{&DrcResource::checkSwitch}},
    {everyCheck,                      "color",      CheckText{&DrcResource::checkColor}},
    {DrcResource::OpenPin,            "pinKind",    Texts{&DrcResource::pinKind}},
    {DrcResource::FanOut,             "count",      Text{&DrcResource::fanoutCount}},
    {DrcResource::NearNet,            "clearance",  Text{&DrcResource::nearNetClearance}},
    // Kept on purpose: a saved file doesn't say it, so it is on for whoever reads that.
    {DrcResource::NearNet,            "connectPin", OnOff{&DrcResource::connectPin},     Use::OnlyRead},
    {DrcResource::NetlabelPosition,   "clearance",  Text{&DrcResource::labelClearance}},
    // Kept on purpose: every load leaves the mode as it was, "pinNumber" in a new object.
    {DrcResource::DuplicateReference, "mode",       Text{&DrcResource::refdupMode},      Use::OnlyWritten},
    {DrcResource::DuplicateProperty,  "focus",      Text{&DrcResource::propertyFocus}},
    {DrcResource::LackingProperty,    "focus",      Pairs{&DrcResource::lackingFocusName, &DrcResource::lackingFocusValue}},
};
// clang-format on

// Null for a word that isn't read in this check.
const Parameter* readParameter(int check, const char* word) {
    const auto* found = std::ranges::find_if(parameters, [&](const Parameter& row) {
        return row.isOf(check) && row.use != Use::OnlyWritten && Ystricmp(word, row.word) == 0;
    });
    return found == std::end(parameters) ? nullptr : found;
}

// A row that lacks its value and a word that isn't read here are passed over.
bool takeRow(DrcResource& settings, int check, const YioRscList& list) {
    const Row row(list);
    const Parameter* parameter = row.word && row.value ? readParameter(check, row.word) : nullptr;
    if (!parameter) return true;
    return std::visit([&](const auto& form) { return form.take(settings, check, row); }, parameter->form);
}

void writeCheck(RscText& file, const DrcResource& settings, int check) {
    file.text(checks[check].key).text(" {\n");
    for (const Parameter& row : parameters) {
        if (!row.isOf(check) || row.use == Use::OnlyRead) continue;
        std::visit([&](const auto& form) { form.write(file, settings, check, row.word); }, row.form);
    }
    file.text("}\n");
}

YString userFile() {
    return BexPersonalFile().fileName(BexPersonalFile::Resource, resourceName);
}

} // namespace

DrcResource::DrcResource() {
    for (const CheckNames& check : checks) {
        checkName.append(YString(check.name));
        checkSwitch.append(YString("ON"));
        checkColor.append(YString("2"));
    }
}

DrcResource& DrcResource::operator=(const DrcResource& other) {
    checkSwitch = other.checkSwitch;
    checkColor = other.checkColor;
    pinKind = other.pinKind;
    fanoutCount = other.fanoutCount;
    nearNetClearance = other.nearNetClearance;
    connectPin = other.connectPin;
    labelClearance = other.labelClearance;
    propertyFocus = other.propertyFocus;
    lackingFocusName = other.lackingFocusName;
    lackingFocusValue = other.lackingFocusValue;
    refdupMode = other.refdupMode;
    return *this;
}

unsigned long DrcResource::load() {
    YString path = userFile();
    if (!Yaccess(path, 0)) path = BexSysFile::fileName(resourceName, BexSysFile::InfoResource);
    return load(path);
}

unsigned long DrcResource::load(const char* path) {
    if (!Yaccess(path, 0)) return 0;
    const YioRscFile file(path);
    for (int index = 0; index < checkCount; ++index) readSetting(file, index);
    return 1;
}

unsigned long DrcResource::readSetting(const YioRscFile& file, int index) {
    const std::unique_ptr<YioRscValue> value(file.value(checks[index].key));
    const YioRscTable* table = value ? value->table() : nullptr;
    if (!table) return 0;
    for (unsigned row = 0; row < table->rowCount(); ++row) {
        YioRscValue* cell = table->value(row, 0);
        const YioRscList* list = cell ? cell->list() : nullptr;
        if (!list || !takeRow(*this, index, *list)) return 0;
    }
    return 1;
}

unsigned long DrcResource::save() {
    RscText file;
    for (int check = 0; check < checkCount; ++check) writeCheck(file, *this, check);
    return file.writeTo(userFile());
}
