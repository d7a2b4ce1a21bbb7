#include "support/robot_json.hpp"

#include "sim/link.hpp"
#include "support/element_json.hpp"
#include "varo/model/robot.hpp"

namespace Tool {

namespace {

/// Writes arrays of elements as members of an object.
class ElementArrays {
public:
    ElementArrays(std::ostream& out, JsonStream& object) : _out(out), _object(object) {}

    template <class Element>
    void add(char const* key, std::vector<Element const*> const& elements)
    {
        _object.next(key);
        JsonStream array(_out, '[', 2);
        for (Element const* element : elements) {
            array.add(_json.of(*element));
        }
    }

private:
    std::ostream& _out;
    JsonStream& _object;
    ElementJson _json;
};

}  // namespace

void printRobot(std::ostream& out, Sim::Model const& model)
{
    JsonStream object(out, '{');
    object.add("name", model.name());
    object.add("prettyName", model.prettyName(0));
    object.add("version", model.robot().version());
    object.add("rootLink", model.rootLink()->name());
    ElementArrays arrays(out, object);
    arrays.add("links", model.links());
    arrays.add("joints", model.joints());
    arrays.add("jointSymmetries", model.jointSymmetries());
    arrays.add("jointGroups", model.jointGroups());
    arrays.add("actuators", model.actuators());
    arrays.add("actuatorGroups", model.actuatorGroups());
    arrays.add("sensors", model.sensors());
}

}  // namespace Tool
