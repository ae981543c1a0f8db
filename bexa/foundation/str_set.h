// A set of texts.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/yset.h"

// A YSet whose elements are C texts from the heap of the C library. A null counts as an empty text where texts are
// compared, and can't be held.
//
// `attach` takes the memory of its text over, without a copy; `deleteAll` gives it back with `free`, and so must a
// caller with what `detach` returns. The end of a set, and a copy of one, leave the texts alone: a copy holds the same
// pointers, so only one of the two may delete them.
class BEXA_API BexStrSet : public YSet {
public:
    BexStrSet() = default;
    // A table of `size` slots to begin with.
    explicit BexStrSet(unsigned size) : YSet(size) {}
    BexStrSet(const BexStrSet& other) = default;
    BexStrSet& operator=(const BexStrSet& other) = default;
    ~BexStrSet() override = default;

    // The text that the set holds for this key afterwards: where it isn't `text`, an equal one was there already and
    // `text` stays the caller's.
    char* attach(char* text) { return static_cast<char*>(YSet::attach(text)); }
    char* detach(const char* text) { return static_cast<char*>(YSet::detach(text)); }
    char* search(const char* text) const { return static_cast<char*>(YSet::search(text)); }
    unsigned long contains(const char* text) const { return YSet::contains(text); }

    BexStrSet* copy() const override;

protected:
    unsigned long compare(const void* key, const void* held) const override;
    // Not the hash of BexStrDictionary: four bits a character, folded into 28.
    unsigned long hashValue(const void* key) const override;
    void deleteIt(void* element) override;
};
