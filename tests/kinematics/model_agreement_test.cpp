// Poses, centres of mass and Jacobians beside those that KDL computes from a model's own frames.
#include <map>
#include <memory>

#include <gtest/gtest.h>
#include <kdl/chainjnttojacsolver.hpp>
#include <kdl/tree.hpp>
#include <kdl/treefksolverpos_recursive.hpp>

#include "configurations.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/model.hpp"
#include "tables.hpp"

namespace KinematicsTest {

namespace {

constexpr int configurationCount = 100;
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
        // KDL reads a value for fixed joints, too.
        tree.addSegment(KDL::Segment("unused", KDL::Joint(KDL::Joint::RotZ)), "root");
        _tree = tree;  // copies number the joints anew, those in solvers too
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

using Matrix = Eigen::MatrixXd;

/// How fast each joint of KDL's tree moves when a variable does: a column for each variable.
Matrix couplingsOf(Sim::Kinematics const& kinematics, KdlRobot const& robot)
{
    Sim::Configuration const zero(kinematics);
    KDL::JntArray const still = robot.valuesOf(zero);
    Matrix couplings(still.rows(), static_cast<Eigen::Index>(zero.size()));
    for (std::size_t i = 0; i < zero.size(); ++i) {
        Sim::Configuration moved = zero;
        moved.set(i, 1.0);
        couplings.col(static_cast<Eigen::Index>(i)) = robot.valuesOf(moved).data - still.data;
    }
    return couplings;
}

void expectPose(Sim::Pose const& actual, KDL::Frame const& expected, double size)
{
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            EXPECT_NEAR(actual(row, column), expected.M(row, column), tolerance);
        }
        EXPECT_NEAR(actual(row, 3), expected.p(row), tolerance * size);
    }
}

/// One robot in one configuration.
class Comparison {
public:
    Comparison(Sim::Model const& model, Sim::Kinematics const& kinematics, KdlRobot const& robot,
               Matrix const& couplings, Sim::Configuration const& configuration)
        : _links(model.links()),
          _kinematics(kinematics),
          _robot(robot),
          _couplings(couplings),
          _configuration(configuration),
          _values(robot.valuesOf(configuration)),
          _poses(kinematics.linkPoses(configuration)),
          _size(sizeOf(_poses))
    {}

    void run() const
    {
        KDL::Vector moment;
        double mass = 0.0;
        Matrix momentum = Matrix::Zero(3, _couplings.cols());
        for (std::size_t link = 0; link < _links.size(); ++link) {
            SCOPED_TRACE(_links[link]->name());
            KDL::Frame const pose = _robot.poseOf(link, _values);
            KDL::Jacobian const jacobian = _robot.jacobianOf(link, _values);
            expectPose(_poses[link], pose, _size);
            expectPose(_kinematics.pose(_configuration, *_links[link]->frame()), pose, _size);
            expectJacobian(*_links[link]->frame(), jacobian);
            Sim::MassData const& data = *_links[link]->mass();
            double const weight = static_cast<double>(data.mass());
            KDL::Vector const com = comOf(data);
            KDL::Jacobian atCom(jacobian.columns());
            KDL::changeRefPoint(jacobian, pose.M * com, atCom);
            mass += weight;
            moment += weight * (pose * com);
            momentum += weight * (atCom.data * _couplings).topRows(3);
        }
        expectCenterOfMass(mass, moment, momentum);
    }

private:
    static KDL::Vector comOf(Sim::MassData const& data)
    {
        auto const& com = data.CoM();
        return {static_cast<double>(com.x), static_cast<double>(com.y), static_cast<double>(com.z)};
    }

    void expectJacobian(Sim::Frame const& frame, KDL::Jacobian const& ofJoints) const
    {
        Matrix const expected = ofJoints.data * _couplings;
        std::vector<double> const entries = _kinematics.jacobian(_configuration, frame);
        Eigen::Map<Matrix const> const actual(entries.data(), 6, expected.cols());
        EXPECT_LE((actual - expected).topRows(3).lpNorm<Eigen::Infinity>(), tolerance * _size);
        EXPECT_LE((actual - expected).bottomRows(3).lpNorm<Eigen::Infinity>(), tolerance);
    }

    void expectCenterOfMass(double mass, KDL::Vector const& moment, Matrix const& momentum) const
    {
        Sim::MassProperties const actual = _kinematics.massProperties(_configuration);
        EXPECT_NEAR(actual.mass, mass, tolerance * mass);
        if (mass == 0.0) {
            return;
        }
        for (int row = 0; row < 3; ++row) {
            EXPECT_NEAR(actual.centerOfMass[static_cast<std::size_t>(row)], moment(row) / mass, tolerance * _size);
        }
        std::vector<double> const entries = _kinematics.centerOfMassJacobian(_configuration);
        Eigen::Map<Matrix const> const jacobian(entries.data(), 3, momentum.cols());
        EXPECT_LE((jacobian - momentum / mass).lpNorm<Eigen::Infinity>(), tolerance * _size);
    }

    std::vector<Sim::Link const*> _links;
    Sim::Kinematics const& _kinematics;
    KdlRobot const& _robot;
    Matrix const& _couplings;
    Sim::Configuration const& _configuration;
    KDL::JntArray _values;
    std::vector<Sim::Pose> _poses;
    double _size;
};

void compare(std::string const& file)
{
    SCOPED_TRACE(file);
    Sim::Model const model(file);
    Sim::Kinematics const kinematics(model);
    KdlRobot const robot(model);
    Matrix const couplings = couplingsOf(kinematics, robot);
    std::mt19937 generator;
    for (int i = 0; i < configurationCount && !testing::Test::HasFailure(); ++i) {
        Sim::Configuration const configuration = randomConfiguration(kinematics, generator);
        Comparison(model, kinematics, robot, couplings, configuration).run();
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
