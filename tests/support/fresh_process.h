#pragma once

#include <string>

namespace bexa::test {

// For what the library reads once, when it is loaded. True in a process that was started in this locale (`LC_ALL`,
// with no `YLANG`). Elsewhere it starts the test program anew in that locale, for the running test alone, expects
// the test to pass there, and returns false.
//     if (!startedInLocale("ja_JP.SJIS")) return;
bool startedInLocale(const std::string& locale);

} // namespace bexa::test
