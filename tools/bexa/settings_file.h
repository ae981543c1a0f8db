#pragma once

#include "tools/bexa/output.h"

#include <memory>
#include <optional>
#include <string>

namespace tool {

// The two kinds of resource files whose settings have setters by key.
enum class SettingsKind { Circuit, Environment };

// "a circuit resource", "an environment resource".
std::string inWords(SettingsKind kind);

// A resource file in memory.
class SettingsFile {
public:
    SettingsFile() = default;
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;
    virtual ~SettingsFile() = default;

    // A document with the member `settings`, and a member for each table.
    virtual Json content(const Output& out) const = 0;

    // Each takes the keys whose values have its type, in any case of letters. False, with nothing changed, for any
    // other key and for a value that is refused.
    virtual bool set(const std::string& key, long value) = 0;
    virtual bool set(const std::string& key, double value) = 0;
    virtual bool set(const std::string& key, char value) = 0;
    virtual bool set(const std::string& key, const std::string& value) = 0;

    // Writes all of it over the file at `path`. True doesn't mean that there was room for it.
    virtual bool saveOver(const std::string& path) const = 0;
    // Begins the last entry that is written whatever the settings are.
    virtual const char* lastKey() const = 0;
};

// What a file is, told by its keys, and by its name where it has none of either kind. Nothing if it is something
// else or can't be read.
std::optional<SettingsKind> settingsKindOf(const std::string& path);

// Reads a file. Throws a Problem if it isn't there, is of another kind or can't be read.
std::unique_ptr<SettingsFile> openSettings(SettingsKind kind, const std::string& path, const Output& out);

// Reads a file whatever its keys say. Null if it can't be read.
std::unique_ptr<SettingsFile> loadSettings(SettingsKind kind, const std::string& path);

} // namespace tool
