#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/angle_sensor.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/fsr_sensor.hpp"
#include "sim/inertial_sensor.hpp"
#include "sim/model.hpp"
#include "throws.hpp"
#include "zu/log.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::IsEmpty;

std::string const arm = joint("Elbow") + chain("Arm", "Base", {"Elbow"});

/// Collects what is logged for as long as a test runs.
class CapturedLog {
public:
    explicit CapturedLog(int level)
    {
        zu::log::setLevel("varorobotmodel", level);
        zu::log::setSink([this](zu::log::Record const& record) {
            lines.push_back(std::to_string(record.level) + " " + std::string(record.origin) + ": " +
                            std::string(record.message));
        });
    }
    ~CapturedLog()
    {
        zu::log::setSink({});
        zu::log::setLevel("varorobotmodel", zu::log::error);
    }

    std::vector<std::string> lines;
};

std::vector<int> typesOf(Sim::Model const& model)
{
    std::vector<int> types;
    for (Sim::Sensor const* each : model.sensors()) {
        types.push_back(each->type());
    }
    return types;
}

}  // namespace

TEST(SensorLoading, MakesTheKindThatTheDescriptionNames)
{
    struct {
        char const* type;
        std::string inside;
        std::vector<int> expected;
    } const cases[] = {
        {"tactile", "", {Sim::Sensor::Tactile}},
        {"camera", attribute("resolutions", "64 48&#10;32 24"), {Sim::Sensor::Camera}},
        {"depthCamera", attribute("resolutions", "32 24"), {Sim::Sensor::CameraDepth}},
        {"bumper", "", {Sim::Sensor::Bumper}},
        {"microphone", "", {Sim::Sensor::Microphone}},
        {"arrayDepth", keys(8), {Sim::Sensor::ArrayDepth}},
        {"sonar", keys(1), {Sim::Sensor::Sonar}},
        {"sonar", keys(10), {Sim::Sensor::Sonar}},
        {"sonar", keys(2), {}},
        {"sonar", "", {}},
        {"fsr", "", {Sim::Sensor::FSR}},
        {"inertial", "", {Sim::Sensor::Inertial}},
        {"led", "", {}},
        {"battery", "", {}},
        {"temperature", "", {}},
        {"button", "", {}},
        {"unknown", "", {}},
    };
    for (auto const& each : cases) {
        std::string const text = robot(sensor("S", "Base", each.type, each.inside));
        EXPECT_EQ(typesOf(Sim::Model(text)), each.expected) << each.type;
        EXPECT_NE(Sim::ModelImpl(text).frame("S"), nullptr) << "a frame is made whatever becomes of the sensor";
    }
}

TEST(SensorLoading, HangsSensorsOnTheLinkOfTheirJointOrOnTheRoot)
{
    std::string const placement = "<placement xyz='1 2 3'/>";
    Sim::Model const model(robot(arm + sensor("OnElbow", "Elbow", "fsr", placement) +
                                 sensor("OnLink", "ElbowLink", "fsr") + sensor("OnRoot", "Base", "inertial")));
    EXPECT_EQ(model.sensor("OnElbow")->frame()->parentFrame()->name(), "ElbowLink");
    EXPECT_EQ(model.sensor("OnElbow")->frame()->localPosition(), Varo::Math::Transform::fromPosition(1, 2, 3));
    EXPECT_EQ(model.sensor("OnLink")->frame()->parentFrame()->name(), "BaseLink");
    EXPECT_EQ(model.sensor("OnRoot"), nullptr);
    ASSERT_NE(model.inertialSensor("OnRoot/Gyrometer"), nullptr);
    EXPECT_EQ(model.inertialSensor("OnRoot/Gyrometer")->frame()->name(), "OnRoot");
}

TEST(SensorLoading, GivesArrayDepthSensorsTheirGridAndKeys)
{
    std::string const modes = attribute("getOperationMode", "get") + attribute("setOperationMode", "set");
    Sim::Model const model(
        robot(sensor("Bare", "Base", "arrayDepth", keys(8)) +
              sensor("Full", "Base", "arrayDepth", keys(6) + attribute("resolutions", "3 2") + modes) +
              sensor("Blank", "Base", "arrayDepth", keys(4) + attribute("resolutions", ""))));
    EXPECT_EQ(model.arrayDepthSensor("Bare")->width(), 8);
    EXPECT_EQ(model.arrayDepthSensor("Bare")->height(), 1);
    EXPECT_THAT(model.arrayDepthSensor("Bare")->dcmStateKeys(), IsEmpty());
    EXPECT_EQ(model.arrayDepthSensor("Full")->width(), 3);
    EXPECT_EQ(model.arrayDepthSensor("Full")->height(), 2);
    EXPECT_THAT(model.arrayDepthSensor("Full")->dcmStateKeys(), ElementsAre("get"));
    EXPECT_THAT(model.arrayDepthSensor("Full")->dcmCommandKeys(), ElementsAre("set"));
    EXPECT_EQ(model.arrayDepthSensor("Blank")->width(), 4) << "no line is as good as no resolutions";
}

TEST(SensorLoading, RefusesCamerasWithoutResolutions)
{
    for (std::string const type : {"camera", "depthCamera"}) {
        for (std::string const& inside : {std::string(), attribute("resolutions", "&#10;")}) {
            EXPECT_EQ(messageOf<std::runtime_error>(
                          [&] { Sim::Model const model(robot(sensor("Eye", "Base", type, inside))); }),
                      "Could not get Eye resolutions\n");
        }
    }
}

TEST(SensorLoading, DerivesSensorsFromActuatorsByTheModelsName)
{
    std::string const body = arm + actuator("Hand", "Elbow", "<group>" + subJoint("F") + "</group>") +
                             wheel("W", "Elbow") + sensor("A", "Base", "fsr");
    Sim::Model const plain(robot(body, "Helvo"));
    EXPECT_THAT(namesOf(plain.sensors()), ElementsAre("Elbow", "Hand", "A"));
    EXPECT_THAT(typesOf(plain), ElementsAre(Sim::Sensor::Angle, Sim::Sensor::Coupled, Sim::Sensor::FSR));
    EXPECT_EQ(plain.angleSensor("Elbow")->frame(), plain.actuator("Elbow")->frame());
    EXPECT_THAT(plain.angleSensor("Elbow")->dcmKeys(), ElementsAre("Elbow/Angle/Sensor"));

    Sim::Model const special(robot(body, "MySpecialSimulationBot"));
    EXPECT_THAT(typesOf(special), ElementsAre(Sim::Sensor::Angle, Sim::Sensor::Torque, Sim::Sensor::AngleSpeed,
                                              Sim::Sensor::Coupled, Sim::Sensor::FSR));
}

TEST(SensorLoading, LogsTheKindsThatHaveNoClass)
{
    std::string const text = robot(sensor("B", "Base", "battery") + sensor("L", "Base", "led"));
    {
        CapturedLog const quiet(zu::log::info);
        Sim::Model const model(text);
        EXPECT_THAT(quiet.lines, IsEmpty());
    }
    CapturedLog const log(zu::log::verbose);
    Sim::Model const model(text);
    EXPECT_THAT(log.lines, ElementsAre("5 fetchSensors: Could not find good type for sensor: B"));
}
