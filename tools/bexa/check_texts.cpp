#include "tools/bexa/check_rules.h"
#include "tools/bexa/problem.h"

#include "bexa/foundation/sjis_check.h"

#include <string>

namespace tool {
namespace {

void checkTextsIn(const std::string& directory, Findings& findings) {
    for (const std::string& name : plainFilesIn(directory)) {
        const std::string path = directory + '/' + name;
        unsigned code = 0;
        if (name.ends_with(".txt") && !BexSjisCheck::sjisTextFile(path.c_str(), code)) {
            findings.add(Fault::BadText, path);
        }
    }
}

} // namespace

void checkTexts(const ReachedCircuit& circuit, Findings& findings) {
    for (const char* part : {"", "/log", "/ext", "/drc", "/frame"}) {
        try {
            checkTextsIn(circuit.path + part, findings);
        } catch (const Problem&) {
            continue; // nothing there to be read
        }
    }
}

} // namespace tool
