// The header of resource files: three comment lines, of which the last names the text coding.
#pragma once

#include "bexa/export.h"
#include "bexa/foundation/ygeneral/ystring.h"
#include "bexa/foundation/yrsc/token_reader.h"

class BEXA_API BexYioRsc {
public:
    // The header that writers put first: three lines, each with its line feed, no blank line behind them. The coding
    // is that of the process.
    static YString getHeaderString();

    // What a file declares. Both codings become that of the process and `version`, which may be null, "2.1x"; then
    // the comments at the start of the file may change `fileCoding` and `version`. A file that cannot be read leaves
    // it at that.
    // Kept on purpose: the first blank line ends the search, other lines don't. A header behind a blank line is not
    // seen.
    static void getRscJCoding(const char* path, YioRscJCoding& fileCoding, YioRscJCoding& localCoding,
                              YString* version);
};
