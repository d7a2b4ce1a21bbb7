#include <memory>
#include <string>
#include <utility>

#include "native/body.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

struct SensorTypes : OneOf<SensorTypes> {
    static constexpr auto& words = sensorTypeWords;
    static constexpr ValueType type{"sensorType", "a type of sensor", words};
};

constexpr Attribute<std::string> keyText = whole<Line>("", "a device key");
constexpr Element<std::string> keyElement{"key",   "a key under which the device layer knows the sensor", {}, {}, {},
                                          &keyText};

void readSettings(ElementReader& reader, XmlNode node, SensorConfig& sensor)
{
    SensorSettings settings;
    reader.read(sensorSettingsElement, node, settings);
    sensor.settings = std::make_shared<SensorSettings const>(std::move(settings));
}

void writeSettings(ElementWriter& writer, SensorConfig const& sensor)
{
    if (sensor.settings != nullptr) {
        writer.write(sensorSettingsElement, *sensor.settings);
    }
}

constexpr Attribute<SensorConfig> attributes[] = {
    named<&SensorConfig::name>("name", names::ofSensor, "what the sensor is called"),
    named<&SensorConfig::parent>("parent", names::sensorParent, "the joint whose link carries the sensor, or the root"),
    required<&SensorConfig::type, SensorTypes>("type", "", "what the sensor is"),
};
constexpr Child<SensorConfig> children[] = {
    poseChild<&SensorConfig::placement, sensorPlacementElement>(),
    childrenOf<&SensorConfig::keys, keyElement>(),
    freeAttributeChild<SensorConfig>,
    {{&sensorSettingsElement, Occurrence::optional},
     readSettings,
     writeSettings,
     [](SensorConfig& sensor) { sensor.settings = nullptr; }},
};

}  // namespace

constexpr Element<SensorConfig> sensorElement{"sensor", "a device that measures, or a light", attributes, children};

}  // namespace Varo::Model::Native
