#include "bexa/batch/batch_error_list.h"

#include "bexa/foundation/ygeneral/ystring_compare.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <tuple>

namespace {

constexpr std::string_view objectIdHead = "             objectId:";

// An identifier and its components, the parts between dots, each with its terminator. Components are never empty, so
// an empty text ends them.
struct SortedId {
    explicit SortedId(std::string_view identifier) : text(identifier) {
        for (const char c : identifier) {
            if (c != '.') components += c;
            if (c == '.' && !components.empty() && components.back() != '\0') components += '\0';
        }
        components += '\0';
    }

    std::string_view text;
    std::string components;
};

// Stays at the end.
const char* nextComponent(const char* component) {
    return *component ? component + std::strlen(component) + 1 : component;
}

// Component by component; where one identifier ends before the other it counts as going on with empty ones.
bool sortsBefore(const SortedId& left, const SortedId& right) {
    const char* a = left.components.c_str();
    const char* b = right.components.c_str();
    for (; *a || *b; a = nextComponent(a), b = nextComponent(b)) {
        if (std::strcmp(a, b) == 0) continue; // most often, in front of the last component
        if (const int order = YStringCmp::ArithCmp(a, b); order != 0) return order < 0;
    }
    return false;
}

void appendSorted(std::string& report, const std::vector<const YString*>& identifiers) {
    std::vector<SortedId> sorted;
    sorted.reserve(identifiers.size());
    for (const YString* identifier : identifiers) sorted.emplace_back(identifier->view());
    // Between numbers and other texts the comparison is no strict order, and only some sorts bear that.
    std::stable_sort(sorted.begin(), sorted.end(), sortsBefore);
    for (const SortedId& identifier : sorted) bexa::detail::appendObjectId(report, identifier.text);
}

std::size_t hashOf(std::string_view text, std::uintptr_t other) {
    constexpr std::size_t spread = 0x9E3779B1; // spreads neighbouring numbers and addresses
    return std::hash<std::string_view>()(text) + other * spread;
}

} // namespace

void bexa::detail::appendMessage(std::string& report, unsigned number, std::string_view text) {
    std::array<char, 32> head = {};
    std::snprintf(head.data(), head.size(), "\n<Mess.%-5d> ", static_cast<int>(number));
    report.append(head.data()).append(text).append("\n");
}

void bexa::detail::appendObjectId(std::string& report, std::string_view identifier) {
    report.append(objectIdHead).append(identifier).append("\n");
}

std::size_t BexBatErrList::Hash::operator()(const Message& message) const {
    return hashOf(message.text.view(), message.number);
}

std::size_t BexBatErrList::Hash::operator()(const ObjectId& identifier) const {
    return hashOf(identifier.text.view(), reinterpret_cast<std::uintptr_t>(identifier.message));
}

void BexBatErrList::message(unsigned number, std::string_view text) {
    current_ = &messages_.try_emplace(Message{number, YString(text)}).first->second;
}

void BexBatErrList::objectId(std::string_view identifier) {
    if (!current_) return;
    const auto [known, isNew] = objectIds_.insert(ObjectId{current_, YString(identifier)});
    if (isNew) current_->push_back(&known->text);
}

std::vector<const BexBatErrList::Messages::value_type*> BexBatErrList::inOrder() const {
    std::vector<const Messages::value_type*> entries;
    entries.reserve(messages_.size());
    for (const auto& entry : messages_) entries.push_back(&entry);
    // Texts compare byte by byte as unsigned values.
    std::ranges::sort(entries, {}, [](const Messages::value_type* entry) {
        return std::tuple(entry->first.number, entry->first.text.view());
    });
    return entries;
}

void BexBatErrList::print(std::FILE* stream) const {
    std::string report;
    for (const Messages::value_type* entry : inOrder()) {
        report.clear();
        bexa::detail::appendMessage(report, entry->first.number, entry->first.text.view());
        appendSorted(report, entry->second);
        std::fwrite(report.data(), 1, report.size(), stream);
    }
    std::fflush(stream);
}
