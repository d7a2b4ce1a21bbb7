#ifndef VARO_MODEL_ROBOT_UNSUPPORTED_HPP
#define VARO_MODEL_ROBOT_UNSUPPORTED_HPP

#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

#include "varo/model/diagnostics.hpp"

namespace Varo::Model {

/// What a reader passes over, one note per kind of element: files have the same few by the hundred.
class Unsupported {
public:
    /// The element `name`, within one called `parent`, which stands at `place`. The names must outlive this.
    void add(std::string_view parent, std::string_view name, TextOffset place);
    /// At the first element of each kind.
    void report(Diagnostics& diagnostics) const;

private:
    struct Kind {
        TextOffset first;
        std::size_t count = 0;
    };

    std::map<std::pair<std::string_view, std::string_view>, Kind> _kinds;  // by names of parent and element
};

}  // namespace Varo::Model

#endif
