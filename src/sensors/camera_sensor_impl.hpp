#ifndef VARO_SENSORS_CAMERA_SENSOR_IMPL_HPP
#define VARO_SENSORS_CAMERA_SENSOR_IMPL_HPP

#include "sensors/picture_camera_impl.hpp"

namespace Sim {

inline constexpr char cameraSensorErrMsg[] = "Could not query CameraSensor as it seems not correctly constructed.";

class CameraSensorImpl : public PictureCameraImpl<Sensor::Camera, 12> {
public:
    using PictureCameraImpl::PictureCameraImpl;
};

}  // namespace Sim

#endif
