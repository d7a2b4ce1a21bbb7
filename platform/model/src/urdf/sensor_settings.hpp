#ifndef VARO_MODEL_URDF_SENSOR_SETTINGS_HPP
#define VARO_MODEL_URDF_SENSOR_SETTINGS_HPP

#include <memory>
#include <string>
#include <string_view>

#include "range.hpp"
#include "urdf/elements.hpp"
#include "varo/model/sensor_settings.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// What a text may say of how something is set.
template <class Record>
struct Setting {
    std::string_view path;  ///< of the element or attribute that states it, from the sensor's element inward
    std::string_view place;  ///< where the native dialect states it, within `settings`
    std::string_view unit;  ///< in the text; may be empty
    std::string_view type;  ///< completes the sentence "This is not ..."
    bool (*store)(std::string_view text, Record& record);  ///< false for a text that is not of the type
    /// Empty for a record that need not say it; null for what is written in another way.
    std::string (*print)(Record const& record) = nullptr;
};

/// Of a sensor. Whoever states a setting by an element may do so by an attribute of the element around it, too.
extern Range<Setting<SensorSettings>> const sensorSettings;
/// Of the noise of some quantity; the paths begin at the `noise` element.
extern Range<Setting<NoiseSettings>> const noiseSettings;

/// Elements that say under another name what those of the table say.
struct SensorAlias {
    std::string_view name;
    std::string_view meant;
};
extern Range<SensorAlias> const sensorAliases;

/// The elements of a sensor in which, for the sensor as a whole or for each quantity by itself, a `noise` may stand.
extern Range<std::string_view> const noisyElements;

/// What a sensor's element states of how the sensor is set; null for nothing. Whatever else stands in the element is
/// passed over, but for what says which sensor it is and where.
std::shared_ptr<SensorSettings const> readSensorSettings(XmlNode sensor, Report const& report);

}  // namespace Varo::Model::Urdf

#endif
