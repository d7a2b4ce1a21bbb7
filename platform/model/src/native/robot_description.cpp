#include <utility>

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"

namespace Varo::Model::Native {

namespace {

struct PrettyName {
    std::int32_t index = 0;
    std::string text;
};

constexpr Attribute prettyNameAttributes[] = {
    optional<&PrettyName::index>("index", "0", "", "which of the robot's pretty names it is")};
constexpr Attribute prettyNameText = content<&PrettyName::text, Line>("the name");
constexpr Element prettyNameElement{
    "prettyName", "a name of the robot for people", prettyNameAttributes, {}, &prettyNameText};

void readPrettyName(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    PrettyName name;
    reader.read(element, node, &name);
    auto& names = static_cast<Records*>(parent)->prettyNames;
    if (!names.try_emplace(name.index, std::move(name.text)).second) {
        reader.reportDuplicate(node, "index");
    }
}

void writePrettyNames(ElementWriter& writer, Element const& element, void const* parent)
{
    for (auto const& [index, text] : static_cast<Records const*>(parent)->prettyNames) {
        PrettyName const name = {index, text};
        writer.write(element, &name);
    }
}

template <auto table>
void writeTable(ElementWriter& writer, Element const& element, void const* parent)
{
    for (auto const& record : static_cast<Records const*>(parent)->*table) {
        writer.write(element, &record);
    }
}

constexpr Attribute attributes[] = {
    required<&Records::name, Name>("name", "", "what the robot is called"),
    optional<&Records::version>("version", "", "", "the description's own version"),
};
constexpr Child children[] = {
    {&prettyNameElement, Occurrence::any, readPrettyName, writePrettyNames},
    {&rootElement, Occurrence::once, readRoot, writeRoot},
    {&jointElement, Occurrence::any, readJoint, writeJoints},
    {&chainElement, Occurrence::any, readChain, writeTable<&Records::chains>},
    {&actuatorElement, Occurrence::any, readActuator, writeTable<&Records::actuators>},
    {&wheelElement, Occurrence::any, readWheel, writeTable<&Records::wheels>},
    {&sensorElement, Occurrence::any, readSensor, writeTable<&Records::sensors>},
    {&postureElement, Occurrence::any, readPosture, writePostures},
};
constexpr Unique uniques[] = {
    {"prettyNameIndices", "prettyName", "@index"},
    {"jointNames", "joint", "@name"},
    {"chainNames", "chain", "@name"},
    {"actuatorNames", "actuator", "@name"},
    {"subJointNames", "actuator/group/*", "@name"},
    {"wheelNames", "wheel", "@name"},
    {"sensorNames", "sensor", "@name"},
    {"postureNames", "posture", "@name"},
};

}  // namespace

Element const robotDescriptionElement{
    "robotDescription", "the whole of a description", attributes, children, nullptr, uniques};

}  // namespace Varo::Model::Native
