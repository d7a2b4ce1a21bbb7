#include "sim/camera_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/picture_camera_impl.hpp"

namespace Sim {

constexpr char cameraSensorErrMsg[] = "Could not query CameraSensor as it seems not correctly constructed.";

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

CameraSensor const* Model::cameraSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<CameraSensor>(name);
}

std::vector<CameraSensor const*> Model::cameraSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<CameraSensor>());
}

}  // namespace Sim
