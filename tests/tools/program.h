#pragma once

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <vector>

namespace bexa::test {

using Json = nlohmann::ordered_json;

// How the program ended, and the bytes that it wrote.
struct Outcome {
    int code;
    std::string out;
    std::string err;
};

// Runs the program in a copy of the amplifier sample, which is the current directory of the process, with an
// environment of its own: UTF-8, the sample's installation and an empty home.
class Program : public testing::Test {
protected:
    Program();

    using Arguments = std::vector<std::string>;
    Outcome run(const Arguments& arguments) const;
    // The output of a run that must be good, and that output read as JSON.
    std::string good(const Arguments& arguments) const;
    Json json(Arguments arguments) const;
    // The exit code of a run whose output goes to `path`.
    int runInto(const std::string& path, const Arguments& arguments) const;
    // The exit code of a run whose output nobody reads, and of one without any output.
    int runIntoClosedPipe(const Arguments& arguments) const;
    int runWithoutOutput(const Arguments& arguments) const;

    // The exit codes of runs at the same time, one for each value of the variable.
    std::vector<int> runTogether(const std::string& variable, const std::vector<std::string>& values,
                                 const Arguments& arguments) const;

    // The runs to come are the user nobody's, if root runs the test: permissions don't bite for root. False if nobody
    // can't run the program where it lies.
    bool becomeNobody();

    // A path inside the copy, and a change of a variable for the runs to come.
    std::string file(const std::string& name) const { return directory_.file("sample/" + name); }
    void set(const std::string& variable, const std::string& value) { environment_[variable] = value; }
    // Removes a variable for the runs to come.
    void unset(const std::string& variable) { environment_.erase(variable); }

private:
    using Variables = std::map<std::string, std::string>;
    int start(const Arguments& arguments, int out, int err) const;
    // Becomes the program; returns only if that fails.
    int become(const Arguments& arguments, const Variables& variables, int out, int err) const;

    TempDir directory_;
    Variables environment_;
    bool asNobody_ = false;
};

// A file of tests/data/tools with the output that is expected. To renew one, run the command of its test in
// examples/amplifier, with the variables of the fixture, and read the difference before it is committed.
std::string expected(const std::string& name);

} // namespace bexa::test
