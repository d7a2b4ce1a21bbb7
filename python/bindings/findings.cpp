#include "findings.hpp"

#include "enumerations.hpp"

namespace Python {

py::object placeOf(Varo::Model::Place const& place, std::string const& file)
{
    return packageClass("Place")(textOf(file), place.line, place.column, textOf(place.path));
}

py::list findingsOf(Varo::Model::Findings const& findings, std::string const& file)
{
    py::object const findingClass = packageClass("Finding");
    py::list list;
    for (Varo::Model::Finding const& finding : findings) {
        list.append(findingClass(enumerator(finding.severity), finding.code,
                                 placeOf({finding.line, finding.column, finding.path}, file), textOf(finding.message),
                                 textOf(finding.hint)));
    }
    return list;
}

}  // namespace Python
