#ifndef SIM_TORQUE_SENSOR_HPP
#define SIM_TORQUE_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the torque (N*m; the force in N for a sliding joint) that acts at a joint or a wheel.
///
/// A model has them when its name contains "SpecialSimulation": one for each AngleActuator, of its name and at its
/// frame.
class VAROROBOTMODEL_API TorqueSensor final : public DCMSensor {
public:
    TorqueSensor();
    ~TorqueSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
