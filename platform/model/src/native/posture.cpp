#include <utility>

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"

namespace Varo::Model::Native {

namespace {

struct Angle {
    std::string of;
    float value = 0.0F;
};

constexpr Attribute angleAttributes[] = {
    required<&Angle::of, Name>("of", "", "a joint of a chain, or an actuator that hangs on one"),
    required<&Angle::value>("value", "rad (m)", "where it stands in this posture"),
};
constexpr Element angleElement{"angle", "the value of one joint or actuator", angleAttributes};

void readAngle(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    Angle angle;
    reader.read(element, node, &angle);
    static_cast<PostureConfig*>(parent)->angles.emplace_back(std::move(angle.of), angle.value);
}

void writeAngles(ElementWriter& writer, Element const& element, void const* parent)
{
    for (auto const& [of, value] : static_cast<PostureConfig const*>(parent)->angles) {
        Angle const angle = {of, value};
        writer.write(element, &angle);
    }
}

constexpr Attribute postureAttributes[] = {
    required<&PostureConfig::name, Name>("name", "",
                                         "what the posture is called; `StandInit` is where the joints start"),
};
constexpr Unique uniqueAngles[] = {{"angleNames", "angle", "@of"}};
constexpr Child postureChildren[] = {{&angleElement, Occurrence::any, readAngle, writeAngles}};
}  // namespace

Element const postureElement{
    "posture", "joint values that belong together", postureAttributes, postureChildren, nullptr, uniqueAngles};

void readPosture(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    PostureConfig posture;
    reader.read(element, node, &posture);
    static_cast<RobotData*>(parent)->postures.push_back(std::move(posture));
}

void writePostures(ElementWriter& writer, Element const& element, void const* parent)
{
    for (PostureConfig const& posture : static_cast<RobotData const*>(parent)->postures) {
        writer.write(element, &posture);
    }
}

}  // namespace Varo::Model::Native
