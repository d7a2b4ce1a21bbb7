#ifndef VARO_SENSORS_SENSOR_IMPL_HPP
#define VARO_SENSORS_SENSOR_IMPL_HPP

#include <memory>
#include <string>
#include <utility>

#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"
#include "core/shared_value.hpp"
#include "sim/frame.hpp"
#include "sim/sensor.hpp"
#include "varo/model/sensor_settings.hpp"

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
    Varo::Model::SensorSettings const* settings() const { return _settings.get(); }
    /// What the record holds, of which the sensor is another owner.
    void shareSettings(std::shared_ptr<Varo::Model::SensorSettings const> settings) { _settings = std::move(settings); }

private:
    ElementRef<Frame const> _frame;
    SharedName _name;
    Sensor::Type _type;
    std::shared_ptr<Varo::Model::SensorSettings const> _settings;  ///< null when the description states none
};

}  // namespace Sim

#endif
