#ifndef VARO_MODEL_RULES_NAMED_PAIRS_HPP
#define VARO_MODEL_RULES_NAMED_PAIRS_HPP

#include <cmath>
#include <cstddef>
#include <string>

#include "robot/side_names.hpp"
#include "rules/numbers.hpp"
#include "rules/rules.hpp"
#include "varo/model/table.hpp"

/// Records beside joints that their names make counterparts.
namespace Varo::Model::Rules {

/// Calls `visit` with every two that are named for the two sides, in the order of the text.
template <class Config, class Visit>
void forEachNamedPair(Table<Config> const& table, Visit const& visit)
{
    SideNames names;
    for (Config const& second : table) {
        names.read(second.name);
        for (std::size_t i = 0; i < names.size(); ++i) {
            Config const* const first = names.areMarked() ? table.find(names.other(i)) : nullptr;
            if (first != nullptr && first < &second) {
                visit(*first, second);
                break;
            }
        }
    }
}

/// The pair that the two joints prove to be; null otherwise.
JointPair const* provedPair(Facts const& facts, std::string const& one, std::string const& other);

/// Whether two numbers differ by more than that part of the greater.
bool differ(float a, float b, double tolerance);

/// A quantity that is the same on both sides.
template <class Config>
struct Quantity {
    float Config::*field;
    Part part;
    char const* name;  ///< in the plural, as after "The"
};

/// Negative quantities have rules of their own.
template <class Config>
void compare(Facts const& facts, Report const& report, Config const& first, Config const& second, char const* kind,
             Quantity<Config> const& quantity)
{
    float const one = first.*quantity.field;
    float const other = second.*quantity.field;
    if (one >= 0.0F && other >= 0.0F && differ(one, other, facts.tolerances.mass)) {
        report.ofTwo(second, first, quantity.part,
                     std::string("The ") + quantity.name + " of the " + kind + " " + namesOf(first, second) +
                         " differ: " + shortest(one) + " and " + shortest(other) + ".");
    }
}

}  // namespace Varo::Model::Rules

#endif
