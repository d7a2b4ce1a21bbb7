#include "rules/inertia.hpp"
#include "rules/numbers.hpp"
#include "rules/rules.hpp"

namespace Varo::Model::Rules {

namespace {

void findInertia(Facts const& facts, Report const& report, InertiaFault fault, char const* message)
{
    auto faultOfNext = facts.inertiaFaults.begin();
    forEachBody(facts, [&](auto const& body) {
        if (*faultOfNext++ == fault) {
            report.at(body, Part::inertia, message);
        }
    });
}

}  // namespace

void findNegativeMass(Facts const& facts, Report const& report)
{
    forEachBody(facts, [&](auto const& body) {
        if (body.mass < 0.0F) {
            report.at(body, Part::mass, "The mass is negative: " + shortest(body.mass) + " kg.");
        }
    });
}

void findInertiaNotSymmetric(Facts const& facts, Report const& report)
{
    findInertia(facts, report, InertiaFault::notSymmetric, "The inertia matrix is not symmetric.");
}

void findInertiaNotPositive(Facts const& facts, Report const& report)
{
    findInertia(facts, report, InertiaFault::notPositive, "The inertia matrix has a negative principal moment.");
}

void findInertiaNotPossible(Facts const& facts, Report const& report)
{
    findInertia(facts, report, InertiaFault::notPossible,
                "No body has this inertia: a principal moment is greater than the two others together.");
}

}  // namespace Varo::Model::Rules
