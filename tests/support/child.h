#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace bexa::test {

// A process forked from the test, for what a test cannot do to itself: losing root's rights, living in
// another environment, dying with a lock in its hand, racing with others. The body's value (0 to 255) is the
// exit status. Assertions of the test framework don't travel: report through the status.
//     EXPECT_EQ(Child().asNobody().with("HOME", dir.path()).run([&] { return BexLock(path) ? 0 : 1; }), 0);
class Child {
public:
    // What run and wait return if the body threw, and what they return for a child ended by a signal.
    static constexpr int threw = 254;
    static constexpr int signalled = -1;

    Child() = default;
    // Waits for a child that is still running.
    ~Child();
    Child(Child&& other) noexcept;
    Child& operator=(Child&&) = delete;

    // Permissions don't bite for root, so a test of them runs as the user nobody. A test that isn't run by
    // root stays who it is, for the same effect.
    Child& asNobody();
    Child& with(std::string name, std::string value);
    Child& without(std::string name);

    // Starts the child and waits for its exit status.
    int run(const std::function<int()>& body);
    // The two halves of run, for several children at once.
    void start(const std::function<int()>& body);
    int wait();

private:
    struct Variable {
        std::string name;
        std::optional<std::string> value;
    };

    [[noreturn]] void live(const std::function<int()>& body) const;
    bool prepare() const;

    bool asNobody_ = false;
    std::vector<Variable> variables_;
    pid_t process_ = 0;
};

} // namespace bexa::test
