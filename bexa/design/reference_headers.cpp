#include "bexa/design/reference_headers.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>

namespace {

std::string_view orEmpty(const char* text) {
    return text ? text : "";
}

} // namespace

unsigned long BexRefHeader::value(YString& out) const {
    YString text(header_);
    text.concat(std::to_string(count_));
    out = std::move(text);
    return 1;
}

unsigned long BexRefHeader::value(char* out, unsigned size) const {
    YString text;
    value(text);
    const std::string_view reference = text.view();
    if (!out || reference.size() >= size) return 0;
    *std::ranges::copy(reference, out).out = '\0';
    return 1;
}

BexRefHeaderSet::~BexRefHeaderSet() {
    while (first_) delete std::exchange(first_, first_->next_);
}

BexRefHeader* BexRefHeaderSet::lookup(const char* text) const {
    return find(orEmpty(text));
}

BexRefHeader* BexRefHeaderSet::find(std::string_view text) const {
    const auto found = index_.find(text);
    return found == index_.end() ? nullptr : found->second;
}

BexRefHeader* BexRefHeaderSet::attach(const char* text) {
    if (BexRefHeader* known = lookup(text)) return known;
    auto* header = new BexRefHeader(orEmpty(text));
    (last_ ? last_->next_ : first_) = header;
    last_ = header;
    index_.emplace(header->header_.view(), header);
    return header;
}

void BexRefHeaderSet::printOn(std::ostream& out) const {
    for (const BexRefHeader* header = first_; header; header = header->next()) {
        out << header->header() << ' ' << header->count() << '\n';
    }
}

BexRefInfoSet::~BexRefInfoSet() {
    // One by one: a long list that ended from its first tie would end in as many nested calls.
    while (first_) first_ = std::move(first_->next_);
}

BexRefInfo* BexRefInfoSet::lookup(unsigned kind) const {
    const auto found = index_.find(kind);
    return found == index_.end() ? nullptr : found->second;
}

unsigned long BexRefInfoSet::attach(BexRefInfo& info) {
    if (info.attached_) return 0;
    info.attached_ = true;
    (last_ ? last_->next_ : first_).reset(&info);
    last_ = &info;
    index_.try_emplace(info.kind(), &info);
    return 1;
}
