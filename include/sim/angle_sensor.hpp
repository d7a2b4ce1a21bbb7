#ifndef SIM_ANGLE_SENSOR_HPP
#define SIM_ANGLE_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the angle of a joint (rad; m for a sliding joint).
class VAROROBOTMODEL_API AngleSensor final : public DCMSensor {
public:
    AngleSensor();
    ~AngleSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
