#include "bexa/foundation/yrsc/keyed_file.h"

#include "bexa/foundation/os.h"
#include "bexa/foundation/text_cursor.h"
#include "bexa/foundation/yrsc/rsc_scanner.h"

#include <algorithm>
#include <optional>
#include <utility>

using bexa::detail::RscScanner;

namespace {

using Entries = std::unordered_map<std::string, YioRscValue>;
using Values = std::vector<YioRscValue>;

unsigned sizeOf(const Values& values) {
    return static_cast<unsigned>(values.size());
}

bool isNumber(std::string_view word) {
    return std::ranges::all_of(word, bexa::detail::isDigit);
}

// One function for each rule of the grammar. Each stands on the first byte of what it takes and gives nothing when
// the text ends or breaks before it is whole.
class KeyedParser {
public:
    KeyedParser(RscScanner& scanner, Entries& entries) : scanner_(scanner), entries_(entries) {}

    void takeEntries() {
        while (!broken_) {
            switch (scanner_.skipToWord()) {
            case '\0': return;
            case ':': add(takeValue()); break;
            case '{': add(takeTable()); break;
            case '(': takeList(); break;
            case '"': takeQuoted(); break;
            case '}':
            case ')': scanner_.skipByte(); break;
            default: takeKey(); break;
            }
        }
    }

private:
    static constexpr unsigned cellStops = RscScanner::White | RscScanner::Brace | RscScanner::Parenthesis;

    // A key, or the count behind one.
    void takeKey() {
        const auto word = takeWord(cellStops | RscScanner::Colon);
        if (!word) return;
        if (!key_.empty() && isNumber(word->view())) {
            columns_ = static_cast<unsigned>(bexa::detail::TextCursor(word->view()).takeNumber().value_or(1));
        } else {
            key_ = word->view();
            columns_ = 1;
        }
    }

    // Of entries with one key the first counts.
    void add(std::optional<YioRscValue> value) {
        if (value && !key_.empty()) entries_.try_emplace(key_, std::move(*value));
        key_.clear();
    }

    std::optional<YioRscValue> takeValue() {
        scanner_.skipByte();
        switch (scanner_.skipOnLine()) {
        case '\0': return std::nullopt;
        case '\n': return YioRscValue(YString());
        case '(': return takeList();
        case '"': return asValue(takeQuoted());
        default: return asValue(takeWord(RscScanner::White | RscScanner::Parenthesis));
        }
    }

    std::optional<YioRscValue> takeTable() {
        Values cells;
        scanner_.skipByte();
        while (!broken_) {
            const char c = scanner_.skipToWord();
            if (c == '\0') break;
            if (c == '}') {
                scanner_.skipByte();
                return YioRscValue(YioRscTable(std::move(cells), columns_));
            }
            if (auto cell = c == '(' ? takeList() : takeMember(c)) cells.push_back(std::move(*cell));
        }
        return std::nullopt;
    }

    // A list that is left open ends with the table it stands in.
    std::optional<YioRscValue> takeList() {
        Values items;
        scanner_.skipByte();
        while (!broken_) {
            const char c = scanner_.skipToWord();
            if (c == '\0') break;
            if (c == ')') scanner_.skipByte();
            if (c == ')' || c == '}') return YioRscValue(YioRscList(std::move(items)));
            if (auto item = takeMember(c)) items.push_back(std::move(*item));
        }
        return std::nullopt;
    }

    // A text that begins with `c`; a mark that has no business here is passed over.
    std::optional<YioRscValue> takeMember(char c) {
        if (c == '"') return asValue(takeQuoted());
        if (auto word = takeWord(cellStops); word && word->length() != 0) return asValue(std::move(word));
        scanner_.skipByte();
        return std::nullopt;
    }

    std::optional<YString> takeQuoted() {
        std::string_view text;
        broken_ = !scanner_.takeQuoted(text);
        return localText(text);
    }
    std::optional<YString> takeWord(unsigned stops) {
        std::string_view text;
        broken_ = !scanner_.takeWord(stops, text);
        return localText(text);
    }
    std::optional<YString> localText(std::string_view text) {
        if (broken_) return std::nullopt;
        return YString(scanner_.localText(text));
    }

    static std::optional<YioRscValue> asValue(std::optional<YString> text) {
        if (!text) return std::nullopt;
        return YioRscValue(std::move(*text));
    }

    RscScanner& scanner_;
    Entries& entries_;
    bool broken_ = false;
    std::string key_; // the key at hand, empty when there is none
    unsigned columns_ = 1;
};

} // namespace

YioRscList::YioRscList(std::vector<YioRscValue> items) : items_(std::make_shared<Values>(std::move(items))) {}

unsigned YioRscList::count() const {
    return sizeOf(*items_);
}

YioRscValue* YioRscList::value(unsigned index) const {
    return index < count() ? &(*items_)[index] : nullptr;
}

YioRscTable::YioRscTable(std::vector<YioRscValue> cells, unsigned columns)
    : cells_(std::make_shared<Values>(std::move(cells))),
      columns_(std::max(columns, 1U)) {}

unsigned YioRscTable::rowCount() const {
    return sizeOf(*cells_) / columns_ + (sizeOf(*cells_) % columns_ != 0);
}

YioRscValue* YioRscTable::value(unsigned row, unsigned column) const {
    if (row >= rowCount() || column >= columns_) return nullptr;
    const std::size_t index = std::size_t{row} * columns_ + column;
    return index < cells_->size() ? &(*cells_)[index] : nullptr;
}

YioRscValue::~YioRscValue() = default;

YioRscValue* YioRscValue::copy() const {
    return new YioRscValue(*this);
}

int YioRscValue::kind() const {
    static constexpr Kind kinds[] = {KindText, KindTable, KindList};
    return kinds[content_.index()];
}

YioRscTable* YioRscValue::table() {
    return std::get_if<YioRscTable>(&content_);
}

YioRscList* YioRscValue::list() {
    return std::get_if<YioRscList>(&content_);
}

unsigned YioRscValue::count() const {
    if (const auto* table = std::get_if<YioRscTable>(&content_)) return table->rowCount();
    if (const auto* list = std::get_if<YioRscList>(&content_)) return list->count();
    return 1;
}

const char* YioRscValue::string() const {
    const auto* text = std::get_if<YString>(&content_);
    return text ? static_cast<const char*>(*text) : nullptr;
}

YioRscFile::YioRscFile(const char* path) {
    std::string bytes;
    if (!bexa::detail::os::readWholeFile(path, bytes)) return;
    const YioRscJCoding fileCoding = bexa::detail::scanCoding(bytes);
    RscScanner scanner(std::move(bytes), fileCoding, bexa::detail::processCoding());
    KeyedParser(scanner, entries_).takeEntries();
}

YioRscFile::~YioRscFile() = default;

YioRscValue* YioRscFile::value(const char* key) const {
    if (!key) return nullptr;
    const auto entry = entries_.find(key);
    return entry == entries_.end() ? nullptr : entry->second.copy();
}
