// Finds the cameras of a robot whose joints all stand at zero: where in the root frame each sits, and where it looks.
#include <iomanip>
#include <iostream>

#include "failure.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/frame.hpp"
#include "sim/model.hpp"

int main(int count, char** arguments)
try {
    if (count != 2) {
        std::cerr << "Usage: find_cameras FILE\n";
        return 2;
    }
    Sim::Model const model(arguments[1]);
    for (Sim::CameraSensor const* const camera : model.cameraSensors()) {
        // The columns of a pose are the frame's axes, and its origin, seen from the root. A camera looks along its x.
        Varo::Math::Transform const pose = Sim::Frame::globalPosition(camera->frame());
        std::cout << std::fixed << std::setprecision(3) << camera->name() << " looks from " << pose(0, 3) << ' '
                  << pose(1, 3) << ' ' << pose(2, 3) << " m along " << pose(0, 0) << ' ' << pose(1, 0) << ' '
                  << pose(2, 0) << ", " << camera->width() << " by " << camera->height() << " pixels\n";
    }
} catch (...) {
    return reportFailure(arguments[1]);
}
