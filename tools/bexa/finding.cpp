#include "tools/bexa/finding.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tool {
namespace {

using enum Severity;

// clang-format off
constexpr FaultTexts table[] = {
    {Fault::ListUnreadable,        31001, Error,   "the resource path list cannot be read",                "check that you may read it and that each line is a name, a colon and a directory"},
    {Fault::EntryLeadsNowhere,     31002, Warning, "the entry %s of the resource path list leads to no directory", "correct the entry, or set the variable it begins with"},
    {Fault::ResourceMissing,       31003, Error,   "the circuit resource is not there",                    "put it there, or correct the entry bexdata in the resource path list"},
    {Fault::ResourceUnreadable,    31004, Error,   "the circuit resource cannot be read",                  "check that you may read it, that each table has the right number of columns, and that each value fits its key"},
    {Fault::DefaultOutOfTable,     31005, Warning, "the default %s lies beyond its table",                 "give an index that its table has; until then another takes its place"},
    {Fault::BlockUnreadable,       31006, Error,   "the block file cannot be read",                        "check that you may read it, that pinAssign has 2 columns, and that each row is a number and a name"},
    {Fault::BadPinName,            31007, Error,   "the name (%s) of a pin is no good bundle of signals",  "write it like CLK, D[7], D[0-31], D[0-14-2,20] or A[0-3],B"},
    {Fault::SignalTwice,           31008, Error,   "the signal %s stands at two pins of one block",        "leave it at one of them"},
    {Fault::CircuitOfBlockMissing, 31009, Error,   "the circuit %s of the block is in none of the directories", "put it there, or add its directory to contPathTable of the circuit resource"},
    {Fault::SymbolOfBlockMissing,  31010, Error,   "the symbol %s of the block is in none of the directories", "put it there, or add its directory to symbPathTable of the circuit resource"},
    {Fault::BlockHoldsItself,      31011, Error,   "the block holds itself: %s",                           "take it out of one of these circuits"},
    {Fault::KindsUnreadable,       31012, Error,   "the component kinds cannot be read",                   "check that you may read them, that ComponentKind has 3 columns, and that no other key than those of the headers stands there"},
    {Fault::BadText,               31013, Warning, "the text is no good Shift-JIS",                        "run bexa text check on it, which tells the place"},
    {Fault::CircuitUnreadable,     31014, Error,   "the directory of the circuit cannot be read",          "check that you may read it"},
    {Fault::BadSheetName,          31015, Warning, "the name of a sheet is no number of three digits",     "rename it, and its net file with it, to a number from 001 to 999"},
    {Fault::NetFileMissing,        31016, Warning, "the sheet has no net file",                            "open the sheet in the editor and save it"},
    {Fault::SheetOfNetFileMissing, 31017, Warning, "the net file has no sheet",                            "bring the sheet back, or remove the net file"},
    {Fault::TemporaryCopyLeft,     31018, Warning, "a temporary copy was left behind, its sheet is held by %s", "save what it has that the sheet has not, then remove it"},
    {Fault::BackupCopyLeft,        31019, Warning, "a backup copy was left behind, its sheet is held by %s",    "remove it when the sheet is good"},
    {Fault::LockLeft,              31020, Warning, "the sheet is locked by %s",                            "ask the holder to close it, or run bexa unlock if the lock was left behind"},
    {Fault::LockUnreadable,        31021, Error,   "the lock file cannot be read",                         "check what stands there and that you may read it"},
};
// clang-format on

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < std::size(table); ++i) {
        if (table[i].fault != static_cast<Fault>(i)) return false;
    }
    return static_cast<std::size_t>(Fault::LockUnreadable) + 1 == std::size(table);
}
static_assert(isInOrder(), "a row for each fault, in their order");

} // namespace

const char* wordOf(Severity severity) {
    return severity == Error ? "error" : "warning";
}

const FaultTexts& Finding::texts() const {
    return table[static_cast<std::size_t>(fault)];
}

std::string Finding::what() const {
    constexpr std::string_view mark = "%s";
    std::string text = texts().what;
    const std::size_t at = text.find(mark);
    if (at != std::string::npos) text.replace(at, mark.size(), argument);
    return text;
}

void Findings::begin(std::string circuit, const char* check) {
    circuit_ = std::move(circuit);
    check_ = check;
}

void Findings::add(Fault fault, const std::string& where, const std::string& argument) {
    if (known_.emplace(fault, where, argument).second)
        all_.push_back({fault, circuit_, check_, where, argument});
}

std::size_t Findings::count(Severity severity) const {
    const auto isIt = [severity](const Finding& finding) { return finding.texts().severity == severity; };
    return static_cast<std::size_t>(std::count_if(all_.begin(), all_.end(), isIt));
}

} // namespace tool
