#pragma once

#include "tools/bexa/check_walk.h"
#include "tools/bexa/finding.h"

namespace tool {

// One kind of check, carried out for each circuit.
using CheckCircuit = void (*)(const ReachedCircuit& circuit, Findings& findings);

// To add a check: a source of its own, named after it, and here and in check_command.cpp a line each.
void checkResource(const ReachedCircuit& circuit, Findings& findings);
void checkDefaults(const ReachedCircuit& circuit, Findings& findings);
void checkBlocks(const ReachedCircuit& circuit, Findings& findings);
void checkKinds(const ReachedCircuit& circuit, Findings& findings);
void checkTexts(const ReachedCircuit& circuit, Findings& findings);
void checkSheets(const ReachedCircuit& circuit, Findings& findings);
void checkLeftovers(const ReachedCircuit& circuit, Findings& findings);

} // namespace tool
