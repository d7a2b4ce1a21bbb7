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
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

/// How a joint is driven, as far as a `transmission` within the system says.
struct Drive {
    XmlNode joint;
    XmlNode actuator;  ///< null when none is stated
};
using Drives = std::unordered_map<std::string_view, Drive, NameHash>;

/// The joints and the actuators of a transmission belong together in their order.
void addDrives(XmlNode transmission, Drives& drives)
{
    auto const actuators = transmission.children("actuator");
    auto actuator = actuators.begin();
    for (XmlNode const joint : transmission.children("joint")) {
        bool const isStated = actuator != actuators.end();
        drives.try_emplace(joint.attribute("name").value(), Drive{joint, isStated ? *actuator : XmlNode()});
        actuator = isStated ? ++actuator : actuator;
    }
}

/// The first element that states the joint's reduction; null for none.
XmlNode findReduction(XmlNode joint, Drive const& drive)
{
    for (XmlNode const stated :
         {drive.joint.child("mechanical_reduction"), drive.actuator.child("mechanical_reduction")}) {
        if (stated) {
            return stated;
        }
    }
    for (XmlNode const parameter : joint.children("param")) {
        std::string_view const name = parameter.attribute("name").value();
        if (name == "mechanical_reduction" || name == "mechanicalReduction" || name == "reduction") {
            return parameter;
        }
    }
    return {};
}

float readReduction(XmlNode stated, Diagnostics& diagnostics)
{
    double value = 1.0;
    bool const isUsable =
        !stated || (parseNumber(stated.text(), value) && value != 0.0 && std::abs(value) <= largestNumber);
    if (!isUsable) {
        diagnostics.report(at(stated), codes::badReduction, quoted(stated.text()) + " is no reduction; 1 is assumed.");
        return 1.0F;
    }
    return static_cast<float>(value);
}

std::vector<std::string> namesOf(XmlNode joint, std::string_view element)
{
    std::vector<std::string> names;
    for (XmlNode const interface : joint.children(element)) {
        if (XmlAttribute const name = interface.attribute("name"); !name.value().empty()) {
            names.emplace_back(name.value());
        }
    }
    return names;
}

}  // namespace

void readRos2Control(XmlNode system, LinkTree& tree, Records& robot, Report const& report)
{
    Drives drives;
    for (XmlNode const transmission : system.children("transmission")) {
        addDrives(transmission, drives);
    }
    for (XmlNode const joint : system.children("joint")) {
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
