#include "sim/bumper_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char bumperSensorErrMsg[] = "Could not query BumperSensor as it seems not correctly constructed.";

BumperSensor::BumperSensor() = default;

BumperSensor::~BumperSensor()
{
    delete _impl;
}

int BumperSensor::bufferSize() const
{
    return implOf<BumperSensorImpl>(_impl, bumperSensorErrMsg).bufferSize();
}

BumperSensor const* Model::bumperSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<BumperSensor>(name);
}

std::vector<BumperSensor const*> Model::bumperSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<BumperSensor>());
}

}  // namespace Sim
