#include "loaders.hpp"

#ifdef VARO_BENCH_URDFDOM
#include <console_bridge/console.h>
#include <urdf_parser/urdf_parser.h>
#endif

#include "bare_parse.hpp"
#include "flat_robot.hpp"
#include "humanoid.hpp"
#include "serial_robot.hpp"
#include "sim/model.hpp"

namespace Bench {

namespace {

std::string humanoid(int joints)
{
    return HumanoidWriter().write(joints);
}

std::string native(int joints)
{
    return serialRobot(joints);
}

std::shared_ptr<void> makeFlat(std::string const& text)
{
    auto robot = readFlat(text);
    return robot ? std::make_shared<FlatRobot>(std::move(*robot)) : nullptr;
}

std::shared_ptr<void> makeModel(std::string const& text)
{
    return std::make_shared<Sim::Model>(text);
}

std::shared_ptr<void> makeNothing(std::string const& text)
{
    parseBare(text);
    return std::make_shared<int>();
}

#ifdef VARO_BENCH_URDFDOM
std::shared_ptr<void> makeByUrdfdom(std::string const& text)
{
    return urdf::parseURDF(text);
}
#endif

std::vector<Loader> makeLoaders()
{
    std::vector<Loader> all = {{"floor", humanoid, makeFlat, true}, {"ours", humanoid, makeModel}};
#ifdef VARO_BENCH_URDFDOM
    console_bridge::noOutputHandler();  // its messages are not what is measured
    all.push_back({"urdfdom", humanoid, makeByUrdfdom});
#endif
    all.push_back({"native-parse", native, makeNothing, true});
    all.push_back({"native", native, makeModel});
    return all;
}

}  // namespace

std::vector<Loader> const& loaders()
{
    static std::vector<Loader> const all = makeLoaders();
    return all;
}

}  // namespace Bench
