#include "tools/bexa/command.h"
#include "tools/bexa/text_file.h"

#include "bexa/foundation/csv_input.h"
#include "bexa/foundation/kanji.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

struct Options {
    std::string path;
    std::optional<int> line;
};

struct CloseCsv {
    void operator()(BexCsvInput* input) const { BexCsvInput::Close(input); }
};
using Csv = std::unique_ptr<BexCsvInput, CloseCsv>;

// The items of one record.
class ItemReader : public BexCsvItemReader {
public:
    explicit ItemReader(const Output& out) : out_(out) {}
    unsigned long ReadItem(const char* item) override {
        items_.push_back(out_.resourceText(item));
        return 1;
    }
    Json takeItems() { return std::move(items_); }

private:
    const Output& out_;
    Json items_ = Json::array();
};

// Rows {number, items} of the records that aren't empty: of all, or of one. The items of a malformed record are
// null, which is a finding.
class RecordReader : public BexCsvLineReader {
public:
    RecordReader(const Options& options, std::string shown, Output& out)
        : wanted_(options.line),
          shown_(std::move(shown)),
          out_(out) {}
    unsigned long ReadLine(const BexCsvLine& line, int number) override {
        if (wanted_ && number != *wanted_) return 1;
        ItemReader items(out_);
        const bool good = line.Read(&items, 0) != 0;
        if (!good) {
            out_.report(finding("record " + std::to_string(number) + " is malformed", shown_,
                                "put an item with a quote in it into quotes, and each quote twice"));
        }
        rows_.push_back({{"number", number}, {"items", good ? items.takeItems() : Json()}});
        return 1;
    }
    Json takeRows() { return std::move(rows_); }

private:
    std::optional<int> wanted_;
    std::string shown_;
    Output& out_;
    Json rows_ = Json::array();
};

bool readsJapanese() {
    for (unsigned byte = 0x80; byte < 0x100; ++byte) {
        if (BexIsKanjiUpper(static_cast<unsigned char>(byte))) return true;
    }
    return false;
}

// Outside a Japanese locale bytes that belong to Japanese text are taken for control characters, and vanish.
void reportLostText(const std::string& text, const std::string& shown, Output& out) {
    if (readsJapanese()) return;
    const auto first =
        std::find_if(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    if (first == text.end()) return;
    const Place place = placeAt(text, static_cast<std::size_t>(first - text.begin()));
    out.report(finding("Japanese text is not read whole in this locale", inWords(shown, place),
                       "run with LC_ALL=ja_JP for Shift-JIS, LC_ALL=ja_JP.eucJP for EUC"));
}

// Whether a quote is still open at the end, which takes the last record away. Quotes are counted line by line.
bool endsInQuotes(std::string_view text) {
    bool isOpen = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '"') isOpen = !isOpen;
        const bool isLead = BexIsKanjiUpper(static_cast<unsigned char>(text[at])) != 0;
        if (isLead && at + 1 < text.size() && text[at + 1] != '\n') ++at;
    }
    return isOpen;
}

void reportOpenQuote(std::string_view text, int record, const std::string& shown, Output& out) {
    if (!endsInQuotes(text)) return;
    out.report(finding("the quote in record " + std::to_string(record) + " is still open at the end", shown,
                       "close it; the record is left out"));
}

// A column for each item: the first row has all of them, so that the table has.
Json tableOf(const Json& rows) {
    std::size_t columns = 0;
    for (const Json& row : rows) columns = std::max(columns, row["items"].size());
    Json table = Json::array();
    for (const Json& row : rows) {
        const Json& items = row["items"];
        Json line = {{"record", row["number"]}};
        for (std::size_t i = 0; i < columns; ++i) {
            line[std::to_string(i + 1)] = i < items.size() ? items[i] : Json();
        }
        table.push_back(std::move(line));
    }
    return table;
}

void checkNumber(const Options& options, int count, const std::string& shown) {
    if (!options.line || *options.line < count) return;
    const std::string last = std::to_string(count - 1);
    throw finding("there is no record " + std::to_string(*options.line), shown,
                  count == 0 ? "the file has no records" : "give a number from 0 to " + last);
}

void showRecords(const Options& options, Output& out) {
    const std::string shown = out.systemText(options.path.c_str());
    const std::string text = contentOf(options.path, shown);
    const Csv csv(BexCsvInput::Open(options.path.c_str()));
    const int count = csv->HowManyLines();
    checkNumber(options, count, shown);
    reportLostText(text, shown, out);
    RecordReader reader(options, shown, out);
    if (!csv->Read(&reader)) throw cannotRead(shown);
    reportOpenQuote(text, count, shown, out);
    const Json rows = reader.takeRows();
    out.print({{"file", shown}, {"records", out.form() == Output::Form::Json ? rows : tableOf(rows)}});
}

} // namespace

void addCsvCommand(CLI::App& program, Request& request) {
    CLI::App* command =
        program.add_subcommand("csv", "Shows the records of a file of comma-separated text, item by item");
    const auto options = std::make_shared<Options>();
    command->add_option("FILE", options->path, "The file")->required();
    command->add_option("--line", options->line, "Only the record of this number; they count from 0")
        ->type_name("N")
        ->check(CLI::Range(0, std::numeric_limits<int>::max()));
    finishCommand(*command, request, [options](Output& out) { showRecords(*options, out); });
}

} // namespace tool
