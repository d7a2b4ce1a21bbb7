#include "support/robot_json.hpp"

#include "formats/formats.hpp"
#include "sim/link.hpp"
#include "support/element_json.hpp"
#include "support/kinds.hpp"
#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Tool {

namespace {

/// Writes arrays as members of an object.
class Arrays {
public:
    Arrays(std::ostream& out, JsonStream& object) : _out(out), _object(object) {}

    template <class Element>
    void add(char const* key, std::vector<Element const*> const& elements)
    {
        _object.next(key);
        JsonStream array(_out, '[', 2);
        for (Element const* element : elements) {
            array.add(_json.of(*element));
        }
    }

    /// What the model has no elements of, but its records do.
    void addRecords(char const* key, Sim::Model const& model, Visit visit)
    {
        _object.next(key);
        JsonStream array(_out, '[', 2);
        visit(model, [&array](Json&& record) { array.add(record); });
    }

private:
    std::ostream& _out;
    JsonStream& _object;
    ElementJson _json;
};

char const* wordFor(Varo::Model::ExtensionOwner owner)
{
    switch (owner) {
    case Varo::Model::ExtensionOwner::link: return "link";
    case Varo::Model::ExtensionOwner::joint: return "joint";
    case Varo::Model::ExtensionOwner::sensor: return "sensor";
    case Varo::Model::ExtensionOwner::robot: break;
    }
    return "robot";
}

void visitExtensions(Sim::Model const& model, std::function<void(Json&&)> const& take)
{
    auto const records = Varo::Model::recordsOf(model.robot());
    for (Varo::Model::ExtensionConfig const& extension : records->extensions) {
        take(objectOf({{"owner", wordFor(extension.owner)},
                       {"name", extension.ownerName},
                       {"within", extension.within},
                       {"text", extension.text}}));
    }
}

}  // namespace

void printRobot(std::ostream& out, Sim::Model const& model)
{
    JsonStream object(out, '{');
    object.add("formatVersion", formatVersion);
    object.add("name", model.name());
    object.add("prettyName", model.prettyName(0));
    object.add("version", model.robot().version());
    object.add("rootLink", model.rootLink()->name());
    Arrays arrays(out, object);
    arrays.add("links", model.links());
    arrays.add("joints", model.joints());
    arrays.add("jointSymmetries", model.jointSymmetries());
    arrays.add("jointGroups", model.jointGroups());
    arrays.add("actuators", model.actuators());
    arrays.add("actuatorGroups", model.actuatorGroups());
    arrays.add("sensors", model.sensors());
    arrays.addRecords("transmissions", model, findKind("transmissions")->visit);
    arrays.addRecords("extensions", model, visitExtensions);
}

}  // namespace Tool
