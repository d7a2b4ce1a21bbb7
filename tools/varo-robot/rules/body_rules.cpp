#include <string_view>

#include "rules/facts.hpp"
#include "rules/inertia.hpp"
#include "rules/rule_codes.hpp"
#include "support/numbers.hpp"

namespace Tool::Rules {

namespace {

void checkInertia(Facts& facts, Subject const& subject, Inertia const& inertia)
{
    switch (faultOf(inertia, facts.tolerances.inertia)) {
    case InertiaFault::none: break;
    case InertiaFault::notSymmetric:
        facts.warn(subject, code::inertiaNotSymmetric, "The inertia matrix is not symmetric.");
        break;
    case InertiaFault::notPositive:
        facts.warn(subject, code::inertiaNotPositive, "The inertia matrix has a negative principal moment.");
        break;
    case InertiaFault::notPossible:
        facts.warn(subject, code::inertiaNotPossible,
                   "No body has this inertia: a principal moment is greater than the two others together.");
        break;
    }
}

}  // namespace

void checkBodies(Facts& facts)
{
    forEachBody(facts, [&](std::string_view element, auto const& body) {
        if (body.mass < 0.0F) {
            facts.warn({element, body.name, "mass/@value"}, code::negativeMass,
                       "The mass is negative: " + shortest(body.mass) + " kg.");
        }
        checkInertia(facts, {element, body.name, "mass/@inertia"}, inertiaOf(body.inertiaMatrix));
    });
}

}  // namespace Tool::Rules
