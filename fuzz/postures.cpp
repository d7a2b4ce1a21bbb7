// Postures: any name of a library, and the libraries of robots.
#include "fuzzing.hpp"
#include "posture/posture_library.hpp"
#include "varo/model/model_utils.hpp"

namespace {

/// Large libraries are right, but slow.
constexpr std::size_t mostValues = 100'000;

void askAll(posture::PostureLibrary const& library)
{
    for (int id = -1; id < 4; ++id) {
        posture::Posture whole;
        posture::Posture stated;
        bool const isKnown = library.getPostureFromId(id, whole, true);
        Fuzz::demand(library.getPostureFromId(id, stated, false) == isKnown, "both ways know the same postures");
        Fuzz::demand(whole.jointValues().size() == stated.jointValues().size(), "both ways give as many values");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text = Fuzz::textOf(data, size);
    posture::PostureLibrary library;
    if (library.loadLibraryFromName(text)) {
        posture::Posture none;
        library.getPostureFromId(-1, none, true);
        if (none.jointValues().size() < mostValues) {
            askAll(library);
        }
    }
    auto const reading = Varo::Model::ModelUtils::read(text);
    if (reading.robot != nullptr) {
        std::string const name = posture::getRobotPostureLibraryName(*reading.robot);
        Fuzz::demand(library.loadLibraryFromName(name) != name.empty(), "a robot's postures load, if it has some");
        askAll(library);
    }
    return 0;
}
