#include "sim/model.hpp"

#include <iostream>
#include <utility>

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "varo/model/diagnostics.hpp"

namespace Sim {

// The look-ups by kind stand with the kinds, in sensors and actuators.

Model::Model(std::string const& pathOrXml) : _impl(new ModelImpl(pathOrXml)) {}

Model::Model(Varo::Model::ModelUtils::Reading&& reading) : _impl(new ModelImpl(std::move(reading))) {}

Model Model::fromText(std::string xml)
{
    return Model(Varo::Model::ModelUtils::read(std::move(xml), forModel));
}

Model Model::fromFile(std::string const& path)
{
    auto reading = Varo::Model::ModelUtils::readFile(path, forModel);
    if (reading.robot == nullptr) {
        std::string const what =
            "Could not load model. " + Varo::Model::quoted(path) + ": " + summaryOf(reading.findings);
        throw Varo::Model::DescriptionError(what, std::move(reading.findings));
    }
    return Model(std::move(reading));
}

Model::Model(Model&& other) noexcept : _impl(std::exchange(other._impl, nullptr)) {}

Model& Model::operator=(Model&& other) noexcept
{
    if (this != &other) {
        delete std::exchange(_impl, std::exchange(other._impl, nullptr));
    }
    return *this;
}

Model::~Model()
{
    delete _impl;
}

std::string const& Model::name() const
{
    return implOf(_impl, modelErrorMsg).name();
}

std::string Model::prettyName(int index) const
{
    return implOf(_impl, modelErrorMsg).prettyName(index);
}

std::string const& Model::configFile() const
{
    return implOf(_impl, modelErrorMsg).configFile();
}

Varo::Model::Robot const& Model::robot() const
{
    return implOf(_impl, modelErrorMsg).robot();
}

Varo::Model::Findings Model::findings() const
{
    return implOf(_impl, modelErrorMsg).findings();
}

Varo::Model::Place Model::place(Link const& link) const
{
    return implOf(_impl, modelErrorMsg).place(link);
}

Varo::Model::Place Model::place(Joint const& joint) const
{
    return implOf(_impl, modelErrorMsg).place(joint);
}

Varo::Model::Place Model::place(Actuator const& actuator) const
{
    return implOf(_impl, modelErrorMsg).place(actuator);
}

Varo::Model::Place Model::place(Sensor const& sensor) const
{
    return implOf(_impl, modelErrorMsg).place(sensor);
}

std::vector<Varo::Model::PostureConfig> const& Model::postures() const
{
    return robot().postures();
}

Joint const* Model::joint(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).joint(name).get();
}

std::vector<Joint const*> Model::joints() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).joints());
}

Link const* Model::link(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).linkByAnyName(name);
}

std::vector<Link const*> Model::links() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).links());
}

Link const* Model::rootLink() const
{
    return implOf(_impl, modelErrorMsg).rootLink().get();
}

JointSymmetry const* Model::jointSymmetry(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).jointSymmetry(name).get();
}

std::vector<JointSymmetry const*> Model::jointSymmetries() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).jointSymmetries());
}

JointGroup const* Model::jointGroup(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).jointGroup(name).get();
}

std::vector<JointGroup const*> Model::jointGroups() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).jointGroups());
}

std::vector<JointGroup const*> Model::jointGroupsOfJoint(std::string const& name) const
{
    return rawPointers(implOf(_impl, modelErrorMsg).jointGroupsOfJoint(name));
}

ActuatorGroup const* Model::actuatorGroup(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuatorGroup(name).get();
}

std::vector<ActuatorGroup const*> Model::actuatorGroups() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuatorGroups());
}

std::vector<ActuatorGroup const*> Model::actuatorGroupsOfJoint(std::string const& name) const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuatorGroupsOfJoint(name));
}

Actuator const* Model::actuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator(name).get();
}

std::vector<Actuator const*> Model::actuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators());
}

Sensor const* Model::sensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor(name).get();
}

std::vector<Sensor const*> Model::sensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors());
}

SingleDepthSensor const* Model::depthInfraredSensor(std::string const& name) const
{
    std::cout << "depthInfraredSensor is deprecated, use singleDepthSensor "
              << "instead." << std::endl;
    return singleDepthSensor(name);
}

std::vector<SingleDepthSensor const*> Model::depthInfraredSensors() const
{
    std::cout << "depthInfraredSensors is deprecated, use singleDepthSensors "
              << "instead." << std::endl;
    return singleDepthSensors();
}

}  // namespace Sim
