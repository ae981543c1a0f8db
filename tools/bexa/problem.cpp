#include "tools/bexa/problem.h"

#include <utility>

namespace tool {

Problem::Problem(ExitCode code, std::string what, std::string where, std::string remedy)
    : code_(code),
      what_(std::move(what)),
      where_(std::move(where)),
      remedy_(std::move(remedy)) {}

std::string Problem::message() const {
    return "bexa: " + what_ + ": " + (where_.empty() ? "\"\"" : where_) + ": " + remedy_;
}

Problem unusable(std::string what, std::string where, std::string remedy) {
    return {ExitCode::Unusable, std::move(what), std::move(where), std::move(remedy)};
}

Problem finding(std::string what, std::string where, std::string remedy) {
    return {ExitCode::Wrong, std::move(what), std::move(where), std::move(remedy)};
}

} // namespace tool
