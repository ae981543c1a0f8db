#include "tools/bexa/command.h"
#include "tools/bexa/name_error.h"
#include "tools/bexa/spec_references.h"
#include "tools/bexa/text_file.h"

#include "bexa/props/prop_spec_file.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tool {
namespace {

struct Options {
    std::string path;
    std::string owner; // empty: all
};

// An owner or a shared table, and the names of those that hold the table.
struct Section {
    const BexPropOwnerRec* record;
    const char* kind;
    std::vector<std::string> usedBy;

    std::string name() const { return record->objectName(); }
};
using Sections = std::vector<Section>;

void readSpecification(BexPropSpecFile& file, const std::string& path, const std::string& shown,
                       Output& out) {
    // The library takes what it can't read for an empty file.
    contentOf(path, shown);
    if (file.readFrom(path.c_str())) return;
    out.report(unusable("the property specification cannot be read to its end", shown,
                        "check that each row of a section is a list in parentheses"));
}

std::vector<std::string> ownerNames(const BexPropSpecFile& file) {
    YString_Array names;
    file.enumOwnerRecNames(names);
    std::vector<std::string> texts;
    for (int i = 0; i < names.size(); ++i) texts.emplace_back(names.at(i));
    return texts;
}

Sections ownersOf(const BexPropSpecFile& file) {
    Sections sections;
    for (const std::string& name : ownerNames(file)) {
        const bool isObject = BexPropSpecFile::objectType(name.c_str()) != BexNoObject;
        sections.push_back({file.ownerRec(name.c_str()), isObject ? "object" : "hidden", {}});
    }
    return sections;
}

// Puts the tables that the sections hold behind them, each once, at whatever depth.
void addTables(Sections& sections) {
    std::map<const BexPropOwnerRec*, std::size_t> places;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const BexPropOwnerRec* holder = sections[i].record;
        YString_Array names;
        holder->enumRefTableNames(names, 0);
        for (int k = 0; k < names.size(); ++k) {
            const BexPropOwnerRec* table = holder->refTable(names.at(k), 0);
            const auto [place, isNew] = places.try_emplace(table, sections.size());
            if (isNew) sections.push_back({table, "table", {}});
            sections[place->second].usedBy.emplace_back(holder->objectName());
        }
    }
}

// Leaves the section of this name, for which the `$` in front may be left out, and the tables that it leads to.
void keepOnly(const std::string& name, Sections& sections, const std::string& file, const Output& out) {
    const auto found = std::find_if(sections.begin(), sections.end(), [&name](const Section& section) {
        return section.name() == name || section.name() == '$' + name;
    });
    if (found == sections.end()) {
        throw unusable("no section " + quoted(out.systemText(name.c_str())), file, "see bexa props " + file);
    }
    Sections chosen{*found};
    addTables(chosen);
    std::set<const BexPropOwnerRec*> kept;
    for (const Section& section : chosen) kept.insert(section.record);
    std::erase_if(sections, [&kept](const Section& section) { return !kept.contains(section.record); });
}

Json choicesOf(const BexPropSpecRec& row, const Output& out) {
    Json choices = Json::array();
    const YString_Array& values = *row.valueSelection();
    for (int i = 0; i < values.size(); ++i) choices.push_back(out.resourceText(values.at(i)));
    return choices;
}

Json textOrNull(const char* text, const Output& out) {
    return text == nullptr ? Json() : Json(out.resourceText(text));
}

Json typeOf(const BexPropSpecRec& row) {
    if (row.valueType() == BexPropTypeUnknown) return {};
    return BexPropSpecRec::valueType2string(row.valueType());
}

// Of the row of a table only the text has a meaning.
Json rowOf(const BexPropSpecRec& row, const Output& out) {
    const bool isTable = row.valueType() == BexPropTypeRefTable;
    const auto ofProperty = [isTable](const Json& value) { return isTable ? Json() : value; };
    return {{"property", out.resourceText(row.propertyName())},
            {"type", typeOf(row)},
            {"text", textOrNull(row.displayString(), out)},
            {"shown", ofProperty(row.displayFlag() != 0)},
            {"place", ofProperty(BexPropSpecRec::place2string(row.propPlace()))},
            {"editable", ofProperty(row.editFlag() != 0)},
            {"colour", row.viewerColor() == -1 ? Json() : Json(row.viewerColor())},
            {"choices", choicesOf(row, out)}};
}

Json rowsOf(const Section& section, const std::string& file, Output& out) {
    BexPropSpecRec_Array records;
    section.record->enumPropSpecRecs(records, 1, 0);
    Json rows = Json::array();
    for (int i = 0; i < records.size(); ++i) {
        const BexPropSpecRec& record = records.at(i);
        rows.push_back(rowOf(record, out));
        if (record.isValid()) continue;
        out.report(finding("the property " + quoted(out.resourceText(record.propertyName())) + " of " +
                               out.resourceText(section.record->objectName()) + " has no type that is known",
                           file, "write int, float, text or hide behind its name"));
    }
    return rows;
}

Json sectionsOf(const Sections& sections, const std::string& file, Output& out) {
    Json documents = Json::array();
    for (const Section& section : sections) {
        Json usedBy = Json::array();
        for (const std::string& user : section.usedBy) usedBy.push_back(out.resourceText(user.c_str()));
        documents.push_back({{"section", out.resourceText(section.record->objectName())},
                             {"name", textOrNull(section.record->aliasName(), out)},
                             {"kind", section.kind},
                             {"usedBy", std::move(usedBy)},
                             {"properties", rowsOf(section, file, out)}});
    }
    return documents;
}

std::set<std::string> namesOf(const Sections& sections) {
    std::set<std::string> names;
    for (const Section& section : sections) names.insert(section.name());
    return names;
}

Json rowsOf(const SpecReferences& references, const std::set<std::string>& shown, const Output& out) {
    Json rows = Json::array();
    for (const FileReference& reference : references.files) {
        if (!shown.contains(reference.owner)) continue;
        rows.push_back({{"file", out.systemText(reference.file.c_str())},
                        {"section", out.resourceText(reference.owner.c_str())},
                        {"path", out.resourceText(reference.path.c_str())},
                        {"from", out.resourceText(reference.from.c_str())},
                        {"leadsTo", out.systemText(reference.leadsTo.c_str())},
                        {"present", reference.present}});
    }
    return rows;
}

void reportLostTables(const SpecReferences& references, const std::set<std::string>& shown, Output& out) {
    for (const LostTable& lost : references.lostTables) {
        if (!shown.contains(lost.owner)) continue;
        out.report(finding("the table " + quoted(out.resourceText(lost.table.c_str())) + " of " +
                               out.resourceText(lost.owner.c_str()) + " is not there",
                           out.systemText(lost.file.c_str()), "write its section, or remove the row"));
    }
}

Json inOneCell(const Json& texts) {
    std::string cell;
    for (const Json& text : texts) {
        if (!cell.empty()) cell += ", ";
        cell += text.get_ref<const std::string&>();
    }
    return cell.empty() ? Json() : Json(cell);
}

// The same in tables: the sections, then the properties of each.
Json inTables(Json document) {
    Json tables = {
        {"file", document["file"]}, {"sections", Json::array()}, {"references", document["references"]}};
    for (Json& section : document["sections"]) {
        Json& rows = section["properties"];
        for (Json& row : rows) row["choices"] = inOneCell(row["choices"]);
        tables["sections"].push_back({{"section", section["section"]},
                                      {"name", section["name"]},
                                      {"kind", section["kind"]},
                                      {"properties", rows.size()},
                                      {"usedBy", inOneCell(section["usedBy"])}});
        tables[section["kind"].get<std::string>() + ' ' + section["section"].get<std::string>()] =
            std::move(rows);
    }
    return tables;
}

void showSpecification(const Options& options, Output& out) {
    const std::string shownPath = out.systemText(options.path.c_str());
    BexPropSpecFile file;
    readSpecification(file, options.path, shownPath, out);
    Sections sections = ownersOf(file);
    addTables(sections);
    if (!options.owner.empty()) keepOnly(options.owner, sections, shownPath, out);
    const std::set<std::string> shown = namesOf(sections);
    const SpecReferences references = referencesOf(options.path, ownerNames(file));
    Json document = {{"file", shownPath},
                     {"sections", sectionsOf(sections, shownPath, out)},
                     {"references", rowsOf(references, shown, out)}};
    reportLostTables(references, shown, out);
    out.print(out.form() == Output::Form::Json ? document : inTables(std::move(document)));
}

} // namespace

void addPropsCommand(CLI::App& program, Request& request) {
    CLI::App* command = program.add_subcommand(
        "props", "Shows a property specification: which properties the objects of a design have");
    const auto options = std::make_shared<Options>();
    command->add_option("FILE", options->path, "A property specification")->required();
    command->add_option("--owner", options->owner, "Only this section, and the tables that it uses")
        ->type_name("NAME");
    finishCommand(*command, request, [options](Output& out) { showSpecification(*options, out); });
}

} // namespace tool
