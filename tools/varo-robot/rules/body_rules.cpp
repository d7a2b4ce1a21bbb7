#include "rules/facts.hpp"
#include "rules/inertia.hpp"
#include "rules/rule_codes.hpp"
#include "support/numbers.hpp"

namespace Tool::Rules {

namespace {

template <class Body>
void checkInertia(Facts& facts, Body const& body)
{
    switch (faultOf(inertiaOf(body.inertiaMatrix), facts.tolerances.inertia)) {
    case InertiaFault::none: break;
    case InertiaFault::notSymmetric:
        facts.warn(body, Part::inertia, code::inertiaNotSymmetric, "The inertia matrix is not symmetric.");
        break;
    case InertiaFault::notPositive:
        facts.warn(body, Part::inertia, code::inertiaNotPositive,
                   "The inertia matrix has a negative principal moment.");
        break;
    case InertiaFault::notPossible:
        facts.warn(body, Part::inertia, code::inertiaNotPossible,
                   "No body has this inertia: a principal moment is greater than the two others together.");
        break;
    }
}

}  // namespace

void checkBodies(Facts& facts)
{
    forEachBody(facts, [&](auto const& body) {
        if (body.mass < 0.0F) {
            facts.warn(body, Part::mass, code::negativeMass, "The mass is negative: " + shortest(body.mass) + " kg.");
        }
        checkInertia(facts, body);
    });
}

}  // namespace Tool::Rules
