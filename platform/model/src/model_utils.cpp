#include "varo/model/model_utils.hpp"

#include <algorithm>
#include <set>
#include <utility>

#include "finding_codes.hpp"
#include "native/native_codes.hpp"
#include "native/native_reader.hpp"
#include "native/native_writer.hpp"
#include "other_formats.hpp"
#include "robot/ambiguous_names.hpp"
#include "robot/link_tree_codes.hpp"
#include "robot/mirror_pairs.hpp"
#include "urdf/urdf_codes.hpp"
#include "urdf/urdf_reader.hpp"
#include "urdf/urdf_writer.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/spelling.hpp"
#include "xml/document.hpp"
#include "xml/parse.hpp"

namespace Varo::Model::ModelUtils {

namespace {

struct Dialect {
    std::string_view root;
    Records (*read)(XmlNode root, Diagnostics& diagnostics);
    Range<PartPlace> const& parts;
};
constexpr Dialect dialects[] = {{"robotDescription", readNative, nativeParts}, {"robot", readUrdf, urdfParts}};

void reportUnknownRoot(XmlNode root, Diagnostics& diagnostics)
{
    ClosestWord closest(root.name());
    for (Dialect const& dialect : dialects) {
        closest.offer(dialect.root);
    }
    std::string const hint = closest.word().empty()
                                 ? "A description begins with robotDescription, one in URDF with robot."
                                 : "Did you mean " + quoted(closest.word()) + "?";
    diagnostics.report(at(root), codes::unknownRoot,
                       "The root element " + quoted(root.name()) + " is not one that a robot description begins with.",
                       hint);
}

/// Null when a finding is an error.
std::unique_ptr<Robot> readAnyDialect(std::shared_ptr<SourceText const> const& source, Diagnostics& diagnostics,
                                      ReadOptions const& options)
{
    XmlDocument document;
    if (!parseXml(*source, document, diagnostics)) {
        return nullptr;
    }
    XmlNode const root = document.root();
    if (reportOtherFormat(root, diagnostics)) {
        return nullptr;
    }
    for (Dialect const& dialect : dialects) {
        if (dialect.root == root.name()) {
            Records records = dialect.read(root, diagnostics);
            if (diagnostics.hasErrors()) {
                return nullptr;
            }
            if (options.inferMirrors && !records.statesMirrors) {
                inferMirrors(records);
            }
            checkLinkNames(records, diagnostics);
            return std::make_unique<RobotRecord>(std::move(records), source, std::move(diagnostics), dialect.parts);
        }
    }
    reportUnknownRoot(root, diagnostics);
    return nullptr;
}

}  // namespace

Reading read(std::string xml, ReadOptions const& options)
{
    auto const source = std::make_shared<SourceText const>(std::move(xml));
    Diagnostics diagnostics(source.get());
    Reading reading;
    reading.robot = readAnyDialect(source, diagnostics, options);
    if (reading.robot == nullptr) {
        reading.findings = diagnostics.findings();
    } else if (options.listFindings) {
        reading.findings = reading.robot->diagnostics()->findings();
    }
    reading.text = {source, &source->text()};
    return reading;
}

Reading read(TextFile file, ReadOptions const& options)
{
    if (file.obstacle.empty()) {
        return read(std::move(file.text), options);
    }
    Diagnostics diagnostics(nullptr);
    diagnostics.report(TextOffset(), codes::unreadableFile, std::move(file.obstacle));
    return {nullptr, diagnostics.findings(), nullptr};
}

Reading readFile(std::string const& path, ReadOptions const& options)
{
    return read(readTextFile(path), options);
}

std::unique_ptr<Robot> robotFromXml(std::string const& xml)
{
    return robotFromXml(std::string(xml));
}

std::unique_ptr<Robot> robotFromXml(std::string&& xml)
{
    auto const source = std::make_shared<SourceText const>(std::move(xml));
    Diagnostics diagnostics(source.get());
    std::unique_ptr<Robot> robot = readAnyDialect(source, diagnostics, {});
    if (robot == nullptr) {
        Findings findings = diagnostics.findings();
        std::string const what = summaryOf(findings);
        throw DescriptionError(what, std::move(findings));
    }
    return robot;
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
    add(codes::ofLinkTrees);
    add(Native::codes::ofDialect);
    add(Urdf::codes::ofDialect);
    return {names.begin(), names.end()};
}

std::string toXml(Robot const& robot)
{
    return writeNative(robot);
}

std::string toUrdf(Robot const& robot)
{
    Findings findings;
    return toUrdf(robot, findings);
}

std::string toUrdf(Robot const& robot, Findings& findings)
{
    Diagnostics diagnostics(robot.source());
    std::string text = writeUrdf(robot, diagnostics);
    findings = diagnostics.findings();
    return text;
}

bool checkXml(std::string const& xml)
{
    auto const source = std::make_shared<SourceText const>(xml);
    Diagnostics diagnostics(source.get(), 0);  // nobody will see them
    return readAnyDialect(source, diagnostics, {false, false}) != nullptr;
}

Findings diagnose(std::string const& xml)
{
    return read(xml).findings;
}

}  // namespace Varo::Model::ModelUtils
