#include "native/elements.hpp"

namespace Varo::Model::Native {

/// Not part of a program: compiles when the rows are of the record that the element fills.
constexpr Attribute<ROW_RECORD> rows[] = {named<&ROW_RECORD::name>("name", names::ofWheel, "what it is called")};
constexpr Element<WheelConfig> element{"wheel", "a driven wheel", rows};

}  // namespace Varo::Model::Native
