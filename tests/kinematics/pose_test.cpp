#include <cmath>

#include <gmock/gmock.h>

#include "configurations.hpp"
#include "descriptions.hpp"
#include "sim/eigen.hpp"
#include "throws.hpp"

namespace KinematicsTest {

namespace {

using Tests::messageOf;

constexpr double tolerance = 1e-6;
constexpr double quarterTurn = 1.5707963267948966;

std::string example(std::string const& name)
{
    return VARO_SOURCE_DIR "/robots/" + name + ".xml";
}

void expectVector(Sim::Vector3 const& actual, Sim::Vector3 const& expected)
{
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "xyz"[i];
    }
}

void expectPose(Sim::Pose const& actual, Sim::Pose const& expected, double allowed = tolerance)
{
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_NEAR(actual.rows[i], expected.rows[i], allowed) << "entry " << i;
    }
}

/// A robot to ask by names.
struct Asked {
    explicit Asked(std::string const& pathOrXml) : model(pathOrXml), kinematics(model), configuration(kinematics) {}

    Sim::Pose pose(std::string const& frame) const { return kinematics.pose(configuration, kinematics.frame(frame)); }
    Sim::Pose pose(std::string const& frame, std::string const& relativeTo) const
    {
        return kinematics.pose(configuration, kinematics.frame(frame), kinematics.frame(relativeTo));
    }

    Sim::Model model;
    Sim::Kinematics kinematics;
    Sim::Configuration configuration;
};

TEST(Poses, FingersFlexByTheRatiosAndOffsetsOfTheirHand)
{
    Asked robot(example("humanoid"));
    robot.configuration.set("LHand", 0.8);
    double const fore1 = 0.8;
    double const fore2 = 0.86 * 0.8;
    // Two phalanges of 34 and 24 mm, in the plane of the finger.
    double const x = 0.034 * std::cos(fore1) + 0.024 * std::cos(fore1 + fore2);
    double const y = 0.034 * std::sin(fore1) + 0.024 * std::sin(fore1 + fore2);
    expectVector(robot.pose("LFore3", "LFore1").position(), {x, y, 0});
    double const thumb1 = 0.9 * 0.8 + 0.1;
    expectVector(robot.pose("LThumb2", "LThumb1").position(), {0.03 * std::cos(thumb1), 0.03 * std::sin(thumb1), 0});
    // The other hand stands where its actuator at 0 holds it.
    expectVector(robot.pose("RFore3", "RFore1").position(), {0.058, 0, 0});
    expectVector(robot.pose("RThumb2", "RThumb1").position(), {0.03 * std::cos(0.1), 0.03 * std::sin(0.1), 0});
}

TEST(Poses, FramesMoveWithTheLinkThatTheyBelongTo)
{
    Asked robot(example("helvo_arm"));
    auto const frameOf = [&](auto const* element) {
        return robot.kinematics.pose(robot.configuration, *element->frame());
    };
    auto const joint = robot.pose("WristTurn");
    robot.configuration.set("WristTurn", quarterTurn);
    expectPose(robot.pose("WristTurn"), joint);  // a joint's frame belongs to the link before it
    // The motor of a joint turns with the link behind it, and so does the actuator that is posed in the joint's frame.
    expectVector(frameOf(robot.model.actuator("WristTurn")).axis(0), joint.axis(1));
    Sim::Pose const gripper = Sim::Pose::fromTransform(robot.model.actuator("Gripper")->frame()->localPosition());
    Sim::Pose quarter;
    quarter.rows = {0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0};
    expectPose(frameOf(robot.model.actuator("Gripper")), joint * quarter * gripper);
}

TEST(Poses, AtZeroAreThoseOfTheModel)
{
    for (std::string const name : {"minimal", "rover", "helvo_arm"}) {  // without offsets
        Asked const robot(example(name));
        forEachFrame(robot.model, [&](Sim::Frame const& frame) {
            expectPose(robot.kinematics.pose(robot.configuration, frame),
                       Sim::Pose::fromTransform(Sim::Frame::globalPosition(&frame)));
        });
    }
}

TEST(Poses, MayBeRelativeToAnyFrame)
{
    std::mt19937 generator;
    for (std::string const& file : ownRobots()) {
        SCOPED_TRACE(file);
        Sim::Model const model(file);
        Sim::Kinematics const kinematics(model);
        auto const configuration = randomConfiguration(kinematics, generator);
        Sim::Frame const& other = *model.links()[model.links().size() / 2]->frame();
        forEachFrame(model, [&](Sim::Frame const& frame) {
            expectPose(kinematics.pose(configuration, other) * kinematics.pose(configuration, frame, other),
                       kinematics.pose(configuration, frame), 1e-13);
        });
    }
}

TEST(Poses, DeepRobotsNeedNoStack)
{
    constexpr int depth = 20000;
    constexpr double distance = 0.0009765625;
    std::string joints;
    std::vector<std::string> names;
    for (int i = 0; i < depth; ++i) {
        names.push_back("J" + std::to_string(i));
        joints += Tests::joint(names.back(), "<placement xyz=\"0.0009765625 0 0\"/>");
    }
    Asked robot(Tests::robot(joints + Tests::chain("Snake", "Base", names)));
    robot.configuration.set("J0", quarterTurn);
    Sim::Vector3 const end = {distance, distance * (depth - 1), 0};
    expectVector(robot.kinematics.linkPoses(robot.configuration).back().position(), end);
    expectVector(robot.pose(names.back()).position(), end);
}

TEST(Poses, OfAnythingElseAreRefused)
{
    Asked const robot(example("minimal"));
    Asked const same(example("minimal"));
    auto const refusal = [](auto const& action) { return messageOf<std::invalid_argument>(action); };
    EXPECT_EQ(refusal([&] { robot.kinematics.linkPoses(same.configuration); }),
              "The configuration was made for another Kinematics.");
    EXPECT_EQ(refusal([&] { robot.kinematics.pose(robot.configuration, *same.model.rootLink()->frame()); }),
              "The frame \"BaseLink\" belongs to another model.");
    EXPECT_EQ(refusal([&] { robot.kinematics.massProperties(robot.configuration, *same.model.rootLink()); }),
              "The link \"BaseLink\" belongs to another model.");
    EXPECT_EQ(refusal([&] { robot.kinematics.frame("NodLnik"); }),
              "There is no link, joint, sensor or actuator \"NodLnik\". Did you mean \"NodLink\"?");
    Sim::Pose pose;
    EXPECT_EQ(refusal([&] { robot.kinematics.linkPoses(robot.configuration, &pose, 1); }),
              "There must be 3 poses, not 1.");
    EXPECT_EQ(
        refusal([&] { robot.kinematics.jacobian(robot.configuration, robot.kinematics.frame("Nod"), nullptr, 0); }),
        "There must be 12 entries, not 0.");
}

TEST(Poses, LinksOfAUrdfAreFoundByTheirNamesThere)
{
    Asked const robot(VARO_SOURCE_DIR "/tests/urdf/data/gripper.urdf");
    EXPECT_EQ(&robot.kinematics.frame("finger"), robot.model.link("knuckleLink")->frame());
    EXPECT_EQ(&robot.kinematics.frame("knuckle"), robot.model.joint("knuckle")->frame());
    EXPECT_EQ(&robot.kinematics.frame("thumb"), robot.model.link("thumbLink")->frame());  // links come first
}

TEST(Poses, StayWhenTheModelIsMovedAndCopiesAreMade)
{
    Sim::Model model(example("minimal"));
    Sim::Kinematics const kinematics(model);
    Sim::Kinematics const copy = kinematics;  // NOLINT(performance-unnecessary-copy-initialization)
    Sim::Configuration configuration(copy, "StandInit");
    Sim::Model const owner = std::move(model);
    auto const pose = kinematics.pose(configuration, kinematics.frame("NodLink"));
    expectVector(pose.axis(0), {std::cos(0.1), 0, -std::sin(0.1)});
    Sim::Configuration const moved = std::move(configuration);  // NOLINT(performance-move-const-arg)
    EXPECT_EQ(configuration.at("Nod"), moved.at("Nod"));  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(Poses, BecomeTransformsAndEigensOwn)
{
    auto const transform =
        Varo::Math::Transform::fromPosition(1, -2, 3) * Varo::Math::Transform::fromRpy(0.3F, -0.7F, 2);
    Sim::Pose const pose = Sim::Pose::fromTransform(transform);
    EXPECT_EQ(pose.toTransform(), transform);
    EXPECT_EQ(Sim::poseFromEigen(Sim::toEigen(pose)), pose);
    EXPECT_TRUE((Sim::toEigen(pose) * Sim::toEigen(pose)).isApprox(Sim::toEigen(pose * pose), 1e-12));
    EXPECT_TRUE((Sim::toEigen(pose) * Eigen::Vector3d(4, 5, 6)).isApprox(Sim::toEigen(pose * Sim::Vector3{4, 5, 6})));
    expectPose(pose * pose.inverse(), Sim::Pose(), 1e-14);
}

}  // namespace

}  // namespace KinematicsTest
