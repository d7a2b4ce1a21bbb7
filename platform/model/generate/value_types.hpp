#ifndef VARO_MODEL_GENERATE_VALUE_TYPES_HPP
#define VARO_MODEL_GENERATE_VALUE_TYPES_HPP

#include <ostream>
#include <vector>

#include "native/schema.hpp"

namespace Varo::Model::Native {

/// Every element of the dialect whose root that is, from the root inward, each table once.
std::vector<ElementInfo const*> allElements(ElementInfo const& root);

/// Every type that attributes and texts of the dialect have, in the order of their first use.
std::vector<ValueType const*> usedTypes(ElementInfo const& root);

/// These types as a table in Markdown.
void writeUsedTypes(std::ostream& out, ElementInfo const& root);

}  // namespace Varo::Model::Native

#endif
