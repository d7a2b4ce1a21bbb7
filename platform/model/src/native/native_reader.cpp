#include "native/native_reader.hpp"

#include <utility>

#include "native/element_reader.hpp"
#include "native/elements.hpp"
#include "native/references.hpp"
#include "robot_record.hpp"

namespace Varo::Model {

std::unique_ptr<Robot> readNative(pugi::xml_node root, Diagnostics& diagnostics)
{
    RobotData robot;
    robot.dialect = "native";
    Native::ElementReader reader(diagnostics, robot);
    reader.read(Native::robotDescriptionElement, root, &robot);
    Native::checkReferences(root, reader);
    if (diagnostics.hasErrors()) {
        return nullptr;
    }
    return std::make_unique<RobotRecord>(std::move(robot));
}

}  // namespace Varo::Model
