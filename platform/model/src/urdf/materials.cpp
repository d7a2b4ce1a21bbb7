#include "urdf/materials.hpp"

#include <algorithm>
#include <string>

#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

bool saysMoreThanName(SurfaceMaterial const& stated)
{
    return stated.color || stated.texture;
}

Material toMaterial(SurfaceMaterial const& stated)
{
    Material material;
    material.name = stated.name;
    material.hasColor = stated.color && (!stated.color->node || stated.color->node.attribute("rgba"));
    if (material.hasColor) {
        std::transform(stated.color->rgba.begin(), stated.color->rgba.end(), material.rgba.begin(),
                       [](double channel) { return static_cast<float>(channel); });
    }
    if (stated.texture) {
        material.texture = stated.texture->filename;
    }
    return material;
}

bool isSame(Material const& a, Material const& b)
{
    return a.name == b.name && a.hasColor == b.hasColor && a.rgba == b.rgba && a.texture == b.texture;
}

}  // namespace

Materials::Materials(Robot const& robot, Diagnostics& diagnostics)
{
    for (SurfaceMaterial const& stated : robot.materials) {
        if (_byName.count(stated.name) > 0 && saysMoreThanName(stated)) {
            diagnostics.report(at(stated.node, "name"), codes::duplicateMaterial,
                               "There is another material " + quoted(stated.name) + " before this one, which counts.");
        }
        add(stated);
    }
    for (Link const& link : robot.links) {
        for (Visual const& visual : link.visuals) {
            if (visual.material) {
                add(*visual.material);
            }
        }
    }
}

void Materials::add(SurfaceMaterial const& stated)
{
    if (!stated.name.empty() && saysMoreThanName(stated) && _byName.count(stated.name) == 0) {
        _byName.emplace(stated.name, std::make_shared<Material const>(toMaterial(stated)));
    }
}

std::shared_ptr<Material const> Materials::find(SurfaceMaterial const& stated, Diagnostics& diagnostics) const
{
    auto const known = _byName.find(stated.name);
    Material own = toMaterial(stated);
    if (known != _byName.end() && (!saysMoreThanName(stated) || isSame(own, *known->second))) {
        return known->second;
    }
    if (!saysMoreThanName(stated)) {
        diagnostics.report(at(stated.node), codes::unknownMaterial,
                           stated.name.empty() ? "This material says neither a name nor a colour nor a texture."
                                               : "Nothing says what the material " + quoted(stated.name) + " is.",
                           "Give it a color or a texture, here or in the robot.");
    }
    return std::make_shared<Material const>(std::move(own));
}

}  // namespace Varo::Model::Urdf
