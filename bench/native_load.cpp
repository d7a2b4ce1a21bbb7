// How long native descriptions take to load, beside the bare parse of the same text: growing serial robots, and the
// files that are given.
#include <cmath>
#include <cstdio>

#include "bare_parse.hpp"
#include "serial_robot.hpp"
#include "sim/model.hpp"
#include "text_file.hpp"
#include "timing.hpp"

namespace {

/// Prints the beginning of a row and answers the time to load.
double printTimes(char const* title, std::string const& text)
{
    auto const times = Bench::smallestMedians({
        [&] { Bench::parseBare(text); },
        [&] { Sim::Model const model(text); },
    });
    std::printf("| %s | %zu | %.1f | %.1f | %.2f |", title, text.size() / 1024, times[0], times[1],
                times[1] / times[0]);
    return times[1];
}

void printSerialRobots()
{
    double lastTime = 0.0;
    int lastJoints = 0;
    for (int const joints : {30, 100, 1000, 10000, 100000}) {
        double const time = printTimes((std::to_string(joints) + " joints").c_str(), Bench::serialRobot(joints));
        if (lastJoints == 0) {
            std::printf(" |\n");
        } else {
            std::printf(" %.2f |\n", std::log(time / lastTime) / std::log(static_cast<double>(joints) / lastJoints));
        }
        lastTime = time;
        lastJoints = joints;
        std::fflush(stdout);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    std::printf("| robot | text (KiB) | bare parse (us) | Sim::Model (us) | ratio | growth exponent |\n");
    std::printf("| --- | ---: | ---: | ---: | ---: | ---: |\n");
    printSerialRobots();
    for (int i = 1; i < argc; ++i) {
        printTimes(Bench::nameOf(argv[i]).c_str(), Bench::readText(argv[i]));
        std::printf(" |\n");
    }
}
