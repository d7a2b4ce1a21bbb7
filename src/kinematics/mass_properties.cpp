#include "kinematics/kinematics_impl.hpp"
#include "kinematics/vectors.hpp"
#include "sim/kinematics.hpp"

namespace Sim {

namespace {

/// Adds rotation * inertia * rotation transposed, which is the inertia along the axes that the rotation leads to.
void addTurned(Pose const& rotation, std::array<double, 9> const& inertia, std::array<double, 9>& total)
{
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            for (std::size_t k = 0; k < 9; ++k) {
                total[i * 3 + j] += rotation.rows[i * 4 + k / 3] * inertia[k] * rotation.rows[j * 4 + k % 3];
            }
        }
    }
}

/// Adds the inertia of a point mass.
void addPoint(double mass, Vector3 const& place, std::array<double, 9>& total)
{
    double const square = place[0] * place[0] + place[1] * place[1] + place[2] * place[2];
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            total[i * 3 + j] += mass * ((i == j ? square : 0.0) - place[i] * place[j]);
        }
    }
}

/// Of the links at the positions from `begin` to before `end`.
MassProperties massPropertiesOf(KinematicTree const& tree, std::vector<Pose> const& poses, std::size_t begin,
                                std::size_t end)
{
    MassProperties all;
    Vector3 moment = {};
    for (std::size_t i = begin; i < end; ++i) {
        KinematicTree::Body const& body = tree.body(i);
        all.mass += body.mass;
        moment = sum(moment, scaled(body.mass, poses[tree.nodes()[i].link] * body.centerOfMass));
    }
    if (all.mass != 0.0) {
        all.centerOfMass = scaled(1.0 / all.mass, moment);
    }
    for (std::size_t i = begin; i < end; ++i) {
        KinematicTree::Body const& body = tree.body(i);
        Pose const& pose = poses[tree.nodes()[i].link];
        addTurned(pose, body.inertia, all.inertia);
        addPoint(body.mass, sum(pose * body.centerOfMass, scaled(-1.0, all.centerOfMass)), all.inertia);
    }
    return all;
}

}  // namespace

MassProperties Kinematics::massProperties(Configuration const& configuration) const
{
    std::vector<Pose> const poses = linkPoses(configuration);
    return massPropertiesOf(_impl->tree, poses, 0, poses.size());
}

MassProperties Kinematics::massProperties(Configuration const& configuration, Link const& link) const
{
    std::vector<Pose> const poses = linkPoses(configuration);
    std::size_t const position = _impl->tree.positionOfLink(_impl->places.linkOf(link));
    return massPropertiesOf(_impl->tree, poses, position, _impl->tree.endOfBranch(position));
}

}  // namespace Sim
