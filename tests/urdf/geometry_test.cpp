#include <algorithm>
#include <cmath>
#include <iostream>

#include <gtest/gtest.h>

#include "reference_kinematics.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/model.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

constexpr double tolerance = 1e-5;  // of an entry, per metre of robot

double poseError(Sim::Link const& link, ReferenceLink const& expected)
{
    auto const pose = Sim::Frame::globalPosition(link.frame()).toMatrix();
    double error = 0.0;
    for (std::size_t i = 0; i < pose.size(); ++i) {
        error = std::max(error, std::abs(static_cast<double>(pose[i]) - expected.pose[i]));
    }
    return error;
}

void expectMass(Sim::MassData const& mass, ReferenceLink const& expected)
{
    auto const expectNear = [](float actual, double value) {
        EXPECT_NEAR(actual, value, 1e-6 * std::max(1.0, std::abs(value)));
    };
    expectNear(mass.mass(), expected.mass);
    expectNear(mass.CoM().x, expected.centerOfMass[0]);
    expectNear(mass.CoM().y, expected.centerOfMass[1]);
    expectNear(mass.CoM().z, expected.centerOfMass[2]);
    ASSERT_EQ(mass.inertiaMatrix().size(), 9U);
    for (std::size_t i = 0; i < 9; ++i) {
        expectNear(mass.inertiaMatrix()[i], expected.inertia[i]);
    }
}

/// The largest error of an entry, in units of the robot's size.
double checkFile(std::string const& file)
{
    SCOPED_TRACE(file);
    ReferenceRobot const expected = computeReference(file);
    Sim::Model const model(file);
    EXPECT_EQ(model.links().size(), expected.links.size());
    double largest = 0.0;
    for (auto const& [name, link] : expected.links) {
        SCOPED_TRACE(name);
        Sim::Link const* const found =
            link.parentJoint.empty() ? model.rootLink() : model.link(link.parentJoint + "Link");
        if (found == nullptr) {
            ADD_FAILURE() << "There is no such link.";
            continue;
        }
        double const error = poseError(*found, link);
        EXPECT_LE(error, tolerance * expected.size);
        largest = std::max(largest, error / std::max(expected.size, 1e-9));
        expectMass(*found->mass(), link);
    }
    return largest;
}

void checkFolder(std::string const& folder)
{
    std::vector<std::string> const files = Tests::filesIn(folder, ".urdf");
    EXPECT_FALSE(files.empty());
    double largest = 0.0;
    std::string worst;
    for (std::string const& file : files) {
        double const error = checkFile(file);
        if (error >= largest) {
            largest = error;
            worst = file;
        }
    }
    std::cout << files.size() << " files of " << folder << ": the largest error is " << largest
              << " per metre of robot, in " << worst << '\n';
}

TEST(UrdfGeometry, OwnFilesStandWhereTheTextSays)
{
    checkFolder(ownFolder());
}

TEST(UrdfGeometry, RealRobotsStandWhereTheTextSays)
{
    if (Tests::filesIn(realRobotsFolder(), ".urdf").empty()) {
        GTEST_SKIP() << "There are no robots in " << realRobotsFolder();
    }
    checkFolder(realRobotsFolder());
}

TEST(UrdfGeometry, JointsTurnAboutTheirZ)
{
    Sim::Model const model(dataFile("awkward_axes.urdf"));
    auto const zOf = [&](char const* joint) {
        auto const inChild = model.link(std::string(joint) + "Link")->frame()->localPosition().inverse();
        return Varo::Math::Position3D{inChild(0, 2), inChild(1, 2), inChild(2, 2)};
    };
    struct Case {
        char const* joint;
        Varo::Math::Position3D axis;
    };
    for (Case const& c : {Case{"down", {0.0F, 0.0F, -1.0F}}, Case{"skew", {3.0F / 13, -4.0F / 13, 12.0F / 13}},
                          Case{"slide", {-1.0F, 0.0F, 0.0F}}, Case{"default_axis", {1.0F, 0.0F, 0.0F}},
                          Case{"tool", {0.0F, 0.0F, 1.0F}}, Case{"afloat", {0.0F, 0.0F, 1.0F}}}) {
        SCOPED_TRACE(c.joint);
        EXPECT_NEAR(zOf(c.joint).x, c.axis.x, 1e-6F);
        EXPECT_NEAR(zOf(c.joint).y, c.axis.y, 1e-6F);
        EXPECT_NEAR(zOf(c.joint).z, c.axis.z, 1e-6F);
    }
    // Half a turn about x for an axis that points down: x stays where it was.
    EXPECT_EQ(model.link("downLink")->frame()->localPosition()(0, 0), 1.0F);
    // The shortest turn leaves what is perpendicular to z and to the axis in its place: here y.
    EXPECT_NEAR(model.link("default_axisLink")->frame()->localPosition()(1, 1), 1.0F, 1e-6F);
}

}  // namespace
