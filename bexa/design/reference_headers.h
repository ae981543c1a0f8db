// The texts that references begin with, and the counters behind them.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"

#include <iosfwd>
#include <memory>
#include <string_view>
#include <unordered_map>

class BexNetList;
class BexRefHeaderSet;

// A header with its counter: "SIG" and 12 are the reference SIG12. Made by a BexRefHeaderSet or a BexNetList, which
// owns it.
class BEXA_API BexRefHeader {
public:
    BexRefHeader(const BexRefHeader&) = delete;
    BexRefHeader& operator=(const BexRefHeader&) = delete;

    const char* header() const { return header_; }
    // The number of the next reference, 1 to begin with.
    unsigned long count() const { return count_; }
    void count(unsigned long count) { count_ = count; }
    BexRefHeader& operator++() {
        ++count_;
        return *this;
    }

    // Replaces `out` by the reference: the header and the count. Always 1.
    unsigned long value(YString& out) const;
    // The same as a terminated text. 0, with nothing copied, if it has `size` characters or more.
    unsigned long value(char* out, unsigned size) const;

    // The one that came behind it into the set, null for the last.
    const BexRefHeader* next() const { return next_; }

private:
    friend class BexNetList;
    friend class BexRefHeaderSet;

    explicit BexRefHeader(std::string_view header) : header_(header) {}
    ~BexRefHeader() = default;

    YString header_;
    unsigned long count_ = 1;
    BexRefHeader* next_ = nullptr;
};

// Headers with different texts, in the order of their first use. It owns them.
class BEXA_API BexRefHeaderSet {
public:
    BexRefHeaderSet() = default;
    ~BexRefHeaderSet();
    BexRefHeaderSet(const BexRefHeaderSet&) = delete;
    BexRefHeaderSet& operator=(const BexRefHeaderSet&) = delete;

    // The header with exactly this text, null if there is none. Here and below a null text counts as empty.
    BexRefHeader* lookup(const char* text) const;
    // That header, or a new one behind all others.
    BexRefHeader* attach(const char* text);

    unsigned long count() const { return index_.size(); }
    const BexRefHeader* first() const { return first_; }

    // Writes a line for each header, in order: the text, a blank, the count.
    void printOn(std::ostream& out) const;

private:
    friend class BexNetList;

    BexRefHeader* find(std::string_view text) const;

    BexRefHeader* first_ = nullptr;
    BexRefHeader* last_ = nullptr;
    // The keys are the texts of the headers themselves.
    std::unordered_map<std::string_view, BexRefHeader*> index_;
};

// Which header a kind of component has.
class BEXA_API BexRefInfo {
public:
    // The header must outlive the tie.
    BexRefInfo(unsigned kind, BexRefHeader& header) : kind_(kind), header_(&header) {}
    BexRefInfo(const BexRefInfo&) = delete;
    BexRefInfo& operator=(const BexRefInfo&) = delete;

    unsigned kind() const { return kind_; }
    // Never null; not the caller's.
    BexRefHeader* refHeader() const { return header_; }

private:
    friend class BexRefInfoSet;

    unsigned kind_;
    BexRefHeader* header_;
    std::unique_ptr<BexRefInfo> next_;
    bool attached_ = false;
};

// A table of such ties, in the order in which they came. It owns them.
class BEXA_API BexRefInfoSet {
public:
    BexRefInfoSet() = default;
    ~BexRefInfoSet();
    BexRefInfoSet(const BexRefInfoSet&) = delete;
    BexRefInfoSet& operator=(const BexRefInfoSet&) = delete;

    // The first tie of this kind, null if there is none.
    BexRefInfo* lookup(unsigned kind) const;
    // Puts a tie made with `new` behind all others and takes it over. 0 if it stands in a set already; it stays there.
    unsigned long attach(BexRefInfo& info);

private:
    std::unique_ptr<BexRefInfo> first_;
    BexRefInfo* last_ = nullptr;
    std::unordered_map<unsigned, BexRefInfo*> index_;
};
