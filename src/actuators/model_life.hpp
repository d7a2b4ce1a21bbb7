#ifndef VARO_ACTUATORS_MODEL_LIFE_HPP
#define VARO_ACTUATORS_MODEL_LIFE_HPP

#include <optional>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include "sim/motion_model.hpp"

namespace Sim {

/// What an actuator knows of the life of its model. Those of the model itself live no longer and only remember whom to
/// watch; their copies may, and watch. An actuator made elsewhere has no model whose life could be over.
class ModelLife {
public:
    ModelLife() = default;
    /// Of an element of the model that owns `motionModel`, which is destroyed after its elements.
    explicit ModelLife(boost::shared_ptr<MotionModel> const& motionModel) : _toWatch(&motionModel) {}
    /// Of a copy.
    ModelLife(ModelLife const& other) : _watched(other._watched)
    {
        if (other._toWatch != nullptr) {
            _watched = *other._toWatch;
        }
    }
    ModelLife& operator=(ModelLife&&) noexcept = default;
    ~ModelLife() = default;

    bool isOver() const { return _watched && _watched->expired(); }

private:
    boost::shared_ptr<MotionModel> const* _toWatch = nullptr;
    std::optional<boost::weak_ptr<MotionModel const>> _watched;
};

}  // namespace Sim

#endif
