#ifndef VARO_KINEMATICS_KINEMATIC_TREE_HPP
#define VARO_KINEMATICS_KINEMATIC_TREE_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "kinematics/joint_drives.hpp"
#include "sim/pose.hpp"

namespace Sim {

/// The links of a model as flat arrays, each link before those that it carries, and all of a branch behind one another.
/// The root comes first.
class KinematicTree {
public:
    /// How a joint moves: by the value ratio * variable + offset.
    struct Mover {
        double ratio;
        double offset;
        std::uint32_t variable;
        Motion motion;
        bool isShared;  ///< whether the variable moves other joints, too
    };

    /// A link's pose in its parent's frame: still + cosine * cos(value) + sine * sin(value) behind a joint that turns,
    /// still + sine * value behind one that slides, and `still` behind one that does neither.
    struct Node {
        Pose still;
        Pose cosine;
        Pose sine;
        std::uint32_t parentLink;  ///< its place in Model::links()
        std::uint32_t link;  ///< likewise
    };

    /// The joint before a link. Its frame has a fixed side and, moved along or about z, a moving one.
    struct Joint {
        Pose inParentLink;  ///< the fixed side
        Pose behindParentJoint;  ///< the fixed side in the moving side of the joint before the parent link
        Pose toLink;  ///< the link's frame in the moving side
    };

    struct Body {
        double mass = 0.0;
        Vector3 centerOfMass = {};  ///< in the link's frame
        std::array<double, 9> inertia = {};  ///< about the centre of mass, in the axes of the link's frame
    };

    KinematicTree(Model const& model, JointDrives const& drives);

    // By position in this order.
    std::vector<Node> const& nodes() const { return _nodes; }
    Mover const& mover(std::size_t position) const { return _movers[position]; }
    Joint const& joint(std::size_t position) const { return _joints[position]; }
    Body const& body(std::size_t position) const { return _bodies[position]; }
    /// The position behind the link and all that it carries.
    std::size_t endOfBranch(std::size_t position) const { return _ends[position]; }

    /// From a place in Model::links().
    std::size_t positionOfLink(std::size_t link) const { return _positions[link]; }
    /// The variables that move several joints.
    std::vector<std::uint32_t> const& sharedVariables() const { return _sharedVariables; }

private:
    void orderLinks(std::vector<std::uint32_t> const& parents);
    void findSharedVariables(std::size_t variableCount);

    // Apart from each other, because some queries need little of them.
    std::vector<Mover> _movers;
    std::vector<Node> _nodes;
    std::vector<Joint> _joints;
    std::vector<Body> _bodies;
    std::vector<std::uint32_t> _ends;
    std::vector<std::uint32_t> _positions;
    std::vector<std::uint32_t> _sharedVariables;
};

/// The way from the root to a link. It needs no memory, because a link carries those up to the end of its branch.
class KinematicPath {
public:
    KinematicPath(KinematicTree const& tree, std::size_t target) : _tree(tree), _target(target) {}

    /// Goes on to the next link behind the root; false behind the last one.
    bool advance()
    {
        if (_at == _target) {
            return false;
        }
        ++_at;
        while (_target >= _tree.endOfBranch(_at)) {
            _at = _tree.endOfBranch(_at);
        }
        return true;
    }

    std::size_t position() const { return _at; }

private:
    KinematicTree const& _tree;
    std::size_t _target;
    std::size_t _at = 0;
};

}  // namespace Sim

#endif
