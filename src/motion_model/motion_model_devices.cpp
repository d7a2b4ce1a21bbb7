#include <charconv>
#include <limits>
#include <locale>

#include <boost/algorithm/string/trim.hpp>

#include "motion_model/motion_model_index.hpp"
#include "motion_model/table_lookup.hpp"
#include "sim/motion_model.hpp"

namespace Sim {

namespace {

using Varo::Model::SensorConfig;

/// Null when the device or its attribute is missing.
std::string const* attributeOf(SensorConfig const* device, std::string const& attribute)
{
    return device == nullptr ? nullptr : find(device->attributes, attribute);
}

bool appendAttributes(SensorConfig const* device, std::vector<std::string> const& attributes,
                      std::vector<std::string>& values)
{
    auto const before = values.size();
    for (auto const& attribute : attributes) {
        if (auto const* value = attributeOf(device, attribute)) {
            values.push_back(*value);
        }
    }
    return values.size() != before;
}

/// What stands between the separators, and before and behind them, be it nothing.
std::vector<std::string_view> piecesOf(std::string_view text, char const* separators)
{
    std::vector<std::string_view> pieces;
    for (std::size_t end = text.find_first_of(separators); end != text.npos; end = text.find_first_of(separators)) {
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    pieces.push_back(text);
    return pieces;
}

/// The integer that an input stream in the "C" locale would extract: what follows its digits does not count, a piece
/// without digits is 0, and one out of range the nearest integer.
int extractedInteger(std::string_view piece)
{
    auto const text = boost::algorithm::trim_left_copy(std::string(piece), std::locale::classic());
    char const* const end = text.data() + text.size();
    bool const plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    int value = 0;
    auto const result = std::from_chars(text.data() + (plus ? 1 : 0), end, value);
    if (result.ec == std::errc::result_out_of_range) {
        return text[0] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    return value;
}

}  // namespace

std::vector<std::string> initDcmCommandKeyNames()
{
    return {"setOperationMode"};
}

std::vector<std::string> initStateDcmKeyNames()
{
    return {"getOperationMode"};
}

std::vector<std::string> const MotionModel::k_dcmCommandKeyNames = initDcmCommandKeyNames();
std::vector<std::string> const MotionModel::k_stateDcmKeyNames = initStateDcmKeyNames();

std::list<std::string> MotionModel::sensorNames() const
{
    return namesIn(_records->sensors);
}

std::int32_t MotionModel::sensorType(std::string const& name) const
{
    std::int32_t type = Varo::Model::unknownSensor;
    readField(_index->of(name).sensor(), &SensorConfig::type, type);
    return type;
}

bool MotionModel::transformFromSensorName(std::string const& name, Varo::Math::Transform& transform,
                                          std::string& parent) const
{
    auto const* sensor = _index->of(name).sensor();
    if (sensor == nullptr) {
        return false;
    }
    transform = sensor->placement;
    parent = sensor->parent;
    return true;
}

bool MotionModel::dcmKeysFromSensorName(std::string const& name, std::vector<std::string>& keys) const
{
    return readField(_index->of(name).sensor(), &SensorConfig::keys, keys);
}

bool MotionModel::dcmCommandKeys(std::string const& name, std::vector<std::string>& keys) const
{
    return appendAttributes(_index->of(name).sensor(), k_dcmCommandKeyNames, keys);
}

bool MotionModel::dcmStateKeys(std::string const& name, std::vector<std::string>& keys) const
{
    return appendAttributes(_index->of(name).sensor(), k_stateDcmKeyNames, keys);
}

bool MotionModel::shortnameFromLED(std::string const& led, std::string& shortname) const
{
    auto const* value = attributeOf(_index->of(led).sensor(), "shortname");
    if (value == nullptr) {
        return false;
    }
    shortname = *value;
    return true;
}

bool MotionModel::groupsFromLED(std::string const& led, std::vector<std::string>& groups) const
{
    auto const* value = attributeOf(_index->of(led).sensor(), "groups");
    if (value == nullptr) {
        return false;
    }
    auto const pieces = piecesOf(*value, "\t ");
    groups.assign(pieces.begin(), pieces.end());
    return true;
}

bool MotionModel::colorFromLED(std::string const& led, int* color) const
{
    auto const* value = attributeOf(_index->of(led).sensor(), "color");
    if (value == nullptr) {
        return false;
    }
    int channel = 0;
    for (auto const& piece : piecesOf(*value, "\t ")) {
        if (piece == "255") {
            *color = channel;
        }
        ++channel;
    }
    return true;
}

bool MotionModel::resolutionsFromCamera(std::string const& camera, std::vector<std::pair<int, int>>& resolutions) const
{
    auto const* value = attributeOf(_index->of(camera).sensor(), "resolutions");
    if (value == nullptr) {
        return false;
    }
    for (auto const& line : piecesOf(*value, "\n")) {
        std::string const resolution = boost::algorithm::trim_copy(std::string(line), std::locale::classic());
        auto const pieces = piecesOf(resolution, " ");
        if (pieces.size() >= 2) {
            resolutions.emplace_back(extractedInteger(pieces[0]), extractedInteger(pieces[1]));
        }
    }
    return true;
}

}  // namespace Sim
