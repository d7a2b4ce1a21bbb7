#ifndef VARO_ACTUATORS_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_ACTUATOR_IMPL_HPP

#include <string>
#include <utility>

#include <boost/shared_ptr.hpp>

#include "actuators/model_life.hpp"
#include "core/element_ref.hpp"
#include "core/shared_value.hpp"
#include "sim/actuator.hpp"
#include "sim/frame.hpp"

namespace Sim {

inline constexpr char actuatorErrMsg[] = "Could not query Actuator as it seems not correctly constructed.";

class ActuatorImpl {
public:
    ActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, Actuator::Type type)
        : _frame(frame), _name(name), _type(type)
    {}
    /// Of a copy, which may outlive the model.
    ActuatorImpl(ActuatorImpl const& other)
        : _frame(other._frame), _name(other._name.kept()), _type(other._type), _modelLife(other._modelLife)
    {}
    ActuatorImpl& operator=(ActuatorImpl const&) = delete;
    virtual ~ActuatorImpl() = default;

    /// Of an element of a model.
    void setModelLife(ModelLife life) { _modelLife = std::move(life); }

    boost::shared_ptr<Frame const> frame() const { return locked(_frame); }
    std::string const& name() const { return _name; }
    SharedName const& sharedName() const { return _name; }
    Actuator::Type type() const { return _type; }

protected:
    /// Empty when the element is gone, as all are with their model.
    template <class T>
    boost::shared_ptr<T> locked(ElementRef<T> const& element) const
    {
        return _modelLife.isOver() ? boost::shared_ptr<T>() : element.lock();
    }

private:
    ElementRef<Frame const> _frame;
    SharedName _name;
    Actuator::Type _type;
    ModelLife _modelLife;
};

}  // namespace Sim

#endif
