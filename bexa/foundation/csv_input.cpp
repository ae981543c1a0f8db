#include "bexa/foundation/csv_input.h"

#include "bexa/foundation/kanji_bytes.h"
#include "bexa/foundation/os.h"

#include <algorithm>
#include <array>
#include <climits>
#include <string>
#include <string_view>

namespace {

// What cleaning makes of a byte.
enum class Byte : unsigned char { Kept, Quote, Dropped, Lead };

using ByteTable = std::array<Byte, 256>;

Byte kindOf(unsigned byte) {
    if (bexa::detail::isLeadByte(static_cast<unsigned char>(byte))) return Byte::Lead;
    if (byte == '"') return Byte::Quote;
    const bool kept = byte == '\t' || (byte >= 32 && (byte < 127 || byte > 159));
    return kept ? Byte::Kept : Byte::Dropped;
}

ByteTable byteTable() {
    ByteTable table;
    for (unsigned byte = 0; byte < table.size(); ++byte) table[byte] = kindOf(byte);
    return table;
}

// Gathers physical lines into records.
class Record {
public:
    // Adds a line without its line end. A line behind an open quote joins the text before it.
    void add(std::string_view line) {
        if (open_) {
            text_ += '\n';
        } else {
            text_.clear();
        }
        const char* const end = line.data() + line.size();
        for (const char* at = line.data(); at != end;) at = addFrom(at, end);
    }

    // False while a quote is open: the next line belongs to the record too.
    bool isComplete() const { return !open_; }
    const std::string& text() const { return text_; }

private:
    // Adds the longest run of kept bytes and the byte that ends it; returns what follows.
    const char* addFrom(const char* at, const char* end) {
        const char* run = at;
        while (at != end && kind(*at) == Byte::Kept) ++at;
        text_.append(run, at);
        if (at == end) return end;
        switch (kind(*at)) {
        case Byte::Quote:
            open_ = !open_;
            text_ += *at;
            return at + 1;
        case Byte::Lead:
            // A lead byte that ends the line is dropped; otherwise the byte behind it is kept, whatever it is.
            if (end - at < 2) return end;
            text_.append(at, 2);
            return at + 2;
        default: return at + 1;
        }
    }

    Byte kind(char c) const { return kinds_[static_cast<unsigned char>(c)]; }

    const ByteTable kinds_ = byteTable();
    std::string text_;
    bool open_ = false;
};

// Calls `take(record, number)` for each record of the file until it gives false, which is the result then. False too
// when the file can't be read.
template <class Take>
bool walkRecords(const YString& path, Take take) {
    std::string bytes;
    if (!bexa::detail::os::readWholeFile(path, bytes)) return false;
    Record record;
    int number = 0;
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::size_t length = rest.find('\n');
        record.add(rest.substr(0, length));
        rest.remove_prefix(length == std::string_view::npos ? rest.size() : length + 1);
        if (!record.isComplete()) continue;
        if (!take(record.text(), number)) return false;
        if (number < INT_MAX) ++number;
    }
    return true;
}

constexpr bool isLineEnd(char c) {
    return c == '\n' || c == '\r';
}

constexpr bool endsPlain(char c) {
    return c == ',' || c == '"' || isLineEnd(c);
}

// Splits one record into its items, one behind the other, each with a terminator. Every rule takes its characters off
// the front and returns false for a malformed record.
class Splitter {
public:
    explicit Splitter(std::string_view record) : rest_(record) { items_.reserve(record.size() + 1); }

    bool split() {
        if (rest_.empty() || rest_.starts_with('\n') || rest_.starts_with("\r\n")) return true;
        while (!done_) {
            if (!takeItem()) return false;
        }
        return true;
    }

    // Calls `take` with each item until it gives false, which is the result then.
    template <class Take>
    bool forEachItem(Take take) const {
        for (std::size_t at = 0; at < items_.size(); at = items_.find('\0', at) + 1) {
            if (!take(items_.c_str() + at)) return false;
        }
        return true;
    }

private:
    bool takeItem() {
        if (rest_.starts_with('"')) {
            rest_.remove_prefix(1);
            return takeQuoted();
        }
        takeUpTo(std::find_if(rest_.begin(), rest_.end(), endsPlain));
        if (rest_.starts_with('"')) return false; // the item has begun unquoted
        endItem();
        return true;
    }

    bool takeQuoted() {
        for (;;) {
            takeUpTo(std::find(rest_.begin(), rest_.end(), '"'));
            rest_.remove_prefix(std::min<std::size_t>(rest_.size(), 1));
            if (!rest_.starts_with('"')) break;
            items_ += '"';
            rest_.remove_prefix(1);
        }
        if (!rest_.empty() && rest_.front() != ',' && !isLineEnd(rest_.front())) return false;
        endItem();
        return true;
    }

    void takeUpTo(std::string_view::const_iterator end) {
        const auto length = static_cast<std::size_t>(end - rest_.begin());
        items_ += rest_.substr(0, length);
        rest_.remove_prefix(length);
    }

    // An item ends at a comma, behind which another one follows, at a line end or at the end of the text.
    void endItem() {
        items_ += '\0';
        done_ = !rest_.starts_with(',');
        if (!done_) rest_.remove_prefix(1);
    }

    std::string_view rest_;
    std::string items_;
    bool done_ = false;
};

bool splitRecord(std::string_view record, YString_Array& items) {
    items.resize(0);
    Splitter splitter(record);
    const bool good = splitter.split();
    splitter.forEachItem([&items](const char* item) { return items.end().assign(item) != 0; });
    return good;
}

} // namespace

unsigned long BexCsvLine::Read(BexCsvItemReader* reader, int /*unused*/) const {
    if (!reader) return 0;
    Splitter splitter(text_.view());
    return splitter.split() &&
           splitter.forEachItem([reader](const char* item) { return reader->ReadItem(item) != 0; });
}

BexCsvInput* BexCsvInput::Open(const char* path) {
    return new BexCsvInput(path);
}

unsigned long BexCsvInput::Close(BexCsvInput* input) {
    delete input;
    return 1;
}

int BexCsvInput::HowManyLines() const {
    int lines = 0;
    const auto count = [&lines](const std::string&, int number) {
        lines = number < INT_MAX ? number + 1 : INT_MAX;
        return true;
    };
    return walkRecords(path_, count) ? lines : 0;
}

unsigned long BexCsvInput::Read(BexCsvLineReader* reader) const {
    if (!reader) return 0;
    BexCsvLine line; // one for all records, so that its memory is taken once
    return walkRecords(path_, [&](const std::string& record, int number) {
        if (record.empty()) return true;
        line.text_.assign(std::string_view(record));
        return reader->ReadLine(line, number) != 0;
    });
}

unsigned long BexCsvInput::ReadSelectedLine(YString_Array& items, int index) {
    bool good = false;
    walkRecords(path_, [&](const std::string& record, int number) {
        if (number < index) return true;
        good = number == index && !record.empty() && splitRecord(record, items);
        return false;
    });
    return good;
}
