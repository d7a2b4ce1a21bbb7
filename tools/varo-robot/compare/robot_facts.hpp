#ifndef TOOL_COMPARE_ROBOT_FACTS_HPP
#define TOOL_COMPARE_ROBOT_FACTS_HPP

#include <map>
#include <string>
#include <vector>

#include "varo/model/robot.hpp"

namespace Tool {

/// A value that a description states.
struct Fact {
    std::string text;  ///< as the native dialect writes it
    std::vector<double> numbers = {};  ///< what it says in numbers, empty for a text; the 12 of a matrix for a pose
    std::vector<double> unstated = {};  ///< the numbers that hold where it is not stated; empty when there are none
};

/// What a description says of an element, by names such as "mass com".
using Facts = std::map<std::string, Fact>;

/// An element of a description: a joint, a sensor, ...
struct FactRecord {
    std::string kind;  ///< as the native dialect calls it
    std::string name;  ///< what tells it from the others of its kind
    int line = 0;  ///< in the text that it was read from; 0 when that is not known
    Facts facts;
};

/// All records of a robot, whatever the dialect and the order in which they were written.
std::vector<FactRecord> factsOf(Varo::Model::Robot const& robot);

/// Whether the facts say the same: texts to the letter, numbers as far apart as `tolerance` at most, or that part of
/// the greater where that is more than 1. Null is a fact that is not stated.
bool saySame(Fact const* a, Fact const* b, double tolerance);

}  // namespace Tool

#endif
