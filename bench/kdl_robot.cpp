#include "kdl_robot.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include <kdl/chainjnttojacsolver.hpp>
#include <kdl/tree.hpp>
#include <kdl/treefksolverpos_recursive.hpp>
#include <kdl/treejnttojacsolver.hpp>

#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"

namespace Bench {

namespace {

KDL::Frame frameOf(Sim::Frame const& frame)
{
    Sim::Pose const pose = Sim::Pose::fromTransform(frame.localPosition());
    KDL::Frame result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            result.M(row, column) = pose(row, column);
        }
        result.p(row) = pose(row, 3);
    }
    return result;
}

KDL::Segment segmentOf(Sim::Link const& link)
{
    std::string const& name = link.parentJoint()->name();
    KDL::Frame const before = frameOf(*link.parentJoint()->frame());
    KDL::Joint const joint(name, before.p, before.M.UnitZ(), KDL::Joint::RotAxis);
    return KDL::Segment(link.name(), joint, before * frameOf(*link.frame()));
}

KDL::Tree treeOf(Sim::Model const& model)
{
    KDL::Tree tree(model.rootLink()->name());
    for (Sim::Link const* const link : model.links()) {
        if (Sim::Joint const* const joint = link->parentJoint()) {
            tree.addSegment(segmentOf(*link), joint->parentLink()->name());
        }
    }
    return tree;
}

}  // namespace

struct KdlRobot::Impl {
    Impl(Sim::Model const& model, Sim::Link const& link)
        : tree(treeOf(model)),
          poseSolver(tree),
          treeSolver(tree),
          chain(chainTo(tree, model.rootLink()->name(), link.name())),
          chainSolver(chain),
          values(tree.getNrOfJoints()),
          chainValues(chain.getNrOfJoints()),
          poses(model.links().size()),
          treeJacobian(tree.getNrOfJoints()),
          chainJacobian(chain.getNrOfJoints())
    {
        std::map<Sim::Link const*, std::size_t> places;
        for (Sim::Link const* const each : model.links()) {
            Sim::Joint const* const joint = each->parentJoint();
            places.emplace(each, places.size());
            names.push_back(each->name());
            segments.push_back(&tree.getSegment(each->name())->second);
            parents.push_back(joint == nullptr ? 0 : places.at(joint->parentLink()));
        }
    }

    static KDL::Chain chainTo(KDL::Tree const& tree, std::string const& root, std::string const& tip)
    {
        KDL::Chain chain;
        tree.getChain(root, tip, chain);
        return chain;
    }

    KDL::Tree const tree;
    KDL::TreeFkSolverPos_recursive poseSolver;
    KDL::TreeJntToJacSolver treeSolver;
    KDL::Chain const chain;
    KDL::ChainJntToJacSolver chainSolver;
    KDL::JntArray values;
    KDL::JntArray chainValues;
    std::vector<KDL::Frame> poses;
    KDL::Jacobian treeJacobian;
    KDL::Jacobian chainJacobian;
    // By place in Model::links().
    std::vector<std::string> names;
    std::vector<KDL::TreeElement const*> segments;
    std::vector<std::size_t> parents;
};

KdlRobot::KdlRobot(Sim::Model const& model, Sim::Link const& link) : _impl(std::make_unique<Impl>(model, link)) {}

KdlRobot::~KdlRobot() = default;

void KdlRobot::setValues(Sim::Configuration const& configuration)
{
    for (std::size_t i = 1; i < _impl->segments.size(); ++i) {
        KDL::TreeElement const& element = *_impl->segments[i];
        _impl->values(element.q_nr) = configuration.at(element.segment.getJoint().getName());
    }
    for (unsigned i = 0; i < _impl->chain.getNrOfSegments(); ++i) {
        _impl->chainValues(i) = configuration.at(_impl->chain.getSegment(i).getJoint().getName());
    }
}

void KdlRobot::solvePoses()
{
    for (std::size_t i = 0; i < _impl->names.size(); ++i) {
        _impl->poseSolver.JntToCart(_impl->values, _impl->poses[i], _impl->names[i]);
    }
}

void KdlRobot::multiplyPoses()
{
    for (std::size_t i = 1; i < _impl->segments.size(); ++i) {
        KDL::TreeElement const& element = *_impl->segments[i];
        _impl->poses[i] = _impl->poses[_impl->parents[i]] * element.segment.pose(_impl->values(element.q_nr));
    }
}

void KdlRobot::solveTreeJacobian()
{
    _impl->treeSolver.JntToJac(_impl->values, _impl->treeJacobian, _impl->chain.segments.back().getName());
}

void KdlRobot::solveChainJacobian()
{
    _impl->chainSolver.JntToJac(_impl->chainValues, _impl->chainJacobian);
}

double KdlRobot::differenceOfPoses(std::vector<Sim::Pose> const& linkPoses) const
{
    double greatest = 0.0;
    for (std::size_t i = 0; i < linkPoses.size(); ++i) {
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 4; ++column) {
                greatest = std::max(greatest, std::abs(linkPoses[i](row, column) - _impl->poses[i](row, column)));
            }
        }
    }
    return greatest;
}

double KdlRobot::differenceOfJacobian(std::vector<double> const& entries) const
{
    double greatest = 0.0;
    for (std::size_t i = 1; i < _impl->segments.size(); ++i) {  // joints and variables are in the order of the links
        unsigned const column = _impl->segments[i]->q_nr;
        for (unsigned row = 0; row < 6; ++row) {
            double const expected = _impl->treeJacobian(row, column);
            greatest = std::max(greatest, std::abs(entries[6 * (i - 1) + row] - expected));
        }
    }
    return greatest;
}

}  // namespace Bench
