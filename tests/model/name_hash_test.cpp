#include "varo/model/name_hash.hpp"

#include <cstdint>
#include <cstring>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace Varo::Model {
namespace {

std::string nameOf(std::uint64_t first, std::uint64_t second)
{
    std::string name(2 * sizeof first, '\0');
    std::memcpy(name.data(), &first, sizeof first);
    std::memcpy(name.data() + sizeof first, &second, sizeof second);
    return name;
}

/// A name that the standard library hashes to zero. Its hash can be run backwards, since all that it begins with is
/// known: whatever the first half of the name is, some second half brings it there.
std::string nameOfHashZero(std::uint64_t first)
{
    constexpr std::uint64_t factor = 0xC6A4A7935BD1E995U;
    std::uint64_t inverse = factor;  // modulo 2^64, by Newton's iteration
    for (int i = 0; i < 5; ++i) {
        inverse *= 2 - factor * inverse;
    }
    std::uint64_t const mixed = (first * factor ^ first * factor >> 47U) * factor;
    std::uint64_t second = 0xC70F6907U ^ (2 * sizeof first * factor) ^ mixed;
    second ^= second >> 47U;
    return nameOf(first, second * inverse);
}

TEST(NameHash, IsNoneThatNamesCanBeChosenFor)
{
    if (std::hash<std::string_view>()(nameOfHashZero(1)) != 0) {
        GTEST_SKIP() << "this standard library hashes in another way";
    }
    std::set<std::size_t> hashes;
    for (std::uint64_t first = 0; first < 1000; ++first) {
        std::string const name = nameOfHashZero(first);
        ASSERT_EQ(std::hash<std::string_view>()(name), 0U);
        hashes.insert(NameHash()(name));
    }
    EXPECT_EQ(hashes.size(), 1000U);
}

TEST(NameHash, ShowsNoDifferenceWhateverTheSecretIs)
{
    // As the lower half of a product by any odd number does of its highest bit.
    constexpr std::uint64_t highest = std::uint64_t{1} << 63U;
    std::set<std::uint64_t> differences;
    for (std::uint64_t secret = 1; secret < 1000; ++secret) {
        HashSecret const drawn = {secret * 0x9E3779B97F4A7C15U, secret * 0xBF58476D1CE4E5B9U | 1U};
        differences.insert(hashOf(nameOf(1, 2), drawn) ^ hashOf(nameOf(1 ^ highest, 2), drawn));
    }
    EXPECT_GT(differences.size(), 990U);
    EXPECT_EQ(differences.count(0), 0U);
}

TEST(NameHash, TellsApartNamesThatDifferInOneByteOrInLength)
{
    std::set<std::size_t> hashes;
    std::size_t names = 0;
    for (std::size_t length = 0; length < 40; ++length) {
        for (std::size_t at = 0; at <= length; ++at, ++names) {
            std::string name(length, 'a');
            if (at < length) {
                name[at] = 'b';
            }
            hashes.insert(NameHash()(name));
        }
    }
    EXPECT_EQ(hashes.size(), names);
}

}  // namespace
}  // namespace Varo::Model
