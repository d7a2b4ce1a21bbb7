#ifndef VARO_BENCH_SERIAL_ROBOT_HPP
#define VARO_BENCH_SERIAL_ROBOT_HPP

#include <string>

namespace Bench {

/// What the chains of ten joints are attached to: each to the one before, or all to the root.
enum class Shape { serial, limbs };

/// A native description with that many joints in chains of ten, each joint with all that a real one has.
inline std::string serialRobot(int joints, Shape shape = Shape::serial)
{
    std::string const mass =
        "    <mass value=\"0.4012\" com=\"-0.0041 0.0012 0.0433\"\n"
        "          inertia=\"0.0051 0.0001 0.0002  0.0001 0.0052 0.0003  0.0002 0.0003 0.0021\"/>\n";
    std::string text =
        "<robotDescription name=\"Serial\" version=\"1.0\">\n  <root name=\"Base\" mesh=\"base.dae\">\n" + mass +
        "  </root>\n";
    std::string chains;
    for (int i = 0; i < joints; ++i) {
        std::string const name = "Joint" + std::to_string(i);
        text += "  <joint name=\"" + name + "\" mesh=\"meshes/" + name +
                ".dae\" min=\"-2.0857\" max=\"2.0857\" maxSpeed=\"8.26797\" maxTorque=\"1.4\">\n"
                "    <placement xyz=\"0.015 0 0.126\" rpy=\"0 0.1 0\"/>\n    <end rpy=\"0 -0.1 0\"/>\n" +
                mass + "    <attribute name=\"material\" value=\"steel\"/>\n  </joint>\n";
        if (i % 10 == 0) {
            bool const isOnBase = i == 0 || shape == Shape::limbs;
            std::string const parent = isOnBase ? "Base" : "Joint" + std::to_string(i - 1);
            chains += (i == 0 ? "" : "  </chain>\n") + ("  <chain name=\"Chain" + std::to_string(i / 10)) +
                      "\" parent=\"" + parent + "\">\n";
        }
        chains += "    <jointRef name=\"" + name + "\"/>\n";
    }
    return text + chains + "  </chain>\n</robotDescription>\n";
}

}  // namespace Bench

#endif
