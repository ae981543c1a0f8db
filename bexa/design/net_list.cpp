#include "bexa/design/net_list.h"

#include "bexa/design/comp_kind.h"
#include "bexa/foundation/rsc_entry_writers.h"
#include "bexa/foundation/rsc_lifecycle.h"
#include "bexa/foundation/rsc_value_readers.h"

#include <algorithm>
#include <iterator>
#include <memory>

using bexa::detail::RscAccess;
using bexa::detail::RscText;

struct BexNetList::Table {
    const char* key;
    // The room for a header text when it is read.
    unsigned textSize;
    // The only header of the table; null where it has all those of components.
    BexRefHeader BexNetList::*label;
};

// In the order of writing.
// clang-format off
constexpr BexNetList::Table BexNetList::tables_[] = {
    {"netLabelHeader",   10, &BexNetList::netLabel_},
    {"busLabelHeader",   10, &BexNetList::busLabel_},
    {"referenceHeader", 256, nullptr},
};
// clang-format on

namespace {

constexpr int columns = 2;
constexpr unsigned markSize = 10;
constexpr unsigned countSize = 14;

void writeRow(RscText& file, const BexRefHeader& header) {
    file.quotedCell(header.header()).cell(header.count()).endRow();
}

} // namespace

BexNetList::BexNetList(const char* path, BexOpenMode mode, const BexCompKind& kinds)
    : fileName_(path),
      openMode_(mode),
      netLabel_(kinds.netHeader()),
      busLabel_(kinds.busHeader()),
      defaultSymbol_(0, *headers_.attach(kinds.defaultSymbRefHeader())),
      defaultBlock_(0, *headers_.attach(kinds.defaultBlockRefHeader())) {
    for (const BexCompKindRec* kind = kinds.first(); kind; kind = kind->next()) {
        BexRefHeader& header = *headers_.attach(kind->refHeader());
        infos_.attach(*std::make_unique<BexRefInfo>(kind->type(), header).release());
    }
}

BexNetList* BexNetList::open(const char* path, BexOpenMode mode, const BexCompKind& kinds) {
    return RscAccess::open<BexNetList>(path, mode, path, mode, kinds);
}

unsigned long BexNetList::close(BexNetList* netList, BexCloseMode mode) {
    return RscAccess::close(netList, mode, [](BexNetList& open) { return open.save(); });
}

unsigned long BexNetList::save() {
    return bexa::detail::saveByMode(openMode_, [this](BexSaveMode mode) { return saveAs(fileName_, mode); });
}

unsigned long BexNetList::saveAs(const char* path, BexSaveMode mode) {
    return bexa::detail::maySave(path, mode) && write(path);
}

BexRefHeader* BexNetList::reference(unsigned kind, unsigned long isBlock) {
    if (const BexRefInfo* info = infos_.lookup(kind)) return info->refHeader();
    return (isBlock ? defaultBlock_ : defaultSymbol_).refHeader();
}

unsigned long BexNetList::load() {
    YioRscLoad reader = bexa::detail::openReader(fileName_);
    for (;;) {
        const YioRscLoad::Token key = reader.next(bexa::detail::keySize);
        if (key.type == YioRscLoad::TypeEnd) return 1;
        if (key.type != YioRscLoad::TypeKeyword) return 0;
        const auto* table = std::ranges::find(tables_, key.text, &Table::key);
        if (table == std::end(tables_) || !loadTable(reader, *table)) return 0;
    }
}

// Each row is a header text and a count. Kept on purpose: the text in the row of a label is dropped, so the label keeps
// the one it has from the component kinds; and a count has to be at least 1 even where its header isn't known.
bool BexNetList::loadTable(YioRscLoad& reader, const Table& table) {
    if (!bexa::detail::loadTableHead(reader, columns, markSize)) return false;
    for (;;) {
        const YioRscLoad::Token text = reader.next(table.textSize);
        if (text.type == YioRscLoad::TypeClose) return true;
        BexRefHeader* header = table.label ? &(this->*table.label) : headers_.find(text.text);
        int count = 0;
        if (!bexa::detail::loadCell(reader, count, countSize) || count < 1) return false;
        if (header) header->count(static_cast<unsigned long>(count));
    }
}

bool BexNetList::write(const char* path) const {
    RscText file;
    for (const Table& table : tables_) {
        file.openTable(table.key, columns);
        if (table.label) writeRow(file, this->*table.label);
        const BexRefHeader* header = table.label ? nullptr : headers_.first();
        for (; header; header = header->next()) writeRow(file, *header);
        file.closeTable();
    }
    return file.writeTo(path);
}
