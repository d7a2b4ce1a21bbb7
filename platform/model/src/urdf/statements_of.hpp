#ifndef VARO_MODEL_URDF_STATEMENTS_OF_HPP
#define VARO_MODEL_URDF_STATEMENTS_OF_HPP

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "robot/cycles.hpp"
#include "urdf/short_poses.hpp"
#include "urdf/statements.hpp"
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
        std::size_t parent = none;  ///< the joint before it; none for the root
        Math::Transform base;  ///< of its chain, in the frame of that one
    };

    /// Its link in the frame of a joint.
    struct End {
        Vector axis;
        Pose pose;  ///< as the reader computes it, where the axis says it
    };

    /// Of the joint of that name; none for the root and for an unknown name.
    std::size_t indexOf(std::string_view joint) const;
    /// Of the joint, or of the root.
    std::string_view linkOf(std::size_t joint) const { return joint == none ? _linkNames.back() : _linkNames[joint]; }
    void nameLinks();
    void attachJoints();
    void cutCycles();
    void addJoint(std::size_t index);
    void placeJoint(std::size_t index, Joint& stated);
    End const& endOf(std::size_t joint);
    Link toLink(JointConfig const& body, std::string_view name, Vector const& shift);
    void addTransmissions();

    Records const& _records;
    ShortPoses& _poses;
    Robot _robot;
    std::vector<std::string> _linkNames;  ///< of the joints, and behind them that of the root
    std::vector<std::optional<Attachment>> _attachments;  ///< of the joints; of none that no chain has
    std::vector<std::optional<End>> _ends;  ///< of the joints, as far as they were asked for
    std::deque<std::vector<VisualConfig>> _meshVisuals;  ///< those that records say in short
};

}  // namespace Varo::Model::Urdf

#endif
