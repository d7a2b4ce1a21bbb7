#ifndef TOOL_SUPPORT_SETTINGS_JSON_HPP
#define TOOL_SUPPORT_SETTINGS_JSON_HPP

#include "support/json.hpp"
#include "varo/model/sensor_settings.hpp"

namespace Tool {

/// How a sensor is set, as JSON under the names of the record's members: null for null, and for what is not stated,
/// unless that amounts to a number.
Json settingsJson(Varo::Model::SensorSettings const* settings);

}  // namespace Tool

#endif
