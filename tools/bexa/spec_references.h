#pragma once

#include <string>
#include <vector>

namespace tool {

// A row of a property specification that brings in rows of another file.
struct FileReference {
    std::string file;    // in which it stands
    std::string owner;   // the owner or table whose rows they become
    std::string path;    // as written
    std::string from;    // the section there
    std::string leadsTo; // the path with its variables replaced
    bool present;        // that file has that section
};

// A row that names a table of its own file that isn't there.
struct LostTable {
    std::string file;
    std::string owner;
    std::string table;
};

struct SpecReferences {
    std::vector<FileReference> files;
    std::vector<LostTable> lostTables;
};

// What the sections of a property specification refer to, from file to file. The objects of the library keep
// nothing of it: there, the rows of a reference file are rows of their owner.
SpecReferences referencesOf(const std::string& path, const std::vector<std::string>& sections);

} // namespace tool
