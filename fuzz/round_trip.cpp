// What is written of a record is read as the same record, whatever the dialect it came from.
#include "fuzzing.hpp"
#include "varo/model/model_utils.hpp"

namespace {

using Varo::Model::ModelUtils::read;
using Varo::Model::ModelUtils::toUrdf;
using Varo::Model::ModelUtils::toXml;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    auto const reading = read(Fuzz::textOf(data, size));
    if (reading.robot == nullptr) {
        return 0;
    }
    std::string const text = toXml(*reading.robot);
    auto const again = read(text);
    Fuzz::demand(again.robot != nullptr, "what is written is accepted");
    Fuzz::demand(toXml(*again.robot) == text, "what is read of what is written is the same");
    // URDF has no words for all of it; what is written is read without harm.
    static_cast<void>(read(toUrdf(*reading.robot)));
    return 0;
}
