#include <algorithm>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <tuple>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "commands/commands.hpp"
#include "compare/robot_facts.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/json.hpp"
#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

constexpr int same = 0;
constexpr int different = 1;
constexpr int trouble = 2;

struct Options {
    std::string files[2];
    Varo::Model::ModelUtils::ReadOptions reading;
    double tolerance = 1e-6;
    bool json = false;
};

/// A fact on which the robots differ; null where one of them does not state it.
struct FactPair {
    std::string name;
    Fact const* facts[2];
};

/// An element in which the robots differ; null where one of them lacks it.
struct Difference {
    FactRecord const* records[2];
    std::vector<FactPair> facts;

    FactRecord const& any() const { return records[0] != nullptr ? *records[0] : *records[1]; }
};

std::vector<FactPair> comparedFacts(Facts const& a, Facts const& b, double tolerance)
{
    std::set<std::string> names;
    for (Facts const* const facts : {&a, &b}) {
        for (auto const& [name, fact] : *facts) {
            names.insert(name);
        }
    }
    auto const factIn = [](Facts const& facts, std::string const& name) {
        auto const found = facts.find(name);
        return found == facts.end() ? nullptr : &found->second;
    };
    std::vector<FactPair> pairs;
    for (std::string const& name : names) {
        FactPair const pair = {name, {factIn(a, name), factIn(b, name)}};
        if (!saySame(pair.facts[0], pair.facts[1], tolerance)) {
            pairs.push_back(pair);
        }
    }
    return pairs;
}

/// By kind and name and, where several have both, by their order.
using RecordsByName = std::map<std::tuple<std::string, std::string, std::size_t>, FactRecord const*>;

RecordsByName byName(std::vector<FactRecord> const& records)
{
    RecordsByName named;
    std::map<std::pair<std::string, std::string>, std::size_t> counts;
    for (FactRecord const& record : records) {
        named[{record.kind, record.name, counts[{record.kind, record.name}]++}] = &record;
    }
    return named;
}

/// In the order of kinds and names; what only the second one has stands last.
std::vector<Difference> compared(RecordsByName const& a, RecordsByName const& b, double tolerance)
{
    std::vector<Difference> differences;
    for (auto const& [key, record] : a) {
        auto const found = b.find(key);
        if (found == b.end()) {
            differences.push_back({{record, nullptr}, {}});
        } else if (auto facts = comparedFacts(record->facts, found->second->facts, tolerance); !facts.empty()) {
            differences.push_back({{record, found->second}, std::move(facts)});
        }
    }
    for (auto const& [key, record] : b) {
        if (a.count(key) == 0) {
            differences.push_back({{nullptr, record}, {}});
        }
    }
    return differences;
}

std::string placeOf(std::string const& file, FactRecord const& record)
{
    return visibleName(file) + (record.line == 0 ? "" : ":" + std::to_string(record.line));
}

/// On one line.
std::string textOf(Fact const* fact)
{
    std::string text = fact == nullptr ? "not stated" : fact->text.empty() ? "empty" : fact->text;
    std::replace(text.begin(), text.end(), '\n', ' ');
    return visible(text);
}

void printForEyes(std::vector<Difference> const& differences, std::string const& a, std::string const& b)
{
    Palette const palette(STDOUT_FILENO);
    for (Difference const& difference : differences) {
        FactRecord const& any = difference.any();
        auto const [first, second] = difference.records;
        std::cout << palette.paint(Ink::heading, any.kind + (any.name.empty() ? "" : " " + visible(any.name)));
        if (second == nullptr) {
            std::cout << " (" << placeOf(a, *first) << ") is not in " << visibleName(b) << '\n';
        } else if (first == nullptr) {
            std::cout << " (" << placeOf(b, *second) << ") is not in " << visibleName(a) << '\n';
        } else {
            std::cout << " (" << placeOf(a, *first) << ", " << placeOf(b, *second) << ")\n";
        }
        for (auto const& [name, facts] : difference.facts) {
            std::cout << "  " << visible(name) << ": " << textOf(facts[0]) << " | " << textOf(facts[1]) << '\n';
        }
    }
}

Json lineOf(FactRecord const* record)
{
    return record == nullptr || record->line == 0 ? Json(nullptr) : Json(record->line);
}

Json valueOf(Fact const* fact)
{
    return fact == nullptr ? Json(nullptr) : Json(fact->text);
}

void printForPrograms(std::vector<Difference> const& differences)
{
    {
        JsonStream array(std::cout, '[');
        for (Difference const& difference : differences) {
            auto const [a, b] = difference.records;
            Json facts = Json::array();
            for (auto const& [name, pair] : difference.facts) {
                facts.push_back({{"fact", name}, {"a", valueOf(pair[0])}, {"b", valueOf(pair[1])}});
            }
            array.add({{"kind", difference.any().kind},
                       {"name", difference.any().name},
                       {"in", a == nullptr   ? "b"
                              : b == nullptr ? "a"
                                             : "both"},
                       {"lineA", lineOf(a)},
                       {"lineB", lineOf(b)},
                       {"facts", std::move(facts)}});
        }
    }
    std::cout << '\n';
}

int diff(Options const& options)
{
    try {
        Description const a = readAccepted(options.files[0], options.reading);
        Description const b = readAccepted(options.files[1], options.reading);
        std::vector<FactRecord> const ofA = factsOf(*a.reading.robot);
        std::vector<FactRecord> const ofB = factsOf(*b.reading.robot);
        std::vector<Difference> const differences = compared(byName(ofA), byName(ofB), options.tolerance);
        options.json ? printForPrograms(differences) : printForEyes(differences, a.file, b.file);
        return differences.empty() ? same : different;
    } catch (Refused const& refused) {
        printFindings(std::cerr, refused.file(), refused.findings());
        return trouble;
    }
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("A", options->files[0], "One description, native or URDF; - reads standard input")
        ->type_name("")
        ->required();
    app.add_option("B", options->files[1], "The other one")->type_name("")->required();
    declareTolerance(app, "--tolerance", options->tolerance,
                     "How far numbers may differ, in their unit; as a part of those greater than 1");
    declareReading(app, options->reading);
    declareJson(app, options->json, "an array of the elements that differ");
    return [options] { return diff(*options); };
}

}  // namespace

Command const diffCommand = {"diff", "Say what differs between two robots",
                             R"(Compares what two descriptions say, element by element and by name, whatever
their dialects, the order of their elements and the way they are written: a URDF
and what `convert` makes of it are the same. Prints each element that differs,
with its lines in both files, and below it each fact, A's value before B's:

  joint Elbow (a.urdf:12, b.urdf:40)
    max: 2.1 | 2.4
    mass com: 0 0 0.1 | not stated

Elements and facts are called as in the native dialect, and values that equal
defaults are not stated. Prints nothing when the robots are the same.

With --json: an array of objects, each with kind and name of an element, in (a,
b or both), lineA, lineB, and facts, an array of objects with fact, a and b.

Exit status:
  0  the robots are the same
  1  they differ
  2  one of them cannot be read, or wrong usage

Examples:
  varo-robot diff robots/humanoid.xml changed.xml
  git show HEAD:arm.urdf | varo-robot diff --tolerance 1e-4 - arm.urdf)",
                             declare};

}  // namespace Tool
