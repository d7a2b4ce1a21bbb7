#include "sim/camera_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/camera_sensor_impl.hpp"

namespace Sim {

CameraSensor::CameraSensor() = default;

CameraSensor::~CameraSensor()
{
    delete _impl;
}

int CameraSensor::bufferSize() const
{
    return implOf<CameraSensorImpl>(_impl, cameraSensorErrMsg).bufferSize();
}

int CameraSensor::width() const
{
    return implOf<CameraSensorImpl>(_impl, cameraSensorErrMsg).width();
}

int CameraSensor::height() const
{
    return implOf<CameraSensorImpl>(_impl, cameraSensorErrMsg).height();
}

}  // namespace Sim
