#include "sim/sensor.hpp"

#include "core/handle.hpp"
#include "sensors/sensor_impl.hpp"

namespace Sim {

Sensor::Sensor() : _impl(nullptr) {}

Sensor::~Sensor() = default;

std::string const& Sensor::name() const
{
    return implOf(_impl, sensorErrMsg).name();
}

Frame const* Sensor::frame() const
{
    return implOf(_impl, sensorErrMsg).frame().get();
}

Sensor::Type Sensor::type() const
{
    return implOf(_impl, sensorErrMsg).type();
}

Varo::Model::SensorSettings const* Sensor::settings() const
{
    return implOf(_impl, sensorErrMsg).settings();
}

}  // namespace Sim
