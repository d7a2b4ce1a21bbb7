// Poses, Jacobians and masses beside those that KDL computes from the same URDF text, which kdl_parser reads.
#include <map>

#include <gtest/gtest.h>
#include <kdl/tree.hpp>
#include <kdl/treefksolverpos_recursive.hpp>
#include <kdl/treejnttojacsolver.hpp>
#include <kdl_parser/kdl_parser.hpp>
#include <urdf_parser/urdf_parser.h>

#include "kdl_comparison.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

namespace KinematicsTest {

namespace {

constexpr double tolerance = 2e-6;  // of the robot's size: the model's frames are single-precision

KDL::Tree treeOf(urdf::ModelInterface const& text)
{
    KDL::Tree tree;
    EXPECT_TRUE(kdl_parser::treeFromUrdfModel(text, tree));
    return settled(tree);
}

/// A URDF text as kdl_parser reads it, with the mimics that it passes over.
class KdlText {
public:
    explicit KdlText(std::string const& file) : _text(urdf::parseURDFFile(file)), _tree(treeOf(*_text)) {}

    KDL::Tree const& tree() const { return _tree; }
    /// The root is the child of no joint.
    std::string const& root() const { return _tree.getRootSegment()->first; }
    std::string const& linkBehind(std::string const& joint) const { return _text->getJoint(joint)->child_link_name; }

    /// Where all joints stand.
    KDL::JntArray valuesOf(Sim::Configuration const& configuration) const
    {
        KDL::JntArray values(_tree.getNrOfJoints());
        for (auto const& [name, element] : _tree.getSegments()) {
            KDL::Joint const& joint = element.segment.getJoint();
            if (joint.getType() != KDL::Joint::None && name != "unused") {
                values(element.q_nr) = valueOf(joint.getName(), configuration);
            }
        }
        return values;
    }

private:
    double valueOf(std::string const& name, Sim::Configuration const& configuration) const
    {
        auto const joint = _text->getJoint(name);
        if (joint->type == urdf::Joint::FIXED) {
            return 0.0;
        }
        if (auto const mimic = joint->mimic) {
            return mimic->multiplier * valueOf(mimic->joint_name, configuration) + mimic->offset;
        }
        return configuration.at(name);
    }

    urdf::ModelInterfaceSharedPtr _text;
    KDL::Tree _tree;
};

/// A robot, asked in one configuration after the other.
class Comparison {
public:
    explicit Comparison(std::string const& file)
        : _text(file),
          _model(file),
          _kinematics(_model),
          _couplings(couplingsOf(_kinematics, [this](Sim::Configuration const& each) { return _text.valuesOf(each); })),
          _poseSolver(_text.tree()),
          _jacobianSolver(_text.tree())
    {
        for (Sim::Link const* const link : _model.links()) {
            Sim::Joint const* const joint = link->parentJoint();
            _segments.push_back(joint == nullptr ? _text.root() : _text.linkBehind(joint->name()));
        }
    }

    Sim::Kinematics const& kinematics() const { return _kinematics; }

    void expectPosesAndJacobians(Sim::Configuration const& configuration)
    {
        KDL::JntArray const values = _text.valuesOf(configuration);
        std::vector<Sim::Pose> const poses = _kinematics.linkPoses(configuration);
        Allowed const allowed = {tolerance, sizeOf(poses)};
        KDL::Jacobian ofJoints(_text.tree().getNrOfJoints());
        for (std::size_t link = 1; link < poses.size(); ++link) {
            SCOPED_TRACE(_segments[link]);
            KDL::Frame pose;
            ASSERT_EQ(_poseSolver.JntToCart(values, pose, _segments[link]), 0);
            allowed.expectPose(poses[link], pose);
            ASSERT_EQ(_jacobianSolver.JntToJac(values, ofJoints, _segments[link]), 0);
            allowed.expectJacobian(_kinematics.jacobian(configuration, *_model.links()[link]->frame()),
                                   ofJoints.data * _couplings);
        }
    }

    /// Of each link with all that it carries. KDL knows no mass of the root.
    void expectMasses(Sim::Configuration const& configuration)
    {
        KDL::JntArray const values = _text.valuesOf(configuration);
        std::vector<Sim::Link const*> const links = _model.links();
        std::vector<KDL::RigidBodyInertia> branches(links.size());
        double const size = sizeOf(_kinematics.linkPoses(configuration));
        for (std::size_t link = links.size(); link-- > 1;) {
            KDL::Frame pose;
            ASSERT_EQ(_poseSolver.JntToCart(values, pose, _segments[link]), 0);
            auto const& segment = _text.tree().getSegment(_segments[link])->second.segment;
            branches[link] = branches[link] + pose * segment.getInertia();
            std::size_t const parent = _kinematics.linkIndex(*links[link]->parentJoint()->parentLink());
            branches[parent] = branches[parent] + branches[link];
            expectMass(_kinematics.massProperties(configuration, *links[link]), branches[link], size);
        }
    }

private:
    static void expectMass(Sim::MassProperties const& actual, KDL::RigidBodyInertia expected, double size)
    {
        double const mass = expected.getMass();
        EXPECT_NEAR(actual.mass, mass, tolerance * mass);
        if (mass <= 0.0) {
            return;
        }
        KDL::Vector const com = expected.getCOG();
        KDL::RotationalInertia const inertia = expected.RefPoint(com).getRotationalInertia();
        Allowed{tolerance, size}.expectPoint(actual.centerOfMass, com);
        for (std::size_t i = 0; i < 9; ++i) {
            EXPECT_NEAR(actual.inertia[i], inertia.data[i], tolerance * size * size * mass);
        }
    }

    KdlText _text;
    Sim::Model _model;
    Sim::Kinematics _kinematics;
    Matrix _couplings;
    std::vector<std::string> _segments;  // by place of the link in the model
    KDL::TreeFkSolverPos_recursive _poseSolver;
    KDL::TreeJntToJacSolver _jacobianSolver;
};

void compare(std::string const& file)
{
    SCOPED_TRACE(file);
    ASSERT_NE(urdf::parseURDFFile(file), nullptr);
    Comparison comparison(file);
    std::mt19937 generator;
    for (int i = 0; i < configurationCount && !testing::Test::HasFailure(); ++i) {
        Sim::Configuration const configuration = randomConfiguration(comparison.kinematics(), generator);
        comparison.expectPosesAndJacobians(configuration);
        if (i % 10 == 0) {
            comparison.expectMasses(configuration);
        }
    }
}

TEST(UrdfBesideKdl, OwnFilesMoveAlike)
{
    for (std::string const name : {"tests/urdf/data/awkward_axes", "tests/urdf/data/gripper", "robots/quadruped"}) {
        compare(VARO_SOURCE_DIR "/" + name + ".urdf");
    }
}

TEST(UrdfBesideKdl, RealRobotsMoveAlike)
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
