#ifndef VARO_SENSORS_KEYED_SENSOR_IMPL_HPP
#define VARO_SENSORS_KEYED_SENSOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "core/kind_of.hpp"
#include "sensors/dcm_sensor_impl.hpp"

namespace Sim {

/// A sensor of which there is nothing to know but its device keys: what most kinds are.
template <class Device, int bytes = 4>
class KeyedSensorImpl : public DCMSensorImpl {
public:
    using Handle = Device;

    KeyedSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys)
        : DCMSensorImpl(frame, name, kindOf<Device>().type, std::move(dcmKeys))
    {}

    int bufferSize() const { return bytes; }
};

// The kinds that are just that.
using AngleSensorImpl = KeyedSensorImpl<AngleSensor>;
using AngleSpeedSensorImpl = KeyedSensorImpl<AngleSpeedSensor>;
using BumperSensorImpl = KeyedSensorImpl<BumperSensor>;
using CoupledSensorImpl = KeyedSensorImpl<CoupledSensor>;
using FSRSensorImpl = KeyedSensorImpl<FSRSensor>;
using InertialSensorImpl = KeyedSensorImpl<InertialSensor, 28>;
using SingleDepthSensorImpl = KeyedSensorImpl<SingleDepthSensor>;
using TactileSensorImpl = KeyedSensorImpl<TactileSensor>;
using TorqueSensorImpl = KeyedSensorImpl<TorqueSensor>;
using WheelVelocitySensorImpl = KeyedSensorImpl<WheelVelocitySensor>;

}  // namespace Sim

#endif
