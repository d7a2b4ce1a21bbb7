#include <utility>

#include "native/body.hpp"
#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

constexpr Attribute wheelAttributes[] = {
    required<&WheelConfig::name, Name>("name", "", "what the wheel is called"),
    required<&WheelConfig::parentJoint, Name>("parent", "", "the joint that the wheel hangs on"),
    optional<&WheelConfig::meshName>("mesh", "", "", "mesh file of the wheel"),
    required<&WheelConfig::maxTorque>("maxTorque", "N*m", "greatest torque of the wheel's motor"),
    required<&WheelConfig::maxVelocity>("maxVelocity", "rad/s", "greatest speed of the wheel"),
};
constexpr Child wheelChildren[] = {
    poseChild<&WheelConfig::placement>(devicePlacementElement),
    massChild<WheelConfig>,
    freeAttributeChild<WheelConfig>,
};
}  // namespace

Element const wheelElement{"wheel",         "a driven wheel, which turns about the x axis of its link",
                           wheelAttributes, wheelChildren,
                           nullptr,         uniqueFreeAttributes};

void readWheel(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    WheelConfig wheel;
    reader.read(element, node, &wheel);
    if (wheel.attributes.find("material") == wheel.attributes.end()) {
        reader.diagnostics().report(at(node), codes::missingMaterial,
                                    "The wheel says no material, without which no model can be built.",
                                    "Add <attribute name=\"material\" value=\"rubber\"/> or the like.");
    }
    reader.define(NameIndex::wheel, static_cast<Records*>(parent)->wheels, std::move(wheel), node);
}

}  // namespace Varo::Model::Native
