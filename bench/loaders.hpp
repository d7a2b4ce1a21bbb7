#ifndef VARO_BENCH_LOADERS_HPP
#define VARO_BENCH_LOADERS_HPP

#include <memory>
#include <string>
#include <vector>

namespace Bench {

/// What is compared: somebody who makes a model of a text.
struct Loader {
    std::string name;
    std::string (*textOf)(int joints);  ///< of a robot with that many joints, in a dialect that the loader reads
    std::shared_ptr<void> (*load)(std::string const& text);  ///< null for a text that is refused
    bool isFloor = false;  ///< whether those behind it are compared with it
};

/// The floor, this project with URDF, urdfdom where it was there when this was built; then the bare parse of a native
/// text and this project with it.
std::vector<Loader> const& loaders();

}  // namespace Bench

#endif
