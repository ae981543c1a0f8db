#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/rsc_value_readers.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ycore/text_compare.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"
#include "bexa/store/path_spelling.h"
#include "bexa/store/rcpath_file.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

using bexa::detail::backupMark;
using bexa::detail::equalIgnoringCase;
using bexa::detail::temporaryMark;
using bexa::detail::viewOf;

namespace {

// How the path of a file is made from that of the circuit, and how a path shows its kind.
enum class Naming {
    Joined,     // path/name
    Circuit,    // the circuit itself, known by the suffix
    Beside,     // the suffix in place of the circuit's
    Suffixed,   // path/name with the suffix in place of its own
    Fixed,      // path/word
    Directory,  // path/word, and the name below it
    ByPathList, // where the resource path list says
};

// A row for each kind, in the order of the numbers. To add a row: an enumerator at the end of BexDataFileType.
struct Kind {
    BexDataFile::Type type;
    Naming naming;
    const char* mark; // the suffix, or the word of a file without suffix

    // Whether a path is of this kind by its last component and the suffix of that.
    bool matches(std::string_view component, std::string_view suffix) const {
        return *mark != '\0' && equalIgnoringCase(mark, suffix.empty() ? component : suffix);
    }
};

// clang-format off
constexpr Kind kinds[] = {
    {BexAnyFile,        Naming::Joined,     ""},
    {BexCircuitFile,    Naming::Circuit,    ".cir"},
    {BexSymbolFile,     Naming::Suffixed,   ".smb"},
    {BexBlockDataFile,  Naming::Beside,     ".blk"},
    {BexSheetFile,      Naming::Suffixed,   ".sht"},
    {BexSheetNetFile,   Naming::Suffixed,   ".net"},
    {BexDrcDir,         Naming::Directory,  "drc"},
    {BexInstanceFile,   Naming::Fixed,      "instnc"},
    {BexResourceByPath, Naming::ByPathList, ""},
    {BexLogDir,         Naming::Directory,  "log"},
    {BexExtDir,         Naming::Directory,  "ext"},
    {BexRcpathFile,     Naming::Fixed,      "rcpath"},
    {BexFrameDir,       Naming::Directory,  "frame"},
    {BexEnetdbFile,     Naming::Fixed,      "enetdb"},
};
// clang-format on

constexpr bool standAtTheirNumber() {
    return std::all_of(std::begin(kinds), std::end(kinds),
                       [](const Kind& kind) { return &kind == kinds + kind.type; });
}
static_assert(standAtTheirNumber());

// A number beyond the table means what BexAnyFile means, inside a circuit.
const Kind& kindOf(BexDataFile::Type type) {
    const auto* row = std::find_if(std::begin(kinds), std::end(kinds),
                                   [type](const Kind& kind) { return kind.type == type; });
    return row == std::end(kinds) ? kinds[BexAnyFile] : *row;
}

// Where the last component begins, separators at the end not counting.
std::size_t lastComponentOf(const YPathName& path) {
    return std::min(path.view().rfind(path.basename().view()), path.view().size());
}

// The path up to the end of its last component, so that a suffix can be put there.
YPathName withoutSeparatorsAtEnd(const YPathName& path) {
    const std::size_t component = path.basename().view().size();
    return component == 0 ? path
                          : YPathName(YString(path.view().substr(0, lastComponentOf(path) + component)));
}

// In place of the suffix that the path has, if any.
YPathName withSuffix(YPathName path, const char* suffix) {
    return path.cutSuffix(nullptr).addSuffix(suffix);
}

struct CloseList {
    void operator()(BexRcpathIO* list) const { BexRcpathIO::close(list, BexCloseDiscard); }
};

// The entry for `name` in the resource path list of a circuit; false if it can't be had.
bool findInPathList(const YPathName& circuit, const char* name, BexRcpath& entry) {
    const YPathName file(circuit, "rcpath");
    const std::unique_ptr<BexRcpathIO, CloseList> list(BexRcpathIO::open(file, BexOpenRead));
    return list && list->rcpath(list->searchRcpath(name), entry);
}

// The value of the variable that a path begins with, and what stands behind it. The circuit's own path has a variable
// that isn't in the environment.
// Kept on purpose: the list takes that variable for one of the environment, so it stands for the circuit only where
// nothing stands behind it: unless the environment has one, `$CIRCUIT_PATH/lib` comes here as `/lib`.
YPathName resolveVariable(const YPathName& circuit, std::string_view path) {
    const std::size_t end = std::min(path.find('/'), path.size());
    const std::string variable(path.substr(1, end - 1));
    const std::string rest(path.substr(std::min(end + 1, path.size())));
    const YPathName value = variable == "CIRCUIT_PATH" ? circuit : YPathName(ygetenv(variable.c_str(), 1));
    return {value, rest.c_str()};
}

// The directory of an entry and the name in it. A path that is relative to the circuit or to a variable is packed, any
// other stays as it stands in the list.
YPathName resourceBelow(const YPathName& circuit, const YString& directory, const char* name) {
    switch (directory[0]) {
    case '.': return YPathName(YPathName(circuit.dirname(), directory), name).pack();
    case '$': return YPathName(resolveVariable(circuit, directory.view()), name).pack();
    default: return {directory, name};
    }
}

YPathName resourceByPathList(const YPathName& circuit, const char* name) {
    BexRcpath entry;
    if (!findInPathList(circuit, name, entry)) return {};
    return withSuffix(resourceBelow(circuit, entry.path, name), ".rsc");
}

YPathName nameOf(const YPathName& circuit, const Kind& kind, const char* name) {
    switch (kind.naming) {
    case Naming::Joined: return {circuit, name};
    case Naming::Circuit: return circuit;
    case Naming::Beside: return withSuffix(circuit, kind.mark);
    case Naming::Suffixed: return withSuffix({circuit, name}, kind.mark);
    case Naming::Fixed: return {circuit, kind.mark};
    case Naming::Directory: return {YPathName(circuit, kind.mark), name};
    case Naming::ByPathList: return resourceByPathList(circuit, name);
    }
    return {};
}

YString markedFileName(const char* path, BexDataFile::Type type, const char* name, char mark) {
    if (name) return BexDataFile::fileName(path, type, (mark + std::string(name)).c_str());
    const YPathName file = BexDataFile::fileName(path, type, nullptr);
    if (file.length() == 0) return {};
    std::string marked(file.view());
    marked.insert(lastComponentOf(file), 1, mark);
    return YString(std::string_view(marked));
}

YString addMark(const YPathName& path, char mark) {
    if (path.length() == 0) return {};
    return YPathName(path.dirname(), (mark + std::string(path.basename().view())).c_str());
}

YString takeMark(const YPathName& path, char mark) {
    if (path.length() == 0) return {};
    const YString component = path.basename();
    const bool marked = component[0] == mark;
    return YPathName(path.dirname(), static_cast<const char*>(component) + (marked ? 1 : 0));
}

bool isMarked(const char* path, BexDataFile::Type type, char mark) {
    if (type != BexAnyFile && BexDataFile::fileType(path) != type) return false;
    return YPathName(path).basename()[0] == mark;
}

// The format is that of printf, so a number beyond the range of int comes out negative.
YString numberedName(const char* path, unsigned no, const char* suffix) {
    char name[32];
    std::snprintf(name, sizeof name, "%03d%s", static_cast<int>(no), suffix);
    return BexFile::extChange(YPathName(path, name));
}

} // namespace

BexDataFile::Type BexDataFile::fileType(const char* path) {
    const YPathName component = YPathName(path).basename();
    const std::string_view suffix = viewOf(component.getSuffix());
    for (const Kind& kind : kinds) {
        if (kind.matches(component.view(), suffix)) return kind.type;
    }
    return BexAnyFile;
}

int BexDataFile::access(const char* path, int mode, Type type) {
    if (type != BexAnyFile && fileType(path) != type) return -1;
    return BexFile::access(path, mode);
}

unsigned long BexDataFile::isExist(const char* path, Type type) {
    if (type != BexAnyFile && fileType(path) != type) return 0;
    return BexFile::isExist(path);
}

YString BexDataFile::fileName(const char* path, Type type, const char* name) {
    if (!path || (type != BexAnyFile && fileType(path) != BexCircuitFile)) return {};
    return BexFile::extChange(nameOf(withoutSeparatorsAtEnd(path), kindOf(type), name));
}

YString BexDataFile::tmpFileName(const char* path, Type type, const char* name) {
    return markedFileName(path, type, name, temporaryMark);
}

YString BexDataFile::backupFileName(const char* path, Type type, const char* name) {
    return markedFileName(path, type, name, backupMark);
}

YString BexDataFile::fname2temp(const char* path) {
    return addMark(path, temporaryMark);
}

YString BexDataFile::temp2fname(const char* path) {
    return takeMark(path, temporaryMark);
}

YString BexDataFile::fname2backup(const char* path) {
    return addMark(path, backupMark);
}

YString BexDataFile::backup2fname(const char* path) {
    return takeMark(path, backupMark);
}

unsigned long BexDataFile::isTmpFileName(const char* path, Type type) {
    return isMarked(path, type, temporaryMark);
}

unsigned long BexDataFile::isBackupFileName(const char* path, Type type) {
    return isMarked(path, type, backupMark);
}

int BexDataFile::sheetNo(const char* path) {
    const YPathName component = YPathName(YPathName(path).basename()).cutSuffix(nullptr);
    if (component.length() == 0) return -1;
    const bool marked = component[0] == temporaryMark || component[0] == backupMark;
    return bexa::detail::numberOf(component.view().substr(marked ? 1 : 0));
}

YString BexDataFile::sheetName(const char* path, unsigned no) {
    return numberedName(path, no, ".sht");
}

YString BexDataFile::sheetNetName(const char* path, unsigned no) {
    return numberedName(path, no, ".net");
}

unsigned long BexDataFile::isExPort(const char* name) {
    constexpr std::string_view prefix = "exPort";
    return Ystrnicmp(name, prefix.data(), prefix.size()) == 0;
}

YString BexDataFile::addSuffix(const char* path, const char* suffix) {
    if (!path || !suffix) return path;
    const YPathName file = path;
    const bool same = equalIgnoringCase(viewOf(file.getSuffix()), suffix);
    return BexFile::extChange(same ? file : withSuffix(file, suffix));
}

unsigned long BexDataFile::pathIsExchanged(const char* path) {
    return bexa::detail::isAnchored(viewOf(path));
}
