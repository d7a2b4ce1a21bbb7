#ifndef VARO_CORE_SHARED_VALUE_HPP
#define VARO_CORE_SHARED_VALUE_HPP

#include <string>
#include <type_traits>
#include <utility>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"

namespace Sim {

/// A value that is held once for all the elements that have it: a joint's frames, its motor and its sensors have one
/// name. Either a record holds it, which outlives the elements of its model, or all that have it keep it alive.
template <class T>
class SharedValue {
public:
    /// One that is kept alive.
    template <class Value, class = std::enable_if_t<std::is_convertible_v<Value, T>>>
    SharedValue(Value&& value)  // NOLINT(google-explicit-constructor): elements take any value
        : _value(boost::make_shared<T const>(std::forward<Value>(value)))
    {}
    SharedValue(boost::shared_ptr<T const> value)  // NOLINT(google-explicit-constructor): it is that value
        : _value(std::move(value))
    {}
    SharedValue(SharedValue&) = default;  // so that the first one does not take its place
    SharedValue(SharedValue const&) = default;
    SharedValue(SharedValue&&) noexcept = default;
    SharedValue& operator=(SharedValue const&) = delete;
    ~SharedValue() = default;

    /// One that outlives all that have it.
    static SharedValue of(T const& record) { return {uncounted(&record)}; }

    /// The same for what outlives the records.
    SharedValue kept() const { return _value.use_count() > 0 ? *this : SharedValue(T(*_value)); }

    operator T const&() const { return *_value; }  // NOLINT(google-explicit-constructor): it is that value

private:
    boost::shared_ptr<T const> _value;
};

using SharedName = SharedValue<std::string>;

}  // namespace Sim

#endif
