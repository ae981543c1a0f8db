#pragma once

#include <exception>
#include <string>

namespace tool {

// What the program tells its caller with its end. A script may rely on the numbers.
enum class ExitCode {
    Good = 0,
    Wrong = 1,    // a name or a design that is wrong
    Unusable = 2, // wrong use, a file that can't be read, an output that can't be written
};

// One message on stderr: what is the matter, where, and what to do about it.
// Thrown it ends the command; given to Output::report it is a finding and the work goes on.
class Problem : public std::exception {
public:
    Problem(ExitCode code, std::string what, std::string where, std::string remedy);

    ExitCode code() const { return code_; }
    const char* what() const noexcept override { return what_.c_str(); }
    // "bexa: WHAT: WHERE: what to do", without a line end.
    std::string message() const;

private:
    ExitCode code_;
    std::string what_;
    std::string where_;
    std::string remedy_;
};

Problem unusable(std::string what, std::string where, std::string remedy);
Problem finding(std::string what, std::string where, std::string remedy);

} // namespace tool
