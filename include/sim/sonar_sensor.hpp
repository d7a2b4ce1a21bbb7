#ifndef SIM_SONAR_SENSOR_HPP
#define SIM_SONAR_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Measures distances (m) by ultrasound; a reading has one distance or ten.
///
/// It has a device key for each. A sonar that the description gives another number of keys is left out of the model.
/// Its range and rate, where the description states them, are in settings().
class VAROROBOTMODEL_API SonarSensor final : public DCMSensor {
public:
    SonarSensor();
    ~SonarSensor();

    /// 40 for a sonar that delivers ten single-precision values, 4 for one that delivers a single one.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
