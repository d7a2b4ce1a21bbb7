#include "urdf/ros2_control.hpp"

#include <cmath>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "urdf/numbers.hpp"
#include "varo/model/name_hash.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

/// How a joint is driven, as far as a `transmission` within the system says.
struct Drive {
    pugi::xml_node joint;
    pugi::xml_node actuator;  ///< null when none is stated
};
using Drives = std::unordered_map<std::string_view, Drive, NameHash>;

/// The joints and the actuators of a transmission belong together in their order.
void addDrives(pugi::xml_node transmission, Drives& drives)
{
    pugi::xml_node actuator = transmission.child("actuator");
    for (pugi::xml_node const joint : transmission.children("joint")) {
        drives.try_emplace(joint.attribute("name").value(), Drive{joint, actuator});
        actuator = actuator.next_sibling("actuator");
    }
}

/// The first element that states the joint's reduction; null for none.
pugi::xml_node findReduction(pugi::xml_node joint, Drive const& drive)
{
    for (pugi::xml_node const stated :
         {drive.joint.child("mechanical_reduction"), drive.actuator.child("mechanical_reduction")}) {
        if (stated) {
            return stated;
        }
    }
    for (pugi::xml_node const parameter : joint.children("param")) {
        std::string_view const name = parameter.attribute("name").value();
        if (name == "mechanical_reduction" || name == "mechanicalReduction" || name == "reduction") {
            return parameter;
        }
    }
    return {};
}

float readReduction(pugi::xml_node stated, Diagnostics& diagnostics)
{
    double value = 1.0;
    bool const isUsable =
        !stated || (parseNumber(stated.child_value(), value) && value != 0.0 && std::abs(value) <= largestNumber);
    if (!isUsable) {
        diagnostics.report(at(stated), codes::badReduction,
                           quoted(stated.child_value()) + " is no reduction; 1 is assumed.");
        return 1.0F;
    }
    return static_cast<float>(value);
}

std::vector<std::string> namesOf(pugi::xml_node joint, char const* element)
{
    std::vector<std::string> names;
    for (pugi::xml_node const interface : joint.children(element)) {
        if (pugi::xml_attribute const name = interface.attribute("name"); *name.value() != 0) {
            names.emplace_back(name.value());
        }
    }
    return names;
}

}  // namespace

void readRos2Control(pugi::xml_node system, LinkTree& tree, Records& robot, Report const& report)
{
    Drives drives;
    for (pugi::xml_node const transmission : system.children("transmission")) {
        addDrives(transmission, drives);
    }
    for (pugi::xml_node const joint : system.children("joint")) {
        TransmissionConfig driven;
        driven.name = system.attribute("name").value();
        driven.type = system.attribute("type").value();
        driven.joint = joint.attribute("name").value();
        if (find(tree.jointByName, driven.joint) == none) {
            report.diagnostics.report(at(joint, "name"), codes::unknownDrivenJoint,
                                      "There is no joint " + quoted(driven.joint) + " that this could drive.",
                                      didYouMean(tree.closestJoint(driven.joint)));
        }
        auto const found = drives.find(driven.joint);
        Drive const drive = found == drives.end() ? Drive() : found->second;
        driven.actuator = drive.actuator.attribute("name").value();
        driven.reduction = readReduction(findReduction(joint, drive), report.diagnostics);
        driven.interfaces = namesOf(joint, "command_interface");
        driven.stateInterfaces = namesOf(joint, "state_interface");
        driven.source = TransmissionSource::ros2Control;
        driven.textOffset = at(joint);
        robot.transmissions.push_back(std::move(driven));
    }
    report.passOver(system);
}

}  // namespace Varo::Model::Urdf
