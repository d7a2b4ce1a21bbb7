#include "support/link_names.hpp"

#include "sim/link.hpp"

namespace Tool {

LinkNames::LinkNames(Sim::Model const& model)
{
    for (Sim::Link const* const link : model.links()) {
        if (link->descriptionName() != link->name()) {
            _names.emplace(link->name(), link->descriptionName());
        }
    }
}

std::string LinkNames::of(std::string const& link) const
{
    auto const found = _names.find(link);
    return found == _names.end() ? link : found->second;
}

}  // namespace Tool
