#ifndef VARO_MODEL_RULES_MIRRORS_HPP
#define VARO_MODEL_RULES_MIRRORS_HPP

#include <string>
#include <unordered_set>
#include <vector>

#include "varo/model/configs.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/table.hpp"

namespace Varo::Model::Rules {

/// Two records that mirror each other, in the order of the text.
template <class Config>
struct Pair {
    Config const& first;
    Config const& second;
};

/// The record that `config` names as its mirror; null when it names none, or one that is not there.
template <class Config>
Config const* mirrorOf(Table<Config> const& table, Config const& config)
{
    return config.mirrorKind == noMirror ? nullptr : table.find(config.mirrorName);
}

template <class Config>
bool areMutual(Table<Config> const& table, Config const& one, Config const& other)
{
    return mirrorOf(table, one) == &other && mirrorOf(table, other) == &one;
}

/// Every two that name each other as their mirrors, in the order of the second of them.
template <class Config>
std::vector<Pair<Config>> mutualPairs(Table<Config> const& table)
{
    std::vector<Pair<Config>> pairs;
    std::unordered_set<Config const*> seen;
    for (Config const& second : table) {
        Config const* const first = mirrorOf(table, second);
        if (seen.count(first) != 0 && areMutual(table, *first, second)) {
            pairs.push_back({*first, second});
        }
        seen.insert(&second);
    }
    return pairs;
}

/// "L" and "R".
template <class Config>
std::string namesOf(Config const& first, Config const& second)
{
    return quoted(first.name) + " and " + quoted(second.name);
}

}  // namespace Varo::Model::Rules

#endif
