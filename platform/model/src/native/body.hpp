#ifndef VARO_MODEL_NATIVE_BODY_HPP
#define VARO_MODEL_NATIVE_BODY_HPP

#include <string>

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/schema.hpp"

/// What several kinds of elements say in the same way: mass, free attributes and mirror. The record only has to name
/// its members as the others do.
namespace Varo::Model::Native {

template <class Record>
inline constexpr Attribute massAttributes[] = {
    required<&Record::mass>("value", "kg", "mass of the body"),
    optional<&Record::centerOfMass>("com", "0 0 0", "m", "centre of mass, in the link frame"),
    optional<&Record::inertiaMatrix>("inertia", "0 0 0  0 0 0  0 0 0", "kg*m^2",
                                     "inertia matrix about the centre of mass, in the axes of the link frame, row by "
                                     "row"),
};
template <class Record>
inline constexpr Element massElement{"mass", "mass, centre of mass and inertia of the body", massAttributes<Record>};
template <class Record>
inline constexpr Child massChild{&massElement<Record>, Occurrence::optional, readInPlace, writeInPlace};

struct FreeAttribute {
    std::string name;
    std::string value;
};
inline constexpr Attribute freeAttributeAttributes[] = {
    required<&FreeAttribute::name, Name>("name", "", "what the attribute is called"),
    required<&FreeAttribute::value>("value", "", "any text; a line break in it is written `&#10;`"),
};
inline constexpr Element freeAttributeElement{"attribute", "a free text by name", freeAttributeAttributes};
inline constexpr Unique uniqueFreeAttributes[] = {{"attributeNames", "attribute", "@name"}};

template <class Record>
void readFreeAttribute(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    FreeAttribute attribute;
    reader.read(element, node, &attribute);
    auto& attributes = static_cast<Record*>(parent)->attributes;
    if (!attributes.try_emplace(attribute.name, attribute.value).second && !attribute.name.empty()) {
        reader.reportDuplicate(node, "name");
    }
}
template <class Record>
void writeFreeAttributes(ElementWriter& writer, Element const& element, void const* parent)
{
    for (auto const& [name, value] : static_cast<Record const*>(parent)->attributes) {
        FreeAttribute const attribute = {name, value};
        writer.write(element, &attribute);
    }
}

template <class Record>
inline constexpr Child freeAttributeChild{&freeAttributeElement, Occurrence::any, readFreeAttribute<Record>,
                                          writeFreeAttributes<Record>};

struct Mirror {
    std::string name;
    bool reflected = false;
};
inline constexpr Attribute mirrorAttributes[] = {
    required<&Mirror::name, Name>("name", "", "the element of the same kind on the other side"),
    optional<&Mirror::reflected>("reflected", "false", "",
                                 "whether the two turn in opposite senses when the robot moves symmetrically"),
};
inline constexpr Element mirrorElement{"mirror", "the element's partner in the robot's symmetry", mirrorAttributes};

template <class Record>
void readMirror(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    Mirror mirror;
    reader.read(element, node, &mirror);
    auto& record = *static_cast<Record*>(parent);
    record.mirrorName = mirror.name;
    record.mirrorKind = mirror.reflected ? reflectedMirror : plainMirror;
}
template <class Record>
void writeMirror(ElementWriter& writer, Element const& element, void const* parent)
{
    auto const& record = *static_cast<Record const*>(parent);
    if (record.mirrorKind != noMirror) {
        Mirror const mirror = {record.mirrorName, record.mirrorKind == reflectedMirror};
        writer.write(element, &mirror);
    }
}

template <class Record>
inline constexpr Child mirrorChild{&mirrorElement, Occurrence::optional, readMirror<Record>, writeMirror<Record>};

}  // namespace Varo::Model::Native

#endif
