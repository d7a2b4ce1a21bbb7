#include "kinematics/kinematic_tree.hpp"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/model.hpp"

namespace Sim {

namespace {

using Node = KinematicTree::Node;

/// The pose of a joint's moving side that has turned by an angle.
Pose turned(double cosine, double sine)
{
    Pose pose;
    pose.rows = {cosine, -sine, 0.0, 0.0, sine, cosine, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0};
    return pose;
}

Pose slid(double distance)
{
    Pose pose;
    pose.rows[11] = distance;
    return pose;
}

Pose weighted(double weightOfA, Pose const& a, double weightOfB, Pose const& b)
{
    Pose sum;
    for (std::size_t i = 0; i < sum.rows.size(); ++i) {
        sum.rows[i] = weightOfA * a.rows[i] + weightOfB * b.rows[i];
    }
    return sum;
}

/// Where a joint that stands still holds what is behind it.
Pose standing(Drive const& drive)
{
    return drive.motion == Motion::slides ? slid(drive.offset) : turned(std::cos(drive.offset), std::sin(drive.offset));
}

KinematicTree::Mover moverOf(Drive const& drive)
{
    bool const stands = drive.variable == Drive::noVariable;
    return {drive.ratio, drive.offset, stands ? 0 : drive.variable, stands ? Motion::none : drive.motion, false};
}

Node nodeOf(Pose const& before, Pose const& behind, Motion motion)
{
    Node node = {};
    node.still = before * behind;
    if (motion == Motion::turns) {
        // Three known angles say what the three parts are.
        Pose const atZero = node.still;
        Pose const atHalfTurn = before * turned(-1.0, 0.0) * behind;
        node.still = weighted(0.5, atZero, 0.5, atHalfTurn);
        node.cosine = weighted(0.5, atZero, -0.5, atHalfTurn);
        node.sine = weighted(1.0, before * turned(0.0, 1.0) * behind, -1.0, node.still);
    } else if (motion == Motion::slides) {
        node.sine = weighted(1.0, before * slid(1.0) * behind, -1.0, node.still);
    }
    return node;
}

KinematicTree::Body bodyOf(Link const& link)
{
    KinematicTree::Body body;
    if (MassData const* const data = link.mass()) {
        body.mass = static_cast<double>(data->mass());
        auto const& com = data->CoM();
        body.centerOfMass = {static_cast<double>(com.x), static_cast<double>(com.y), static_cast<double>(com.z)};
        std::vector<float> const& inertia = data->inertiaMatrix();
        std::copy_n(inertia.begin(), std::min(inertia.size(), body.inertia.size()), body.inertia.begin());
    }
    return body;
}

Pose localPose(Frame const* frame)
{
    return Pose::fromTransform(frame->localPosition());
}

/// By place in the list, the place of the parent link; 0 for the root, which comes first.
std::vector<std::uint32_t> parentsOf(std::vector<Link const*> const& links)
{
    std::unordered_map<Link const*, std::uint32_t> places;
    places.reserve(links.size());
    std::vector<std::uint32_t> parents;
    for (Link const* const link : links) {
        Joint const* const joint = link->parentJoint();
        parents.push_back(joint == nullptr ? 0 : places.at(joint->parentLink()));
        places.emplace(link, static_cast<std::uint32_t>(parents.size() - 1));
    }
    return parents;
}

}  // namespace

KinematicTree::KinematicTree(Model const& model, JointDrives const& drives)
{
    std::vector<Link const*> const links = model.links();
    std::vector<std::uint32_t> const parents = parentsOf(links);
    orderLinks(parents);
    _movers.resize(links.size());
    _nodes.resize(links.size());
    _joints.resize(links.size());
    _bodies.resize(links.size());
    for (std::size_t place = 0; place < links.size(); ++place) {
        std::size_t const position = _positions[place];
        Joint& joint = _joints[position];
        Drive drive;
        joint.toLink = localPose(links[place]->frame());
        if (Sim::Joint const* const before = links[place]->parentJoint()) {
            drive = drives.of(*before);
            joint.inParentLink = localPose(before->frame());
            joint.behindParentJoint = _joints[_positions[parents[place]]].toLink * joint.inParentLink;
        }
        if (drive.variable == Drive::noVariable) {
            joint.toLink = standing(drive) * joint.toLink;
        }
        _movers[position] = moverOf(drive);
        _nodes[position] = nodeOf(joint.inParentLink, joint.toLink, _movers[position].motion);
        _nodes[position].parentLink = parents[place];
        _nodes[position].link = static_cast<std::uint32_t>(place);
        _bodies[position] = bodyOf(*links[place]);
    }
    findSharedVariables(drives.variables().size());
}

/// Models list parents before their children, but wheels behind all other links.
void KinematicTree::orderLinks(std::vector<std::uint32_t> const& parents)
{
    std::size_t const count = parents.size();
    std::vector<std::uint32_t> sizes(count, 1);
    for (std::size_t link = count; link-- > 1;) {
        sizes[parents[link]] += sizes[link];
    }
    std::vector<std::uint32_t> nextPositions(count, 1);  // of the next child of each link
    _positions.assign(count, 0);
    _ends.assign(count, static_cast<std::uint32_t>(count));
    for (std::size_t link = 1; link < count; ++link) {
        std::uint32_t const position = nextPositions[parents[link]];
        nextPositions[parents[link]] += sizes[link];
        nextPositions[link] = position + 1;
        _positions[link] = position;
        _ends[position] = position + sizes[link];
    }
}

void KinematicTree::findSharedVariables(std::size_t variableCount)
{
    std::vector<std::size_t> counts(variableCount);
    for (Mover const& mover : _movers) {
        if (mover.motion != Motion::none && ++counts[mover.variable] == 2) {
            _sharedVariables.push_back(mover.variable);
        }
    }
    for (Mover& mover : _movers) {
        mover.isShared = mover.motion != Motion::none && counts[mover.variable] > 1;
    }
}

}  // namespace Sim
