#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "varo/model/model_utils.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// As toXml writes it: each geometry, and numbers whose texts differ though their values are near or the same.
char const* const shapely = R"(<?xml version="1.0" encoding="UTF-8"?>
<robotDescription name="R">
  <root name="B">
    <visual name="shell">
      <placement xyz="1 2 -0" rpy="0.1 0.2 1e-45"/>
      <mesh file=" package://r/b.dae" scale="1 -1 0.001"/>
      <material name="red" color="1 0.5 0 0.25" texture="r.png"/>
    </visual>
    <visual>
      <box size="0.3 -0 0.1"/>
      <material color="0 0 0 0"/>
    </visual>
    <collision name="hull">
      <placement rpy="-0 0 0"/>
      <capsule radius="0.1" length="3.4028235e+38"/>
    </collision>
  </root>
  <joint name="J" mesh="short.dae" meshXyz="1 0 0" min="unlimited" max="unlimited" maxSpeed="unlimited" maxTorque="unlimited" type="continuous" motor="false">
    <visual>
      <sphere radius="0.5"/>
      <material/>
    </visual>
    <mimic joint="K" multiplier="-2" offset="-0"/>
    <safety lower="unlimited" positionGain="20" velocityGain="1e-45"/>
    <calibration falling="-0"/>
  </joint>
  <joint name="K" min="0" max="0" type="planar">
    <collision>
      <mesh file="k.stl"/>
    </collision>
    <safety/>
  </joint>
  <joint name="L" min="0" max="0" type="floating"/>
  <chain name="C" parent="B">
    <jointRef name="J"/>
    <jointRef name="K"/>
    <jointRef name="L"/>
  </chain>
  <actuator name="A" parent="J" min="0" max="1" maxSpeed="unlimited" maxTorque="unlimited">
    <group>
      <subJoint name="S" mesh="alone.dae" ratio="1">
        <collision>
          <cylinder radius="0.1" length="0.2"/>
        </collision>
      </subJoint>
    </group>
  </actuator>
  <wheel name="W" parent="J" mesh="other.dae" maxTorque="1" maxVelocity="1">
    <visual>
      <mesh file="w.dae"/>
    </visual>
    <attribute name="material" value="rubber"/>
  </wheel>
</robotDescription>
)";

class NativeShapes : public testing::Test {
protected:
    std::unique_ptr<Robot> const robot = ModelUtils::robotFromXml(shapely);
    Records const& records = *robot->records();
};

TEST_F(NativeShapes, ComeBackToTheLastBit)
{
    EXPECT_EQ(ModelUtils::toXml(*robot), shapely);
}

/// All that they state is in the dump of the tool, which is tested there.
TEST_F(NativeShapes, HaveTheirPoseAndPlace)
{
    VisualConfig const& shell = records.root.shapes.visuals.at(0);
    EXPECT_TRUE(poseOf(shell).isNear(Transform::fromPosition(1, 2, 0) * Transform::fromRpy(0.1F, 0.2F, 0)));
    EXPECT_EQ(robot->place(shell.textOffset).line, 4);
    EXPECT_FALSE(records.joints.find("J")->shapes.visuals[0].material->hasColor);
}

TEST_F(NativeShapes, GiveTheRecordItsMeshUnlessItStatesOne)
{
    EXPECT_EQ(records.root.meshName, " package://r/b.dae");
    EXPECT_EQ(records.root.meshPosition, (Position3D{1, 2, 0}));
    EXPECT_EQ(records.root.meshOrientation.y, 0.2F);
    EXPECT_EQ(records.joints.find("J")->meshName, "short.dae");
    EXPECT_EQ(records.joints.find("K")->meshName, "") << "a collision is not shown";
    EXPECT_EQ(records.wheels.find("W")->meshName, "other.dae");
}

TEST_F(NativeShapes, AreTheMeshAloneWhereNoVisualStands)
{
    EXPECT_EQ(visualsOf(records.root).size(), 2U);
    EXPECT_EQ(visualsOf(*records.joints.find("J"))[0].geometry.type, GeometryType::sphere);
    EXPECT_THAT(visualsOf(*records.joints.find("K")), IsEmpty());
    std::vector<VisualConfig> const alone = visualsOf(*records.subActuators.find("S"));
    ASSERT_EQ(alone.size(), 1U);
    EXPECT_EQ(alone[0].geometry.uri, "alone.dae");
}

TEST(NativeShapesFindings, AreReportedWhereTheyStand)
{
    struct Case {
        std::string content;
        std::vector<std::string> places;
    };
    std::string const material = "<visual><sphere radius='1'/><material color=";
    for (Case const& c : std::vector<Case>{
             {"<visual><box size='1 -1 1'/></visual>", {"14 wrong-value"}},
             {"<visual><box size='1 1'/></visual>", {"14 wrong-value"}},
             {"<visual><sphere radius='-1e-9'/></visual>", {"17 wrong-value"}},
             {"<visual><cylinder radius='1' length='inf'/></visual>", {"30 wrong-value"}},
             {"<visual><capsule radius='nan' length='1'/></visual>", {"18 wrong-value"}},
             {"<visual><mesh file=''/></visual>", {"15 wrong-value"}},
             {"<visual><mesh file='m' scale='2'/></visual>", {"24 wrong-value"}},
             {"<visual><mesh file='m' scale='1 1 -1'/></visual>", {"24 mirrored-mesh"}},
             {"<collision/>", {"1 missing-element"}},
             {"<visual><bx size='1 1 1'/></visual>", {"9 unknown-element"}},
             {"<visual><sphere radius='1'/><sphere radius='1'/></visual>", {"29 repeated-element"}},
             {"<collision><sphere radius='1'/><material/></collision>", {"32 unknown-element"}},
             {material + "'1 0 0'/></visual>", {"39 wrong-value"}},
             {material + "'1 0 0 1.01'/></visual>", {"39 wrong-value"}},
             {material + "'1 0 -0.1 1'/></visual>", {"39 wrong-value"}},
             {material + "''/></visual>", {"39 wrong-value"}},
             {material + "'1 0 0 1'/></visual>", {}},
         }) {
        std::vector<std::string> places;
        for (Finding const& finding : ModelUtils::diagnose("<robotDescription name='R'><root name='B'>\n" + c.content +
                                                           "</root></robotDescription>")) {
            places.push_back(std::to_string(finding.column) + " " + finding.code);
            EXPECT_EQ(finding.line, 2) << c.content;
            EXPECT_EQ(finding.severity == Severity::error, finding.code != "mirrored-mesh") << c.content;
        }
        EXPECT_EQ(places, c.places) << c.content;
    }
    Findings const findings = ModelUtils::diagnose(
        "<robotDescription name='R'><root name='B' meshXyz='1 0 0'><visual><mesh file='m'/></visual></root>"
        "</robotDescription>");
    ASSERT_EQ(findings.size(), 1U) << "the place of no mesh";
    EXPECT_EQ(findings[0].code, "conflicting-attributes");
}

}  // namespace
}  // namespace Varo::Model
