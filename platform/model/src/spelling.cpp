#include "varo/model/spelling.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace Varo::Model {

namespace {

constexpr std::size_t longestWord = 64;

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool same(char a, char b)
{
    return lowerCase(a) == lowerCase(b);
}

}  // namespace

std::size_t spellingDistance(std::string_view a, std::string_view b)
{
    if (a.size() > longestWord || b.size() > longestWord) {
        return std::max(a.size(), b.size());
    }
    using Row = std::array<std::size_t, longestWord + 1>;
    Row beforeLast{};
    Row last{};
    Row row{};
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast = std::exchange(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t const exchanged = last[j - 1] + (same(a[i - 1], b[j - 1]) ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, exchanged});
            if (i > 1 && j > 1 && same(a[i - 1], b[j - 2]) && same(a[i - 2], b[j - 1])) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

bool ClosestWord::offer(std::string_view word)
{
    std::size_t const lengthDifference =
        std::max(word.size(), _written.size()) - std::min(word.size(), _written.size());
    if (lengthDifference >= _distance) {
        return false;
    }
    _work += std::min(_written.size(), longestWord) * std::min(word.size(), longestWord);
    std::size_t const distance = spellingDistance(_written, word);
    if (distance >= _distance || distance >= std::max(word.size(), _written.size())) {
        return false;
    }
    _word = word;
    _distance = distance;
    return true;
}

}  // namespace Varo::Model
