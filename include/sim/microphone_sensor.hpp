#ifndef SIM_MICROPHONE_SENSOR_HPP
#define SIM_MICROPHONE_SENSOR_HPP

#include "sim/sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A microphone. It has no device keys; those that a description gives it are not used.
class VAROROBOTMODEL_API MicrophoneSensor final : public Sensor {
public:
    MicrophoneSensor();
    ~MicrophoneSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
