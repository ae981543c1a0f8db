#include "tools/bexa/check_walk.h"

#include "tools/bexa/problem.h"
#include "tools/bexa/text_file.h"

#include "bexa/foundation/ygeneral/ypath_name.h"
#include "bexa/store/data_file.h"
#include "bexa/store/file.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>
#include <utility>

namespace tool {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string, std::less<>>;

Datarc resourceOf(const std::string& circuit) {
    try {
        openPathList(
            circuit); // with a broken one the system's resource would take the place of the circuit's
        return openResource(placeOfResource(circuit), circuit);
    } catch (const Problem&) {
        return nullptr;
    }
}

// One for all ways that lead to a circuit.
std::string identityOf(const std::string& path) {
    std::error_code failed;
    const fs::path whole = fs::weakly_canonical(path, failed);
    return failed ? path : whole.string();
}

int takeStem(void* names, const char* path) {
    static_cast<Names*>(names)->insert(fs::path(path).stem().string());
    return 0;
}

Names blocksInReachOf(const BexDatarc& resource) {
    Names names;
    for (unsigned i = 0; i < resource.contPathCount(); ++i) {
        YString directory, unused;
        if (!resource.contPath(i, &directory, &unused)) continue;
        BexDataFile::enumFileNames(directory, BexDataFile::BexBlockDataFile, takeStem, &names);
    }
    return names;
}

// The end of the quoted text or of the word that begins at `begin`.
std::size_t endOfWord(const std::string& text, std::size_t begin) {
    const bool isQuoted = text[begin] == '"';
    const std::size_t end =
        isQuoted ? text.find_first_of("\"\r\n", begin + 1) : text.find_first_of(" \t\r\n\"", begin);
    return end == std::string::npos ? text.size() : end + (isQuoted ? 1 : 0);
}

// Texts in quotes are for people: a sheet's title may well be the name of a block.
void addWords(const std::string& text, const Names& wanted, Names& found) {
    constexpr std::string_view between = " \t\r\n";
    std::size_t begin = text.find_first_not_of(between);
    while (begin != std::string::npos) {
        const std::size_t end = endOfWord(text, begin);
        const std::string_view word = std::string_view(text).substr(begin, end - begin);
        if (wanted.contains(word)) found.emplace(word);
        begin = text.find_first_not_of(between, end);
    }
}

int takePath(void* paths, const char* path) {
    static_cast<std::vector<std::string>*>(paths)->emplace_back(path);
    return 0;
}

// A sheet that can't be read holds nothing; that it can't is the editors' business.
Names blocksOnSheets(const std::string& circuit, const BexDatarc& resource) {
    Names found;
    const Names wanted = blocksInReachOf(resource);
    std::vector<std::string> sheets;
    if (!wanted.empty()) BexDataFile::enumSheetNames(circuit.c_str(), takePath, &sheets);
    for (const std::string& sheet : sheets) {
        try {
            addWords(contentOf(sheet, sheet), wanted, found);
        } catch (const Problem&) {
            continue;
        }
    }
    return found;
}

// Empty if the block names none, or one that isn't there.
std::string circuitOf(const std::string& block, const BexDatarc& resource) {
    int index = -1;
    const BlockFile file = openBlockFile(block, &resource);
    const char* name = file ? file->circuitName() : nullptr;
    return std::string(BexDataFile::searchCirc(name, resource, index));
}

class Walk {
public:
    explicit Walk(const std::function<void(const std::string&)>& progress) : progress_(progress) {}

    void enter(const std::string& path) {
        if (!known_.insert(identityOf(path)).second) return;
        progress_(path);
        way_.push_back(path);
        ReachedCircuit circuit{path, resourceOf(path), {}, {}};
        takeOwnBlock(circuit);
        const std::vector<std::string> next = takeHeldBlocks(circuit);
        reached_.push_back(std::move(circuit));
        for (const std::string& circuitOfBlock : next) enter(circuitOfBlock);
        way_.pop_back();
    }

    std::vector<ReachedCircuit> result() { return std::move(reached_); }

private:
    void takeBlock(ReachedCircuit& circuit, const std::string& block) {
        if (known_.insert(identityOf(block)).second) circuit.blocks.push_back(block);
    }

    void takeOwnBlock(ReachedCircuit& circuit) {
        const YString own =
            BexDataFile::fileName(circuit.path.c_str(), BexDataFile::BexBlockDataFile, nullptr);
        if (BexFile::isExist(own)) takeBlock(circuit, std::string(own));
    }

    // The circuits of the blocks that aren't a way back.
    std::vector<std::string> takeHeldBlocks(ReachedCircuit& circuit) {
        std::vector<std::string> next;
        if (!circuit.resource) return next;
        for (const std::string& name : blocksOnSheets(circuit.path, *circuit.resource)) {
            int index = -1;
            const std::string block(BexDataFile::searchBlock(name.c_str(), *circuit.resource, index));
            takeBlock(circuit, block);
            const std::string held = circuitOf(block, *circuit.resource);
            if (held.empty()) continue;
            std::string way = wayBackTo(held);
            if (way.empty())
                next.push_back(held);
            else
                circuit.circles.push_back({block, std::move(way)});
        }
        return next;
    }

    // From a circuit that is being walked back to itself; empty if it isn't one of them.
    std::string wayBackTo(const std::string& circuit) const {
        const std::string identity = identityOf(circuit);
        const auto same = [&](const std::string& path) { return identityOf(path) == identity; };
        std::string words;
        for (auto at = std::find_if(way_.begin(), way_.end(), same); at != way_.end(); ++at) {
            words += fs::path(*at).filename().string() + " > ";
        }
        return words.empty() ? words : words + fs::path(circuit).filename().string();
    }

    const std::function<void(const std::string&)>& progress_;
    std::set<std::string> known_;
    std::vector<std::string> way_;
    std::vector<ReachedCircuit> reached_;
};

} // namespace

BlockFile openBlockFile(const std::string& path, const BexDatarc* resource) {
    const YPathName whole(path.c_str());
    return BlockFile(BexBlockFile::open(whole.dirname(), whole.basename(), BexOpenRead, resource));
}

std::vector<ReachedCircuit> reachedCircuits(const std::string& circuit,
                                            const std::function<void(const std::string&)>& progress) {
    Walk walk(progress);
    walk.enter(circuit);
    return walk.result();
}

std::vector<std::string> plainFilesIn(const std::string& directory) {
    std::vector<std::string> names;
    std::error_code failed, ignored;
    fs::directory_iterator entry(directory, failed);
    for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
        if (entry->is_regular_file(ignored)) names.push_back(entry->path().filename().string());
    }
    if (failed) throw unusable("the directory cannot be read", directory, "check that you may read it");
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace tool
