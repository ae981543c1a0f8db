#include "tests/support/child.h"

#include <grp.h>
#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <utility>

namespace bexa::test {
namespace {

bool becomeNobody() {
    if (::geteuid() != 0) return true;
    const passwd* nobody = ::getpwnam("nobody");
    return nobody && ::setgroups(0, nullptr) == 0 && ::setgid(nobody->pw_gid) == 0 &&
           ::setuid(nobody->pw_uid) == 0;
}

} // namespace

Child::~Child() {
    if (process_) ::waitpid(process_, nullptr, 0);
}

Child::Child(Child&& other) noexcept
    : asNobody_(other.asNobody_),
      variables_(std::move(other.variables_)),
      process_(std::exchange(other.process_, 0)) {}

Child& Child::asNobody() {
    asNobody_ = true;
    return *this;
}

Child& Child::with(std::string name, std::string value) {
    variables_.push_back({std::move(name), std::move(value)});
    return *this;
}

Child& Child::without(std::string name) {
    variables_.push_back({std::move(name), std::nullopt});
    return *this;
}

int Child::run(const std::function<int()>& body) {
    start(body);
    return wait();
}

void Child::start(const std::function<int()>& body) {
    if (process_) throw std::logic_error("this child is running already");
    std::fflush(nullptr);
    const pid_t process = ::fork();
    if (process < 0) throw std::runtime_error("cannot fork");
    if (process == 0) live(body);
    process_ = process;
}

int Child::wait() {
    if (!process_) throw std::logic_error("this child was not started");
    int status = 0;
    while (::waitpid(process_, &status, 0) < 0)
        if (errno != EINTR) throw std::runtime_error("no child to wait for");
    process_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : signalled;
}

// Leaves by _exit: what the parent has to clean up, the child must not.
void Child::live(const std::function<int()>& body) const {
    int status = threw;
    try {
        if (prepare()) status = body();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "child: %s\n", error.what());
    }
    std::fflush(nullptr);
    ::_exit(status);
}

bool Child::prepare() const {
    for (const Variable& variable : variables_) {
        if (variable.value)
            ::setenv(variable.name.c_str(), variable.value->c_str(), 1);
        else
            ::unsetenv(variable.name.c_str());
    }
    if (!asNobody_ || becomeNobody()) return true;
    std::fputs("child: cannot become nobody\n", stderr);
    return false;
}

} // namespace bexa::test
