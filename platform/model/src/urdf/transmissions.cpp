#include <algorithm>
#include <string>
#include <utility>

#include "urdf/translation.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

/// The actuator of a transmission's joint: where there are several of both, the one of the same rank.
TransmissionEnd const* actuatorOf(Transmission const& transmission, std::size_t joint)
{
    auto const& actuators = transmission.actuators;
    return actuators.empty() ? nullptr : &actuators[std::min(joint, actuators.size() - 1)];
}

double reductionOf(Transmission const& transmission, TransmissionEnd const& joint, TransmissionEnd const* actuator)
{
    if (actuator != nullptr && actuator->reduction) {
        return actuator->reduction->value;
    }
    return joint.reduction.value_or(transmission.reduction.value_or(Reduction())).value;
}

void addInterfaces(TransmissionEnd const& end, std::vector<std::string>& interfaces)
{
    for (std::string const& interface : end.interfaces) {
        if (std::find(interfaces.begin(), interfaces.end(), interface) == interfaces.end()) {
            interfaces.push_back(interface);
        }
    }
}

TransmissionConfig toConfig(Transmission const& transmission, std::size_t index)
{
    TransmissionEnd const& joint = transmission.joints[index];
    TransmissionEnd const* const actuator = actuatorOf(transmission, index);
    TransmissionConfig config;
    config.name = transmission.name;
    config.type = transmission.type;
    config.joint = joint.name;
    config.reduction = static_cast<float>(reductionOf(transmission, joint, actuator));
    config.textOffset = at(transmission.node);
    addInterfaces(joint, config.interfaces);
    if (actuator != nullptr) {
        config.actuator = actuator->name;
        addInterfaces(*actuator, config.interfaces);
    }
    return config;
}

}  // namespace

void translateTransmissions(Robot const& stated, LinkTree const& tree, Records& robot, Diagnostics& diagnostics)
{
    for (Transmission const& transmission : stated.transmissions) {
        for (std::size_t i = 0; i < transmission.joints.size(); ++i) {
            TransmissionEnd const& joint = transmission.joints[i];
            if (!joint.name.empty() && find(tree.jointByName, joint.name) == none) {
                diagnostics.report(at(joint.node, "name"), codes::unknownDrivenJoint,
                                   "There is no joint " + quoted(joint.name) + "; the record keeps the name.");
            }
            robot.transmissions.push_back(toConfig(transmission, i));
        }
    }
}

}  // namespace Varo::Model::Urdf
