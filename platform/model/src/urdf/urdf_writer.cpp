#include "urdf/urdf_writer.hpp"

#include <memory>
#include <utility>

#include <pugixml.hpp>

#include "native/amendment.hpp"
#include "robot/robot_record.hpp"
#include "urdf/beyond_urdf.hpp"
#include "urdf/extending_writer.hpp"
#include "urdf/own_namespace.hpp"
#include "urdf/statements_of.hpp"
#include "urdf/urdf_codes.hpp"
#include "urdf/urdf_reader.hpp"
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

std::string write(Records const& records, StatementsOf const& statements, std::string_view declaration,
                  std::string_view behind)
{
    Urdf::ExtendingWriter writer(records, statements);
    writer.writeRobot(declaration, behind);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + writer.text();
}

/// What a reader makes of the text; null, and reported, for one that it refuses.
std::unique_ptr<RobotRecord> readBack(std::string text, Diagnostics& report)
{
    auto const source = std::make_shared<SourceText const>(std::move(text));
    Diagnostics diagnostics(source.get());
    pugi::xml_document document;
    Records records;
    if (parseXml(*source, document, diagnostics)) {
        records = readUrdf(document.document_element(), diagnostics);
    }
    if (diagnostics.hasErrors()) {
        Findings const findings = diagnostics.findings();
        report.report({}, Urdf::codes::notUrdf, "No URDF can be made of this robot: " + summaryOf(findings));
        return nullptr;
    }
    return std::make_unique<RobotRecord>(std::move(records), source, std::move(diagnostics), urdfParts);
}

}  // namespace

std::string writeUrdf(Robot const& robot, Diagnostics& diagnostics)
{
    Records const records = statedRecordsOf(robot);
    StatementsOf const statements(records);
    std::string plain = write(records, statements, {}, {});
    auto const given = readBack(plain, diagnostics);
    if (given == nullptr) {
        return plain;
    }
    Native::Amendment const amendment = Native::amendmentOf(records, *given->records(), Urdf::usualPrefix);
    if (amendment.text.empty()) {
        return plain;
    }
    Urdf::noteBeyondUrdf(amendment, records, diagnostics);
    return write(records, statements, "xmlns:varo=\"" + std::string(Urdf::ownNamespace) + "\"", amendment.text);
}

}  // namespace Varo::Model
