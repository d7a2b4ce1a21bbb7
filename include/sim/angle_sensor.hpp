#ifndef SIM_ANGLE_SENSOR_HPP
#define SIM_ANGLE_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// The encoder of a joint: measures its angle (rad; its displacement in m for a sliding joint), which is zero in the
/// position that the model's frames show.
///
/// Every AngleActuator has one, of its name and at its frame.
class VAROROBOTMODEL_API AngleSensor final : public DCMSensor {
public:
    AngleSensor();
    ~AngleSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
