#ifndef SIM_ARRAY_DEPTH_SENSOR_HPP
#define SIM_ARRAY_DEPTH_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures distances along many rays, arranged in a grid (m).
class VAROROBOTMODEL_API ArrayDepthSensor final : public DCMSensor {
public:
    ArrayDepthSensor();
    ~ArrayDepthSensor();

    /// 4 bytes, a single-precision value, for each of dcmKeys().
    int bufferSize() const override;
    int width() const;  ///< measuring points
    int height() const;  ///< measuring points
};

}  // namespace Sim

#endif
