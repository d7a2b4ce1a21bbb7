// Whole models: what was read builds, or is refused with findings; then every query is asked, and the dump is made.
#include "sim/model.hpp"

#include <sstream>
#include <utility>

#include "fuzzing.hpp"
#include "queries.hpp"
#include "sim/motion_model.hpp"
#include "support/robot_json.hpp"

namespace {

Fuzz::Copies askAll(Sim::Model model)
{
    static_cast<void>(model.findings());
    Fuzz::askModel(model);
    Fuzz::askKinematics(model);
    std::ostringstream out;
    Tool::printRobot(out, model);
    return Fuzz::Copies(model);
}

void build(Varo::Model::ModelUtils::Reading&& reading)
{
    try {
        Fuzz::Copies const copies = askAll(Sim::Model(std::move(reading)));
        copies.askAlone();
    } catch (Varo::Model::WithFindings const& error) {
        Fuzz::demand(!error.findings().empty(), "a model that cannot be built says why");
    }
}

void buildMotionModel(std::string const& text)
{
    try {
        Sim::MotionModel model(text);
        Fuzz::askMotionModel(model);
    } catch (Varo::Model::WithFindings const& error) {
        Fuzz::demand(!error.findings().empty(), "a motion model that cannot be built says why");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text = Fuzz::textOf(data, size);
    auto reading = Varo::Model::ModelUtils::read(text);
    if (reading.robot != nullptr) {
        build(std::move(reading));
        buildMotionModel(text);
    }
    return 0;
}
