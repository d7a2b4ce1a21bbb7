#include "varo/model/friction.hpp"

#include <string>

#include <gtest/gtest.h>

namespace {

using Varo::Model::getCoefFriction;

TEST(Friction, DoesNotAskForAnOrder)
{
    struct {
        char const* first;
        char const* second;
        float coefficient;
    } const table[] = {{"steel", "steel", 0.74F},    {"aluminium", "steel", 0.61F}, {"steel", "teflon", 0.04F},
                       {"rubber", "concrete", 1.0F}, {"gum", "gum", 1.0F},          {"glass", "glass", 0.94F}};
    for (auto const& row : table) {
        float forth = -1.0F;
        float back = -1.0F;
        EXPECT_TRUE(getCoefFriction(row.first, row.second, forth)) << row.first;
        EXPECT_TRUE(getCoefFriction(row.second, row.first, back)) << row.first;
        EXPECT_EQ(forth, row.coefficient) << row.first;
        EXPECT_EQ(back, row.coefficient) << row.first;
    }
}

TEST(Friction, LeavesTheCoefficientOfUnknownPairsAlone)
{
    for (auto const& [first, second] :
         {std::pair("steel", "moonlight"), {"", ""}, {"Steel", "steel"}, {"gum", "teflon"}}) {
        float coefficient = 7.5F;
        EXPECT_FALSE(getCoefFriction(first, second, coefficient)) << first << ", " << second;
        EXPECT_EQ(coefficient, 7.5F);
    }
}

}  // namespace
