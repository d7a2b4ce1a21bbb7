#include <utility>

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"

namespace Varo::Model::Native {

namespace {

constexpr Attribute angleAttributes[] = {
    required<&PostureAngle::name, Name>("of", "", "a joint of a chain, or an actuator that hangs on one"),
    required<&PostureAngle::value>("value", "rad (m)", "where it stands in this posture"),
};
constexpr Element angleElement{"angle", "the value of one joint or actuator", angleAttributes};

void readAngle(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    PostureAngle angle;
    reader.read(element, node, &angle);
    angle.textOffset = at(node);
    static_cast<PostureConfig*>(parent)->angles.push_back(std::move(angle));
}

void writeAngles(ElementWriter& writer, Element const& element, void const* parent)
{
    for (PostureAngle const& angle : static_cast<PostureConfig const*>(parent)->angles) {
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
    posture.textOffset = at(node);
    static_cast<Records*>(parent)->postures.push_back(std::move(posture));
}

void writePostures(ElementWriter& writer, Element const& element, void const* parent)
{
    for (PostureConfig const& posture : static_cast<Records const*>(parent)->postures) {
        writer.write(element, &posture);
    }
}

}  // namespace Varo::Model::Native
