#include <set>
#include <string>

#include "fuzzing.hpp"
#include "queries.hpp"

namespace Fuzz {

namespace {

using Sim::Model;

template <class Element>
void demandNamed(Element const* element, std::string const& name)
{
    demand(element == nullptr || element->name() == name, "a look-up finds what has the name");
}

template <class... Elements>
void lookUp(Model const& model, std::string const& name,
            Elements const* (Model::*... lookUps)(std::string const&) const)
{
    (demandNamed((model.*lookUps)(name), name), ...);
}

void lookUpAll(Model const& model, std::string const& name)
{
    lookUp(model, name, &Model::joint, &Model::jointGroup, &Model::actuatorGroup, &Model::actuator, &Model::sensor);
    lookUp(model, name, &Model::angleActuator, &Model::angleSpeedActuator, &Model::coupledActuator,
           &Model::torqueActuator, &Model::wheelTorqueActuator, &Model::wheelVelocityActuator, &Model::ledActuator);
    lookUp(model, name, &Model::angleSensor, &Model::angleSpeedSensor, &Model::arrayDepthSensor, &Model::bumperSensor,
           &Model::cameraSensor, &Model::cameraDepthSensor, &Model::coupledSensor, &Model::fsrSensor,
           &Model::inertialSensor, &Model::microphoneSensor, &Model::singleDepthSensor, &Model::sonarSensor,
           &Model::tactileSensor, &Model::torqueSensor, &Model::wheelVelocitySensor);
    static_cast<void>(model.link(name));
    static_cast<void>(model.jointSymmetry(name));
    static_cast<void>(model.jointGroupsOfJoint(name));
    static_cast<void>(model.actuatorGroupsOfJoint(name));
    static_cast<void>(model.ledActuators(name));
}

template <class Element>
void addNames(std::vector<Element const*> const& elements, std::set<std::string>& names)
{
    for (Element const* element : elements) {
        names.insert(element->name());
    }
}

template <class Element>
void demandPlaces(Model const& model, std::vector<Element const*> const& elements)
{
    for (Element const* element : elements) {
        demand(model.place(*element).line > 0, "every element stands somewhere in the text");
    }
}

template <class... Elements>
std::size_t count(Model const& model, std::vector<Elements const*> (Model::*... lists)() const)
{
    return ((model.*lists)().size() + ...);
}

template <class Device>
void copyAll(std::vector<Device const*> const& devices, std::vector<Device>& copies)
{
    copies.reserve(devices.size());
    for (Device const* device : devices) {
        copies.emplace_back(*device);
    }
}

}  // namespace

void askModel(Model const& model)
{
    std::set<std::string> names = {"", "no name"};
    addNames(model.links(), names);
    addNames(model.joints(), names);
    addNames(model.actuators(), names);
    addNames(model.sensors(), names);
    addNames(model.jointGroups(), names);
    addNames(model.actuatorGroups(), names);
    for (std::string const& name : names) {
        lookUpAll(model, name);
    }
    demandPlaces(model, model.links());
    demandPlaces(model, model.joints());
    demandPlaces(model, model.actuators());
    demandPlaces(model, model.sensors());
    demand(model.actuators().size() == count(model, &Model::angleActuators, &Model::angleSpeedActuators,
                                             &Model::coupledActuators, &Model::torqueActuators,
                                             &Model::wheelTorqueActuators, &Model::wheelVelocityActuators) +
                                           model.ledActuators("").size(),
           "every actuator is of one kind");
    demand(model.sensors().size() ==
               count(model, &Model::angleSensors, &Model::angleSpeedSensors, &Model::arrayDepthSensors,
                     &Model::bumperSensors, &Model::cameraSensors, &Model::cameraDepthSensors, &Model::coupledSensors,
                     &Model::fsrSensors, &Model::inertialSensors, &Model::microphoneSensors, &Model::singleDepthSensors,
                     &Model::sonarSensors, &Model::tactileSensors, &Model::torqueSensors, &Model::wheelVelocitySensors),
           "every sensor is of one kind");
}

Copies::Copies(Model const& model)
{
    copyAll(model.angleActuators(), angles);
    copyAll(model.coupledActuators(), coupled);
    copyAll(model.ledActuators(""), lights);
}

void Copies::askAlone() const
{
    for (Sim::AngleActuator const& actuator : angles) {
        demand(actuator.frame() == nullptr && actuator.controlledJoint() == nullptr &&
                   actuator.reflectedSymmetric() == nullptr && !actuator.name().empty(),
               "a copy without its model knows itself only");
    }
    for (Sim::CoupledActuator const& actuator : coupled) {
        demand(actuator.frame() == nullptr && actuator.reflectedSymmetric() == nullptr &&
                   actuator.controlledJointAndRatios().empty(),
               "a copy without its model knows itself only");
    }
    for (Sim::LEDActuator const& light : lights) {
        static_cast<void>(light.groups().size() + light.shortname().size() + light.dcmKeys().size());
    }
}

}  // namespace Fuzz
