#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

std::string withRoot(std::string const& content, std::string const& more = {})
{
    return robot("<link name=\"root\">" + content + "</link>" + more);
}

std::string visual(std::string const& solid, std::string const& material = {})
{
    return "<visual><geometry>" + solid + "</geometry>" + material + "</visual>";
}

JointConfig rootOf(std::string const& text)
{
    return tablesOf(text).root;
}

std::array<float, 3> numbersOf(Position3D const& vector)
{
    return {vector.x, vector.y, vector.z};
}

/// That shapes are read as stated, Python's reader of XML sees in the dump; here is what the records make of them.
TEST(UrdfShapes, AreLeftToTheMeshOfTheRecordWhereThatSaysAll)
{
    std::string const mesh = "<mesh filename=\"first.dae\"/>";
    std::string const box = visual("<box size=\"1 1 1\"/>");
    std::string const offset =
        "<visual><origin xyz=\"0 0 2\" rpy=\"0 0.5 0\"/><geometry>" + mesh + "</geometry></visual>";
    struct Case {
        std::string visuals;
        std::size_t listed;
        char const* mesh;
    };
    for (Case const& c :
         {Case{visual(mesh), 0, "first.dae"}, Case{box, 1, ""}, Case{box + visual(mesh), 2, "first.dae"},
          Case{"<visual><origin/><geometry>" + mesh + "</geometry></visual>", 0, "first.dae"},
          Case{"<visual name=\"n\"><geometry>" + mesh + "</geometry></visual>", 1, "first.dae"},
          Case{offset + visual("<mesh filename=\"second.dae\"/>"), 2, "first.dae"}, Case{offset, 1, "first.dae"},
          Case{visual("<mesh filename=\"m\" scale=\"1 1 2\"/>"), 1, "m"},
          Case{visual(mesh, "<material name=\"m\"><color rgba=\"1 1 1 1\"/></material>"), 1, "first.dae"},
          Case{visual("<mesh/>") + visual(mesh), 1, "first.dae"}}) {
        SCOPED_TRACE(c.visuals);
        JointConfig const root = rootOf(withRoot(c.visuals));
        EXPECT_EQ(root.shapes.visuals.size(), c.listed);
        EXPECT_EQ(root.meshName, c.mesh);
    }
    EXPECT_EQ(rootOf(withRoot(offset)).meshPosition.z, 2.0F);
    EXPECT_EQ(rootOf(withRoot(offset)).meshOrientation.y, 0.5F);
}

TEST(UrdfShapes, SayWhatIsWrongAndWhatWasMadeOfIt)
{
    auto const shape = [](std::string const& solid) { return withRoot("\n" + visual("\n" + solid)); };
    auto const colored = [](std::string const& rgba) {
        return withRoot(visual("<sphere radius=\"1\"/>", "\n<material name=\"m\">\n" + rgba + "</material>"));
    };
    struct Case {
        std::string text;
        char const* code;
        int line;
        std::size_t visuals;
    };
    for (Case const& c :
         {Case{shape("<box size=\"1 -2 3\"/>"), "negative-length", 3, 1},
          Case{shape("<sphere radius=\"-1\"/>"), "negative-length", 3, 1},
          Case{shape("<cylinder radius=\"1\"/>"), "missing-attribute", 3, 1},
          Case{shape("<box size=\"1 2\"/>"), "wrong-count", 3, 1}, Case{shape("<mesh/>"), "incomplete-shape", 2, 0},
          Case{shape(""), "incomplete-shape", 2, 0}, Case{shape("<plane normal=\"0 0 1\"/>"), "incomplete-shape", 2, 0},
          Case{withRoot("\n<visual/>"), "incomplete-shape", 2, 0},
          Case{shape("<sphere radius=\"1\"/>\n<box size=\"1 1 1\"/>"), "surplus-element", 4, 1},
          Case{colored("<color rgba=\"0 0 1.5 1\"/>"), "color-range", 3, 1},
          Case{colored("<color rgba=\"1 0 0\"/>"), "wrong-count", 3, 1},
          Case{colored("<color/>"), "missing-attribute", 3, 1}, Case{colored("<texture/>"), "missing-attribute", 3, 1},
          Case{colored(""), "unknown-material", 2, 1},
          Case{withRoot("",
                        "<material name=\"m\"><color rgba=\"1 1 1 1\"/></material>\n<material name=\"m\"><color "
                        "rgba=\"0 0 0 1\"/></material>"),
               "duplicate-material", 2, 0}}) {
        SCOPED_TRACE(c.text);
        Findings const findings = ModelUtils::diagnose(c.text);
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings[0].code, c.code);
        EXPECT_EQ(findings[0].line, c.line);
        EXPECT_EQ(rootOf(c.text).shapes.visuals.size(), c.visuals);
    }
    EXPECT_THAT(numbersOf(rootOf(shape("<box size=\"1 -2 3\"/>")).shapes.visuals[0].geometry.size),
                ElementsAre(1.0F, 2.0F, 3.0F));
    EXPECT_THAT(rootOf(colored("<color rgba=\"-1 0 1.5 1\"/>")).shapes.visuals[0].material->rgba,
                ElementsAre(0.0F, 0.0F, 1.0F, 1.0F));
    EXPECT_THAT(rootOf(colored("<color rgba=\"1 0 0\"/>")).shapes.visuals[0].material->rgba,
                ElementsAre(1.0F, 0.0F, 0.0F, 1.0F));
    EXPECT_EQ(rootOf(colored("")).shapes.visuals[0].material->name, "m");
}

}  // namespace
