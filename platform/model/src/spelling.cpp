#include "varo/model/spelling.hpp"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstdint>

namespace Varo::Model {

namespace {

constexpr std::size_t longestWord = 64;

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

using Places = std::uint64_t;

/// Where each letter stands in a word of at most `longestWord` letters, letter case left aside: bit i is for letter i.
std::array<Places, 256> placesOfLetters(std::string_view word)
{
    std::array<Places, 256> places{};
    for (std::size_t i = 0; i < word.size(); ++i) {
        places[static_cast<unsigned char>(lowerCase(word[i]))] |= Places{1} << i;
    }
    return places;
}

/// Which of 32 kinds of letters a word has, of which a letter in either case is one.
std::uint32_t kindsOfLetters(std::string_view word)
{
    std::uint32_t kinds = 0;
    for (char const c : word) {
        kinds |= std::uint32_t{1} << (static_cast<unsigned char>(c) % 32);
    }
    return kinds;
}

/// Whether so many kinds of letters are in one of them alone: each edit brings no more than one, and removes no more.
bool differBy(std::size_t edits, std::string_view a, std::string_view b)
{
    std::uint32_t const ofA = kindsOfLetters(a);
    std::uint32_t const ofB = kindsOfLetters(b);
    return std::max(std::bitset<32>(ofA & ~ofB).count(), std::bitset<32>(ofB & ~ofA).count()) >= edits;
}

/// The distance of words that are neither empty nor too long, as by Hyyrö (2003).
///
/// In the table of the distances between the beginnings of `a` and those of `b`, neighbours differ by at most one. What
/// is worked out for one beginning of `b` after the other is thus a column of differences, one bit for each letter of
/// `a` in each of these sets: what is one above, or one below, its neighbour in the column or in the column before.
std::size_t distanceOf(std::string_view a, std::string_view b)
{
    std::array<Places, 256> const places = placesOfLetters(a);
    Places const last = Places{1} << (a.size() - 1);
    Places above = ~Places{0};  // by one, than what is before it in the column
    Places below = 0;
    Places free = 0;  // what costs no more than what is before it in both
    Places equalBefore = 0;
    std::size_t distance = a.size();
    for (char const c : b) {
        Places const equal = places[static_cast<unsigned char>(lowerCase(c))];
        Places const swapped = ((~free & equal) << 1U) & equalBefore;
        free = (((equal & above) + above) ^ above) | equal | below | swapped;
        Places const risen = below | ~(free | above);  // by one, than in the column before
        Places const fallen = free & above;
        distance += (risen & last) != 0 ? 1 : 0;
        distance -= (fallen & last) != 0 ? 1 : 0;
        Places const risenBefore = risen << 1U | 1U;
        above = fallen << 1U | ~(free | risenBefore);
        below = risenBefore & free;
        equalBefore = equal;
    }
    return distance;
}

/// The distance, or `limit` when it is at least that: only what can lie below is worked out, which of words that have
/// nothing in common is next to nothing.
std::size_t distanceBelow(std::size_t limit, std::string_view a, std::string_view b)
{
    std::size_t const longer = std::max(a.size(), b.size());
    std::size_t const shorter = std::min(a.size(), b.size());
    if (longer > longestWord || shorter == 0) {
        return std::min(limit, longer);
    }
    bool const isFar = longer - shorter >= limit || differBy(limit, a, b);
    return isFar ? limit : std::min(limit, distanceOf(a, b));
}

}  // namespace

std::size_t spellingDistance(std::string_view a, std::string_view b)
{
    return distanceBelow(std::max(a.size(), b.size()) + 1, a, b);
}

bool ClosestWord::offer(std::string_view word)
{
    std::size_t const lengthDifference =
        std::max(word.size(), _written.size()) - std::min(word.size(), _written.size());
    if (lengthDifference >= _distance) {
        return false;
    }
    _work += std::min(_written.size(), longestWord) * std::min(word.size(), longestWord);
    std::size_t const distance = distanceBelow(_distance, _written, word);
    if (distance >= _distance || distance >= std::max(word.size(), _written.size())) {
        return false;
    }
    _word = word;
    _distance = distance;
    return true;
}

}  // namespace Varo::Model
