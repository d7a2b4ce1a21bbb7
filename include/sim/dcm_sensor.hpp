#ifndef SIM_DCM_SENSOR_HPP
#define SIM_DCM_SENSOR_HPP

#include <string>
#include <vector>

#include "sim/sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A sensor that the robot's device layer knows by device keys.
class VAROROBOTMODEL_API DCMSensor : public Sensor {
public:
    int bufferSize() const override = 0;
    /// The keys under which the values are read.
    std::vector<std::string> const& dcmKeys() const;
    /// The keys under which the device's state is read; most kinds have none.
    std::vector<std::string> const& dcmStateKeys() const;
    /// The keys under which the device is commanded; most kinds have none.
    std::vector<std::string> const& dcmCommandKeys() const;
    /// Deprecated: dcmKeys(), after a notice on standard output.
    std::vector<std::string> fullDcmKeys() const;

protected:
    DCMSensor();
    ~DCMSensor();
};

}  // namespace Sim

#endif
