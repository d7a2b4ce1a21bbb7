#include "records.hpp"

#include <pybind11/stl.h>

#include "enumerations.hpp"
#include "varo/model/records.hpp"

namespace Python {

py::object transmissionsOf(LoadedModel const& loaded)
{
    Varo::Model::Robot const& robot = loaded.model.robot();
    py::object const transmissionClass = packageClass("Transmission");
    py::list transmissions;
    for (Varo::Model::TransmissionConfig const& stated : Varo::Model::recordsOf(robot)->transmissions) {
        transmissions.append(transmissionClass(stated.name, stated.type, stated.joint, stated.actuator,
                                               stated.reduction, py::tuple(py::cast(stated.interfaces)),
                                               py::tuple(py::cast(stated.stateInterfaces)), enumerator(stated.source),
                                               placeOf(robot.place(stated), loaded.file)));
    }
    return packageClass("Elements")(transmissions);
}

py::tuple extensionsOf(LoadedModel const& loaded)
{
    Varo::Model::Robot const& robot = loaded.model.robot();
    py::object const extensionClass = packageClass("Extension");
    py::list extensions;
    for (Varo::Model::ExtensionConfig const& kept : Varo::Model::recordsOf(robot)->extensions) {
        extensions.append(extensionClass(enumerator(kept.owner), kept.ownerName, kept.within, kept.text,
                                         placeOf(robot.place(kept), loaded.file)));
    }
    return extensions;
}

py::dict posturesOf(LoadedModel const& loaded)
{
    py::dict postures;
    for (Varo::Model::PostureConfig const& posture : loaded.model.postures()) {
        py::dict values;
        for (Varo::Model::PostureAngle const& angle : posture.angles) {
            values[py::str(angle.name)] = angle.value;
        }
        postures.attr("setdefault")(posture.name, values);
    }
    return postures;
}

}  // namespace Python
