#include "schema/children.hpp"
#include "urdf/schema.hpp"
#include "urdf/urdf_codes.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr Element<Origin> inertialOrigin = originElement(
    "the frame of the inertial in the link frame: `xyz` is the centre of mass, `rpy` is worked into the inertia");

constexpr Attribute<Mass> massAttributes[] = {optional<&Mass::value>("value", "0", "kg", "mass of the body")};
constexpr Element<Mass> massElement{"mass", "the body's mass", massAttributes};

template <auto member>
constexpr Attribute<Inertia> entry(std::string_view name)
{
    return optional<member>(name, "0", "kg*m^2", "entry of the symmetric matrix").alwaysWritten();
}
constexpr Attribute<Inertia> inertiaAttributes[] = {
    entry<&Inertia::xx>("ixx"), entry<&Inertia::xy>("ixy"), entry<&Inertia::xz>("ixz"),
    entry<&Inertia::yy>("iyy"), entry<&Inertia::yz>("iyz"), entry<&Inertia::zz>("izz"),
};
constexpr Element<Inertia> inertiaElement{
    "inertia", "the inertia about the centre of mass; the record has it in the axes of the link", inertiaAttributes};

constexpr Child<Inertial> inertialChildren[] = {
    childOf<&Inertial::origin, inertialOrigin>(),
    childOf<&Inertial::mass, massElement>(),
    childOf<&Inertial::inertia, inertiaElement>(),
};
constexpr Element<Inertial> inertialElement{
    "inertial", "mass and inertia of the body; what it does not state counts as 0 (warning)", {}, inertialChildren};

constexpr Attribute<Link> attributes[] = {
    required<&Link::name, Name>("name", "", "name of the link, by which joints and sensors refer to it")
        .orElse({&codes::missingName, "This link has no name.", "Give it an attribute \"name\"."}),
};
constexpr Child<Link> children[] = {
    childOf<&Link::inertial, inertialElement>(),
    childrenOf<&Link::visuals, visualElement>(),
    childrenOf<&Link::collisions, collisionElement>(),
};

}  // namespace

constexpr Element<Link> linkElement{"link", "the body of the record of the joint whose child it is, or of the root",
                                    attributes, children};

}  // namespace Varo::Model::Urdf
