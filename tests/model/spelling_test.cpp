#include "varo/model/spelling.hpp"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace Varo::Model {
namespace {

/// By the table of the distances of all beginnings.
std::size_t distanceByTable(std::string const& a, std::string const& b)
{
    std::vector<std::vector<std::size_t>> table(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                table[i][j] = i + j;
                continue;
            }
            std::size_t const exchanged = table[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            table[i][j] = std::min({table[i - 1][j] + 1, table[i][j - 1] + 1, exchanged});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
            }
        }
    }
    return table[a.size()][b.size()];
}

TEST(Spelling, CountsTheFewestEditsFromWordToWord)
{
    std::mt19937 random(1);
    auto const word = [&random](std::size_t longest) {
        std::string letters(random() % (longest + 1), ' ');
        std::generate(letters.begin(), letters.end(), [&random] { return "ab\xFF_"[random() % 4]; });
        return letters;
    };
    for (int i = 0; i < 20'000; ++i) {
        std::size_t const longest = i % 3 == 0 ? 64 : 7;
        std::string const a = word(longest);
        std::string const b = word(longest);
        std::size_t const distance = distanceByTable(a, b);
        ASSERT_EQ(spellingDistance(a, b), distance) << a << " " << b;
        std::size_t const farthest = random() % 8;
        ASSERT_EQ(ClosestWord(a, farthest).offer(b), distance <= farthest && distance < std::max(a.size(), b.size()))
            << a << " " << b;
    }
    EXPECT_EQ(spellingDistance("Wheel", "wHEEL"), 0U);
    EXPECT_EQ(spellingDistance(std::string(65, 'a'), std::string(65, 'a')), 65U) << "nothing is compared";
}

}  // namespace
}  // namespace Varo::Model
