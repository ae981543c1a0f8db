// The files of a circuit: how they are named, what kind a path is, and walks over them.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

class BexDatarc;

// The kinds of files. Programs keep the numbers: never change one.
enum BexDataFileType : int {
    BexAnyFile = 0,
    BexCircuitFile = 1,    // c.cir, the circuit, a directory
    BexSymbolFile = 2,     // .smb
    BexBlockDataFile = 3,  // c.blk, beside the circuit
    BexSheetFile = 4,      // c.cir/001.sht
    BexSheetNetFile = 5,   // c.cir/001.net
    BexDrcDir = 6,         // c.cir/drc, messages of the design rules
    BexInstanceFile = 7,   // c.cir/instnc
    BexResourceByPath = 8, // a resource that the circuit's resource path list leads to; no path has this kind
    BexLogDir = 9,         // c.cir/log, error messages and lock files
    BexExtDir = 10,        // c.cir/ext, net lists
    BexRcpathFile = 11,    // c.cir/rcpath, the resource path list
    BexFrameDir = 12,      // c.cir/frame, frame data
    BexEnetdbFile = 13,    // c.cir/enetdb, the net database
};

// The path of a circuit, a directory whose name ends in ".cir", and the names of what belongs to it. It only
// calculates names and walks directories; it opens no file save the resource path list.
//
// Most operations come in two forms: a static one that gets the path first, and a member that takes the object's. A
// temporary copy of a file lies beside it and has "_" in front of its name, a backup copy "#".
class BEXA_API BexDataFile {
public:
    using Type = BexDataFileType;
    using enum BexDataFileType;
    // A walk calls it with the caller's argument and a full path; nonzero ends the walk.
    using Callback = int (*)(void* arg, const char* path);

    BexDataFile() = default;
    BexDataFile(const char* circuit)
        : path_(circuit) {} // NOLINT(google-explicit-constructor): a path is as good as the object

    const YString& circuitDir() const { return path_; }
    // Null empties it.
    void circuitDir(const char* circuit) { path_ = circuit; }

    // The kind of a path by its last component, whatever the case: by its suffix if it has one, else by its name.
    static Type fileType(const char* path);
    Type fileType() const { return fileType(path_); }

    // BexFile::access and BexFile::isExist, but -1 and false if `type` isn't BexAnyFile and the path is of another.
    static int access(const char* path, int mode, Type type);
    int access(int mode, Type type) const { return access(path_, mode, type); }
    static unsigned long isExist(const char* path, Type type);
    unsigned long isExist(Type type) const { return isExist(path_, type); }

    // The path of a member of a circuit, in canonical spelling. Empty if `type` isn't BexAnyFile and the path is no
    // circuit; the members give an empty text for an empty path, too. A null path is none.
    //   BexAnyFile, and kinds above the last:     path/name, or the path if `name` is null
    //   BexCircuitFile:                           the path, whatever the name
    //   BexSymbolFile, BexSheetFile, BexSheetNetFile:
    //                                             path/name with the suffix of the kind in place of its own; the path
    //                                             with that suffix if `name` is null
    //   BexBlockDataFile:                         the path with ".blk" in place of ".cir", whatever the name
    //   BexDrcDir, BexLogDir, BexExtDir, BexFrameDir:
    //                                             path/drc and so on, then /name if there is one
    //   BexInstanceFile, BexRcpathFile, BexEnetdbFile:
    //                                             path/instnc and so on, whatever the name
    //   BexResourceByPath:                        the file name.rsc in the directory that the resource path list
    //                                             gives for `name`; the list is read at each call. Empty if it can't
    //                                             be read or has no such entry
    static YString fileName(const char* path, Type type, const char* name);
    YString fileName(Type type, const char* name) const {
        return path_.length() == 0 ? YString() : fileName(path_, type, name);
    }

    // The path of the temporary copy, and of the backup copy. With a name, the mark goes in front of that; with null,
    // in front of the last component of what `fileName` gives.
    // Kept on purpose: a kind that ignores its name ignores the mark on it too, so the result is the file itself; and
    // BexResourceByPath looks for an entry with the marked name.
    static YString tmpFileName(const char* path, Type type, const char* name);
    YString tmpFileName(Type type, const char* name) const {
        return path_.length() == 0 ? YString() : tmpFileName(path_, type, name);
    }
    static YString backupFileName(const char* path, Type type, const char* name);
    YString backupFileName(Type type, const char* name) const {
        return path_.length() == 0 ? YString() : backupFileName(path_, type, name);
    }

    // From a file to its copy and back: the directory of the path, joined with the last component with the mark put
    // in front, or one mark taken off if there is one. Not in canonical spelling; a path without a directory comes
    // out in ".". Empty for a null or empty path.
    static YString fname2temp(const char* path);
    static YString temp2fname(const char* path);
    static YString fname2backup(const char* path);
    static YString backup2fname(const char* path);

    // Whether the last component has the mark, and the path is of this kind, which BexAnyFile always is.
    static unsigned long isTmpFileName(const char* path, Type type);
    static unsigned long isBackupFileName(const char* path, Type type);

    // The number of sheets, and of their net files, as the walks below count them. 0 also if the walk fails.
    static unsigned sheetCount(const char* path);
    unsigned sheetCount() const { return sheetCount(path_); }
    static unsigned sheetNetCount(const char* path);
    unsigned sheetNetCount() const { return sheetNetCount(path_); }

    // The number in a sheet's name, also of a temporary or a backup copy; 0 for a name that isn't a number, -1 if
    // there is no name.
    static int sheetNo(const char* path);
    // The path of the sheet of this number, and of its net file: three digits at least. In canonical spelling.
    static YString sheetName(const char* path, unsigned no);
    YString sheetName(unsigned no) const { return sheetName(path_, no); }
    static YString sheetNetName(const char* path, unsigned no);
    YString sheetNetName(unsigned no) const { return sheetNetName(path_, no); }

    // Calls `fn` for each file of a kind in a directory, in the order of the system; copies are left out. False for a
    // null `fn`, a directory that can't be read, and when `fn` returned nonzero.
    // Kept on purpose: sheets with a number beyond 999 are left out, although `sheetName` names them; net files have
    // no such bound. A backslash at the end of `dir` is followed by a separator.
    static unsigned long enumFileNames(const char* dir, Type type, Callback fn, void* arg);
    unsigned long enumFileNames(Type type, Callback fn, void* arg) const {
        return enumFileNames(path_, type, fn, arg);
    }
    // The same for temporary copies, and for backup copies, through the directories "log", "frame", "ext" and "drc"
    // below as well; a false result from there ends the walk.
    // Kept on purpose: a plain file of such a name can't be read as a directory, so it ends the walk with false. So
    // does a circle of links, when the system refuses the path that it makes.
    static unsigned long enumTmpFileNames(const char* dir, Type type, Callback fn, void* arg);
    unsigned long enumTmpFileNames(Type type, Callback fn, void* arg) const {
        return enumTmpFileNames(path_, type, fn, arg);
    }
    static unsigned long enumBackupFileNames(const char* dir, Type type, Callback fn, void* arg);
    unsigned long enumBackupFileNames(Type type, Callback fn, void* arg) const {
        return enumBackupFileNames(path_, type, fn, arg);
    }

    // The walks for sheets and for their net files.
    static unsigned long enumSheetNames(const char* path, Callback fn, void* arg);
    unsigned long enumSheetNames(Callback fn, void* arg) const { return enumSheetNames(path_, fn, arg); }
    static unsigned long enumTmpSheetNames(const char* path, Callback fn, void* arg);
    unsigned long enumTmpSheetNames(Callback fn, void* arg) const {
        return enumTmpSheetNames(path_, fn, arg);
    }
    static unsigned long enumBackupSheetNames(const char* path, Callback fn, void* arg);
    unsigned long enumBackupSheetNames(Callback fn, void* arg) const {
        return enumBackupSheetNames(path_, fn, arg);
    }
    static unsigned long enumSheetNetNames(const char* path, Callback fn, void* arg);
    unsigned long enumSheetNetNames(Callback fn, void* arg) const {
        return enumSheetNetNames(path_, fn, arg);
    }
    static unsigned long enumTmpSheetNetNames(const char* path, Callback fn, void* arg);
    unsigned long enumTmpSheetNetNames(Callback fn, void* arg) const {
        return enumTmpSheetNetNames(path_, fn, arg);
    }
    static unsigned long enumBackupSheetNetNames(const char* path, Callback fn, void* arg);
    unsigned long enumBackupSheetNetNames(Callback fn, void* arg) const {
        return enumBackupSheetNetNames(path_, fn, arg);
    }

    // Whether a name belongs to an exchange port: it begins with "exPort" in any case.
    static unsigned long isExPort(const char* name);
    // The path with this suffix in place of its own, in canonical spelling; a suffix that differs only in case stays.
    // A null suffix gives the path unchanged, a null path an empty text.
    static YString addSuffix(const char* path, const char* suffix);
    // Whether a path needs no "./" in front: it begins with "/", ".", "$", "\" or a letter and a colon.
    static unsigned long pathIsExchanged(const char* path);

    // Look for a symbol, circuit or block through the search directories of a circuit resource, under the suffix of
    // its kind whatever the name's. The first that exists, in canonical spelling, with the index of its directory;
    // an empty text and -1 if there is none or the name is null.
    static YString searchSymb(const char* name, const BexDatarc& rc, int& index);
    static YString searchCirc(const char* name, const BexDatarc& rc, int& index);
    static YString searchBlock(const char* name, const BexDatarc& rc, int& index);

private:
    YString path_;
};
