#ifndef TOOL_VIEW_FINDING_LINKS_HPP
#define TOOL_VIEW_FINDING_LINKS_HPP

#include <string>

#include "sim/model.hpp"
#include "support/link_carriers.hpp"

namespace Tool {

/// Finds the link that a finding is about.
class FindingLinks {
public:
    explicit FindingLinks(Sim::Model const& model) : _model(model), _carriers(model) {}

    /// By the names in the path of an element, the innermost first; null for elements that belong to no link.
    Sim::Link const* of(std::string const& path) const;

private:
    Sim::Link const* named(std::string const& element, std::string const& name) const;

    Sim::Model const& _model;
    LinkCarriers _carriers;
};

}  // namespace Tool

#endif
