#ifndef VARO_MODEL_NATIVE_ELEMENTS_HPP
#define VARO_MODEL_NATIVE_ELEMENTS_HPP

#include <string>

#include "native/schema.hpp"
#include "varo/model/records.hpp"

/// The elements of the native dialect; each family of them stands in a source of its own.
namespace Varo::Model::Native {

/// What the joint record has no place for goes into the robot's own lists.
struct JointReading : JointConfig {
    bool reflectionForced = false;
};

/// Which kind of element an extension stands in is said by which of these names it.
struct ExtensionReading : ExtensionConfig {
    std::string link;
    std::string joint;
    std::string sensor;
};

extern Element<Records> const robotDescriptionElement;
/// The same of a robot that another text describes: root, joints and sensors change what stands there, and the others
/// replace all of their name.
extern Element<Records> const amendmentElement;

/// Makes the robot one that states all that a text of the native dialect states, so that links only have names of their
/// own where these are others than the usual ones.
void declareComplete(Records& robot);

// What stands in it.
extern Element<JointConfig> const rootElement;
extern Element<JointReading> const jointElement;
extern Element<ChainConfig> const chainElement;
extern Element<ActuatorConfig> const actuatorElement;
extern Element<WheelConfig> const wheelElement;
extern Element<SensorConfig> const sensorElement;
extern Element<PostureConfig> const postureElement;
extern Element<TransmissionConfig> const transmissionElement;
extern Element<ExtensionReading> const extensionElement;

// What stands in a sensor.
extern Element<SensorSettings> const sensorSettingsElement;

}  // namespace Varo::Model::Native

#endif
