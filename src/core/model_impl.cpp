#include "core/model_impl.hpp"

#include <algorithm>

#include "core/frame_impl.hpp"
#include "core/mass_data_impl.hpp"
#include "core/visual_data_impl.hpp"

namespace Sim {

namespace {

template <class T>
boost::shared_ptr<T> firstNamed(std::vector<boost::shared_ptr<T>> const& elements, std::string const& name)
{
    auto const found = std::find_if(elements.begin(), elements.end(),
                                    [&](boost::shared_ptr<T> const& element) { return element->name() == name; });
    return found == elements.end() ? boost::shared_ptr<T>() : *found;
}

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
    _index = std::make_unique<BuildIndex>();
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
}

ModelImpl::~ModelImpl() = default;

boost::shared_ptr<Frame> ModelImpl::frame(std::string const& name) const
{
    return firstNamed(_frames, name);
}

boost::shared_ptr<Joint> ModelImpl::joint(std::string const& name) const
{
    return firstNamed(_joints, name);
}

boost::shared_ptr<Link> ModelImpl::link(std::string const& name) const
{
    return firstNamed(_links, name);
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

boost::shared_ptr<JointGroup> ModelImpl::jointGroup(std::string const& name) const
{
    return firstNamed(_jointGroups, name);
}

boost::shared_ptr<Actuator> ModelImpl::actuator(std::string const& name) const
{
    return firstNamed(_actuators, name);
}

boost::shared_ptr<ActuatorGroup> ModelImpl::actuatorGroup(std::string const& name) const
{
    return firstNamed(_actuatorGroups, name);
}

boost::shared_ptr<Sensor> ModelImpl::sensor(std::string const& name) const
{
    return firstNamed(_sensors, name);
}

boost::shared_ptr<Link> ModelImpl::rootLink() const
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
                                                        std::vector<float> inertiaMatrix)
{
    return makeElement<MassData, MassDataImpl>(mass, CoM, std::move(inertiaMatrix));
}

boost::shared_ptr<VisualData const> ModelImpl::createVisual(std::string const& meshPath,
                                                            Varo::Math::Transform const& meshTransform)
{
    return makeElement<VisualData, VisualDataImpl>(meshPath, meshTransform);
}

}  // namespace Sim
