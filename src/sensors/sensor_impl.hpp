#ifndef VARO_SENSORS_SENSOR_IMPL_HPP
#define VARO_SENSORS_SENSOR_IMPL_HPP

#include <string>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include "core/shared_name.hpp"
#include "sim/frame.hpp"
#include "sim/sensor.hpp"

namespace Sim {

inline constexpr char sensorErrMsg[] = "Could not query Sensor as it seems not correctly constructed.";

class SensorImpl {
public:
    SensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, Sensor::Type type)
        : _frame(frame), _name(name), _type(type)
    {}
    virtual ~SensorImpl() = default;

    boost::shared_ptr<Frame const> frame() const { return _frame.lock(); }
    std::string const& name() const { return _name; }
    SharedName const& sharedName() const { return _name; }
    Sensor::Type type() const { return _type; }

private:
    boost::weak_ptr<Frame const> _frame;
    SharedName _name;
    Sensor::Type _type;
};

}  // namespace Sim

#endif
