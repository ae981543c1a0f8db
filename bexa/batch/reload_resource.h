// The settings of the reload, which takes the data of components and pins back into a design.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

class YioRscFile;
class YioRscList;
class YioRscTable;

// A plain value. What the texts mean is the callers' business: they are stored as the file has them, unchecked. A new
// object holds empty texts and arrays, 0 and no file.
class BEXA_API BexReloadResource {
public:
    // Reads the file at `path`, its environment references replaced. Null reads the user's file "reload", or the
    // installation's for the language if the user has none. 0 when there is no such file: then nothing but the state
    // below changes.
    //
    // A key that is missing sets its field to the value of a missing key; one with a value of the wrong kind leaves
    // its field alone, and harms no other. Kept on purpose: tables and lists only add to their arrays, so reading
    // twice into one object joins what both files hold.
    unsigned long open(const char* path);

    // Writes the user's file, wherever the settings came from. 0 if it can't be opened for writing; a write that fails
    // is not noticed. Kept on purpose: the two settings of symbol pins are not written, so a saved file never counts
    // as wholly loaded (isLoadOK), and reading it turns the matching off; and nothing is quoted, so a text with a blank
    // doesn't read back as it was.
    unsigned long save();

    // The state after the last `open`.
    // Where the settings came from: 0 nowhere, 1 the installation's file, 2 the user's, 3 one named by the caller.
    int loadmap() const { return loadmap_; }
    // The path that was read, empty after a failure.
    const YString& pathname() const { return pathname_; }
    // 1 if there was a file; and if it held every key with a fitting value.
    unsigned long isValid() const { return isValid_; }
    unsigned long isLoadOK() const { return isLoadOK_; }

    // Missing: "NO".
    const YString& noMountReload() const { return noMountReload_; }
    // Missing: "ALL".
    const YString& compRefmode() const { return compRefmode_; }
    const YString& pinRefmode() const { return pinRefmode_; }
    // Names of properties, each once. Missing: empty.
    const YString_Array& compProperty() const { return compProperty_; }
    const YString_Array& pinProperty() const { return pinProperty_; }
    long compPropSize() const { return compProperty_.size(); }
    long pinPropSize() const { return pinProperty_.size(); }
    // Missing: "YES".
    const YString& writeEmptyProperty() const { return writeEmptyProperty_; }
    const YString& writeEmptyPinProperty() const { return writeEmptyPinProperty_; }
    // Two texts, of which the file may leave out the second: it is "partName" then. Missing: empty.
    const YString_Array& dispPartName() const { return dispPartName_; }
    // Three texts, of which the file may leave out the third: it is "always" then. Missing: empty.
    const YString_Array& skipCompByProp() const { return skipCompByProp_; }
    // 1 if the file says "yes" in any case of letters. Missing: 0. Kept on purpose: any other word leaves it as it was.
    unsigned long checkSymbolPinMatching() const { return checkSymbolPinMatching_; }
    // Null when it is empty.
    const char* checkSymbolPinKey() const;

private:
    struct Setting;
    static const Setting settings_[];
    static const Setting& writtenAt(int place);

    unsigned long load();
    unsigned long loadfile(const char* path);
    unsigned long readAll();
    unsigned long foundNothing();
    // Reads the setting of a row of the table. 0 if its key is missing or its value doesn't fit.
    unsigned long readParameter(const YioRscFile& file, int index);
    void setMissing(const Setting& setting);
    bool takeText(const Setting& setting, const char* text);
    bool takeTable(const Setting& setting, const YioRscTable& table);
    bool takeList(const Setting& setting, const YioRscList& list);

    YString noMountReload_;
    YString compRefmode_;
    YString pinRefmode_;
    YString_Array compProperty_;
    YString_Array pinProperty_;
    YString writeEmptyProperty_;
    YString writeEmptyPinProperty_;
    YString_Array dispPartName_;
    YString_Array skipCompByProp_;
    unsigned long checkSymbolPinMatching_ = 0;
    YString checkSymbolPinKey_;
    int loadmap_ = 0;
    YString pathname_;
    unsigned long isValid_ = 0;
    unsigned long isLoadOK_ = 0;
};
