#ifndef VARO_SENSORS_KEYED_SENSOR_IMPL_HPP
#define VARO_SENSORS_KEYED_SENSOR_IMPL_HPP

#include <string>
#include <vector>

#include "sensors/dcm_sensor_impl.hpp"

namespace Sim {

/// A sensor of which there is nothing to know but its device keys: what most kinds are.
template <Sensor::Type kind, int bytes = 4>
class KeyedSensorImpl : public DCMSensorImpl {
public:
    KeyedSensorImpl(boost::shared_ptr<Frame const> const& frame, std::string const& name,
                    std::vector<std::string> const& dcmKeys)
        : DCMSensorImpl(frame, name, kind, dcmKeys, {}, {})
    {}

    int bufferSize() const { return bytes; }
};

}  // namespace Sim

#endif
