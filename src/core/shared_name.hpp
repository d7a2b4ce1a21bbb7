#ifndef VARO_CORE_SHARED_NAME_HPP
#define VARO_CORE_SHARED_NAME_HPP

#include <string>
#include <utility>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace Sim {

/// A name that is held once for all the elements that have it: a joint's frames, its motor and its sensors have one.
/// Whoever holds it keeps it alive, so that an actuator's copy has it when the model is gone.
class SharedName {
public:
    SharedName(std::string name)  // NOLINT(google-explicit-constructor): elements take any name
        : _name(boost::make_shared<std::string const>(std::move(name)))
    {}
    SharedName(char const* name) : SharedName(std::string(name)) {}  // NOLINT(google-explicit-constructor)

    operator std::string const&() const { return *_name; }  // NOLINT(google-explicit-constructor)

private:
    boost::shared_ptr<std::string const> _name;
};

}  // namespace Sim

#endif
