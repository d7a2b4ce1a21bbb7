#include "varo/model/table.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "varo/model/configs.hpp"

namespace Varo::Model {
namespace {

/// Names that are alike in their first eight characters, end there, or hold bytes that signed characters would sort
/// before all others.
TEST(Table, FindsRecordsByNamesThatBeginAlike)
{
    std::vector<std::string> names = {"leftArm_2", "leftArm_10", "leftArm_", "left\xC3\xA9", "b",
                                      "leftArm_1", "",           "left",     "\xC3\xA9"};
    names.emplace_back("leftArm_\0", 9);
    names.emplace_back("b\0", 2);
    Table<JointConfig> table;
    for (std::string const& name : names) {
        table.add().name = name;
    }
    table.sortNames();

    std::vector<std::string> ordered;
    for (std::uint32_t const index : table.nameOrder()) {
        ordered.push_back(table.nameOf(index));
    }
    EXPECT_TRUE(std::is_sorted(ordered.begin(), ordered.end()));
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(table.find(names[i]), &table[i]) << names[i];
    }
    EXPECT_EQ(table.find("leftArm_3"), nullptr);
}

}  // namespace
}  // namespace Varo::Model
