// The result of every name check.
#pragma once

// Callers store the numbers: never change one. Kept on purpose: no check has the result 3.
enum BexNetNameErrType : int {
    BexNetNameUnchecked = 0,   // nothing was checked: an object made by default, a null or empty name
    BexNetNameOk = 1,          // the name is valid
    BexNetNameSyntax = 2,      // the name breaks the grammar
    BexNetNameNoDelimiter = 4, // a required delimiter is the NUL character: the name was not looked at
};
