// Poses, Jacobians and masses beside those that KDL computes: for every robot from the model's own frames, which shows
// the algorithms to the last digits, and for URDF from the text as kdl_parser reads it, which shows the reader as well.
#include <functional>

#include <gtest/gtest.h>
#include <kdl/chainjnttojacsolver.hpp>
#include <kdl/tree.hpp>
#include <kdl/treefksolverpos_recursive.hpp>
#include <kdl_parser/kdl_parser.hpp>
#include <urdf_parser/urdf_parser.h>

#include "configurations.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/model.hpp"
#include "tables.hpp"

namespace KinematicsTest {

namespace {

using Matrix = Eigen::MatrixXd;

constexpr double singlePrecision = 2e-6;

/// A tree that its own solvers number the joints of as it does, since copies number them anew, and that has a joint at
/// least, since KDL reads a value for fixed joints, too.
KDL::Tree settled(KDL::Tree tree)
{
    tree.addSegment(KDL::Segment("unused", KDL::Joint(KDL::Joint::RotZ)), tree.getRootSegment()->first);
    return KDL::Tree(tree);
}

/// A robot in KDL.
struct KdlRobot {
    /// Where the joint of KDL stands.
    using ValueOf = std::function<double(std::string const& joint, Sim::Configuration const& configuration)>;

    KDL::JntArray valuesOf(Sim::Configuration const& configuration) const
    {
        KDL::JntArray values(tree.getNrOfJoints());
        for (auto const& [name, element] : tree.getSegments()) {
            KDL::Joint const& joint = element.segment.getJoint();
            if (joint.getType() != KDL::Joint::None && name != "unused") {
                values(element.q_nr) = valueOf(joint.getName(), configuration);
            }
        }
        return values;
    }

    /// Of a segment, with a column for each joint of the tree. KDL's solver for trees is less precise.
    KDL::Jacobian jacobianOf(std::string const& segment, KDL::JntArray const& values) const
    {
        KDL::Chain chain;
        EXPECT_TRUE(tree.getChain(tree.getRootSegment()->first, segment, chain));
        std::vector<unsigned> joints;
        for (KDL::Segment const& each : chain.segments) {
            if (each.getJoint().getType() != KDL::Joint::None) {
                joints.push_back(tree.getSegment(each.getName())->second.q_nr);
            }
        }
        KDL::JntArray ofChain(static_cast<unsigned>(joints.size()));
        for (unsigned i = 0; i < joints.size(); ++i) {
            ofChain(i) = values(joints[i]);
        }
        KDL::Jacobian some(ofChain.rows());
        EXPECT_EQ(KDL::ChainJntToJacSolver(chain).JntToJac(ofChain, some), 0);
        KDL::Jacobian all(tree.getNrOfJoints());
        for (unsigned i = 0; i < joints.size(); ++i) {
            all.setColumn(joints[i], some.getColumn(i));
        }
        return all;
    }

    /// How fast the joints move when a variable does: a column for each variable.
    Matrix couplings(Sim::Kinematics const& kinematics) const
    {
        Sim::Configuration const zero(kinematics);
        KDL::JntArray const still = valuesOf(zero);
        Matrix columns(still.rows(), static_cast<Eigen::Index>(zero.size()));
        for (std::size_t i = 0; i < zero.size(); ++i) {
            Sim::Configuration moved = zero;
            moved.set(i, 1.0);
            columns.col(static_cast<Eigen::Index>(i)) = valuesOf(moved).data - still.data;
        }
        return columns;
    }

    KDL::Tree tree;
    std::vector<std::string> segments;  ///< by place of the link in the model
    ValueOf valueOf;
    double tolerance;  ///< of the robot's size
};

KDL::Frame frameOf(Sim::Pose const& pose)
{
    KDL::Frame result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            result.M(row, column) = pose(row, column);
        }
        result.p(row) = pose(row, 3);
    }
    return result;
}

KDL::Frame frameOf(Sim::Frame const& frame)
{
    return frameOf(Sim::Pose::fromTransform(frame.localPosition()));
}

KDL::RigidBodyInertia inertiaOf(Sim::MassData const& mass)
{
    std::vector<double> const i(mass.inertiaMatrix().begin(), mass.inertiaMatrix().end());
    std::vector<double> const com = {mass.CoM().x, mass.CoM().y, mass.CoM().z};
    return KDL::RigidBodyInertia(mass.mass(), {com[0], com[1], com[2]},
                                 KDL::RotationalInertia(i[0], i[4], i[8], i[1], i[2], i[5]));
}

KDL::Joint::JointType typeOf(std::string const& joint, Varo::Model::JointTable const& records)
{
    auto const record = records.find(joint);
    if (record == records.end()) {  // a sub-joint or a wheel
        return KDL::Joint::RotZ;
    }
    switch (record->second.jointType) {
    case Varo::Model::continuous:
    case Varo::Model::revolute: return KDL::Joint::RotZ;
    case Varo::Model::prismatic: return KDL::Joint::TransZ;
    default: return KDL::Joint::None;
    }
}

/// Of a model's own frames: a segment for the way to each joint, and one for its motion and the way to the link.
KdlRobot robotOf(Sim::Model const& model)
{
    KDL::Tree tree(model.rootLink()->name());
    Tests::Tables const tables(model.robot());
    std::vector<std::string> segments;
    for (Sim::Link const* const link : model.links()) {
        segments.push_back(link->name());
        if (Sim::Joint const* const joint = link->parentJoint()) {
            std::string const before = "before " + link->name();
            KDL::Joint const motion(joint->name(), typeOf(joint->name(), tables.joints));
            EXPECT_TRUE(tree.addSegment(KDL::Segment(before, KDL::Joint(), frameOf(*joint->frame())),
                                        joint->parentLink()->name()));
            EXPECT_TRUE(tree.addSegment(
                KDL::Segment(link->name(), motion, frameOf(*link->frame()), inertiaOf(*link->mass())), before));
        }
    }
    return {settled(tree), segments,
            [](auto const& joint, auto const& configuration) { return configuration.at(joint); }, 1e-9};
}

/// As kdl_parser reads the file, with the mimics that it passes over.
KdlRobot robotOf(Sim::Model const& model, std::string const& file)
{
    urdf::ModelInterfaceSharedPtr const text = urdf::parseURDFFile(file);
    KDL::Tree tree;
    EXPECT_TRUE(text != nullptr && kdl_parser::treeFromUrdfModel(*text, tree));
    std::vector<std::string> segments;
    for (Sim::Link const* const link : model.links()) {
        Sim::Joint const* const joint = link->parentJoint();
        segments.push_back(joint == nullptr ? tree.getRootSegment()->first
                                            : text->getJoint(joint->name())->child_link_name);
    }
    auto const valueOf = [text](std::string name, Sim::Configuration const& configuration) {
        double ratio = 1.0;
        double offset = 0.0;
        while (auto const mimic = text->getJoint(name)->mimic) {
            offset += ratio * mimic->offset;
            ratio *= mimic->multiplier;
            name = mimic->joint_name;
        }
        return offset + ratio * configuration.at(name);
    };
    return {settled(tree), segments, valueOf, singlePrecision};
}

/// A model beside its like in KDL, in one configuration after the other.
class Comparison {
public:
    Comparison(Sim::Model const& model, Sim::Kinematics const& kinematics, KdlRobot const& robot)
        : _model(model),
          _kinematics(kinematics),
          _robot(robot),
          _couplings(robot.couplings(kinematics)),
          _poseSolver(robot.tree)
    {}

    void expectSame(Sim::Configuration const& configuration)
    {
        KDL::JntArray const values = _robot.valuesOf(configuration);
        std::vector<Sim::Link const*> const links = _model.links();
        std::vector<Sim::Pose> const poses = _kinematics.linkPoses(configuration);
        _size = sizeOf(poses);
        // KDL knows no mass of the root, so that the model's stands in for it.
        std::vector<KDL::RigidBodyInertia> branches(links.size());
        branches[0] = inertiaOf(*links[0]->mass());
        Matrix momentum = Matrix::Zero(3, _couplings.cols());
        for (std::size_t link = links.size(); link-- > 1;) {
            SCOPED_TRACE(_robot.segments[link]);
            Sim::Frame const& frame = *links[link]->frame();
            KDL::Frame pose;
            ASSERT_EQ(_poseSolver.JntToCart(values, pose, _robot.segments[link]), 0);
            expectPose(poses[link], pose);
            expectPose(_kinematics.pose(configuration, frame), pose);
            KDL::Jacobian columns = _robot.jacobianOf(_robot.segments[link], values);
            expectJacobian(_kinematics.jacobian(configuration, frame), columns.data * _couplings);

            KDL::RigidBodyInertia const body =
                _robot.tree.getSegment(_robot.segments[link])->second.segment.getInertia();
            columns.changeRefPoint(pose.M * body.getCOG());
            momentum += body.getMass() * (columns.data * _couplings).topRows(3);
            branches[link] = branches[link] + pose * body;
            std::size_t const parent = _kinematics.linkIndex(*links[link]->parentJoint()->parentLink());
            branches[parent] = branches[parent] + branches[link];
            expectMass(_kinematics.massProperties(configuration, *links[link]), branches[link]);
        }
        expectMass(_kinematics.massProperties(configuration), branches[0]);
        if (double const mass = branches[0].getMass(); mass > 0.0) {
            expectJacobian(_kinematics.centerOfMassJacobian(configuration), momentum / mass);
        }
    }

private:
    void expectPose(Sim::Pose const& actual, KDL::Frame const& expected) const
    {
        KDL::Frame const frame = frameOf(actual);
        EXPECT_TRUE(KDL::Equal(frame.M, expected.M, _robot.tolerance));
        EXPECT_LE((frame.p - expected.p).Norm(), _robot.tolerance * _size);
    }

    /// Of six rows or, linear ones only, of three.
    void expectJacobian(std::vector<double> const& entries, Matrix const& expected) const
    {
        Eigen::Map<Matrix const> const actual(entries.data(), expected.rows(), expected.cols());
        Matrix const difference = actual - expected;
        EXPECT_LE(difference.topRows(3).lpNorm<Eigen::Infinity>(), _robot.tolerance * _size);
        EXPECT_LE(difference.bottomRows(expected.rows() - 3).lpNorm<Eigen::Infinity>(), _robot.tolerance);
    }

    /// Less exact: KDL turns inertias by rotations that single precision has rounded as if it had not.
    void expectMass(Sim::MassProperties const& actual, KDL::RigidBodyInertia expected) const
    {
        double const mass = expected.getMass();
        EXPECT_NEAR(actual.mass, mass, singlePrecision * mass);
        if (mass <= 0.0) {
            return;
        }
        KDL::Vector const com = expected.getCOG();
        KDL::RotationalInertia const inertia = expected.RefPoint(com).getRotationalInertia();
        auto const& [x, y, z] = actual.centerOfMass;
        EXPECT_LE((KDL::Vector(x, y, z) - com).Norm(), singlePrecision * _size);
        for (std::size_t i = 0; i < 9; ++i) {
            EXPECT_NEAR(actual.inertia[i], inertia.data[i], singlePrecision * _size * _size * mass);
        }
    }

    Sim::Model const& _model;
    Sim::Kinematics const& _kinematics;
    KdlRobot const& _robot;
    Matrix _couplings;
    double _size = 0.0;
    KDL::TreeFkSolverPos_recursive _poseSolver;
};

void compare(std::vector<std::string> const& files, bool isText)
{
    if (files.empty()) {
        GTEST_SKIP() << "There are no real robots here.";
    }
    for (std::string const& file : files) {
        SCOPED_TRACE(file);
        Sim::Model const model(file);
        Sim::Kinematics const kinematics(model);
        KdlRobot const robot = isText ? robotOf(model, file) : robotOf(model);
        Comparison comparison(model, kinematics, robot);
        std::mt19937 generator;
        for (int i = 0; i < 30 && !testing::Test::HasFailure(); ++i) {
            comparison.expectSame(randomConfiguration(kinematics, generator));
        }
    }
}

TEST(ModelBesideKdl, OwnRobotsMoveAlike)
{
    compare(ownRobots(), false);
}

TEST(ModelBesideKdl, RealRobotsMoveAlike)
{
    compare(Tests::filesIn(Tests::realRobotsFolder(), ".urdf"), false);
}

TEST(UrdfBesideKdl, OwnFilesMoveAlike)
{
    std::string const folder = VARO_SOURCE_DIR "/tests/urdf/data/";
    compare({folder + "awkward_axes.urdf", folder + "gripper.urdf", VARO_SOURCE_DIR "/robots/quadruped.urdf"}, true);
}

TEST(UrdfBesideKdl, RealRobotsMoveAlike)
{
    compare(Tests::filesIn(Tests::realRobotsFolder(), ".urdf"), true);
}

}  // namespace

}  // namespace KinematicsTest
