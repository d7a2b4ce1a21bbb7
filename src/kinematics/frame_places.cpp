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
    for (std::size_t link = 0; link < links.size(); ++link) {
        _known.emplace(links[link]->frame(), Known{{link, Pose()}, {link, Pose()}});
    }
    for (Joint const* const joint : model.joints()) {
        auto const localPose = [](Frame const* frame) { return Pose::fromTransform(frame->localPosition()); };
        Place const itself = {linkOf(*joint->parentLink()), localPose(joint->frame())};
        Link const* const child = joint->childLink();
        Place const posedIn = child == nullptr ? itself : Place{linkOf(*child), localPose(child->frame()).inverse()};
        _known.emplace(joint->frame(), Known{itself, posedIn});
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

FramePlaces::Place FramePlaces::of(Frame const& frame) const
{
    if (auto const known = _known.find(&frame); known != _known.end()) {
        return known->second.itself;
    }
    Pose pose = Pose::fromTransform(frame.localPosition());
    for (Frame const* at = frame.parentFrame(); at != nullptr; at = at->parentFrame()) {
        if (auto const known = _known.find(at); known != _known.end()) {
            return {known->second.posedIn.link, known->second.posedIn.inLink * pose};
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
    return found->second.itself.link;
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
