#include "urdf/urdf_writer.hpp"

#include <algorithm>
#include <memory>
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

using Urdf::StatementsOf;

template <class Configs>
void forgetMirrors(Configs& configs)
{
    for (std::size_t i = 0; i < configs.size(); ++i) {
        configs[i].mirrorKind = noMirror;
        configs[i].mirrorName.clear();
    }
}

/// Without what was inferred and will be again.
Records statedRecordsOf(Robot const& robot)
{
    Records records = *recordsOf(robot);
    if (!records.statesMirrors) {
        forgetMirrors(records.joints);
        forgetMirrors(records.actuators);
    }
    return records;
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

/// One robot, with more or less beside what URDF says of it.
class UrdfText {
public:
    UrdfText(Records const& records, StatementsOf const& statements, ExtensionList const& extensions)
        : _records(records), _statements(statements), _extensions(extensions)
    {}

    std::string write(std::string_view declaration, std::string_view behind) const
    {
        Urdf::ExtendingWriter writer(_records, _statements, _extensions);
        writer.writeRobot(declaration, behind);
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + writer.text();
    }

    /// What a reader makes of the plain text; null for one that it refuses or takes for another robot's, of which
    /// `reason` says why.
    std::unique_ptr<RobotRecord> readBack(std::string& reason) const;

private:
    Records const& _records;
    StatementsOf const& _statements;
    ExtensionList const& _extensions;
};

std::unique_ptr<RobotRecord> UrdfText::readBack(std::string& reason) const
{
    auto const source = std::make_shared<SourceText const>(write({}, {}));
    Diagnostics diagnostics(source.get());
    XmlDocument document;
    Records records;
    if (parseXml(*source, document, diagnostics)) {
        records = readUrdf(document.root(), diagnostics);
    }
    if (diagnostics.hasErrors()) {
        reason = summaryOf(diagnostics.findings());
        return nullptr;
    }
    if (records.joints.size() != _records.joints.size() || records.sensors.size() != _records.sensors.size()) {
        reason = "it would have other joints or sensors.";
        return nullptr;
    }
    return std::make_unique<RobotRecord>(std::move(records), source, std::move(diagnostics), urdfParts);
}

}  // namespace

std::string writeUrdf(Robot const& robot, Diagnostics& diagnostics)
{
    Records const records = statedRecordsOf(robot);
    StatementsOf const statements(records);
    ExtensionList const none;
    std::string reason;
    for (ExtensionList const* const extensions : {&records.extensions, &none}) {  // which may say anything
        UrdfText const text(records, statements, *extensions);
        auto const given = text.readBack(reason);
        if (given == nullptr) {
            continue;
        }
        std::string const prefix = freePrefix(*extensions);
        Native::Amendment const amendment = Native::amendmentOf(records, *given->records(), prefix + ":");
        if (amendment.text.empty()) {
            return text.write({}, {});
        }
        Urdf::noteBeyondUrdf(amendment, records, diagnostics);
        std::string const name = std::string(Urdf::declaringAttribute) + prefix;
        return text.write(name + "=\"" + std::string(Urdf::ownNamespace) + "\"", amendment.text);
    }
    diagnostics.report({}, Urdf::codes::notUrdf, "No URDF can be made of this robot: " + reason);
    return UrdfText(records, statements, none).write({}, {});
}

}  // namespace Varo::Model
