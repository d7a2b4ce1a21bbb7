#include <algorithm>

#include "core/frame_impl.hpp"
#include "core/link_impl.hpp"
#include "core/model_impl.hpp"
#include "sensors/array_depth_sensor_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"
#include "sensors/microphone_sensor_impl.hpp"
#include "sensors/picture_camera_impl.hpp"
#include "zu/log.hpp"

namespace Sim {

namespace {

constexpr char logCategory[] = "varorobotmodel";

bool isWithoutClass(Varo::Model::SensorConfig const& sensor)
{
    return sensor.type == Varo::Model::battery || sensor.type == Varo::Model::temperature ||
           sensor.type == Varo::Model::button;
}

}  // namespace

void ModelImpl::fetchSensors()
{
    zu::log::addCategory(logCategory);
    auto const& sensors = _motionModel->records().sensors;
    for (std::uint32_t const sensor : sensors.nameOrder()) {
        if (!fetchSensor(sensors.nameOf(sensor), sensors[sensor])) {
            return;  // the sensors behind one without its parent link are left out too
        }
    }
    reportSensorsWithoutClass();
}

void ModelImpl::logFromFetchSensors(int level, std::string const& message) const
{
    if (_saysAloud) {
        zu::log::log(logCategory, level, "fetchSensors", message);
    }
}

/// All of them in one note: there is nothing to be done about it.
void ModelImpl::reportSensorsWithoutClass()
{
    auto const& sensors = _motionModel->records().sensors;
    auto const count = std::count_if(sensors.begin(), sensors.end(), isWithoutClass);
    auto const first = std::find_if(sensors.begin(), sensors.end(), isWithoutClass);
    if (first != sensors.end()) {
        std::string const others = count > 1 ? ", and neither are " + std::to_string(count - 1) + " more." : ".";
        _report->leaveOut(first->textOffset, codes::sensorWithoutClass,
                          "The sensor " + Varo::Model::quoted(first->name) +
                              " is not in the model, which has no class for its kind" + others);
    }
}

/// `name` is the one that the record is listed under.
bool ModelImpl::fetchSensor(std::string const& name, Varo::Model::SensorConfig const& record)
{
    std::string const& parent = record.parent;
    boost::shared_ptr<Link> parentLink;
    if (_index->joints.contains(parent)) {
        parentLink = _index->linkCalledAfter(parent);
        if (parentLink == nullptr) {
            logFromFetchSensors(zu::log::error,
                                "Could not add sensor " + name + ". Parent link " + parent + "Link" + "not found.");
            _report->leaveOut(record.textOffset, codes::modelIncomplete,
                              "The sensor " + Varo::Model::quoted(name) + " and those after it, in order of names, " +
                                  "are left out: the joint that it is attached to moves no link.");
            return false;
        }
    } else {
        parentLink = _index->linkCalledAfter(_motionModel->rootName());
    }
    SharedName const sharedName = SharedName::of(name);
    std::size_t const before = _sensors.size();
    addDevice(sharedName, addFrame(sharedName, record.placement, parentLink->_impl->frame()), record);
    if (_sensors.size() > before) {  // lights and kinds without a class are no sensors
        _sensors.back()->_impl->shareSettings(record.settings);
    }
    return true;
}

void ModelImpl::addDevice(SharedName const& sharedName, FramePtr const& frame, Varo::Model::SensorConfig const& record)
{
    std::string const& name = sharedName;
    Keys const& keys = record.keys;
    switch (record.type) {
    case Varo::Model::led: fetchLED(sharedName, frame, keys); break;
    case Varo::Model::tactile: addSensor<TactileSensorImpl>(frame, sharedName, DeviceKeys::of(keys)); break;
    case Varo::Model::camera: {
        auto const [width, height] = requiredResolutionOf(name);
        addCameraSensor(frame, sharedName, width, height);
        break;
    }
    case Varo::Model::depthCamera: {
        auto const [width, height] = requiredResolutionOf(name);
        addCameraDepthSensor(frame, sharedName, width, height);
        break;
    }
    case Varo::Model::bumper: addSensor<BumperSensorImpl>(frame, sharedName, DeviceKeys::of(keys)); break;
    case Varo::Model::microphone: addMicrophoneSensor(frame, sharedName); break;
    case Varo::Model::arrayDepth: fetchArrayDepthSensor(sharedName, frame, keys); break;
    case Varo::Model::sonar: fetchSonarSensor(sharedName, frame, keys); break;
    case Varo::Model::fsr: addSensor<FSRSensorImpl>(frame, sharedName, DeviceKeys::of(keys)); break;
    case Varo::Model::inertial:
        addSensor<InertialSensorImpl>(frame, SharedName(name + "/Gyrometer"), DeviceKeys::of(keys));
        break;
    case Varo::Model::unknownSensor:
    case Varo::Model::battery:
    case Varo::Model::temperature:
    case Varo::Model::button:
        logFromFetchSensors(zu::log::verbose, "Could not find good type for sensor: " + name);
        break;
    default: break;
    }
}

void ModelImpl::fetchLED(SharedName const& name, FramePtr const& frame, Keys const& keys)
{
    std::string shortname;
    std::vector<std::string> groups;
    int color = LEDActuator::Blue;
    _motionModel->shortnameFromLED(name, shortname);
    _motionModel->groupsFromLED(name, groups);
    _motionModel->colorFromLED(name, &color);
    bool const known = color == LEDActuator::Red || color == LEDActuator::Green;
    addLEDActuator(frame, name, DeviceKeys::of(keys), shortname, groups,
                   known ? static_cast<LEDActuator::Color>(color) : LEDActuator::Blue);
}

std::pair<int, int> ModelImpl::requiredResolutionOf(std::string const& camera) const
{
    std::vector<std::pair<int, int>> resolutions;
    bool const known = _motionModel->resolutionsFromCamera(camera, resolutions) && !resolutions.empty();
    require(known, Subject::sensor, camera, "Could not get ", camera, " resolutions\n");
    return resolutions.front();
}

void ModelImpl::fetchArrayDepthSensor(SharedName const& name, FramePtr const& frame, Keys const& keys)
{
    std::vector<std::pair<int, int>> resolutions;
    bool const known = _motionModel->resolutionsFromCamera(name, resolutions) && !resolutions.empty();
    auto const [width, height] = known ? resolutions.front() : std::pair(static_cast<int>(keys.size()), 1);
    Keys stateKeys;
    Keys commandKeys;
    _motionModel->dcmStateKeys(name, stateKeys);
    _motionModel->dcmCommandKeys(name, commandKeys);
    addArrayDepthSensor(frame, name, DeviceKeys::of(keys), width, height, stateKeys, commandKeys);
}

void ModelImpl::fetchSonarSensor(SharedName const& name, FramePtr const& frame, Keys const& keys)
{
    if (keys.size() == 1) {
        addSonarSensor(frame, name, DeviceKeys::of(keys), SonarSensorImpl::SingleValue);
    } else if (keys.size() == 10) {
        addSonarSensor(frame, name, DeviceKeys::of(keys), SonarSensorImpl::TenValues);
    }
}

boost::shared_ptr<CameraSensor> ModelImpl::addCameraSensor(FramePtr const& frame, SharedName const& name, int width,
                                                           int height)
{
    return addSensor<CameraSensorImpl>(frame, name, width, height);
}

boost::shared_ptr<CameraDepthSensor> ModelImpl::addCameraDepthSensor(FramePtr const& frame, SharedName const& name,
                                                                     int width, int height)
{
    return addSensor<CameraDepthSensorImpl>(frame, name, width, height);
}

boost::shared_ptr<MicrophoneSensor> ModelImpl::addMicrophoneSensor(FramePtr const& frame, SharedName const& name)
{
    return addSensor<MicrophoneSensorImpl>(frame, name);
}

boost::shared_ptr<SonarSensor> ModelImpl::addSonarSensor(FramePtr const& frame, SharedName const& name,
                                                         DeviceKeys dcmKeys, SonarSensorImpl::SonarType sonarType)
{
    return addSensor<SonarSensorImpl>(frame, name, std::move(dcmKeys), sonarType);
}

boost::shared_ptr<ArrayDepthSensor> ModelImpl::addArrayDepthSensor(FramePtr const& frame, SharedName const& name,
                                                                   DeviceKeys dcmKeys, int width, int height,
                                                                   Keys const& dcmStateKeys, Keys const& dcmCommandKeys)
{
    return addSensor<ArrayDepthSensorImpl>(frame, name, std::move(dcmKeys), width, height, dcmStateKeys,
                                           dcmCommandKeys);
}

}  // namespace Sim
