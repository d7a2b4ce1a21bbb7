#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/json_text.hpp"
#include "support/kinds.hpp"
#include "support/link_names.hpp"
#include "support/table.hpp"
#include "support/visible_text.hpp"
#include "varo/model/spelling.hpp"

namespace Tool {

namespace {

struct Options {
    std::string kind;
    std::string file;
    Varo::Model::ModelUtils::ReadOptions reading;
    bool json = false;
    bool wide = false;
};

std::string cellOf(Json const& element, Column const& column, LinkNames const& names)
{
    Json::json_pointer const pointer(column.pointer);
    if (!element.contains(pointer)) {
        return "-";
    }
    Json const& value = element.at(pointer);
    std::string const text = isPose(value) ? originOf(value) : readable(value);
    return column.isLink ? names.of(text) : text;
}

void printForEyes(Kind const& kind, Sim::Model const& model, bool wide)
{
    LinkNames const names(model);
    std::vector<Row> rows(1);
    for (Column const& column : kind.columns) {
        rows.front().emplace_back(column.title);
    }
    kind.visit(model, [&](Json&& element) {
        Row row;
        for (Column const& column : kind.columns) {
            row.push_back(cellOf(element, column, names));
        }
        rows.push_back(std::move(row));
    });
    printTable(std::move(rows), wide);
}

void printForPrograms(Kind const& kind, Sim::Model const& model)
{
    {
        JsonStream array(std::cout, '[');
        kind.visit(model, [&array](Json&& element) { array.add(element); });
    }
    std::cout << '\n';
}

/// Separated by commas, in lines of at most 78 characters.
std::string knownKinds()
{
    std::string text;
    std::size_t lineLength = 0;
    for (Kind const& kind : kinds()) {
        std::string const word = kind.plural;
        bool const fits = lineLength + word.size() + 3 <= 78;
        text += text.empty() ? "" : fits ? ", " : ",\n";
        text += word;
        lineLength = (fits ? lineLength + 2 : 0) + word.size();
    }
    return text;
}

std::string suggestion(std::string const& written)
{
    Varo::Model::ClosestWord closest(written);
    for (Kind const& kind : kinds()) {
        closest.offer(kind.plural);
    }
    return closest.word().empty() ? "" : " Did you mean \"" + std::string(closest.word()) + "\"?";
}

int list(Options options)
{
    if (findKind(options.kind) == nullptr && findKind(options.file) != nullptr) {
        options.kind.swap(options.file);
    }
    Kind const* const kind = findKind(options.kind);
    if (kind == nullptr) {
        std::cerr << "There are no elements of the kind \"" << visible(options.kind) << "\"."
                  << suggestion(options.kind) << " Known kinds:\n"
                  << knownKinds() << '\n';
        return exitStatus::wrongUsage;
    }
    Robot const robot = loadRobot(options.file, options.reading);
    options.json ? printForPrograms(*kind, robot.model) : printForEyes(*kind, robot.model, options.wide);
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("KIND", options->kind, "What to list, in the plural or the singular")->type_name("")->required();
    declareFile(app, options->file);
    declareReading(app, options->reading);
    declareWide(app, options->wide);
    app.add_flag("--json", options->json, "Print a JSON array of the elements, each as `dump` prints it");
    app.footer(listCommand.details + ("\n\nKinds:\n" + knownKinds()));
    return [options] { return list(*options); };
}

}  // namespace

Command const listCommand = {"list", "List the elements of one kind as a table",
                             R"(Prints a table with a line for each element of the kind, in the order in which
the model made them: "-" stands for none, positions are those in the root frame
(m), numbers are in SI units. Links have the names that the description gives
them. FILE may stand before KIND, too. On a terminal, cells that would not fit
end with an ellipsis, unless --wide is given.

Examples:
  varo-robot list joints robots/humanoid.xml
  varo-robot list leds robots/humanoid.xml
  varo-robot list cameras --json robots/rover.xml)",
                             declare};

}  // namespace Tool
