#include "bexa/store/install_roots.h"

#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/ycore/environment.h"
#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/file.h"
#include "bexa/store/path_spelling.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string_view>

using bexa::detail::viewOf;

namespace {

// Empty if the variable isn't set.
YPathName rootOf(const char* variable) {
    return ygetenv(variable, 1);
}

YPathName below(YPathName directory, std::initializer_list<const char*> components) {
    for (const char* component : components) directory += component;
    return directory;
}

bool hasSuffix(const YPathName& path) {
    return *path.getSuffix() != '\0';
}

// The name of a resource, which has ".rsc" unless it brings a suffix.
YPathName resourceName(const char* name) {
    YPathName result = name;
    if (!hasSuffix(result)) result.addSuffix(".rsc");
    return result;
}

YPathName personalDirectory(const char* home, const char* tool) {
    return below(home, {"hk8800", tool});
}

YString temporaryDirectory(const char* tool) {
    for (const char* candidate : {ygetenv("TEMP", 1), "/usr/tmp", "/tmp"}) {
        if (BexFile::isExist(candidate)) return candidate;
    }
    const char* home = ygetenv("HOME", 1);
    if (!home) return ".";
    const YPathName personal = personalDirectory(home, tool);
    return BexFile::isExist(personal) ? personal : YString(".");
}

// A file of a personal directory: its type, its name if that is fixed, and the suffix that is put behind the name.
struct PersonalForm {
    int type;
    const char* name; // null: the caller's
    const char* suffix;
};

// clang-format off
constexpr PersonalForm caeForms[] = {
    {BexCaeFile::PersonalFile,      nullptr, ""},
    {BexCaeFile::PersonalResource,  nullptr, ".rsc"},
    {BexCaeFile::PersonalDirectory, "",      ""},
    {BexCaeFile::PersonalLog,       "log",   ""},
    {BexCaeFile::PersonalMacro,     nullptr, ".mac"},
    {BexCaeFile::PersonalIni,       nullptr, ".ini"},
};

constexpr PersonalForm personalForms[] = {
    {BexPersonalFile::Directory,    "",      ""},
    {BexPersonalFile::LogDirectory, "log",   ""},
    {BexPersonalFile::Resource,     nullptr, ".rsc"},
    {BexPersonalFile::Macro,        nullptr, ".mac"},
    {BexPersonalFile::Ini,          nullptr, ".ini"},
    {BexPersonalFile::PlainFile,    nullptr, ""},
};
// clang-format on

YString personalPath(const YPathName& directory, std::span<const PersonalForm> forms, int type,
                     const char* name) {
    const auto form = std::find_if(forms.begin(), forms.end(),
                                   [type](const PersonalForm& row) { return row.type == type; });
    if (form == forms.end()) return {};
    if (!form->name && viewOf(name).empty()) return {};
    return below(directory, {form->name ? form->name : name}).addSuffix(form->suffix);
}

// One of the tool families of BexCaeFile.
struct Family {
    const char* rootVariable;
    const char* tool;

    YString root() const { return rootOf(rootVariable); }
    YString file(const char* name, BexCaeFile::Type type) const {
        switch (type) {
        case BexCaeFile::RootFile: return below(root(), {name});
        case BexCaeFile::InfoResource:
            return below(root(), {"info", name ? resourceName(name) : YPathName()});
        case BexCaeFile::EtcFile: return below(root(), {"etc", name});
        default: return root();
        }
    }
    YString personalFile(const char* name, BexCaeFile::Type type) const {
        return personalPath(personalDirectory(ygetenv("HOME", 1), tool), caeForms, type, name);
    }
};

constexpr Family ad{"YADROOT", "ad"};
constexpr Family ld{"YLDROOT", "ld"};
constexpr Family tr{"YTRROOT", "tr"};

// The directory of a type below a root; null for a type that has none.
const char* directoryWord(BexSysFile::Type type) {
    switch (type) {
    case BexSysFile::InfoResource: return "info";
    case BexSysFile::EtcFile: return "etc";
    default: return nullptr;
    }
}

YPathName familyProjectRoot() {
    YPathName root = rootOf("HK8_PROJECT_ROOT");
    if (root.length() == 0) return root;
    root += "yds";
    return bexa::detail::hasBackslash(root.view()) ? root.expand() : root;
}

} // namespace

YString BexSysFile::systemDir() {
    return rootOf("YDSROOT");
}

YString BexSysFile::fileName(const char* name, Type type) {
    if (type == RootFile) return below(systemDir(), {name});
    const char* word = directoryWord(type);
    if (!word) return systemDir();
    const YPathName file = name && type == InfoResource ? resourceName(name) : YPathName(name);
    for (const YPathName& project : {rootOf("YDS_PROJECT_ROOT"), familyProjectRoot()}) {
        if (project.length() == 0) continue;
        YPathName candidate = name ? below(project, {word, file}) : project;
        if (BexFile::isExist(candidate)) return candidate;
    }
    return below(systemDir(), {word, file});
}

YString BexSysFile::fileNameLang(const char* name, Type type) {
    return fileName(below(BexFile::LangDir(), {name}), type);
}

YString BexSysFile::hk8PathName(const char* name) {
    return below(rootOf("YSYSROOT"), {name});
}

YString BexSysFile::localSysName(const char* name) {
    return below(rootOf("YLOCALROOT"), {"ysys", name});
}

int BexSysFile::access(const char* name, int mode, Type type) {
    return BexFile::access(fileName(name, type), mode);
}

unsigned long BexSysFile::isExist(const char* name, Type type) {
    return BexFile::isExist(fileName(name, type));
}

YString BexSysFile::tmpDir() {
    return temporaryDirectory("ds");
}

YString BexCaeFile::adsystemDir() {
    return ad.root();
}

YString BexCaeFile::adfileName(const char* name, Type type) {
    return ad.file(name, type);
}

YString BexCaeFile::adPfileName(const char* name, Type type) {
    return ad.personalFile(name, type);
}

YString BexCaeFile::adtmpDir() {
    return temporaryDirectory(ad.tool);
}

YString BexCaeFile::ldsystemDir() {
    return ld.root();
}

YString BexCaeFile::ldfileName(const char* name, Type type) {
    return ld.file(name, type);
}

YString BexCaeFile::ldPfileName(const char* name, Type type) {
    return ld.personalFile(name, type);
}

YString BexCaeFile::ldtmpDir() {
    return temporaryDirectory(ld.tool);
}

YString BexCaeFile::trsystemDir() {
    return tr.root();
}

YString BexCaeFile::trfileName(const char* name, Type type) {
    return tr.file(name, type);
}

YString BexCaeFile::trPfileName(const char* name, Type type) {
    return tr.personalFile(name, type);
}

YString BexCaeFile::trtmpDir() {
    return temporaryDirectory(tr.tool);
}

BexPersonalFile::BexPersonalFile() : home_(ygetenv("HOME", 1)) {}

void BexPersonalFile::homeDir(const char* directory) {
    home_ = directory;
}

YString BexPersonalFile::fileName(Type type, const char* name) const {
    return personalPath(personalDirectory(home_, "ds").expand(), personalForms, type, name);
}

BexPersonalFile::Type BexPersonalFile::fileType(const char* path) const {
    const YPathName expanded = YPathName(path).expand();
    const YString component = expanded.basename();
    if (bexa::detail::equalIgnoringCase(component.view(), "log")) return LogDirectory;
    const std::string_view suffix = viewOf(expanded.getSuffix());
    for (const PersonalForm& form : personalForms) {
        if (*form.suffix != '\0' && bexa::detail::equalIgnoringCase(suffix, form.suffix))
            return Type(form.type);
    }
    // Compared literally, as a path relative to the directory at hand.
    const YPathName joined(expanded.dirname(), component);
    return BexFile::fileNameCmp(joined, "hk8800/ds") == 0 ? Directory : PlainFile;
}

int BexPersonalFile::access(int mode, Type type, const char* name) const {
    return BexFile::access(fileName(type, name), mode);
}

unsigned long BexPersonalFile::isExist(Type type, const char* name) const {
    return BexFile::isExist(fileName(type, name));
}
