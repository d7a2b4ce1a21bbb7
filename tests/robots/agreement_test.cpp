#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "example_robots.hpp"
#include "sim/model.hpp"
#include "sim/motion_model.hpp"
#include "varo/model/model_utils.hpp"

// The object model and the name-based one must tell the same of a robot, element by element and getter by getter.
namespace {

namespace Utils = Varo::Model::ModelUtils;
using testing::ElementsAreArray;
using Tests::namesOf;
using Varo::Math::Transform;
using Motion = Sim::MotionModel;
using Names = std::vector<std::string>;

std::string const linkSuffix = "Link";

Names vectorOf(std::list<std::string> const& names)
{
    return {names.begin(), names.end()};
}

class Agreement : public testing::TestWithParam<char const*> {
protected:
    Sim::Model const model{Tests::examplePath(GetParam())};
    Motion motion{model.configFile()};

    /// What the query writes; `value` when it does not.
    template <class Value, class Argument>
    Value asked(bool (Motion::*query)(std::string const&, Argument) const, std::string const& name,
                Value value = {}) const
    {
        (motion.*query)(name, value);
        return value;
    }

    bool isWheel(std::string const& name) const
    {
        std::string parent;
        return motion.parentJointFromWheel(name, parent);
    }

    /// The joints behind that one, depth first.
    void appendJointsBehind(std::string const& joint, Names& joints) const
    {
        for (std::string const& next : motion.followingJoints(joint)) {
            joints.push_back(next);
            appendJointsBehind(next, joints);
        }
    }

    /// What a joint is attached to, and its pose in the frame of the link before it.
    std::pair<std::string, Transform> placeOf(std::string const& joint, std::string const& linkBefore)
    {
        Transform pose;
        if (isWheel(joint)) {
            motion.transformFromWheel(joint, pose);
            return {asked<std::string>(&Motion::parentJointFromWheel, joint), pose};
        }
        std::string parent = linkBefore.substr(0, linkBefore.size() - linkSuffix.size());
        EXPECT_TRUE(motion.transformFromJointName(joint, pose, parent));
        bool const isFirst = parent == "rootFrame";
        return {isFirst ? motion.parentJointFromChain(motion.chainNameFromJoint(joint)) : parent, pose};
    }

    template <class Actuator>
    void expectMirrored(Actuator const* actuator) const
    {
        std::string mirror;
        bool reflected = false;
        bool const isMirrored = motion.mirrorNameFromJointName(actuator->name(), mirror, reflected) && !mirror.empty();
        ASSERT_EQ(actuator->reflectedSymmetric() != nullptr, isMirrored);
        EXPECT_EQ(isMirrored ? actuator->reflectedSymmetric()->name() : "", mirror);
        EXPECT_EQ(actuator->reflectedSymmetricReversed(), reflected);
    }

    template <class Actuator>
    void expectLimits(Actuator const* actuator) const
    {
        struct {
            float (Actuator::*getter)() const;
            bool (Motion::*query)(std::string const&, float&) const;
        } const limits[] = {{&Actuator::startValue, &Motion::startAngle},
                            {&Actuator::minValue, &Motion::minAngle},
                            {&Actuator::maxValue, &Motion::maxAngle},
                            {&Actuator::maxSpeed, &Motion::maxAngleSpeed}};
        for (auto const& [getter, query] : limits) {
            EXPECT_EQ((actuator->*getter)(), asked<float>(query, actuator->name()));
        }
        EXPECT_EQ(actuator->reflectionForced(), asked<bool>(&Motion::reflectionForcedFromJointName, actuator->name()));
    }

    /// The actuators that share the joint and place of the angle actuators, with the keys of that kind.
    template <class Actuator>
    void expectBesideAngles(std::vector<Actuator const*> const& actuators, int keyKind) const
    {
        ASSERT_THAT(namesOf(actuators), ElementsAreArray(motion.angleActuatorNames()));
        for (Actuator const* actuator : actuators) {
            SCOPED_TRACE(actuator->name());
            EXPECT_EQ(actuator->frame(), model.angleActuator(actuator->name())->frame());
            EXPECT_EQ(actuator->controlledJoint(), model.joint(actuator->name()));
            EXPECT_EQ(actuator->dcmKeys(), Utils::getJointDCMKeys({actuator->name()}, keyKind));
            expectMirrored(actuator);
        }
    }

    /// Frame and keys of the elements made of the described sensors of one type.
    template <class Device>
    void expectDevices(Varo::Model::SensorType type, std::vector<Device const*> const& devices,
                       std::string const& suffix = {}) const
    {
        Names expected;
        for (std::string const& name : motion.sensorNames()) {
            if (motion.sensorType(name) == type) {
                expected.push_back(name + suffix);
            }
        }
        ASSERT_EQ(namesOf(devices), expected);
        for (Device const* device : devices) {
            SCOPED_TRACE(device->name());
            std::string const name = device->frame()->name();
            EXPECT_EQ(name + suffix, device->name());
            Transform pose;
            std::string parent;
            EXPECT_TRUE(motion.transformFromSensorName(name, pose, parent));
            EXPECT_EQ(device->frame()->localPosition(), pose);
            EXPECT_EQ(device->frame()->parentFrame()->name(), parent + linkSuffix);
            if constexpr (!std::is_base_of_v<Sim::BaseCamera, Device> &&
                          !std::is_same_v<Sim::MicrophoneSensor, Device>) {
                EXPECT_EQ(device->dcmKeys(), asked<Names>(&Motion::dcmKeysFromSensorName, name));
            }
        }
    }

    template <class Device>
    void expectSizes(std::vector<Device const*> const& devices) const
    {
        for (Device const* device : devices) {
            std::vector<std::pair<int, int>> resolutions;
            if (motion.resolutionsFromCamera(device->name(), resolutions)) {
                EXPECT_EQ(std::pair(device->width(), device->height()), resolutions.front()) << device->name();
            }
        }
    }
};

TEST_P(Agreement, OnIdentityAndTree)
{
    EXPECT_EQ(model.name(), motion.name());
    for (int const index : {0, 1, 2}) {
        EXPECT_EQ(model.prettyName(index), motion.prettyName(index));
    }
    Names joints;
    appendJointsBehind(motion.rootName(), joints);
    Names const wheels = vectorOf(motion.wheelNames());
    joints.insert(joints.end(), wheels.begin(), wheels.end());
    EXPECT_EQ(namesOf(model.joints()), joints);
    joints.insert(joints.begin(), motion.rootName());
    std::for_each(joints.begin(), joints.end(), [](std::string& name) { name += linkSuffix; });
    EXPECT_EQ(namesOf(model.links()), joints);
    EXPECT_EQ(model.rootLink(), model.links().front());
}

TEST_P(Agreement, OnTheBodyOfEveryLink)
{
    for (Sim::Link const* link : model.links()) {
        SCOPED_TRACE(link->name());
        std::string const name = link->name().substr(0, link->name().size() - linkSuffix.size());
        EXPECT_EQ(link->mass()->mass(), asked<float>(&Motion::mass, name));
        EXPECT_EQ(link->mass()->CoM(), asked<Varo::Math::Position3D>(&Motion::CoM, name));
        EXPECT_EQ(link->mass()->inertiaMatrix(), asked(&Motion::inertiaMatrix, name, std::vector<float>(9, 0.0F)));
        EXPECT_EQ(link->frictionMaterial(), asked<std::string>(&Motion::frictionMaterial, name));
        EXPECT_EQ(link->visual()->meshPath(), asked<std::string>(&Motion::meshNameFromJointName, name));
        EXPECT_EQ(link->visual()->meshTransform(), asked<Transform>(&Motion::meshTransformFromJointName, name));
        EXPECT_EQ(link->type(), isWheel(name) ? Sim::Link::Wheel : Sim::Link::Regular);
        EXPECT_EQ(link->frame()->name(), link->name());
        EXPECT_EQ(link->frame()->localPosition(), asked<Transform>(&Motion::endTransformFromJointName, name));
        EXPECT_EQ(link->parentJoint(), model.joint(name));
        EXPECT_EQ(link->frame()->parentFrame(), link->parentJoint() ? link->parentJoint()->frame() : nullptr);
        auto children = model.joints();
        auto const isElsewhere = [&](Sim::Joint const* joint) { return joint->parentLink() != link; };
        children.erase(std::remove_if(children.begin(), children.end(), isElsewhere), children.end());
        EXPECT_EQ(link->childrenJoints(), children);
    }
}

TEST_P(Agreement, OnThePlaceAndTheMirrorOfEveryJoint)
{
    for (Sim::Joint const* joint : model.joints()) {
        SCOPED_TRACE(joint->name());
        auto const [parent, pose] = placeOf(joint->name(), joint->parentLink()->name());
        EXPECT_EQ(joint->parentLink()->name(), parent + linkSuffix);
        EXPECT_EQ(joint->childLink(), model.link(joint->name() + linkSuffix));
        EXPECT_EQ(joint->frame()->name(), joint->name());
        EXPECT_EQ(joint->frame()->parentFrame(), joint->parentLink()->frame());
        EXPECT_EQ(joint->frame()->localPosition(), pose);
        EXPECT_EQ(joint->frame()->position(), pose);

        std::string mirror;
        bool reflected = false;
        bool const isMirrored = motion.mirrorNameFromJointName(joint->name(), mirror, reflected);
        Sim::JointSymmetry const* const symmetry = model.jointSymmetry(joint->name());
        ASSERT_EQ(symmetry != nullptr, isMirrored);
        if (isMirrored) {
            EXPECT_EQ(symmetry->symmetricJoint(joint), model.joint(mirror));
            EXPECT_EQ(symmetry->symmetryType(), reflected ? Sim::JointSymmetry::ReflectedSymmetricReversed
                                                          : Sim::JointSymmetry::ReflectedSymmetric);
        }
    }
}

TEST_P(Agreement, OnGroups)
{
    using Groups = std::vector<std::pair<std::string, Names>>;
    Groups joints;
    Groups actuators;
    Names parents;
    for (std::string const& chain : motion.chainNames()) {
        for (std::string const& joint : motion.jointNames(chain)) {
            std::string actuator;
            Names members;
            if (motion.coupledJointGroupFromParentJoint(joint, actuator, members)) {
                joints.emplace_back(actuator, members);
            }
        }
        joints.emplace_back(chain, vectorOf(motion.jointNames(chain)));
        actuators.emplace_back(chain, vectorOf(motion.actuatorNames(chain)));
        parents.push_back(motion.chainNameFromJoint(motion.parentJointFromChain(chain)));
    }
    Groups foundJoints;
    for (Sim::JointGroup const* group : model.jointGroups()) {
        foundJoints.emplace_back(group->name(), namesOf(group->joints()));
    }
    EXPECT_EQ(foundJoints, joints);
    Groups foundActuators;
    Names foundParents;
    for (Sim::ActuatorGroup const* group : model.actuatorGroups()) {
        foundActuators.emplace_back(group->name(), namesOf(group->actuators()));
        foundParents.push_back(group->parent() == nullptr ? "" : group->parent()->name());
    }
    EXPECT_EQ(foundActuators, actuators);
    EXPECT_EQ(foundParents, parents) << "the example robots list each chain behind the one it is attached to";
}

TEST_P(Agreement, OnMotorsOfJoints)
{
    expectBesideAngles(model.angleActuators(), Utils::angleActuator);
    for (Sim::AngleActuator const* actuator : model.angleActuators()) {
        SCOPED_TRACE(actuator->name());
        expectLimits(actuator);
        EXPECT_EQ(actuator->frame()->parentFrame(), actuator->controlledJoint()->childLink()->frame());
        EXPECT_EQ(actuator->frame()->localPosition(),
                  asked<Transform>(&Motion::endTransformFromJointName, actuator->name()).inverse());
    }
    if (motion.name().find("Helvo") != std::string::npos) {
        expectBesideAngles(model.torqueActuators(), Utils::torqueActuator);
        expectBesideAngles(model.angleSpeedActuators(), Utils::angularSpeedActuator);
    } else {
        EXPECT_TRUE(model.torqueActuators().empty() && model.angleSpeedActuators().empty());
    }
    ASSERT_THAT(namesOf(model.angleSensors()), ElementsAreArray(motion.angleActuatorNames()));
    for (Sim::AngleSensor const* sensor : model.angleSensors()) {
        EXPECT_EQ(sensor->frame(), model.angleActuator(sensor->name())->frame());
        EXPECT_EQ(sensor->dcmKeys(), Utils::getJointDCMKeys({sensor->name()}, Utils::angleSensor));
    }
}

TEST_P(Agreement, OnCoupledMotors)
{
    ASSERT_THAT(namesOf(model.coupledActuators()), ElementsAreArray(motion.coupledActuatorNames()));
    ASSERT_THAT(namesOf(model.coupledSensors()), ElementsAreArray(motion.coupledActuatorNames()));
    for (Sim::CoupledActuator const* actuator : model.coupledActuators()) {
        SCOPED_TRACE(actuator->name());
        expectLimits(actuator);
        expectMirrored(actuator);
        std::vector<std::pair<Sim::Joint const*, float>> driven;
        for (std::string const& joint : asked<std::list<std::string>>(&Motion::jointsFromActuator, actuator->name())) {
            driven.emplace_back(model.joint(joint), asked<float>(&Motion::ratioFromJoint, joint));
        }
        EXPECT_EQ(actuator->controlledJointAndRatios(), driven);
        EXPECT_EQ(actuator->frame()->parentFrame()->name(),
                  asked<std::string>(&Motion::parentJointFromActuator, actuator->name()));
        EXPECT_EQ(actuator->frame()->localPosition(),
                  asked<Transform>(&Motion::transformFromActuator, actuator->name()).inverse());
        EXPECT_EQ(actuator->dcmKeys(), Utils::getActuatorDCMKeys({actuator->name()}, Utils::angleActuator));
        Sim::CoupledSensor const* const sensor = model.coupledSensor(actuator->name());
        EXPECT_EQ(sensor->frame(), actuator->frame());
        EXPECT_EQ(sensor->dcmKeys(), Utils::getActuatorDCMKeys({actuator->name()}, Utils::angleSensor));
    }
}

TEST_P(Agreement, OnWheels)
{
    ASSERT_THAT(namesOf(model.wheelVelocityActuators()), ElementsAreArray(motion.wheelNames()));
    for (Sim::WheelVelocityActuator const* wheel : model.wheelVelocityActuators()) {
        EXPECT_EQ(wheel->maxVelocity(), asked<float>(&Motion::maxVelocityFromWheel, wheel->name()));
        EXPECT_EQ(wheel->controlledJoint(), model.joint(wheel->name()));
        EXPECT_EQ(wheel->frame(), model.link(wheel->name() + linkSuffix)->frame());
        EXPECT_EQ(wheel->dcmKeys(), Utils::getWheelDCMKeys({wheel->name()}, Utils::angularSpeedActuator));
    }
}

TEST_P(Agreement, OnDevices)
{
    expectDevices(Varo::Model::led, model.ledActuators(""));
    expectDevices(Varo::Model::tactile, model.tactileSensors());
    expectDevices(Varo::Model::camera, model.cameraSensors());
    expectDevices(Varo::Model::depthCamera, model.cameraDepthSensors());
    expectDevices(Varo::Model::bumper, model.bumperSensors());
    expectDevices(Varo::Model::microphone, model.microphoneSensors());
    expectDevices(Varo::Model::arrayDepth, model.arrayDepthSensors());
    expectDevices(Varo::Model::sonar, model.sonarSensors());
    expectDevices(Varo::Model::fsr, model.fsrSensors());
    expectDevices(Varo::Model::inertial, model.inertialSensors(), "/Gyrometer");
    expectSizes(model.cameraSensors());
    expectSizes(model.cameraDepthSensors());
    expectSizes(model.arrayDepthSensors());
    for (Sim::ArrayDepthSensor const* grid : model.arrayDepthSensors()) {
        EXPECT_EQ(grid->dcmStateKeys(), asked<Names>(&Motion::dcmStateKeys, grid->name()));
        EXPECT_EQ(grid->dcmCommandKeys(), asked<Names>(&Motion::dcmCommandKeys, grid->name()));
    }
    for (Sim::LEDActuator const* led : model.ledActuators("")) {
        int color = -1;
        EXPECT_TRUE(motion.colorFromLED(led->name(), &color));
        EXPECT_EQ(led->color(), color);
        EXPECT_EQ(led->shortname(), asked<std::string>(&Motion::shortnameFromLED, led->name()));
        EXPECT_EQ(led->groups(), asked<Names>(&Motion::groupsFromLED, led->name()));
    }
}

// Without the mobile arm: among the names behind a member of a coupling that mimics make are the other members, so that
// walking from name to name leads back.
INSTANTIATE_TEST_SUITE_P(All, Agreement, testing::Values("minimal", "rover", "humanoid", "helvo_arm", "quadruped"),
                         [](auto const& robot) { return std::string(robot.param); });

}  // namespace
