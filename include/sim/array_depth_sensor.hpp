#ifndef SIM_ARRAY_DEPTH_SENSOR_HPP
#define SIM_ARRAY_DEPTH_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// A device that measures the distances (m) along many rays at once, which are arranged in rows and columns: a laser
/// scanner has one row.
///
/// Unlike a depth camera it delivers its values under device keys. width() and height() are the first resolution that
/// the description states; without one they are a single row with a point for each key. Angles, range and rate, where
/// the description states them, are in settings().
class VAROROBOTMODEL_API ArrayDepthSensor final : public DCMSensor {
public:
    ArrayDepthSensor();
    ~ArrayDepthSensor();

    /// 4 bytes, a single-precision value, for each of dcmKeys().
    int bufferSize() const override;
    int width() const;  ///< measuring points
    int height() const;  ///< measuring points
};

}  // namespace Sim

#endif
