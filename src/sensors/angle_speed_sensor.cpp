#include "sim/angle_speed_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char angleSpeedSensorErrMsg[] = "Could not query AngleSpeedSensor as it seems not correctly constructed.";

AngleSpeedSensor::AngleSpeedSensor() = default;

AngleSpeedSensor::~AngleSpeedSensor()
{
    delete _impl;
}

int AngleSpeedSensor::bufferSize() const
{
    return implOf<AngleSpeedSensorImpl>(_impl, angleSpeedSensorErrMsg).bufferSize();
}

AngleSpeedSensor const* Model::angleSpeedSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<AngleSpeedSensor>(name);
}

std::vector<AngleSpeedSensor const*> Model::angleSpeedSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<AngleSpeedSensor>());
}

}  // namespace Sim
