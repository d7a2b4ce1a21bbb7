#ifndef SIM_BASE_CAMERA_HPP
#define SIM_BASE_CAMERA_HPP

#include "sim/sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A sensor that takes pictures, looking along the x axis of its frame.
///
/// It has no device keys; those that a description gives a camera are not used. Rate, field of view, clip range and
/// image format, where the description states them, are in settings().
class VAROROBOTMODEL_API BaseCamera : public Sensor {
public:
    int bufferSize() const override = 0;

protected:
    BaseCamera();
    ~BaseCamera();
};

}  // namespace Sim

#endif
