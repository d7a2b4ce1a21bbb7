#ifndef VARO_SENSORS_ARRAY_DEPTH_SENSOR_IMPL_HPP
#define VARO_SENSORS_ARRAY_DEPTH_SENSOR_IMPL_HPP

#include <string>
#include <vector>

#include "core/kind_of.hpp"
#include "sensors/dcm_sensor_impl.hpp"
#include "sim/array_depth_sensor.hpp"

namespace Sim {

inline constexpr char arrayDepthSensorErrMsg[] =
    "Could not query ArrayDepthSensor as it seems not correctly constructed.";

class ArrayDepthSensorImpl : public DCMSensorImpl {
public:
    using Handle = ArrayDepthSensor;

    ArrayDepthSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name,
                         std::vector<std::string> dcmKeys, int width, int height,
                         std::vector<std::string> const& dcmStateKeys, std::vector<std::string> const& dcmCommandKeys)
        : DCMSensorImpl(frame, name, kindOf<ArrayDepthSensor>().type, dcmKeys, dcmStateKeys, dcmCommandKeys),
          _width(width),
          _height(height)
    {}

    int width() const { return _width; }
    int height() const { return _height; }
    int bufferSize() const { return static_cast<int>(4U * dcmKeys().size()); }

private:
    int _width;
    int _height;
};

}  // namespace Sim

#endif
