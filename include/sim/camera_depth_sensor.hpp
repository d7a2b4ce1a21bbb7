#ifndef SIM_CAMERA_DEPTH_SENSOR_HPP
#define SIM_CAMERA_DEPTH_SENSOR_HPP

#include "sim/base_camera.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A depth camera: the value of each pixel is a distance in metres.
///
/// The picture's size is the first resolution that the description states; without one, no model can be built.
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
