// A dictionary from texts to pointers, and the hash that it shares with the registry of sheet locks.
#pragma once

#include "bexa/export.h"

#include <memory>

class BexStrAssoc;

// A 32-bit hash of the text, its bytes taken as signed characters: each is XORed into the hash, which is then rotated
// left by one bit. 0 for a null or empty text. Kept on purpose: numbered names share few values, but the order in
// which a dictionary is walked depends on them.
BEXA_API unsigned long BexStrHash(const char* text);

// Maps texts to pointers. The dictionary keeps a copy of each key; the values stay the caller's and are never touched.
// A null key counts as the empty text everywhere.
//
// The table of buckets has one of a fixed list of prime sizes and grows when it holds more than two keys a bucket.
// Finding, adding and removing a key cost the same for any number and any kind of keys.
class BEXA_API BexStrDictionary {
public:
    BexStrDictionary();
    // The table starts with the first listed prime above twice `size`; above the list with its last, 131357.
    explicit BexStrDictionary(unsigned size);
    ~BexStrDictionary();
    BexStrDictionary(const BexStrDictionary&) = delete;
    BexStrDictionary& operator=(const BexStrDictionary&) = delete;

    // Adds a key. 0, with nothing changed, when the key is there already or memory runs out.
    unsigned long attach(const char* key, void* value);

    // Removes a key and returns its value; null when the key isn't there.
    void* detach(const char* key);

    // Removes all keys; the table keeps its size. Always 1.
    unsigned long detachAll();

    // The value of a key; null when the key isn't there, which a stored null can't be told from.
    void* lookup(const char* key) const;

    // Calls `fn` for each key, bucket by bucket, in a bucket the latest key first: not the order of insertion, and
    // another one after growth. A nonzero result stops the walk and gives 1; the end of the walk gives 0. The
    // function must not change the dictionary.
    unsigned long forEach(unsigned long (*fn)(void* arg, const char* key, void* value), void* arg) const;

    // The number of keys, and of buckets.
    unsigned count() const;
    unsigned tableSize() const;

private:
    unsigned long tableSize(unsigned size);

    class Table;
    std::unique_ptr<Table> table_;
};
