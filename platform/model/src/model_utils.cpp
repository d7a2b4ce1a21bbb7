#include "varo/model/model_utils.hpp"

#include <algorithm>
#include <set>
#include <utility>

#include "diagnostics.hpp"
#include "native/native_codes.hpp"
#include "native/native_reader.hpp"
#include "native/native_writer.hpp"
#include "spelling.hpp"
#include "urdf/urdf_codes.hpp"
#include "urdf/urdf_reader.hpp"
#include "xml_text.hpp"

namespace Varo::Model::ModelUtils {

namespace {

struct Dialect {
    std::string_view root;
    std::unique_ptr<Robot> (*read)(pugi::xml_node root, Diagnostics& diagnostics);
};
constexpr Dialect dialects[] = {{"robotDescription", readNative}, {"robot", readUrdf}};

void reportUnknownRoot(pugi::xml_node root, Diagnostics& diagnostics)
{
    ClosestWord closest(root.name());
    for (Dialect const& dialect : dialects) {
        closest.offer(dialect.root);
    }
    std::string const hint = closest.word().empty()
                                 ? "A description begins with robotDescription, one in URDF with robot."
                                 : "Did you mean " + quoted(closest.word()) + "?";
    diagnostics.report(root, codes::unknownRoot,
                       "The root element " + quoted(root.name()) + " is that of no known kind of description.", hint);
}

std::unique_ptr<Robot> readAnyDialect(std::string_view xml, Diagnostics& diagnostics)
{
    pugi::xml_document document;
    if (!parseXml(xml, document, diagnostics)) {
        return nullptr;
    }
    pugi::xml_node const root = document.document_element();
    for (Dialect const& dialect : dialects) {
        if (dialect.root == root.name()) {
            return dialect.read(root, diagnostics);
        }
    }
    reportUnknownRoot(root, diagnostics);
    return nullptr;
}

/// What a refused text's exception says: its first error, and how many there are beside it.
std::string summary(Findings const& findings)
{
    auto const isError = [](Finding const& finding) { return finding.severity == Severity::error; };
    auto const first = std::find_if(findings.begin(), findings.end(), isError);
    auto const others = std::count_if(first, findings.end(), isError) - 1;
    std::string text = std::to_string(first->line) + ":" + std::to_string(first->column) + ": " + first->message;
    if (others > 0) {
        text += " (and " + std::to_string(others) + " more)";
    }
    return text;
}

}  // namespace

Reading read(std::string const& xml)
{
    Diagnostics diagnostics(xml);
    Reading reading;
    reading.robot = readAnyDialect(xml, diagnostics);
    reading.findings = diagnostics.take();
    return reading;
}

std::unique_ptr<Robot> robotFromXml(std::string const& xml)
{
    Diagnostics diagnostics(xml);
    std::unique_ptr<Robot> robot = readAnyDialect(xml, diagnostics);
    if (robot == nullptr) {
        Findings findings = diagnostics.take();
        std::string const what = summary(findings);
        throw DescriptionError(what, std::move(findings));
    }
    return robot;  // nobody asks where its warnings stand, which takes a walk through the text
}

std::vector<std::string> findingCodes()
{
    std::set<std::string_view> names;
    auto const add = [&names](auto const& codes) {
        for (FindingCode const* code : codes) {
            names.insert(code->name);
        }
    };
    add(codes::ofTexts);
    add(Native::codes::ofDialect);
    add(Urdf::codes::ofDialect);
    return {names.begin(), names.end()};
}

std::string toXml(Robot const& robot)
{
    return writeNative(robot);
}

bool checkXml(std::string const& xml)
{
    return read(xml).robot != nullptr;
}

Findings diagnose(std::string const& xml)
{
    return read(xml).findings;
}

}  // namespace Varo::Model::ModelUtils
