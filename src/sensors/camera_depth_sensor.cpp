#include "sim/camera_depth_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/camera_depth_sensor_impl.hpp"

namespace Sim {

CameraDepthSensor::CameraDepthSensor() = default;

CameraDepthSensor::~CameraDepthSensor()
{
    delete _impl;
}

int CameraDepthSensor::bufferSize() const
{
    return implOf<CameraDepthSensorImpl>(_impl, cameraDepthSensorErrMsg).bufferSize();
}

int CameraDepthSensor::width() const
{
    return implOf<CameraDepthSensorImpl>(_impl, cameraDepthSensorErrMsg).width();
}

int CameraDepthSensor::height() const
{
    return implOf<CameraDepthSensorImpl>(_impl, cameraDepthSensorErrMsg).height();
}

}  // namespace Sim
