#include <gmock/gmock.h>

#include "sim/angle_sensor.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/camera_depth_sensor.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/frame.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/tactile_sensor.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

/// What settings and noises they state, in all three styles, Python's reader of XML sees in the dump.
TEST(UrdfSensors, BecomeTheNearestKind)
{
    Tables const tables = tablesOf(readFile(dataFile("sensors.urdf")));
    struct Case {
        char const* name;
        std::int32_t type;
        char const* parent;
        std::size_t keys;
    };
    for (Case const& c :
         {Case{"eye", camera, "neck", 0}, Case{"depth", depthCamera, "neck", 0}, Case{"blind", depthCamera, "neck", 0},
          Case{"gyro", inertial, "neck", 6}, Case{"nose", bumper, "neck", 1}, Case{"skin", tactile, "neck", 1},
          Case{"ear", microphone, "neck", 0}, Case{"scan", arrayDepth, "neck", 1}, Case{"echo", sonar, "neck", 1},
          Case{"place", unknownSensor, "neck", 0}, Case{"old", camera, "neck", 0}, Case{"strain", fsr, "neck", 1},
          Case{"belly", bumper, "body", 1}, Case{"own", camera, "neck", 0}, Case{"own_scan", arrayDepth, "body", 1},
          Case{"eye_2", camera, "neck", 0}}) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(tables.sensors.count(c.name), 1U);
        SensorConfig const& sensor = tables.sensors.at(c.name);
        EXPECT_EQ(sensor.type, c.type);
        EXPECT_EQ(sensor.parent, c.parent);
        EXPECT_EQ(sensor.keys.size(), c.keys);
    }
    EXPECT_EQ(tables.sensors.size(), 16U);
    EXPECT_THAT(tables.sensors.at("echo").keys, ElementsAre("echo/Distance/Sensor"));
    EXPECT_THAT(complaintsAbout(readFile(dataFile("sensors.urdf"))),
                ElementsAre("sensor-size", "renamed", "sensor-lost"));
}

TEST(UrdfSensors, StandWhereTheTextSaysWithTheirSizes)
{
    Sim::Model const model(dataFile("sensors.urdf"));
    Sim::CameraSensor const& eye = *model.cameraSensor("eye");
    EXPECT_EQ(eye.frame()->parentFrame(), model.link("neckLink")->frame());
    EXPECT_TRUE(eye.frame()->localPosition().isNear(
        Varo::Math::Transform::fromPosition(0.1F, 0.0F, 0.2F) * Varo::Math::Transform::fromRotY(0.5F), 1e-6F));
    EXPECT_EQ(model.cameraSensor("own")->frame()->localPosition().position().z, 3.0F);
    auto const sizeOf = [](auto const* camera) { return std::pair(camera->width(), camera->height()); };
    EXPECT_EQ(sizeOf(&eye), std::pair(640, 480));
    EXPECT_EQ(sizeOf(model.cameraDepthSensor("depth")), std::pair(64, 48));
    EXPECT_EQ(sizeOf(model.cameraSensor("old")), std::pair(320, 200));
    EXPECT_EQ(sizeOf(model.cameraSensor("own")), std::pair(800, 600));
    EXPECT_EQ(sizeOf(model.arrayDepthSensor("scan")), std::pair(12, 2));
    EXPECT_EQ(eye.settings(), model.robot().records()->sensors.find("eye")->settings.get());
    EXPECT_EQ(model.tactileSensor("skin")->settings(), nullptr);
}

TEST(UrdfSensors, CountBadSettingsAsNotStatedAndKeepTheirText)
{
    for (char const* stated : {"<update_rate>-1</update_rate>", "<update_rate>often</update_rate>", "<update_rate/>",
                               "<update_rate>inf</update_rate>", "<camera><image><width>0</width></image></camera>",
                               "<camera><image width='1.5'/></camera>", "<camera><clip><far>nan</far></clip></camera>",
                               "<imageSize>3</imageSize>", "<imageSize>3 4 5</imageSize>",
                               "<camera><image><format> </format></image></camera>", "<rangeCount>0</rangeCount>",
                               "<camera><noise><stddev>-1</stddev></noise></camera>"}) {
        SCOPED_TRACE(stated);
        std::string const xml =
            robot(link("l") + "<gazebo reference='l'><sensor name='s' type='imu'>" + stated + "</sensor></gazebo>");
        EXPECT_THAT(complaintsAbout(xml), ElementsAre("bad-setting"));
        auto const read = ModelUtils::robotFromXml(xml);
        EXPECT_EQ(read->records()->extensions.size(), 1U);
        EXPECT_EQ(read->records()->extensions[0].owner, ExtensionOwner::sensor);
    }
    EXPECT_THAT(complaintsAbout(robot(link("l") + "<sensor name='s' type='sonar' update_rate='2'><parent link='l'/>"
                                                  "<sonar><min>3</min><max>2</max></sonar>"
                                                  "<update_rate>3</update_rate></sensor>")),
                ElementsAre("bad-setting", "surplus-element"));
    for (char const* twice :
         {"<imu><q><noise/></q><r><noise/></r><q><noise/></q></imu>", "<camera><image/></camera><depth_camera/>",
          "<parent link='l'/>", "<camera><image width='1'/><image><width>2</width></image></camera>"}) {
        EXPECT_THAT(
            complaintsAbout(robot(link("l") + "<sensor name='s' type='imu'><parent link='l'/>" + twice + "</sensor>")),
            ElementsAre("surplus-element"))
            << twice;
    }
}

TEST(UrdfSensors, SitOnWhatTheJointMovesThatTheyAreAttachedTo)
{
    std::string const sensor = "<sensor name='s' type='force_torque' update_rate='9'><parent joint='B'/></sensor>";
    auto const read = ModelUtils::robotFromXml(robot(arm() + sensor));
    SensorConfig const& strain = *read->records()->sensors.find("s");
    EXPECT_EQ(strain.parent, "B");
    EXPECT_EQ(strain.type, fsr);
    EXPECT_TRUE(ModelUtils::diagnose(robot(arm() + sensor)).empty());
    Findings const findings = ModelUtils::diagnose(robot(arm() + "<sensor name='s'><parent joint='b'/></sensor>"));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].message, "This sensor is in no model: there is no joint \"b\".");
}

TEST(UrdfSensors, OfKindsWithoutClassAreTheSameNote)
{
    std::string const two = "<gazebo reference='c'><sensor name='p' type='gps'/><sensor name='q' type='x'/></gazebo>";
    Findings const findings = ModelUtils::diagnose(robot(arm() + two));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "sensor-kind");
    EXPECT_EQ(tablesOf(robot(arm() + two)).sensors.at("q").attributes.at("urdfType"), "x");
}

}  // namespace
