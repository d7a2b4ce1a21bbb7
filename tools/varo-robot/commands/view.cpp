#include <filesystem>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/findings.hpp"
#include "support/meshes.hpp"
#include "support/moved_robot.hpp"
#include "support/output_file.hpp"
#include "support/progress.hpp"
#include "support/visible_text.hpp"
#include "view/embedding.hpp"
#include "view/page.hpp"
#include "view/shape_uris.hpp"
#include "view/view_json.hpp"

namespace Tool {

namespace {

namespace fs = std::filesystem;
using Varo::Model::Severity;

namespace codes {
constexpr char viewerMissing[] = "viewer-missing";
constexpr char meshNotShown[] = "mesh-not-shown";
}  // namespace codes

constexpr std::size_t megabyte = 1'000'000;

struct Options {
    std::string file;
    std::string page;
    MotionOptions motion;
    Varo::Model::MeshFolders meshFolders;
    std::size_t meshLimit = 64;  ///< MB
    bool allowOutside = false;
    bool open = false;
};

/// Named after the description, in the folder where the command runs.
std::string pageFor(std::string const& file)
{
    return file == "-" ? "robot.html" : fs::path(file).stem().string() + ".html";
}

/// What is read of each of the URIs. Says on standard error what the page will not show.
template <class Read>
Json embedded(std::set<std::string> const& uris, std::string const& file, Read const& read)
{
    Members data;
    Varo::Model::Findings findings;
    auto progress = std::make_unique<Progress>("Reading meshes and images");
    for (std::string const& uri : uris) {
        Json entry = read(uri);
        if (entry.contains("reason")) {
            std::string const reason = entry["reason"].template get<std::string>();
            findings.push_back(
                fileFinding(Severity::warning, codes::meshNotShown, "\"" + uri + "\" is not shown. " + reason));
        }
        data.set(uri, std::move(entry));
    }
    progress.reset();  // before anything else is printed
    printFindings(std::cerr, file, findings);
    return data.take();
}

std::string jsonOf(Robot const& robot, Options const& options)
{
    MovedRobot const moved(robot.model, options.motion, robot.file);
    ShapeUris const uris = shapeUrisOf(robot.model);
    Varo::Model::MeshFolders const folders = besideFile(options.meshFolders, options.file);
    Varo::Model::MeshSearch const search(folders);
    EmbeddingRules rules = {{folders.description}, options.allowOutside, options.meshLimit * megabyte};
    for (auto const& [name, folder] : options.meshFolders.packages) {
        rules.folders.emplace_back(folder);
    }
    std::vector<std::string> all(uris.meshes.begin(), uris.meshes.end());
    all.insert(all.end(), uris.textures.begin(), uris.textures.end());
    Embedding embedding([&](std::string const& uri) { return search.find(uri); }, std::move(rules), all);
    ViewContents contents = {
        fs::path(robot.file).filename().string(),
        robot.model,
        moved.kinematics(),
        options.motion.degrees,
        moved.configuration(),
        findingsOf(robot.model),
        embedded(uris.meshes, robot.file, [&](std::string const& uri) { return embedding.mesh(uri); }),
        embedded(uris.textures, robot.file, [&](std::string const& uri) { return embedding.image(uri); }),
    };
    return viewJson(contents);
}

/// Shows the page in the browser that the desktop opens pages with.
int openInBrowser(std::string const& page)
{
    std::cout.flush();
    std::string const path = std::filesystem::absolute(page);  // never an option, whatever the page is called
    ::execlp("xdg-open", "xdg-open", path.c_str(), static_cast<char*>(nullptr));
    std::cerr << "varo-robot: error: xdg-open, which opens pages in a browser, is not there.\n";
    return exitStatus::bad;
}

int view(Options const& options)
{
    if (viewerPage().empty()) {
        throw Refused("view",
                      {fileFinding(Severity::error, codes::viewerMissing, "This varo-robot was built without the page.",
                                   "Install npm (on Debian, the packages nodejs and npm) and build it again, "
                                   "or take a package of varorobotmodel, which has it.")});
    }
    Robot const robot = loadRobot(options.file);
    std::string const page = options.page.empty() ? pageFor(options.file) : options.page;
    writeFile(page, pageOf(viewerPage(), jsonOf(robot, options)), Existing::isReplaced);
    std::cout << visible(page) << '\n';
    return options.open ? openInBrowser(page) : exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    app.add_option("-o,--output", options->page, "Page to write; otherwise the description's name, ending in .html")
        ->type_name("PAGE");
    app.add_flag("--open", options->open, "Show the page in the browser");
    declareMotion(app, options->motion);
    declareMeshFolders(app, options->meshFolders);
    app.add_option("--mesh-limit", options->meshLimit, "How much meshes and images may take in all")
        ->type_name("MB")
        ->check(CLI::Range(std::size_t{0}, std::size_t{100'000}))
        ->capture_default_str();
    app.add_flag("--allow-outside", options->allowOutside,
                 "Take meshes from outside the folder of the description and its packages, too");
    return [options] { return view(*options); };
}

}  // namespace

Command const viewCommand = {"view", "Write a page that shows the robot in 3D",
                             R"(Writes one HTML file that any browser opens, offline: the robot in 3D with its
kinematic tree, a slider for each value that moves it, its postures, sensors,
masses and symmetries, and what `check` finds. It needs no other file and asks
nothing of the network, so that it can be mailed. docs/viewing.md says what
there is on it.

The page carries the meshes (STL, OBJ, COLLADA) and images (PNG, JPEG) that the
description names (docs/meshes.md), if they are in its folder or in a package; a
warning says which it does not carry, and simple shapes stand for them. A page
of that name is replaced.

Examples:
  varo-robot view robots/humanoid.xml
  varo-robot view --posture Crouch -o crouch.html --open robots/humanoid.xml)",
                             declare};

}  // namespace Tool
