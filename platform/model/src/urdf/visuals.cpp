#include <string>

#include "urdf/elements.hpp"
#include "urdf/numbers.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

struct Visual {
    pugi::xml_node node;
    pugi::xml_node origin;
    pugi::xml_node mesh;  ///< null for a box, a sphere or another shape without a file
};

Visual readVisual(pugi::xml_node node, Report const& report)
{
    auto const [origin, geometry] = childrenOf<2>(node, {"origin", "geometry"}, report);
    return {node, origin, childrenOf<1>(geometry, {"mesh"}, report)[0]};
}

/// A single number scales all three directions.
bool isScaled(pugi::xml_node mesh, Diagnostics& diagnostics)
{
    double factor = 1.0;
    if (parseNumber(mesh.attribute("scale").value(), factor)) {
        return factor != 1.0;
    }
    Vector const one = {1.0, 1.0, 1.0};
    return readVector(mesh, "scale", one, diagnostics) != one;
}

void reportScale(pugi::xml_node mesh, Diagnostics& diagnostics)
{
    if (isScaled(mesh, diagnostics)) {
        diagnostics.report(at(mesh, "scale"), codes::meshScaleLost,
                           "The scale " + quoted(mesh.attribute("scale").value()) + " of the mesh is not kept.");
    }
}

/// What is stated of the origin, as the text has it.
std::string statedOrigin(pugi::xml_node origin)
{
    std::string stated;
    for (char const* name : {"xyz", "rpy"}) {
        if (pugi::xml_attribute const attribute = origin.attribute(name)) {
            stated += (stated.empty() ? "" : ", ") + std::string(name) + " " + quoted(attribute.value());
        }
    }
    return stated;
}

/// The record keeps the offset, but the links of a model have their mesh at their frame.
void readOffset(Visual const& visual, JointConfig& body, Diagnostics& diagnostics)
{
    Vector const nothing = {0.0, 0.0, 0.0};
    Vector const xyz = readVector(visual.origin, "xyz", nothing, diagnostics);
    Vector const rpy = readVector(visual.origin, "rpy", nothing, diagnostics);
    body.meshPosition = toPosition(xyz);
    body.meshOrientation = toPosition(rpy);
    if (xyz != nothing || rpy != nothing) {
        diagnostics.report(at(visual.origin), codes::meshOffsetLost,
                           "The model shows the mesh at the link frame: its offset, " + statedOrigin(visual.origin) +
                               ", is in the record only.");
    }
}

}  // namespace

void readVisuals(std::vector<pugi::xml_node> const& visuals, JointConfig& body, Report const& report)
{
    Visual shown;
    for (pugi::xml_node node : visuals) {
        Visual const visual = readVisual(node, report);
        if (visual.mesh && !shown.mesh) {
            shown = visual;
        }
    }
    if (visuals.size() > 1) {
        report.diagnostics.report(at(visuals[1]), codes::visualsLost,
                                  "The link has " + std::to_string(visuals.size()) + " visuals; " +
                                      (shown.mesh ? "only its first mesh is kept." : "none of them is kept."));
    }
    if (shown.mesh) {
        body.meshName = shown.mesh.attribute("filename").value();
        reportScale(shown.mesh, report.diagnostics);
        readOffset(shown, body, report.diagnostics);
    }
}

}  // namespace Varo::Model::Urdf
