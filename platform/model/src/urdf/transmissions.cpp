#include <algorithm>
#include <string>
#include <utility>

#include "urdf/translation.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

/// The actuator of a transmission's joint: where there are several of both, the one of the same rank.
TransmissionEnd const* actuatorOf(Transmission const& transmission, std::size_t joint)
{
    auto const& actuators = transmission.actuators;
    return actuators.empty() ? nullptr : &actuators[std::min(joint, actuators.size() - 1)];
}

/// The reduction that counts for a joint; null for none.
Reduction const* reductionOf(Transmission const& transmission, std::size_t joint)
{
    TransmissionEnd const* const actuator = actuatorOf(transmission, joint);
    for (auto const* stated : {actuator == nullptr ? nullptr : &actuator->reduction,
                               &transmission.joints[joint].reduction, &transmission.reduction}) {
        if (stated != nullptr && *stated) {
            return &**stated;
        }
    }
    return nullptr;
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
    if (Reduction const* const reduction = reductionOf(transmission, index); reduction != nullptr) {
        config.reduction = static_cast<float>(reduction->value);
    }
    config.textOffset = at(transmission.node);
    addInterfaces(joint, config.interfaces);
    if (actuator != nullptr) {
        config.actuator = actuator->name;
        addInterfaces(*actuator, config.interfaces);
    }
    return config;
}

/// Reductions for which another one counts.
void keepOtherReductions(Transmission const& transmission, Report const& report)
{
    bool isCommonCounting = false;
    for (std::size_t i = 0; i < transmission.joints.size(); ++i) {
        Reduction const* const counting = reductionOf(transmission, i);
        auto const& own = transmission.joints[i].reduction;
        if (own && counting != &*own) {
            report.passOver(own->node);
        }
        isCommonCounting = isCommonCounting || (transmission.reduction && counting == &*transmission.reduction);
    }
    if (transmission.reduction && !isCommonCounting) {
        report.passOver(transmission.reduction->node);
    }
}

/// What the records of its joints have no place for; all of it where there are no joints.
void keepRest(Transmission const& transmission, Report const& report)
{
    if (transmission.joints.empty()) {
        report.passOver(transmission.node);
        return;
    }
    for (std::size_t i = transmission.joints.size(); i < transmission.actuators.size(); ++i) {
        report.passOver(transmission.actuators[i].node);
    }
    keepOtherReductions(transmission, report);
    if (XmlAttribute const type = transmission.node.attribute("type"); type && type.value() != transmission.type) {
        report.passOver(transmission.node, type);
    }
}

}  // namespace

void translateTransmissions(Robot const& stated, LinkTree& tree, Records& robot, Report const& report)
{
    robot.transmissions.reserve(stated.transmissions.size());
    for (Transmission const& transmission : stated.transmissions) {
        for (std::size_t i = 0; i < transmission.joints.size(); ++i) {
            TransmissionEnd const& joint = transmission.joints[i];
            if (!joint.name.empty() && find(tree.jointByName, joint.name) == none) {
                report.diagnostics.report(at(joint.node, "name"), codes::unknownDrivenJoint,
                                          "There is no joint " + quoted(joint.name) + "; the record keeps the name.",
                                          didYouMean(tree.closestJoint(joint.name)));
            }
            robot.transmissions.push_back(toConfig(transmission, i));
        }
        keepRest(transmission, report);
    }
}

}  // namespace Varo::Model::Urdf
