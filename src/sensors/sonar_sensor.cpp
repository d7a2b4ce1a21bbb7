#include "sim/sonar_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/sonar_sensor_impl.hpp"

namespace Sim {

SonarSensor::SonarSensor() = default;

SonarSensor::~SonarSensor()
{
    delete _impl;
}

int SonarSensor::bufferSize() const
{
    return implOf<SonarSensorImpl>(_impl, sonarSensorErrMsg).bufferSize();
}

}  // namespace Sim
