#include "varo/model/mesh_search.hpp"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <sys/stat.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;
using Varo::Model::MeshFile;
using Varo::Model::MeshFolders;
using Varo::Model::MeshSearch;

/// Files in a folder of its own, which goes with the test. The description stands in "work/arm_description/urdf".
class MeshSearchTest : public testing::Test {
protected:
    MeshSearchTest()
    {
        std::string name = (fs::temp_directory_path() / "varo-meshes-XXXXXX").string();
        folder = mkdtemp(name.data());
        folders.description = at("work/arm_description/urdf");
        fs::create_directories(folders.description);
    }
    ~MeshSearchTest() override { fs::remove_all(folder); }

    std::string at(std::string const& path) const { return (folder / path).string(); }

    void write(std::string const& path, std::string const& text = {}) const
    {
        fs::create_directories((folder / path).parent_path());
        std::ofstream(folder / path) << text;
    }
    void writePackage(std::string const& path, std::string const& name) const
    {
        write(path + "/package.xml", "<package format=\"3\"><name> " + name + "\n</name><depend>x</depend></package>");
    }

    /// The path found, relative to the folder; else the reason.
    std::string find(std::string const& uri) const
    {
        MeshFile const file = MeshSearch(folders).find(uri);
        EXPECT_NE(file.path.empty(), file.reason.empty()) << uri;
        return file.path.empty() ? file.reason : fs::path(file.path).lexically_relative(folder).string();
    }

    fs::path folder;
    MeshFolders folders;
};

TEST_F(MeshSearchTest, TakesPathsFromTheFolderOfTheDescription)
{
    write("work/arm_description/urdf/base.stl");
    write("work/arm_description/meshes/link 1%.stl");
    std::string const base = "work/arm_description/urdf/base.stl";
    EXPECT_EQ(find("base.stl"), base);
    EXPECT_EQ(find("./../meshes/link%201%.stl"), "work/arm_description/meshes/link 1%.stl");
    for (std::string const prefix : {"", "file:", "FILE://", "file://localhost"}) {
        EXPECT_EQ(find(prefix + at(base)), base) << prefix;
    }
    EXPECT_EQ(find("../urdf"), "There is no such file.") << "a folder is no mesh";
    EXPECT_THAT(MeshSearch(folders).find("../x.stl").lookedFor, ElementsAre(at("work/arm_description/x.stl")));
}

TEST_F(MeshSearchTest, FindsPackagesAroundTheDescription)
{
    write("work/arm_description/meshes/a.stl");
    write("work/arm_description/urdf/parts/b.stl");
    write("work/gripper_description/c.stl");
    EXPECT_EQ(find("package://arm_description/meshes/a.stl"), "work/arm_description/meshes/a.stl");
    EXPECT_EQ(find("package://parts/b.stl"), "work/arm_description/urdf/parts/b.stl");
    EXPECT_EQ(find("model://gripper_description/c.stl"), "work/gripper_description/c.stl");
    EXPECT_EQ(find("package://arm/meshes/a.stl"), "There is no package \"arm\".");
    writePackage("work/arm_description", "arm");
    EXPECT_EQ(find("package://arm/meshes/../meshes/a.stl"), "work/arm_description/meshes/a.stl");
    EXPECT_THAT(MeshSearch(folders).find("package://arm/b.stl").lookedFor,
                ElementsAre(at("work/arm_description/b.stl")));
}

TEST_F(MeshSearchTest, FindsPackagesOnPathsAndByName)
{
    writePackage("src/group/repository", "arm");
    write("src/group/repository/a.stl");
    write("src/group/repository/inner/a.stl");
    write("opt/share/arm/a.stl");
    write("opt/share/arm/b.stl");
    write("here/b.stl");
    folders.packagePath = {at("nowhere"), at("src")};
    folders.prefixes = {at("opt")};
    EXPECT_EQ(find("package://arm/a.stl"), "src/group/repository/a.stl") << "the path comes before the prefixes";
    EXPECT_EQ(find("package://repository/a.stl"), "src/group/repository/a.stl");
    EXPECT_EQ(find("package://arm/b.stl"), "opt/share/arm/b.stl") << "the first folder that has it";
    EXPECT_THAT(find("package://inner/a.stl"), HasSubstr("no package")) << "which stands inside of another";
    EXPECT_THAT(MeshSearch(folders).find("package://leg/a.stl").lookedFor,
                ElementsAre(at("work/arm_description/urdf") + " and the folders above it", at("nowhere"), at("src"),
                            at("opt/share")));
    folders.packages = {{"arm", at("here")}};
    EXPECT_EQ(find("package://arm/b.stl"), "here/b.stl");
    EXPECT_EQ(find("package://arm/a.stl"), "There is no such file.") << "what the caller states is all that counts";
}

TEST_F(MeshSearchTest, RefusesWhatIsNoFileOfThisMachine)
{
    write("work/arm_description/a.stl");
    write("work/secret");
    for (auto const& [uri, reason] : std::vector<std::pair<std::string, std::string>>{
             {"", "It is empty."},
             {"https://example.org/a.stl", "Only files of this machine"},
             {"file://server/a.stl", "It names another machine"},
             {"file://localhost.example.org/a.stl", "It names another machine"},
             {"package://arm_description", "It does not name"},
             {"package:///a.stl", "It does not name"},
             {"package://../a.stl", "It does not name"},
             {"package://arm_description/../secret", "It leads out"},
             {"package://arm_description/x/%2e%2e/..%2Fsecret", "It leads out"},
             {"a%00.stl", "It holds"},
             {"a%1b[2J.stl", "It holds"},
             {"a%FF.stl", "It holds"},
             {std::string(1'000'000, 'a'), "It is longer"},
             {std::string(1000, 'a'), "There is no such file."},
         }) {
        EXPECT_THAT(find(uri), StartsWith(reason)) << uri.substr(0, 50);
    }
    folders.description.clear();
    EXPECT_THAT(find("a.stl"), StartsWith("It is relative"));
}

TEST_F(MeshSearchTest, EndsWhateverTheFoldersHold)
{
    fs::create_directories(at("src/loops"));
    for (int i = 0; i < 12; ++i) {
        fs::create_directory_symlink(at("src"), at("src/loops/" + std::to_string(i)));
    }
    fs::create_symlink("self", at("src/self"));
    fs::create_directories(at("src/pipe"));
    ASSERT_EQ(mkfifo(at("src/pipe/package.xml").c_str(), 0600), 0);
    std::string const filler(2'000'000, ' ');
    write("src/long/package.xml", "<package>" + filler + "<name>arm</name></package>");
    write("src/long/a.stl");
    std::string nested;
    for (int i = 0; i < 100'000; ++i) {
        nested += "<package>";
    }
    write("src/nested/package.xml", nested);
    write("src/1/2/3/4/5/6/7/far/a.stl");
    write("src/1/2/3/4/5/6/7/8/farther/a.stl");
    folders.packagePath = {at("src"), at("src/loops/0"), "", "."};
    EXPECT_THAT(find("package://arm/a.stl"), HasSubstr("no package"));
    EXPECT_EQ(find("package://long/a.stl"), "src/long/a.stl");
    EXPECT_EQ(find("package://far/a.stl"), "src/1/2/3/4/5/6/7/far/a.stl");
    EXPECT_THAT(find("package://farther/a.stl"), HasSubstr("no package"));
}

TEST_F(MeshSearchTest, TakesFoldersFromTheEnvironment)
{
    setenv("ROS_PACKAGE_PATH", ":/a::/b", 1);
    setenv("AMENT_PREFIX_PATH", "/c", 1);
    MeshFolders const stated = Varo::Model::meshFoldersFromEnvironment();
    unsetenv("ROS_PACKAGE_PATH");
    unsetenv("AMENT_PREFIX_PATH");
    MeshFolders const none = Varo::Model::meshFoldersFromEnvironment();
    EXPECT_THAT(stated.packagePath, ElementsAre("/a", "/b"));
    EXPECT_THAT(stated.prefixes, ElementsAre("/c"));
    EXPECT_THAT(none.packagePath, IsEmpty());
    EXPECT_THAT(none.prefixes, IsEmpty());
}

}  // namespace
