#ifndef VARO_SENSORS_DCM_SENSOR_IMPL_HPP
#define VARO_SENSORS_DCM_SENSOR_IMPL_HPP

#include <string>
#include <vector>

#include "sensors/sensor_impl.hpp"

namespace Sim {

inline constexpr char dcmSensorErrMsg[] = "Could not query DCMSensor as it seems not correctly constructed.";

class DCMSensorImpl : public SensorImpl {
public:
    DCMSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, Sensor::Type type,
                  std::vector<std::string> dcmKeys, std::vector<std::string> const& dcmStateKeys,
                  std::vector<std::string> const& dcmCommandKeys)
        : SensorImpl(frame, name, type), _dcmKeys(std::move(dcmKeys)), _dcmStateKeys(dcmStateKeys), _dcmCommandKeys(dcmCommandKeys)
    {}

    std::vector<std::string> const& dcmKeys() const { return _dcmKeys; }
    std::vector<std::string> const& dcmStateKeys() const { return _dcmStateKeys; }
    std::vector<std::string> const& dcmCommandKeys() const { return _dcmCommandKeys; }

private:
    std::vector<std::string> _dcmKeys;
    std::vector<std::string> _dcmStateKeys;
    std::vector<std::string> _dcmCommandKeys;
};

}  // namespace Sim

#endif
