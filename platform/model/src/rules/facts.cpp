#include "rules/facts.hpp"

#include "rules/numbers.hpp"

namespace Varo::Model::Rules {

Facts::Facts(Robot const& robot, LintTolerances const& allowed)
    : records(recordsOf(robot)),
      tolerances(allowed),
      places(placeAtZero(*records)),
      jointPairs(mutualPairs(records->joints)),
      actuatorPairs(mutualPairs(records->actuators))
{}

std::string rangeText(float min, float max)
{
    return shortest(min) + " to " + shortest(max);
}

}  // namespace Varo::Model::Rules
