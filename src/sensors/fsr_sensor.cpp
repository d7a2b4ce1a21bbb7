#include "sim/fsr_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char fsrSensorErrMsg[] = "Could not query FSRSensor as it seems not correctly constructed.";

FSRSensor::FSRSensor() = default;

FSRSensor::~FSRSensor()
{
    delete _impl;
}

int FSRSensor::bufferSize() const
{
    return implOf<FSRSensorImpl>(_impl, fsrSensorErrMsg).bufferSize();
}

FSRSensor const* Model::fsrSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<FSRSensor>(name);
}

std::vector<FSRSensor const*> Model::fsrSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<FSRSensor>());
}

}  // namespace Sim
