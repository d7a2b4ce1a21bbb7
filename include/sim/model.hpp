#ifndef SIM_MODEL_HPP
#define SIM_MODEL_HPP

#include <string>
#include <vector>

#include "sim/actuator.hpp"
#include "sim/actuator_group.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/angle_sensor.hpp"
#include "sim/angle_speed_actuator.hpp"
#include "sim/angle_speed_sensor.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/bumper_sensor.hpp"
#include "sim/camera_depth_sensor.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/coupled_sensor.hpp"
#include "sim/frame.hpp"
#include "sim/fsr_sensor.hpp"
#include "sim/inertial_sensor.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/led_actuator.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/microphone_sensor.hpp"
#include "sim/sensor.hpp"
#include "sim/single_depth_sensor.hpp"
#include "sim/sonar_sensor.hpp"
#include "sim/tactile_sensor.hpp"
#include "sim/torque_actuator.hpp"
#include "sim/torque_sensor.hpp"
#include "sim/visual_data.hpp"
#include "sim/wheel_torque_actuator.hpp"
#include "sim/wheel_velocity_actuator.hpp"
#include "sim/wheel_velocity_sensor.hpp"
#include "varo/export.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/model_utils.hpp"
#include "varo/model/place.hpp"
#include "varo/model/robot.hpp"

namespace Sim {

class ModelImpl;

/// A robot: its tree of links and joints, its sensors and actuators, its groups and symmetries.
///
/// All the work is done by the constructor; a model and its elements are immutable from then on, and any number of
/// threads may ask them at once. Every pointer that it returns, directly or through an element, is borrowed and stays
/// valid as long as the model; moving the model keeps them valid.
///
/// Look-ups by name are exact and case-sensitive; those of links know the names of the description, too. Where several
/// elements have a name the first one made answers, and where none does the answer is null. Lists are in the order in
/// which the elements were made. Every query on a model that was moved from throws std::runtime_error, and so does
/// every getter of an element that no model made, such as a default-constructed Joint.
///
/// Beside what is said here and at each function only std::bad_alloc is thrown, and what a sink of zu::log throws. That
/// holds for all elements.
///
/// This header brings those of all elements with it.
class VAROROBOTMODEL_API Model {
public:
    /// Loads the description, native or URDF, that stands in the file of this path or, when there is no such file, in
    /// the string itself. Who knows which of the two it is says so with fromFile() or fromText(): a text is taken for a
    /// path where there is a file that is named like it.
    ///
    /// Throws Varo::Model::DescriptionError, which is a std::invalid_argument, when it is neither a readable file nor a
    /// valid description. Throws BuildError, which is a std::runtime_error, when the description lacks
    /// what its elements need, and StartAngleError, which is a std::out_of_range, when its posture "StandInit" gives an
    /// angle to a name that no chain leads to, or to a joint without a motor. All three say by their findings what is
    /// wrong where. Throws std::bad_alloc when there is not enough memory. Takes time and memory proportional to the
    /// size of the robot.
    explicit Model(std::string const& pathOrXml);
    /// Of a description that was read before, which is not read again. Throws as the constructor above does; for a
    /// reading without a robot, a DescriptionError with its findings. Neither prints nor logs: what building notices is
    /// in the findings.
    explicit Model(Varo::Model::ModelUtils::Reading&& reading);
    /// Of a text, whatever files there are. As `Model(ModelUtils::read(xml))`.
    static Model fromText(std::string xml);
    /// Of the file of that name, which is never taken for a text. As `Model(ModelUtils::readFile(path))`, but what() of
    /// a DescriptionError names the file.
    static Model fromFile(std::string const& path);
    /// Takes over all of `other`, which is then one that was moved from. What `other` handed out stays valid.
    Model(Model&& other) noexcept;
    /// The same; what this model handed out before ends its life.
    Model& operator=(Model&& other) noexcept;
    /// Ends the life of everything that the model handed out.
    ~Model();

    /// The description's name.
    std::string const& name() const;
    /// A name for people, by index; the model's name when the description has none for that index.
    std::string prettyName(int index) const;
    /// The XML text of the description, as it was read.
    std::string const& configFile() const;
    /// What the model was made from; valid as long as the model.
    Varo::Model::Robot const& robot() const;
    /// The postures of the description, in its order; Configuration takes them by name. Valid as long as the model.
    std::vector<Varo::Model::PostureConfig> const& postures() const;
    /// The warnings and notes of the description, and those of the building, in the order of their places. Takes a walk
    /// through the text.
    Varo::Model::Findings findings() const;

    /// @name Places in the description
    /// @{

    /// Where the description states the element: line, column and path of the XML element that it was made from. Line 0
    /// for an element of another model, and when the model was not made from a text.
    Varo::Model::Place place(Link const& link) const;
    Varo::Model::Place place(Joint const& joint) const;
    Varo::Model::Place place(Actuator const& actuator) const;
    Varo::Model::Place place(Sensor const& sensor) const;
    /// @}

    /// @name Links and joints
    /// @{

    /// The first element of the kind that has the name, null when none does; the plural lists all of the kind.
    Joint const* joint(std::string const& name) const;
    std::vector<Joint const*> joints() const;
    /// The first link of that name; where there is none, the first one that the description calls so
    /// (Link::descriptionName); null when there is none either.
    Link const* link(std::string const& name) const;
    std::vector<Link const*> links() const;
    /// The link that no joint moves, the first one made; never null.
    Link const* rootLink() const;
    /// @}

    /// @name Symmetries and groups
    /// @{

    /// The symmetry that the joint of that name is part of; null when it is part of none.
    JointSymmetry const* jointSymmetry(std::string const& name) const;
    /// All symmetries.
    std::vector<JointSymmetry const*> jointSymmetries() const;
    /// The first group of that name, null when there is none.
    JointGroup const* jointGroup(std::string const& name) const;
    /// All groups of joints.
    std::vector<JointGroup const*> jointGroups() const;
    /// The groups that list the joint, once for each time they do.
    std::vector<JointGroup const*> jointGroupsOfJoint(std::string const& name) const;
    /// The first group of that name, null when there is none.
    ActuatorGroup const* actuatorGroup(std::string const& name) const;
    /// All groups of actuators.
    std::vector<ActuatorGroup const*> actuatorGroups() const;
    /// The groups with an angle or coupled actuator that drives the joint, once for each time that one does.
    std::vector<ActuatorGroup const*> actuatorGroupsOfJoint(std::string const& name) const;
    /// @}

    /// @name Actuators
    /// A look-up by kind passes over actuators of other kinds that have the name.
    /// @{

    /// The first actuator of the kind that has the name, null when none does; the plural lists all of the kind.
    Actuator const* actuator(std::string const& name) const;
    std::vector<Actuator const*> actuators() const;
    AngleActuator const* angleActuator(std::string const& name) const;
    std::vector<AngleActuator const*> angleActuators() const;
    AngleSpeedActuator const* angleSpeedActuator(std::string const& name) const;
    std::vector<AngleSpeedActuator const*> angleSpeedActuators() const;
    CoupledActuator const* coupledActuator(std::string const& name) const;
    std::vector<CoupledActuator const*> coupledActuators() const;
    TorqueActuator const* torqueActuator(std::string const& name) const;
    std::vector<TorqueActuator const*> torqueActuators() const;
    WheelTorqueActuator const* wheelTorqueActuator(std::string const& name) const;
    std::vector<WheelTorqueActuator const*> wheelTorqueActuators() const;
    WheelVelocityActuator const* wheelVelocityActuator(std::string const& name) const;
    std::vector<WheelVelocityActuator const*> wheelVelocityActuators() const;
    LEDActuator const* ledActuator(std::string const& name) const;
    /// The lights of a group; all lights when `group` is empty.
    std::vector<LEDActuator const*> ledActuators(std::string const& group) const;
    /// @}

    /// @name Sensors
    /// A look-up by kind passes over sensors of other kinds that have the name.
    /// @{

    /// The first sensor of the kind that has the name, null when none does; the plural lists all of the kind.
    Sensor const* sensor(std::string const& name) const;
    std::vector<Sensor const*> sensors() const;
    AngleSensor const* angleSensor(std::string const& name) const;
    std::vector<AngleSensor const*> angleSensors() const;
    AngleSpeedSensor const* angleSpeedSensor(std::string const& name) const;
    std::vector<AngleSpeedSensor const*> angleSpeedSensors() const;
    ArrayDepthSensor const* arrayDepthSensor(std::string const& name) const;
    std::vector<ArrayDepthSensor const*> arrayDepthSensors() const;
    BumperSensor const* bumperSensor(std::string const& name) const;
    std::vector<BumperSensor const*> bumperSensors() const;
    CameraSensor const* cameraSensor(std::string const& name) const;
    std::vector<CameraSensor const*> cameraSensors() const;
    CameraDepthSensor const* cameraDepthSensor(std::string const& name) const;
    std::vector<CameraDepthSensor const*> cameraDepthSensors() const;
    CoupledSensor const* coupledSensor(std::string const& name) const;
    std::vector<CoupledSensor const*> coupledSensors() const;
    FSRSensor const* fsrSensor(std::string const& name) const;
    std::vector<FSRSensor const*> fsrSensors() const;
    InertialSensor const* inertialSensor(std::string const& name) const;
    std::vector<InertialSensor const*> inertialSensors() const;
    MicrophoneSensor const* microphoneSensor(std::string const& name) const;
    std::vector<MicrophoneSensor const*> microphoneSensors() const;
    SingleDepthSensor const* singleDepthSensor(std::string const& name) const;
    std::vector<SingleDepthSensor const*> singleDepthSensors() const;
    SonarSensor const* sonarSensor(std::string const& name) const;
    std::vector<SonarSensor const*> sonarSensors() const;
    TactileSensor const* tactileSensor(std::string const& name) const;
    std::vector<TactileSensor const*> tactileSensors() const;
    TorqueSensor const* torqueSensor(std::string const& name) const;
    std::vector<TorqueSensor const*> torqueSensors() const;
    WheelVelocitySensor const* wheelVelocitySensor(std::string const& name) const;
    std::vector<WheelVelocitySensor const*> wheelVelocitySensors() const;
    /// Deprecated: singleDepthSensor(), after a notice on standard output.
    SingleDepthSensor const* depthInfraredSensor(std::string const& name) const;
    /// Deprecated: singleDepthSensors(), after a notice on standard output.
    std::vector<SingleDepthSensor const*> depthInfraredSensors() const;
    /// @}

private:
    ModelImpl* _impl;
};

}  // namespace Sim

#endif
