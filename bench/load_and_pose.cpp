// What the Python package is measured beside: prints the microseconds that loading a description, with the model's end,
// and the poses of all links take.
#include <cstdio>
#include <string>

#include "sim/kinematics.hpp"
#include "sim/model.hpp"
#include "timing.hpp"

int main(int, char** argv)
{
    std::string const file = argv[1];
    Sim::Model const model(file);
    Sim::Kinematics const kinematics(model);
    Sim::Configuration const configuration(kinematics);
    std::vector<Sim::Pose> poses(kinematics.linkCount());
    auto const times = Bench::smallestMedians({
        [&] { Sim::Model const loaded(file); },
        [&] { kinematics.linkPoses(configuration, poses.data(), poses.size()); },
    });
    std::printf("%.3f %.3f\n", times[0], times[1]);
}
