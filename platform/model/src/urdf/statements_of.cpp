#include "urdf/statements_of.hpp"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "urdf/values.hpp"
#include "varo/model/name_hash.hpp"

namespace Varo::Model::Urdf {

namespace {

using Urdf::shortest;

/// Of the format, for which others take the attribute: they refuse any other.
constexpr std::string_view onlyVersion = "1.0";

Vector shortest(Position3D const& position)
{
    return {Urdf::shortest(position.x), Urdf::shortest(position.y), Urdf::shortest(position.z)};
}

Vector shifted(Position3D const& position, Vector const& shift)
{
    Vector result = shortest(position);
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] = shift[i] == 0.0 ? result[i] : result[i] + shift[i];  // a zero keeps its sign
    }
    return result;
}

/// Absent where it would say nothing; of numbers whose zeros may have a sign.
std::optional<Origin> toOrigin(Vector const& xyz, Vector const& rpy)
{
    Origin origin;
    origin.xyz = xyz;
    origin.rpy = rpy;
    bool const isDefault = Reals3::print(xyz) == Reals3::print({}) && Reals3::print(rpy) == Reals3::print({});
    return isDefault ? std::nullopt : std::optional<Origin>(origin);
}

std::optional<Inertial> toInertial(JointConfig const& body, Vector const& shift)
{
    auto const& matrix = body.inertiaMatrix;
    bool const hasInertia = std::any_of(matrix.begin(), matrix.end(), [](float entry) { return entry != 0.0F; });
    if (body.mass == 0.0F && !hasInertia && body.centerOfMass == Position3D()) {
        return std::nullopt;
    }
    Inertial inertial;
    inertial.origin = toOrigin(shifted(body.centerOfMass, shift), {});
    inertial.mass.emplace().value = shortest(body.mass);
    Inertia& inertia = inertial.inertia.emplace();
    if (matrix.size() == 9) {
        inertia.xx = shortest(matrix[0]);
        inertia.xy = shortest(matrix[1]);
        inertia.xz = shortest(matrix[2]);
        inertia.yy = shortest(matrix[4]);
        inertia.yz = shortest(matrix[5]);
        inertia.zz = shortest(matrix[8]);
    }
    return inertial;
}

void fillShape(ShapeConfig const& config, Vector const& shift, Shape& shape)
{
    Geometry const& geometry = config.geometry;
    shape.name = config.name;
    shape.origin = toOrigin(shifted(config.position, shift), shortest(config.orientation));
    shape.geometry.type = geometry.type;
    shape.geometry.filename = geometry.uri;
    shape.geometry.scale = shortest(geometry.scale);
    shape.geometry.size = shortest(geometry.size);
    shape.geometry.radius = shortest(geometry.radius);
    shape.geometry.length = shortest(geometry.length);
    if (geometry.type == GeometryType::capsule) {  // which others refuse
        shape.geometry.type = GeometryType::cylinder;
        shape.geometry.length += 2.0 * shape.geometry.radius;
    }
}

SurfaceMaterial toMaterial(Material const& material)
{
    SurfaceMaterial stated;
    stated.name = material.name;
    if (material.hasColor) {
        Rgba& rgba = stated.color.emplace().rgba;
        std::transform(material.rgba.begin(), material.rgba.end(), rgba.begin(),
                       [](float channel) { return shortest(channel); });
    }
    if (!material.texture.empty()) {
        stated.texture.emplace().filename = material.texture;
    }
    return stated;
}

std::optional<Limit> toLimit(JointConfig const& joint)
{
    Limit limit;
    bool const isLimited = joint.jointType == revolute || joint.jointType == prismatic;
    if (isLimited) {
        limit.lower = shortest(joint.minAngle);
        limit.upper = shortest(joint.maxAngle);
    }
    limit.effort = shortest(joint.maxTorque);
    limit.velocity = shortest(joint.maxAngularSpeed);
    bool const saysMore = joint.maxTorque != 0.0F || joint.maxAngularSpeed != 0.0F;
    return isLimited || saysMore ? std::optional<Limit>(limit) : std::nullopt;
}

std::optional<double> shortest(std::optional<float> value)
{
    return value ? std::optional<double>(Urdf::shortest(*value)) : std::nullopt;
}

void fillExtras(JointConfig const& joint, Joint& stated)
{
    if (joint.damping != 0.0F || joint.friction != 0.0F) {
        Dynamics& dynamics = stated.dynamics.emplace();
        dynamics.damping = shortest(joint.damping);
        dynamics.friction = shortest(joint.friction);
    }
    if (joint.mimic != nullptr) {
        Mimic& mimic = stated.mimic.emplace();
        mimic.joint = joint.mimic->joint;
        mimic.multiplier = shortest(joint.mimic->multiplier);
        mimic.offset = shortest(joint.mimic->offset);
    }
    if (joint.calibration != nullptr) {
        Calibration& calibration = stated.calibration.emplace();
        calibration.rising = shortest(joint.calibration->rising);
        calibration.falling = shortest(joint.calibration->falling);
    }
    if (joint.safety != nullptr) {
        SafetyController& safety = stated.safety.emplace();
        safety.softLowerLimit = shortest(joint.safety->lowerLimit);
        safety.softUpperLimit = shortest(joint.safety->upperLimit);
        safety.positionGain = shortest(joint.safety->positionGain);
        safety.velocityGain = shortest(joint.safety->velocityGain);
    }
}

/// URDF has the axis of a joint through the origin of its link: a link that a record has elsewhere is moved there, and
/// all that is in its frame back by as much.
Vector shiftOf(JointConfig const& joint)
{
    Pose const end = toPose(joint.endTransform);
    return transposed(end.rotation) * end.translation;
}

TransmissionEnd toEnd(std::string const& name)
{
    TransmissionEnd end;
    end.name = name;
    return end;
}

bool hasActuator(TransmissionConfig const& config)
{
    return !config.actuator.empty() || config.reduction != 1.0F;
}

/// Whether two records that follow each other are of the joints of one transmission.
bool areOne(TransmissionConfig const& one, TransmissionConfig const& next)
{
    return one.name == next.name && one.type == next.type && hasActuator(one) == hasActuator(next);
}

void addDriven(TransmissionConfig const& config, Transmission& stated)
{
    stated.joints.emplace_back(toEnd(config.joint))
        .interfaces.assign(config.interfaces.begin(), config.interfaces.end());
    if (hasActuator(config)) {
        TransmissionEnd& actuator = stated.actuators.emplace_back(toEnd(config.actuator));
        if (config.reduction != 1.0F) {
            actuator.reduction.emplace().value = shortest(config.reduction);
        }
    }
}

}  // namespace

StatementsOf::StatementsOf(Records const& records, ShortPoses& poses) : _records(records), _poses(poses)
{
    std::size_t const size = records.joints.size();
    _robot.name = records.name;
    _robot.version = records.version == onlyVersion ? onlyVersion : std::string_view();
    nameLinks();
    attachJoints();
    _ends.resize(size);
    _robot.joints.reserve(size);
    _robot.links.reserve(size + 1);
    _robot.links.push_back(toLink(records.root, linkOf(none), {}));
    for (std::size_t i = 0; i < size; ++i) {
        addJoint(i);
    }
    addTransmissions();
    _attachments = {};  // to make room for the text
    _ends = {};
}

std::size_t StatementsOf::indexOf(std::string_view joint) const
{
    JointConfig const* const found = _records.joints.find(joint);
    return found == nullptr ? none : static_cast<std::size_t>(found - &_records.joints[0]);
}

std::string_view StatementsOf::linkOf(std::string_view bearer) const
{
    return linkOf(indexOf(bearer));
}

/// Their own names, where the records have them; no name twice. The root's comes first, so that it stays as it is.
void StatementsOf::nameLinks()
{
    JointConfig const& root = _records.root;
    std::string const rootLink = root.linkName.empty() ? root.name : root.linkName;
    std::unordered_set<std::string_view, NameHash> taken = {rootLink};
    _linkNames.reserve(_records.joints.size() + 1);  // so that the views last
    for (JointConfig const& joint : _records.joints) {
        std::string& name = _linkNames.emplace_back(joint.linkName.empty() ? joint.name + "Link" : joint.linkName);
        while (!taken.insert(name).second) {
            name += "_";
        }
    }
    _linkNames.push_back(rootLink);
}

void StatementsOf::attachJoints()
{
    _attachments.resize(_records.joints.size());
    for (ChainConfig const& chain : _records.chains) {
        Attachment next = {indexOf(chain.parentJoint), chain.placement};
        for (std::string const& name : chain.jointNames) {
            std::size_t const joint = indexOf(name);
            if (joint != none && !_attachments[joint]) {
                _attachments[joint] = next;
            }
            next = {joint, {}};
        }
    }
    cutCycles();
}

/// Joints that chains attach to each other are attached to the root instead.
void StatementsOf::cutCycles()
{
    std::vector<std::size_t> parents;
    parents.reserve(_attachments.size());
    for (auto const& attachment : _attachments) {
        parents.push_back(attachment ? attachment->parent : none);
    }
    for (Cycle const& cycle : findCycles(parents)) {
        _attachments[cycle.front()].reset();
    }
}

Vector StatementsOf::shiftOfLink(std::string_view bearer) const
{
    JointConfig const* const joint = _records.joints.find(bearer);
    return joint == nullptr ? Vector() : shiftOf(*joint);
}

void StatementsOf::addJoint(std::size_t index)
{
    JointConfig const& joint = _records.joints[index];
    Joint stated;
    stated.name = joint.name;
    stated.type = joint.jointType;
    stated.child.emplace().link = linkOf(index);
    stated.limit = toLimit(joint);
    fillExtras(joint, stated);
    placeJoint(index, stated);
    _robot.joints.push_back(std::move(stated));
    _robot.links.push_back(toLink(joint, linkOf(index), shiftOf(joint)));
}

/// The link's frame of one joint's end is what the next joint's placement begins with: both as the reader computes
/// them, where that gives what the record has.
void StatementsOf::placeJoint(std::size_t index, Joint& stated)
{
    JointConfig const& joint = _records.joints[index];
    End const& end = endOf(index);
    if (isMoving(joint.jointType)) {
        stated.axis.emplace().xyz = end.axis;
    }
    Attachment const attachment = _attachments[index].value_or(Attachment());
    stated.parent.emplace().link = linkOf(attachment.parent);
    Pose const start = attachment.parent == none ? Pose() : endOf(attachment.parent).pose;
    Math::Transform const placement =
        attachment.base == Math::Transform() ? joint.placement : attachment.base * joint.placement;
    StatedPose const pose = _poses.poseBetween(start, placement, inverse(end.pose));
    stated.origin = toOrigin(pose.xyz, pose.rpy);
}

StatementsOf::End const& StatementsOf::endOf(std::size_t joint)
{
    std::optional<End>& end = _ends[joint];
    if (!end) {
        JointConfig const& record = _records.joints[joint];
        end.emplace();
        end->axis = isMoving(record.jointType) ? _poses.axisOf(record.endTransform) : Vector{0.0, 0.0, 1.0};
        end->pose = inverse({rotationFromZ(end->axis), {}});
        if (toTransform(end->pose) != record.endTransform) {
            end->pose = {toPose(record.endTransform).rotation, {}};
        }
    }
    return *end;
}

Link StatementsOf::toLink(JointConfig const& body, std::string_view name, Vector const& shift)
{
    Link link;
    link.name = name;
    link.inertial = toInertial(body, shift);
    bool const isMeshAlone = body.shapes.visuals.empty() && !body.meshName.empty();
    std::vector<VisualConfig> const& visuals =
        isMeshAlone ? _meshVisuals.emplace_back(visualsOf(body)) : body.shapes.visuals;
    for (VisualConfig const& config : visuals) {
        Visual& visual = link.visuals.emplace_back();
        fillShape(config, shift, visual);
        if (config.material != nullptr) {
            visual.material = toMaterial(*config.material);
        }
    }
    for (CollisionConfig const& config : body.shapes.collisions) {
        fillShape(config, shift, link.collisions.emplace_back());
    }
    return link;
}

/// Those of ros2_control stand in its text, which is kept.
void StatementsOf::addTransmissions()
{
    TransmissionConfig const* last = nullptr;
    for (TransmissionConfig const& config : _records.transmissions) {
        if (config.source != TransmissionSource::transmission) {
            continue;
        }
        if (last == nullptr || !areOne(*last, config)) {
            Transmission& stated = _robot.transmissions.emplace_back();
            stated.name = config.name;
            stated.type = config.type;
        }
        addDriven(config, _robot.transmissions.back());
        last = &config;
    }
}

}  // namespace Varo::Model::Urdf
