#ifndef VARO_MODEL_URDF_STATEMENTS_OF_HPP
#define VARO_MODEL_URDF_STATEMENTS_OF_HPP

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "urdf/short_poses.hpp"
#include "urdf/statements.hpp"
#include "varo/model/name_hash.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Urdf {

/// What URDF can say of the records: the way back from `translation.hpp`. The link of the root comes first, those of
/// the joints follow in the order of the joints.
class StatementsOf {
public:
    /// The records must outlive this.
    StatementsOf(Records const& records, ShortPoses& poses);
    StatementsOf(StatementsOf const&) = delete;
    StatementsOf& operator=(StatementsOf const&) = delete;

    Robot const& robot() const { return _robot; }
    /// The link that the joint moves, or that is the root; the root's for an unknown name.
    std::string_view linkOf(std::string_view bearer) const;
    /// From where a record has that link to where the statements have it; m, in its axes.
    Vector shiftOfLink(std::string_view bearer) const;

private:
    /// Where the record has a joint.
    struct Attachment {
        std::string parent;  ///< the joint, or the root, before it
        Math::Transform base;  ///< of its chain, in the frame of that one
    };

    /// Its link in the frame of a joint.
    struct End {
        Vector axis;
        Pose pose;  ///< as the reader computes it, where the axis says it
    };

    void nameLinks();
    void attachJoints();
    void cutCycles();
    void addJoint(JointConfig const& joint);
    void placeJoint(JointConfig const& joint, Joint& stated);
    End const& endOf(JointConfig const& joint);
    Link toLink(JointConfig const& body, Vector const& shift);
    void addTransmissions();
    std::string_view keep(std::string text) { return _texts.emplace_back(std::move(text)); }

    Records const& _records;
    ShortPoses& _poses;
    Robot _robot;
    std::deque<std::string> _texts;
    std::unordered_map<std::string_view, std::string_view, NameHash> _links;  ///< by joint or root
    std::unordered_map<std::string_view, Attachment, NameHash> _attachments;  ///< by joint
    std::unordered_map<std::string_view, End, NameHash> _ends;  ///< by joint
    std::deque<std::vector<VisualConfig>> _meshVisuals;  ///< those that records say in short
};

}  // namespace Varo::Model::Urdf

#endif
