#include <algorithm>
#include <cstddef>
#include <string>

#include "urdf/translation.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

void reportIncomplete(Inertial const& inertial, bool hasMass, bool hasInertia, Diagnostics& diagnostics)
{
    std::string const missing = hasMass ? "inertia" : hasInertia ? "mass" : "mass and no inertia";
    diagnostics.report(at(inertial.node), codes::incompleteInertial,
                       "This inertial states no " + missing + "; what is missing counts as 0.");
}

/// The matrix stands in the axes of the inertial's own frame; the record wants the axes of the link.
void translateInertial(Inertial const& inertial, JointConfig& body, Diagnostics& diagnostics)
{
    Mass const mass = inertial.mass.value_or(Mass());
    Inertia const inertia = inertial.inertia.value_or(Inertia());
    bool const hasMass = mass.node.attribute("value") || !mass.node.text().empty();  // a text is told already
    bool const hasInertia = inertial.inertia.has_value();
    if (!hasMass || !hasInertia) {
        reportIncomplete(inertial, hasMass, hasInertia, diagnostics);
    }
    Matrix const stated = {{{inertia.xx, inertia.xy, inertia.xz},
                            {inertia.xy, inertia.yy, inertia.yz},
                            {inertia.xz, inertia.yz, inertia.zz}}};
    Pose const frame = inertial.origin.value_or(Origin()).pose();
    Matrix const turned = frame.rotation * stated * transposed(frame.rotation);
    for (std::size_t i = 0; i < 9; ++i) {
        std::size_t const row = std::min(i / 3, i % 3);  // symmetric in spite of rounding
        std::size_t const column = std::max(i / 3, i % 3);
        body.inertiaMatrix[i] = static_cast<float>(turned[row][column]);
    }
    body.mass = static_cast<float>(mass.value);
    body.centerOfMass = toPosition(frame.translation);
}

}  // namespace

void translateBody(Link const& link, Materials const& materials, JointConfig& body, Diagnostics& diagnostics)
{
    body.bodyOffset = at(link.node);
    body.linkName = link.name;
    if (link.inertial) {
        translateInertial(*link.inertial, body, diagnostics);
    }
    translateShapes(link, materials, body, diagnostics);
}

}  // namespace Varo::Model::Urdf
