#include "urdf/urdf_writer.hpp"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "native/amendment.hpp"
#include "robot/robot_record.hpp"
#include "urdf/beyond_urdf.hpp"
#include "urdf/extending_writer.hpp"
#include "urdf/own_namespace.hpp"
#include "urdf/statements_of.hpp"
#include "urdf/urdf_codes.hpp"
#include "urdf/urdf_reader.hpp"
#include "xml/document.hpp"
#include "xml/parse.hpp"

namespace Varo::Model {

namespace {

template <class Configs>
bool hasMirrors(Configs const& configs)
{
    return std::any_of(configs.begin(), configs.end(),
                       [](auto const& config) { return config.mirrorKind != noMirror; });
}

template <class Configs>
void forgetMirrors(Configs& configs)
{
    for (std::size_t i = 0; i < configs.size(); ++i) {
        configs[i].mirrorKind = noMirror;
        configs[i].mirrorName.clear();
    }
}

/// Without what was inferred and will be again.
std::shared_ptr<Records const> statedRecordsOf(Robot const& robot)
{
    std::shared_ptr<Records const> records = recordsOf(robot);
    if (records->statesMirrors || !(hasMirrors(records->joints) || hasMirrors(records->actuators))) {
        return records;
    }
    auto const stated = std::make_shared<Records>(*records);
    forgetMirrors(stated->joints);
    forgetMirrors(stated->actuators);
    return stated;
}

using ExtensionList = std::vector<ExtensionConfig>;

/// A prefix for our own namespace that the extensions do not give to another.
std::string freePrefix(ExtensionList const& extensions)
{
    std::string prefix(Urdf::usualPrefix);
    auto const declaresIt = [&prefix](ExtensionConfig const& extension) {
        std::string const name = std::string(Urdf::declaringAttribute) + prefix;
        return extension.text.compare(0, name.size(), name) == 0;
    };
    while (std::any_of(extensions.begin(), extensions.end(), declaresIt)) {
        prefix += '_';
    }
    return prefix;
}

/// What URDF says of a robot, and where it can take more.
struct UrdfText {
    std::string const& text() const { return source->text(); }

    std::string with(std::string_view attribute, std::string_view lines) const
    {
        std::string_view const all = text();
        std::string result;
        result.reserve(all.size() + attribute.size() + lines.size());
        result += all.substr(0, attributesEnd);
        result += attribute;
        result += all.substr(attributesEnd, linesEnd - attributesEnd);
        result += lines;
        result += all.substr(linesEnd);
        return result;
    }

    std::unique_ptr<SourceText const> source;
    std::size_t attributesEnd = 0;
    std::size_t linesEnd = 0;
};

UrdfText write(Records const& records, ExtensionList const& extensions)
{
    Urdf::ShortPoses poses;
    Urdf::StatementsOf const statements(records, poses);
    Urdf::ExtendingWriter writer(records, statements, extensions, poses);
    writer.writeDeclaration();
    writer.writeRobot();
    return {std::make_unique<SourceText>(writer.takeText()), writer.attributesEnd(), writer.linesEnd()};
}

Records readWritten(UrdfText const& written, Diagnostics& diagnostics)
{
    XmlDocument document;
    return parseXml(*written.source, document, diagnostics) ? readUrdf(document.root(), diagnostics) : Records();
}

/// What a reader has against the text.
std::string refusalOf(UrdfText const& written)
{
    Diagnostics diagnostics(written.source.get());
    readWritten(written, diagnostics);
    return summaryOf(diagnostics.findings());
}

/// What a reader makes of the text; nothing for one that it refuses or takes for another robot's, of which `reason`
/// says why.
std::optional<Records> readBack(UrdfText const& written, Records const& wanted, std::string& reason)
{
    Diagnostics diagnostics(written.source.get(), 0);  // nobody will see them but where there are errors
    Records records = readWritten(written, diagnostics);
    if (diagnostics.hasErrors()) {
        reason = refusalOf(written);
        return std::nullopt;
    }
    if (records.joints.size() != wanted.joints.size() || records.sensors.size() != wanted.sensors.size()) {
        reason = "it would have other joints or sensors.";
        return std::nullopt;
    }
    completeTables(records);
    return records;
}

}  // namespace

std::string writeUrdf(Robot const& robot, Diagnostics& diagnostics)
{
    std::shared_ptr<Records const> const records = statedRecordsOf(robot);
    ExtensionList const noExtensions;
    std::string reason;
    for (ExtensionList const* const extensions : {&records->extensions, &noExtensions}) {  // which may say anything
        UrdfText const written = write(*records, *extensions);
        std::optional<Records> given = readBack(written, *records, reason);
        if (!given) {
            continue;
        }
        std::string const prefix = freePrefix(*extensions);
        Native::Amendment const amendment = Native::amendmentOf(*records, *std::move(given), prefix + ":");
        if (amendment.text.empty()) {
            return written.text();
        }
        Urdf::noteBeyondUrdf(amendment, *records, diagnostics);
        std::string const declaration = " " + std::string(Urdf::declaringAttribute) + prefix + "=\"";
        return written.with(declaration + std::string(Urdf::ownNamespace) + "\"", amendment.text);
    }
    diagnostics.report({}, Urdf::codes::notUrdf, "No URDF can be made of this robot: " + reason);
    return write(*records, noExtensions).text();
}

}  // namespace Varo::Model
