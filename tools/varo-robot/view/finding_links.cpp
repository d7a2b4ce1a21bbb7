#include "view/finding_links.hpp"

#include "sim/actuator.hpp"
#include "sim/joint.hpp"
#include "sim/sensor.hpp"

namespace Tool {

Sim::Link const* FindingLinks::of(std::string const& path) const
{
    constexpr char beginning[] = "[@name=\"";
    std::size_t end = path.size();
    for (std::size_t begin = path.rfind(beginning); begin != std::string::npos; begin = path.rfind(beginning, begin)) {
        std::size_t const nameAt = begin + sizeof(beginning) - 1;
        std::size_t const nameEnd = path.rfind("\"]", end);
        std::size_t const slash = path.rfind('/', begin);
        if (nameEnd != std::string::npos && nameEnd >= nameAt && slash != std::string::npos) {
            std::string const element = path.substr(slash + 1, begin - slash - 1);
            if (Sim::Link const* const link = named(element, path.substr(nameAt, nameEnd - nameAt))) {
                return link;
            }
        }
        if (begin == 0) {
            break;
        }
        end = --begin;
    }
    return nullptr;
}

Sim::Link const* FindingLinks::named(std::string const& element, std::string const& name) const
{
    if (element == "link") {
        return _model.link(name);
    }
    if (element == "root" || element == "robotDescription" || element == "robot") {
        return element == "root" ? _model.rootLink() : nullptr;
    }
    if (Sim::Joint const* const joint = _model.joint(name)) {
        return joint->childLink();
    }
    if (Sim::Sensor const* const sensor = _model.sensor(name)) {
        return _carriers.of(sensor->frame());
    }
    Sim::Actuator const* const actuator = _model.actuator(name);
    return actuator == nullptr ? nullptr : _carriers.of(actuator->frame());
}

}  // namespace Tool
