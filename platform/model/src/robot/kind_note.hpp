#ifndef VARO_MODEL_ROBOT_KIND_NOTE_HPP
#define VARO_MODEL_ROBOT_KIND_NOTE_HPP

#include <cstddef>
#include <string>
#include <string_view>

#include "varo/model/diagnostics.hpp"

namespace Varo::Model {

/// One note for all that is of one kind, about which there is nothing to be done: it stands at the first, and names the
/// first few.
class KindNote {
public:
    void add(TextOffset place, std::string_view name)
    {
        constexpr std::size_t few = 3;
        if (_count == 0) {
            _first = place;
        }
        if (_count < few) {
            _names += (_count == 0 ? "" : ", ") + quoted(name);
        } else {
            ++_others;
        }
        ++_count;
    }

    /// `message` is a sentence that ends where the names follow.
    void report(FindingCode const& code, std::string const& message, Diagnostics& diagnostics) const
    {
        if (_count > 0) {
            std::string const others = _others > 0 ? " and " + std::to_string(_others) + " more" : "";
            diagnostics.report(_first, code, message + ": " + _names + others + ".");
        }
    }

private:
    TextOffset _first;
    std::string _names;
    std::size_t _count = 0;
    std::size_t _others = 0;
};

}  // namespace Varo::Model

#endif
