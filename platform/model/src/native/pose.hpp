#ifndef VARO_MODEL_NATIVE_POSE_HPP
#define VARO_MODEL_NATIVE_POSE_HPP

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/schema.hpp"

namespace Varo::Model::Native {

/// The pose that an element of the pose family says; the identity when it says nothing or something wrong.
Transform readPose(ElementReader& reader, Element const& element, pugi::xml_node node);

/// Writes the pose, unless it is the identity: as position and angles when reading these gives the same bits, and as a
/// matrix otherwise.
void writePose(ElementWriter& writer, Element const& element, Transform const& transform);

/// Elements that are a pose, for each name one with its own meaning.
extern Element const jointPlacementElement;
extern Element const jointEndElement;
extern Element const chainPlacementElement;
extern Element const tipPlacementElement;
extern Element const devicePlacementElement;
extern Element const sensorPlacementElement;
extern Element const subJointPlacementElement;

template <auto member>
void readPoseInto(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    static_cast<RecordOf<member>*>(parent)->*member = readPose(reader, element, node);
}

template <auto member>
void writePoseFrom(ElementWriter& writer, Element const& element, void const* parent)
{
    writePose(writer, element, static_cast<RecordOf<member> const*>(parent)->*member);
}

/// A child that is a pose, and the member of its parent's record that the pose goes to.
template <auto member>
constexpr Child poseChild(Element const& element)
{
    return {&element, Occurrence::optional, readPoseInto<member>, writePoseFrom<member>};
}

}  // namespace Varo::Model::Native

#endif
