#ifndef VARO_MODEL_URDF_SENSOR_KINDS_HPP
#define VARO_MODEL_URDF_SENSOR_KINDS_HPP

#include <cstddef>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

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

/// The pixels of a camera or the points of a scan.
struct SensorSize {
    std::size_t width = 0;
    std::size_t height = 0;

    bool isUsable() const { return width > 0 && height > 0; }
};

/// What the element states, in whichever of the usual forms; not usable when it states none.
SensorSize readSensorSize(pugi::xml_node sensor, SensorType type);

/// What a sensor without a usable size counts as.
SensorSize defaultSensorSize(SensorType type);

}  // namespace Varo::Model::Urdf

#endif
