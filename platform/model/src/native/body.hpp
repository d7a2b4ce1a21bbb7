#ifndef VARO_MODEL_NATIVE_BODY_HPP
#define VARO_MODEL_NATIVE_BODY_HPP

#include <string>
#include <utility>

#include "native/schema.hpp"
#include "schema/children.hpp"
#include "xml/document.hpp"

/// What several kinds of elements say in the same way: mass, free attributes and mirror. The record only has to name
/// its members as the others do.
namespace Varo::Model::Native {

template <class Record>
inline constexpr Attribute<Record> massAttributes[] = {
    required<&Record::mass, Number, Record>("value", "kg", "mass of the body"),
    optional<&Record::centerOfMass, Vector3, Record>("com", "0 0 0", "m", "centre of mass, in the link frame"),
    optional<&Record::inertiaMatrix, Matrix9, Record>(
        "inertia", "0 0 0  0 0 0  0 0 0", "kg*m^2",
        "inertia matrix about the centre of mass, in the axes of the link frame, row by row"),
};
template <class Record>
inline constexpr Element<Record> massElement{"mass", "mass, centre of mass and inertia of the body",
                                             massAttributes<Record>};
template <class Record>
inline constexpr Child<Record> massChild = inPlace<massElement<Record>>();

using FreeAttribute = std::pair<std::string, std::string>;
inline constexpr Attribute<FreeAttribute> freeAttributeAttributes[] = {
    named<&FreeAttribute::first>("name", names::ofFreeAttribute, "what the attribute is called"),
    required<&FreeAttribute::second>("value", "", "any text; a line break in it is written `&#10;`"),
};
inline constexpr Element<FreeAttribute> freeAttributeElement{"attribute", "a free text by name",
                                                             freeAttributeAttributes};
template <class Record>
inline constexpr Child<Record> freeAttributeChild = childrenOf<&Record::attributes, freeAttributeElement, Record>();

struct Mirror {
    std::string name;
    bool reflected = false;
};
template <NameRule const& rule>
inline constexpr Attribute<Mirror> mirrorAttributes[] = {
    named<&Mirror::name>("name", rule, "the element of the same kind on the other side"),
    optional<&Mirror::reflected>("reflected", "false", "",
                                 "whether the two turn in opposite senses when the robot moves symmetrically"),
};
template <NameRule const& rule>
inline constexpr Element<Mirror> mirrorElement{"mirror", "the element's partner in the robot's symmetry",
                                               mirrorAttributes<rule>};

template <class Record, NameRule const& rule>
void readMirror(ElementReader& reader, XmlNode node, Record& record)
{
    Mirror mirror;
    reader.read(mirrorElement<rule>, node, mirror);
    record.mirrorName = mirror.name;
    record.mirrorKind = mirror.reflected ? reflectedMirror : plainMirror;
}
template <class Record, NameRule const& rule>
void writeMirror(ElementWriter& writer, Record const& record)
{
    if (record.mirrorKind != noMirror) {
        writer.write(mirrorElement<rule>, {record.mirrorName, record.mirrorKind == reflectedMirror});
    }
}
template <class Record>
void clearMirror(Record& record)
{
    record.mirrorName.clear();
    record.mirrorKind = noMirror;
}
template <class Record, NameRule const& rule>
inline constexpr Child<Record> mirrorChild{{&mirrorElement<rule>, Occurrence::optional},
                                           readMirror<Record, rule>,
                                           writeMirror<Record, rule>,
                                           clearMirror<Record>};

}  // namespace Varo::Model::Native

#endif
