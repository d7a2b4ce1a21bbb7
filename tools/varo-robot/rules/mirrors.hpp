#ifndef TOOL_RULES_MIRRORS_HPP
#define TOOL_RULES_MIRRORS_HPP

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "rules/facts.hpp"

namespace Tool::Rules {

/// The record that `config` names as its mirror; null when it names none, or one that is not there.
template <class Config>
Config const* mirrorOf(std::map<std::string, Config> const& table, Config const& config)
{
    auto const found = config.mirrorKind == Varo::Model::noMirror ? table.end() : table.find(config.mirrorName);
    return found == table.end() ? nullptr : &found->second;
}

template <class Config>
bool areMutual(std::map<std::string, Config> const& table, Config const& one, Config const& other)
{
    return mirrorOf(table, one) == &other && mirrorOf(table, other) == &one;
}

/// Calls `visit(first, second)` for every two that are each other's mirrors, when it comes to the second of them.
template <class Config, class Visit>
void forEachPair(std::vector<std::string> const& names, std::map<std::string, Config> const& table, Visit const& visit)
{
    std::unordered_set<Config const*> seen;
    for (std::string const& name : names) {
        Config const& second = table.at(name);
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
