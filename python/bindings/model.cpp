#include <algorithm>
#include <cctype>
#include <functional>
#include <string>
#include <vector>

#include <pybind11/stl.h>

#include "classes.hpp"
#include "element.hpp"
#include "findings.hpp"
#include "records.hpp"

namespace Python {

namespace {

using ModelClass = py::class_<LoadedModel, ModelPtr>;

/// How Python finds the elements of one kind: all of them as a property, `all(model)`, and one by its name,
/// `find(model, name)`. `what` they are is one thing, as `camera_sensor`.
template <class All, class Find>
void defineLookUp(ModelClass& modelClass, std::string const& what, All all, Find find)
{
    std::string words = what;
    std::replace(words.begin(), words.end(), '_', ' ');
    modelClass.def_property_readonly(
        (what + "s").c_str(), [all](ModelPtr const& self) { return elementsOf(self, std::invoke(all, self->model)); },
        ("All " + words + "s, in the order in which they were made.").c_str());
    define(
        modelClass, what + "(self, name)",
        [all, find, words](ModelPtr const& self, std::string const& name) {
            auto const* const found = std::invoke(find, self->model, name);
            if (found == nullptr) {
                py::object const names = elementsOf(self, std::invoke(all, self->model)).attr("names");
                raise(packageClass("UnknownNameError").attr("among")(name, names, words));
            }
            return toPython(self, found);
        },
        ("The first " + words + " of that name. Raises UnknownNameError when there is none."), py::arg("name"));
}

/// "AngleSpeed" as names in Python have it: "angle_speed".
std::string snakeCase(std::string const& name)
{
    std::string snake;
    for (std::size_t i = 0; i < name.size(); ++i) {
        bool const beginsWord = i > 0 && std::isupper(name[i]) != 0 && std::islower(name[i - 1]) != 0;
        snake += beginsWord ? "_" : "";
        snake += static_cast<char>(std::tolower(name[i]));
    }
    return snake;
}

/// A look-up for each kind of a family of devices.
template <class Device, class Kinds>
void defineKindLookUps(ModelClass& modelClass, char const* family, Kinds const& kinds,
                       std::vector<Device const*> (Sim::Model::*devices)() const)
{
    auto const declare = [&](auto const& kind) {
        using Class = typename std::decay_t<decltype(kind)>::Class;
        auto const all = [devices, type = kind.type](Sim::Model const& model) {
            std::vector<Class const*> ofKind;
            for (Device const* device : (model.*devices)()) {
                if (device->type() == type) {
                    ofKind.push_back(static_cast<Class const*>(device));
                }
            }
            return ofKind;
        };
        auto const find = [all](Sim::Model const& model, std::string const& name) -> Class const* {
            auto const ofKind = all(model);
            auto const found = std::find_if(ofKind.begin(), ofKind.end(),
                                            [&name](Class const* device) { return device->name() == name; });
            return found == ofKind.end() ? nullptr : *found;
        };
        defineLookUp(modelClass, snakeCase(kind.name) + "_" + family, all, find);
    };
    std::apply([&](auto const&... kind) { (declare(kind), ...); }, kinds);
}

void defineElements(ModelClass& modelClass)
{
    defineLookUp(modelClass, "link", &Sim::Model::links, &Sim::Model::link);
    defineLookUp(modelClass, "joint", &Sim::Model::joints, &Sim::Model::joint);
    defineLookUp(modelClass, "joint_group", &Sim::Model::jointGroups, &Sim::Model::jointGroup);
    defineLookUp(modelClass, "actuator_group", &Sim::Model::actuatorGroups, &Sim::Model::actuatorGroup);
    defineLookUp(modelClass, "actuator", &Sim::Model::actuators, &Sim::Model::actuator);
    defineLookUp(modelClass, "sensor", &Sim::Model::sensors, &Sim::Model::sensor);
    defineKindLookUps(modelClass, "actuator", Sim::actuatorKinds, &Sim::Model::actuators);
    defineKindLookUps(modelClass, "sensor", Sim::sensorKinds, &Sim::Model::sensors);
    modelClass.def_property_readonly(
        "root_link", [](ModelPtr const& self) { return toPython(self, self->model.rootLink()); },
        "The link that no joint moves.");
    modelClass.def_property_readonly(
        "joint_symmetries", [](ModelPtr const& self) { return tupleOf(self, self->model.jointSymmetries()); },
        "The pairs of joints that mirror each other.");
}

void defineDescription(ModelClass& modelClass)
{
    auto const property = [&modelClass](char const* name, auto get, char const* documentation) {
        modelClass.def_property_readonly(name, get, documentation);
    };
    property(
        "name", [](LoadedModel const& self) { return self.model.name(); }, "The description's name.");
    property(
        "pretty_name", [](LoadedModel const& self) { return self.model.prettyName(0); },
        "A name for people; the model's name when the description has none.");
    property(
        "pretty_names", [](LoadedModel const& self) { return self.model.robot().prettyNames(); },
        "All names for people, by their indices.");
    property(
        "version", [](LoadedModel const& self) { return self.model.robot().version(); },
        "The description's own version; empty when it states none.");
    property(
        "dialect", [](LoadedModel const& self) { return self.model.robot().dialect(); },
        "The dialect of the description: \"native\" or \"urdf\".");
    property(
        "text", [](LoadedModel const& self) { return textOf(self.model.configFile()); },
        "The XML text of the description, as it was read.");
    property(
        "file", [](LoadedModel const& self) { return self.isFromFile ? py::object(textOf(self.file)) : py::none(); },
        "The file that was loaded, as it was given to load; None for a text.");
    property("postures", posturesOf,
             "The values (rad, m) that each posture of the description gives to joints and actuators, by their names.");
    property("transmissions", transmissionsOf,
             "Which actuator drives which joint, and how, as far as the description says.");
    property("extensions", extensionsOf, "What the description has for other programs, kept as it stands in its text.");
    property(
        "findings", [](LoadedModel const& self) { return findingsOf(self.model.findings(), self.file); },
        "The warnings and notes of reading the description and of building the model, in the order of their\n"
        "places. What is worth saying beside them, lint tells.");
}

py::str representation(LoadedModel const& self)
{
    return py::str("<Model {!r}: {} links, {} joints, {} actuators, {} sensors, from {!r}>")
        .format(self.model.name(), self.model.links().size(), self.model.joints().size(), self.model.actuators().size(),
                self.model.sensors().size(), textOf(self.file));
}

}  // namespace

void defineModel(py::module_& module)
{
    auto modelClass = declareMadeByModels<LoadedModel, ModelPtr>(
        module, "Model",
        "A robot: its tree of links and joints, its sensors and actuators, its groups and symmetries.\n\n"
        "Made by load and loads, and never changed. Elements keep their model alive. Look-ups by name are exact; link\n"
        "also knows what the description itself calls links.");
    defineDescription(modelClass);
    defineElements(modelClass);
    modelClass.def("__repr__", representation);
}

}  // namespace Python
