// The counters by which a design numbers its nets, buses and components.
//
// The file, without a header:
//     netLabelHeader 2 {
//     <tab>"SIG"<tab>12
//     }
//     busLabelHeader 2 {
//     <tab>"BUS"<tab>3
//     }
//     referenceHeader 2 {
//     <tab>"SY"<tab>1
//     <tab>"X"<tab>4
//     }
#pragma once

#include "bexa/design/reference_headers.h"
#include "bexa/export.h"
#include "bexa/foundation/rsc_modes.h"

class BexCompKind;
class YioRscLoad;

namespace bexa::detail {
struct RscAccess;
}

// Which headers there are comes from the component kinds; the file gives their counters only. Kinds with the same
// header text share its counter. Made by `open`, ended by `close`, never copied.
class BEXA_API BexNetList {
public:
    BexNetList(const BexNetList&) = delete;
    BexNetList& operator=(const BexNetList&) = delete;

    // Null if the state of the file doesn't fit `mode`, or if the file breaks the format above: an unknown key, a
    // table of other than 2 columns, a counter below 1. Keys may come in any order; what the file lacks counts from 1.
    // A label takes the counter of its last row, whatever text stands in it; reference headers that no kind has are
    // dropped, and gone at the next save. Nothing of `kinds` is used later.
    static BexNetList* open(const char* path, BexOpenMode mode, const BexCompKind& kinds);
    // False, with the object alive, if it is read-only and to be saved or the save fails. A null object closes with
    // BexCloseDiscard only.
    static unsigned long close(BexNetList* netList, BexCloseMode mode);

    // Writes the file under its own name: a new object where no file may be, an updated one over its file. False for
    // a read-only object.
    unsigned long save();
    // Writes the file elsewhere, if the state of the target allows it. Changes neither path nor mode of the object.
    unsigned long saveAs(const char* path, BexSaveMode mode);

    const char* fileName() const { return fileName_; }
    BexOpenMode openMode() const { return openMode_; }

    // The headers of net and bus labels.
    BexRefHeader* netLabel() { return &netLabel_; }
    const BexRefHeader* netLabel() const { return &netLabel_; }
    BexRefHeader* busLabel() { return &busLabel_; }
    const BexRefHeader* busLabel() const { return &busLabel_; }

    // The header of a component kind; for a kind that isn't known the default one, of blocks if `isBlock` is nonzero,
    // else of symbols. Never null.
    BexRefHeader* reference(unsigned kind, unsigned long isBlock);

private:
    friend struct bexa::detail::RscAccess;
    struct Table;

    BexNetList(const char* path, BexOpenMode mode, const BexCompKind& kinds);
    ~BexNetList() = default;

    unsigned long load();
    bool loadTable(YioRscLoad& reader, const Table& table);
    bool write(const char* path) const;

    static const Table tables_[];

    YString fileName_;
    BexOpenMode openMode_;
    BexRefHeader netLabel_;
    BexRefHeader busLabel_;
    BexRefHeaderSet headers_;
    BexRefInfo defaultSymbol_;
    BexRefInfo defaultBlock_;
    BexRefInfoSet infos_;
};
