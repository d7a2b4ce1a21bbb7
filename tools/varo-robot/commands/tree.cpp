#include <algorithm>
#include <functional>
#include <iostream>
#include <memory>
#include <unordered_map>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "commands/commands.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "support/description.hpp"
#include "support/joint_words.hpp"
#include "support/json_parts.hpp"
#include "support/moved_robot.hpp"
#include "support/numbers.hpp"
#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Math::Transform;

struct Options {
    std::string file;
    bool pose = false;
    bool mass = false;
    bool json = false;
    bool wide = false;
    MotionOptions motion;
};

using LinkPoses = std::unordered_map<Sim::Link const*, Transform>;

/// With all joints at 0, as the model has it: also those that a hand at 0 holds at an offset.
LinkPoses zeroPoses(Sim::Model const& model)
{
    LinkPoses poses;
    for (Sim::Link const* const link : model.links()) {  // parents come first
        Sim::Joint const* const joint = link->parentJoint();
        Transform const inParent = link->frame()->localPosition();
        poses.emplace(link, joint == nullptr
                                ? inParent
                                : poses.at(joint->parentLink()) * joint->frame()->localPosition() * inParent);
    }
    return poses;
}

LinkPoses posesOf(Sim::Model const& model, MotionOptions const& motion, std::string const& file)
{
    if (!motion.isGiven()) {
        return zeroPoses(model);
    }
    LinkPoses poses;
    std::vector<Transform> const moved = MovedRobot(model, motion, file).linkPoses();
    for (Sim::Link const* const link : model.links()) {
        poses.emplace(link, moved[poses.size()]);
    }
    return poses;
}

/// The strokes that branches are drawn with.
struct Strokes {
    char const* fork;
    char const* end;
    char const* pass;
    char const* blank;
    char const* moves;
    char const* deeper;
};

constexpr Strokes drawn = {"├─ ", "└─ ", "│  ", "   ", " → ", "⋯ "};
constexpr Strokes typed = {"|- ", "`- ", "|  ", "   ", " -> ", "... "};

/// Levels further in are no longer indented: lines would grow as long as the tree is deep.
constexpr std::size_t deepestIndent = 40;
/// Columns of facts begin here at the latest, whatever the length of names.
constexpr std::size_t widestTree = 100;

struct Line {
    std::string text;
    std::size_t columns;  ///< that the text takes up
    std::string facts;
    std::string below;  ///< the strokes that pass by a line between this one and the next
};

/// Draws a model's tree line by line, depth first.
class TreePainter {
public:
    using Take = std::function<void(Line const&)>;

    TreePainter(Options const& options, JointWords const& words, LinkPoses const& poses)
        : _options(options),
          _words(words),
          _poses(poses),
          _strokes(isUtf8Locale() ? drawn : typed),
          _palette(STDOUT_FILENO)
    {}

    /// Hands over the lines one by one: all of them may take as much memory as the model.
    void paint(Sim::Link const& root, Take const& take);

private:
    struct Step {
        Sim::Joint const* joint;
        std::size_t depth;
        bool isLast;
    };

    void pushChildren(Sim::Link const& link, std::size_t depth);
    Line lineOf(Step const& step);
    std::string branchOf(Step const& step);
    std::string strokesOf(Step const& step) const;
    std::string labelOf(Sim::Link const& link, Palette const& palette) const;
    std::string labelOf(Sim::Joint const& joint, Palette const& palette) const;
    std::string factsOf(Sim::Link const& link) const;

    Options const& _options;
    JointWords const& _words;
    LinkPoses const& _poses;
    Strokes _strokes;
    Palette _palette;
    Palette _colourless = Palette(-1);
    std::vector<bool> _isLast;  // of the joints above the current one, by depth
    std::vector<Step> _steps;  // a stack of our own: trees may be deeper than that of calls
};

void TreePainter::paint(Sim::Link const& root, Take const& take)
{
    take({labelOf(root, _palette), columnsOf(labelOf(root, _colourless)), factsOf(root),
          root.childrenJoints().empty() ? _strokes.blank : _strokes.pass});
    pushChildren(root, 0);
    while (!_steps.empty()) {
        Step const step = _steps.back();
        _steps.pop_back();
        take(lineOf(step));
    }
}

void TreePainter::pushChildren(Sim::Link const& link, std::size_t depth)
{
    std::vector<Sim::Joint const*> const children = link.childrenJoints();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        _steps.push_back({*child, depth, child == children.rbegin()});
    }
}

/// That of the joint, with its link, whose joints come next.
Line TreePainter::lineOf(Step const& step)
{
    std::string const branch = branchOf(step);
    Line line = {branch + labelOf(*step.joint, _palette),
                 columnsOf(branch) + columnsOf(labelOf(*step.joint, _colourless)),
                 {},
                 strokesOf(step) + (step.isLast ? _strokes.blank : _strokes.pass)};
    if (Sim::Link const* const link = step.joint->childLink()) {
        line.facts = factsOf(*link);
        line.below += link->childrenJoints().empty() ? _strokes.blank : _strokes.pass;
        pushChildren(*link, step.depth + 1);
    }
    return line;
}

std::string TreePainter::branchOf(Step const& step)
{
    _isLast.resize(step.depth);
    std::string branch = strokesOf(step);
    _isLast.push_back(step.isLast);
    if (step.depth > deepestIndent) {
        branch += _strokes.deeper + std::to_string(step.depth) + " ";
    }
    return branch + (step.isLast ? _strokes.end : _strokes.fork);
}

/// Those of the levels above.
std::string TreePainter::strokesOf(Step const& step) const
{
    std::string strokes;
    for (std::size_t level = 0; level < std::min(step.depth, deepestIndent); ++level) {
        strokes += _isLast[level] ? _strokes.blank : _strokes.pass;
    }
    return strokes;
}

std::string TreePainter::labelOf(Sim::Link const& link, Palette const& palette) const
{
    std::string const label = palette.paint(Ink::link, "[" + visible(link.descriptionName()) + "]");
    return link.type() == Sim::Link::Wheel ? label + palette.paint(Ink::faint, " wheel") : label;
}

std::string TreePainter::labelOf(Sim::Joint const& joint, Palette const& palette) const
{
    std::string const word = _words.of(joint);
    std::string const name = palette.paint(Ink::joint, visible(joint.name())) +
                             (word == "actuated" ? "" : palette.paint(Ink::faint, " " + word));
    Sim::Link const* const link = joint.childLink();
    return link == nullptr ? name : name + _strokes.moves + labelOf(*link, palette);
}

std::string TreePainter::factsOf(Sim::Link const& link) const
{
    std::string facts;
    if (_options.mass && link.mass() != nullptr) {
        facts += shortest(link.mass()->mass()) + " kg";
    }
    if (_options.pose) {
        facts += facts.empty() && !_options.mass ? "" : std::string(facts.size() < 12 ? 12 - facts.size() : 1, ' ');
        facts += poseText(_poses.at(&link), _options.motion.degrees);
    }
    return facts;
}

/// Strokes and facts on one line; where both do not fit, the facts are worth more.
std::string factsBelow(std::string strokes, std::string const& facts, std::size_t width)
{
    while (!strokes.empty() && columnsOf(strokes) + columnsOf(facts) > width) {
        bool isWhole = false;
        while (!isWhole) {
            isWhole = columnsOf(strokes.substr(strokes.size() - 1)) == 1;
            strokes.pop_back();
        }
    }
    return shortened(strokes + facts, width);
}

/// Facts stand in columns of their own or, where those would not fit, below what they are about.
void printTree(TreePainter& painter, Sim::Link const& root, bool hasAnyFacts, std::size_t width)
{
    constexpr std::size_t gap = 2;
    std::size_t widest = 0;
    std::size_t widestFacts = 0;
    if (hasAnyFacts) {
        painter.paint(root, [&](Line const& line) {
            widest = std::max(widest, std::min(line.columns, widestTree));
            widestFacts = std::max(widestFacts, columnsOf(line.facts));
        });
    }
    bool const below = widest + gap + widestFacts > width;
    painter.paint(root, [&](Line const& line) {
        bool const hasFacts = !line.facts.empty();
        std::cout << shortened(line.text, width);
        if (hasFacts && below) {
            std::cout << '\n' << factsBelow(line.below, line.facts, width);
        } else if (hasFacts) {
            std::cout << std::string(line.columns < widest ? widest - line.columns + gap : gap, ' ') << line.facts;
        }
        std::cout << '\n';
    });
}

/// An array of the links, each with what leads to it.
void printForPrograms(Sim::Model const& model, LinkPoses const& poses)
{
    {
        JsonStream array(std::cout, '[');
        for (Sim::Link const* const link : model.links()) {
            Sim::Joint const* const joint = link->parentJoint();
            array.add(objectOf({
                {"link", link->name()},
                {"descriptionName", link->descriptionName()},
                {"urdfName", model.robot().dialect() == "urdf" ? Json(link->descriptionName()) : Json(nullptr)},
                {"joint", nameOrNull(joint)},
                {"parentLink", joint == nullptr ? Json(nullptr) : Json(joint->parentLink()->name())},
                {"type", link->type() == Sim::Link::Wheel ? "wheel" : "regular"},
                {"mass", link->mass() == nullptr ? Json(nullptr) : Json(link->mass()->mass())},
                {"pose", matrixOf(poses.at(link))},
            }));
        }
    }
    std::cout << '\n';
}

int tree(Options const& options)
{
    Robot const robot = loadRobot(options.file);
    Sim::Model const& model = robot.model;
    bool const showsPoses = options.pose || options.json || options.motion.isGiven();
    LinkPoses const poses = showsPoses ? posesOf(model, options.motion, robot.file) : LinkPoses();
    if (options.json) {
        printForPrograms(model, poses);
    } else {
        JointWords const words(model);
        TreePainter painter(options, words, poses);
        printTree(painter, *model.rootLink(), options.pose || options.mass,
                  options.wide ? unboundedWidth : outputWidth());
    }
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    app.add_flag("--pose", options->pose, "Add each link's pose in the root frame: origin (m), roll, pitch, yaw (rad)");
    app.add_flag("--mass", options->mass, "Add each link's mass");
    declareMotion(app, options->motion);
    declareReference(app, options->motion);
    declareWide(app, options->wide);
    declareJson(app, options->json, "the links");
    return [options] { return tree(*options); };
}

}  // namespace

Command const treeCommand = {"tree", "Draw the links and joints as a tree",
                             R"(Draws the kinematic tree, one line for each joint: its name, an arrow, and in
brackets the link that it moves, as the description calls it. The root link
stands on top. What has no motor is marked: a joint that is fixed, planar or
floating, coupled to others by an actuator, a mimic of another, or passive.

Branches are drawn with box-drawing characters in a UTF-8 locale, with plain
ones otherwise. Colour appears on terminals only; set NO_COLOR to be without.
Lines deeper than 40 levels are not indented further and state their depth. On a
terminal that is too narrow for them, poses and masses stand below their links,
and longer lines end with an ellipsis, unless --wide is given.

Poses are those with all joints at zero, as in `dump`, unless a posture or a
joint value is given; then joints that follow stand where that puts them, as in
`pose`.

With --json: an array of the links, parents first, each with link,
descriptionName, urdfName (the same in URDF, null elsewhere), joint, parentLink,
type, mass and pose, the latter as 16 numbers, row by row.

Examples:
  varo-robot tree robots/humanoid.xml
  varo-robot tree --mass --pose robots/rover.xml
  varo-robot tree --pose --posture Crouch robots/humanoid.xml)",
                             declare};

}  // namespace Tool
