#ifndef VARO_MODEL_URDF_SCHEMA_HPP
#define VARO_MODEL_URDF_SCHEMA_HPP

#include "schema/schema.hpp"
#include "urdf/statements.hpp"
#include "urdf/values.hpp"

/// What URDF defines, where, with which units and defaults; each family of elements stands in a source of its own.
/// Reader and documentation follow from these tables. Whatever else stands in a URDF text is for other programs.
namespace Varo::Model::Urdf {

using namespace Schema;

extern Element<Robot> const robotElement;

// What stands in it.
extern Element<SurfaceMaterial> const materialElement;
extern Element<Link> const linkElement;
extern Element<Joint> const jointElement;
extern Element<Transmission> const transmissionElement;

// What stands in links and joints.
extern Element<Visual> const visualElement;
extern Element<Collision> const collisionElement;

constexpr Attribute<Origin> originAttributes[] = {
    optional<&Origin::xyz>("xyz", "0 0 0", "m", "position"),
    optional<&Origin::rpy>("rpy", "0 0 0", "rad",
                           "orientation: roll about x, then pitch about y, then yaw about z, about fixed axes"),
};

/// An `origin`, which means something else in each element that has one.
constexpr Element<Origin> originElement(std::string_view meaning)
{
    return {"origin", meaning, originAttributes};
}

}  // namespace Varo::Model::Urdf

#endif
