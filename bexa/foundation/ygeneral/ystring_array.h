// A growable array of texts.
#pragma once

#include "bexa/foundation/array_family.h"
#include "bexa/foundation/ygeneral/ystring.h"

class YString_Array : public bexa::ArrayOf<YString, 256> {
public:
    using ArrayOf::ArrayOf;
};
