#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::IsEmpty;
using Varo::Math::Transform;
using Varo::Model::GeometryType;

std::string visual(std::string const& name)
{
    return "<visual name='" + name + "'><sphere radius='2'/><material name='red'/></visual>";
}

std::string collision(std::string const& name)
{
    return "<collision name='" + name + "'><placement xyz='0 0 1'/><capsule radius='1' length='3'/></collision>";
}

/// A link of each kind, with shapes that are called after it.
std::string const limbs =
    "<robotDescription name='R'><root name='Base'>" + visual("root") + collision("root") + "</root>" +
    joint("J", "<end xyz='5 0 0'/>" + visual("joint") + visual("more") + collision("joint")) +
    "<joint name='Bare' mesh='bare.dae' meshXyz='0 2 0' meshRpy='0 0 1.5707964' min='0' max='1'/>" +
    chain("C", "Base", {"J", "Bare"}) +
    actuator(
        "A", "J",
        "<group><subJoint name='S' ratio='1'>" + visual("subJoint") + collision("subJoint") + "</subJoint></group>") +
    wheel("W", "J", visual("wheel") + collision("wheel")) + "</robotDescription>";

/// Of visuals and then of collisions.
std::vector<std::string> namesOfShapes(Sim::Link const* link)
{
    std::vector<std::string> names;
    auto const add = [&names](Sim::Shape const& shape) { names.push_back(shape.name); };
    for (auto const& visual : link->visuals()) {
        add(visual);
    }
    for (auto const& collision : link->collisions()) {
        add(collision);
    }
    return names;
}

}  // namespace

TEST(Shapes, BelongToLinksOfEveryKind)
{
    Sim::Model const model(limbs);
    EXPECT_THAT(namesOfShapes(model.rootLink()), ElementsAre("root", "root"));
    EXPECT_THAT(namesOfShapes(model.link("JLink")), ElementsAre("joint", "more", "joint"));
    EXPECT_THAT(namesOfShapes(model.link("SLink")), ElementsAre("subJoint", "subJoint"));
    EXPECT_THAT(namesOfShapes(model.link("WLink")), ElementsAre("wheel", "wheel"));
    EXPECT_EQ(model.link("JLink")->visual()->meshPath(), "J.dae") << "as stated beside the visuals";
    Sim::Collision const hull = model.link("WLink")->collisions().at(0);
    EXPECT_EQ(hull.pose, Transform::fromPosition(0, 0, 1));
    EXPECT_EQ(hull.geometry.type, GeometryType::capsule);
    EXPECT_EQ(hull.geometry.length, 3.0F);
}

TEST(Shapes, AreTheMeshAtItsPlaceWhereTheDescriptionHasNoVisuals)
{
    Sim::Model const model(limbs);
    std::vector<Sim::Visual> const visuals = model.link("BareLink")->visuals();
    ASSERT_EQ(visuals.size(), 1U);
    EXPECT_EQ(visuals[0].geometry.uri, "bare.dae");
    EXPECT_EQ(visuals[0].material, nullptr);
    Transform const place = Transform::fromPosition(0, 2, 0) * Transform::fromRotZ(1.5707964F);
    EXPECT_TRUE(visuals[0].pose.isNear(place, 1e-6F));
    EXPECT_EQ(model.link("BareLink")->visual()->meshTransform(), Transform());
    EXPECT_THAT(model.link("BareLink")->collisions(), IsEmpty());
}

TEST(Shapes, OfAWheelAreItsOwnWhateverJointHasItsName)
{
    Sim::Model const model(robot(joint("N", visual("joint") + attribute("material", "rubber")) +
                                 chain("C", "Base", {"N"}) + wheel("N", "N", visual("wheel"))));
    std::vector<std::string> names;
    for (Sim::Link const* link : model.links()) {
        names.push_back(link->visuals().at(0).name);
    }
    EXPECT_THAT(names, ElementsAre("", "joint", "wheel"));
}

TEST(Shapes, OutliveTheirModel)
{
    auto model = std::make_unique<Sim::ModelImpl>(limbs);
    std::vector<Sim::Visual> const kept = model->link("JLink")->visuals();
    model.reset();
    EXPECT_EQ(kept.at(0).material->name, "red");
}
