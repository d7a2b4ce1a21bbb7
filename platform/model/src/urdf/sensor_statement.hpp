#ifndef VARO_MODEL_URDF_SENSOR_STATEMENT_HPP
#define VARO_MODEL_URDF_SENSOR_STATEMENT_HPP

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "robot/pose.hpp"
#include "urdf/short_poses.hpp"
#include "varo/model/configs.hpp"

namespace Varo::Model::Urdf {

/// An element of a sensor, or its own, as it is written.
struct SensorStatement {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes = {};
    std::string text = {};
    std::vector<SensorStatement> parts = {};
};

/// What the reader makes that record of, as far as it can; `within` is where the extensions of the sensor stand, and
/// `shift` is from where the record has its link to where the text has it.
SensorStatement toStatement(SensorConfig const& sensor, std::string_view link, Vector const& shift,
                            std::vector<std::string_view> const& within, ShortPoses& poses);

}  // namespace Varo::Model::Urdf

#endif
