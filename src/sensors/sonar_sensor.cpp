#include "sim/sonar_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
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

SonarSensor const* Model::sonarSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<SonarSensor>(name);
}

std::vector<SonarSensor const*> Model::sonarSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<SonarSensor>());
}

}  // namespace Sim
