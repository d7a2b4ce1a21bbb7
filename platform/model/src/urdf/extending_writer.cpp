#include "urdf/extending_writer.hpp"

#include <algorithm>
#include <cstddef>

namespace Varo::Model::Urdf {

namespace {

constexpr std::string_view referring = "gazebo";

bool isAttribute(ExtensionConfig const& extension)
{
    return !extension.text.empty() && extension.text.front() != '<';
}

std::string_view attributeName(std::string_view markup)
{
    return markup.substr(0, markup.find_first_of("= \t\r\n"));
}

std::string joined(std::string const& path, std::string const& step)
{
    return path.empty() ? step : path + "/" + step;
}

std::string stepOf(std::string_view name, std::size_t rank)
{
    return std::string(name) + (rank > 1 ? "[" + std::to_string(rank) + "]" : std::string());
}

}  // namespace

ExtendingWriter::ExtendingWriter(Records const& records, StatementsOf const& statements,
                                 std::vector<ExtensionConfig> const& extensions, ShortPoses& poses)
    : ElementWriter(records), _statements(statements), _poses(poses)
{
    for (ExtensionConfig const& extension : extensions) {
        _groups[{extension.owner, extension.ownerName}].push_back({&extension});
    }
    for (auto& [owner, group] : _groups) {
        std::stable_sort(group.begin(), group.end(),
                         [](Kept const& a, Kept const& b) { return a.extension->within < b.extension->within; });
    }
}

ExtendingWriter::Group* ExtendingWriter::groupOf(Owner const& owner)
{
    auto const found = _groups.find(owner);
    return found == _groups.end() ? nullptr : &found->second;
}

/// Of an element of the robot that may be an owner by itself: they stand in the order of their records.
ExtendingWriter::Group* ExtendingWriter::ownGroupOf(std::string_view element, std::size_t rank)
{
    if (element == "link") {
        std::string const& body = rank == 1 ? robot().root.name : robot().joints[rank - 2].name;
        return groupOf({ExtensionOwner::link, body});
    }
    return element == "joint" ? groupOf({ExtensionOwner::joint, robot().joints[rank - 1].name})
                              : groupOf({ExtensionOwner::sensor, robot().sensors[rank - 1].name});
}

void ExtendingWriter::openTag(std::string_view name)
{
    ElementWriter::openTag(name);
    Level level;
    if (_levels.empty()) {
        level.group = groupOf({ExtensionOwner::robot, {}});
    } else if (_levels.size() == 1 || _levels.back().group != nullptr) {
        Level& around = _levels.back();
        std::size_t const rank = ++around.ranks[std::string(name)];
        bool const isOwner = _levels.size() == 1 && (name == "link" || name == "joint" || name == "sensor");
        level.group = isOwner ? ownGroupOf(name, rank) : around.group;
        level.path = isOwner ? std::string() : joined(around.path, stepOf(name, rank));
        if (_levels.size() == 1 && name == referring) {
            level.group = _referenced;
            level.path = name;
        }
    }
    _levels.push_back(std::move(level));
}

void ExtendingWriter::writeAttribute(std::string_view name, std::string_view value)
{
    if (_levels.back().group != nullptr) {
        _levels.back().attributes.emplace(name);
    }
    ElementWriter::writeAttribute(name, value);
}

void ExtendingWriter::endAttributes()
{
    Level& level = _levels.back();
    if (_levels.size() == 1) {
        _attributesEnd = text().size();
    }
    auto const [first, last] = inside(level);
    for (std::size_t i = first; i < last; ++i) {
        Kept& kept = (*level.group)[i];
        if (isAttribute(*kept.extension)) {
            kept.isWritten = true;
            appendAttributeOnce(kept.extension->text);
        }
    }
}

/// No attribute stands twice in one element.
void ExtendingWriter::appendAttributeOnce(std::string_view markup)
{
    if (!markup.empty() && _levels.back().attributes.emplace(attributeName(markup)).second) {
        appendAttribute(markup);
    }
}

void ExtendingWriter::closeTag(std::string_view name)
{
    if (_levels.size() == 1) {
        writeSensors();
        writeReferences();
    }
    std::size_t const level = _levels.size() - 1;
    writeElements(level);
    writeMissingParts(level);
    if (level == 0) {
        _linesEnd = text().size();  // behind the element of a link, which every robot has
    }
    _levels.pop_back();
    ElementWriter::closeTag(name);
}

/// Those of the owner that stand in the very element.
std::pair<std::size_t, std::size_t> ExtendingWriter::inside(Level const& level) const
{
    if (level.group == nullptr) {
        return {0, 0};
    }
    Group const& group = *level.group;
    auto const first = std::lower_bound(group.begin(), group.end(), level.path, [](Kept const& kept, auto const& path) {
        return kept.extension->within < path;
    });
    auto const last = std::upper_bound(first, group.end(), level.path, [](auto const& path, Kept const& kept) {
        return path < kept.extension->within;
    });
    return {static_cast<std::size_t>(first - group.begin()), static_cast<std::size_t>(last - group.begin())};
}

void ExtendingWriter::writeElements(std::size_t depth)
{
    Level const& level = _levels[depth];
    auto const [first, last] = inside(level);
    for (std::size_t i = first; i < last; ++i) {
        Kept& kept = (*level.group)[i];
        if (!kept.isWritten) {
            kept.isWritten = true;
            appendElement(kept.extension->text);
        }
    }
}

/// What stands deeper, in elements that are not there.
void ExtendingWriter::writeMissingParts(std::size_t depth)
{
    Group* const group = _levels[depth].group;
    if (group == nullptr) {
        return;
    }
    std::string const path = _levels[depth].path;
    constexpr std::ptrdiff_t deepest = 30;
    std::string const prefix = path.empty() ? path : path + "/";
    auto kept = std::lower_bound(group->begin(), group->end(), prefix,
                                 [](Kept const& each, auto const& wanted) { return each.extension->within < wanted; });
    for (; kept != group->end() && kept->extension->within.compare(0, prefix.size(), prefix) == 0; ++kept) {
        std::string const& within = kept->extension->within;
        std::string const step = within.substr(prefix.size(), within.find('/', prefix.size()) - prefix.size());
        bool const isElsewhere = path.empty() && step == referring;
        bool const isTooDeep = std::count(within.begin(), within.end(), '/') > deepest;
        if (!kept->isWritten && !isElsewhere && !isTooDeep) {
            writeMissingPart(step);
        }
    }
}

/// With those of its name before it, which are empty: the text once had more of them than the records have.
void ExtendingWriter::writeMissingPart(std::string const& step)
{
    constexpr std::size_t mostAtOnce = 100;
    std::string const name = step.substr(0, step.find('['));
    std::size_t const first = _levels.back().ranks[name] + 1;
    std::size_t rank = first;
    while (rank < first + mostAtOnce && stepOf(name, rank) != step) {
        ++rank;
    }
    bool const isOfRobot = _levels.size() == 1 && (name == "link" || name == "joint" || name == "sensor");
    if (name.empty() || isOfRobot || rank == first + mostAtOnce) {
        return;
    }
    for (std::size_t i = first; i <= rank; ++i) {
        openTag(name);
        endAttributes();
        closeTag(name);
    }
}

/// The elements that refer to a link or joint, and one that refers to nothing.
void ExtendingWriter::writeReferences()
{
    for (auto& [owner, group] : _groups) {
        auto const isOfReference = [](Kept const& kept) {
            std::string const& within = kept.extension->within;
            return within == referring || within.compare(0, referring.size() + 1, std::string(referring) + "/") == 0;
        };
        if (owner.first != ExtensionOwner::sensor && std::any_of(group.begin(), group.end(), isOfReference)) {
            _referenced = &group;
            openTag(referring);
            if (owner.first != ExtensionOwner::robot) {
                bool const isLink = owner.first == ExtensionOwner::link;
                writeAttribute("reference", isLink ? _statements.linkOf(owner.second) : owner.second);
            }
            endAttributes();
            closeTag(referring);
        }
    }
}

void ExtendingWriter::writeSensors()
{
    for (SensorConfig const& sensor : robot().sensors) {
        auto const* const kept = groupOf({ExtensionOwner::sensor, sensor.name});
        std::vector<std::string_view> within;
        for (Kept const& each : kept == nullptr ? Group() : *kept) {
            within.push_back(each.extension->within);
        }
        writeTree(toStatement(sensor, _statements.linkOf(sensor.parent), _statements.shiftOfLink(sensor.parent), within,
                              _poses));
    }
}

void ExtendingWriter::writeTree(SensorStatement const& statement)
{
    openTag(statement.name);
    for (auto const& [name, value] : statement.attributes) {
        writeAttribute(name, value);
    }
    endAttributes();
    if (!statement.text.empty()) {
        writeText(statement.text);
    }
    for (SensorStatement const& part : statement.parts) {
        writeTree(part);
    }
    closeTag(statement.name);
}

}  // namespace Varo::Model::Urdf
