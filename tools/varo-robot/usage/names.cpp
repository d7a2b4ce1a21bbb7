#include "usage/names.hpp"

#include "sim/actuator.hpp"
#include "sim/actuator_group.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"
#include "sim/kinematics.hpp"
#include "sim/link.hpp"
#include "sim/sensor.hpp"
#include "varo/model/records.hpp"

namespace Tool {

namespace {

using Names = std::vector<std::string>;

std::string const& nameOf(std::string const& name)
{
    return name;
}

template <class Record>
std::string nameOf(Record const& record)
{
    return record.name;
}

template <class Element>
std::string nameOf(Element const* element)
{
    return element->name();
}

template <class Elements>
void append(Names& names, Elements const& elements)
{
    for (auto const& element : elements) {
        names.push_back(nameOf(element));
    }
}

}  // namespace

Names namesIn(Sim::Model const& model)
{
    Names names = framesIn(model);
    append(names, model.jointGroups());
    append(names, model.actuatorGroups());
    auto const records = Varo::Model::recordsOf(model.robot());
    append(names, records->chains);
    append(names, records->transmissions);
    append(names, posturesIn(model));
    return names;
}

Names framesIn(Sim::Model const& model)
{
    Names names;
    for (Sim::Link const* const link : model.links()) {
        names.push_back(link->descriptionName());
    }
    append(names, model.joints());
    append(names, model.sensors());
    append(names, model.actuators());
    return names;
}

Names posturesIn(Sim::Model const& model)
{
    Names names;
    append(names, model.postures());
    return names;
}

Names variablesIn(Sim::Model const& model)
{
    Names names;
    append(names, Sim::Kinematics(model).variables());
    return names;
}

}  // namespace Tool
