#ifndef VARO_SENSORS_FSR_SENSOR_IMPL_HPP
#define VARO_SENSORS_FSR_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char fsrSensorErrMsg[] = "Could not query FSRSensor as it seems not correctly constructed.";

class FSRSensorImpl : public KeyedSensorImpl<Sensor::FSR> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
