#ifndef SIM_BUMPER_SENSOR_HPP
#define SIM_BUMPER_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Feels whether something is pushed against it.
class VAROROBOTMODEL_API BumperSensor final : public DCMSensor {
public:
    BumperSensor();
    ~BumperSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
