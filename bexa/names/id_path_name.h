// The address of an object inside a hierarchy.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/names/id_name.h"

// Identified names with a "." between them, `cmp4.cmp17.cpn2`. The elements of the array are the links, from
// the outermost on; the text goes with them as long as only the operations of this class change them.
class BEXA_API BexIdPathName : public BexIdName_Array {
public:
    // No links and no text.
    BexIdPathName() noexcept = default;
    // Copies the links, valid or not, and joins their names.
    BexIdPathName(const BexIdName_Array& links); // NOLINT(google-explicit-constructor): callers rely on it
    BexIdPathName(const BexIdName& link);        // NOLINT(google-explicit-constructor): callers rely on it
    // As pathName().
    BexIdPathName(const char* text, BexObjectType context);

    // Reads a path; all links have the same context. 1 if each of them is valid, otherwise 0 and no links.
    // Kept on purpose: the text is kept even so, and append() writes behind it.
    unsigned long pathName(const char* text, BexObjectType context);

    const char* pathName() const noexcept { return pathName_; }
    int idNameCount() const noexcept { return size(); }
    // 1 if there is a link.
    unsigned long isValid() const noexcept { return size() > 0; }
    // Copies the link to `out`; 0, with `out` unchanged, if there is none of this index.
    unsigned long idName(int index, BexIdName& out) const;

    // Put the links of the other, valid or not, behind or ahead of the own ones, and its text with a "."
    // unless there is one already or one of the texts is empty. Always 1.
    unsigned long append(const BexIdPathName& other);
    unsigned long append(const BexIdName& link);
    unsigned long insert(const BexIdPathName& other);
    unsigned long insert(const BexIdName& link);

private:
    bool readLinks(BexObjectType context);
    void appendText(const YString& text);

    YString pathName_;
};
