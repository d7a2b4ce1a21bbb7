#ifndef SIM_INERTIAL_SENSOR_HPP
#define SIM_INERTIAL_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures angular rates and accelerations. Bears the name that the description gives it with
/// "/Gyrometer" appended.
class VAROROBOTMODEL_API InertialSensor final : public DCMSensor {
public:
    InertialSensor();
    ~InertialSensor();

    /// 28: seven single-precision values.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
