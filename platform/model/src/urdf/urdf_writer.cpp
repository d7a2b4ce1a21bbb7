#include "urdf/urdf_writer.hpp"

#include "urdf/extending_writer.hpp"
#include "urdf/statements_of.hpp"

namespace Varo::Model {

std::string writeUrdf(Robot const& robot)
{
    auto const records = recordsOf(robot);
    Urdf::StatementsOf const statements(*records);
    Urdf::ExtendingWriter writer(*records, statements);
    writer.writeRobot({}, {});
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + writer.text();
}

}  // namespace Varo::Model
