#include "varo/model/name_index.hpp"

#include <deque>
#include <string>

#include <gtest/gtest.h>

namespace Varo::Model {
namespace {

/// Names that differ in their last character, or in their length, around each length that is hashed in one piece.
std::deque<std::string> similarNames()
{
    std::deque<std::string> names = {""};
    for (std::size_t length = 1; length < 40; ++length) {
        names.emplace_back(length, 'a');
        names.emplace_back(std::string(length - 1, 'a') + 'b');
        names.emplace_back(std::string(length - 1, 'a') + '\0');
    }
    return names;
}

TEST(NameIndex, FindsEachNameAndNoOther)
{
    std::deque<std::string> const names = similarNames();
    NameIndex index;
    EXPECT_FALSE(index.contains("a"));
    for (std::uint32_t i = 0; i < names.size(); ++i) {
        ASSERT_EQ(index.add(names[i], i), i) << names[i];
    }
    EXPECT_EQ(index.size(), names.size());
    for (std::uint32_t i = 0; i < names.size(); ++i) {
        ASSERT_EQ(index.find(names[i]), i) << names[i];
        ASSERT_FALSE(index.contains(names[i] + "c")) << names[i];
    }
}

TEST(NameIndex, KeepsTheFirstNumberOfAName)
{
    NameIndex index;
    index.add("one", 1);
    EXPECT_EQ(index.add("one", 2), 1U);
    index.reserve(1000);
    index.reserve(1);
    EXPECT_EQ(index.find("one"), 1U);
    EXPECT_EQ(index.size(), 1U);
}

}  // namespace
}  // namespace Varo::Model
