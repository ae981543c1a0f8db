// A new circuit resource, never written, with the delimiters that a test wants.
#pragma once

#include "bexa/circuitrc/datarc.h"
#include "tests/names/naming.h"

namespace naming {

class ResourceWithMarks {
public:
    explicit ResourceWithMarks(const Marks& marks = {})
        : rc_(BexDatarc::open("never-written", BexOpenCreate, nullptr)) {
        rc_->set("busStartChar", marks.busStart, 0, 0);
        rc_->set("busEndChar", marks.busEnd, 0, 0);
        rc_->set("rangeEndChar", marks.rangeEnd, 0, 0);
        rc_->set("bitEndChar", marks.bitEnd, 0, 0);
        rc_->set("rangeStepChar", marks.rangeStep, 0, 0);
    }
    ~ResourceWithMarks() { BexDatarc::close(rc_, BexCloseDiscard); }
    ResourceWithMarks(const ResourceWithMarks&) = delete;
    ResourceWithMarks& operator=(const ResourceWithMarks&) = delete;

    operator const BexDatarc&() const { return *rc_; } // NOLINT(google-explicit-constructor)

private:
    BexDatarc* rc_;
};

} // namespace naming
