#include <iostream>
#include <stdexcept>

#include "sim/base_camera.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/dcm_sensor.hpp"
#include "sim/model.hpp"
#include "varo/model/finding.hpp"

// Types have to be the same ones on both sides of the library's boundary: those of exceptions, and those that
// dynamic_cast tells apart. Takes a description with a camera.
namespace {

bool isCaughtAsThrown()
{
    try {
        Sim::Model const model("<robotDescription/>");
    } catch (Varo::Model::DescriptionError const& error) {
        return !error.findings().empty() && dynamic_cast<std::invalid_argument const*>(&error) != nullptr;
    } catch (...) {
    }
    return false;
}

bool isCastAsMade(Sim::Model const& model)
{
    Sim::Sensor const* const camera = model.cameraSensors().at(0);
    Sim::Sensor const* const angle = model.sensor("NeckNod");
    return dynamic_cast<Sim::CameraSensor const*>(camera) != nullptr &&
           dynamic_cast<Sim::BaseCamera const*>(camera) != nullptr &&
           dynamic_cast<Sim::DCMSensor const*>(camera) == nullptr &&
           dynamic_cast<Sim::DCMSensor const*>(angle) != nullptr;
}

}  // namespace

int main(int, char** arguments)
{
    Sim::Model const model(arguments[1]);
    std::cout << (isCaughtAsThrown() ? "caught" : "not caught") << ' ' << (isCastAsMade(model) ? "cast" : "not cast")
              << '\n';
}
