#include "tools/bexa/check_report.h"

#include "tools/bexa/problem.h"

#include "bexa/batch/batch_errors.h"
#include "bexa/store/file.h"

#include <string>

namespace tool {
namespace {

// One of the two files of a report.
struct Channel {
    void (BexBatErr::*message)(unsigned, const char*, ...);
    void (BexBatErr::*text)(const char*);
    void (BexBatErr::*indented)(const char*);
};
constexpr Channel channels[] = {
    {&BexBatErr::msgWriteErr, &BexBatErr::freeWriteErr, &BexBatErr::freeTWriteErr},
    {&BexBatErr::msgWriteWarn, &BexBatErr::freeWriteWarn, &BexBatErr::freeTWriteWarn},
};

void write(BexBatErr& report, const Finding& finding) {
    const Channel& channel = channels[static_cast<std::size_t>(finding.texts().severity)];
    const unsigned number = finding.texts().message;
    const char* argument = finding.argument.c_str();
    if (report.getShortMsg(number, 0, argument) != nullptr) {
        (report.*channel.message)(number, finding.where.c_str(), argument);
        return;
    }
    // The same entry without a catalogue.
    const std::string text =
        "\n<Mess." + std::to_string(number) + "> " + finding.what() + ": " + finding.texts().remedy + '\n';
    (report.*channel.text)(text.c_str());
    (report.*channel.indented)(("objectId:" + finding.where + '\n').c_str());
}

} // namespace

void writeReports(const Findings& findings, const std::string& directory, const std::string& shown) {
    BexBatErr report("YDSROOT/bexa");
    report.dirSet(directory.c_str());
    if (!BexFile::isDir(directory.c_str()) || !report.progSet("check", 0)) {
        throw unusable("the reports cannot be written", shown,
                       "give a directory that is there and in which you may write");
    }
    // Their date would make equal reports differ.
    report.printErrHeader(0);
    report.printWarnHeader(0);
    for (const Finding& finding : findings.all()) write(report, finding);
}

} // namespace tool
