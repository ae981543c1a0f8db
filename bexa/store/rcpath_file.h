// The "rcpath" file of a circuit: one line per entry, `name : "path"`. The file keeps a path as the user wrote it, the
// program works with the resolved one.
#pragma once

#include "bexa/foundation/rsc_modes.h"
#include "bexa/store/rcpath.h"

namespace bexa::detail {
struct RscAccess;
}

class BEXA_API BexRcpathIO {
public:
    BexRcpathIO(const BexRcpathIO&) = delete;
    BexRcpathIO& operator=(const BexRcpathIO&) = delete;

    // Null if the state of the file doesn't fit `mode` or a line is malformed. A null path counts as empty. The
    // caller owns the object and ends it with `close`.
    static BexRcpathIO* open(const char* path, BexOpenMode mode);
    // Kept on purpose: ends the object in every case, other than the resource classes; the result only reports what
    // happened. BexCloseDiscard: true. BexCloseAuto: true on a read-only object, else the result of saving.
    // BexCloseSave: the result of saving an object opened for update; false, with nothing saved, on any other. False
    // for a null object.
    static unsigned long close(BexRcpathIO* list, BexCloseMode mode);
    // BexSaveNew works only on an object opened with BexOpenCreate, which is then one opened for update;
    // BexSaveOverwrite only on one opened for update. False for all else, and if the file can't be opened for
    // writing. Kept on purpose: there is no test of the file, so BexSaveNew overwrites one made meanwhile.
    //
    // A path that doesn't resolve to what the entry holds as its path any more is written resolved, else as the user
    // wrote it.
    unsigned long save(BexSaveMode mode);

    int rcpathCount() const { return table_.size(); }
    const BexRcpathTable& rcpathTbl() const { return table_; }
    // Replaces the table. The entries keep their order, also when they are saved, until an entry is added.
    void rcpathTbl(const BexRcpathTable& table);

    // Copies an entry; false, with `out` left alone, if there is none of this index.
    unsigned long rcpath(int index, BexRcpath& out) const;
    // Adds an entry or replaces that of its name; the table is sorted by name then.
    void rcpath(const BexRcpath& entry);
    // The index of the entry of this name, or -1.
    int searchRcpath(const char* name) const;
    // False if there is no entry of this index.
    unsigned long deleteRcpath(int index);

    const YString& pathname() const { return path_; }
    BexOpenMode openMode() const { return mode_; }
    // Whether the table was changed since it was loaded or saved.
    unsigned long isEditing() const { return edited_; }

private:
    friend struct bexa::detail::RscAccess;

    BexRcpathIO(const char* path, BexOpenMode mode) : path_(path), mode_(mode) {}
    ~BexRcpathIO() = default;

    unsigned long load();
    bool write() const;
    void sort();
    int placeOf(const char* name) const;

    unsigned long edited_ = 0;
    BexRcpathTable table_;
    YString path_;
    BexOpenMode mode_;
    bool sorted_ = true;
};
