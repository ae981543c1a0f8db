#include "bexa/design/comp_kind.h"

#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/rsc_value_readers.h"

#include <exception>
#include <memory>
#include <string_view>

using namespace bexa::detail;

namespace {

constexpr char kindsKey[] = "ComponentKind";
constexpr int kindsColumns = 3;
constexpr unsigned numberCellSize = 10;
constexpr unsigned textCellSize = 256;

// The copy is made first, so that without memory the old text stays.
unsigned long replaceText(YString& text, const char* replacement) try {
    if (!replacement) return 0;
    text = YString(replacement);
    return 1;
} catch (const std::exception&) {
    return 0;
}

} // namespace

BexCompKindRec::BexCompKindRec(unsigned type, const char* refHeader, const char* comment)
    : type_(type),
      comment_(comment),
      refHeader_(refHeader) {}

unsigned long BexCompKindRec::type(unsigned type) {
    type_ = type;
    if (list_) list_->byTypeIsStale_ = true;
    return 1;
}

unsigned long BexCompKindRec::comment(const char* text) {
    return replaceText(comment_, text);
}

unsigned long BexCompKindRec::refHeader(const char* text) {
    return replaceText(refHeader_, text);
}

BexCompKind::BexCompKind(const char* path, BexOpenMode mode) : fileName_(path), openMode_(mode) {}

BexCompKind::~BexCompKind() {
    removeAll();
}

BexCompKind* BexCompKind::open(const char* path, BexOpenMode mode) {
    return RscAccess::open<BexCompKind>(path, mode, path, mode);
}

unsigned long BexCompKind::close(BexCompKind* kinds, BexCloseMode mode) {
    return RscAccess::close(kinds, mode, [](BexCompKind& open) { return open.save(); });
}

unsigned long BexCompKind::save() {
    return saveByMode(openMode(), [this](BexSaveMode mode) { return saveAs(fileName(), mode); });
}

unsigned long BexCompKind::saveAs(const char* path, BexSaveMode mode) {
    return maySave(path, mode) && write(path);
}

unsigned long BexCompKind::netHeader(const char* text) {
    return replaceText(netHeader_, text);
}

unsigned long BexCompKind::busHeader(const char* text) {
    return replaceText(busHeader_, text);
}

unsigned long BexCompKind::defaultBlockRefHeader(const char* text) {
    return replaceText(defaultBlockRefHeader_, text);
}

unsigned long BexCompKind::defaultSymbRefHeader(const char* text) {
    return replaceText(defaultSymbRefHeader_, text);
}

BexCompKindRec* BexCompKind::compKind(unsigned type) const {
    if (byTypeIsStale_) {
        byType_.clear();
        for (BexCompKindRec* record = first_; record; record = record->next_) {
            byType_.try_emplace(record->type_, record);
        }
        byTypeIsStale_ = false;
    }
    const auto found = byType_.find(type);
    return found == byType_.end() ? nullptr : found->second;
}

unsigned long BexCompKind::compKind(unsigned type, const char* text1, const char* text2) try {
    BexCompKindRec* known = compKind(type);
    if (!known) return attach(std::make_unique<BexCompKindRec>(type, text1, text2));
    const unsigned long commented = known->comment(text1);
    return known->refHeader(text2) && commented;
} catch (const std::exception&) {
    return 0;
}

const char* BexCompKind::refHeader(unsigned type, unsigned long isBlock) const {
    if (const BexCompKindRec* known = compKind(type)) return known->refHeader();
    return isBlock ? defaultBlockRefHeader() : defaultSymbRefHeader();
}

// A record that stands in a list already is refused, and ends here.
unsigned long BexCompKind::attach(std::unique_ptr<BexCompKindRec> record) {
    if (record->next_) return 0;
    byType_.try_emplace(record->type_, record.get());
    record->list_ = this;
    BexCompKindRec*& link = last_ ? last_->next_ : first_;
    last_ = link = record.release();
    ++count_;
    return 1;
}

void BexCompKind::removeAll() {
    while (first_) {
        const std::unique_ptr<BexCompKindRec> record(first_);
        first_ = record->next_;
    }
    last_ = nullptr;
    count_ = 0;
    byType_.clear();
}

// The keys of the four header texts, in the order of writing.
struct BexCompKind::HeaderKey {
    std::string_view key;
    YString BexCompKind::*header;
};

std::span<const BexCompKind::HeaderKey> BexCompKind::headerKeys() {
    static constexpr HeaderKey keys[] = {
        {"sNetNameHeader", &BexCompKind::netHeader_},
        {"bNetNameHeader", &BexCompKind::busHeader_},
        // Kept on purpose: the small h of these two.
        {"dBlockRefheader", &BexCompKind::defaultBlockRefHeader_},
        {"dSymbolRefheader", &BexCompKind::defaultSymbRefHeader_},
    };
    return keys;
}

unsigned long BexCompKind::load() {
    YioRscLoad reader = openReader(fileName_);
    for (;;) {
        const YioRscLoad::Token key = reader.next(keySize);
        if (key.type != YioRscLoad::TypeKeyword) return key.type == YioRscLoad::TypeEnd;
        if (!loadEntry(reader, key.text)) return 0;
    }
}

bool BexCompKind::loadEntry(YioRscLoad& reader, std::string_view key) {
    if (key == kindsKey) return loadKinds(reader);
    for (const HeaderKey& row : headerKeys()) {
        std::string_view text;
        if (row.key == key) return loadText(reader, text) && (this->*row.header).assign(text);
    }
    return false;
}

// ComponentKind 3 { { number comment refHeader } }
bool BexCompKind::loadKinds(YioRscLoad& reader) {
    if (!loadTableHead(reader, kindsColumns, numberCellSize)) return false;
    for (;;) {
        const YioRscLoad::Token cell = reader.next(numberCellSize);
        if (cell.type == YioRscLoad::TypeClose) return true;
        if (cell.type != YioRscLoad::TypeValue || !loadKind(reader, numberOf(cell.text))) return false;
    }
}

bool BexCompKind::loadKind(YioRscLoad& reader, int type) {
    std::string_view text;
    if (type < 0 || !loadCell(reader, text, textCellSize)) return false;
    const YString comment(text);
    if (!loadCell(reader, text, textCellSize)) return false;
    const YString refHeader(text);
    return compKind(static_cast<unsigned>(type), refHeader, comment) != 0;
}

bool BexCompKind::write(const char* path) const {
    RscText file;
    for (const HeaderKey& row : headerKeys()) file.word(row.key, (this->*row.header).view());
    file.openTable(kindsKey, kindsColumns);
    for (const BexCompKindRec* record = first_; record; record = record->next_) {
        file.cell(record->type_).gap().quotedCell(record->comment()).quotedCell(record->refHeader()).endRow();
    }
    return file.closeTable().writeTo(path);
}
