// Poses, centres of mass and Jacobians beside those that KDL computes from a model's own frames.
#include <map>
#include <memory>

#include <gtest/gtest.h>
#include <kdl/chainjnttojacsolver.hpp>
#include <kdl/tree.hpp>
#include <kdl/treefksolverpos_recursive.hpp>

#include "kdl_comparison.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/model.hpp"
#include "tables.hpp"

namespace KinematicsTest {

namespace {

constexpr double tolerance = 1e-9;  // of the robot's size

KDL::Frame frameOf(Varo::Math::Transform const& transform)
{
    auto const entry = [&](int row, int column) { return static_cast<double>(transform(row, column)); };
    KDL::Frame frame;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            frame.M(row, column) = entry(row, column);
        }
        frame.p(row) = entry(row, 3);
    }
    return frame;
}

/// A model's tree in KDL: a segment for the way to each joint, and one for the joint's motion and the way to the link.
class KdlRobot {
public:
    explicit KdlRobot(Sim::Model const& model) : _model(model), _tables(model.robot())
    {
        KDL::Tree tree("root");
        std::map<Sim::Link const*, std::string> segments = {{model.rootLink(), "root"}};
        for (Sim::Link const* const link : model.links()) {
            if (Sim::Joint const* const joint = link->parentJoint()) {
                std::string const name = std::to_string(segments.size());
                KDL::Frame const before = frameOf(joint->frame()->localPosition());
                KDL::Frame const behind = frameOf(link->frame()->localPosition());
                tree.addSegment(KDL::Segment("to " + name, KDL::Joint(), before), segments.at(joint->parentLink()));
                tree.addSegment(KDL::Segment(name, KDL::Joint(name, typeOf(*joint)), behind), "to " + name);
                segments.emplace(link, name);
            }
            _segments.push_back(segments.at(link));
        }
        _tree = settled(tree);
        _solver = std::make_unique<KDL::TreeFkSolverPos_recursive>(_tree);
    }

    /// Where all joints stand.
    KDL::JntArray valuesOf(Sim::Configuration const& configuration) const
    {
        KDL::JntArray values(_tree.getNrOfJoints());
        forEachJoint([&](unsigned index, std::string const& name) { values(index) = configuration.at(name); });
        return values;
    }

    KDL::Frame poseOf(std::size_t link, KDL::JntArray const& values) const
    {
        KDL::Frame pose;
        EXPECT_EQ(_solver->JntToCart(values, pose, _segments[link]), 0);
        return pose;
    }

    /// Of the link's frame, with a column for each moving joint of the tree.
    KDL::Jacobian jacobianOf(std::size_t link, KDL::JntArray const& values) const
    {
        KDL::Jacobian all(_tree.getNrOfJoints());
        KDL::Chain chain;
        EXPECT_TRUE(_tree.getChain("root", _segments[link], chain));
        std::vector<unsigned> joints;
        for (KDL::Segment const& segment : chain.segments) {
            if (segment.getJoint().getType() != KDL::Joint::None) {
                joints.push_back(_tree.getSegment(segment.getName())->second.q_nr);
            }
        }
        KDL::JntArray ofChain(static_cast<unsigned>(joints.size()));
        KDL::Jacobian some(static_cast<unsigned>(joints.size()));
        for (unsigned i = 0; i < joints.size(); ++i) {
            ofChain(i) = values(joints[i]);
        }
        EXPECT_EQ(KDL::ChainJntToJacSolver(chain).JntToJac(ofChain, some), 0);
        for (unsigned i = 0; i < joints.size(); ++i) {
            all.setColumn(joints[i], some.getColumn(i));
        }
        return all;
    }

    /// Calls `visit(index, name)` with each moving joint of the tree and its name in the model.
    template <class Visit>
    void forEachJoint(Visit const& visit) const
    {
        for (std::size_t link = 1; link < _segments.size(); ++link) {
            KDL::TreeElement const& element = _tree.getSegment(_segments[link])->second;
            if (element.segment.getJoint().getType() != KDL::Joint::None) {
                visit(element.q_nr, _model.links()[link]->parentJoint()->name());
            }
        }
    }

private:
    KDL::Joint::JointType typeOf(Sim::Joint const& joint) const
    {
        auto const record = _tables.joints.find(joint.name());
        if (record == _tables.joints.end()) {  // a sub-joint or a wheel
            return KDL::Joint::RotZ;
        }
        switch (record->second.jointType) {
        case Varo::Model::continuous:
        case Varo::Model::revolute: return KDL::Joint::RotZ;
        case Varo::Model::prismatic: return KDL::Joint::TransZ;
        default: return KDL::Joint::None;
        }
    }

    Sim::Model const& _model;
    Tests::Tables _tables;
    KDL::Tree _tree = KDL::Tree("root");
    std::vector<std::string> _segments;  // by place of the link in the model
    std::unique_ptr<KDL::TreeFkSolverPos_recursive> _solver;
};

KDL::Vector comOf(Sim::MassData const& mass)
{
    auto const& com = mass.CoM();
    return {static_cast<double>(com.x), static_cast<double>(com.y), static_cast<double>(com.z)};
}

void compare(Sim::Model const& model, Sim::Kinematics const& kinematics, KdlRobot const& robot, Matrix const& couplings,
             Sim::Configuration const& configuration)
{
    KDL::JntArray const values = robot.valuesOf(configuration);
    std::vector<Sim::Link const*> const links = model.links();
    std::vector<Sim::Pose> const poses = kinematics.linkPoses(configuration);
    Allowed const allowed = {tolerance, sizeOf(poses)};
    double mass = 0.0;
    KDL::Vector moment;
    Matrix momentum = Matrix::Zero(3, couplings.cols());
    for (std::size_t link = 0; link < links.size(); ++link) {
        SCOPED_TRACE(links[link]->name());
        KDL::Frame const pose = robot.poseOf(link, values);
        KDL::Jacobian const jacobian = robot.jacobianOf(link, values);
        Sim::Frame const& frame = *links[link]->frame();
        allowed.expectPose(poses[link], pose);
        allowed.expectPose(kinematics.pose(configuration, frame), pose);
        allowed.expectJacobian(kinematics.jacobian(configuration, frame), jacobian.data * couplings);

        double const weight = static_cast<double>(links[link]->mass()->mass());
        KDL::Vector const com = comOf(*links[link]->mass());
        KDL::Jacobian atCom(jacobian.columns());
        KDL::changeRefPoint(jacobian, pose.M * com, atCom);
        mass += weight;
        moment += weight * (pose * com);
        momentum += weight * (atCom.data * couplings).topRows(3);
    }
    Sim::MassProperties const whole = kinematics.massProperties(configuration);
    EXPECT_NEAR(whole.mass, mass, tolerance * mass);
    if (mass > 0.0) {
        allowed.expectPoint(whole.centerOfMass, moment / mass);
        allowed.expectJacobian(kinematics.centerOfMassJacobian(configuration), momentum / mass);
    }
}

void compare(std::string const& file)
{
    SCOPED_TRACE(file);
    Sim::Model const model(file);
    Sim::Kinematics const kinematics(model);
    KdlRobot const robot(model);
    Matrix const couplings =
        couplingsOf(kinematics, [&](Sim::Configuration const& each) { return robot.valuesOf(each); });
    std::mt19937 generator;
    for (int i = 0; i < configurationCount && !testing::Test::HasFailure(); ++i) {
        Sim::Configuration const configuration = randomConfiguration(kinematics, generator);
        compare(model, kinematics, robot, couplings, configuration);
    }
}

TEST(ModelBesideKdl, OwnRobotsMoveAlike)
{
    for (std::string const& file : ownRobots()) {
        compare(file);
    }
}

TEST(ModelBesideKdl, RealRobotsMoveAlike)
{
    auto const files = realRobots();
    if (files.empty()) {
        GTEST_SKIP() << "There are no real robots here.";
    }
    for (std::string const& file : files) {
        compare(file);
    }
}

}  // namespace

}  // namespace KinematicsTest
