#ifndef SIM_WHEEL_VELOCITY_SENSOR_HPP
#define SIM_WHEEL_VELOCITY_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures how fast a wheel turns (rad/s).
///
/// Loading makes none, so that a loaded model has none; the kind is there for the look-ups of Model.
class VAROROBOTMODEL_API WheelVelocitySensor final : public DCMSensor {
public:
    WheelVelocitySensor();
    ~WheelVelocitySensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
