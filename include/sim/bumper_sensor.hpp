#ifndef SIM_BUMPER_SENSOR_HPP
#define SIM_BUMPER_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A contact switch: feels whether the robot pushes against something, or something against the robot.
class VAROROBOTMODEL_API BumperSensor final : public DCMSensor {
public:
    BumperSensor();
    ~BumperSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
