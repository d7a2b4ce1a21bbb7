#include "core/body_record.hpp"

namespace Sim {

namespace {

Shape shapeOf(Varo::Model::ShapeConfig const& config)
{
    return {config.name, poseOf(config), config.geometry};
}

}  // namespace

std::vector<Visual> BodyRecord::visuals() const
{
    std::vector<Visual> visuals;
    auto const add = [&visuals](auto const* record) {
        if (record != nullptr) {
            for (Varo::Model::VisualConfig const& config : visualsOf(*record)) {
                visuals.push_back({shapeOf(config), config.material});
            }
        }
    };
    std::visit(add, _record);
    return visuals;
}

std::vector<Collision> BodyRecord::collisions() const
{
    std::vector<Collision> collisions;
    auto const add = [&collisions](auto const* record) {
        if (record != nullptr) {
            for (Varo::Model::CollisionConfig const& config : record->shapes.collisions) {
                collisions.push_back({shapeOf(config)});
            }
        }
    };
    std::visit(add, _record);
    return collisions;
}

}  // namespace Sim
