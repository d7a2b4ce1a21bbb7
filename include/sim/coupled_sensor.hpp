#ifndef SIM_COUPLED_SENSOR_HPP
#define SIM_COUPLED_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the angle of a coupled actuator (rad).
class VAROROBOTMODEL_API CoupledSensor final : public DCMSensor {
public:
    CoupledSensor();
    ~CoupledSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
