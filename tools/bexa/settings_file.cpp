#include "tools/bexa/settings_file.h"

#include "tools/bexa/circuit_settings.h"
#include "tools/bexa/environment_settings.h"

#include "bexa/circuitrc/datarc.h"
#include "bexa/envrc/envrc.h"
#include "bexa/foundation/ycore/text_compare.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/foundation/yrsc/keyed_file.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <vector>

namespace tool {
namespace {

// One name for the setters of both resources.
bool setIn(BexEnvrc& resource, const char* key, auto value) {
    return resource.set(key, value) != 0;
}
bool setIn(BexDatarc& resource, const char* key, auto value) {
    return resource.set(key, value, 0, 0) != 0;
}

template <class Resource>
struct CloseResource {
    void operator()(Resource* resource) const { Resource::close(resource, BexCloseDiscard); }
};

template <class Resource>
class FileOf : public SettingsFile {
public:
    FileOf(Resource* resource, const char* lastKey) : resource_(resource), lastKey_(lastKey) {}

    Json content(const Output& out) const override {
        Json document = {{"settings", settingsOf(*resource_, out)}};
        addTables(document, *resource_, out);
        return document;
    }
    bool set(const std::string& key, long value) override { return setIn(*resource_, key.c_str(), value); }
    bool set(const std::string& key, double value) override { return setIn(*resource_, key.c_str(), value); }
    bool set(const std::string& key, char value) override { return setIn(*resource_, key.c_str(), value); }
    bool set(const std::string& key, const std::string& value) override {
        return setIn(*resource_, key.c_str(), value.c_str());
    }
    bool saveOver(const std::string& path) const override {
        return resource_->saveAs(path.c_str(), BexSaveOverwrite) != 0;
    }
    const char* lastKey() const override { return lastKey_; }

private:
    std::unique_ptr<Resource, CloseResource<Resource>> resource_;
    const char* lastKey_;
};

class CircuitResourceFile : public FileOf<BexDatarc> {
public:
    using FileOf::FileOf;
    using FileOf::set;

    // The library's setter answers true for any key, and stores these.
    bool set(const std::string& key, const std::string& value) override {
        constexpr const char* keys[] = {"contentsUnvisibleCmpType", "noMountAliasName", "noMountAliasValue"};
        const bool stores = std::any_of(std::begin(keys), std::end(keys), [&key](const char* known) {
            return Ystricmp(known, key.c_str()) == 0;
        });
        return stores && FileOf::set(key, value);
    }
};

class EnvironmentFile : public FileOf<BexEnvrc> {
public:
    using FileOf::FileOf;
    using FileOf::set;

    // The one setting that a file holds as a word and the library sets as a number.
    bool set(const std::string& key, const std::string& value) override {
        if (Ystricmp(key.c_str(), "moveSignMode") != 0) return FileOf::set(key, value);
        const long number = BexEnum::BexMoveSignMode(value.c_str());
        return number >= 0 && FileOf::set(key, number);
    }
};

using File = std::unique_ptr<SettingsFile>;

File loadCircuitResource(const char* path) {
    const YPathName directory = YPathName(path).dirname();
    BexDatarc* resource = BexDatarc::open(path, BexOpenRead, directory);
    if (resource == nullptr) return nullptr;
    return std::make_unique<CircuitResourceFile>(resource, "nplNoMountCompDispStyle");
}

File loadEnvironment(const char* path) {
    BexEnvrc* resource = BexEnvrc::open(path, BexOpenRead, nullptr, nullptr);
    if (resource == nullptr) return nullptr;
    return std::make_unique<EnvironmentFile>(resource, "autoSaveReloadRscFile");
}

struct Kind {
    SettingsKind kind;
    const char* words;
    const char* usualName; // without a suffix
    std::vector<std::string> (*keys)();
    File (*load)(const char* path);
    const char* whyUnreadable;
};

// clang-format off
constexpr Kind kinds[] = {
    {SettingsKind::Circuit,     "circuit resource",      "bexdata", circuitResourceKeys, loadCircuitResource,
     "check that you may read it, that each table has the right number of columns, and that each value fits its key"},
    {SettingsKind::Environment, "environment resource", "bexenv",  environmentKeys,     loadEnvironment,
     "check that you may read it, and that each quoted text ends on its line"},
};
// clang-format on

const Kind& entryOf(SettingsKind kind) {
    return kinds[static_cast<std::size_t>(kind)];
}

long keysIn(const YioRscFile& file, const Kind& kind) {
    const auto keys = kind.keys();
    return std::count_if(keys.begin(), keys.end(), [&file](const std::string& key) {
        return std::unique_ptr<YioRscValue>(file.value(key.c_str())) != nullptr;
    });
}

bool hasUsualName(const std::string& path, const Kind& kind) {
    YPathName name(YPathName(path.c_str()).basename());
    return Ystricmp(name.cutSuffix(), kind.usualName) == 0;
}

} // namespace

std::string inWords(SettingsKind kind) {
    const std::string words = entryOf(kind).words;
    return (words.front() == 'e' ? "an " : "a ") + words;
}

std::optional<SettingsKind> settingsKindOf(const std::string& path) {
    const YioRscFile file(path.c_str());
    const long inCircuit = keysIn(file, entryOf(SettingsKind::Circuit));
    const long inEnvironment = keysIn(file, entryOf(SettingsKind::Environment));
    if (inCircuit != inEnvironment) {
        return inCircuit > inEnvironment ? SettingsKind::Circuit : SettingsKind::Environment;
    }
    for (const Kind& kind : kinds) {
        if (hasUsualName(path, kind)) return kind.kind;
    }
    return std::nullopt;
}

std::unique_ptr<SettingsFile> loadSettings(SettingsKind kind, const std::string& path) {
    return entryOf(kind).load(path.c_str());
}

std::unique_ptr<SettingsFile> openSettings(SettingsKind kind, const std::string& path, const Output& out) {
    const Kind& entry = entryOf(kind);
    const std::string shown = out.systemText(path.c_str());
    if (!BexFile::isExist(path.c_str())) throw unusable("no such file", shown, "check the path");
    if (settingsKindOf(path) != kind) {
        throw unusable("not the file of " + inWords(kind), shown,
                       std::string("give a file that has such settings, or the name ") + entry.usualName +
                           ".rsc");
    }
    File file = loadSettings(kind, path);
    if (!file)
        throw unusable(std::string("the ") + entry.words + " cannot be read", shown, entry.whyUnreadable);
    return file;
}

} // namespace tool
