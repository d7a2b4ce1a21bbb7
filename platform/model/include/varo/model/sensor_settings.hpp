#ifndef VARO_MODEL_SENSOR_SETTINGS_HPP
#define VARO_MODEL_SENSOR_SETTINGS_HPP

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

/// How sensors are set, as far as a description says. Plain data: reading from several threads is safe.
namespace Varo::Model {

/// Random error of a sensor's values.
struct NoiseSettings {
    std::string quantity;  ///< what has the error, as stated, such as "linear_acceleration/x"; empty for all values
    std::string type;  ///< as stated, such as "gaussian"; may be empty
    float mean = 0.0F;  ///< in the unit of the values, as all that follows but the time and the precision
    float standardDeviation = 0.0F;  ///< of each value
    float biasMean = 0.0F;  ///< mean of the error that stays the same for a run
    float biasStandardDeviation = 0.0F;  ///< of that error, from run to run
    float driftStandardDeviation = 0.0F;  ///< of the error that changes slowly within a run
    float driftTime = 0.0F;  ///< s, in which that error changes; 0 when not stated
    float precision = 0.0F;  ///< the steps in which values come; 0 when not stated
};

/// Of cameras.
struct CameraSettings {
    std::string name;  ///< of the camera within its sensor; may be empty
    float horizontalFieldOfView = 0.0F;  ///< rad; 0 when not stated
    std::int32_t width = 0;  ///< pixels; 0 when not stated
    std::int32_t height = 0;  ///< pixels; 0 when not stated
    std::string format;  ///< of its pictures, as stated, such as "R8G8B8"; empty when not stated
    float nearClip = 0.0F;  ///< m; nothing nearer is seen
    float farClip = std::numeric_limits<float>::infinity();  ///< m; nothing farther is seen; infinity when not stated
};

/// One direction in which a scanner sweeps.
struct ScanSettings {
    std::int32_t samples = 1;  ///< rays of one sweep
    float resolution = 1.0F;  ///< values given per ray
    float minimumAngle = 0.0F;  ///< rad, about the z axis of the sensor's frame (vertically: up from its x-y plane)
    float maximumAngle = 0.0F;  ///< rad
};

/// Of scanners and other sensors of distance.
struct RangeSettings {
    float minimum = 0.0F;  ///< m
    float maximum = std::numeric_limits<float>::infinity();  ///< m; infinity when unlimited or not stated
    float resolution = 0.0F;  ///< m; 0 when not stated
};

/// What is not stated is absent, or what the member says.
struct SensorSettings {
    float updateRate = 0.0F;  ///< Hz; 0 when not stated
    std::optional<CameraSettings> camera;  ///< absent when nothing is stated of one
    std::optional<ScanSettings> horizontalScan;  ///< absent for what does not sweep
    std::optional<ScanSettings> verticalScan;  ///< absent for what sweeps in one plane
    std::optional<RangeSettings> range;  ///< absent when nothing is stated of it
    std::vector<NoiseSettings> noises;  ///< in the order of the description
};

}  // namespace Varo::Model

#endif
