#ifndef TOOL_SUPPORT_KINDS_HPP
#define TOOL_SUPPORT_KINDS_HPP

#include <functional>
#include <string>
#include <vector>

#include "sim/model.hpp"
#include "support/json.hpp"

namespace Tool {

/// A column of a table of elements.
struct Column {
    char const* title;
    char const* pointer;  ///< to the value in the element's JSON, such as "/mass/mass"
    bool isLink = false;  ///< whether the value is the model's name of a link
};

/// Hands over the JSON of the elements of one kind one by one: all of them would take a multiple of the model's memory.
using Visit = void (*)(Sim::Model const& model, std::function<void(Json&&)> const& take);

/// A kind of elements that users can ask for.
struct Kind {
    std::string plural;
    std::vector<std::string> otherNames;  ///< that it goes by, too: the singular, and what the library calls it
    std::vector<Column> columns;
    Visit visit;

    std::vector<Json> elements(Sim::Model const& model) const;
};

std::vector<Kind> const& kinds();

/// The kind that goes by the name, whatever its case and its hyphens; null when there is none.
Kind const* findKind(std::string const& name);

}  // namespace Tool

#endif
