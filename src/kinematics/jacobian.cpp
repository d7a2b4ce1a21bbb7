#include <algorithm>

#include "kinematics/joint_motions.hpp"
#include "kinematics/kinematics_impl.hpp"
#include "kinematics/vectors.hpp"
#include "sim/kinematics.hpp"

namespace Sim {

namespace {

using Mover = KinematicTree::Mover;

Vector3 read(double const* entries)
{
    return {entries[0], entries[1], entries[2]};
}

/// Entry by entry: copies of whole vectors make processors wait for what they just wrote.
void add(Vector3 const& vector, double* entries)
{
    entries[0] += vector[0];
    entries[1] += vector[1];
    entries[2] += vector[2];
}

/// Turns vectors of three entries into the axes of a frame, when there is one.
void turnInto(Frame const* axes, KinematicsImpl const& kinematics, double const* values, double* entries,
              std::size_t count)
{
    if (axes == nullptr) {
        return;
    }
    Pose const rootInAxes = kinematics.poseOf(*axes, values).inverse();
    for (std::size_t i = 0; i < count; i += 3) {
        Vector3 const vector = rotated(rootInAxes, read(entries + i));
        std::copy(vector.begin(), vector.end(), entries + i);
    }
}

/// By position in the tree, the mass of each link and all that it carries, and the sum of mass times place.
struct Branches {
    Branches(KinematicTree const& tree, std::vector<Pose> const& poses) : masses(poses.size()), moments(poses.size())
    {
        for (std::size_t i = poses.size(); i-- > 0;) {
            KinematicTree::Body const& body = tree.body(i);
            KinematicTree::Node const& node = tree.nodes()[i];
            masses[i] += body.mass;
            moments[i] = sum(moments[i], scaled(body.mass, poses[node.link] * body.centerOfMass));
            if (i > 0) {
                std::size_t const parent = tree.positionOfLink(node.parentLink);
                masses[parent] += masses[i];
                moments[parent] = sum(moments[parent], moments[i]);
            }
        }
    }

    std::vector<double> masses;
    std::vector<Vector3> moments;
};

}  // namespace

void Kinematics::jacobian(Configuration const& configuration, Frame const& frame, double* entries, std::size_t count,
                          Frame const* axes) const
{
    double const* const values = _impl->valuesOf(configuration);
    requireSize("entries", count, 6 * variables().size());
    KinematicTree const& tree = _impl->tree;
    FramePlaces::Place const place = _impl->places.of(frame);

    // On the way to the frame its origin is not known yet: velocities of the point at the root's origin come first.
    std::fill_n(entries, count, 0.0);
    auto const addJoint = [entries](Mover const& mover, PairedPose const& joint) {
        if (mover.motion != Motion::none) {
            bool const turns = mover.motion == Motion::turns;
            Vector3 const angular = scaled(turns ? mover.ratio : 0.0, joint.zAxis());
            Vector3 const sliding = scaled(turns ? 0.0 : mover.ratio, joint.zAxis());
            double* const column = entries + std::size_t{6} * mover.variable;
            add(sum(cross(joint.position(), angular), sliding), column);
            add(angular, column + 3);
        }
    };
    std::size_t const target = tree.positionOfLink(place.link);
    Vector3 const origin = walkTo(tree, target, values, addJoint) * place.inLink.position();
    auto const moveToOrigin = [&](std::uint32_t variable) {
        double* const column = entries + std::size_t{6} * variable;
        add(cross(read(column + 3), origin), column);
    };
    for (KinematicPath path(tree, target); path.advance();) {
        Mover const& mover = tree.mover(path.position());
        if (mover.motion != Motion::none && !mover.isShared) {
            moveToOrigin(mover.variable);
        }
    }
    std::for_each(tree.sharedVariables().begin(), tree.sharedVariables().end(), moveToOrigin);
    turnInto(axes, *_impl, values, entries, count);
}

std::vector<double> Kinematics::jacobian(Configuration const& configuration, Frame const& frame,
                                         Frame const* axes) const
{
    std::vector<double> entries(6 * variables().size());
    jacobian(configuration, frame, entries.data(), entries.size(), axes);
    return entries;
}

std::vector<double> Kinematics::centerOfMassJacobian(Configuration const& configuration, Frame const* axes) const
{
    double const* const values = _impl->valuesOf(configuration);
    KinematicTree const& tree = _impl->tree;
    std::vector<Pose> const poses = _impl->linkPosesAt(values);
    Branches const branches(tree, poses);
    std::vector<double> entries(3 * variables().size());
    if (branches.masses.front() == 0.0) {
        return entries;
    }
    for (std::size_t i = 1; i < poses.size(); ++i) {
        Mover const& mover = tree.mover(i);
        if (mover.motion != Motion::none) {
            Pose const joint = poses[tree.nodes()[i].parentLink] * tree.joint(i).inParentLink;
            Vector3 const zAxis = scaled(mover.ratio / branches.masses.front(), joint.axis(2));
            Vector3 const lever = sum(branches.moments[i], scaled(-branches.masses[i], joint.position()));
            bool const turns = mover.motion == Motion::turns;
            add(turns ? cross(zAxis, lever) : scaled(branches.masses[i], zAxis),
                entries.data() + std::size_t{3} * mover.variable);
        }
    }
    turnInto(axes, *_impl, values, entries.data(), entries.size());
    return entries;
}

}  // namespace Sim
