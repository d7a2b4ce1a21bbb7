// Whole models: what was read builds, or is refused with findings; then every query is asked, and the dump is made.
#include "sim/model.hpp"

#include <sstream>

#include "fuzzing.hpp"
#include "sim/configuration.hpp"
#include "sim/kinematics.hpp"
#include "sim/motion_model.hpp"
#include "support/robot_json.hpp"

namespace {

/// Of every element by its name, what else answers to it.
void askByName(Sim::Model const& model, std::string const& name)
{
    static_cast<void>(model.joint(name));
    static_cast<void>(model.link(name));
    static_cast<void>(model.actuator(name));
    static_cast<void>(model.sensor(name));
    static_cast<void>(model.jointSymmetry(name));
    static_cast<void>(model.jointGroupsOfJoint(name));
    static_cast<void>(model.actuatorGroupsOfJoint(name));
    static_cast<void>(model.ledActuators(name));
}

void askOfPlaces(Sim::Model const& model)
{
    for (Sim::Link const* link : model.links()) {
        static_cast<void>(model.place(*link));
        static_cast<void>(link->frame()->globalPosition());
        askByName(model, link->name());
    }
    for (Sim::Joint const* joint : model.joints()) {
        static_cast<void>(model.place(*joint));
        askByName(model, joint->name());
    }
    for (Sim::Actuator const* actuator : model.actuators()) {
        static_cast<void>(model.place(*actuator));
        askByName(model, actuator->name());
    }
    for (Sim::Sensor const* sensor : model.sensors()) {
        static_cast<void>(model.place(*sensor));
    }
}

void askOfPoses(Sim::Model const& model)
{
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics);
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        configuration.set(i, 0.25);
    }
    static_cast<void>(kinematics.linkPoses(configuration));
    static_cast<void>(kinematics.massProperties(configuration));
    static_cast<void>(kinematics.centerOfMassJacobian(configuration));
    for (auto const& posture : model.postures()) {
        try {
            configuration.setPosture(posture.name);
        } catch (std::invalid_argument const&) {
            // A posture may give values to what has none.
        }
    }
}

void askMotionModel(std::string const& text)
{
    Sim::MotionModel model(text);
    static_cast<void>(model.actuatorNames());
    static_cast<void>(model.coupledActuatorNames());
    for (std::string const& joint : model.jointNames()) {
        bool isSet = false;
        std::string name;
        static_cast<void>(model.chainNameFromJoint(joint));
        static_cast<void>(model.followingJoints(joint));
        static_cast<void>(model.mirrorNameFromJointName(joint, name, isSet));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text = Fuzz::textOf(data, size);
    auto reading = Varo::Model::ModelUtils::read(text);
    if (reading.robot == nullptr) {
        return 0;
    }
    try {
        Sim::Model const model(std::move(reading));
        static_cast<void>(model.findings());
        askOfPlaces(model);
        askOfPoses(model);
        askMotionModel(text);
        std::ostringstream out;
        Tool::printRobot(out, model);
    } catch (Varo::Model::WithFindings const& error) {
        Fuzz::demand(!error.findings().empty(), "a model that cannot be built says why");
    }
    return 0;
}
