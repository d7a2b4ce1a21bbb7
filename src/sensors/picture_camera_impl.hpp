#ifndef VARO_SENSORS_PICTURE_CAMERA_IMPL_HPP
#define VARO_SENSORS_PICTURE_CAMERA_IMPL_HPP

#include <string>

#include "core/kind_of.hpp"
#include "sensors/base_camera_impl.hpp"

namespace Sim {

/// A camera whose pictures are width by height pixels of so many bytes each.
template <class Device, unsigned bytesPerPixel>
class PictureCameraImpl : public BaseCameraImpl {
public:
    using Handle = Device;

    PictureCameraImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, int width, int height)
        : BaseCameraImpl(frame, name, kindOf<Device>().type), _width(width), _height(height)
    {}

    int width() const { return _width; }
    int height() const { return _height; }

    /// A 32-bit product: huge resolutions wrap, which only unsigned numbers may.
    int bufferSize() const
    {
        return static_cast<int>(static_cast<unsigned>(_width) * static_cast<unsigned>(_height) * bytesPerPixel);
    }

private:
    int _width;
    int _height;
};

// Three single-precision values a pixel, and one.
using CameraSensorImpl = PictureCameraImpl<CameraSensor, 12>;
using CameraDepthSensorImpl = PictureCameraImpl<CameraDepthSensor, 4>;

}  // namespace Sim

#endif
