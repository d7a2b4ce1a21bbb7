#ifndef SIM_DCM_SENSOR_HPP
#define SIM_DCM_SENSOR_HPP

#include <string>
#include <vector>

#include "sim/sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A sensor whose values the robot's device layer delivers under device keys: every kind but cameras and microphones.
///
/// A key is the name of one value, such as "Elbow/Angle/Sensor". The keys of a described sensor are those that the
/// description gives it, in its order; those of a sensor that comes with an actuator follow from its name.
class VAROROBOTMODEL_API DCMSensor : public Sensor {
public:
    int bufferSize() const override = 0;
    /// The keys under which the values are read; empty when the description gives none.
    std::vector<std::string> const& dcmKeys() const;
    /// The keys under which the device's state is read, such as its mode of operation; only an ArrayDepthSensor has
    /// any.
    std::vector<std::string> const& dcmStateKeys() const;
    /// The keys under which the device is commanded; only an ArrayDepthSensor has any.
    std::vector<std::string> const& dcmCommandKeys() const;
    /// Deprecated: dcmKeys(), after a notice on standard output.
    std::vector<std::string> fullDcmKeys() const;

protected:
    DCMSensor();
    ~DCMSensor();
};

}  // namespace Sim

#endif
