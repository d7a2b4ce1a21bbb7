#include <string>

#include "schema/children.hpp"
#include "urdf/schema.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr Complaint nameless{&codes::missingAttribute, "This element of a transmission does not say its name."};

constexpr Attribute<std::string> typeText = whole<Line>("", "the type");
constexpr Element<std::string> typeElement{"type", "the kind of transmission", {}, {}, {}, &typeText};

constexpr Attribute<std::string> interfaceText = whole<Line>("", "name of the interface");
constexpr Element<std::string> interfaceElement{"hardwareInterface", "by which it is commanded", {}, {}, {},
                                                &interfaceText};

constexpr Attribute<Reduction> reductionText = required<&Reduction::value>("", "", "the reduction");
constexpr Element<Reduction> reductionElement{
    "mechanicalReduction", "turns of the actuator for one of the joint; 1 when not stated", {}, {}, {}, &reductionText};

constexpr Attribute<TransmissionEnd> endAttributes[] = {
    required<&TransmissionEnd::name>("name", "", "what it is called").orElse(nameless),
};
constexpr auto interfacesChild = childrenOf<&TransmissionEnd::interfaces, interfaceElement>();
constexpr auto reductionChild = childOf<&TransmissionEnd::reduction, reductionElement>();
constexpr Child<TransmissionEnd> jointChildren[] = {
    interfacesChild,
    {{&reductionElement, Occurrence::optional}, reductionChild.read, nullptr},
};
constexpr Child<TransmissionEnd> actuatorChildren[] = {reductionChild, interfacesChild};
constexpr Element<TransmissionEnd> jointEnd{"joint", "a joint that is driven", endAttributes, jointChildren};
constexpr Element<TransmissionEnd> actuatorEnd{"actuator", "what drives it", endAttributes, actuatorChildren};

void readType(ElementReader& reader, XmlNode node, Transmission& transmission)
{
    reader.read(typeElement, node, transmission.type);
}
void writeType(ElementWriter& writer, Transmission const& transmission)
{
    if (!transmission.type.empty()) {
        writer.write(typeElement, transmission.type);
    }
}

constexpr Attribute<Transmission> attributes[] = {
    required<&Transmission::name>("name", "", "name of the transmission").orElse(nameless),
    optional<&Transmission::type>("type", "", "", "the kind, in the older form").onlyRead(),
};
constexpr Child<Transmission> children[] = {
    {{&typeElement, Occurrence::optional}, readType, writeType},
    childrenOf<&Transmission::joints, jointEnd>(),
    childrenOf<&Transmission::actuators, actuatorEnd>(),
    {{&reductionElement, Occurrence::optional}, childOf<&Transmission::reduction, reductionElement>().read, nullptr},
};

}  // namespace

constexpr Element<Transmission> transmissionElement{
    "transmission", "which actuators drive which joints: a record for each joint; changes no motor of the model",
    attributes, children};

}  // namespace Varo::Model::Urdf
