#ifndef MODEL_OF_HPP
#define MODEL_OF_HPP

#include <memory>
#include <optional>
#include <utility>

#include <gmock/gmock.h>

#include "fake_robot.hpp"
#include "sim/motion_model.hpp"

/// The motion model of the robot that `fill` makes of an empty one.
template <typename Fill>
Sim::MotionModel modelOf(Fill fill)
{
    auto robot = std::make_unique<FakeRobot>();
    fill(*robot);
    return Sim::MotionModel(std::move(robot));
}

/// A value that no robot in these tests has.
template <typename Value>
Value unheardOf()
{
    if constexpr (std::is_same_v<Value, std::string>) {
        return "unheard of";
    } else if constexpr (std::is_same_v<Value, Varo::Math::Transform>) {
        return Varo::Math::Transform::fromPosition(77.0F, 0.0F, 0.0F);
    } else {
        return {77};
    }
}

/// What the query writes for the name; nothing when it answers false, after which its argument must be untouched.
template <typename Value>
std::optional<Value> answerOf(Sim::MotionModel const& model,
                              bool (Sim::MotionModel::*query)(std::string const&, Value&) const,
                              std::string const& name)
{
    auto value = unheardOf<Value>();
    if ((model.*query)(name, value)) {
        return value;
    }
    EXPECT_EQ(value, unheardOf<Value>()) << name << " is not known, but something was written";
    return std::nullopt;
}

#endif
