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

/// A word of at most `longestWord` letters, all of them in lower case.
using Letters = std::array<char, longestWord>;

Letters lettersOf(std::string_view word)
{
    Letters letters{};
    std::transform(word.begin(), word.end(), letters.begin(), lowerCase);
    return letters;
}

/// Which of 64 kinds of letters a word has, letter case left aside.
std::uint64_t kindsOfLetters(std::string_view word)
{
    std::uint64_t kinds = 0;
    for (char const c : word) {
        kinds |= std::uint64_t{1} << (static_cast<unsigned char>(lowerCase(c)) % 64);
    }
    return kinds;
}

/// Whether so many kinds of letters are in one of them alone: each edit brings no more than one, and removes no more.
bool differBy(std::size_t edits, std::string_view a, std::string_view b)
{
    std::uint64_t const ofA = kindsOfLetters(a);
    std::uint64_t const ofB = kindsOfLetters(b);
    return std::max(std::bitset<64>(ofA & ~ofB).count(), std::bitset<64>(ofB & ~ofA).count()) >= edits;
}

/// The distance, or `limit` when it is at least that: only what can lie below is worked out, which of words that have
/// nothing in common is next to nothing.
std::size_t distanceBelow(std::size_t limit, std::string_view a, std::string_view b)
{
    if (a.size() > longestWord || b.size() > longestWord) {
        return std::min(limit, std::max(a.size(), b.size()));
    }
    if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) >= limit || differBy(limit, a, b)) {
        return limit;
    }
    Letters const first = lettersOf(a);
    Letters const second = lettersOf(b);
    using Row = std::array<std::size_t, longestWord + 2>;
    std::array<Row, 3> rows{};
    for (std::size_t j = 0; j <= b.size() + 1; ++j) {
        rows[0][j] = j;
    }
    std::size_t leastBefore = 0;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        Row const& beforeLast = rows[(i + 1) % 3];
        Row const& last = rows[(i + 2) % 3];
        Row& row = rows[i % 3];
        // Beyond that many letters to either side, as many have to be inserted or dropped.
        std::size_t const begin = i > limit ? i - limit : 1;
        std::size_t const end = std::min(b.size(), i + limit);
        row[begin - 1] = begin == 1 ? i : limit;
        std::size_t least = row[begin - 1];
        for (std::size_t j = begin; j <= end; ++j) {
            std::size_t const exchanged = last[j - 1] + (first[i - 1] == second[j - 1] ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, exchanged});
            if (i > 1 && j > 1 && first[i - 1] == second[j - 2] && first[i - 2] == second[j - 1]) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
            least = std::min(least, row[j]);
        }
        row[end + 1] = limit;
        if (least >= limit && leastBefore >= limit) {
            return limit;
        }
        leastBefore = least;
    }
    return std::min(limit, rows[a.size() % 3][b.size()]);
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
