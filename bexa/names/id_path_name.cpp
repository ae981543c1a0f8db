#include "bexa/names/id_path_name.h"

#include "bexa/foundation/text_cursor.h"

#include <utility>

using bexa::detail::TextCursor;

namespace {

constexpr char separator = '.';

} // namespace

BexIdPathName::BexIdPathName(const BexIdName_Array& links) : BexIdName_Array(links) {
    for (int i = 0; i < size(); ++i) {
        if (i > 0) pathName_ << separator;
        pathName_ << at(i).name();
    }
}

BexIdPathName::BexIdPathName(const BexIdName& link) {
    append(link);
}

BexIdPathName::BexIdPathName(const char* text, BexObjectType context) {
    pathName(text, context);
}

unsigned long BexIdPathName::pathName(const char* text, BexObjectType context) {
    pathName_ = text; // may be the name of a link, so the links go afterwards
    removeAll();
    if (readLinks(context)) return 1;
    removeAll();
    return 0;
}

// path = name, then any number of: "." name
bool BexIdPathName::readLinks(BexObjectType context) {
    TextCursor text(pathName_.view());
    do {
        const YString name(text.takeUntil(separator));
        if (!BexIdName_Array::end().idName(name, context)) return false;
    } while (text.take(separator));
    return true;
}

unsigned long BexIdPathName::idName(int index, BexIdName& out) const {
    if (index < 0 || index >= size()) return 0;
    out = at(index);
    return 1;
}

unsigned long BexIdPathName::append(const BexIdPathName& other) {
    // The other may be this very path.
    const YString text = other.pathName_;
    const int count = other.size();
    for (int i = 0; i < count; ++i) BexIdName_Array::append(other.at(i));
    appendText(text);
    return 1;
}

unsigned long BexIdPathName::append(const BexIdName& link) {
    const YString text = link.name(); // the link may be an element, which moves
    BexIdName_Array::append(link);
    appendText(text);
    return 1;
}

unsigned long BexIdPathName::insert(const BexIdPathName& other) {
    BexIdPathName path(other);
    path.append(*this);
    *this = std::move(path);
    return 1;
}

unsigned long BexIdPathName::insert(const BexIdName& link) {
    return insert(BexIdPathName(link));
}

void BexIdPathName::appendText(const YString& text) {
    const std::string_view path = pathName_.view();
    if (!path.empty() && text.length() != 0 && path.back() != separator) pathName_ << separator;
    pathName_.concat(text.view());
}
