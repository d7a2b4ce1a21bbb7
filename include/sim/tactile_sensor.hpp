#ifndef SIM_TACTILE_SENSOR_HPP
#define SIM_TACTILE_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A patch of the robot's skin that feels whether it is touched.
class VAROROBOTMODEL_API TactileSensor final : public DCMSensor {
public:
    TactileSensor();
    ~TactileSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
