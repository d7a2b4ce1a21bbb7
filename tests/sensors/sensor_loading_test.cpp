#include <gmock/gmock.h>

#include "captured_log.hpp"
#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/model.hpp"
#include "throws.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::string const arm = joint("Elbow") + chain("Arm", "Base", {"Elbow"});

/// Type and size of a reading of every sensor.
std::vector<std::pair<int, int>> kindsOf(Sim::Model const& model)
{
    std::vector<std::pair<int, int>> kinds;
    for (Sim::Sensor const* each : model.sensors()) {
        kinds.emplace_back(each->type(), each->bufferSize());
    }
    return kinds;
}

}  // namespace

TEST(SensorLoading, MakesTheKindThatTheDescriptionNames)
{
    struct {
        char const* type;
        std::string inside;
        std::vector<std::pair<int, int>> typeAndSize;
    } const cases[] = {
        {"tactile", "", {{Sim::Sensor::Tactile, 4}}},
        {"camera", attribute("resolutions", "64 48&#10;32 24"), {{Sim::Sensor::Camera, 64 * 48 * 12}}},
        {"depthCamera", attribute("resolutions", "32 24"), {{Sim::Sensor::CameraDepth, 32 * 24 * 4}}},
        {"bumper", "", {{Sim::Sensor::Bumper, 4}}},
        {"microphone", "", {{Sim::Sensor::Microphone, 4}}},
        {"arrayDepth", keys(8), {{Sim::Sensor::ArrayDepth, 32}}},
        {"sonar", keys(1), {{Sim::Sensor::Sonar, 4}}},
        {"sonar", keys(10), {{Sim::Sensor::Sonar, 40}}},
        {"sonar", keys(2), {}},
        {"sonar", "", {}},
        {"fsr", "", {{Sim::Sensor::FSR, 4}}},
        {"inertial", "", {{Sim::Sensor::Inertial, 28}}},
        {"led", "", {}},
        {"battery", "", {}},
        {"temperature", "", {}},
        {"button", "", {}},
        {"unknown", "", {}},
    };
    for (auto const& [type, inside, expected] : cases) {
        std::string const text = robot(sensor("S", "Base", type, inside));
        EXPECT_EQ(kindsOf(Sim::Model(text)), expected) << type;
        EXPECT_NE(Sim::ModelImpl(text).frame("S"), nullptr) << "a frame is made whatever becomes of the sensor";
    }
}

TEST(SensorLoading, HangsSensorsOnTheRootWhenTheirParentIsNoJoint)
{
    Sim::Model const model(robot(arm + sensor("S", "ElbowLink", "fsr") + sensor("I", "Elbow", "inertial")));
    EXPECT_EQ(model.sensor("S")->frame()->parentFrame()->name(), "BaseLink");
    EXPECT_EQ(model.sensor("I"), nullptr);
    EXPECT_EQ(model.inertialSensor("I/Gyrometer")->frame()->parentFrame()->name(), "ElbowLink");
}

TEST(SensorLoading, GivesArrayDepthSensorsWithoutResolutionsOneRow)
{
    for (std::string const& resolutions : {std::string(), attribute("resolutions", "")}) {
        Sim::Model const model(robot(sensor("Row", "Base", "arrayDepth", keys(8) + resolutions)));
        EXPECT_EQ(model.arrayDepthSensor("Row")->width(), 8);
        EXPECT_EQ(model.arrayDepthSensor("Row")->height(), 1);
    }
}

TEST(SensorLoading, RefusesCamerasWithoutResolutions)
{
    std::string const blank = robot(sensor("Eye", "Base", "depthCamera", attribute("resolutions", "&#10;")));
    EXPECT_EQ(messageOf<std::runtime_error>([&] { Sim::Model const model(blank); }), "Could not get Eye resolutions\n");
}

TEST(SensorLoading, DerivesSensorsFromActuatorsByTheModelsName)
{
    std::string const body = arm + actuator("Hand", "Elbow", "") + wheel("W", "Elbow") + sensor("A", "Base", "fsr");
    using Type = Sim::Sensor::Type;
    EXPECT_THAT(kindsOf(Sim::Model(robot(body, "Helvo"))),
                ElementsAre(Pair(Type::Angle, 4), Pair(Type::Coupled, 4), Pair(Type::FSR, 4)));
    Sim::Model const special(robot(body, "MySpecialSimulationBot"));
    EXPECT_THAT(kindsOf(special), ElementsAre(Pair(Type::Angle, 4), Pair(Type::Torque, 4), Pair(Type::AngleSpeed, 4),
                                              Pair(Type::Coupled, 4), Pair(Type::FSR, 4)));
    EXPECT_EQ(special.torqueSensor("Elbow")->frame(), special.actuator("Elbow")->frame());
    EXPECT_THAT(special.torqueSensor("Elbow")->dcmKeys(), ElementsAre("Elbow/Torque/Sensor"));
    EXPECT_THAT(special.angleSpeedSensor("Elbow")->dcmKeys(), ElementsAre("Elbow/AngularSpeed/Sensor"));
}

TEST(SensorLoading, LogsTheKindsThatHaveNoClass)
{
    std::string const text = robot(sensor("B", "Base", "battery") + sensor("L", "Base", "led"));
    CapturedLog const log;
    zu::log::setLevel("varorobotmodel", zu::log::info);
    Sim::Model const unheard(text);
    EXPECT_THAT(log.lines, IsEmpty());
    zu::log::setLevel("varorobotmodel", zu::log::verbose);
    Sim::Model const model(text);
    EXPECT_THAT(log.lines, ElementsAre("varorobotmodel|5|fetchSensors|Could not find good type for sensor: B"));
    zu::log::setLevel("varorobotmodel", zu::log::error);
}
