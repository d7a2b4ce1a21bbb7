#include "kinematics/frame_places.hpp"

#include "kinematics/unknown_name.hpp"
#include "sim/actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/sensor.hpp"

namespace Sim {

FramePlaces::FramePlaces(Model const& model)
{
    std::vector<Link const*> const links = model.links();
    _known.reserve(2 * links.size());
    for (std::size_t link = 0; link < links.size(); ++link) {
        _known.emplace(links[link]->frame(), Known{static_cast<std::uint32_t>(link), true, nullptr});
    }
    for (Joint const* const joint : model.joints()) {
        auto const link = static_cast<std::uint32_t>(linkOf(*joint->parentLink()));
        _known.emplace(joint->frame(), Known{link, false, joint->childLink()});
    }
    addNames(model);
}

void FramePlaces::addNames(Model const& model)
{
    auto const addAll = [this](auto const& elements) {
        for (auto const* const element : elements) {
            _byName.emplace(element->name(), element->frame());
        }
    };
    addAll(model.links());
    for (Link const* const link : model.links()) {
        _byName.try_emplace(link->descriptionName(), link->frame());
    }
    addAll(model.joints());
    addAll(model.sensors());
    addAll(model.actuators());
}

FramePlaces::Place FramePlaces::placeOf(Frame const& frame, Known const& known)
{
    return {known.link, known.isLinks ? Pose() : Pose::fromTransform(frame.localPosition())};
}

/// What is posed in a joint's frame moves with the link behind the joint.
FramePlaces::Place FramePlaces::placeInside(Frame const& frame, Known const& known) const
{
    return known.behind == nullptr
               ? placeOf(frame, known)
               : Place{linkOf(*known.behind), Pose::fromTransform(known.behind->frame()->localPosition()).inverse()};
}

FramePlaces::Place FramePlaces::of(Frame const& frame) const
{
    if (auto const known = _known.find(&frame); known != _known.end()) {
        return placeOf(frame, known->second);
    }
    Pose pose = Pose::fromTransform(frame.localPosition());
    for (Frame const* at = frame.parentFrame(); at != nullptr; at = at->parentFrame()) {
        if (auto const known = _known.find(at); known != _known.end()) {
            Place const around = placeInside(*at, known->second);
            return {around.link, around.inLink * pose};
        }
        pose = Pose::fromTransform(at->localPosition()) * pose;
    }
    throw std::invalid_argument("The frame " + quoted(frame.name()) + " belongs to another model.");
}

std::size_t FramePlaces::linkOf(Link const& link) const
{
    auto const found = _known.find(link.frame());
    if (found == _known.end()) {
        throw std::invalid_argument("The link " + quoted(link.name()) + " belongs to another model.");
    }
    return found->second.link;
}

Frame const& FramePlaces::named(std::string const& name) const
{
    auto const found = _byName.find(name);
    if (found == _byName.end()) {
        throw unknownName("link, joint, sensor or actuator", name, _byName,
                          [](auto const& entry) -> std::string const& { return entry.first; });
    }
    return *found->second;
}

}  // namespace Sim
