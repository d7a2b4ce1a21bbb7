#include "varo/model/friction.hpp"

#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace {

using Varo::Model::getCoefFriction;

TEST(Friction, DoesNotAskForAnOrder)
{
    using Pair = std::tuple<char const*, char const*, float>;
    for (auto const& [first, second, expected] :
         {Pair{"steel", "steel", 0.74F}, Pair{"aluminium", "steel", 0.61F}, Pair{"steel", "teflon", 0.04F},
          Pair{"rubber", "concrete", 1.0F}, Pair{"gum", "gum", 1.0F}, Pair{"glass", "glass", 0.94F}}) {
        float forth = -1.0F;
        float back = -1.0F;
        EXPECT_TRUE(getCoefFriction(first, second, forth) && getCoefFriction(second, first, back)) << first;
        EXPECT_EQ(forth, expected) << first;
        EXPECT_EQ(back, expected) << first;
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
