#include <cmath>
#include <set>
#include <stdexcept>
#include <string>

#include "fuzzing.hpp"
#include "queries.hpp"
#include "sim/configuration.hpp"
#include "sim/kinematics.hpp"

namespace Fuzz {

namespace {

using Sim::MotionModel;

/// Queries that answer whether they know the name, and write what they know.
template <class... Answers>
void ask(MotionModel const& model, std::string const& name,
         bool (MotionModel::*... queries)(std::string const&, Answers&) const)
{
    auto const askOne = [&](auto query, auto answer) { static_cast<void>((model.*query)(name, answer)); };
    (askOne(queries, Answers()), ...);
}

void askOfBodies(MotionModel const& model, std::string const& name)
{
    ask(model, name, &MotionModel::startAngle, &MotionModel::parentJointFromActuator,
        &MotionModel::parentJointFromWheel, &MotionModel::maxTorqueFromWheel, &MotionModel::maxVelocityFromWheel,
        &MotionModel::ratioFromJoint, &MotionModel::endTransformFromJointName,
        &MotionModel::endTransformFromSubactuatorName, &MotionModel::endTransformFromWheelName,
        &MotionModel::transformFromWheel, &MotionModel::transformFromActuator, &MotionModel::meshNameFromJointName,
        &MotionModel::meshTransformFromJointName, &MotionModel::CoM, &MotionModel::mass, &MotionModel::inertiaMatrix,
        &MotionModel::frictionMaterial, &MotionModel::minAngle, &MotionModel::maxAngle, &MotionModel::maxAngleSpeed);
    Varo::Math::Transform transform;
    std::string parent;
    static_cast<void>(model.transformFromSensorName(name, transform, parent));
    static_cast<void>(model.transformFromJointName(name, transform, parent));
    static_cast<void>(model.transformFromSubactuatorName(name, transform, parent));
    demand((model.findJoint(name) != nullptr) == model.records().joints.contains(name), "joints are found by name");
}

void askOfStructure(MotionModel& model, std::string const& name)
{
    static_cast<void>(model.parentJointFromChain(name));
    static_cast<void>(model.jointNames(name));
    static_cast<void>(model.angleActuatorNames(name));
    static_cast<void>(model.actuatorNames(name));
    static_cast<void>(model.coupledActuatorNames(name));
    static_cast<void>(model.chainNameFromJoint(name));
    static_cast<void>(model.followingJoints(name));
    static_cast<void>(model.chainAnchorJoints(name));
    std::vector<std::string> names;
    std::list<std::string> list;
    std::string written;
    bool is = false;
    model.followingJointsFromSubactuators(name, names);
    static_cast<void>(model.jointsFromActuator(name, list));
    static_cast<void>(model.coupledJointGroupFromParentJoint(name, written, names));
    static_cast<void>(model.mirrorNameFromJointName(name, written, is));
    static_cast<void>(model.mirrorNameFromSubjointName(name, written, is));
    static_cast<void>(model.mirrorNameFromActuatorName(name, written, is));
    static_cast<void>(model.reflectionForcedFromJointName(name, is));
}

void askOfDevices(MotionModel const& model, std::string const& name)
{
    ask(model, name, &MotionModel::dcmKeysFromSensorName, &MotionModel::dcmCommandKeys, &MotionModel::dcmStateKeys,
        &MotionModel::shortnameFromLED, &MotionModel::groupsFromLED, &MotionModel::resolutionsFromCamera);
    int color = 0;
    static_cast<void>(model.colorFromLED(name, &color));
    static_cast<void>(model.sensorType(name));
}

template <class Table>
void addNames(Table const& table, std::set<std::string>& names)
{
    for (auto const& record : table) {
        names.insert(record.name);
    }
}

/// A name or a value may be one that is refused, in the way that is promised.
template <class Question>
void askOrBeRefused(Question const& question)
{
    try {
        question();
    } catch (std::invalid_argument const&) {
    }
}

void askOfFrame(Sim::Kinematics const& kinematics, Sim::Configuration const& at, Sim::Frame const& frame)
{
    static_cast<void>(kinematics.pose(at, frame));
    static_cast<void>(kinematics.pose(at, frame, kinematics.frame(frame.name())));
    static_cast<void>(kinematics.jacobian(at, frame, &frame));
}

void setAll(Sim::Configuration& configuration, Sim::Kinematics const& kinematics)
{
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        configuration.set(i, 0.25);
        static_cast<void>(configuration.distanceToLimits(i));
        demand(kinematics.variableOf(kinematics.variables()[i].name) <= i, "the first variable of a name is found");
    }
    askOrBeRefused([&] { configuration.checkLimits(); });
    configuration.clampToLimits();
    askOrBeRefused([&] { configuration.set(0, HUGE_VAL); });
    askOrBeRefused([&] { configuration.set("no name", 0.0); });
}

}  // namespace

void askMotionModel(MotionModel& model)
{
    auto const& records = model.records();
    std::set<std::string> names = {"", "no name", model.rootName()};
    addNames(records.joints, names);
    addNames(records.chains, names);
    addNames(records.actuators, names);
    addNames(records.subActuators, names);
    addNames(records.sensors, names);
    addNames(records.wheels, names);
    for (std::string const& name : names) {
        askOfBodies(model, name);
        askOfStructure(model, name);
        askOfDevices(model, name);
    }
    static_cast<void>(model.name() + model.prettyName(0) + model.version());
    demand(model.chainNames().size() == records.chainOrder.size(), "all chains have names");
    demand(model.wheelNames().size() == records.wheels.size(), "all wheels have names");
    demand(model.sensorNames().size() == records.sensors.size(), "all sensors have names");
    demand(model.actuatorNames().size() >= model.coupledActuatorNames().size(), "coupled actuators are actuators");
    demand(model.jointNames().size() >= model.angleActuatorNames().size(), "angle actuators are of joints");
}

void askKinematics(Sim::Model const& model)
{
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics);
    setAll(configuration, kinematics);
    demand(kinematics.linkPoses(configuration).size() == model.links().size(), "every link has a pose");
    static_cast<void>(kinematics.massProperties(configuration));
    static_cast<void>(kinematics.centerOfMassJacobian(configuration));
    for (Sim::Link const* link : model.links()) {
        demand(model.links()[kinematics.linkIndex(*link)] == link, "links have their index");
        static_cast<void>(kinematics.massProperties(configuration, *link));
        askOfFrame(kinematics, configuration, *link->frame());
    }
    for (Sim::Joint const* joint : model.joints()) {
        static_cast<void>(configuration.at(joint->name()));
        askOfFrame(kinematics, configuration, *joint->frame());
        askOrBeRefused([&] { configuration.set(joint->name(), 0.5); });
    }
    for (Varo::Model::PostureConfig const& posture : model.postures()) {
        askOrBeRefused([&] { configuration.setPosture(posture.name); });
    }
}

}  // namespace Fuzz
