#ifndef MODEL_OF_HPP
#define MODEL_OF_HPP

#include <memory>
#include <utility>

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

#endif
