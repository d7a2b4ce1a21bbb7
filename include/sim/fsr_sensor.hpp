#ifndef SIM_FSR_SENSOR_HPP
#define SIM_FSR_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A force-sensing resistor: measures the force (N) on a patch of the robot, mostly one of several under a foot, from
/// which the load on the foot and its centre of pressure follow.
///
/// Its frame tells where the patch is.
class VAROROBOTMODEL_API FSRSensor final : public DCMSensor {
public:
    FSRSensor();
    ~FSRSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
