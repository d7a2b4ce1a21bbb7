#include <string>

#include "native/elements.hpp"
#include "schema/children.hpp"

namespace Varo::Model::Native {

namespace {

struct Sources {
    static constexpr Word words[] = {
        {"transmission", static_cast<std::int32_t>(TransmissionSource::transmission)},
        {"ros2Control", static_cast<std::int32_t>(TransmissionSource::ros2Control)},
    };
    static constexpr ValueType type{"transmissionSource", "a source of transmissions", words};
    static bool parse(std::string_view text, TransmissionSource& value)
    {
        std::int32_t number = 0;
        bool const isKnown = parseWord(text, words, number);
        value = isKnown ? static_cast<TransmissionSource>(number) : value;
        return isKnown;
    }
    static std::string print(TransmissionSource value) { return printWord(words, static_cast<std::int32_t>(value)); }
};

constexpr Attribute<std::string> interfaceAttributes[] = {whole<Text>("name", "what the interface is called")};
constexpr Element<std::string> interfaceElement{"interface", "a way to command the joint", interfaceAttributes};
constexpr Element<std::string> stateInterfaceElement{"stateInterface", "a way to read the joint's state",
                                                     interfaceAttributes};

constexpr Attribute<TransmissionConfig> attributes[] = {
    optional<&TransmissionConfig::name>("name", "", "", "what the transmission, or the control system, is called"),
    optional<&TransmissionConfig::type>("type", "", "", "what kind it is, as other programs call that"),
    required<&TransmissionConfig::joint, Text>("joint", "", "the joint that is driven").with(names::transmissionJoint),
    optional<&TransmissionConfig::actuator>("actuator", "", "", "what drives the joint; no element of this format"),
    optional<&TransmissionConfig::reduction>("reduction", "1", "", "turns of the actuator for one of the joint"),
    optional<&TransmissionConfig::source, Sources>("source", "transmission", "",
                                                   "which element of a URDF stated it: `transmission` or "
                                                   "`ros2_control`"),
};
constexpr Child<TransmissionConfig> children[] = {
    childrenOf<&TransmissionConfig::interfaces, interfaceElement>(),
    childrenOf<&TransmissionConfig::stateInterfaces, stateInterfaceElement>(),
};

}  // namespace

constexpr Element<TransmissionConfig> transmissionElement{
    "transmission", "which actuator drives which joint, for the programs that command it; carried", attributes,
    children};

}  // namespace Varo::Model::Native
