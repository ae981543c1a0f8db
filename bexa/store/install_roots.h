// Where the suite and its users keep their files. Everything comes from environment variables, read at each call, so a
// change of the environment takes effect at once. A root that isn't set is an empty text and no error: the paths
// built on it are relative, and the failure shows when a file isn't found. Paths come out as they are built, not in
// canonical spelling.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

// The files of the schematic tools: those of the installation (YDSROOT), which a project may replace by its own.
class BEXA_API BexSysFile {
public:
    enum Type : int {
        RootFile = 0,     // directly under the root
        InfoResource = 1, // under "info", with ".rsc" unless the name has a suffix
        EtcFile = 2,      // under "etc"
    };

    static YString systemDir();

    // The path of a file. An InfoResource or EtcFile that exists in the project (YDS_PROJECT_ROOT), else in the
    // project of the family (HK8_PROJECT_ROOT, below its "yds"), is found there; in all other cases the path is the
    // installation's, whether the file exists or not. Any other type gives the root itself.
    // Kept on purpose: with a null name, a project root that exists is the result itself, without "info" or "etc".
    static YString fileName(const char* name, Type type);
    // The same for a name below the language directory.
    static YString fileNameLang(const char* name, Type type);

    // Below the root of the whole family, YSYSROOT.
    static YString hk8PathName(const char* name);
    // Below "ysys" of the machine's local files, YLOCALROOT.
    static YString localSysName(const char* name);

    // BexFile::access and BexFile::isExist of the path that `fileName` gives.
    static int access(const char* name, int mode, Type type);
    static unsigned long isExist(const char* name, Type type);

    // A directory for temporary files: the first that exists of TEMP, "/usr/tmp", "/tmp" and the personal directory
    // below HOME, else ".". Never empty.
    static YString tmpDir();
};

// The same kinds of paths for three sibling tool families. There is no search in projects.
class BEXA_API BexCaeFile {
public:
    enum Type : int {
        // adfileName, ldfileName, trfileName; any other value gives the root.
        RootFile = 0,
        InfoResource = 1, // under "info", with ".rsc" unless the name has a suffix
        EtcFile = 2,
        // adPfileName, ldPfileName, trPfileName; 2 and any value not listed give an empty text, and so does a null
        // name where one is needed.
        PersonalFile = 0,
        PersonalResource =
            1, // the name with ".rsc". Kept on purpose: a suffix already there stays in front of it
        PersonalDirectory = 3,
        PersonalLog = 4,
        PersonalMacro = 5, // the name with ".mac"
        PersonalIni = 6,   // the name with ".ini"
    };

    // The roots of the installations: YADROOT, YLDROOT, YTRROOT.
    static YString adsystemDir();
    static YString adfileName(const char* name, Type type);
    static YString adPfileName(const char* name, Type type);
    static YString adtmpDir();

    static YString ldsystemDir();
    static YString ldfileName(const char* name, Type type);
    static YString ldPfileName(const char* name, Type type);
    static YString ldtmpDir();

    static YString trsystemDir();
    static YString trfileName(const char* name, Type type);
    static YString trPfileName(const char* name, Type type);
    static YString trtmpDir();
};

// The files of one user of the schematic tools, below "hk8800/ds" of a home directory. Paths are absolute.
class BEXA_API BexPersonalFile {
public:
    enum Type : int {
        Directory = 0,
        LogDirectory = 1,
        Resource = 2, // the name with ".rsc"
        Macro = 3,    // the name with ".mac"
        Ini = 4,      // the name with ".ini"
        PlainFile = 5,
    };

    // The home directory is that of the environment, HOME.
    BexPersonalFile();

    const YString& homeDir() const { return home_; }
    // For the directory of another user. Null empties it.
    void homeDir(const char* directory);

    // Empty for any other type, and for a null name where one is needed.
    YString fileName(Type type, const char* name) const;
    // What a path is, by its last component and suffix. PlainFile for a null path and for everything unknown.
    // Kept on purpose: the personal directory is known as "hk8800/ds" alone, not by the path that fileName() gives.
    Type fileType(const char* path) const;

    // BexFile::access and BexFile::isExist of the path that `fileName` gives; -1 and false if that is empty.
    int access(int mode, Type type, const char* name) const;
    unsigned long isExist(Type type, const char* name) const;

private:
    YString home_;
};
