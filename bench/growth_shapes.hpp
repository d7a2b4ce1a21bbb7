#ifndef VARO_BENCH_GROWTH_SHAPES_HPP
#define VARO_BENCH_GROWTH_SHAPES_HPP

#include <string>

namespace Bench {

/// A kind of text that can be made as long as one likes.
struct Shape {
    char const* name;
    std::string (*text)(int elements);
    double
        partsPerElement;  ///< of a model: links, joints, devices, groups and postures that one element makes, at least
    bool isAccepted;  ///< whether it is one of a robot, of which commands have something to print
};

/// All of them; the last has no name.
extern Shape const growthShapes[];

}  // namespace Bench

#endif
