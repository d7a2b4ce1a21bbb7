#ifndef SIM_INERTIAL_SENSOR_HPP
#define SIM_INERTIAL_SENSOR_HPP

#include "sim/dcm_sensor.hpp"
#include "varo/export.hpp"

namespace Sim {

/// An inertial unit: measures angular velocities (rad/s) about the axes of its frame, and accelerations (m/s^2) along
/// them.
///
/// It has the name that the description gives it with "/Gyrometer" appended: Model::inertialSensor("Imu/Gyrometer")
/// finds the one described as "Imu". Its frame has the plain name.
class VAROROBOTMODEL_API InertialSensor final : public DCMSensor {
public:
    InertialSensor();
    ~InertialSensor();

    /// 28: seven single-precision values.
    int bufferSize() const override;
};

}  // namespace Sim

#endif
