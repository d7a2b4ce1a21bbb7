#ifndef VARO_SENSORS_DCM_SENSOR_IMPL_HPP
#define VARO_SENSORS_DCM_SENSOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "core/device_keys.hpp"
#include "sensors/sensor_impl.hpp"

namespace Sim {

inline constexpr char dcmSensorErrMsg[] = "Could not query DCMSensor as it seems not correctly constructed.";

class DCMSensorImpl : public SensorImpl {
public:
    DCMSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, Sensor::Type type,
                  DeviceKeys dcmKeys)
        : SensorImpl(frame, name, type), _dcmKeys(std::move(dcmKeys))
    {}

    std::vector<std::string> const& dcmKeys() const { return _dcmKeys.of(name()); }
    /// Of the few kinds that have a mode of operation.
    virtual std::vector<std::string> const& dcmStateKeys() const { return noKeys(); }
    virtual std::vector<std::string> const& dcmCommandKeys() const { return noKeys(); }

private:
    static std::vector<std::string> const& noKeys()
    {
        static std::vector<std::string> const none;
        return none;
    }

    DeviceKeys _dcmKeys;
};

}  // namespace Sim

#endif
