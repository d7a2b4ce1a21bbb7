#include "native/native_writer.hpp"

#include "native/elements.hpp"
#include "schema/element_writer.hpp"

namespace Varo::Model {

std::string writeNative(Robot const& robot)
{
    auto const records = recordsOf(robot);
    Schema::ElementWriter writer(*records);
    writer.writeDeclaration();
    writer.write(Native::robotDescriptionElement, *records);
    return writer.takeText();
}

}  // namespace Varo::Model
