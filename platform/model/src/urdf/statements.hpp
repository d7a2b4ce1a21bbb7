#ifndef VARO_MODEL_URDF_STATEMENTS_HPP
#define VARO_MODEL_URDF_STATEMENTS_HPP

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <boost/container/small_vector.hpp>

#include "robot/pose.hpp"
#include "varo/model/configs.hpp"
#include "xml/document.hpp"

/// What a URDF text says, element by element: what the tables of `schema.hpp` are read into and written from.
///
/// Units are SI, poses are in the frame that URDF states them in. Names and texts are views of what was parsed, or of
/// the records that are written.
namespace Varo::Model::Urdf {

struct Stated {
    XmlNode node;  ///< null for what was not read
};

struct Origin : Stated {
    Vector xyz = {};
    Vector rpy = {};

    Pose pose() const { return poseFrom(xyz, rpy); }
};

struct Mass : Stated {
    double value = 0.0;
};

/// About the centre of mass, in the axes of the inertial's own frame.
struct Inertia : Stated {
    double xx = 0.0;
    double xy = 0.0;
    double xz = 0.0;
    double yy = 0.0;
    double yz = 0.0;
    double zz = 0.0;
};

struct Inertial : Stated {
    std::optional<Origin> origin;
    std::optional<Mass> mass;
    std::optional<Inertia> inertia;
};

struct Solid : Stated {
    std::optional<GeometryType> type;  ///< which of the following mean something; absent for none that URDF knows
    std::string_view filename;
    Vector scale = {1.0, 1.0, 1.0};
    Vector size = {};
    double radius = 0.0;
    double length = 0.0;
};

using Rgba = std::array<double, 4>;
constexpr Rgba opaqueBlack = {0.0, 0.0, 0.0, 1.0};

struct Color : Stated {
    Rgba rgba = opaqueBlack;
};

struct Texture : Stated {
    std::string_view filename;
};

struct SurfaceMaterial : Stated {
    std::string_view name;
    std::optional<Color> color;
    std::optional<Texture> texture;
};

struct Shape : Stated {
    std::string_view name;
    std::optional<Origin> origin;
    Solid geometry;
};

struct Visual : Shape {
    std::optional<SurfaceMaterial> material;
};

struct Collision : Shape {};

struct Link : Stated {
    std::string_view name;
    std::optional<Inertial> inertial;
    std::vector<Visual> visuals;
    std::vector<Collision> collisions;
};

/// The parent or the child of a joint.
struct LinkReference : Stated {
    std::string_view link;
};

struct Axis : Stated {
    Vector xyz = {1.0, 0.0, 0.0};
};

struct Limit : Stated {
    double lower = 0.0;
    double upper = 0.0;
    double effort = 0.0;
    double velocity = 0.0;
};

struct Dynamics : Stated {
    double damping = 0.0;
    double friction = 0.0;
};

struct Mimic : Stated {
    std::string_view joint;
    double multiplier = 1.0;
    double offset = 0.0;
};

struct Calibration : Stated {
    std::optional<double> rising;
    std::optional<double> falling;
};

struct SafetyController : Stated {
    double softLowerLimit = 0.0;
    double softUpperLimit = 0.0;
    double positionGain = 0.0;
    double velocityGain = 0.0;
};

constexpr std::int32_t noJointType = -1;

struct Joint : Stated {
    std::string_view name;
    std::int32_t type = noJointType;  ///< a JointType
    std::optional<LinkReference> parent;
    std::optional<LinkReference> child;
    std::optional<Origin> origin;
    std::optional<Axis> axis;
    std::optional<Limit> limit;
    std::optional<Dynamics> dynamics;
    std::optional<Mimic> mimic;
    std::optional<Calibration> calibration;
    std::optional<SafetyController> safety;
};

/// The text of a `mechanicalReduction`.
struct Reduction : Stated {
    double value = 1.0;
};

/// A joint or an actuator of a transmission.
struct TransmissionEnd : Stated {
    std::string_view name;
    boost::container::small_vector<std::string, 1> interfaces;
    std::optional<Reduction> reduction;
};

struct Transmission : Stated {
    std::string_view name;
    std::string type;
    boost::container::small_vector<TransmissionEnd, 1> joints;
    boost::container::small_vector<TransmissionEnd, 1> actuators;
    std::optional<Reduction> reduction;  ///< where no actuator states its own
};

struct Robot : Stated {
    std::string_view name;
    std::string_view version;
    std::vector<SurfaceMaterial> materials;
    std::vector<Link> links;
    std::vector<Joint> joints;
    std::vector<Transmission> transmissions;
};

}  // namespace Varo::Model::Urdf

#endif
