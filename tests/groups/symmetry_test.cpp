#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/joint.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/model.hpp"
#include "sim/torque_actuator.hpp"

namespace {

using namespace Tests;

std::string const arms = joint("L", mirror("R", true)) + joint("R", mirror("L")) + joint("Neck") +
                         joint("Odd", mirror("Nobody", true)) + joint("Self", mirror("Self")) +
                         chain("Left", "Base", {"L"}) + chain("Right", "Base", {"R"}) +
                         chain("Rest", "Base", {"Neck", "Odd", "Self"});

}  // namespace

TEST(JointSymmetries, AreRecordedOnceForAPair)
{
    Sim::Model const model(robot(arms));
    ASSERT_EQ(model.jointSymmetries().size(), 3U);
    Sim::JointSymmetry const* const pair = model.jointSymmetry("R");
    EXPECT_EQ(pair, model.jointSymmetry("L"));
    EXPECT_EQ(pair->symmetricJoints(), std::pair(model.joint("L"), model.joint("R")));
    EXPECT_EQ(pair->symmetryType(), Sim::JointSymmetry::ReflectedSymmetricReversed) << "as its first joint says";
    EXPECT_EQ(pair->symmetricJoint(model.joint("L")), model.joint("R"));
    EXPECT_EQ(pair->symmetricJoint(model.joint("R")), model.joint("L"));
    EXPECT_EQ(pair->symmetricJoint(model.joint("Neck")), nullptr);
    EXPECT_EQ(pair->symmetricJoint(nullptr), nullptr);
    Sim::Model const twin(robot(arms));
    EXPECT_EQ(pair->symmetricJoint(twin.joint("L")), model.joint("R")) << "joints are recognised by name";
}

TEST(JointSymmetries, MayLackOrBeTheirOwnPartner)
{
    Sim::Model const model(robot(arms));
    Sim::Joint const* const none = nullptr;
    EXPECT_EQ(model.jointSymmetry("Neck"), nullptr);
    EXPECT_EQ(model.jointSymmetry("Odd")->symmetricJoints(), std::pair(model.joint("Odd"), none));
    EXPECT_EQ(model.jointSymmetry("Nobody"), nullptr);
    EXPECT_EQ(model.jointSymmetry("Self")->symmetricJoint(model.joint("Self")), model.joint("Self"));
}

TEST(ActuatorPairs, AreOfOneKindAndEachWithItsOwnFlag)
{
    Sim::Model const model(robot(arms, "Helvo"));
    Sim::AngleActuator const* const left = model.angleActuator("L");
    EXPECT_EQ(left->reflectedSymmetric(), model.angleActuator("R"));
    EXPECT_TRUE(left->reflectedSymmetricReversed());
    EXPECT_FALSE(model.angleActuator("R")->reflectedSymmetricReversed());
    EXPECT_EQ(model.torqueActuator("L")->reflectedSymmetric(), model.torqueActuator("R"));
    EXPECT_EQ(model.angleActuator("Odd")->reflectedSymmetric(), nullptr);
    EXPECT_TRUE(model.angleActuator("Odd")->reflectedSymmetricReversed()) << "the flag needs no partner";
}

TEST(ActuatorPairs, LinkCoupledActuators)
{
    Sim::Model const model(robot(arms + actuator("LHand", "L", mirror("RHand", true)) + actuator("RHand", "R", "")));
    EXPECT_EQ(model.coupledActuator("LHand")->reflectedSymmetric(), model.coupledActuator("RHand"));
    EXPECT_TRUE(model.coupledActuator("LHand")->reflectedSymmetricReversed());
    EXPECT_EQ(model.coupledActuator("RHand")->reflectedSymmetric(), nullptr);
}
