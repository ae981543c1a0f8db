#include "tools/bexa/junit.h"

#include "tools/bexa/text_coding.h"

#include <string_view>

namespace tool {
namespace {

// How a byte stands in XML; empty if it stands for itself.
std::string_view escapeOf(unsigned char byte) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD"; // XML has no place for control characters
    switch (byte) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\t': return "&#9;";
    case '\n': return "&#10;";
    case '\r': return "&#13;";
    default: return byte < ' ' || byte == 0x7F ? replacement : std::string_view();
    }
}

// The two characters of the first plane that XML forbids, U+FFFE and U+FFFF.
void replaceForbidden(std::string& text) {
    for (std::size_t at = text.find("\xEF\xBF"); at != std::string::npos;
         at = text.find("\xEF\xBF", at + 3)) {
        if (static_cast<unsigned char>(text[at + 2]) >= 0xBE) text[at + 2] = '\xBD';
    }
}

std::string escaped(std::string_view text) {
    std::string utf8 = isUtf8(text) ? std::string(text) : toUtf8(text, libraryCoding());
    replaceForbidden(utf8);
    std::string result;
    for (const char c : utf8) {
        const std::string_view escape = escapeOf(static_cast<unsigned char>(c));
        if (escape.empty())
            result += c;
        else
            result += escape;
    }
    return result;
}

std::string attribute(std::string_view name, std::string_view value) {
    return ' ' + std::string(name) + "=\"" + escaped(value) + '"';
}

std::string counts(std::size_t tests, std::size_t failures) {
    return attribute("tests", std::to_string(tests)) + attribute("failures", std::to_string(failures)) +
           attribute("errors", "0");
}

using FindingsOfCase = std::vector<const Finding*>;

FindingsOfCase findingsOf(const Findings& findings, const std::string& circuit, std::string_view check) {
    FindingsOfCase result;
    for (const Finding& finding : findings.all()) {
        if (finding.circuit == circuit && finding.check == check) result.push_back(&finding);
    }
    return result;
}

const char* gravest(const FindingsOfCase& findings) {
    for (const Finding* finding : findings) {
        if (finding->texts().severity == Severity::Error) return wordOf(Severity::Error);
    }
    return wordOf(Severity::Warning);
}

std::string failure(const FindingsOfCase& findings) {
    const std::string message =
        findings.size() == 1 ? findings.front()->what() : std::to_string(findings.size()) + " findings";
    std::string text =
        "      <failure" + attribute("message", message) + attribute("type", gravest(findings)) + ">\n";
    for (const Finding* finding : findings) {
        text += escaped(std::string(wordOf(finding->texts().severity)) + ": " + finding->what() + ": " +
                        finding->where + ": " + finding->texts().remedy) +
                '\n';
    }
    return text + "      </failure>\n";
}

struct Piece {
    std::string text;
    std::size_t failures = 0;
};

Piece suite(const std::string& circuit, std::span<const char* const> checks, const Findings& findings) {
    Piece cases;
    for (const char* check : checks) {
        const FindingsOfCase found = findingsOf(findings, circuit, check);
        cases.text += "    <testcase" + attribute("classname", circuit) + attribute("name", check);
        if (!found.empty()) ++cases.failures;
        cases.text += found.empty() ? "/>\n" : ">\n" + failure(found) + "    </testcase>\n";
    }
    const std::string head =
        "  <testsuite" + attribute("name", circuit) + counts(checks.size(), cases.failures);
    return {head + ">\n" + cases.text + "  </testsuite>\n", cases.failures};
}

} // namespace

std::string junitOf(const std::vector<ReachedCircuit>& circuits, std::span<const char* const> checks,
                    const Findings& findings) {
    Piece suites;
    for (const ReachedCircuit& circuit : circuits) {
        const Piece one = suite(circuit.path, checks, findings);
        suites.text += one.text;
        suites.failures += one.failures;
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites" + attribute("name", "bexa check") +
           counts(circuits.size() * checks.size(), suites.failures) + ">\n" + suites.text + "</testsuites>\n";
}

} // namespace tool
