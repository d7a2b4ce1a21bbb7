#include "schema/children.hpp"
#include "urdf/schema.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr Attribute<Robot> attributes[] = {
    optional<&Robot::name>("name", "", "", "name of the robot; one without a name is called `robot` (warning)"),
    optional<&Robot::version>("version", "", "", "version of the description"),
};
constexpr Child<Robot> children[] = {
    childrenOf<&Robot::links, linkElement>(),
    childrenOf<&Robot::joints, jointElement>(),
    childrenOf<&Robot::materials, materialElement>(),
    childrenOf<&Robot::transmissions, transmissionElement>(),
};

}  // namespace

constexpr Element<Robot> robotElement{"robot", "the whole of a description", attributes, children};

}  // namespace Varo::Model::Urdf
