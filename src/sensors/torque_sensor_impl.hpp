#ifndef VARO_SENSORS_TORQUE_SENSOR_IMPL_HPP
#define VARO_SENSORS_TORQUE_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char torqueSensorErrMsg[] = "Could not query TorqueSensor as it seems not correctly constructed.";

class TorqueSensorImpl : public KeyedSensorImpl<Sensor::Torque> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
