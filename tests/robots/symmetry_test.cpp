#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"

using testing::FloatNear;
using testing::Pointwise;
using Tests::poseOf;
using Varo::Math::Position3D;

namespace {

constexpr float tolerance = 1e-5F;

void expectReflected(Position3D const& left, Position3D const& right)
{
    EXPECT_NEAR(left.x, right.x, tolerance);
    EXPECT_NEAR(left.y, -right.y, tolerance);
    EXPECT_NEAR(left.z, right.z, tolerance);
}

/// Across the x-z plane the products of inertia with y change their sign.
std::vector<float> reflected(std::vector<float> inertia)
{
    for (std::size_t const i : {1U, 3U, 5U, 7U}) {
        inertia[i] = -inertia[i];
    }
    return inertia;
}

/// The sense in which equal joint values mirror each other: an axis is a pseudovector.
float senseOf(Sim::Joint const* left, Sim::Joint const* right)
{
    auto const a = poseOf(left);
    auto const b = poseOf(right);
    return -a(0, 2) * b(0, 2) + a(1, 2) * b(1, 2) - a(2, 2) * b(2, 2);
}

/// A URDF names its sides and states no mirrors.
class SidedUrdf : public testing::TestWithParam<char const*> {};

TEST_P(SidedUrdf, HasARightSideThatReflectsItsLeftOne)
{
    Sim::Model const model(Tests::examplePath(GetParam()));
    std::size_t pairs = 0;
    for (Sim::Joint const* left : model.joints()) {
        if (left->name().rfind("left_", 0) != 0) {
            continue;
        }
        SCOPED_TRACE(left->name());
        ++pairs;
        Sim::Joint const* const right = model.joint("right_" + left->name().substr(5));
        ASSERT_NE(right, nullptr);
        expectReflected(poseOf(left->childLink()).position(), poseOf(right->childLink()).position());
        Sim::MassData const* const a = left->childLink()->mass();
        Sim::MassData const* const b = right->childLink()->mass();
        EXPECT_EQ(a->mass(), b->mass());
        expectReflected(a->CoM(), b->CoM());
        EXPECT_THAT(reflected(a->inertiaMatrix()), Pointwise(FloatNear(1e-9F), b->inertiaMatrix()));
        Sim::AngleActuator const* const motor = model.angleActuator(left->name());
        Sim::AngleActuator const* const other = model.angleActuator(right->name());
        if (motor != nullptr && motor->minValue() < motor->maxValue()) {
            // What slides reflects with its axis, a vector; what turns, with the opposite of that.
            bool const slides = left->name().find("slide") != std::string::npos;
            bool const isAlike = (senseOf(left, right) > 0.0F) != slides;
            EXPECT_EQ(motor->minValue(), isAlike ? other->minValue() : -other->maxValue());
            EXPECT_EQ(motor->maxValue(), isAlike ? other->maxValue() : -other->minValue());
        }
    }
    EXPECT_GE(pairs, 3U);
}

INSTANTIATE_TEST_SUITE_P(All, SidedUrdf, testing::Values("quadruped", "mobile_arm"),
                         [](auto const& robot) { return std::string(robot.param); });

}  // namespace
