// Draws the picture of "Moving the robot": a robot in postures of its description, beside each other as one SVG. A line
// leads from each link to the ones that it carries, a disc is where a link has its mass, and a red one where the whole
// robot has it. Lengths are in millimetres.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <stdexcept>

#include "sim/joint.hpp"
#include "sim/kinematics.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/model.hpp"

namespace {

/// Seen from the right, a little from in front and from above.
std::string onPaper(Sim::Vector3 const& p)
{
    return std::to_string(std::lround(800 * p[0] + 600 * p[1])) + ' ' +
           std::to_string(std::lround(100 * p[0] - 100 * p[1] - 1000 * p[2]));
}

void drawMass(Sim::Vector3 const& place, double mass, char const* colour)
{
    std::cout << "<circle transform='translate(" << onPaper(place) << ")' r='" << std::lround(40 * std::cbrt(mass))
              << "' fill='" << colour << "'/>\n";
}

void drawLink(Sim::Link const& link, Sim::Kinematics const& kinematics, std::vector<Sim::Pose> const& poses)
{
    Sim::Pose const& pose = poses[kinematics.linkIndex(link)];
    if (Sim::Joint const* const joint = link.parentJoint()) {
        Sim::Pose const& parent = poses[kinematics.linkIndex(*joint->parentLink())];
        std::cout << "<path d='M" << onPaper(parent.position()) << 'L' << onPaper(pose.position())
                  << "' stroke='navy' stroke-width='8'/>\n";
    }
    if (Sim::MassData const* const mass = link.mass(); mass != nullptr && mass->mass() > 0) {
        auto const& com = mass->CoM();
        drawMass(pose * Sim::Vector3{com.x, com.y, com.z}, mass->mass(), "rgba(60,90,160,0.4)");
    }
}

void drawPosture(Sim::Model const& model, Sim::Kinematics const& kinematics, std::string const& name)
{
    Sim::Configuration const configuration(kinematics, name);
    std::vector<Sim::Pose> const poses = kinematics.linkPoses(configuration);
    auto const isLower = [](Sim::Pose const& a, Sim::Pose const& b) { return a(2, 3) < b(2, 3); };
    double const ground = (*std::min_element(poses.begin(), poses.end(), isLower))(2, 3);
    std::cout << "<text x='-350' y='-1380' font-size='60'>" << name << "</text>\n<g transform='translate(0 "
              << std::lround(1000 * ground) << ")'>\n";
    for (Sim::Link const* const link : model.links()) {
        drawLink(*link, kinematics, poses);
    }
    drawMass(kinematics.massProperties(configuration).centerOfMass, 0.2, "red");
    std::cout << "</g>\n";
}

}  // namespace

int main(int count, char** arguments)
try {
    if (count < 3) {
        throw std::invalid_argument("Usage: draw_postures FILE POSTURE...");
    }
    Sim::Model const model(arguments[1]);
    Sim::Kinematics const kinematics(model);
    std::cout << "<svg xmlns='http://www.w3.org/2000/svg' height='360' viewBox='-400 -1450 " << 1000 * (count - 2)
              << " 1550' style='background: white'>\n";
    for (int i = 2; i < count; ++i) {
        std::cout << "<g transform='translate(" << 1000 * (i - 2) << " 0)'>\n";
        drawPosture(model, kinematics, arguments[i]);
        std::cout << "</g>\n";
    }
    std::cout << "</svg>\n";
} catch (std::exception const& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
