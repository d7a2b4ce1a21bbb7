#include <algorithm>
#include <cmath>

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

void checkFile(std::string const& file)
{
    SCOPED_TRACE(file);
    ReferenceRobot const expected = computeReference(file);
    Sim::Model const model(file);
    EXPECT_EQ(model.links().size(), expected.links.size());
    for (auto const& [name, link] : expected.links) {
        SCOPED_TRACE(name);
        Sim::Link const* const found =
            link.parentJoint.empty() ? model.rootLink() : model.link(link.parentJoint + "Link");
        ASSERT_NE(found, nullptr);
        EXPECT_LE(poseError(*found, link), tolerance * expected.size);
        expectMass(*found->mass(), link);
    }
}

TEST(UrdfGeometry, OwnFilesStandWhereTheTextSays)
{
    auto const files = ownFiles();
    EXPECT_FALSE(files.empty());
    std::for_each(files.begin(), files.end(), checkFile);
}

TEST(UrdfGeometry, RealRobotsStandWhereTheTextSays)
{
    auto const files = Tests::filesIn(Tests::realRobotsFolder(), ".urdf");
    if (files.empty()) {
        GTEST_SKIP() << "There are no robots in " << Tests::realRobotsFolder();
    }
    std::for_each(files.begin(), files.end(), checkFile);
}

TEST(UrdfGeometry, JointsTurnAboutTheirZ)
{
    Sim::Model const model(dataFile("awkward_axes.urdf"));
    using Axis = Varo::Math::Position3D;
    for (auto const& [joint, axis] : {std::pair("down", Axis{0.0F, 0.0F, -1.0F}),
                                      {"skew", Axis{3.0F / 13, -4.0F / 13, 12.0F / 13}},
                                      {"slide", Axis{-1.0F, 0.0F, 0.0F}},
                                      {"default_axis", Axis{1.0F, 0.0F, 0.0F}},
                                      {"tool", Axis{0.0F, 0.0F, 1.0F}},
                                      {"afloat", Axis{0.0F, 0.0F, 1.0F}}}) {
        auto const inChild = model.link(std::string(joint) + "Link")->frame()->localPosition().inverse();
        EXPECT_NEAR(inChild(0, 2), axis.x, 1e-6F) << joint;
        EXPECT_NEAR(inChild(1, 2), axis.y, 1e-6F) << joint;
        EXPECT_NEAR(inChild(2, 2), axis.z, 1e-6F) << joint;
    }
    // Half a turn about x for an axis that points down: x stays where it was.
    EXPECT_EQ(model.link("downLink")->frame()->localPosition()(0, 0), 1.0F);
    // The shortest turn leaves what is perpendicular to z and to the axis in its place: here y.
    EXPECT_NEAR(model.link("default_axisLink")->frame()->localPosition()(1, 1), 1.0F, 1e-6F);
}

}  // namespace
