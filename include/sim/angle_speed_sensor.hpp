#ifndef SIM_ANGLE_SPEED_SENSOR_HPP
#define SIM_ANGLE_SPEED_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the angular speed of a joint or wheel (rad/s).
class VAROROBOTMODEL_API AngleSpeedSensor final : public DCMSensor {
public:
    AngleSpeedSensor();
    ~AngleSpeedSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
