// How long a native description takes to load, beside the bare parse of the same text, for growing robots.
#include <cmath>
#include <cstdio>

#include <pugixml.hpp>

#include "medians.hpp"
#include "serial_robot.hpp"
#include "sim/model.hpp"

int main()
{
    std::printf("| joints | text (KiB) | bare parse (us) | Sim::Model (us) | ratio | growth exponent |\n");
    std::printf("| --- | --- | --- | --- | --- | --- |\n");
    double lastTime = 0.0;
    int lastJoints = 0;
    for (int const joints : {30, 100, 1000, 10000, 100000}) {
        std::string const text = Bench::serialRobot(joints);
        double const parse = Bench::medianMicroseconds([&] {
            pugi::xml_document document;
            document.load_buffer(text.data(), text.size());
        });
        double const load = Bench::medianMicroseconds([&] { Sim::Model const model(text); });
        std::printf("| %d | %zu | %.1f | %.1f | %.2f | ", joints, text.size() / 1024, parse, load, load / parse);
        if (lastJoints == 0) {
            std::printf("|\n");
        } else {
            std::printf("%.2f |\n", std::log(load / lastTime) / std::log(static_cast<double>(joints) / lastJoints));
        }
        lastTime = load;
        lastJoints = joints;
    }
}
