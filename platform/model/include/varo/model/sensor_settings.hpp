#ifndef VARO_MODEL_SENSOR_SETTINGS_HPP
#define VARO_MODEL_SENSOR_SETTINGS_HPP

#include <cstdint>
#include <optional>
#include <string>

/// How sensors are set, as far as a description says. Plain data: reading from several threads is safe.
namespace Varo::Model {

/// Random error of a sensor's values.
struct NoiseSettings {
    std::string type;  ///< as stated, such as "gaussian"
    float mean = 0.0F;  ///< in the unit of the values
    float standardDeviation = 0.0F;  ///< in the unit of the values
};

/// Of cameras.
struct CameraSettings {
    float horizontalFieldOfView = 0.0F;  ///< rad; 0 when not stated
    std::int32_t width = 0;  ///< pixels; 0 when not stated
    std::int32_t height = 0;  ///< pixels; 0 when not stated
    std::string format;  ///< of its pictures, as stated, such as "R8G8B8"
    float nearClip = 0.0F;  ///< m; nothing nearer is seen
    float farClip = 0.0F;  ///< m; nothing farther is seen; 0 when not stated
};

/// One direction in which a scanner sweeps.
struct ScanSettings {
    std::int32_t samples = 0;  ///< rays of one sweep
    float resolution = 1.0F;  ///< values given per ray
    float minimumAngle = 0.0F;  ///< rad
    float maximumAngle = 0.0F;  ///< rad
};

/// Of scanners and other sensors of distance.
struct RangeSettings {
    float minimum = 0.0F;  ///< m
    float maximum = 0.0F;  ///< m; infinity when unlimited
    float resolution = 0.0F;  ///< m; 0 when not stated
};

/// What is not stated is absent, or 0 where the member says so.
struct SensorSettings {
    float updateRate = 0.0F;  ///< Hz; 0 when not stated
    std::optional<CameraSettings> camera;
    std::optional<ScanSettings> horizontalScan;
    std::optional<ScanSettings> verticalScan;
    std::optional<RangeSettings> range;
    std::optional<NoiseSettings> noise;
};

}  // namespace Varo::Model

#endif
