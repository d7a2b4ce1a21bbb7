#include "record_text.hpp"

#include <array>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Fuzz {

namespace {

using namespace Varo::Model;

/// Each record is taken apart by a structured binding, which stops compiling when it gets another member.
class RecordText {
public:
    std::string const& text() const { return _text; }

    template <class... Values>
    void add(Values const&... values)
    {
        (addOne(values), ...);
    }

    void addBody(JointConfig const& value, std::string const& usualLink)
    {
        auto const& [name, mesh, min, max, effort, speed, mass, inertia, com, meshPosition, placement, end, meshRpy,
                     mirrorKind, mirror, type, hasMotor, damping, friction, attributes, shapes, mimic, safety,
                     calibration, link, place, bodyPlace] = value;
        add(name, mesh, min, max, effort, speed, mass, inertia, com, meshPosition, placement, end, meshRpy, mirrorKind,
            mirror, type, hasMotor, damping, friction, attributes, shapes, mimic, safety, calibration,
            link == usualLink ? std::string() : link);
    }

private:
    void addLine(std::string const& line) { _text += line + '\n'; }

    void addOne(std::string const& value) { addLine('"' + value + '"'); }
    void addOne(float value)
    {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        addLine(std::to_string(value) + " " + std::to_string(bits));
    }
    void addOne(std::int32_t value) { addLine(std::to_string(value)); }
    void addOne(std::uint32_t value) { addLine(std::to_string(value)); }
    void addOne(bool value) { addLine(value ? "true" : "false"); }
    void addOne(GeometryType value) { addLine(std::to_string(static_cast<int>(value))); }
    void addOne(TransmissionSource value) { addLine(std::to_string(static_cast<int>(value))); }
    void addOne(ExtensionOwner value) { addLine(std::to_string(static_cast<int>(value))); }
    void addOne(Position3D const& value) { add(value.x, value.y, value.z); }
    void addOne(Transform const& value) { addOne(value.rows()); }

    template <class Values>
    void addEach(Values const& values)
    {
        addLine("[" + std::to_string(values.size()));
        for (auto const& value : values) {
            addOne(value);
        }
    }
    template <class Value>
    void addOne(std::vector<Value> const& values)
    {
        addEach(values);
    }
    template <class Value, std::size_t size>
    void addOne(std::array<Value, size> const& values)
    {
        addEach(values);
    }
    template <class Key, class Value>
    void addOne(std::map<Key, Value> const& values)
    {
        addEach(values);
    }
    template <class Value>
    void addOne(Table<Value> const& values)
    {
        addEach(values);
    }
    template <class First, class Second>
    void addOne(std::pair<First, Second> const& value)
    {
        add(value.first, value.second);
    }
    template <class Value>
    void addPointedTo(Value const& value)
    {
        addLine(value ? "is stated" : "is not stated");
        if (value) {
            addOne(*value);
        }
    }
    template <class Value>
    void addOne(std::optional<Value> const& value)
    {
        addPointedTo(value);
    }
    template <class Value>
    void addOne(std::shared_ptr<Value> const& value)
    {
        addPointedTo(value);
    }

    void addOne(MimicConfig const& value)
    {
        auto const& [joint, multiplier, offset, place] = value;
        add(joint, multiplier, offset);
    }
    void addOne(SafetyConfig const& value)
    {
        auto const& [lower, upper, position, velocity] = value;
        add(lower, upper, position, velocity);
    }
    void addOne(CalibrationConfig const& value)
    {
        auto const& [rising, falling] = value;
        add(rising, falling);
    }
    void addOne(Geometry const& value)
    {
        auto const& [type, uri, scale, size, radius, length] = value;
        add(type, uri, scale, size, radius, length);
    }
    void addOne(Material const& value)
    {
        auto const& [name, hasColor, rgba, texture] = value;
        add(name, hasColor, rgba, texture);
    }
    void addOne(ShapeConfig const& value)
    {
        auto const& [name, position, orientation, geometry, place] = value;
        add(name, position, orientation, geometry);
    }
    void addOne(VisualConfig const& value) { add(static_cast<ShapeConfig const&>(value), value.material); }
    void addOne(CollisionConfig const& value) { addOne(static_cast<ShapeConfig const&>(value)); }
    void addOne(BodyShapes const& value)
    {
        auto const& [visuals, collisions] = value;
        add(visuals, collisions);
    }
    void addOne(NoiseSettings const& value)
    {
        auto const& [quantity, type, mean, deviation, biasMean, biasDeviation, driftDeviation, time, precision] = value;
        add(quantity, type, mean, deviation, biasMean, biasDeviation, driftDeviation, time, precision);
    }
    void addOne(CameraSettings const& value)
    {
        auto const& [name, fieldOfView, width, height, format, near, far] = value;
        add(name, fieldOfView, width, height, format, near, far);
    }
    void addOne(ScanSettings const& value)
    {
        auto const& [samples, resolution, minimum, maximum] = value;
        add(samples, resolution, minimum, maximum);
    }
    void addOne(RangeSettings const& value)
    {
        auto const& [minimum, maximum, resolution] = value;
        add(minimum, maximum, resolution);
    }
    void addOne(SensorSettings const& value)
    {
        auto const& [rate, camera, horizontal, vertical, range, noises] = value;
        add(rate, camera, horizontal, vertical, range, noises);
    }
    void addOne(JointConfig const& value) { addBody(value, value.name + "Link"); }
    void addOne(ActuatorConfig const& value)
    {
        auto const& [name, min, max, effort, speed, parent, placement, groups, mirrorKind, mirror, place] = value;
        add(name, min, max, effort, speed, parent, placement, groups, mirrorKind, mirror);
    }
    void addOne(SensorConfig const& value)
    {
        auto const& [name, parent, type, placement, attributes, keys, settings, place] = value;
        add(name, parent, type, placement, attributes, keys, settings);
    }
    void addOne(WheelConfig const& value)
    {
        auto const& [name, mesh, effort, speed, mass, inertia, com, parent, placement, attributes, shapes, place] =
            value;
        add(name, mesh, effort, speed, mass, inertia, com, parent, placement, attributes, shapes);
    }
    void addOne(SubActuatorConfig const& value)
    {
        auto const& [name, mesh, offset, ratio, placement, shapes, place] = value;
        add(name, mesh, offset, ratio, placement, shapes);
    }
    void addOne(ChainConfig const& value)
    {
        auto const& [name, parent, joints, placement, tip, tipName, place, places] = value;
        add(name, parent, joints, placement, tip, tipName);
    }
    void addOne(PostureAngle const& value)
    {
        auto const& [name, angle, place] = value;
        add(name, angle);
    }
    void addOne(PostureConfig const& value)
    {
        auto const& [name, angles, place] = value;
        add(name, angles);
    }
    void addOne(TransmissionConfig const& value)
    {
        auto const& [name, type, joint, actuator, reduction, interfaces, stateInterfaces, source, place] = value;
        add(name, type, joint, actuator, reduction, interfaces, stateInterfaces, source);
    }
    void addOne(ExtensionConfig const& value)
    {
        auto const& [owner, ownerName, within, text, place] = value;
        add(owner, ownerName, within, text);
    }

    std::string _text;
};

}  // namespace

std::string textOf(Records const& records)
{
    auto const& [dialect, actuatorsAreStated, posturesAreStated, mirrorsAreStated, name, version, prettyNames, root,
                 joints, reflectionForced, chains, chainOrder, actuators, subActuators, sensors, wheels, postures,
                 transmissions, extensions] = records;
    RecordText text;
    text.add(name, version, prettyNames);
    text.addBody(root, root.name);
    text.add(joints, reflectionForced, chains, chainOrder, actuators, subActuators, sensors, wheels, postures,
             transmissions, extensions);
    return text.text();
}

}  // namespace Fuzz
