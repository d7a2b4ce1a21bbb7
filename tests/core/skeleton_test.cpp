#include <cmath>

#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/model.hpp"
#include "throws.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::HasSubstr;
using Varo::Math::Transform;

std::string placement(std::string const& xyz, std::string const& rpy = "0 0 0")
{
    return "<placement xyz=\"" + xyz + "\" rpy=\"" + rpy + "\"/>";
}

Transform globalOf(Sim::Model const& model, std::string const& link)
{
    return Sim::Frame::globalPosition(model.link(link)->frame());
}

}  // namespace

TEST(Skeleton, OfABareRootIsOneLink)
{
    Sim::ModelImpl const model(robot(""));
    EXPECT_EQ(model.frames().size(), 1U);
    EXPECT_EQ(model.links().size(), 1U);
    EXPECT_TRUE(model.joints().empty());
    EXPECT_EQ(model.rootLink()->parentJoint(), nullptr);
    EXPECT_EQ(model.rootLink()->frame()->parentFrame(), nullptr);
}

TEST(Skeleton, IsBuiltDepthFirstInTheDescriptionsOrder)
{
    Sim::Model const model(robot(joint("A1") + joint("A2") + joint("B1") + joint("C1") +
                                 chain("A", "Base", {"A1", "A2"}) + chain("C", "A1", {"C1"}) +
                                 chain("B", "Base", {"B1"})));
    EXPECT_THAT(namesOf(model.joints()), ElementsAre("A1", "A2", "C1", "B1"));
    EXPECT_THAT(namesOf(model.links()), ElementsAre("BaseLink", "A1Link", "A2Link", "C1Link", "B1Link"));
    EXPECT_THAT(namesOf(model.link("A1Link")->childrenJoints()), ElementsAre("A2", "C1"));
    EXPECT_EQ(model.joint("C1")->parentLink(), model.link("A1Link"));
    EXPECT_EQ(model.joint("C1")->childLink()->parentJoint(), model.joint("C1"));
}

TEST(Skeleton, RegistersThreeFramesAJointTheSecondUnconnected)
{
    Sim::ModelImpl const model(
        robot(joint("J", placement("1 0 0") + "<end xyz='0 2 0'/>") + chain("C", "Base", {"J"})));
    auto const frames = model.frames();
    ASSERT_GE(frames.size(), 4U);
    EXPECT_EQ(frames[1]->name(), "J");
    EXPECT_EQ(frames[1]->parentFrame(), frames[0].get());
    EXPECT_EQ(frames[2]->name(), "J");
    EXPECT_EQ(frames[2]->parentFrame(), nullptr);
    EXPECT_EQ(frames[2]->position(), Transform());
    EXPECT_EQ(frames[3]->name(), "JLink");
    EXPECT_EQ(frames[3]->parentFrame(), frames[1].get());
    EXPECT_EQ(frames[3]->localPosition(), Transform::fromPosition(0, 2, 0));
    EXPECT_EQ(model.frame("J"), frames[1]);
}

TEST(Skeleton, PlacesAJointInTheFrameOfTheOneBefore)
{
    // The second placement is seen from A, whatever A's end transform is.
    Sim::Model const model(robot(joint("A", placement("1 0 0") + "<end xyz='0 5 0' rpy='0 0 1.5707964'/>") +
                                 joint("B", placement("0 0 2")) + chain("C", "Base", {"A", "B"})));
    EXPECT_TRUE(globalOf(model, "BLink").isNear(Transform::fromPosition(1, 0, 2), 1e-6F));
    EXPECT_TRUE(
        globalOf(model, "ALink").isNear(Transform::fromPosition(1, 5, 0) * Transform::fromRotZ(1.5707964F), 1e-6F));
    EXPECT_EQ(Sim::Frame::globalPosition(nullptr), Transform());
}

TEST(Skeleton, HangsSubJointsOnTheEndOfTheirActuatorsJoint)
{
    std::string const fingers = "<group>" + subJoint("F1") + subJoint("F2") + "</group>";
    Sim::Model const model(robot(joint("Wrist", placement("1 0 0")) + chain("Arm", "Base", {"Wrist"}) +
                                 actuator("Hand", "Wrist", fingers)));
    EXPECT_THAT(namesOf(model.joints()), ElementsAre("Wrist", "F1", "F2"));
    EXPECT_EQ(model.joint("F1")->parentLink()->name(), "WristLink");
    EXPECT_EQ(model.joint("F2")->parentLink()->name(), "F1Link");
    float const minusQuarter = -1.5707964F;
    EXPECT_TRUE(model.link("F1Link")->frame()->localPosition().isNear(Transform::fromRotX(minusQuarter), 1e-6F));
    EXPECT_TRUE(model.joint("F2")->frame()->localPosition().isNear(Transform::fromRotX(-minusQuarter), 1e-6F));
}

TEST(Skeleton, GivesWhatIsNotDescribedItsDefaults)
{
    testing::internal::CaptureStderr();
    Sim::Model const model(robot(joint("Light") + actuator("Hand", "Light", "<group>" + subJoint("F") + "</group>") +
                                 chain("C", "Base", {"Light"})));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    for (char const* name : {"LightLink", "FLink"}) {
        Sim::MassData const* const data = model.link(name)->mass();
        EXPECT_EQ(data->mass(), 0.0F);
        EXPECT_EQ(data->inertiaMatrix(), std::vector<float>(9, 0.0F));
        EXPECT_EQ(model.link(name)->frictionMaterial(), "gum");
    }
    EXPECT_EQ(model.link("LightLink")->visual()->meshPath(), "Light.dae");
    EXPECT_EQ(model.rootLink()->mass()->inertiaMatrix(), (std::vector<float>{1, 0, 0, 0, 2, 0, 0, 0, 3}));
}

TEST(Skeleton, ReportsAndThenRefusesAJointThatNobodyDescribes)
{
    testing::internal::CaptureStderr();
    std::string const error =
        messageOf<std::runtime_error>([] { Sim::Model const model(robot(chain("C", "Base", {"Ghost"}))); });
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Could not fetch meshPath for Ghost\nCould not fetch meshTransform for Ghost\n");
    EXPECT_EQ(error, "Could not get min value.");
}

TEST(Skeleton, RefusesAChainThatTheTreeNeverReaches)
{
    std::string const loop = robot(joint("A") + joint("B") + chain("C", "B", {"A"}) + chain("D", "A", {"B"}));
    EXPECT_THAT(messageOf<std::runtime_error>([&] { Sim::Model const model(loop); }), HasSubstr("A"));
}

TEST(Skeleton, IsAsDeepAsTheRobot)
{
    int const depth = 100000;
    std::string body;
    std::vector<std::string> names;
    for (int i = 0; i < depth; ++i) {
        names.push_back("J" + std::to_string(i));
        body += joint(names.back(), placement("0 0 0.001"));
    }
    Sim::Model const model(robot(body + chain("C", "Base", names)));
    EXPECT_EQ(model.links().size(), 100001U);
    EXPECT_NEAR(globalOf(model, names.back() + "Link").position().z, 100.0F, 0.1F);
}

TEST(Wheels, HangFromAJointAndTurnAboutTheAxisThatTheirPlacementGives)
{
    Sim::Model const model(robot(joint("Axle", placement("0 0 1")) + chain("C", "Base", {"Axle"}) +
                                 wheel("W", "Axle", placement("0 2 0"))));
    Sim::Link const* const link = model.link("WLink");
    EXPECT_EQ(link->type(), Sim::Link::Wheel);
    EXPECT_EQ(model.link("AxleLink")->type(), Sim::Link::Regular);
    EXPECT_EQ(link->parentJoint()->parentLink(), model.link("AxleLink"));
    EXPECT_EQ(link->frictionMaterial(), "rubber");
    EXPECT_EQ(link->mass()->mass(), 2.0F);
    EXPECT_TRUE(globalOf(model, "WLink").isNear(Transform::fromPosition(0, 2, 1), 1e-6F));
    EXPECT_TRUE(link->parentJoint()->frame()->localPosition().isNear(
        Transform::fromPosition(0, 2, 0) * Transform::fromRotY(-1.5707964F), 1e-6F));
}

TEST(Wheels, AreRefusedWithoutTheirJointOrMaterial)
{
    std::string const unmade = "<wheel name='W' parent='J' mesh='w.dae' maxTorque='1' maxVelocity='1'/>";
    std::string const axle = joint("J") + chain("C", "Base", {"J"});
    struct {
        std::string body;
        char const* message;
    } const cases[] = {
        {wheel("W", "Nowhere"), "Model consistency error for wheel W"},
        {wheel("W", "Base"), "Model consistency error for wheel W"},
        {axle + unmade, "Could not fetch wheel friction material for wheel W"},
    };
    for (auto const& each : cases) {
        EXPECT_EQ(messageOf<std::runtime_error>([&] { Sim::Model const model(robot(each.body)); }), each.message);
    }
}
