#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tables.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr float infinity = std::numeric_limits<float>::infinity();

/// One of everything, no value at its default.
char const* const full = R"(<robotDescription name="R" version="2.1">
  <sensor name="Z" parent="J1" type="camera"><placement xyz="7 8 9"/><key> k/1 </key><key>k/2</key>
    <attribute name="resolutions" value="640 480&#10;320 240"/></sensor>
  <posture name="P"><angle of="J1" value="0.5"/><angle of="A" value="-0.5"/></posture>
  <prettyName index="3">Three &amp; more</prettyName><prettyName>Zero</prettyName>
  <chain name="C" parent="B" tip="Tip"><jointRef name="J2"/><jointRef name="J1"/>
    <placement xyz="1 0 0"/><tipPlacement xyz="2 0 0"/></chain>
  <joint name="J2" min="-1" max="1" type="prismatic" motor="false" maxSpeed="unlimited" maxTorque="unlimited">
    <mimic joint="J1" multiplier="-2" offset="0.5"/><calibration rising="0.25"/>
    <safety lower="-0.9" upper="0.8" positionGain="15" velocityGain="10"/></joint>
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

using Floats = std::vector<float>;

TEST(NativeRecords, SayWhoTheRobotIs)
{
    auto const robot = ModelUtils::robotFromXml(full);
    EXPECT_EQ(robot->dialect(), "native");
    EXPECT_THAT((std::vector{robot->name(), robot->version(), robot->prettyName(3), robot->prettyName(0),
                             robot->prettyName(1)}),
                ElementsAre("R", "2.1", "Three & more", "Zero", "R"));
}

TEST(NativeRecords, HoldEveryFieldOfJoints)
{
    Tests::Tables const tables(*ModelUtils::robotFromXml(full));
    EXPECT_EQ(tables.root.name, "B");
    EXPECT_EQ(tables.root.meshName, "b.dae");
    EXPECT_EQ(tables.root.mass, 9.0F);
    EXPECT_THAT(tables.jointNames, ElementsAre("J2", "J1"));
    EXPECT_THAT(tables.reflectionForced, ElementsAre("J1"));
    JointConfig const& slide = tables.joints.at("J2");
    EXPECT_TRUE(slide.jointType == prismatic && slide.mirrorKind == noMirror && !slide.hasMotor);
    EXPECT_THAT((Floats{slide.maxAngularSpeed, slide.maxTorque}), Each(infinity));
    EXPECT_EQ(slide.mimic->joint, "J1");
    EXPECT_THAT((Floats{slide.mimic->multiplier, slide.mimic->offset}), ElementsAre(-2.0F, 0.5F));
    EXPECT_THAT((Floats{slide.safety->lowerLimit, slide.safety->upperLimit, slide.safety->positionGain,
                        slide.safety->velocityGain}),
                ElementsAre(-0.9F, 0.8F, 15.0F, 10.0F));
    EXPECT_EQ(slide.calibration->rising, 0.25F);
    EXPECT_EQ(slide.calibration->falling, std::nullopt);
    JointConfig const& joint = tables.joints.at("J1");
    EXPECT_TRUE(joint.hasMotor && joint.mimic == nullptr && joint.safety == nullptr && joint.calibration == nullptr);
    EXPECT_EQ(joint.meshName, "j.dae");
    EXPECT_THAT((Floats{joint.minAngle, joint.maxAngle, joint.maxAngularSpeed, joint.maxTorque, joint.damping,
                        joint.friction, joint.mass}),
                ElementsAre(-infinity, 2.5F, 3.0F, 4.0F, 5.0F, 6.0F, 1.5F));
    EXPECT_THAT(joint.inertiaMatrix, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(joint.centerOfMass, (Position3D{1, 2, 3}));
    EXPECT_EQ(joint.meshPosition, (Position3D{1, 2, 3}));
    EXPECT_EQ(joint.meshOrientation, (Position3D{4, 5, 6}));
    Transform const turn = Transform::fromRotZ(0.3F) * Transform::fromRotY(0.2F) * Transform::fromRotX(0.1F);
    EXPECT_TRUE(joint.placement.isNear(Transform::fromPosition(1, 2, 3) * turn, 1e-6F));
    EXPECT_EQ(joint.endTransform, Transform::fromRows({0, -1, 0, 1, 1, 0, 0, 2, 0, 0, 1, 3}));
    EXPECT_TRUE(joint.jointType == fixed && joint.mirrorKind == reflectedMirror);
    EXPECT_EQ(joint.mirrorName, "J2");
    EXPECT_EQ(joint.attributes, (Attributes{{"material", "steel"}}));
}

auto isAngle(std::string const& name, float value)
{
    return testing::AllOf(testing::Field(&PostureAngle::name, name), testing::Field(&PostureAngle::value, value));
}

TEST(NativeRecords, HoldEveryFieldOfWhatHangsOnJoints)
{
    Tests::Tables const tables(*ModelUtils::robotFromXml(full));
    EXPECT_THAT(tables.chainNames, ElementsAre("C"));
    ChainConfig const& chain = tables.chains.at("C");
    EXPECT_EQ(chain.parentJoint, "B");
    EXPECT_EQ(chain.tipName, "Tip");
    EXPECT_THAT(chain.jointNames, ElementsAre("J2", "J1"));
    EXPECT_EQ(chain.placement, Transform::fromPosition(1, 0, 0));
    EXPECT_EQ(chain.tipTransform, Transform::fromPosition(2, 0, 0));

    ActuatorConfig const& actuator = tables.actuators.at("A");
    EXPECT_THAT((Floats{actuator.minAngle, actuator.maxAngle, actuator.maxAngularSpeed, actuator.maxTorque}),
                ElementsAre(-2.0F, 2.0F, 3.0F, 4.0F));
    EXPECT_EQ(actuator.parentJoint, "J1");
    EXPECT_EQ(actuator.placement, Transform::fromPosition(0, 0, 5));
    EXPECT_THAT(actuator.jointGroups, ElementsAre(ElementsAre("F1", "J2"), ElementsAre("F2")));
    EXPECT_EQ(actuator.mirrorKind, plainMirror);
    EXPECT_EQ(actuator.mirrorName, "A");
    SubActuatorConfig const& finger = tables.subActuators.at("F1");
    EXPECT_EQ(finger.meshName, "f.dae");
    EXPECT_THAT((Floats{finger.ratio, finger.offset, tables.subActuators.at("J2").ratio}), ElementsAre(0.8F, 0.1F, -1));
    EXPECT_EQ(finger.placement, Transform::fromPosition(0, 0, 6));

    WheelConfig const& wheel = tables.wheels.at("W");
    EXPECT_EQ(wheel.parentJoint, "J1");
    EXPECT_EQ(wheel.meshName, "w.dae");
    EXPECT_THAT((Floats{wheel.maxTorque, wheel.maxVelocity, wheel.mass}), ElementsAre(1.0F, 2.0F, 3.0F));
    EXPECT_EQ(wheel.placement, Transform::fromPosition(0, 1, 0));
    EXPECT_EQ(wheel.attributes.at("material"), "rubber");

    SensorConfig const& sensor = tables.sensors.at("Z");
    EXPECT_EQ(sensor.type, camera);
    EXPECT_EQ(sensor.parent, "J1");
    EXPECT_EQ(sensor.placement, Transform::fromPosition(7, 8, 9));
    EXPECT_THAT(sensor.keys, ElementsAre("k/1", "k/2"));
    EXPECT_EQ(sensor.attributes.at("resolutions"), "640 480\n320 240");

    ASSERT_EQ(tables.postures.size(), 1U);
    EXPECT_EQ(tables.postures[0].name, "P");
    EXPECT_THAT(tables.postures[0].angles, ElementsAre(isAngle("J1", 0.5F), isAngle("A", -0.5F)));
}

/// As it is written.
char const* const carried = R"(<?xml version="1.0" encoding="UTF-8"?>
<robotDescription name="R">
  <root name="B"/>
  <joint name="J" min="0" max="1"/>
  <sensor name="S" parent="J" type="sonar">
    <key>k</key>
    <settings updateRate="1">
      <camera name="c" fieldOfView="2" width="3" height="4" format="f" near="5" far="6"/>
      <horizontalScan samples="7" resolution="8" min="9" max="10"/>
      <verticalScan samples="11" resolution="12" min="13" max="14"/>
      <range min="15" max="16" resolution="17"/>
      <noise quantity="q" type="t" mean="18" deviation="19" biasMean="20" biasDeviation="21" driftDeviation="22" driftTime="23" precision="24"/>
      <noise/>
    </settings>
  </sensor>
  <sensor name="T" parent="J" type="sonar">
    <key>k</key>
    <settings>
      <camera/>
    </settings>
  </sensor>
  <transmission name="t" type="p" joint="J" actuator="a" reduction="50" source="ros2Control">
    <interface name=" x "/>
    <stateInterface name="y"/>
  </transmission>
  <transmission joint=""/>
  <extension link="B" within="visual[2]">&lt;a b=&quot;&amp;amp;&quot;&gt;&#13;&#10;&lt;!-- --&gt;&lt;/a&gt;</extension>
  <extension joint="J">a = &apos;1&apos;</extension>
  <extension sensor="S">&lt;x:a/&gt;</extension>
  <extension>&lt;a/&gt;</extension>
</robotDescription>
)";

TEST(NativeRecords, CarryWhatOtherProgramsNeed)
{
    std::string expected = carried;
    expected.replace(expected.find("&apos;1&apos;"), 13, "'1'");  // both read the same
    auto const robot = ModelUtils::robotFromXml(carried);
    EXPECT_EQ(ModelUtils::toXml(*robot), expected);
    SensorSettings const& settings = *robot->records()->sensors.find("S")->settings;
    EXPECT_EQ(settings.verticalScan->maximumAngle, 14.0F);
    EXPECT_EQ(settings.noises.at(0).precision, 24.0F);
    EXPECT_EQ(robot->records()->sensors.find("T")->settings->camera->farClip, std::numeric_limits<float>::infinity());
    EXPECT_EQ(robot->records()->extensions.at(0).text, "<a b=\"&amp;\">\r\n<!-- --></a>");
}

TEST(NativeRecords, RefuseMarkupThatWouldBreakAnotherText)
{
    for (char const* text : {"", "word", "&lt;a&gt;", "&lt;a/&gt;&lt;b/&gt;", "&lt;a/&gt; more",
                             "&lt;a/&gt;&lt;!-- --&gt;", "&lt;!-- --&gt;", "&lt;?xml version='1.0'?&gt;&lt;a/&gt;",
                             "&lt;/a&gt;", "&lt;a b=c/&gt;", "&lt;a&gt;&amp;no;&lt;/a&gt;", "a='1' b='2'",
                             "a='1'&gt;&lt;b c='2'", "a='&lt;'", "='1'", "a='1' a='1'", "/&gt;&lt;b a='1'"}) {
        SCOPED_TRACE(text);
        Findings const findings = ModelUtils::diagnose("<robotDescription name='R'><root name='B'/><extension>" +
                                                       std::string(text) + "</extension></robotDescription>");
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings[0].code, "wrong-value");
    }
}

}  // namespace
}  // namespace Varo::Model
