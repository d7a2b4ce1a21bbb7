#ifndef SIM_CAMERA_SENSOR_HPP
#define SIM_CAMERA_SENSOR_HPP

#include "sim/base_camera.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A camera whose pictures are coloured.
///
/// The picture's size is the first resolution that the description states; without one, no model can be built.
class VAROROBOTMODEL_API CameraSensor final : public BaseCamera {
public:
    CameraSensor();
    ~CameraSensor();

    /// 12 bytes, three single-precision values, a pixel; products past 32 bits wrap.
    int bufferSize() const override;
    int width() const;  ///< pixels
    int height() const;  ///< pixels
};

}  // namespace Sim

#endif
