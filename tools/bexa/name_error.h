#pragma once

#include "tools/bexa/problem.h"

#include "bexa/names/name_result.h"

#include <string>

namespace tool {

// The result of a name check in words that follow "the name": "breaks the grammar of names".
const char* wordsOf(BexNetNameErrType result);

// The finding that `subject` at `where` is no good name.
Problem badName(const std::string& subject, BexNetNameErrType result, const std::string& where);

std::string quoted(const std::string& text);

} // namespace tool
