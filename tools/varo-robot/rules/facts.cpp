#include "rules/facts.hpp"

#include "support/numbers.hpp"

namespace Tool::Rules {

std::string rangeText(float min, float max)
{
    return shortest(min) + " to " + shortest(max);
}

}  // namespace Tool::Rules
