#ifndef SIM_WHEEL_VELOCITY_SENSOR_HPP
#define SIM_WHEEL_VELOCITY_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the angular speed of a wheel (rad/s). Loading never makes one.
class VAROROBOTMODEL_API WheelVelocitySensor final : public DCMSensor {
public:
    WheelVelocitySensor();
    ~WheelVelocitySensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
