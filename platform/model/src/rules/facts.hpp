#ifndef VARO_MODEL_RULES_FACTS_HPP
#define VARO_MODEL_RULES_FACTS_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "robot/mirror_pairs.hpp"
#include "robot/side_names.hpp"
#include "robot/zero_poses.hpp"
#include "rules/mirrors.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/name_hash.hpp"
#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Varo::Model::Rules {

/// Two joints of the two sides, in the order of the text, whether the text says so or their names and places do.
struct JointPair {
    JointConfig const& first;
    JointConfig const& second;
    SidePair const& side;

    /// A MirrorKind; none when it cannot be told.
    std::int32_t kind() const
    {
        if (side.isStated) {
            return first.mirrorKind == second.mirrorKind ? first.mirrorKind : noMirror;
        }
        return side.kind;
    }
};

enum class InertiaFault : std::uint8_t;

/// What all rules judge by; worked out once for each robot.
struct Facts {
    Facts(Robot const& robot, LintTolerances const& allowed);

    /// Of a joint of the records.
    PlacedJoint const& placeOf(JointConfig const& joint) const
    {
        return places[static_cast<std::size_t>(&joint - &records->joints[0])];
    }

    std::shared_ptr<Records const> records;
    LintTolerances tolerances;
    std::vector<PlacedJoint> places;  ///< of the joints, one for one; empty where nothing has a counterpart
    Sides sides;
    std::vector<JointPair> jointPairs;  ///< one for one with those of the sides
    std::unordered_map<std::string, std::vector<std::size_t>, NameHash> pairsOfKind;  ///< by the names without sides
    std::vector<Pair<ActuatorConfig>> actuatorPairs;
    std::unordered_map<std::string_view, PostureAngle const*, NameHash> startAngles;  ///< those that are stated
    std::vector<InertiaFault> inertiaFaults;  ///< of all bodies, in the order of forEachBody
};

/// Whether the first of a pair is the odd one: more others of its kind, on other legs say, are like the second.
template <class Alike>
bool isFirstOdd(Facts const& facts, JointPair const& pair, Alike const& alike)
{
    constexpr std::size_t enough = 16;  // pairs, to say what is usual
    std::vector<std::size_t> const& kind = facts.pairsOfKind.at(withoutSides(pair.first.name));
    std::ptrdiff_t likeFirst = 0;
    for (std::size_t i = 0; i < std::min(enough, kind.size()); ++i) {
        JointPair const& others = facts.jointPairs[kind[i]];
        for (JointConfig const* other : {&others.first, &others.second}) {
            bool const isOther = &others.side != &pair.side;
            likeFirst += isOther && alike(*other, pair.first) ? 1 : 0;
            likeFirst -= isOther && alike(*other, pair.second) ? 1 : 0;
        }
    }
    return likeFirst < 0;
}

/// Where one rule says what it found.
class Report {
public:
    Report(Robot const& robot, FindingCode const& code, Diagnostics& diagnostics)
        : _robot(robot), _code(code), _diagnostics(diagnostics)
    {}

    /// At the part of the record or, where the text does not state it, at the nearest element around it.
    template <class Config>
    void at(Config const& record, Part part, std::string message, std::string hint = {}) const
    {
        _diagnostics.report(statement(record, part).offset, _code, std::move(message), std::move(hint));
    }

    /// At the same part of one of two records, with the line of the other.
    template <class Config>
    void ofTwo(Config const& blamed, Config const& other, Part part, std::string message, std::string hint = {}) const
    {
        int const line = _robot.place(other, part).line;
        if (line != 0) {
            hint += (hint.empty() ? "" : " ") + quoted(other.name) + " says it in line " + std::to_string(line) + ".";
        }
        at(blamed, part, std::move(message), std::move(hint));
    }

    /// At the part of the second of the pair or, if that is the odd one, of the first.
    void ofPair(JointPair const& pair, bool isFirst, Part part, std::string message, std::string hint = {}) const
    {
        ofTwo(isFirst ? pair.first : pair.second, isFirst ? pair.second : pair.first, part, std::move(message),
              std::move(hint));
    }

    /// 0 for what stands in no text.
    template <class Config>
    int lineOf(Config const& record) const
    {
        return _robot.place(record).line;
    }

    /// What the text has there.
    template <class Config>
    Statement statement(Config const& record, Part part) const
    {
        return _robot.statement(record, part);
    }

private:
    Robot const& _robot;
    FindingCode const& _code;
    Diagnostics& _diagnostics;
};

/// "-1 to 0.5".
std::string rangeText(float min, float max);

/// Calls `visit` for the records of all bodies, which share the names of their fields.
template <class Visit>
void forEachBody(Facts const& facts, Visit const& visit)
{
    visit(facts.records->root);
    for (auto const& joint : facts.records->joints) {
        visit(joint);
    }
    for (auto const& wheel : facts.records->wheels) {
        visit(wheel);
    }
}

}  // namespace Varo::Model::Rules

#endif
