#include "sim/camera_depth_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/picture_camera_impl.hpp"

namespace Sim {

constexpr char cameraDepthSensorErrMsg[] = "Could not query CameraDepthSensor as it seems not correctly constructed.";

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

CameraDepthSensor const* Model::cameraDepthSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<CameraDepthSensor>(name);
}

std::vector<CameraDepthSensor const*> Model::cameraDepthSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<CameraDepthSensor>());
}

}  // namespace Sim
