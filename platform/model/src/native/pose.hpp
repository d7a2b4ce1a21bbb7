#ifndef VARO_MODEL_NATIVE_POSE_HPP
#define VARO_MODEL_NATIVE_POSE_HPP

#include <array>

#include "native/schema.hpp"
#include "schema/element_reader.hpp"
#include "schema/element_writer.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

struct Pose {
    Position3D xyz;
    Position3D rpy;
    std::array<float, 12> matrix = Transform().rows();
};

/// Whether they are equal to the sign of their zeros, so that texts tell no difference.
bool sameBits(Transform const& a, Transform const& b);

/// The pose that an element of the pose family says; the identity when it says nothing or something wrong.
Transform readPose(ElementReader& reader, Element<Pose> const& element, XmlNode node);

/// Writes the pose, unless it is the identity: as position and angles when reading these gives the same bits, and as a
/// matrix otherwise.
void writePose(ElementWriter& writer, Element<Pose> const& element, Transform const& transform);

/// Elements that are a pose, for each name one with its own meaning.
extern Element<Pose> const jointPlacementElement;
extern Element<Pose> const jointEndElement;
extern Element<Pose> const chainPlacementElement;
extern Element<Pose> const tipPlacementElement;
extern Element<Pose> const devicePlacementElement;
extern Element<Pose> const sensorPlacementElement;
extern Element<Pose> const subJointPlacementElement;

/// A child that is a pose, and the member of its parent's record that the pose goes to.
template <auto member, auto const& element, class Parent = RecordOf<member>>
constexpr Child<Parent> poseChild()
{
    return {
        {&element, Occurrence::optional},
        [](ElementReader& reader, XmlNode node, Parent& parent) { parent.*member = readPose(reader, element, node); },
        [](ElementWriter& writer, Parent const& parent) { writePose(writer, element, parent.*member); },
        [](Parent& parent) { parent.*member = Transform(); },
        [](Parent const& a, Parent const& b) { return sameBits(a.*member, b.*member); }};
}

}  // namespace Varo::Model::Native

#endif
