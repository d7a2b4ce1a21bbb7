#include "sim/kinematics.hpp"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "kinematics/joint_motions.hpp"
#include "kinematics/kinematics_impl.hpp"
#include "sim/model.hpp"

namespace Sim {

KinematicsImpl::KinematicsImpl(Model const& model)
    : drives(model), tree(model, drives), places(model), postures(model.postures())
{}

double const* KinematicsImpl::valuesOf(Configuration const& configuration) const
{
    if (configuration._kinematics.get() != this) {
        throw std::invalid_argument("The configuration was made for another Kinematics.");
    }
    return configuration._values.data();
}

Pose KinematicsImpl::poseOf(Frame const& frame, double const* values) const
{
    FramePlaces::Place const place = places.of(frame);
    auto const pass = [](KinematicTree::Mover const&, PairedPose const&) {};
    return walkTo(tree, tree.positionOfLink(place.link), values, pass) * place.inLink;
}

void KinematicsImpl::writeLinkPoses(double const* values, Pose* poses) const
{
    std::vector<KinematicTree::Node> const& nodes = tree.nodes();
    poses[nodes.front().link] = nodes.front().still;
    JointMotions::Positions positions;
    for (std::size_t begin = 1; begin < nodes.size(); begin += positions.size()) {
        std::size_t const count = std::min(positions.size(), nodes.size() - begin);
        std::iota(positions.begin(), positions.end(), begin);
        JointMotions const motions(tree, positions, count, values);
        for (std::size_t i = 0; i < count; ++i) {
            KinematicTree::Node const& node = nodes[begin + i];
            (PairedPose(poses[node.parentLink]) * motions.linkInParent(i)).store(poses[node.link]);
        }
    }
}

std::vector<Pose> KinematicsImpl::linkPosesAt(double const* values) const
{
    std::vector<Pose> poses(tree.nodes().size());
    writeLinkPoses(values, poses.data());
    return poses;
}

void requireSize(char const* what, std::size_t size, std::size_t expected)
{
    if (size != expected) {
        throw std::invalid_argument("There must be " + std::to_string(expected) + " " + what + ", not " +
                                    std::to_string(size) + ".");
    }
}

Kinematics::Kinematics(Model const& model) : _impl(std::make_shared<KinematicsImpl const>(model)) {}

Kinematics::Kinematics(Kinematics const& other) = default;

Kinematics& Kinematics::operator=(Kinematics const& other) = default;

Kinematics::~Kinematics() = default;

std::vector<JointVariable> const& Kinematics::variables() const
{
    return _impl->drives.variables();
}

std::size_t Kinematics::variableOf(std::string const& name) const
{
    return _impl->drives.moving(name).variable;
}

Frame const& Kinematics::frame(std::string const& name) const
{
    return _impl->places.named(name);
}

std::size_t Kinematics::linkCount() const
{
    return _impl->tree.nodes().size();
}

std::size_t Kinematics::linkIndex(Link const& link) const
{
    return _impl->places.linkOf(link);
}

Pose Kinematics::pose(Configuration const& configuration, Frame const& frame) const
{
    return _impl->poseOf(frame, _impl->valuesOf(configuration));
}

Pose Kinematics::pose(Configuration const& configuration, Frame const& frame, Frame const& relativeTo) const
{
    return pose(configuration, relativeTo).inverse() * pose(configuration, frame);
}

void Kinematics::linkPoses(Configuration const& configuration, Pose* poses, std::size_t count) const
{
    double const* const values = _impl->valuesOf(configuration);
    requireSize("poses", count, linkCount());
    _impl->writeLinkPoses(values, poses);
}

std::vector<Pose> Kinematics::linkPoses(Configuration const& configuration) const
{
    return _impl->linkPosesAt(_impl->valuesOf(configuration));
}

}  // namespace Sim
