#include "tools/bexa/command.h"
#include "tools/bexa/text_file.h"

#include "bexa/batch/batch_errors.h"
#include "bexa/foundation/ycore/process.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tool {
namespace {

namespace fs = std::filesystem;

struct Options {
    std::string first;
    std::string second;
    std::string target;
};

// A directory of one's own beside a file, for what shall take the place of that file. It goes with its object.
class Workshop {
public:
    explicit Workshop(const fs::path& file) {
        constexpr int attempts = 100;
        const std::string name = ".bexa-" + std::to_string(Ygetpid()) + "-merge-";
        std::error_code failed;
        for (int i = 0; i < attempts && !isThere_ && !failed; ++i) {
            path_ = file.parent_path() / (name + std::to_string(i));
            isThere_ = fs::create_directory(path_, failed);
        }
        // What is made in it may be nobody else's business.
        if (isThere_) fs::permissions(path_, fs::perms::owner_all, failed);
    }
    ~Workshop() {
        std::error_code ignored;
        if (isThere_) fs::remove_all(path_, ignored);
    }
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;

    bool isThere() const { return isThere_; }
    std::string file(const char* name) const { return (path_ / name).string(); }

private:
    fs::path path_;
    bool isThere_ = false;
};

Problem cannotMake(const std::string& shown) {
    return unusable("the merged report cannot be written", shown,
                    "check that its directory is there, that you may write in it, and that there is room; "
                    "everything is as it was");
}

// What stands behind the lines at the start that begin with "#".
std::string_view behindHeader(std::string_view report) {
    while (!report.empty() && report.front() == '#') {
        report.remove_prefix(std::min(report.find('\n'), report.size() - 1) + 1);
    }
    return report;
}

// The merge reads texts: a NUL byte would hide what stands behind it.
void checkIsText(std::string_view report, const std::string& shown) {
    const std::size_t at = report.find('\0');
    if (at == std::string_view::npos) return;
    throw finding(bytesInWords(report, at) + " cannot stand in a report", inWords(shown, placeAt(report, at)),
                  "check that it is a report; nothing was written");
}

// At a header line that is too long the merge would end without the rest of the report. One that has no end would be
// merged as a message, and other programs of the suite would never finish with it.
void checkHeader(std::string_view report, const std::string& shown) {
    constexpr std::size_t longestLine = 1023; // with its line feed
    std::size_t offset = 0;
    std::size_t length = 0;
    const auto isGood = [&] { return length != std::string_view::npos && length < longestLine; };
    while (offset < report.size() && report[offset] == '#') {
        length = report.substr(offset).find('\n');
        if (!isGood()) break;
        offset += length + 1;
    }
    if (isGood()) return;
    const bool isOpen = length == std::string_view::npos;
    throw finding(isOpen ? "the report ends in its header, without a line feed"
                         : "a line of the header is too long",
                  inWords(shown, {placeAt(report, offset).line}),
                  isOpen ? "end the line, or write the report again; nothing was written"
                         : "shorten it to 1023 bytes with its line feed; nothing was written");
}

// A text takes the place of a file, never that of a device, a directory or a link that leads nowhere.
void checkTarget(const std::string& path, const std::string& shown) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(path, failed)) || fs::is_regular_file(path, failed)) return;
    throw unusable("something that is not a file stands there", shown, "give another target");
}

std::string mergedText(const Options& options, const std::string& shown) {
    const Workshop workshop(options.target);
    const std::string path = workshop.file("merged");
    if (!workshop.isThere() ||
        !BexBatErr::mergeFile(options.first.c_str(), options.second.c_str(), path.c_str())) {
        throw cannotMake(shown);
    }
    return contentOf(path, shown);
}

// The library doesn't notice when it can't write, so the result is looked at. With nothing behind the header it
// repeats a line, as all programs of the suite do.
void checkResult(std::string_view merged, std::string_view whole, const std::string& second,
                 const std::string& target, Output& out) {
    if (merged == whole) return;
    if (!merged.starts_with(whole)) throw cannotMake(target);
    out.report(
        finding("the report has nothing behind its header", second,
                "take the last line out of " + target +
                    ", where the last line of this report stands, or of the first one if this is empty"));
}

void merge(const Options& options, Output& out) {
    const std::string first = out.systemText(options.first.c_str());
    const std::string second = out.systemText(options.second.c_str());
    const std::string target = out.systemText(options.target.c_str());
    const std::string firstText = contentOf(options.first, first);
    const std::string secondText = contentOf(options.second, second);
    checkIsText(firstText, first);
    checkIsText(secondText, second);
    checkHeader(secondText, second);
    checkTarget(options.target, target);
    const std::string merged = mergedText(options, target);
    checkResult(merged, firstText + std::string(behindHeader(secondText)), second, target, out);
    placeContent(options.target, target, merged);
    out.print({{"first", first}, {"second", second}, {"target", target}, {"bytes", merged.size()}});
}

} // namespace

void addMergeCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand("merge", "Merges two reports of batch programs into one");
    const auto options = std::make_shared<Options>();
    command->add_option("FIRST", options->first, "A report, which is taken whole")->required();
    command->add_option("SECOND", options->second, "A report, which goes behind it without its header")
        ->required();
    command
        ->add_option("TARGET", options->target, "The file to make or to replace, which may be one of the two")
        ->required();
    finishCommand(*command, request, [options](Output& out) { merge(*options, out); });
}

} // namespace tool
