#include "sim/microphone_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/microphone_sensor_impl.hpp"

namespace Sim {

MicrophoneSensor::MicrophoneSensor() = default;

MicrophoneSensor::~MicrophoneSensor()
{
    delete _impl;
}

int MicrophoneSensor::bufferSize() const
{
    return implOf<MicrophoneSensorImpl>(_impl, microphoneSensorErrMsg).bufferSize();
}

MicrophoneSensor const* Model::microphoneSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<MicrophoneSensor>(name);
}

std::vector<MicrophoneSensor const*> Model::microphoneSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<MicrophoneSensor>());
}

}  // namespace Sim
