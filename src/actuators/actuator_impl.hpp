#ifndef VARO_ACTUATORS_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_ACTUATOR_IMPL_HPP

#include <string>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

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
    /// Of a copy, which outlives the model.
    ActuatorImpl(ActuatorImpl const& other) : _frame(other._frame), _name(other._name.kept()), _type(other._type) {}
    ActuatorImpl& operator=(ActuatorImpl const&) = delete;
    virtual ~ActuatorImpl() = default;

    boost::shared_ptr<Frame const> frame() const { return _frame.lock(); }
    std::string const& name() const { return _name; }
    SharedName const& sharedName() const { return _name; }
    Actuator::Type type() const { return _type; }

private:
    boost::weak_ptr<Frame const> _frame;
    SharedName _name;
    Actuator::Type _type;
};

}  // namespace Sim

#endif
