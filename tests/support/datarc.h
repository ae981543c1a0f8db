#pragma once

#include "bexa/circuitrc/datarc.h"

#include <memory>

namespace bexa::test {

struct DiscardDatarc {
    void operator()(BexDatarc* rc) const { BexDatarc::close(rc, BexCloseDiscard); }
};
using DatarcPtr = std::unique_ptr<BexDatarc, DiscardDatarc>;

// A circuit resource with the built-in values, of a circuit in `currentDir`. Nothing of it is on the disk.
inline DatarcPtr newDatarc(const char* currentDir = ".") {
    return DatarcPtr(BexDatarc::open("no-such-directory/resource.rsc", BexOpenCreate, currentDir));
}

} // namespace bexa::test
