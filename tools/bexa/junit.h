#pragma once

#include "tools/bexa/check_walk.h"
#include "tools/bexa/finding.h"

#include <span>
#include <string>
#include <vector>

namespace tool {

// The findings as build servers read them: a test suite for each circuit, a test case for each check, which fails with
// all that the check has found there. Always well-formed UTF-8, without times, so equal findings give equal files.
std::string junitOf(const std::vector<ReachedCircuit>& circuits, std::span<const char* const> checks,
                    const Findings& findings);

} // namespace tool
