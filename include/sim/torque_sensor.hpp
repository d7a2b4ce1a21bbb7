#ifndef SIM_TORQUE_SENSOR_HPP
#define SIM_TORQUE_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the torque at a joint or wheel (N*m).
class VAROROBOTMODEL_API TorqueSensor final : public DCMSensor {
public:
    TorqueSensor();
    ~TorqueSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
