#ifndef SIM_CAMERA_DEPTH_SENSOR_HPP
#define SIM_CAMERA_DEPTH_SENSOR_HPP

#include "sim/base_camera.hpp"
#include "varo/export.hpp"

namespace Sim {

/// Takes pictures whose pixels are distances (m).
class VAROROBOTMODEL_API CameraDepthSensor final : public BaseCamera {
public:
    CameraDepthSensor();
    ~CameraDepthSensor();

    /// 4 bytes, a single-precision value, a pixel; products past 32 bits wrap.
    int bufferSize() const override;
    int width() const;  ///< pixels
    int height() const;  ///< pixels
};

}  // namespace Sim

#endif
