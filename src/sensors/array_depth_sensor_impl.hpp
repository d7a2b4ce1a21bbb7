#ifndef VARO_SENSORS_ARRAY_DEPTH_SENSOR_IMPL_HPP
#define VARO_SENSORS_ARRAY_DEPTH_SENSOR_IMPL_HPP

#include <string>
#include <utility>
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

    ArrayDepthSensorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                         int width, int height, std::vector<std::string> const& dcmStateKeys,
                         std::vector<std::string> const& dcmCommandKeys)
        : DCMSensorImpl(frame, name, kindOf<ArrayDepthSensor>().type, std::move(dcmKeys)),
          _width(width),
          _height(height),
          _dcmStateKeys(dcmStateKeys),
          _dcmCommandKeys(dcmCommandKeys)
    {}

    int width() const { return _width; }
    int height() const { return _height; }
    std::vector<std::string> const& dcmStateKeys() const override { return _dcmStateKeys; }
    std::vector<std::string> const& dcmCommandKeys() const override { return _dcmCommandKeys; }
    int bufferSize() const { return static_cast<int>(4U * dcmKeys().size()); }

private:
    int _width;
    int _height;
    std::vector<std::string> _dcmStateKeys;
    std::vector<std::string> _dcmCommandKeys;
};

}  // namespace Sim

#endif
