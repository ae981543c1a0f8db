// The settings of the design-rule check of a schematic.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/ygeneral/ystring_array.h"

class YioRscFile;

// Twelve checks, each with a switch and a colour, some with parameters of their own. All values but `connectPin` are
// texts as the file has them, unchecked.
class BEXA_API DrcResource {
public:
    // The numbers of the checks, by which the first three arrays are ordered.
    enum Check : int {
        OpenPin = 0,
        OpenNode = 1,
        FanOut = 2,
        NearNet = 3,
        NetlabelPosition = 4,
        DuplicateReference = 5,
        DuplicateNetLabel = 6,
        DuplicateProperty = 7,
        LackingProperty = 8,
        ShortNet = 9,
        UnmatchBus = 10,
        PowerGround = 11,
    };

    DrcResource();
    DrcResource(const DrcResource&) = default;
    ~DrcResource() = default;
    // Takes every member but `checkName`, which is the same in all objects.
    DrcResource& operator=(const DrcResource& other);

    // Reads the user's file "drccheck", or that of the installation if the user has none. 0, with nothing changed,
    // when neither exists. What a check doesn't say stays as it was, and a malformed check harms no other: the part
    // before its fault counts. Kept on purpose: `pinKind` and the two arrays of `lackingFocus` are only added to, so
    // loading twice doubles them.
    unsigned long load();
    // The same for the file at `path`, whoever's it is. Null is a file that doesn't exist.
    unsigned long load(const char* path);
    // Writes the user's file, whatever was read. 0 if it can't be opened for writing; a write that fails is not
    // noticed. Kept on purpose: `connectPin` is read and never written, `refdupMode` is written and never read, so
    // neither survives a save and a load; and nothing is quoted, so what is empty or has a blank doesn't read back.
    unsigned long save();

    YString_Array checkName;          // the short names: "pin", "node", "fanout" ...
    YString_Array checkSwitch;        // "ON" or "OFF", at first all "ON"
    YString_Array checkColor;         // the colours of the marks, at first all "2"
    YString_Array pinKind;            // OpenPin: kinds of pins
    YString fanoutCount = "10";       // FanOut
    YString nearNetClearance = "5.0"; // NearNet
    unsigned long connectPin = 1;     // NearNet
    YString labelClearance = "10.0";  // NetlabelPosition
    YString propertyFocus = "all";    // DuplicateProperty
    YString_Array lackingFocusName;   // LackingProperty: pairs of a name
    YString_Array lackingFocusValue;  // and a value
    YString refdupMode = "pinNumber"; // DuplicateReference

private:
    // 0 if the check is missing or malformed.
    unsigned long readSetting(const YioRscFile& file, int index);
};
