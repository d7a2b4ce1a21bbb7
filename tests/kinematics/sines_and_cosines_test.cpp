#include "kinematics/sines_and_cosines.hpp"

#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(SinesAndCosines, AreThoseOfTheStandardLibrary)
{
    std::mt19937_64 generator;
    std::vector<double> angles = {0.0,  -0.0, 0.78539816339744828, 1.5707963267948966, 3.1415926535897931, 1e6,
                                  1e17, -1e38};
    for (double const reach : {1e-9, 1.0, 4.0, 100.0, 2e6}) {
        std::uniform_real_distribution<double> distribution(-reach, reach);
        for (int i = 0; i < 20000; ++i) {
            angles.push_back(distribution(generator));
        }
    }
    std::vector<double> sines(angles.size());
    std::vector<double> cosines(angles.size());
    Sim::sinesAndCosines(angles.data(), angles.size(), sines.data(), cosines.data());
    for (std::size_t i = 0; i < angles.size(); ++i) {
        ASSERT_NEAR(sines[i], std::sin(angles[i]), 4e-16) << angles[i];
        ASSERT_NEAR(cosines[i], std::cos(angles[i]), 4e-16) << angles[i];
    }
}

}  // namespace
