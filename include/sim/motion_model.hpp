#ifndef SIM_MOTION_MODEL_HPP
#define SIM_MOTION_MODEL_HPP

#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "varo/export.hpp"
#include "varo/math/position3d.hpp"
#include "varo/math/transform.hpp"
#include "varo/model/configs.hpp"
#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Sim {

class ModelImpl;

/// What the key-name tables of MotionModel are filled with.
VAROROBOTMODEL_API std::vector<std::string> initDcmCommandKeyNames();
/// The same for the keys of a device's state.
VAROROBOTMODEL_API std::vector<std::string> initStateDcmKeyNames();

/// A robot description asked by name: strings, numbers and transforms, in SI units (m, rad, kg, s).
///
/// Names of joints, sub-joints (the joints that a coupled actuator moves), wheels and the root share one name space;
/// each query says in which order it tries them. A query that returns `bool` answers whether the name is known, and
/// writes its out-arguments only when it is, unless it says otherwise. No query throws for an unknown name.
///
/// Immutable once constructed, so that all queries may run in several threads at once. Only std::bad_alloc is thrown
/// beside what is said below.
class VAROROBOTMODEL_API MotionModel {
public:
    /// From the XML text of a description (never a path), native or URDF.
    /// Throws Varo::Model::DescriptionError when the text is refused, and StartAngleError, which is a
    /// std::out_of_range, when its posture "StandInit" gives an angle to a name that no chain leads to, or to a joint
    /// without a motor.
    explicit MotionModel(std::string const& xml);
    /// From a description that was read before. Throws std::invalid_argument for null and when actuators are attached
    /// to each other in a cycle, and StartAngleError as above.
    explicit MotionModel(std::unique_ptr<Varo::Model::Robot> robot);
    MotionModel(MotionModel const&) = delete;
    MotionModel& operator=(MotionModel const&) = delete;
    ~MotionModel();

    /// The robot that the answers come from; valid as long as the motion model.
    Varo::Model::Robot const& robot() const { return *_robot; }
    /// Its records, which the motion model refers to rather than copies; valid as long as the motion model.
    Varo::Model::Records const& records() const { return *_records; }
    /// The record of the joint of that name, null for any other name; valid as long as the motion model.
    Varo::Model::JointConfig const* findJoint(std::string const& name) const;

    /// @name Identity
    /// @{

    /// The description's name; that of the robot when the description has no chains.
    std::string const& name() const;
    /// A name for people, by index; the description's name when it has none for that index.
    std::string prettyName(int index) const;
    /// The name of the root body.
    std::string const& rootName() const { return _records->root.name; }
    /// The description's own version; empty when it states none.
    std::string version() const;
    /// In the description's order.
    std::list<std::string> chainNames() const;
    /// In ascending order.
    std::list<std::string> wheelNames() const;
    /// The joint (or root) that the chain is attached to; empty for an unknown chain.
    std::string parentJointFromChain(std::string const& chain) const;
    /// The angle (rad, or m) of a joint with a motor, or of an actuator, in the posture "StandInit"; 0 when the
    /// description has no postures.
    bool startAngle(std::string const& name, float& angle) const;
    /// @}

    /// @name Single fields
    /// @{

    /// What the actuator is attached to, as the description states it.
    bool parentJointFromActuator(std::string const& name, std::string& parent) const;
    /// The joint that the wheel is attached to.
    bool parentJointFromWheel(std::string const& name, std::string& parent) const;
    bool maxTorqueFromWheel(std::string const& name, float& torque) const;  ///< N*m
    bool maxVelocityFromWheel(std::string const& name, float& velocity) const;  ///< rad/s
    bool ratioFromJoint(std::string const& name, float& ratio) const;  ///< of a sub-joint
    /// The sensor's pose in its parent's frame, and the parent's name.
    bool transformFromSensorName(std::string const& name, Varo::Math::Transform& transform, std::string& parent) const;
    /// A value of Varo::Model::SensorType; 0 for an unknown name.
    std::int32_t sensorType(std::string const& name) const;
    /// @}

    /// @name Frames, bodies and limits
    /// @{

    /// The link frame in the joint frame: of a joint as described; of a sub-joint a quarter turn about -x; of a wheel a
    /// quarter turn about y.
    bool endTransformFromJointName(std::string const& name, Varo::Math::Transform& end) const;
    /// Always true, whatever the name.
    bool endTransformFromSubactuatorName(std::string const& name, Varo::Math::Transform& end) const;
    /// Always true, whatever the name.
    bool endTransformFromWheelName(std::string const& name, Varo::Math::Transform& end) const;
    /// The joint frame in the link frame of the element before it, whose name goes into `parent`: the joint before it
    /// in its chain, or "rootFrame" for the first one. When several chains list the joint, the last of them in order of
    /// name answers; when none does, the answer is true and nothing is written. A name that is no joint is asked of
    /// transformFromSubactuatorName.
    bool transformFromJointName(std::string const& name, Varo::Math::Transform& transform, std::string& parent) const;
    /// The sub-joint's frame in the link frame of the joint that `parent` names on entry. `parent` then becomes the
    /// sub-joint before it, or its actuator's parent joint. False for an unknown name, with nothing written, and for
    /// one that no actuator moves, with only `transform` written.
    bool transformFromSubactuatorName(std::string const& name, Varo::Math::Transform& transform,
                                      std::string& parent) const;
    /// The wheel's joint frame in the link frame of its parent joint.
    bool transformFromWheel(std::string const& name, Varo::Math::Transform& transform) const;
    /// The actuator's placement after a quarter turn about -y. Its parent's link frame counts only when a wheel of the
    /// actuator's name has one.
    bool transformFromActuator(std::string const& name, Varo::Math::Transform& transform) const;
    /// Of a joint, a sub-joint, a wheel or the root.
    bool meshNameFromJointName(std::string const& name, std::string& mesh) const;
    /// The identity, for every name that has a mesh name.
    bool meshTransformFromJointName(std::string const& name, Varo::Math::Transform& transform) const;
    /// Centre of mass in the link frame, m, of a joint, the root or a wheel.
    bool CoM(std::string const& name, Varo::Math::Position3D& com) const;
    /// kg, of a joint, the root or a wheel.
    bool mass(std::string const& name, float& mass) const;
    /// kg*m^2, 3x3 row by row, about the centre of mass in link axes, of a joint, the root or a wheel.
    bool inertiaMatrix(std::string const& name, std::vector<float>& inertia) const;
    /// The surface material of a joint's, the root's or a wheel's body. `material` is "gum" whenever this is false.
    bool frictionMaterial(std::string const& name, std::string& material) const;
    /// Of a joint (rad, or m) or an actuator (rad); of the actuator when both have the name. Minus infinity when
    /// unlimited.
    bool minAngle(std::string const& name, float& angle) const;
    bool maxAngle(std::string const& name, float& angle) const;  ///< as minAngle
    bool maxAngleSpeed(std::string const& name, float& speed) const;  ///< as minAngle; rad/s, or m/s
    /// @}

    /// @name Structure
    /// @{

    /// The chain's joints, from its parent outward; empty for an unknown chain.
    std::list<std::string> jointNames(std::string const& chain) const;
    /// The joint lists of all chains, merged as sorted lists are, although they are not sorted.
    std::list<std::string> jointNames() const;
    /// The chain's joints that have a motor: each has an angle actuator of its name.
    std::list<std::string> angleActuatorNames(std::string const& chain) const;
    /// Chain after chain.
    std::list<std::string> angleActuatorNames() const;
    /// The chain's joints that have a motor, then the actuators that are attached to joints of the chain, whether those
    /// have one or not, and to those actuators.
    std::list<std::string> actuatorNames(std::string const& chain) const;
    /// Merged as jointNames().
    std::list<std::string> actuatorNames() const;
    /// The actuators that are attached to the chain's joints, whether those have a motor or not.
    std::list<std::string> coupledActuatorNames(std::string const& chain) const;
    /// Chain after chain.
    std::list<std::string> coupledActuatorNames() const;
    /// The first chain, in the description's order, that lists the joint; empty when none does.
    std::string chainNameFromJoint(std::string const& joint);
    /// What is attached to the joint (or root), in building order: per chain the next joint and the first sub-joints of
    /// the joint's actuators, or the first joint of a chain that is attached to it; then the sub-joints after it.
    std::vector<std::string> followingJoints(std::string const& joint) const;
    /// The first sub-joint of every group of every actuator that is attached to the joint.
    std::vector<std::string> chainAnchorJoints(std::string const& joint) const;
    /// Appends the sub-joints that follow the sub-joint `name` in the groups that hold it.
    void followingJointsFromSubactuators(std::string const& name, std::vector<std::string>& out) const;
    /// Appends the sub-joints that the actuator moves.
    bool jointsFromActuator(std::string const& actuator, std::list<std::string>& joints) const;
    /// The first actuator, by name, that is attached to the joint: writes its name, appends the sub-joints that it
    /// moves.
    bool coupledJointGroupFromParentJoint(std::string const& joint, std::string& actuator,
                                          std::vector<std::string>& joints) const;
    /// @}

    /// @name Mirrors
    /// Who is the mirror image, and whether it is a reflected one.
    /// @{

    /// True only for a joint that has a mirror. Of a sub-joint it writes what mirrorNameFromSubjointName does, and is
    /// false all the same; any other name is asked of mirrorNameFromActuatorName.
    bool mirrorNameFromJointName(std::string const& name, std::string& mirror, bool& reflected) const;
    /// The name with a leading L turned into R, or R into L; never reflected.
    bool mirrorNameFromSubjointName(std::string const& name, std::string& mirror, bool& reflected) const;
    /// True for every actuator; `mirror` is empty for one without a mirror.
    bool mirrorNameFromActuatorName(std::string const& name, std::string& mirror, bool& reflected) const;
    /// Writes whether the joint's reflection is forced; true for every joint.
    bool reflectionForcedFromJointName(std::string const& name, bool& forced) const;
    /// @}

    /// @name Devices
    /// @{

    /// In ascending order.
    std::list<std::string> sensorNames() const;
    /// The keys that the description gives the device, in its order.
    bool dcmKeysFromSensorName(std::string const& name, std::vector<std::string>& keys) const;
    /// Appends the values of the device's attributes that k_dcmCommandKeyNames lists; false when it has none.
    bool dcmCommandKeys(std::string const& name, std::vector<std::string>& keys) const;
    /// Appends the values of the device's attributes that k_stateDcmKeyNames lists; false when it has none.
    bool dcmStateKeys(std::string const& name, std::vector<std::string>& keys) const;
    /// The "shortname" attribute; false, with nothing written, when the device has none.
    bool shortnameFromLED(std::string const& led, std::string& shortname) const;
    /// The pieces between the tabs and blanks of the "groups" attribute, empty ones included.
    bool groupsFromLED(std::string const& led, std::vector<std::string>& groups) const;
    /// The index of the last piece of the "color" attribute that is 255; true, with nothing written, when none is.
    bool colorFromLED(std::string const& led, int* color) const;
    /// Appends width and height (pixels) per line of the "resolutions" attribute; lines without two pieces are skipped.
    bool resolutionsFromCamera(std::string const& camera, std::vector<std::pair<int, int>>& resolutions) const;

    /// The attributes whose values are keys for commanding a device: "setOperationMode".
    static std::vector<std::string> const k_dcmCommandKeyNames;
    /// The attributes whose values are keys for reading a device's state: "getOperationMode".
    static std::vector<std::string> const k_stateDcmKeyNames;
    /// @}

private:
    friend class ModelImpl;  // which asks for much, and needs no copies of names
    struct Index;

    // Not part of the library's interface. Names are those of the records.
    using NameRefs = std::vector<std::string const*>;
    using JointNames = std::vector<std::string>;
    /// A joint or a sub-joint, by the name under which it is listed. The record is null for a sub-joint; for any other
    /// name, that name comes back.
    struct Listed {
        Varo::Model::JointConfig const* joint;
        std::string const* name;
    };
    [[gnu::visibility("hidden")]] Listed findListed(std::string const& name, std::uint32_t& next) const;
    [[gnu::visibility("hidden")]] JointNames const& jointsOf(std::string const& chain) const;
    [[gnu::visibility("hidden")]] std::string const& firstChainOf(std::string const& joint) const;
    [[gnu::visibility("hidden")]] void appendAngleActuators(JointNames const& chain, NameRefs& actuators) const;
    [[gnu::visibility("hidden")]] void appendActuators(JointNames const& chain, NameRefs& actuators) const;
    [[gnu::visibility("hidden")]] void appendCoupledActuators(JointNames const& chain, NameRefs& actuators) const;
    [[gnu::visibility("hidden")]] void appendFollowingJoints(std::string const& joint, NameRefs& following) const;
    [[gnu::visibility("hidden")]] std::string const& frictionMaterialOf(std::string const& name) const;
    [[gnu::visibility("hidden")]] static std::string const& frictionMaterialOf(Varo::Model::JointConfig const& body);
    [[gnu::visibility("hidden")]] bool readLimits(std::string const& name, float& lowest, float& highest,
                                                  float& fastest) const;

    std::unique_ptr<Varo::Model::Robot> _robot;
    std::shared_ptr<Varo::Model::Records const> _records;  // the robot's own where it holds them
    std::unique_ptr<Index const> _index;  // what the records say, by the names that queries ask for
};

}  // namespace Sim

#endif
