#ifndef VARO_SENSORS_MICROPHONE_SENSOR_IMPL_HPP
#define VARO_SENSORS_MICROPHONE_SENSOR_IMPL_HPP

#include <string>

#include "core/kind_of.hpp"
#include "sensors/sensor_impl.hpp"
#include "sim/microphone_sensor.hpp"

namespace Sim {

inline constexpr char microphoneSensorErrMsg[] =
    "Could not query microphoneSensor as it seems not correctly constructed.";

class MicrophoneSensorImpl : public SensorImpl {
public:
    using Handle = MicrophoneSensor;

    MicrophoneSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name)
        : SensorImpl(frame, name, kindOf<MicrophoneSensor>().type)
    {}

    int bufferSize() const { return 4; }
};

}  // namespace Sim

#endif
