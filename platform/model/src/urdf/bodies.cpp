#include <string>

#include "urdf/elements.hpp"
#include "urdf/numbers.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

Matrix readInertia(pugi::xml_node node, Diagnostics& diagnostics)
{
    auto const entry = [&](char const* name) { return readNumber(node, name, 0.0, diagnostics); };
    double const xx = entry("ixx");
    double const xy = entry("ixy");
    double const xz = entry("ixz");
    double const yy = entry("iyy");
    double const yz = entry("iyz");
    double const zz = entry("izz");
    return {{{xx, xy, xz}, {xy, yy, yz}, {xz, yz, zz}}};
}

/// The matrix stands in the axes of the inertial's own frame; the record wants the axes of the link.
void readInertial(pugi::xml_node inertial, JointConfig& body, Report const& report)
{
    auto const [origin, mass, inertia] = childrenOf<3>(inertial, {"origin", "mass", "inertia"}, report);
    bool const hasMass = mass.attribute("value");
    if (!hasMass || !inertia) {
        std::string const missing = hasMass ? "inertia" : inertia ? "mass" : "mass and no inertia";
        report.diagnostics.report(at(inertial), codes::incompleteInertial,
                                  "This inertial states no " + missing + "; what is missing counts as 0.");
    }
    Pose const frame = readOrigin(origin, report.diagnostics);
    Matrix const turned = frame.rotation * readInertia(inertia, report.diagnostics) * transposed(frame.rotation);
    for (std::size_t i = 0; i < 9; ++i) {
        body.inertiaMatrix[i] = static_cast<float>(turned[i / 3][i % 3]);
    }
    body.mass = static_cast<float>(readNumber(mass, "value", 0.0, report.diagnostics));
    body.centerOfMass = toPosition(frame.translation);
}

}  // namespace

void readBody(pugi::xml_node link, JointConfig& body, Report const& report)
{
    body.bodyOffset = at(link);
    body.linkName = link.attribute("name").value();
    pugi::xml_node inertial;
    std::vector<pugi::xml_node> visuals;
    for (auto child = link.first_child(); child; child = child.next_sibling()) {
        std::string_view const name = child.name();
        if (name == "visual") {
            visuals.push_back(child);
        } else if (name == "inertial" && !inertial) {
            inertial = child;
        } else if (name == "inertial") {
            report.diagnostics.report(at(child), codes::surplusElement,
                                      "This is a further \"inertial\"; the first one counts.");
        } else if (child.type() == pugi::node_element) {
            report.passOver(child);
        }
    }
    if (inertial) {
        readInertial(inertial, body, report);
    }
    readVisuals(visuals, body, report);
}

}  // namespace Varo::Model::Urdf
