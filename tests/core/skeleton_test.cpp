#include <gmock/gmock.h>

#include "core/joint_impl.hpp"
#include "core/link_impl.hpp"
#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/model.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::IsEmpty;
using Varo::Math::Transform;

}  // namespace

TEST(Skeleton, OfABareRootIsOneLink)
{
    Sim::ModelImpl const model(robot(""));
    EXPECT_EQ(model.frames().size(), 1U);
    EXPECT_EQ(model.links().size(), 1U);
    EXPECT_TRUE(model.joints().empty());
    EXPECT_EQ(model.rootLink()->parentJoint(), nullptr);
    EXPECT_EQ(model.rootLink()->frame()->parentFrame(), nullptr);
    EXPECT_EQ(Sim::Frame::globalPosition(nullptr), Transform());
}

TEST(Skeleton, IsBuiltDepthFirstAndHoldsAJointOfTwoChainsOnce)
{
    Sim::Model const model(robot(joint("A1") + joint("A2") + joint("B1") + joint("C1") +
                                 chain("A", "Base", {"A1", "A2"}) + chain("C", "A1", {"C1", "A2"}) +
                                 chain("B", "Base", {"B1"})));
    EXPECT_THAT(namesOf(model.joints()), ElementsAre("A1", "A2", "C1", "B1"));
    EXPECT_THAT(namesOf(model.links()), ElementsAre("BaseLink", "A1Link", "A2Link", "C1Link", "B1Link"));
    EXPECT_THAT(namesOf(model.link("A1Link")->childrenJoints()), ElementsAre("A2", "C1"));
    EXPECT_THAT(model.link("C1Link")->childrenJoints(), IsEmpty());
}

TEST(Skeleton, RegistersThreeFramesAJointTheSecondUnconnected)
{
    Sim::ModelImpl const model(
        robot(joint("J", "<placement xyz='1 0 0'/><end xyz='0 2 0'/>") + chain("C", "Base", {"J"})));
    auto const frames = model.frames();
    EXPECT_THAT(namesOf(frames), ElementsAre("BaseLink", "J", "J", "JLink", "J")) << "and one for the motor";
    EXPECT_EQ(frames[1]->parentFrame(), frames[0].get());
    EXPECT_EQ(frames[2]->parentFrame(), nullptr);
    EXPECT_EQ(frames[2]->position(), Transform());
    EXPECT_EQ(frames[3]->parentFrame(), frames[1].get());
    EXPECT_EQ(frames[3]->localPosition(), Transform::fromPosition(0, 2, 0));
    EXPECT_EQ(model.frame("J"), frames[1]);
}

TEST(Skeleton, ReportsAndThenRefusesAJointThatNobodyDescribes)
{
    testing::internal::CaptureStderr();
    EXPECT_THROW(Sim::Model(robot(chain("C", "Base", {"Ghost"}))), std::runtime_error);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Could not fetch meshPath for Ghost\nCould not fetch meshTransform for Ghost\n");
}

TEST(Skeleton, IsAsDeepAsTheRobot)
{
    int const depth = 100000;
    std::string body;
    std::string angles;
    std::vector<std::string> names;
    for (int i = 0; i < depth; ++i) {
        // Neither ascending nor descending, so that no order of the names helps.
        names.push_back("J" + std::to_string((i * 7919LL) % depth));
        body += joint(names.back(), "<placement xyz='0 0 0.001'/>");
        angles += "<angle of='" + names.back() + "' value='0.5'/>";
    }
    Sim::Model const model(
        robot(body + chain("C", "Base", names) + "<posture name='StandInit'>" + angles + "</posture>"));
    EXPECT_EQ(model.links().size(), 100001U);
    EXPECT_NEAR(Sim::Frame::globalPosition(model.links().back()->frame()).position().z, 100.0F, 0.1F);
    EXPECT_EQ(model.angleActuators().back()->startValue(), 0.5F);
}

TEST(LinksAndJoints, KeepNothingAliveButMassAndVisual)
{
    auto first = boost::make_shared<Sim::Joint>();
    auto const second = boost::make_shared<Sim::Joint>();
    Sim::LinkImpl link(boost::make_shared<Sim::Frame>(), "L", boost::make_shared<Sim::Joint>(),
                       boost::make_shared<Sim::MassData>(), "gum", Sim::Link::Regular, {});
    link.addChildJoint(first);
    link.addChildJoint(second);
    first.reset();
    EXPECT_THAT(link.childrenJoints(), ElementsAre(second)) << "what is gone is left out";
    EXPECT_TRUE(link.frame() == nullptr && link.parentJoint() == nullptr);
    EXPECT_NE(link.massData(), nullptr);
    EXPECT_EQ(link.visualData(), nullptr);
    EXPECT_THAT(link.body().visuals(), IsEmpty());

    Sim::JointImpl joint({}, "J", boost::make_shared<Sim::Link>());
    EXPECT_TRUE(joint.parentLink() == nullptr && joint.childLink() == nullptr);
    auto const child = boost::make_shared<Sim::Link>();
    joint.setChildLink(child);
    EXPECT_EQ(joint.childLink(), child);
}
