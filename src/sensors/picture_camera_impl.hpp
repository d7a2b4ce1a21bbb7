#ifndef VARO_SENSORS_PICTURE_CAMERA_IMPL_HPP
#define VARO_SENSORS_PICTURE_CAMERA_IMPL_HPP

#include <string>

#include "sensors/base_camera_impl.hpp"

namespace Sim {

/// A camera whose pictures are width by height pixels of so many bytes each.
template <Sensor::Type kind, unsigned bytesPerPixel>
class PictureCameraImpl : public BaseCameraImpl {
public:
    PictureCameraImpl(boost::shared_ptr<Frame const> const& frame, std::string const& name, int width, int height)
        : BaseCameraImpl(frame, name, kind), _width(width), _height(height)
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

}  // namespace Sim

#endif
