// What the tests of batch reports share: a catalogue, a program that reports, and what its header looks like.
#pragma once

#include "bexa/batch/batch_errors.h"
#include "tests/batch/batch_fixture.h"
#include "tests/support/child.h"

#include <cstdio>
#include <functional>
#include <regex>
#include <string>

namespace bexa::test {

inline constexpr char messages[] = "message 2 {\n"
                                   "100 \"low\"\n"
                                   "200 \"net %s\"\n"
                                   "300 \"%d pins of %s\"\n"
                                   "400 \"\"\n"
                                   "12345678 \"long number\"\n"
                                   "4294967295 \"highest\"\n"
                                   "}\n";

inline const std::string rule(70, '#');

// What `ctime` gives, in place of which the expected texts have "<date>".
inline std::string undated(const std::string& report) {
    static const std::regex date(
        "[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} [0-9]{4}\n");
    return std::regex_replace(report, date, "<date>\n");
}

inline std::string header(const std::string& text) {
    return rule + "\n#\n#            " + text + "\n#\n#            <date>\n#\n" + rule + "\n";
}

inline const std::string errorHeader = header("Error Occurred !!!");

class BatchErrors : public BatchFixture {
protected:
    BatchErrors() {
        dir.makeDirectory("system/msg/eng");
        writeFile(dir.file("system/msg/eng/check.rsc"), messages);
    }

    std::string errors() const { return undated(contentOf(dir.file("job.err"))); }
    std::string warnings() const { return undated(contentOf(dir.file("job.wrn"))); }

    // The errors of one run of a program that names its files and then does what `use` says.
    std::string errorsOf(const std::function<void(BexBatErr&)>& use, unsigned long append = 0) const {
        {
            BexBatErr report("check");
            report.dirSet(dir.path().c_str());
            EXPECT_EQ(report.progSet("job", append), 1UL);
            use(report);
        }
        return exists(dir.file("job.err")) ? errors() : "no file";
    }

    // What a child that does what `use` says writes to the standard error stream.
    std::string standardErrorOf(const std::function<void()>& use) const {
        const std::string captured = dir.file("captured");
        const auto body = [&] {
            if (!std::freopen(captured.c_str(), "w", stderr)) return 1;
            use();
            return 0;
        };
        EXPECT_EQ(Child().run(body), 0);
        return undated(contentOf(captured));
    }
};

} // namespace bexa::test
