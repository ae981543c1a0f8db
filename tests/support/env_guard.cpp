#include "tests/support/env_guard.h"

#include <cstdlib>
#include <utility>

namespace bexa::test {
namespace {

std::optional<std::string> valueOf(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
}

void change(const std::string& name, const std::optional<std::string>& value) {
    if (value)
        ::setenv(name.c_str(), value->c_str(), 1);
    else
        ::unsetenv(name.c_str());
}

} // namespace

EnvGuard::EnvGuard(std::string name, const std::optional<std::string>& value)
    : name_(std::move(name)),
      before_(valueOf(name_)) {
    change(name_, value);
}

EnvGuard::~EnvGuard() {
    change(name_, before_);
}

void EnvGuard::set(const std::string& value) const {
    change(name_, value);
}

void EnvGuard::unset() const {
    change(name_, std::nullopt);
}

} // namespace bexa::test
