// Postures: any name of a library, and the libraries of robots, which give back what the descriptions state.
#include <cmath>

#include "fuzzing.hpp"
#include "posture/posture_library.hpp"
#include "varo/model/model_utils.hpp"

namespace {

/// A library of more values is right, but each of its postures takes long.
constexpr std::size_t mostValues = 100'000;

void askOf(posture::PostureLibrary const& library, int id)
{
    posture::Posture whole;
    posture::Posture stated;
    bool const isKnown = library.getPostureFromId(id, whole, true);
    Fuzz::demand(library.getPostureFromId(id, stated, false) == isKnown, "both ways know the same postures");
    Fuzz::demand(whole.jointValues().size() == stated.jointValues().size(), "both ways give as many values");
    for (float const value : whole.jointValues()) {
        Fuzz::demand(!std::isnan(value), "a posture that is completed has a value for every name");
    }
}

void askOfAnyName(std::string const& name)
{
    posture::PostureLibrary library;
    bool const isLoaded = library.loadLibraryFromName(name);
    posture::Posture none;
    Fuzz::demand(!library.getPostureFromId(-1, none, true), "no posture has a negative id");
    Fuzz::demand(isLoaded || none.jointValues().empty(), "what is refused leaves nothing");
    for (int id = 0; id < 4 && none.jointValues().size() < mostValues; ++id) {
        askOf(library, id);
    }
}

void askOfRobot(Varo::Model::Robot const& robot)
{
    std::string const name = posture::getRobotPostureLibraryName(robot);
    posture::PostureLibrary library;
    Fuzz::demand(library.loadLibraryFromName(name) == !robot.postures().empty(), "a robot's postures load");
    for (Varo::Model::PostureConfig const& stated : robot.postures()) {
        int const id = library.getIdFromName(stated.name);
        Fuzz::demand(id >= 0, "a posture is found by its name");
        askOf(library, id);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text = Fuzz::textOf(data, size);
    askOfAnyName(text);
    auto const reading = Varo::Model::ModelUtils::read(text);
    if (reading.robot != nullptr) {
        askOfRobot(*reading.robot);
    }
    return 0;
}
