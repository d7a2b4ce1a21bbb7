#include "core/model_impl.hpp"

// Where the text states what the elements were made of. An element is called after its record, which leads there.
namespace Sim {

using Varo::Model::Place;
using Varo::Model::TextOffset;

namespace {

template <class Config>
TextOffset offsetIn(Varo::Model::Table<Config> const& table, std::string const& name)
{
    Config const* const record = table.find(name);
    return record == nullptr ? TextOffset() : record->textOffset;
}

/// The sensors of this kind are called after their record and what they measure.
std::string recordNameOf(Sensor const& sensor)
{
    std::string const& name = sensor.name();
    return sensor.type() == Sensor::Inertial ? name.substr(0, name.rfind('/')) : name;
}

TextOffset offsetOfJoint(Varo::Model::Records const& records, std::string const& name)
{
    for (TextOffset const offset : {offsetIn(records.joints, name), offsetIn(records.subActuators, name)}) {
        if (offset.isKnown()) {
            return offset;
        }
    }
    return offsetIn(records.wheels, name);
}

}  // namespace

Place ModelImpl::place(Link const& link) const
{
    auto const& records = _motionModel->records();
    Joint const* const joint = link.parentJoint();
    auto const* const body = joint == nullptr ? &records.root : records.joints.find(joint->name());
    return robot().place(body != nullptr ? body->bodyOffset : offsetOfJoint(records, joint->name()));
}

Place ModelImpl::place(Joint const& joint) const
{
    return robot().place(offsetOfJoint(_motionModel->records(), joint.name()));
}

Place ModelImpl::place(Actuator const& actuator) const
{
    auto const& records = _motionModel->records();
    std::string const& name = actuator.name();
    switch (actuator.type()) {
    case Actuator::Coupled: return robot().place(offsetIn(records.actuators, name));
    case Actuator::LED: return robot().place(offsetIn(records.sensors, name));
    case Actuator::WheelTorque:
    case Actuator::WheelVelocity: return robot().place(offsetIn(records.wheels, name));
    case Actuator::Angle:
    case Actuator::AngleSpeed:
    case Actuator::Torque: break;
    }
    return robot().place(offsetOfJoint(records, name));
}

Place ModelImpl::place(Sensor const& sensor) const
{
    auto const& records = _motionModel->records();
    switch (sensor.type()) {
    case Sensor::Angle:
    case Sensor::AngleSpeed:
    case Sensor::Torque:
    case Sensor::WheelVelocity: return robot().place(offsetOfJoint(records, sensor.name()));
    case Sensor::Coupled: return robot().place(offsetIn(records.actuators, sensor.name()));
    default: return robot().place(offsetIn(records.sensors, recordNameOf(sensor)));
    }
}

}  // namespace Sim
