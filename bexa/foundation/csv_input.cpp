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

// Splits one record. Every rule takes its characters off the front and returns false for a malformed record.
class Splitter {
public:
    Splitter(std::string_view record, YString_Array& items) : rest_(record), items_(items) {}

    bool split() {
        if (rest_.empty() || rest_.starts_with('\n') || rest_.starts_with("\r\n")) return true;
        while (!done_) {
            if (!takeItem()) return false;
        }
        return true;
    }

private:
    bool takeItem() {
        if (rest_.starts_with('"')) {
            rest_.remove_prefix(1);
            return takeQuoted();
        }
        const std::size_t length = std::min(rest_.find_first_of("\",\n\r"), rest_.size());
        item_.assign(rest_.substr(0, length));
        rest_.remove_prefix(length);
        if (rest_.starts_with('"')) return false; // length is not 0 here: the item has begun unquoted
        endItem();
        return true;
    }

    bool takeQuoted() {
        item_.clear();
        for (;;) {
            const std::size_t length = std::min(rest_.find('"'), rest_.size());
            item_.append(rest_.substr(0, length));
            rest_.remove_prefix(std::min(length + 1, rest_.size()));
            if (!rest_.starts_with('"')) break;
            item_ += '"';
            rest_.remove_prefix(1);
        }
        if (!rest_.empty() && rest_.find_first_of(",\n\r") != 0) return false;
        endItem();
        return true;
    }

    // An item ends at a comma, behind which another one follows, at a line end or at the end of the text.
    void endItem() {
        items_.end().assign(std::string_view(item_));
        done_ = !rest_.starts_with(',');
        if (!done_) rest_.remove_prefix(1);
    }

    std::string_view rest_;
    YString_Array& items_;
    std::string item_;
    bool done_ = false;
};

bool splitRecord(std::string_view record, YString_Array& items) {
    items.resize(0);
    return Splitter(record, items).split();
}

} // namespace

unsigned long BexCsvLine::Read(BexCsvItemReader* reader, int /*unused*/) const {
    YString_Array items;
    if (!reader || !splitRecord(text_.view(), items)) return 0;
    for (int i = 0; i < items.size(); ++i) {
        if (!reader->ReadItem(items.at(i))) return 0;
    }
    return 1;
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
