#include <limits>
#include <memory>
#include <utility>

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

/// Fails when there is more to say of the text than which settings it has.
std::unique_ptr<Robot> onlyReading(std::string const& file)
{
    ModelUtils::Reading reading = ModelUtils::read(readFile(file));
    EXPECT_TRUE(reading.findings.empty()) << reading.findings.front().message;
    return std::move(reading.robot);
}

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
    EXPECT_EQ(eye.width(), 640);
    EXPECT_EQ(eye.height(), 480);
    EXPECT_EQ(eye.settings(), model.robot().records()->sensors.find("eye")->settings.get());
    EXPECT_EQ(eye.settings()->camera->width, 640);
    EXPECT_EQ(model.tactileSensor("skin")->settings(), nullptr);
    EXPECT_EQ(model.cameraDepthSensor("depth")->width(), 64);
    EXPECT_EQ(model.cameraSensor("old")->height(), 200);
    EXPECT_EQ(model.cameraSensor("own")->width(), 800);
    EXPECT_EQ(model.cameraSensor("own")->frame()->localPosition().position().z, 3.0F);
    EXPECT_EQ(model.arrayDepthSensor("scan")->width(), 12);
    EXPECT_EQ(model.arrayDepthSensor("scan")->height(), 2);
}

TEST(UrdfSensors, KeepTheirSettingsInAllThreeStyles)
{
    auto const robot = onlyReading(dataFile("sensor_settings.urdf"));
    Records const* const records = robot->records();
    auto const settingsOf = [&](char const* name) -> SensorSettings const& {
        return *records->sensors.find(name)->settings;
    };
    for (char const* name : {"nested", "attributes", "old"}) {
        SCOPED_TRACE(name);
        CameraSettings const& camera = *settingsOf(name).camera;
        EXPECT_EQ(settingsOf(name).updateRate, 25.0F);
        EXPECT_NEAR(camera.horizontalFieldOfView, 1.0471976F, 1e-6F);
        EXPECT_EQ(camera.width, 64);
        EXPECT_EQ(camera.height, 48);
        EXPECT_EQ(camera.format, "R8G8B8");
        EXPECT_EQ(camera.nearClip, 0.1F);
        EXPECT_EQ(camera.farClip, 30.0F);
    }
    for (char const* name : {"sweep", "flat", "old_sweep"}) {
        SCOPED_TRACE(name);
        ScanSettings const& scan = *settingsOf(name).horizontalScan;
        EXPECT_EQ(scan.samples, 8);
        EXPECT_EQ(scan.resolution, 0.5F);
        EXPECT_NEAR(scan.minimumAngle, -1.5707964F, 1e-6F);
        EXPECT_NEAR(scan.maximumAngle, 0.7853982F, 1e-6F);
    }
    EXPECT_EQ(settingsOf("sweep").verticalScan->samples, 3);
    EXPECT_EQ(settingsOf("sweep").range->minimum, 0.2F);
    EXPECT_EQ(settingsOf("sweep").range->maximum, std::numeric_limits<float>::infinity());
    EXPECT_EQ(settingsOf("sweep").range->resolution, 0.01F);
    EXPECT_EQ(settingsOf("old_sweep").range->maximum, 10.0F);
    EXPECT_EQ(settingsOf("echo").range->maximum, 4.0F);
    EXPECT_EQ(records->sensors.find("silent")->settings, nullptr);

    std::string noises;
    for (char const* name : {"nested", "imu", "old_imu"}) {
        for (NoiseSettings const& noise : settingsOf(name).noises) {
            noises += noise.quantity + "/" + noise.type + " " + std::to_string(noise.mean).substr(0, 3) + " " +
                      std::to_string(noise.standardDeviation).substr(0, 3) + " " +
                      std::to_string(noise.biasMean).substr(0, 3) + "\n";
        }
    }
    EXPECT_EQ(noises,
              "/gaussian 0.1 0.2 0.0\n"
              "angular_velocity/x/gaussian 0.0 0.3 0.0\n"
              "linear_acceleration/z/gaussian_quantized 0.0 0.4 0.5\n"
              "rate/gaussian 0.0 0.6 0.7\n"
              "accel/gaussian 0.8 0.9 0.0\n");
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
