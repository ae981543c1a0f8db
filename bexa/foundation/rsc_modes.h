// How a resource object is opened, saved and closed, and what its file may claim.
#pragma once

// What an object may do, fixed for its life.
enum BexOpenMode : int {
    BexOpenCreate = 0, // a new file, which must not exist yet; nothing is read
    BexOpenUpdate = 1, // an existing file, read now and written back later
    BexOpenRead = 2,   // an existing file, never written under its own name
};

// What `close` does with the state of the object.
enum BexCloseMode : int {
    BexCloseSave = 0,    // save, then destroy; refused on a read-only object
    BexCloseDiscard = 1, // destroy without saving
    BexCloseAuto = 2,    // save unless the object is read-only, then destroy
};

// What `saveAs` asks of its target. Any other value asks nothing.
enum BexSaveMode : int {
    BexSaveNew = 0,       // the target must not exist
    BexSaveOverwrite = 1, // the target must exist and be writable
    BexSaveAny = 2,       // no test
};

namespace bexa {

// A table of a file has its rows below this index: a short line could otherwise claim all the memory there is. A row
// beyond counts as one that the table doesn't take.
inline constexpr int maxRowsFromFile = 1048576;

} // namespace bexa
