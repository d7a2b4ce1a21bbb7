#ifndef SIM_SINGLE_DEPTH_SENSOR_HPP
#define SIM_SINGLE_DEPTH_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures the distance along one ray (m). Loading never makes one.
class VAROROBOTMODEL_API SingleDepthSensor final : public DCMSensor {
public:
    SingleDepthSensor();
    ~SingleDepthSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
