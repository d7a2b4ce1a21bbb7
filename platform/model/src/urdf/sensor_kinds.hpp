#ifndef VARO_MODEL_URDF_SENSOR_KINDS_HPP
#define VARO_MODEL_URDF_SENSOR_KINDS_HPP

#include <cstdint>
#include <string_view>
#include <vector>

#include "varo/model/configs.hpp"

namespace Varo::Model::Urdf {

/// A kind of sensor under one of its names.
struct SensorKind {
    std::string_view name;
    SensorType type;
    std::vector<std::string_view> quantities;  ///< what it measures, one device key for each
};

/// Null for a kind that the model has no equivalent of.
SensorKind const* findSensorKind(std::string_view name);

/// The kind that a sensor of the type is when nothing else says more; null for a type that no kind has.
SensorKind const* defaultKind(std::int32_t type);

/// The pixels of a camera or the points of a scan.
struct SensorSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool isUsable() const { return width > 0 && height > 0; }
};

/// What the settings state; not usable when they state none. Null for no settings.
SensorSize sensorSizeOf(SensorSettings const* settings, SensorType type);

/// What a sensor without a usable size counts as.
SensorSize defaultSensorSize(SensorType type);

}  // namespace Varo::Model::Urdf

#endif
