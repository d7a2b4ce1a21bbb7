#ifndef VARO_TESTS_THROWS_HPP
#define VARO_TESTS_THROWS_HPP

#include <exception>
#include <string>

namespace Tests {

/// The message of the exception of type E that the action throws, or a text that no exception has.
template <class E, class Action>
std::string messageOf(Action const& action)
{
    try {
        action();
    } catch (E const& error) {
        return error.what();
    } catch (std::exception const& error) {
        return std::string("(another type) ") + error.what();
    }
    return "(nothing thrown)";
}

}  // namespace Tests

#endif
