// The types of property values.
#pragma once

// The numbers are kept by callers: never change one.
enum BexPropValueType : int {
    BexPropTypeInt = 0,
    BexPropTypeFloat = 1,
    BexPropTypeText = 2,
    BexPropTypeHide = 3,
    BexPropTypeRefTable = 4,
    BexPropTypeRefFile = 5,
    BexPropTypeUnknown = 6, // has no word: a type that is missing or not understood
};
