#include "sim/model.hpp"

#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/friction.hpp"
#include "throws.hpp"

namespace {

using namespace Tests;
using Sim::Model;
using testing::ElementsAre;
using testing::Pair;

/// Of every kind that loading makes, one or more; all kinds on the joint "J" bear its name.
std::string const everything = robot(
    joint("J") + chain("C", "Base", {"J"}) + wheel("W", "J") +
        actuator("Hand", "J", "<group>" + subJoint("F") + "</group>") + sensor("Led", "J", "led") +
        sensor("J", "J", "camera", attribute("resolutions", "640 480")) +
        sensor("Eye", "J", "camera", attribute("resolutions", "64 48")) +
        sensor("Depth", "J", "depthCamera", attribute("resolutions", "32 24")) + sensor("Skin", "J", "tactile") +
        sensor("Bump", "J", "bumper") + sensor("Ear", "J", "microphone") + sensor("Grid", "J", "arrayDepth", keys(2)) +
        sensor("Echo", "J", "sonar", keys(1)) + sensor("Sole", "J", "fsr") + sensor("Imu", "J", "inertial"),
    "HelvoSpecialSimulation");

/// The elements of a registry that are of class T, in its order.
template <class T, class Base>
std::vector<T const*> ofKind(std::vector<Base const*> const& registry)
{
    std::vector<T const*> found;
    for (Base const* element : registry) {
        if (auto const* const typed = dynamic_cast<T const*>(element)) {
            found.push_back(typed);
        }
    }
    return found;
}

template <class T>
using One = T const* (Model::*)(std::string const&) const;
template <class T>
using All = std::vector<T const*> (Model::*)() const;

/// A kind has as many elements as expected, all of which are found by name, past those of other kinds.
template <class T>
void expectKind(Model const& model, std::size_t count, One<T> one, std::vector<T const*> const& all)
{
    SCOPED_TRACE(typeid(T).name());
    EXPECT_EQ(all.size(), count);
    if constexpr (std::is_base_of_v<Sim::Sensor, T>) {
        EXPECT_EQ(all, ofKind<T>(model.sensors()));
    } else if constexpr (std::is_base_of_v<Sim::Actuator, T>) {
        EXPECT_EQ(all, ofKind<T>(model.actuators()));
    }
    for (T const* element : all) {
        EXPECT_EQ((model.*one)(element->name()), element);
    }
    EXPECT_EQ((model.*one)("nobody"), nullptr);
}

template <class T>
void expectKind(Model const& model, std::size_t count, One<T> one, All<T> all)
{
    expectKind(model, count, one, (model.*all)());
}

}  // namespace

TEST(Model, FindsElementsOfEveryKindByName)
{
    Model const model(everything);
    expectKind(model, 3, &Model::joint, &Model::joints);
    expectKind(model, 4, &Model::link, &Model::links);
    expectKind(model, 2, &Model::jointGroup, &Model::jointGroups);
    expectKind(model, 1, &Model::actuatorGroup, &Model::actuatorGroups);
    expectKind(model, 1, &Model::angleActuator, &Model::angleActuators);
    expectKind(model, 1, &Model::angleSpeedActuator, &Model::angleSpeedActuators);
    expectKind(model, 1, &Model::torqueActuator, &Model::torqueActuators);
    expectKind(model, 1, &Model::coupledActuator, &Model::coupledActuators);
    expectKind(model, 0, &Model::wheelTorqueActuator, &Model::wheelTorqueActuators);
    expectKind(model, 1, &Model::wheelVelocityActuator, &Model::wheelVelocityActuators);
    expectKind(model, 1, &Model::ledActuator, model.ledActuators(""));
    expectKind(model, 1, &Model::angleSensor, &Model::angleSensors);
    expectKind(model, 1, &Model::angleSpeedSensor, &Model::angleSpeedSensors);
    expectKind(model, 1, &Model::torqueSensor, &Model::torqueSensors);
    expectKind(model, 1, &Model::coupledSensor, &Model::coupledSensors);
    expectKind(model, 0, &Model::wheelVelocitySensor, &Model::wheelVelocitySensors);
    expectKind(model, 1, &Model::tactileSensor, &Model::tactileSensors);
    expectKind(model, 2, &Model::cameraSensor, &Model::cameraSensors);
    expectKind(model, 1, &Model::cameraDepthSensor, &Model::cameraDepthSensors);
    expectKind(model, 1, &Model::bumperSensor, &Model::bumperSensors);
    expectKind(model, 1, &Model::microphoneSensor, &Model::microphoneSensors);
    expectKind(model, 0, &Model::singleDepthSensor, &Model::singleDepthSensors);
    expectKind(model, 1, &Model::arrayDepthSensor, &Model::arrayDepthSensors);
    expectKind(model, 1, &Model::sonarSensor, &Model::sonarSensors);
    expectKind(model, 1, &Model::fsrSensor, &Model::fsrSensors);
    expectKind(model, 1, &Model::inertialSensor, &Model::inertialSensors);
    EXPECT_EQ(model.sensor("J")->type(), Sim::Sensor::Angle) << "the first of that name, whatever its kind";
    EXPECT_EQ(model.actuator("J")->type(), Sim::Actuator::Angle);
}

TEST(Model, GivesEveryKindOfDeviceTheNumberThatConsumersCountOn)
{
    std::map<int, std::string> sensors;
    std::apply([&](auto const&... kind) { (sensors.emplace(kind.type, kind.name), ...); }, Sim::sensorKinds);
    EXPECT_THAT(sensors,
                ElementsAre(Pair(0, "Angle"), Pair(1, "Coupled"), Pair(2, "Sonar"), Pair(3, "Camera"), Pair(4, "FSR"),
                            Pair(5, "Inertial"), Pair(6, "Bumper"), Pair(7, "Torque"), Pair(8, "AngleSpeed"),
                            Pair(9, "WheelVelocity"), Pair(10, "Tactile"), Pair(12, "SingleDepth"),
                            Pair(13, "ArrayDepth"), Pair(14, "CameraDepth"), Pair(15, "Microphone")));
    std::map<int, std::string> actuators;
    std::apply([&](auto const&... kind) { (actuators.emplace(kind.type, kind.name), ...); }, Sim::actuatorKinds);
    EXPECT_THAT(actuators, ElementsAre(Pair(0, "Angle"), Pair(1, "Coupled"), Pair(2, "Torque"), Pair(3, "AngleSpeed"),
                                       Pair(4, "WheelTorque"), Pair(5, "WheelVelocity"), Pair(6, "LED")));
}

TEST(Model, FindsLinksByWhatTheDescriptionCallsThemOnlyWhereNoneHasTheName)
{
    std::string const text = robot(joint("J", "", "link=\"arm\"") + joint("K", "", "link=\"JLink\"") + joint("L") +
                                   chain("C", "Base", {"J", "K", "L"}) + wheel("W", "L"));
    Model const model(text);
    EXPECT_THAT(namesOf(std::vector{model.link("arm"), model.link("JLink"), model.link("KLink"), model.link("L")}),
                ElementsAre("JLink", "JLink", "KLink", "-"));
    std::vector<std::string> names;
    for (Sim::Link const* link : model.links()) {
        names.push_back(link->descriptionName());
    }
    EXPECT_THAT(names, ElementsAre("BaseLink", "arm", "JLink", "LLink", "WLink"));
    EXPECT_EQ(Sim::ModelImpl(text).link("arm"), nullptr) << "loading goes by the model's names";
}

TEST(Model, AnswersUnknownNamesWithNullOrNothing)
{
    Model const model(everything);
    EXPECT_EQ(model.joint("j"), nullptr) << "letters of another case are others";
    EXPECT_EQ(model.joint("Base"), nullptr) << "there is no joint at the root";
    EXPECT_EQ(model.link("J"), nullptr) << "a link bears its joint's name and \"Link\"";
    EXPECT_EQ(model.jointSymmetry("J"), nullptr);
    EXPECT_TRUE(model.jointGroupsOfJoint("X").empty());
    EXPECT_TRUE(model.actuatorGroupsOfJoint("X").empty());
    EXPECT_TRUE(model.ledActuators("X").empty());
}

TEST(Model, SaysOnEveryCallThatTheInfraredQueriesAreDeprecated)
{
    Model model(robot(""));
    testing::internal::CaptureStdout();
    EXPECT_EQ(model.depthInfraredSensor("X"), nullptr);
    EXPECT_TRUE(model.depthInfraredSensors().empty());
    Model const target(std::move(model));
    EXPECT_EQ(messageOf<std::runtime_error>([&] { static_cast<void>(model.depthInfraredSensor("X")); }),
              "Could not query Model as it seems not correctly constructed.");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "depthInfraredSensor is deprecated, use singleDepthSensor instead.\n"
              "depthInfraredSensors is deprecated, use singleDepthSensors instead.\n"
              "depthInfraredSensor is deprecated, use singleDepthSensor instead.\n");
}

TEST(Model, KnowsFrictionBetweenMaterials)
{
    float coefficient = 0.0F;
    EXPECT_TRUE(Sim::frictionCoeff("steel", "aluminium", coefficient));
    EXPECT_EQ(coefficient, 0.61F);
    EXPECT_FALSE(Sim::frictionCoeff("steel", "moonlight", coefficient));
}
