#ifndef VARO_SENSORS_SONAR_SENSOR_IMPL_HPP
#define VARO_SENSORS_SONAR_SENSOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "core/kind_of.hpp"
#include "sensors/dcm_sensor_impl.hpp"
#include "sim/sonar_sensor.hpp"

namespace Sim {

inline constexpr char sonarSensorErrMsg[] = "Could not query SonarSensor as it seems not correctly constructed.";

class SonarSensorImpl : public DCMSensorImpl {
public:
    using Handle = SonarSensor;

    enum SonarType {
        SingleValue = 0,
        TenValues = 1,
    };

    SonarSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                    SonarType sonarType)
        : DCMSensorImpl(frame, name, kindOf<SonarSensor>().type, std::move(dcmKeys)), _sonarType(sonarType)
    {}

    int bufferSize() const { return _sonarType == TenValues ? 40 : 4; }

private:
    SonarType _sonarType;
};

}  // namespace Sim

#endif
