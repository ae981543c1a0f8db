// Arrays and a stack of plain values. New elements are 0, or null.
#pragma once

#include "bexa/foundation/array_family.h"

class Yint_Array : public bexa::ArrayOf<int, 256> {
public:
    using ArrayOf::ArrayOf;
};

class Ylong_Array : public bexa::ArrayOf<long, 256> {
public:
    using ArrayOf::ArrayOf;
};

class Yptr_Array : public bexa::ArrayOf<void*, 256> {
public:
    using ArrayOf::ArrayOf;
};

class Yint_Stack : public bexa::StackOf<Yint_Array> {
public:
    using StackOf::StackOf;
};
