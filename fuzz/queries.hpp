#ifndef VARO_FUZZ_QUERIES_HPP
#define VARO_FUZZ_QUERIES_HPP

#include <vector>

#include "sim/model.hpp"
#include "sim/motion_model.hpp"

namespace Fuzz {

/// Every look-up and list of the model, by all names that it has; what is found has to be what was asked for.
void askModel(Sim::Model const& model);

/// Every query of the motion model, by the names of its records and by one that nothing has.
void askMotionModel(Sim::MotionModel& model);

/// Every query of Kinematics and Configuration. Refusals by std::invalid_argument are right, others are not.
void askKinematics(Sim::Model const& model);

/// Copies of the model's actuators that refer to other elements.
struct Copies {
    explicit Copies(Sim::Model const& model);
    /// Asks them when the model is gone: they answer as such copies do.
    void askAlone() const;

    std::vector<Sim::AngleActuator> angles;
    std::vector<Sim::CoupledActuator> coupled;
    std::vector<Sim::LEDActuator> lights;
};

}  // namespace Fuzz

#endif
