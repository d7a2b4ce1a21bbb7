#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

using testing::HasSubstr;

constexpr char arm[] = R"(<robot name="arm">
  <link name="base">
    <visual><geometry><mesh filename="package://arm_meshes/base.stl"/></geometry></visual>
    <collision><geometry><mesh filename="package://arm_meshes/base.stl"/></geometry></collision>
  </link>
  <link name="hand">
    <visual><geometry><mesh filename="hand.stl"/></geometry></visual>
  </link>
  <joint name="wrist" type="revolute">
    <parent link="base"/><child link="hand"/><limit lower="-1" upper="1" effort="1" velocity="1"/>
  </joint>
</robot>
)";

class Meshes : public ToolFixture {
protected:
    /// How many are found and how many not.
    using Counts = std::pair<int, int>;

    static Counts countsOf(Outcome const& info)
    {
        nlohmann::json const meshes = nlohmann::json::parse(info.out).at("meshes");
        return {meshes.at("found"), meshes.at("notFound")};
    }

    void SetUp() override
    {
        std::filesystem::create_directories(folder() / "urdf/inner");
        write("urdf/arm.urdf", arm);
    }
};

TEST_F(Meshes, ThatAreNotFoundAreWarnedOfOnceForEachBody)
{
    Outcome const outcome = run({"check", "--meshes", "urdf/arm.urdf"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "urdf/arm.urdf: 2 warnings\n");
    EXPECT_THAT(outcome.err, HasSubstr("warning: The mesh \"package://arm_meshes/base.stl\" is not found. "
                                       "[mesh-not-found]\n    There is no package \"arm_meshes\". Looked for: " +
                                       (folder() / "urdf").string() + " and the folders above it\n"));
    EXPECT_THAT(outcome.err, HasSubstr("warning: The mesh \"hand.stl\" is not found. [mesh-not-found]\n"
                                       "    There is no such file. Looked for: urdf/hand.stl\n"));
    EXPECT_EQ(run({"check", "urdf/arm.urdf"}).out, "urdf/arm.urdf: fine\n") << "nobody asked for meshes";
    EXPECT_EQ(run({"check", "--meshes", "--strict", "--silence", "mesh-not-found", "urdf/arm.urdf"}).status, 0);
}

TEST_F(Meshes, AreFoundInPackagesOfOptionsAndOfTheEnvironment)
{
    write("urdf/hand.stl", "");
    std::filesystem::create_directories(folder() / "made/arm_meshes");
    write("made/arm_meshes/base.stl", "");
    Counts const all = {2, 0};
    EXPECT_EQ(countsOf(run({"info", "--json", "urdf/arm.urdf", "--package", "arm_meshes=made/arm_meshes"})), all);
    EXPECT_EQ(countsOf(run({"info", "--json", "urdf/arm.urdf", "--package-path", "nowhere", "--package-path", "made"})),
              all);
    EXPECT_EQ(countsOf(run({"info", "--json", "urdf/arm.urdf"}, {}, "ROS_PACKAGE_PATH=made")), all);
    EXPECT_THAT(run({"info", "urdf/arm.urdf"}).out, HasSubstr("meshes        2, of them not found 1\n"));
    EXPECT_THAT(run({"check", "--meshes", "--package-path", "made", "-"}, arm).err, HasSubstr("Looked for: hand.stl\n"))
        << "which came by standard input, so that the working folder counts";
}

TEST_F(Meshes, OfTheExampleRobotsInUrdfAreThere)
{
    for (std::string const& file : Tests::filesIn(VARO_SOURCE_DIR "/robots", ".urdf")) {
        EXPECT_EQ(countsOf(run({"info", "--json", file})), Counts(1, 0)) << file;
    }
}

}  // namespace

}  // namespace ToolTest
