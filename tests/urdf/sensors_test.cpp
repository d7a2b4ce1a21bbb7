#include <gmock/gmock.h>

#include "sim/array_depth_sensor.hpp"
#include "sim/camera_depth_sensor.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/frame.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

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
                ElementsAre("sensor-size", "sensor-kind-lost", "renamed", "sensor-lost"));
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
    EXPECT_EQ(model.cameraDepthSensor("depth")->width(), 64);
    EXPECT_EQ(model.cameraSensor("old")->height(), 200);
    EXPECT_EQ(model.cameraSensor("own")->width(), 800);
    EXPECT_EQ(model.cameraSensor("own")->frame()->localPosition().position().z, 3.0F);
    EXPECT_EQ(model.arrayDepthSensor("scan")->width(), 12);
    EXPECT_EQ(model.arrayDepthSensor("scan")->height(), 2);
}

}  // namespace
