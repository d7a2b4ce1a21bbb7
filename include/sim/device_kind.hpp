#ifndef SIM_DEVICE_KIND_HPP
#define SIM_DEVICE_KIND_HPP

namespace Sim {

/// A row of the tables of device kinds, `sensorKinds` and `actuatorKinds`: what the class `Device` is called.
///
/// `std::get<SensorKind<CameraSensor>>(sensorKinds)` is the row of a class; `std::apply` walks all rows. Constant data,
/// which any number of threads may read.
template <class Device, class Type>
struct DeviceKind {
    using Class = Device;  ///< declared by the table's header; its own header defines it
    Type type;  ///< what type() answers for every device of the class
    char const* name;  ///< of the type, as the enumerator is spelled: "CameraDepth"
    char const* word;  ///< what people call such a device: "depth-camera"; several take an s
};

}  // namespace Sim

#endif
