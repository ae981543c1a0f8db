#pragma once

#include <optional>
#include <string>

namespace bexa::test {

// Changes one environment variable and puts the old state back when it goes.
//     EnvGuard home("HOME", dir.path());
//     EnvGuard noDisplay("DISPLAY", std::nullopt);
class EnvGuard {
public:
    EnvGuard(std::string name, const std::optional<std::string>& value);
    ~EnvGuard();
    EnvGuard(const EnvGuard&) = delete;
    EnvGuard& operator=(const EnvGuard&) = delete;

    void set(const std::string& value) const;
    void unset() const;

private:
    std::string name_;
    std::optional<std::string> before_;
};

} // namespace bexa::test
