#include "urdf/sensor_kinds.hpp"

#include <algorithm>
#include <tuple>

#include "range.hpp"

namespace Varo::Model::Urdf {

namespace {

Range<SensorKind> allKinds()
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
    return kinds;
}

/// The values that a sweep gives; 0 when they are too few or too many.
std::int32_t valuesOf(ScanSettings const& sweep)
{
    float const values = static_cast<float>(sweep.samples) * sweep.resolution;
    return values < 100'000.5F ? static_cast<std::int32_t>(values + 0.5F) : 0;
}

}  // namespace

SensorKind const* findSensorKind(std::string_view name)
{
    for (SensorKind const& kind : allKinds()) {
        if (kind.name == name) {
            return &kind;
        }
    }
    return nullptr;
}

SensorKind const* defaultKind(std::int32_t type)
{
    Range<SensorKind> const kinds = allKinds();
    auto const* const found =
        std::find_if(kinds.begin(), kinds.end(), [type](SensorKind const& kind) { return kind.type == type; });
    return found == kinds.end() ? nullptr : found;
}

SensorSize sensorSizeOf(SensorSettings const* settings, SensorType type)
{
    if (settings == nullptr) {
        return {};
    }
    if (type == arrayDepth) {
        auto const& [across, upward] = std::tie(settings->horizontalScan, settings->verticalScan);
        return {across ? valuesOf(*across) : 0, upward ? valuesOf(*upward) : 1};
    }
    return settings->camera ? SensorSize{settings->camera->width, settings->camera->height} : SensorSize();
}

SensorSize defaultSensorSize(SensorType type)
{
    return type == arrayDepth ? SensorSize{640, 1} : SensorSize{320, 240};
}

}  // namespace Varo::Model::Urdf
