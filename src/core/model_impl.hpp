#ifndef VARO_CORE_MODEL_IMPL_HPP
#define VARO_CORE_MODEL_IMPL_HPP

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include "actuators/coupled_actuator_impl.hpp"
#include "core/body_record.hpp"
#include "core/build_index.hpp"
#include "core/build_report.hpp"
#include "core/device_keys.hpp"
#include "core/element_arena.hpp"
#include "core/joint_impl.hpp"
#include "core/kind_of.hpp"
#include "core/link_index.hpp"
#include "core/name_scan.hpp"
#include "core/shared_value.hpp"
#include "groups/actuator_group_impl.hpp"
#include "groups/joint_group_impl.hpp"
#include "groups/joint_symmetry_impl.hpp"
#include "sensors/sonar_sensor_impl.hpp"
#include "sim/model.hpp"
#include "sim/motion_model.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

inline constexpr char modelErrorMsg[] = "Could not query Model as it seems not correctly constructed.";

/// Models list findings when somebody asks for them.
inline constexpr Varo::Model::ModelUtils::ReadOptions forModel{true, false};

/// Builds the element graph of a robot, owns it, and finds elements in it.
///
/// The members are defined with the subsystem that they belong to: loading, skeleton and look-ups in core, the rest in
/// sensors, actuators and groups. Immutable once constructed.
class ModelImpl {
public:
    using FramePtr = boost::shared_ptr<Frame const>;
    using Keys = std::vector<std::string>;

    explicit ModelImpl(std::string const& pathOrXml);
    explicit ModelImpl(Varo::Model::ModelUtils::Reading&& reading);
    ModelImpl(ModelImpl const&) = delete;
    ModelImpl& operator=(ModelImpl const&) = delete;
    ~ModelImpl();

    std::string const& name() const { return _motionModel->name(); }
    std::string prettyName(int index) const { return _motionModel->prettyName(index); }
    std::string const& configFile() const;
    Varo::Model::Findings findings() const { return _report->findings(); }
    Varo::Model::Place place(Link const& link) const;
    Varo::Model::Place place(Joint const& joint) const;
    Varo::Model::Place place(Actuator const& actuator) const;
    Varo::Model::Place place(Sensor const& sensor) const;
    Varo::Model::Robot const& robot() const { return _motionModel->robot(); }

    // Registries, in creation order.
    std::vector<boost::shared_ptr<Frame>> frames() const { return _frames; }
    std::vector<boost::shared_ptr<Joint>> joints() const { return _joints; }
    std::vector<boost::shared_ptr<Link>> links() const { return _links; }
    std::vector<boost::shared_ptr<JointSymmetry>> jointSymmetries() const { return _jointSymmetries; }
    std::vector<boost::shared_ptr<JointGroup>> jointGroups() const { return _jointGroups; }
    std::vector<boost::shared_ptr<Actuator>> actuators() const { return _actuators; }
    std::vector<boost::shared_ptr<ActuatorGroup>> actuatorGroups() const { return _actuatorGroups; }
    std::vector<boost::shared_ptr<Sensor>> sensors() const { return _sensors; }

    // Look-ups: the first element of that name, empty when there is none.
    boost::shared_ptr<Frame> const& frame(std::string const& name) const;
    boost::shared_ptr<Joint> const& joint(std::string const& name) const;
    boost::shared_ptr<Link> const& link(std::string const& name) const;
    boost::shared_ptr<JointSymmetry> jointSymmetry(std::string const& jointName) const;
    boost::shared_ptr<JointGroup> const& jointGroup(std::string const& name) const;
    boost::shared_ptr<Actuator> const& actuator(std::string const& name) const;
    boost::shared_ptr<ActuatorGroup> const& actuatorGroup(std::string const& name) const;
    boost::shared_ptr<Sensor> const& sensor(std::string const& name) const;
    boost::shared_ptr<Link> const& rootLink() const;
    /// As link(); where no link bears the name, the one that the description calls so. Null when there is none.
    Link const* linkByAnyName(std::string const& name) const;

    // The same among the elements of dynamic type T.
    template <class T>
    T const* actuator(std::string const& name) const
    {
        return firstOfKind<T>(_actuatorNames, _actuators, name);
    }
    template <class T>
    std::vector<boost::shared_ptr<T>> actuators() const
    {
        return allOfKind<T>(_actuators);
    }
    template <class T>
    T const* sensor(std::string const& name) const
    {
        return firstOfKind<T>(_sensorNames, _sensors, name);
    }
    template <class T>
    std::vector<boost::shared_ptr<T>> sensors() const
    {
        return allOfKind<T>(_sensors);
    }

    std::vector<boost::shared_ptr<LEDActuator>> ledActuators(std::string const& group) const;
    std::vector<boost::shared_ptr<JointGroup>> jointGroupsOfJoint(std::string const& jointName) const;
    std::vector<boost::shared_ptr<ActuatorGroup>> actuatorGroupsOfJoint(std::string const& jointName) const;

    // Factories: make one element and register it, unchecked.
    FramePtr addFrame(SharedName const& name, Varo::Math::Transform const& position, FramePtr const& parent);
    boost::shared_ptr<MassData const> createMass(float mass, Varo::Math::Position3D const& CoM,
                                                 SharedValue<std::vector<float>> const& inertiaMatrix);
    boost::shared_ptr<VisualData const> createVisual(SharedValue<std::string> const& meshPath,
                                                     Varo::Math::Transform const& meshTransform);
    boost::shared_ptr<AngleActuator> addAngleActuator(FramePtr const& frame, SharedName const& name, DeviceKeys dcmKeys,
                                                      float startValue, float minValue, float maxValue, float maxSpeed,
                                                      boost::shared_ptr<Joint const> const& joint,
                                                      bool reflectionForced);
    boost::shared_ptr<TorqueActuator> addTorqueActuator(FramePtr const& frame, SharedName const& name,
                                                        DeviceKeys dcmKeys, float startValue, float minValue,
                                                        float maxValue, boost::shared_ptr<Joint const> const& joint);
    boost::shared_ptr<AngleSpeedActuator> addAngleSpeedActuator(FramePtr const& frame, SharedName const& name,
                                                                DeviceKeys dcmKeys, float startValue, float minValue,
                                                                float maxValue,
                                                                boost::shared_ptr<Joint const> const& joint);
    boost::shared_ptr<WheelTorqueActuator> addWheelTorqueActuator(FramePtr const& frame, SharedName const& name,
                                                                  DeviceKeys dcmKeys, float maxTorque,
                                                                  boost::shared_ptr<Joint const> const& joint);
    boost::shared_ptr<WheelVelocityActuator> addWheelVelocityActuator(FramePtr const& frame, SharedName const& name,
                                                                      DeviceKeys dcmKeys, float maxVelocity,
                                                                      boost::shared_ptr<Joint const> const& joint);
    boost::shared_ptr<CoupledActuator> addCoupledActuator(FramePtr const& frame, SharedName const& name,
                                                          DeviceKeys dcmKeys, float startValue, float minValue,
                                                          float maxValue, float maxSpeed,
                                                          CoupledActuatorImpl::JointsAndRatios jointsAndRatios,
                                                          bool reflectionForced);
    boost::shared_ptr<LEDActuator> addLEDActuator(FramePtr const& frame, SharedName const& name, DeviceKeys dcmKeys,
                                                  std::string const& shortname, std::vector<std::string> const& groups,
                                                  LEDActuator::Color color);
    boost::shared_ptr<CameraSensor> addCameraSensor(FramePtr const& frame, SharedName const& name, int width,
                                                    int height);
    boost::shared_ptr<CameraDepthSensor> addCameraDepthSensor(FramePtr const& frame, SharedName const& name, int width,
                                                              int height);
    boost::shared_ptr<MicrophoneSensor> addMicrophoneSensor(FramePtr const& frame, SharedName const& name);
    boost::shared_ptr<SonarSensor> addSonarSensor(FramePtr const& frame, SharedName const& name, DeviceKeys dcmKeys,
                                                  SonarSensorImpl::SonarType sonarType);
    boost::shared_ptr<ArrayDepthSensor> addArrayDepthSensor(FramePtr const& frame, SharedName const& name,
                                                            DeviceKeys dcmKeys, int width, int height,
                                                            Keys const& dcmStateKeys, Keys const& dcmCommandKeys);

private:
    struct Branch;

    // The steps of construction, in their order.
    void loadModel(std::string const& pathOrXml);
    void loadModel(Varo::Model::ModelUtils::Reading&& reading);
    void makeElements();
    void fetchSkeleton();
    void pairJoints();
    void defineJointGroups();
    void fetchWheels();
    void fetchAngleActuators();
    void fetchCoupledActuators();
    void fetchWheelActuators();
    void pairActuators();
    void defineActuatorGroups();
    void fetchAngleSensors();
    void fetchCoupledSensors();
    void fetchSensors();

    // Skeleton
    boost::shared_ptr<Joint> addJoint(FramePtr const& frame, SharedName const& name,
                                      boost::shared_ptr<Link> const& parentLink, JointSource const& source);
    boost::shared_ptr<Link> addLink(FramePtr const& frame, SharedName const& name,
                                    boost::shared_ptr<Joint> const& parentJoint,
                                    boost::shared_ptr<MassData const> const& mass,
                                    SharedValue<std::string> const& frictionMaterial,
                                    boost::shared_ptr<VisualData const> const& visual);
    boost::shared_ptr<Link> addWheel(FramePtr const& frame, SharedName const& name,
                                     boost::shared_ptr<Joint> const& parentJoint,
                                     boost::shared_ptr<MassData const> const& mass,
                                     SharedValue<std::string> const& frictionMaterial,
                                     boost::shared_ptr<VisualData const> const& visual);
    boost::shared_ptr<Link> addLinkOfType(Link::LinkType type, FramePtr const& frame, SharedName const& name,
                                          boost::shared_ptr<Joint> const& parentJoint,
                                          boost::shared_ptr<MassData const> const& mass,
                                          SharedValue<std::string> const& frictionMaterial,
                                          boost::shared_ptr<VisualData const> const& visual);
    boost::shared_ptr<Joint> attachJointCalled(std::string const& name, Varo::Math::Transform inParentLink,
                                               std::string& parent, boost::shared_ptr<Link> const& parentLink);
    boost::shared_ptr<Joint> attachJoint(SharedName const& name, Varo::Math::Transform const& inParentLink,
                                         boost::shared_ptr<Link> const& parentLink, JointSource const& source);
    void fillInBranch(boost::shared_ptr<Joint> const& joint);
    SharedName linkNameOf(std::string const& jointName);
    SharedName frictionMaterialOf(std::string const& name) const;
    void reserve();
    void trimRegistries();
    Branch openBranch(boost::shared_ptr<Joint> const& joint, std::vector<std::string const*>& children);
    void fetchWheel(std::string const& name);
    boost::shared_ptr<Link> parentLinkOfWheel(std::string const& wheel) const;
    boost::shared_ptr<MassData const> massOf(Varo::Model::JointConfig const& record);
    boost::shared_ptr<MassData const> massOf(std::string const& name);
    boost::shared_ptr<MassData const> requiredMassOf(Subject subject, std::string const& name);
    boost::shared_ptr<VisualData const> visualOf(std::string const& name);
    boost::shared_ptr<VisualData const> requiredVisualOf(std::string const& name);

    // Actuators
    bool fetchBasicActuatorInfo(Subject subject, std::string const& name, float& startValue, float& minValue,
                                float& maxValue, float& maxSpeed);
    void fetchAngleActuator(std::string const& name, bool withTorqueAndSpeed);
    void fetchCoupledActuator(std::string const& name);
    void fetchWheelActuator(std::string const& name);
    CoupledActuatorImpl::JointsAndRatios jointsAndRatiosOf(std::string const& actuator) const;
    template <class Impl>
    class MirrorsOfKind;

    // Groups
    void addJointGroup(SharedName const& name, std::vector<boost::shared_ptr<Joint>> const& joints);
    boost::shared_ptr<ActuatorGroup> addActuatorGroup(SharedName const& name,
                                                      boost::shared_ptr<ActuatorGroup> const& parent,
                                                      std::vector<boost::shared_ptr<Actuator>> const& actuators);

    // Sensors
    bool fetchSensor(std::string const& name, Varo::Model::SensorConfig const& record);
    void logFromFetchSensors(int level, std::string const& message) const;
    void reportSensorsWithoutClass();
    void addDevice(SharedName const& sharedName, FramePtr const& frame, Varo::Model::SensorConfig const& record);
    void fetchLED(SharedName const& name, FramePtr const& frame, Keys const& keys);
    std::pair<int, int> requiredResolutionOf(std::string const& camera) const;
    void fetchArrayDepthSensor(SharedName const& name, FramePtr const& frame, Keys const& keys);
    void fetchSonarSensor(SharedName const& name, FramePtr const& frame, Keys const& keys);

    /// A handle beside its data. Handles free their data, but not what belongs to such a block.
    template <class Handle, class Impl>
    struct Element {
        template <class... Arguments>
        explicit Element(Arguments&&... arguments) : data(std::forward<Arguments>(arguments)...)
        {
            handle._impl = &data;
        }
        Element(Element const&) = delete;
        Element& operator=(Element const&) = delete;
        ~Element() { handle._impl = nullptr; }

        Impl data;
        Handle handle;
    };

    /// What an element takes in the arena.
    template <class Handle, class Impl>
    static constexpr std::size_t sizeOf()
    {
        return ElementArena::sizeOf<Element<Handle, Impl>>();
    }

    template <class Handle, class Impl, class... Arguments>
    boost::shared_ptr<Handle> makeElement(Arguments&&... arguments)
    {
        return uncounted(&_arena.make<Element<Handle, Impl>>(std::forward<Arguments>(arguments)...)->handle);
    }

    template <class Impl, class... Arguments>
    boost::shared_ptr<typename Impl::Handle> addSensor(Arguments&&... arguments)
    {
        auto const sensor = makeElement<typename Impl::Handle, Impl>(std::forward<Arguments>(arguments)...);
        _sensors.push_back(sensor);
        return sensor;
    }

    template <class Impl, class... Arguments>
    boost::shared_ptr<typename Impl::Handle> addActuator(Arguments&&... arguments)
    {
        auto const actuator = makeElement<typename Impl::Handle, Impl>(std::forward<Arguments>(arguments)...);
        actuator->_impl->setModelLife(ModelLife(_motionModel));
        _actuators.push_back(actuator);
        return actuator;
    }

    // The dynamic type decides what is of a kind. It is asked last: name and type settle most elements for less.
    template <class T, class Base>
    static T const* firstOfKind(NameScan const& names, std::vector<boost::shared_ptr<Base>> const& elements,
                                std::string const& name)
    {
        auto const isOfKind = [](Base const& element) {
            return element.type() == kindOf<T>().type && dynamic_cast<T const*>(&element) != nullptr;
        };
        return static_cast<T const*>(names.find(name, elements, isOfKind).get());
    }

    template <class T, class Base>
    static std::vector<boost::shared_ptr<T>> allOfKind(std::vector<boost::shared_ptr<Base>> const& elements)
    {
        std::vector<boost::shared_ptr<T>> result;
        for (auto const& element : elements) {
            if (T* const typed = element->type() == kindOf<T>().type ? dynamic_cast<T*>(element.get()) : nullptr) {
                result.emplace_back(element, typed);
            }
        }
        return result;
    }

    void makeMotionModel(std::unique_ptr<Varo::Model::Robot> robot);

    /// Ends the load, for want of what the subject of that name needs, unless `known`. The parts of the message make up
    /// the text of the exception.
    template <class... Parts>
    void require(bool known, Subject subject, std::string const& name, Parts const&... message) const
    {
        if (!known) {
            _report->fail(subject, name, (std::string() + ... + message));
        }
    }

    boost::shared_ptr<MotionModel> _motionModel;
    ElementArena _arena;
    std::unique_ptr<BuildReport> _report;
    bool _saysAloud;  ///< whether the building also prints and logs what it notices
    // Of the elements, which the arena owns.
    std::vector<boost::shared_ptr<Joint>> _joints;
    std::vector<boost::shared_ptr<Link>> _links;
    std::vector<boost::shared_ptr<Frame>> _frames;
    std::vector<boost::shared_ptr<JointSymmetry>> _jointSymmetries;
    std::vector<boost::shared_ptr<JointGroup>> _jointGroups;
    std::vector<boost::shared_ptr<Actuator>> _actuators;
    std::vector<boost::shared_ptr<ActuatorGroup>> _actuatorGroups;
    std::vector<boost::shared_ptr<Sensor>> _sensors;
    // By which the look-ups scan them.
    NameScan _frameNames;
    NameScan _jointNames;
    NameScan _linkNames;
    NameScan _jointGroupNames;
    NameScan _actuatorNames;
    NameScan _actuatorGroupNames;
    NameScan _sensorNames;
    std::unique_ptr<BuildIndex> _index;  // null once the model is built
    LinkIndex _linkIndex;
};

}  // namespace Sim

#endif
