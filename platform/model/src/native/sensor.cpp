#include <utility>

#include "native/body.hpp"
#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"

namespace Varo::Model::Native {

namespace {

struct SensorTypes : OneOf<SensorTypes> {
    static constexpr auto& words = sensorTypeWords;
    static constexpr ValueType type{"sensorType", "a type of sensor", words};
};

struct Key {
    std::string text;
};
constexpr Attribute keyText = content<&Key::text, Line>("a device key");
constexpr Element keyElement{"key", "a key under which the device layer knows the sensor", {}, {}, &keyText};

void readKey(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    Key key;
    reader.read(element, node, &key);
    static_cast<SensorConfig*>(parent)->keys.push_back(std::move(key.text));
}

void writeKeys(ElementWriter& writer, Element const& element, void const* parent)
{
    for (std::string const& text : static_cast<SensorConfig const*>(parent)->keys) {
        Key const key = {text};
        writer.write(element, &key);
    }
}

constexpr Attribute sensorAttributes[] = {
    required<&SensorConfig::name, Name>("name", "", "what the sensor is called"),
    required<&SensorConfig::parent, Name>("parent", "", "the joint whose link carries the sensor, or the root"),
    required<&SensorConfig::type, SensorTypes>("type", "", "what the sensor is"),
};
constexpr Child sensorChildren[] = {
    poseChild<&SensorConfig::placement>(sensorPlacementElement),
    {&keyElement, Occurrence::any, readKey, writeKeys},
    freeAttributeChild<SensorConfig>,
};
}  // namespace

Element const sensorElement{
    "sensor", "a device that measures, or a light", sensorAttributes, sensorChildren, nullptr, uniqueFreeAttributes};

void readSensor(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    SensorConfig sensor;
    reader.read(element, node, &sensor);
    reader.define(NameIndex::sensor, static_cast<Records*>(parent)->sensors, std::move(sensor), node);
}

}  // namespace Varo::Model::Native
