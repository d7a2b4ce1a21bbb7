#include "sim/microphone_sensor.hpp"

#include "core/handle.hpp"
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

}  // namespace Sim
