#include "sim/dcm_sensor.hpp"

#include <iostream>

#include "core/handle.hpp"
#include "sensors/dcm_sensor_impl.hpp"

namespace Sim {

DCMSensor::DCMSensor() = default;

DCMSensor::~DCMSensor() = default;

std::vector<std::string> const& DCMSensor::dcmKeys() const
{
    return implOf<DCMSensorImpl>(_impl, dcmSensorErrMsg).dcmKeys();
}

std::vector<std::string> const& DCMSensor::dcmStateKeys() const
{
    return implOf<DCMSensorImpl>(_impl, dcmSensorErrMsg).dcmStateKeys();
}

std::vector<std::string> const& DCMSensor::dcmCommandKeys() const
{
    return implOf<DCMSensorImpl>(_impl, dcmSensorErrMsg).dcmCommandKeys();
}

std::vector<std::string> DCMSensor::fullDcmKeys() const
{
    DCMSensorImpl const& impl = implOf<DCMSensorImpl>(_impl, dcmSensorErrMsg);
    std::cout << "fullDcmKeys is deprecated, use dcmKeys "
              << "instead." << std::endl;
    return impl.dcmKeys();
}

}  // namespace Sim
