#include "native/native_writer.hpp"

#include "native/elements.hpp"
#include "schema/element_writer.hpp"

namespace Varo::Model {

std::string writeNative(Robot const& robot)
{
    auto const records = recordsOf(robot);
    Schema::ElementWriter writer(*records);
    writer.write(Native::robotDescriptionElement, *records);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + writer.text();
}

}  // namespace Varo::Model
