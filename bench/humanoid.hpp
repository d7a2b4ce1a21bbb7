#ifndef VARO_BENCH_HUMANOID_HPP
#define VARO_BENCH_HUMANOID_HPP

#include <cstdio>
#include <initializer_list>
#include <random>
#include <string>

namespace Bench {

/// Writes URDF of a torso with a head, arms and legs, which are as long as it takes for that many joints. Each link has
/// inertia and a box, each joint limits. The same text on every machine.
class HumanoidWriter {
public:
    std::string write(int joints)
    {
        _text = "<?xml version=\"1.0\"?>\n<robot name=\"humanoid\">\n";
        writeLink("torso");
        struct Limb {
            char const* name;
            int share;  ///< of the joints, in parts of 14
        };
        int written = 0;
        int shares = 0;
        for (Limb const& limb :
             {Limb{"head", 2}, Limb{"left_arm", 3}, Limb{"right_arm", 3}, Limb{"left_leg", 3}, Limb{"right_leg", 3}}) {
            shares += limb.share;
            int const end = static_cast<int>(static_cast<long long>(joints) * shares / 14);
            writeLimb(limb.name, end - written);
            written = end;
        }
        return _text + "</robot>\n";
    }

private:
    void writeLimb(std::string const& limb, int joints)
    {
        std::string parent = "torso";
        for (int i = 0; i < joints; ++i) {
            std::string const link = limb + "_link_" + std::to_string(i);
            writeLink(link);
            _text += "  <joint name=\"" + limb + "_joint_" + std::to_string(i) + "\" type=\"revolute\">\n";
            writeRow("    <origin xyz=\"%.6f %.6f %.6f\" rpy=\"%.6f %.6f %.6f\"/>\n", {0.1, 0.1, 0.1, 0.2, 0.2, 0.2});
            _text += "    <parent link=\"" + parent + "\"/>\n    <child link=\"" + link + "\"/>\n";
            _text += i % 2 == 0 ? "    <axis xyz=\"0 1 0\"/>\n" : "    <axis xyz=\"1 0 0\"/>\n";
            _text += "    <limit lower=\"-2.0943\" ";
            writeRow("upper=\"%.6f\" effort=\"%.6f\" velocity=\"%.6f\"/>\n  </joint>\n", {3.0, 150.0, 9.0});
            parent = link;
        }
    }

    void writeLink(std::string const& name)
    {
        _text += "  <link name=\"" + name + "\">\n    <inertial>\n";
        writeRow("      <origin xyz=\"%.6f %.6f %.6f\" rpy=\"0 0 0\"/>\n", {0.05, 0.05, 0.05});
        writeRow("      <mass value=\"%.6f\"/>\n", {3.0});
        writeRow("      <inertia ixx=\"%.9g\" ixy=\"%.9g\" ixz=\"%.9g\" iyy=\"%.9g\" iyz=\"%.9g\" izz=\"%.9g\"/>\n",
                 {0.02, 0.002, 0.002, 0.02, 0.002, 0.02});
        writeRow("    </inertial>\n    <visual>\n      <origin xyz=\"%.6f %.6f %.6f\" rpy=\"0 0 0\"/>\n",
                 {0.05, 0.05, 0.05});
        writeRow(
            "      <geometry>\n        <box size=\"%.6f %.6f %.6f\"/>\n      </geometry>\n    </visual>\n  </link>\n",
            {0.2, 0.2, 0.2});
    }

    /// Each `%` is a number between a half and all of the given one.
    void writeRow(std::string const& format, std::initializer_list<double> largest)
    {
        std::size_t at = 0;
        for (double const number : largest) {
            std::size_t const percent = format.find('%', at);
            std::size_t const end = format.find_first_of("fg", percent) + 1;
            double const part = 0.5 + 0.5 * static_cast<double>(_random()) / 4294967295.0;
            char digits[32];
            std::snprintf(digits, sizeof digits, format[end - 1] == 'f' ? "%.6f" : "%.9g", number * part);
            _text.append(format, at, percent - at).append(digits);
            at = end;
        }
        _text.append(format, at);
    }

    std::string _text;
    std::mt19937 _random{1};
};

}  // namespace Bench

#endif
