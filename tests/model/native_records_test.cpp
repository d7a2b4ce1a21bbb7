#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// One of everything, no value at its default.
char const* const full = R"(<robotDescription name="R" version="2.1">
  <sensor name="Z" parent="J1" type="camera"><placement xyz="7 8 9"/><key> k/1 </key><key>k/2</key>
    <attribute name="resolutions" value="640 480&#10;320 240"/></sensor>
  <posture name="P"><angle of="J1" value="0.5"/><angle of="A" value="-0.5"/></posture>
  <prettyName index="3">Three &amp; more</prettyName><prettyName>Zero</prettyName>
  <chain name="C" parent="B" tip="Tip"><jointRef name="J2"/><jointRef name="J1"/>
    <placement xyz="1 0 0"/><tipPlacement xyz="2 0 0"/></chain>
  <joint name="J2" min="-1" max="1" type="prismatic"/>
  <joint name="J1" mesh="j.dae" meshXyz="1 2 3" meshRpy="4 5 6" min="unlimited" max="+2.5" maxSpeed="3" maxTorque="4"
         damping="5" friction="6" type="fixed" reflectionForced="true">
    <mass value="1.5" com="1 2 3" inertia="1 2 3 4 5 6 7 8 9"/><mirror name="J2" reflected="true"/>
    <attribute name="material" value="steel"/>
    <placement xyz="1 2 3" rpy="0.1 0.2 0.3"/><end matrix="0 -1 0 1  1 0 0 2  0 0 1 3"/>
  </joint>
  <root name="B" mesh="b.dae"><mass value="9"/></root>
  <wheel name="W" parent="J1" mesh="w.dae" maxTorque="1" maxVelocity="2"><mass value="3"/>
    <placement xyz="0 1 0"/><attribute name="material" value="rubber"/></wheel>
  <actuator name="A" parent="J1" min="-2" max="2" maxSpeed="3" maxTorque="4">
    <placement xyz="0 0 5"/><mirror name="A"/>
    <group><subJoint name="F1" mesh="f.dae" ratio="0.8" offset="0.1"><placement xyz="0 0 6"/></subJoint>
      <jointRef name="J2" ratio="-1"/></group>
    <group><subJoint name="F2" ratio="0.5"/></group>
  </actuator>
</robotDescription>)";

class NativeRecords : public testing::Test {
protected:
    std::unique_ptr<Robot> _robot = ModelUtils::robotFromXml(full);
    std::vector<std::string> _names;
};

TEST_F(NativeRecords, RobotSaysWhoItIs)
{
    EXPECT_EQ(_robot->name(), "R");
    EXPECT_EQ(_robot->version(), "2.1");
    EXPECT_EQ(_robot->dialect(), "native");
    EXPECT_EQ(_robot->prettyName(3), "Three & more");
    EXPECT_EQ(_robot->prettyName(0), "Zero");
    EXPECT_EQ(_robot->prettyName(1), "R");
}

TEST_F(NativeRecords, JointsHoldEveryField)
{
    std::string name;
    JointConfig root;
    JointTable joints;
    std::vector<std::string> forced;
    _robot->listJoints(name, root, joints, _names, forced);
    EXPECT_EQ(name, "R");
    EXPECT_EQ(root.name, "B");
    EXPECT_EQ(root.meshName, "b.dae");
    EXPECT_EQ(root.mass, 9.0F);
    EXPECT_THAT(_names, ElementsAre("J2", "J1"));
    EXPECT_THAT(forced, ElementsAre("J1"));
    EXPECT_EQ(joints.at("J2").jointType, prismatic);
    EXPECT_EQ(joints.at("J2").mirrorKind, noMirror);
    JointConfig const& joint = joints.at("J1");
    EXPECT_EQ(joint.meshName, "j.dae");
    EXPECT_EQ(joint.minAngle, -std::numeric_limits<float>::infinity());
    EXPECT_THAT((std::vector<float>{joint.maxAngle, joint.maxAngularSpeed, joint.maxTorque, joint.damping,
                                    joint.friction, joint.mass}),
                ElementsAre(2.5F, 3.0F, 4.0F, 5.0F, 6.0F, 1.5F));
    EXPECT_THAT(joint.inertiaMatrix, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(joint.centerOfMass, (Position3D{1, 2, 3}));
    EXPECT_EQ(joint.meshPosition, (Position3D{1, 2, 3}));
    EXPECT_EQ(joint.meshOrientation, (Position3D{4, 5, 6}));
    EXPECT_TRUE(joint.placement.isNear(Transform::fromPosition(1, 2, 3) * Transform::fromRotZ(0.3F) *
                                           Transform::fromRotY(0.2F) * Transform::fromRotX(0.1F),
                                       1e-6F));
    EXPECT_EQ(joint.endTransform, Transform::fromRows({0, -1, 0, 1, 1, 0, 0, 2, 0, 0, 1, 3}));
    EXPECT_EQ(joint.mirrorKind, reflectedMirror);
    EXPECT_EQ(joint.mirrorName, "J2");
    EXPECT_EQ(joint.jointType, fixed);
    EXPECT_EQ(joint.attributes, (Attributes{{"material", "steel"}}));
}

TEST_F(NativeRecords, ChainsHoldEveryField)
{
    ChainTable chains;
    _robot->listChains(_names, chains);
    EXPECT_THAT(_names, ElementsAre("C"));
    ChainConfig const& chain = chains.at("C");
    EXPECT_EQ(chain.parentJoint, "B");
    EXPECT_EQ(chain.tipName, "Tip");
    EXPECT_THAT(chain.jointNames, ElementsAre("J2", "J1"));
    EXPECT_EQ(chain.placement, Transform::fromPosition(1, 0, 0));
    EXPECT_EQ(chain.tipTransform, Transform::fromPosition(2, 0, 0));
}

TEST_F(NativeRecords, ActuatorsHoldEveryField)
{
    ActuatorTable actuators;
    SubActuatorTable subActuators;
    _robot->listActuators(_names, actuators, subActuators);
    ActuatorConfig const& actuator = actuators.at("A");
    EXPECT_THAT(
        (std::vector<float>{actuator.minAngle, actuator.maxAngle, actuator.maxAngularSpeed, actuator.maxTorque}),
        ElementsAre(-2.0F, 2.0F, 3.0F, 4.0F));
    EXPECT_EQ(actuator.parentJoint, "J1");
    EXPECT_EQ(actuator.placement, Transform::fromPosition(0, 0, 5));
    EXPECT_THAT(actuator.jointGroups, ElementsAre(ElementsAre("F1", "J2"), ElementsAre("F2")));
    EXPECT_EQ(actuator.mirrorKind, plainMirror);
    EXPECT_EQ(actuator.mirrorName, "A");
    ASSERT_EQ(subActuators.size(), 3U);
    SubActuatorConfig const& finger = subActuators.at("F1");
    EXPECT_EQ(finger.meshName, "f.dae");
    EXPECT_EQ(finger.ratio, 0.8F);
    EXPECT_EQ(finger.offset, 0.1F);
    EXPECT_EQ(finger.placement, Transform::fromPosition(0, 0, 6));
    EXPECT_EQ(subActuators.at("J2").ratio, -1.0F);
}

TEST_F(NativeRecords, WheelsSensorsAndPosturesHoldEveryField)
{
    WheelTable wheels;
    _robot->listWheels(_names, wheels);
    WheelConfig const& wheel = wheels.at("W");
    EXPECT_EQ(wheel.parentJoint, "J1");
    EXPECT_EQ(wheel.meshName, "w.dae");
    EXPECT_THAT((std::vector<float>{wheel.maxTorque, wheel.maxVelocity, wheel.mass}), ElementsAre(1.0F, 2.0F, 3.0F));
    EXPECT_EQ(wheel.placement, Transform::fromPosition(0, 1, 0));
    EXPECT_EQ(wheel.attributes.at("material"), "rubber");

    SensorTable sensors;
    _robot->listSensors(_names, sensors);
    SensorConfig const& sensor = sensors.at("Z");
    EXPECT_EQ(sensor.type, camera);
    EXPECT_EQ(sensor.parent, "J1");
    EXPECT_EQ(sensor.placement, Transform::fromPosition(7, 8, 9));
    EXPECT_THAT(sensor.keys, ElementsAre("k/1", "k/2"));
    EXPECT_EQ(sensor.attributes.at("resolutions"), "640 480\n320 240");

    ASSERT_EQ(_robot->postures().size(), 1U);
    EXPECT_EQ(_robot->postures()[0].name, "P");
    EXPECT_THAT(_robot->postures()[0].angles, ElementsAre(testing::Pair("J1", 0.5F), testing::Pair("A", -0.5F)));
}

TEST(NativeSize, AHundredThousandJointsAreReadWhole)
{
    std::string xml = "<robotDescription name='R'><root name='B'/>";
    std::string chain = "<chain name='C' parent='B'>";
    int const count = 100'000;
    for (int i = 0; i < count; ++i) {
        // Neither ascending nor descending, so that no order of the names helps.
        std::string const name = "J" + std::to_string((i * 7919LL) % count);
        xml += "<joint name='" + name + "' min='-1' max='1'/>";
        chain += "<jointRef name='" + name + "'/>";
    }
    ModelUtils::Reading const reading = ModelUtils::read(xml + chain + "</chain></robotDescription>");
    EXPECT_THAT(reading.findings, IsEmpty());
    ASSERT_NE(reading.robot, nullptr);
    std::vector<std::string> names;
    ChainTable chains;
    reading.robot->listChains(names, chains);
    EXPECT_EQ(chains.at("C").jointNames.size(), 100'000U);
}

}  // namespace
}  // namespace Varo::Model
