#include "core/model_impl.hpp"

#include <algorithm>

#include "actuators/angle_actuator_impl.hpp"
#include "core/frame_impl.hpp"
#include "core/link_impl.hpp"
#include "core/mass_data_impl.hpp"
#include "core/visual_data_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

namespace {

bool isNamed(Joint const* joint, std::string const& name)
{
    return joint != nullptr && joint->name() == name;
}

}  // namespace

ModelImpl::ModelImpl(std::string const& pathOrXml) : _saysAloud(true)
{
    loadModel(pathOrXml);
    makeElements();
}

ModelImpl::ModelImpl(Varo::Model::ModelUtils::Reading&& reading) : _saysAloud(false)
{
    loadModel(std::move(reading));
    makeElements();
}

void ModelImpl::makeElements()
{
    reserve();
    _index = std::make_unique<BuildIndex>(_joints, _links);
    fetchSkeleton();
    pairJoints();
    defineJointGroups();
    fetchWheels();
    fetchAngleActuators();
    fetchCoupledActuators();
    fetchWheelActuators();
    pairActuators();
    defineActuatorGroups();
    fetchAngleSensors();
    fetchCoupledSensors();
    fetchSensors();
    _index.reset();
    trimRegistries();
}

/// Makes room for what most robots have: of each joint three frames, of each motor another one, an actuator and a
/// sensor.
void ModelImpl::reserve()
{
    Varo::Model::Records const& records = _motionModel->records();
    // A joint that follows an actuator is in both tables.
    auto const isOwnJoint = [&records](Varo::Model::SubActuatorConfig const& subJoint) {
        return !records.joints.contains(subJoint.name);
    };
    std::size_t const subJoints =
        static_cast<std::size_t>(std::count_if(records.subActuators.begin(), records.subActuators.end(), isOwnJoint));
    std::size_t const joints = records.joints.size() + subJoints + records.wheels.size();
    auto const hasMotor = [](Varo::Model::JointConfig const& joint) { return joint.hasMotor; };
    std::size_t const motors =
        static_cast<std::size_t>(std::count_if(records.joints.begin(), records.joints.end(), hasMotor)) +
        records.wheels.size() + records.actuators.size();
    _joints.reserve(joints);
    _links.reserve(joints + 1);
    _frames.reserve(3 * joints + motors + records.sensors.size() + 1);
    _actuators.reserve(motors);
    _sensors.reserve(motors + records.sensors.size());
    _jointGroups.reserve(records.chainOrder.size());
    _actuatorGroups.reserve(records.chainOrder.size());

    std::size_t const ofLink = sizeOf<Link, LinkImpl>() + sizeOf<MassData, MassDataImpl>() +
                               sizeOf<VisualData, VisualDataImpl>() + ElementArena::sizeOf<std::string const>();
    std::size_t const ofMotor = sizeOf<AngleActuator, AngleActuatorImpl>() + sizeOf<AngleSensor, AngleSensorImpl>();
    _arena.expect(_frames.capacity() * sizeOf<Frame, FrameImpl>() + (joints + 1) * ofLink +
                  joints * sizeOf<Joint, JointImpl>() + motors * ofMotor);
}

void ModelImpl::trimRegistries()
{
    _joints.shrink_to_fit();
    _links.shrink_to_fit();
    _frames.shrink_to_fit();
    _actuators.shrink_to_fit();
    _sensors.shrink_to_fit();
}

ModelImpl::~ModelImpl() = default;

boost::shared_ptr<Frame> const& ModelImpl::frame(std::string const& name) const
{
    return _frameNames.find(name, _frames);
}

boost::shared_ptr<Joint> const& ModelImpl::joint(std::string const& name) const
{
    return _jointNames.find(name, _joints);
}

boost::shared_ptr<Link> const& ModelImpl::link(std::string const& name) const
{
    return _linkNames.find(name, _links);
}

Link const* ModelImpl::linkByAnyName(std::string const& name) const
{
    return _linkIndex.find(name, _links);
}

boost::shared_ptr<JointSymmetry> ModelImpl::jointSymmetry(std::string const& jointName) const
{
    for (auto const& symmetry : _jointSymmetries) {
        auto const [first, second] = symmetry->symmetricJoints();
        if (isNamed(first, jointName) || isNamed(second, jointName)) {
            return symmetry;
        }
    }
    return {};
}

boost::shared_ptr<JointGroup> const& ModelImpl::jointGroup(std::string const& name) const
{
    return _jointGroupNames.find(name, _jointGroups);
}

boost::shared_ptr<Actuator> const& ModelImpl::actuator(std::string const& name) const
{
    return _actuatorNames.find(name, _actuators);
}

boost::shared_ptr<ActuatorGroup> const& ModelImpl::actuatorGroup(std::string const& name) const
{
    return _actuatorGroupNames.find(name, _actuatorGroups);
}

boost::shared_ptr<Sensor> const& ModelImpl::sensor(std::string const& name) const
{
    return _sensorNames.find(name, _sensors);
}

boost::shared_ptr<Link> const& ModelImpl::rootLink() const
{
    return link(_motionModel->rootName() + "Link");
}

ModelImpl::FramePtr ModelImpl::addFrame(SharedName const& name, Varo::Math::Transform const& position,
                                        FramePtr const& parent)
{
    _frames.push_back(makeElement<Frame, FrameImpl>(name, position, parent));
    return _frames.back();
}

boost::shared_ptr<MassData const> ModelImpl::createMass(float mass, Varo::Math::Position3D const& CoM,
                                                        SharedValue<std::vector<float>> const& inertiaMatrix)
{
    return makeElement<MassData, MassDataImpl>(mass, CoM, inertiaMatrix);
}

boost::shared_ptr<VisualData const> ModelImpl::createVisual(SharedValue<std::string> const& meshPath,
                                                            Varo::Math::Transform const& meshTransform)
{
    return makeElement<VisualData, VisualDataImpl>(meshPath, meshTransform);
}

}  // namespace Sim
