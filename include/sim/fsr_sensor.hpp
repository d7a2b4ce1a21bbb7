#ifndef SIM_FSR_SENSOR_HPP
#define SIM_FSR_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the force on a patch of the robot by a force-sensing resistor, mostly under a foot (N).
class VAROROBOTMODEL_API FSRSensor final : public DCMSensor {
public:
    FSRSensor();
    ~FSRSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
