// Files and directories: copy, remove, rename, look into, and the one spelling that each of the suite's own names has.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

// Operations over paths. None of them throws or prints; a null path is a path where nothing is.
class BEXA_API BexFile {
public:
    // Mode 0 asks whether the path exists, 2 whether it is writable, 4 readable. 0 for yes, else -1: the sense of the
    // system call.
    static int access(const char* path, int mode);
    static unsigned long isExist(const char* path);
    static unsigned long isDir(const char* path);

    // One level; false if something stands there already.
    static unsigned long mkdir(const char* path);

    // Copies the bytes of `from` over `to`, or behind what `to` holds if `append` is nonzero. True, with nothing
    // copied, when both paths are the same after expansion, whatever the case of their letters, or lead to the same
    // file. False when a file doesn't open or the copy breaks off; a source that doesn't open leaves the target alone,
    // a copy that breaks off leaves it in whatever state it reached.
    static unsigned long fileCopy(const char* from, const char* to, unsigned long append);

    // The same with each piece of 1024 bytes converted from EUC to Shift-JIS on its way.
    // Kept on purpose: a piece comes out as long as it went in. Where half-width kana make the conversion shorter,
    // NUL bytes fill the piece up. A pair that two pieces share is not put together. What can't be converted stays as
    // it is.
    static unsigned long EUCfileCopy(const char* from, const char* to, unsigned long append);

    // Removes a file, or a directory that is empty. A link goes, not what it leads to.
    static unsigned long remove(const char* path);

    // False for a null or empty path, otherwise what the system says.
    static unsigned long rename(const char* from, const char* to);

    // The directory of the language that YLANG names: "eng", "jpn", "kor", "chn" or "ger"; "eng" for all else.
    static YString LangDir();

    // Calls `fn` with `arg` and the full path of each entry, in the order of the system. False for a null `fn`, a
    // directory that can't be read, and when `fn` returned nonzero, which ends the walk.
    static unsigned long enumFileNames(const char* dir, int (*fn)(void* arg, const char* path), void* arg);

    // -1, 0 or 1: the order of two paths, byte by byte, in canonical spelling and expanded.
    static int fileNameCmp(const char* a, const char* b);

    // The path in canonical spelling: the suffixes and names that the suite knows in the case it writes them, and in
    // some places the directories around them. All other parts stay as they are, but separators doubled and at the
    // end go. An empty text for a null path. Doesn't touch the disk.
    static YString extChange(const char* path);
};
