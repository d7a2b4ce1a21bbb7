#include "support/meshes.hpp"

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include <CLI/CLI.hpp>

#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"

namespace Tool {

namespace {

using namespace Varo::Model;

constexpr FindingCode meshNotFound{codes::meshNotFound, Severity::warning, {}};

/// More places than this are counted only.
constexpr std::size_t maximumPlaces = 6;

/// A mesh that a body shows or collides with.
struct MeshUse {
    std::string uri;
    TextOffset offset;  ///< of the shape or, where the record alone names it, of the body
};

TextOffset offsetOfBody(JointConfig const& joint)
{
    return joint.bodyOffset.isKnown() ? joint.bodyOffset : joint.textOffset;
}

template <class Record>
TextOffset offsetOfBody(Record const& record)
{
    return record.textOffset;
}

/// Each URI once.
template <class Record>
std::vector<MeshUse> meshesOf(Record const& record)
{
    std::vector<MeshUse> uses;
    std::set<std::string> known;
    auto const add = [&](std::string const& uri, TextOffset offset) {
        if (!uri.empty() && known.insert(uri).second) {
            uses.push_back({uri, offset});
        }
    };
    auto const addShapes = [&](auto const& shapes) {
        for (ShapeConfig const& shape : shapes) {
            if (shape.geometry.type == GeometryType::mesh) {
                add(shape.geometry.uri, shape.textOffset.isKnown() ? shape.textOffset : offsetOfBody(record));
            }
        }
    };
    addShapes(record.shapes.visuals);
    addShapes(record.shapes.collisions);
    add(record.meshName, offsetOfBody(record));
    return uses;
}

template <class Visit>
void forEachMesh(Robot const& robot, Visit const& visit)
{
    auto const records = recordsOf(robot);
    auto const visitRecord = [&](auto const& record) {
        for (MeshUse const& use : meshesOf(record)) {
            visit(use);
        }
    };
    auto const visitTable = [&](auto const& table) {
        for (auto const& record : table) {
            visitRecord(record);
        }
    };
    visitRecord(records->root);
    visitTable(records->joints);
    visitTable(records->subActuators);
    visitTable(records->wheels);
}

/// Looks for each URI once.
class RememberingSearch {
public:
    explicit RememberingSearch(MeshFolders const& folders) : _search(folders) {}

    MeshFile const& find(std::string const& uri)
    {
        auto const known = _files.find(uri);
        return known != _files.end() ? known->second : _files.emplace(uri, _search.find(uri)).first->second;
    }

    std::map<std::string, MeshFile> const& files() const { return _files; }

private:
    MeshSearch _search;
    std::map<std::string, MeshFile> _files;
};

/// What was looked for anywhere has been found fit to print, and its last part tells most.
std::string shownUri(std::string const& uri, MeshFile const& file)
{
    return file.lookedFor.empty() ? Varo::Model::quoted(uri) : '"' + uri + '"';
}

std::string hintFor(MeshFile const& file)
{
    std::string hint = file.reason;
    std::size_t const shown = std::min(file.lookedFor.size(), maximumPlaces);
    for (std::size_t i = 0; i < shown; ++i) {
        hint += (i == 0 ? " Looked for: " : ", ") + file.lookedFor[i];
    }
    if (file.lookedFor.size() > shown) {
        hint += " and " + std::to_string(file.lookedFor.size() - shown) + " more";
    }
    return hint;
}

void addPackage(std::string const& text, MeshFolders& folders)
{
    std::size_t const equals = text.find('=');
    if (equals == text.npos || equals == 0 || equals + 1 == text.size()) {
        throw CLI::ValidationError("A package is stated as NAME=FOLDER, not as " + text);
    }
    folders.packages[text.substr(0, equals)] = text.substr(equals + 1);
}

}  // namespace

std::vector<CLI::Option*> declareMeshFolders(CLI::App& app, MeshFolders& folders)
{
    folders = meshFoldersFromEnvironment();
    auto const readPackages = [&folders](std::vector<std::string> const& texts) {
        for (std::string const& text : texts) {
            addPackage(text, folders);
        }
    };
    auto const readPath = [&folders](std::vector<std::string> const& texts) {
        folders.packagePath.insert(folders.packagePath.begin(), texts.begin(), texts.end());
    };
    using Texts = std::vector<std::string>;
    return {
        app.add_option_function<Texts>("--package", readPackages, "Folder of a package of meshes; may be repeated")
            ->type_name("NAME=FOLDER")
            ->allow_extra_args(false)
            ->take_all(),
        app.add_option_function<Texts>("--package-path", readPath, "Folder with packages below it; may be repeated")
            ->type_name("FOLDER")
            ->allow_extra_args(false)
            ->take_all(),
    };
}

MeshFolders besideFile(MeshFolders folders, std::string const& file)
{
    std::filesystem::path const folder = file == "-" ? "" : std::filesystem::path(file).parent_path();
    folders.description = folder.empty() ? "." : folder.string();
    return folders;
}

Findings missingMeshes(Robot const& robot, MeshFolders const& folders)
{
    Diagnostics diagnostics(robot.source());
    RememberingSearch search(folders);
    forEachMesh(robot, [&](MeshUse const& use) {
        MeshFile const& file = search.find(use.uri);
        if (file.path.empty() && !diagnostics.countIfFull(meshNotFound)) {
            diagnostics.report(use.offset, meshNotFound, "The mesh " + shownUri(use.uri, file) + " is not found.",
                               hintFor(file));
        }
    });
    return diagnostics.findings();
}

MeshCount countMeshes(Robot const& robot, MeshFolders const& folders)
{
    RememberingSearch search(folders);
    forEachMesh(robot, [&](MeshUse const& use) { search.find(use.uri); });
    MeshCount count;
    for (auto const& [uri, file] : search.files()) {
        ++(file.path.empty() ? count.notFound : count.found);
    }
    return count;
}

}  // namespace Tool
