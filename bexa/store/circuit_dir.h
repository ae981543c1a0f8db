// One look at a circuit on disk: what is there, and what the user may do with it.
#pragma once

#include "bexa/export.h"
#include "bexa/store/access_snapshot.h"

// What the file system said about a circuit, its directories and its files at the moment the path was set. Nothing is
// refreshed later; copying and assigning look at the source's path anew.
//
// An empty or null path gives an object without a circuit: its directories are the bare names in the current
// directory, the circuit resource is that of the installation, and there is no resource path list.
class BEXA_API BexCirDir : public BexSecDirectory {
public:
    BexCirDir() : BexCirDir("") {}
    BexCirDir(const char* path); // NOLINT(google-explicit-constructor): a path is as good as the object
    BexCirDir(const BexCirDir& other) : BexCirDir(static_cast<const char*>(other)) {}
    BexCirDir& operator=(const char* path);
    BexCirDir& operator=(const BexCirDir& other);
    ~BexCirDir() = default;

    const BexSecDirectory& GetLogDir() const { return log_; }
    const BexSecDirectory& GetExtDir() const { return ext_; }
    const BexSecDirectory& GetDrcDir() const { return drc_; }
    const BexSecDirectory& GetFrameDir() const { return frame_; }
    // The circuit resource "bexdata" that the circuit's resource path list leads to, else that of the installation.
    const BexSecFile& GetDatarc() const { return datarc_; }
    // The net-list report, log/netlist.
    const BexSecFile& GetNetlist() const { return netlist_; }
    const BexSecFile& GetRcpath() const { return rcpath_; }

    // Whether a user can edit the circuit: all five directories are there, resource path list and circuit resource are
    // readable, and a net-list report, if there is one, can be read and written.
    // Kept on purpose: the circuit resource need not be writable, nor any directory, since each counts as writable.
    unsigned long IsEditableCircuit() const;
    // Whether it can be opened for reading: the same with the directories and the report only readable. An empty
    // directory is not readable, so each needs at least one entry.
    unsigned long IsReadableCircuit() const;

    // Sets `out` to a file of the sheet with this name, which looks at the file at that moment. `name` may have the
    // suffix ".sht"; null counts as empty.
    void GetSheetFile(const char* name, BexSecFile& out) const;
    void GetTempSheetFile(const char* name, BexSecFile& out) const;
    // The lock file of the sheet, as BexGetLockFilename names it.
    void GetLockSheetFile(const char* name, BexSecFile& out) const;
    void GetSheetNetFile(const char* name, BexSecFile& out) const;

private:
    void look(const char* path);

    BexSecDirectory log_;
    BexSecDirectory ext_;
    BexSecDirectory drc_;
    BexSecDirectory frame_;
    BexSecFile datarc_;
    BexSecFile netlist_;
    BexSecFile rcpath_;
};
