#ifndef VARO_SENSORS_BASE_CAMERA_IMPL_HPP
#define VARO_SENSORS_BASE_CAMERA_IMPL_HPP

#include "sensors/sensor_impl.hpp"

namespace Sim {

inline constexpr char baseCameraErrMsg[] = "Could not query BaseCamera as it seems not correctly constructed.";

class BaseCameraImpl : public SensorImpl {
public:
    using SensorImpl::SensorImpl;
};

}  // namespace Sim

#endif
