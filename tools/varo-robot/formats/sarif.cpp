#include <cctype>
#include <iostream>
#include <map>
#include <string_view>

#include "formats/formats.hpp"
#include "support/finding_text.hpp"
#include "varo/model/lint.hpp"

/// SARIF, the Static Analysis Results Interchange Format, version 2.1.0.
namespace Tool {

namespace {

using Varo::Model::Finding;

/// A relative path stays one; what URIs have a use for, or do not have, is written as its code.
std::string uriOf(std::string const& file)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = !file.empty() && file.front() == '/' ? "file://" : "";
    for (char const c : file) {
        auto const byte = static_cast<unsigned char>(c);
        bool const isPlain =
            byte < 0x80 && (std::isalnum(byte) != 0 || std::string_view("-._~/").find(c) != std::string_view::npos);
        uri += isPlain ? std::string(1, c) : std::string{'%', digits[byte / 16], digits[byte % 16]};
    }
    return uri;
}

/// The kinds of findings that occur, each once, as the tool's rules.
class Kinds {
public:
    Kinds()
    {
        for (Varo::Model::LintRule const& rule : Varo::Model::lintRules()) {
            _meanings.emplace(rule.code.name, rule.code.meaning);
        }
    }

    std::size_t indexOf(std::string const& code)
    {
        auto const [known, isNew] = _indices.try_emplace(code, _rules.size());
        if (isNew) {
            Json rule = {{"id", code}};
            if (auto const meaning = _meanings.find(code); meaning != _meanings.end()) {
                rule["shortDescription"] = {{"text", meaning->second}};
            }
            _rules.push_back(std::move(rule));
        }
        return known->second;
    }

    Json const& rules() const { return _rules; }

private:
    std::map<std::string, std::string, std::less<>> _meanings;
    std::map<std::string, std::size_t> _indices;
    Json _rules = Json::array();
};

Json locationOf(std::string const& file, Finding const& finding)
{
    Json location = {{"physicalLocation", {{"artifactLocation", {{"uri", uriOf(file)}}}}}};
    if (finding.line != 0) {
        location["physicalLocation"]["region"] = {{"startLine", finding.line}, {"startColumn", finding.column}};
    }
    if (!finding.path.empty()) {
        location["logicalLocations"] = Json::array({{{"fullyQualifiedName", finding.path}}});
    }
    return location;
}

Json resultOf(std::string const& file, Finding const& finding, Kinds& kinds)
{
    std::string const hint = finding.hint.empty() ? "" : " " + finding.hint;
    return {
        {"ruleId", finding.code},
        {"ruleIndex", kinds.indexOf(finding.code)},
        {"level", nameOf(finding.severity)},
        {"message", {{"text", finding.message + hint}}},
        {"locations", Json::array({locationOf(file, finding)})},
    };
}

}  // namespace

void printAsSarif(std::vector<CheckedFile> const& files)
{
    Kinds kinds;
    Json results = Json::array();
    for (CheckedFile const& file : files) {
        for (Finding const& finding : file.findings) {
            results.push_back(resultOf(file.name, finding, kinds));
        }
    }
    Json const driver = {{"name", "varo-robot"}, {"version", VARO_ROBOT_VERSION}, {"rules", kinds.rules()}};
    printJson(std::cout, {
                             {"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                             {"version", "2.1.0"},
                             {"runs", Json::array({{
                                          {"tool", {{"driver", driver}}},
                                          {"columnKind", "unicodeCodePoints"},
                                          {"results", results},
                                      }})},
                         });
    std::cout << '\n';
}

}  // namespace Tool
