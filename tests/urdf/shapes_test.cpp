#include <map>
#include <sstream>

#include <gmock/gmock.h>
#include <pugixml.hpp>

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

TEST(UrdfShapes, AreInTheRecordOfTheirBody)
{
    JointConfig const root = rootOf(withRoot(
        "<visual name=\"v\"><origin xyz=\"1 2 3\" rpy=\"4 5 6\"/><geometry><cylinder radius=\"0.5\" length=\"2\"/>"
        "</geometry></visual><collision name=\"c\"><geometry><box size=\"1 2 3\"/></geometry></collision>"
        "<collision><geometry><sphere radius=\"7\"/></geometry></collision>"
        "<collision><geometry><capsule radius=\"1\" length=\"8\"/></geometry></collision>"
        "<collision><geometry><mesh filename=\"m.stl\" scale=\"-2 1 0.5\"/></geometry></collision>"
        "<collision><geometry><mesh filename=\"m.stl\" scale=\"2\"/></geometry></collision>"));
    ASSERT_EQ(root.shapes.visuals.size(), 1U);
    VisualConfig const& shown = root.shapes.visuals[0];
    EXPECT_EQ(shown.name, "v");
    EXPECT_THAT(numbersOf(shown.position), ElementsAre(1.0F, 2.0F, 3.0F));
    EXPECT_THAT(numbersOf(shown.orientation), ElementsAre(4.0F, 5.0F, 6.0F));
    EXPECT_EQ(shown.geometry.type, GeometryType::cylinder);
    EXPECT_EQ(shown.geometry.radius, 0.5F);
    EXPECT_EQ(shown.geometry.length, 2.0F);
    EXPECT_EQ(shown.material, nullptr);
    EXPECT_EQ(root.meshName, "");

    auto const& collisions = root.shapes.collisions;
    ASSERT_EQ(collisions.size(), 5U);
    EXPECT_EQ(collisions[0].name, "c");
    EXPECT_THAT(numbersOf(collisions[0].geometry.size), ElementsAre(1.0F, 2.0F, 3.0F));
    EXPECT_EQ(collisions[1].geometry.type, GeometryType::sphere);
    EXPECT_EQ(collisions[1].geometry.radius, 7.0F);
    EXPECT_EQ(collisions[2].geometry.type, GeometryType::capsule);
    EXPECT_EQ(collisions[2].geometry.length, 8.0F);
    EXPECT_THAT(numbersOf(collisions[3].geometry.scale), ElementsAre(-2.0F, 1.0F, 0.5F));
    EXPECT_THAT(numbersOf(collisions[4].geometry.scale), ElementsAre(2.0F, 2.0F, 2.0F));
}

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

TEST(UrdfShapes, HaveTheMaterialThatTheirNameStandsFor)
{
    auto const defined = [](std::string const& name, std::string const& rgba) {
        return "<material name=\"" + name + "\"><color rgba=\"" + rgba + "\"/></material>";
    };
    std::string const text =
        withRoot(visual("<sphere radius=\"1\"/>", "<material name=\"early\"/>") +
                     visual("<sphere radius=\"1\"/>", "<material name=\"inline\"/>") +
                     visual("<sphere radius=\"1\"/>", defined("inline", "0 1 0 1")) +
                     visual("<sphere radius=\"1\"/>", defined("early", "0 0 1 0.5")) +
                     visual("<sphere radius=\"1\"/>", "<material name=\"image\"/>"),
                 defined("early", "1 0 0 1") + "<material name=\"image\"><texture filename=\"t.png\"/></material>");
    EXPECT_THAT(complaintsAbout(text), ElementsAre());
    auto const visuals = rootOf(text).shapes.visuals;
    ASSERT_EQ(visuals.size(), 5U);
    EXPECT_THAT(visuals[0].material->rgba, ElementsAre(1.0F, 0.0F, 0.0F, 1.0F));
    EXPECT_THAT(visuals[1].material->rgba, ElementsAre(0.0F, 1.0F, 0.0F, 1.0F));
    EXPECT_EQ(visuals[1].material, visuals[2].material);
    EXPECT_THAT(visuals[3].material->rgba, ElementsAre(0.0F, 0.0F, 1.0F, 0.5F)) << "what it says itself counts";
    EXPECT_EQ(visuals[4].material->texture, "t.png");
    EXPECT_FALSE(visuals[4].material->hasColor);
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
          Case{shape(""), "incomplete-shape", 2, 0}, Case{withRoot("\n<visual/>"), "incomplete-shape", 2, 0},
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
    std::string const odd = ModelUtils::diagnose(shape("<plane normal=\"0 0 1\"/>")).at(0).code;
    EXPECT_EQ(odd, "incomplete-shape");
}

/// What an XML library finds in the text, as words.
std::string statedOf(pugi::xml_node link)
{
    std::ostringstream words;
    for (char const* const kind : {"visual", "collision"}) {
        for (pugi::xml_node const shape : link.children(kind)) {
            pugi::xml_node solid = shape.child("geometry").first_child();
            while (solid.type() != pugi::node_element) {
                solid = solid.next_sibling();
            }
            words << kind << " " << shape.attribute("name").value() << " " << solid.name();
            std::istringstream numbers(std::string(shape.child("origin").attribute("xyz").as_string("0 0 0")) + " " +
                                       shape.child("origin").attribute("rpy").as_string("0 0 0") + " " +
                                       solid.attribute("size").value() + " " + solid.attribute("radius").value() + " " +
                                       solid.attribute("length").value() + " " + solid.attribute("scale").value());
            words << " " << solid.attribute("filename").value();
            for (float number = 0.0F; numbers >> number;) {
                words << " " << number + 0.0F;  // -0 is as good as 0
            }
            words << "\n";
        }
    }
    return words.str();
}

void tell(std::ostream& words, char const* kind, ShapeConfig const& shape, bool statesScale)
{
    static char const* const solids[] = {"mesh", "box", "cylinder", "sphere", "capsule"};
    Geometry const& solid = shape.geometry;
    words << kind << " " << shape.name << " " << solids[static_cast<int>(solid.type)] << " " << solid.uri;
    auto const add = [&](Position3D const& vector) {
        words << " " << vector.x + 0.0F << " " << vector.y + 0.0F << " " << vector.z + 0.0F;
    };
    add(shape.position);
    add(shape.orientation);
    switch (solid.type) {
    case GeometryType::box: add(solid.size); break;
    case GeometryType::sphere: words << " " << solid.radius; break;
    case GeometryType::mesh:
        if (statesScale) {
            add(solid.scale);
        }
        break;
    default: words << " " << solid.radius << " " << solid.length;
    }
    words << "\n";
}

std::string recordedOf(JointConfig const& body, pugi::xml_node link)
{
    std::ostringstream words;
    BodyShapes shapes = body.shapes;
    if (shapes.visuals.empty() && !body.meshName.empty()) {
        shapes.visuals.emplace_back().geometry.uri = body.meshName;
    }
    auto const scaled = [](pugi::xml_node shape) { return shape.child("geometry").child("mesh").attribute("scale"); };
    pugi::xml_node node = link.child("visual");
    for (VisualConfig const& shape : shapes.visuals) {
        tell(words, "visual", shape, scaled(node));
        node = node.next_sibling("visual");
    }
    node = link.child("collision");
    for (CollisionConfig const& shape : shapes.collisions) {
        tell(words, "collision", shape, scaled(node));
        node = node.next_sibling("collision");
    }
    return words.str();
}

TEST(UrdfShapes, OfRealRobotsAreAllThere)
{
    auto const files = Tests::filesIn(Tests::realRobotsFolder(), ".urdf");
    if (files.empty()) {
        GTEST_SKIP() << "no robots in " << Tests::realRobotsFolder();
    }
    for (std::string const& file : files) {
        SCOPED_TRACE(file);
        std::string const text = readFile(file);
        pugi::xml_document document;
        ASSERT_TRUE(document.load_string(text.c_str()));
        Tables const tables = tablesOf(text);
        std::map<std::string, JointConfig const*> bodies = {{tables.root.linkName, &tables.root}};
        for (auto const& [name, joint] : tables.joints) {
            bodies[joint.linkName] = &joint;
        }
        for (pugi::xml_node const link : document.child("robot").children("link")) {
            JointConfig const& body = *bodies.at(link.attribute("name").value());
            EXPECT_EQ(recordedOf(body, link), statedOf(link)) << body.linkName;
        }
    }
}

}  // namespace
