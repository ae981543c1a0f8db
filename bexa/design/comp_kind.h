// The component kinds of a design: the texts put in front of the numbers of nets, buses and components.
//
// The file, without a header:
//     sNetNameHeader : SIG
//     bNetNameHeader : BUS
//     dBlockRefheader : X
//     dSymbolRefheader : SY
//     ComponentKind 3 {
//     <tab>1<tab><tab>"comment"<tab>"reference header"
//     }
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/rsc_modes.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <memory>
#include <span>
#include <string_view>
#include <unordered_map>

class BexCompKind;
class YioRscLoad;

namespace bexa::detail {
struct RscAccess;
}

// One kind: a number with its reference header and a comment.
class BEXA_API BexCompKindRec {
public:
    // A null text is empty.
    BexCompKindRec(unsigned type, const char* refHeader, const char* comment);
    BexCompKindRec(const BexCompKindRec&) = delete;
    BexCompKindRec& operator=(const BexCompKindRec&) = delete;

    unsigned type() const { return type_; }
    const char* comment() const { return comment_; }
    const char* refHeader() const { return refHeader_; }
    // The record behind this one, null at the end.
    BexCompKindRec* next() const { return next_; }

    // Always true. Of several records with one number, look-ups find the first.
    unsigned long type(unsigned type);
    // Replace the text by a copy. False, with the old text kept, for null or without memory.
    unsigned long comment(const char* text);
    unsigned long refHeader(const char* text);

private:
    friend class BexCompKind;

    unsigned type_;
    YString comment_;
    YString refHeader_;
    BexCompKindRec* next_ = nullptr;
    const BexCompKind* list_ = nullptr; // whose index knows this record
};

// The resource file of kinds. Made by `open`, ended by `close`, never copied.
class BEXA_API BexCompKind {
public:
    BexCompKind(const BexCompKind&) = delete;
    BexCompKind& operator=(const BexCompKind&) = delete;

    // Null if the state of the file doesn't fit `mode`, or if the file breaks the format above: an unknown key, a
    // table of other than 3 columns, a negative number. Keys may come in any order; what the file lacks keeps its
    // default.
    static BexCompKind* open(const char* path, BexOpenMode mode);
    // False, with the object alive, if it is read-only and to be saved or the save fails. A null object closes with
    // BexCloseDiscard only.
    static unsigned long close(BexCompKind* kinds, BexCloseMode mode);

    // Writes the file under its own name: a new object where no file may be, an updated one over its file. False
    // for a read-only object.
    unsigned long save();
    // Writes the file elsewhere, if the state of the target allows it. Changes neither path nor mode of the object.
    unsigned long saveAs(const char* path, BexSaveMode mode);

    const char* fileName() const { return fileName_; }
    BexOpenMode openMode() const { return openMode_; }

    // The texts in front of the numbers of nets, buses, and of blocks and symbols whose kind has no record. The set
    // forms copy; false, with the old text kept, for null or without memory.
    const char* netHeader() const { return netHeader_; }
    const char* busHeader() const { return busHeader_; }
    const char* defaultBlockRefHeader() const { return defaultBlockRefHeader_; }
    const char* defaultSymbRefHeader() const { return defaultSymbRefHeader_; }
    unsigned long netHeader(const char* text);
    unsigned long busHeader(const char* text);
    unsigned long defaultBlockRefHeader(const char* text);
    unsigned long defaultSymbRefHeader(const char* text);

    // The records, in order of insertion; the object owns them. Null when there is none.
    unsigned count() const { return count_; }
    BexCompKindRec* first() const { return first_; }
    BexCompKindRec* last() const { return last_; }

    // The record with this number, null when there is none.
    BexCompKindRec* compKind(unsigned type) const;
    // Adds the kind at the end of the list, with `text1` as reference header and `text2` as comment. Kept on purpose:
    // when there is such a kind already, `text1` becomes its comment and `text2` its reference header, so of a number
    // that stands twice in a file the second row has its texts exchanged.
    unsigned long compKind(unsigned type, const char* text1, const char* text2);
    // The reference header of a kind; without a record the default one, of a block if `isBlock` is nonzero.
    const char* refHeader(unsigned type, unsigned long isBlock) const;

private:
    friend struct bexa::detail::RscAccess;
    friend class BexCompKindRec;

    BexCompKind(const char* path, BexOpenMode mode);
    ~BexCompKind();

    struct HeaderKey;
    static std::span<const HeaderKey> headerKeys();

    unsigned long load();
    bool loadEntry(YioRscLoad& reader, std::string_view key);
    bool loadKinds(YioRscLoad& reader);
    bool loadKind(YioRscLoad& reader, int type);
    bool write(const char* path) const;

    unsigned long attach(std::unique_ptr<BexCompKindRec> record);
    void removeAll();

    YString fileName_;
    BexOpenMode openMode_;
    YString netHeader_ = "SIG";
    YString busHeader_ = "BUS";
    YString defaultBlockRefHeader_ = "X";
    YString defaultSymbRefHeader_ = "SY";
    BexCompKindRec* first_ = nullptr;
    BexCompKindRec* last_ = nullptr;
    unsigned count_ = 0;

    // The first record of each number. Made anew by the next look-up when a record has changed its number.
    mutable std::unordered_map<unsigned, BexCompKindRec*> byType_;
    mutable bool byTypeIsStale_ = false;
};
