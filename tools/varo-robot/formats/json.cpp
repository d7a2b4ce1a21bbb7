#include <iostream>

#include "formats/formats.hpp"
#include "support/finding_text.hpp"

namespace Tool {

namespace {

Json toJson(std::string const& file, Varo::Model::Finding const& finding)
{
    return {
        {"file", file},
        {"severity", nameOf(finding.severity)},
        {"code", finding.code},
        {"line", finding.line == 0 ? Json(nullptr) : Json(finding.line)},
        {"column", finding.line == 0 ? Json(nullptr) : Json(finding.column)},
        {"path", finding.path},
        {"message", finding.message},
        {"hint", finding.hint},
    };
}

Json toJson(std::vector<CheckedFile> const& files)
{
    Json findings = Json::array();
    for (CheckedFile const& file : files) {
        for (Varo::Model::Finding const& finding : file.findings) {
            findings.push_back(toJson(file.name, finding));
        }
    }
    return findings;
}

}  // namespace

void printAsArray(std::vector<CheckedFile> const& files)
{
    printJson(std::cout, toJson(files));
    std::cout << '\n';
}

void printAsJson(std::vector<CheckedFile> const& files)
{
    printJson(std::cout, {{"formatVersion", formatVersion}, {"findings", toJson(files)}});
    std::cout << '\n';
}

}  // namespace Tool
