#ifndef VARO_SENSORS_CAMERA_DEPTH_SENSOR_IMPL_HPP
#define VARO_SENSORS_CAMERA_DEPTH_SENSOR_IMPL_HPP

#include "sensors/picture_camera_impl.hpp"

namespace Sim {

inline constexpr char cameraDepthSensorErrMsg[] =
    "Could not query CameraDepthSensor as it seems not correctly constructed.";

class CameraDepthSensorImpl : public PictureCameraImpl<Sensor::CameraDepth, 4> {
public:
    using PictureCameraImpl::PictureCameraImpl;
};

}  // namespace Sim

#endif
