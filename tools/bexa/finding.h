#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tool {

enum class Severity { Error, Warning };

const char* wordOf(Severity severity);

// What can be wrong with a circuit. To add one: a word here, its row in finding.cpp, and its text under the number of
// the row in the message catalogues of all languages.
enum class Fault : std::size_t {
    ListUnreadable,
    EntryLeadsNowhere,
    ResourceMissing,
    ResourceUnreadable,
    DefaultOutOfTable,
    BlockUnreadable,
    BadPinName,
    SignalTwice,
    CircuitOfBlockMissing,
    SymbolOfBlockMissing,
    BlockHoldsItself,
    KindsUnreadable,
    BadText,
    CircuitUnreadable,
    BadSheetName,
    NetFileMissing,
    SheetOfNetFileMissing,
    TemporaryCopyLeft,
    BackupCopyLeft,
    LockLeft,
    LockUnreadable,
};

struct FaultTexts {
    Fault fault;
    unsigned message; // its number in the message catalogue
    Severity severity;
    const char* what; // with the place of the finding's argument as %s, if it has one
    const char* remedy;
};

// One fault at one place. The texts are as files and the library have them, in no coding that is known.
struct Finding {
    Fault fault;
    std::string circuit;
    const char* check; // which check found it
    std::string where;
    std::string argument;

    const FaultTexts& texts() const;
    // In English, the argument filled in.
    std::string what() const;
};

// What the checks have found, in their order, each fault at a place once: several circuits share an installation.
class Findings {
public:
    // To whom the findings to come belong.
    void begin(std::string circuit, const char* check);
    void add(Fault fault, const std::string& where, const std::string& argument = {});

    const std::vector<Finding>& all() const { return all_; }
    std::size_t count(Severity severity) const;

private:
    std::string circuit_;
    const char* check_ = "";
    std::vector<Finding> all_;
    std::set<std::tuple<Fault, std::string, std::string>> known_;
};

} // namespace tool
