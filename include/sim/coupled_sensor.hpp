#ifndef SIM_COUPLED_SENSOR_HPP
#define SIM_COUPLED_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// The encoder of a coupled actuator: measures the angle (rad) of the motor, from which those of the joints that it
/// drives follow by their ratios.
///
/// Every CoupledActuator has one, of its name and at its frame.
class VAROROBOTMODEL_API CoupledSensor final : public DCMSensor {
public:
    CoupledSensor();
    ~CoupledSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
