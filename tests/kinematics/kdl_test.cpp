// Poses and masses beside those that KDL computes of the model's own frames, which shows the algorithms to the last
// digits.
#include <gtest/gtest.h>
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

constexpr double doublePrecision = 1e-9;
constexpr double singlePrecision = 2e-6;

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

/// A segment for the way to each joint, and one for its motion and the way to the link. A joint more, since KDL reads a
/// value for fixed joints, too; a copy, because those number the joints anew.
KDL::Tree treeOf(Sim::Model const& model)
{
    KDL::Tree tree(model.rootLink()->name());
    Tests::Tables const tables(model.robot());
    for (Sim::Link const* const link : model.links()) {
        if (Sim::Joint const* const joint = link->parentJoint()) {
            std::string const before = "before " + link->name();
            KDL::Joint const motion(joint->name(), typeOf(joint->name(), tables.joints));
            EXPECT_TRUE(tree.addSegment(KDL::Segment(before, KDL::Joint(), frameOf(*joint->frame())),
                                        joint->parentLink()->name()));
            EXPECT_TRUE(tree.addSegment(KDL::Segment(link->name(), motion, frameOf(*link->frame())), before));
        }
    }
    tree.addSegment(KDL::Segment("unused", KDL::Joint(KDL::Joint::RotZ)), model.rootLink()->name());
    return KDL::Tree(tree);
}

KDL::JntArray valuesOf(KDL::Tree const& tree, Sim::Configuration const& configuration)
{
    KDL::JntArray values(tree.getNrOfJoints());
    for (auto const& [name, element] : tree.getSegments()) {
        KDL::Joint const& joint = element.segment.getJoint();
        if (joint.getType() != KDL::Joint::None && name != "unused") {
            values(element.q_nr) = configuration.at(joint.getName());
        }
    }
    return values;
}

void expectPose(Sim::Pose const& actual, KDL::Frame const& expected, double size)
{
    KDL::Frame const frame = frameOf(actual);
    EXPECT_TRUE(KDL::Equal(frame.M, expected.M, doublePrecision));
    EXPECT_LE((frame.p - expected.p).Norm(), doublePrecision * size);
}

/// Less exact: KDL turns inertias by rotations that single precision has rounded as if it had not.
void expectMass(Sim::MassProperties const& actual, KDL::RigidBodyInertia expected, double size)
{
    double const mass = expected.getMass();
    EXPECT_NEAR(actual.mass, mass, singlePrecision * mass);
    if (mass <= 0.0) {
        return;
    }
    KDL::Vector const com = expected.getCOG();
    KDL::RotationalInertia const inertia = expected.RefPoint(com).getRotationalInertia();
    auto const& [x, y, z] = actual.centerOfMass;
    EXPECT_LE((KDL::Vector(x, y, z) - com).Norm(), singlePrecision * size);
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_NEAR(actual.inertia[i], inertia.data[i], singlePrecision * size * size * mass);
    }
}

void expectSame(Sim::Model const& model, Sim::Kinematics const& kinematics, KDL::Tree const& tree,
                Sim::Configuration const& configuration)
{
    KDL::TreeFkSolverPos_recursive solver(tree);
    KDL::JntArray const values = valuesOf(tree, configuration);
    std::vector<Sim::Link const*> const links = model.links();
    std::vector<Sim::Pose> const poses = kinematics.linkPoses(configuration);
    double const size = sizeOf(poses);
    // KDL knows no mass of the root, so that the model's stands in for it.
    std::vector<KDL::RigidBodyInertia> branches(links.size());
    branches[0] = inertiaOf(*links[0]->mass());
    for (std::size_t link = links.size(); link-- > 1;) {
        SCOPED_TRACE(links[link]->name());
        KDL::Frame pose;
        ASSERT_EQ(solver.JntToCart(values, pose, links[link]->name()), 0);
        expectPose(poses[link], pose, size);
        expectPose(kinematics.pose(configuration, *links[link]->frame()), pose, size);
        branches[link] = branches[link] + pose * inertiaOf(*links[link]->mass());
        std::size_t const parent = kinematics.linkIndex(*links[link]->parentJoint()->parentLink());
        branches[parent] = branches[parent] + branches[link];
        expectMass(kinematics.massProperties(configuration, *links[link]), branches[link], size);
    }
    expectMass(kinematics.massProperties(configuration), branches[0], size);
}

TEST(ModelBesideKdl, MovesAlike)
{
    std::vector<std::string> files = ownRobots();
    for (std::string const& file : Tests::filesIn(Tests::realRobotsFolder(), ".urdf")) {
        files.push_back(file);
    }
    for (std::string const& file : files) {
        SCOPED_TRACE(file);
        Sim::Model const model(file);
        Sim::Kinematics const kinematics(model);
        KDL::Tree const tree = treeOf(model);
        std::mt19937 generator;
        for (int i = 0; i < 30 && !testing::Test::HasFailure(); ++i) {
            expectSame(model, kinematics, tree, randomConfiguration(kinematics, generator));
        }
    }
}

}  // namespace

}  // namespace KinematicsTest
