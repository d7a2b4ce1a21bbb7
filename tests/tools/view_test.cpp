#include <algorithm>
#include <filesystem>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "run_tool.hpp"
#include "texts.hpp"

namespace ToolTest {

namespace {

constexpr char triangle[] =
    "solid s\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\nendloop\nendfacet\nendsolid "
    "s\n";

/// What the page does in a browser, the tests in web/viewer see to.
class View : public ToolFixture {
protected:
    void SetUp() override
    {
        write("any.xml", legs);
        if (run({"view", "any.xml"}).err.find("[viewer-missing]") != std::string::npos) {
            GTEST_SKIP() << "The tool was built without the page.";
        }
    }

    /// The data of the page that is written of the description.
    nlohmann::json dataOf(std::string const& description, std::vector<std::string> options = {}) const
    {
        options.insert(options.begin(), {"view", description, "-o", "page.html"});
        Outcome const outcome = run(options);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        std::string const page = readFile(folder() / "page.html");
        std::string const begin = "id=\"robot\">";
        std::size_t const at = page.find(begin) + begin.size();
        return nlohmann::json::parse(page.substr(at, page.find('<', at) - at));
    }

    /// Whether the page of a robot with that mesh carries it.
    bool carries(std::string const& mesh, std::vector<std::string> const& options = {}) const
    {
        write("robot/robot.urdf", "<robot name=\"r\"><link name=\"l\"><visual><geometry><mesh filename=\"" + mesh +
                                      "\"/></geometry></visual></link></robot>");
        return dataOf("robot/robot.urdf", options)["meshes"][mesh].contains("data");
    }
};

TEST_F(View, GivesThePageWhatMovesTheRobot)
{
    nlohmann::json const data = dataOf(VARO_SOURCE_DIR "/robots/humanoid.xml", {"--posture", "Crouch", "--degrees"});
    EXPECT_EQ(data["drives"].size(), data["dump"]["joints"].size());
    EXPECT_EQ(data["degrees"], true);
    auto const named = [](char const* name) {
        return [name](nlohmann::json const& each) { return each["name"] == name; };
    };
    auto const& variables = data["variables"];
    auto const& joints = data["dump"]["joints"];
    auto const hand = std::find_if(variables.begin(), variables.end(), named("LHand")) - variables.begin();
    auto const thumb = std::find_if(joints.begin(), joints.end(), named("LThumb1")) - joints.begin();
    EXPECT_EQ(data["drives"][static_cast<std::size_t>(thumb)],
              nlohmann::json({{"motion", "turns"}, {"variable", hand}, {"ratio", 0.9}, {"offset", 0.1}}));
    EXPECT_EQ(data["start"], data["postures"][1]["values"]);
}

TEST_F(View, LeadsFromFindingsToLinks)
{
    std::string text = legs;
    text.insert(text.find("<chain"), "<joint name=\"Odd\" min=\"1\" max=\"0\"><placement xyz=\"0 0 1\"/></joint>");
    write("odd.xml", text);
    nlohmann::json const data = dataOf("odd.xml");
    auto const codes = Tests::textsOf(data["findings"], [](auto const& finding) { return finding["code"]; });
    EXPECT_THAT(codes, testing::Contains("reversed-limits"));
}

TEST_F(View, CarriesMeshesOfTheFolderAndOfPackagesOnly)
{
    for (char const* const name : {"robot/meshes", "arms", "box"}) {
        std::filesystem::create_directories(folder() / name);
    }
    write("robot/meshes/in.stl", triangle);
    write("out.stl", triangle);
    write("arms/a.stl", triangle);
    write("box/package.xml", "<package><name>box</name></package>");
    write("box/b.stl", triangle);
    std::filesystem::create_symlink(folder() / "out.stl", folder() / "robot/meshes/link.stl");
    std::string const out = (folder() / "out.stl").string();
    EXPECT_TRUE(carries("meshes/in.stl") && carries("meshes/../meshes/in.stl"));
    EXPECT_TRUE(carries("package://box/b.stl"));
    EXPECT_TRUE(carries("package://stated/a.stl", {"--package", "stated=arms"}));
    for (std::string const& uri :
         {std::string("../out.stl"), out, "file://" + out, std::string("meshes/link.stl"),
          std::string("package://arms/a.stl"), std::string("package://box/../out.stl"),
          std::string("meshes/../../out.stl"), std::string("meshes"), std::string("/etc/passwd")}) {
        EXPECT_FALSE(carries(uri)) << uri;
    }
    EXPECT_TRUE(carries("../out.stl", {"--allow-outside"}));
    EXPECT_FALSE(carries("meshes/in.stl", {"--mesh-limit", "0"}));
}

TEST_F(View, CarriesNothingButMeshes)
{
    std::filesystem::create_directories(folder() / "robot");
    std::string binary(84 + 50, '\0');
    binary[80] = 1;
    struct Case {
        std::string bytes;
        bool isMesh;
    };
    std::string const cut = binary.substr(0, 100);
    std::string notFinite = binary;
    notFinite.replace(84 + 12, 4, "\xFF\xFF\xFF\x7F");
    for (auto const& [bytes, isMesh] : std::vector<Case>{
             {triangle, true},
             {binary, true},
             {cut, false},
             {notFinite, false},
             {"", false},
             {"solid\n", false},
             {std::string(triangle) + "password=1\n", false},
             {"# made by hand\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n", true},
             {"v 0 0 nan\nf 1 1 1\n", false},
             {"v 0 0 0\nf 1 1 1\nroot:x:0:0\n", false},
             {"<COLLADA><library_geometries><geometry/></library_geometries></COLLADA>", true},
             {"<COLLADA><library_geometries>", false},
             {"<html/>", false},
         }) {
        write("robot/m.stl", bytes);
        EXPECT_EQ(carries("m.stl"), isMesh) << bytes;
    }
    EXPECT_FALSE(carries("/dev/zero", {"--allow-outside"}));
}

TEST_F(View, RefusesWhatItCannotDo)
{
    EXPECT_NE(run({"view", "--help"}).out.find("Examples:"), std::string::npos);
    EXPECT_EQ(run({"view", "any.xml", "--posture", "Nowhere"}).status, 1);
    EXPECT_EQ(run({"view", "any.xml", "-o", "none/page.html"}).status, 1);
}

TEST_F(View, OpensThePageInTheBrowserOfTheDesktop)
{
    write("xdg-open", "#!/bin/sh\necho \"$#:$1\" > opened\n");
    std::filesystem::permissions(folder() / "xdg-open", std::filesystem::perms::owner_all);
    EXPECT_EQ(run({"view", "any.xml", "-o", "any.html", "--open"}, {}, "PATH=.:$PATH").status, 0);
    EXPECT_EQ(readFile(folder() / "opened"),
              "1:" + (std::filesystem::canonical(folder()) / "any.html").string() + "\n");

    Outcome const without = run({"view", "any.xml", "-o", "any.html", "--open"}, {}, "PATH=nowhere");
    EXPECT_EQ(without.status, 1);
    EXPECT_NE(without.err.find("xdg-open"), std::string::npos) << without.err;
}

}  // namespace

}  // namespace ToolTest
