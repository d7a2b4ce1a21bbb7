#include "urdf/sensor_kinds.hpp"

#include <cmath>

#include "urdf/numbers.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr double largestSize = 100'000.0;

/// A size that stands as an attribute (`<image width="640"/>`) or as a child (`<image><width>640</width></image>`); 0
/// when it is missing or useless.
std::size_t readSize(pugi::xml_node node, char const* name)
{
    pugi::xml_attribute const attribute = node.attribute(name);
    double value = 0.0;
    bool const isSize = parseNumber(attribute ? attribute.value() : node.child_value(name), value) && value >= 1.0 &&
                        value <= largestSize && value == std::floor(value);
    return isSize ? static_cast<std::size_t>(value) : 0;
}

SensorSize readImageSize(pugi::xml_node sensor)
{
    pugi::xml_node const image = sensor.child("camera").child("image");
    if (image) {
        return {readSize(image, "width"), readSize(image, "height")};
    }
    // The old form is a single list.
    std::string_view const list = sensor.child_value("imageSize");
    std::size_t const gap = list.find_first_of(" \t\r\n", list.find_first_not_of(" \t\r\n"));
    double width = 0.0;
    double height = 0.0;
    if (gap == list.npos || !parseNumber(list.substr(0, gap), width) || !parseNumber(list.substr(gap), height) ||
        !(width >= 1.0 && width <= largestSize && height >= 1.0 && height <= largestSize)) {
        return {};
    }
    return {static_cast<std::size_t>(width), static_cast<std::size_t>(height)};
}

SensorSize readScanSize(pugi::xml_node sensor)
{
    if (sensor.child("rangeCount")) {
        return {readSize(sensor, "rangeCount"), 1};
    }
    pugi::xml_node const ray = sensor.child("ray") ? sensor.child("ray") : sensor.child("lidar");
    pugi::xml_node const scan = ray.child("scan") ? ray.child("scan") : ray;
    pugi::xml_node const vertical = scan.child("vertical");
    return {readSize(scan.child("horizontal"), "samples"), vertical ? readSize(vertical, "samples") : 1};
}

}  // namespace

SensorKind const* findSensorKind(std::string_view name)
{
    static std::vector<std::string_view> const motion = {"AngularSpeedX", "AngularSpeedY", "AngularSpeedZ",
                                                         "AccelerationX", "AccelerationY", "AccelerationZ"};
    static SensorKind const kinds[] = {
        {"camera", camera, {}},
        {"wideanglecamera", camera, {}},
        {"multicamera", camera, {}},
        {"depth", depthCamera, {}},
        {"depth_camera", depthCamera, {}},
        {"rgbd", depthCamera, {}},
        {"rgbd_camera", depthCamera, {}},
        {"imu", inertial, motion},
        {"contact", bumper, {"Contact"}},
        {"tactile", tactile, {"Contact"}},
        {"microphone", microphone, {}},
        {"ray", arrayDepth, {"Distance"}},
        {"gpu_ray", arrayDepth, {"Distance"}},
        {"lidar", arrayDepth, {"Distance"}},
        {"gpu_lidar", arrayDepth, {"Distance"}},
        {"sonar", sonar, {"Distance"}},
        {"force_torque", fsr, {"Force"}},
    };
    for (SensorKind const& kind : kinds) {
        if (kind.name == name) {
            return &kind;
        }
    }
    return nullptr;
}

SensorSize readSensorSize(pugi::xml_node sensor, SensorType type)
{
    return type == arrayDepth ? readScanSize(sensor) : readImageSize(sensor);
}

SensorSize defaultSensorSize(SensorType type)
{
    return type == arrayDepth ? SensorSize{640, 1} : SensorSize{320, 240};
}

}  // namespace Varo::Model::Urdf
