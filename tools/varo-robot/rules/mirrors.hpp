#ifndef TOOL_RULES_MIRRORS_HPP
#define TOOL_RULES_MIRRORS_HPP

#include <string>
#include <unordered_set>

#include "rules/facts.hpp"

namespace Tool::Rules {

/// The record that `config` names as its mirror; null when it names none, or one that is not there.
template <class Config>
Config const* mirrorOf(Varo::Model::Table<Config> const& table, Config const& config)
{
    return config.mirrorKind == Varo::Model::noMirror ? nullptr : table.find(config.mirrorName);
}

template <class Config>
bool areMutual(Varo::Model::Table<Config> const& table, Config const& one, Config const& other)
{
    return mirrorOf(table, one) == &other && mirrorOf(table, other) == &one;
}

/// Calls `visit(first, second)` for every two that are each other's mirrors, when it comes to the second of them.
template <class Config, class Visit>
void forEachPair(Varo::Model::Table<Config> const& table, Visit const& visit)
{
    std::unordered_set<Config const*> seen;
    for (Config const& second : table) {
        Config const* const first = mirrorOf(table, second);
        if (seen.count(first) != 0 && areMutual(table, *first, second)) {
            visit(*first, second);
        }
        seen.insert(&second);
    }
}

/// "L" and "R".
template <class Config>
std::string namesOf(Config const& first, Config const& second)
{
    return quoted(first.name) + " and " + quoted(second.name);
}

}  // namespace Tool::Rules

#endif
