#ifndef SIM_ANGLE_SPEED_SENSOR_HPP
#define SIM_ANGLE_SPEED_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures how fast a joint turns (rad/s; m/s for a sliding joint) or a wheel does.
///
/// A model has them when its name contains "SpecialSimulation": one for each AngleActuator, of its name and at its
/// frame.
class VAROROBOTMODEL_API AngleSpeedSensor final : public DCMSensor {
public:
    AngleSpeedSensor();
    ~AngleSpeedSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
