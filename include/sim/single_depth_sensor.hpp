#ifndef SIM_SINGLE_DEPTH_SENSOR_HPP
#define SIM_SINGLE_DEPTH_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A range finder: measures the distance (m) along one ray, as an infrared sensor does.
///
/// No description has such a sensor, so that a loaded model has none; the kind is there for the look-ups of Model.
class VAROROBOTMODEL_API SingleDepthSensor final : public DCMSensor {
public:
    SingleDepthSensor();
    ~SingleDepthSensor();

    /// 4: one single-precision value.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
