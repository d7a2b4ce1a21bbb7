#include "urdf/short_poses.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "schema/values.hpp"

namespace Varo::Model::Urdf {

namespace {

/// Of numbers that may be meant to the numbers that follow from the record.
constexpr double closeness = 1e-6;

constexpr double pi = 3.14159265358979323846;

/// The entries of records that follow from three numbers; those that are not used stay 0.
using Entries = std::array<double, 9>;

/// A search for three numbers of which the entries follow that a record has.
class Search {
public:
    using Map = std::function<Entries(Vector const&)>;

    /// Counts down `triesLeft`.
    Search(Map map, Entries const& wanted, std::size_t& triesLeft)
        : _map(std::move(map)), _wanted(wanted), _triesLeft(triesLeft)
    {}

    /// Numbers close to `numbers` which give the entries; false, with nothing changed, for none.
    bool run(Vector& numbers) const;

private:
    Entries entriesFor(Vector const& numbers) const;
    bool gives(Vector const& numbers) const;
    bool isReached(Entries const& entries, std::size_t i) const;
    bool tryEqualDigits(Vector& numbers) const;
    bool tryMixedDigits(Vector& numbers) const;
    bool approachFromParts(Vector& numbers) const;
    bool approach(Vector& numbers, std::array<bool, 3> const& isFree) const;
    void step(Vector& numbers, std::array<bool, 3> const& isFree, Entries const& entries) const;

    Map _map;
    Entries _wanted;  ///< each of them is one in single precision
    std::size_t& _triesLeft;
};

double rounded(double value, int decimals)
{
    double const scale = std::pow(10.0, decimals);
    double const digits = std::round(value * scale);
    return std::abs(digits) < 1e15 ? digits / scale + 0.0 : value;
}

double roundedTo(double value, int digits)
{
    int const magnitude = value == 0.0 ? 0 : static_cast<int>(std::floor(std::log10(std::abs(value))));
    std::array<char, 40> text;
    auto const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific, digits - 1).ptr;
    double result = value;
    std::from_chars(text.data(), end, result);
    return magnitude < -300 ? 0.0 : result;
}

/// The twelfth part of half a turn that the angle is; 0 for others, and for none.
double partOfTurn(double angle)
{
    double const part = std::round(angle / (pi / 12.0)) * (pi / 12.0);
    return std::abs(part - angle) <= closeness ? part : 0.0;
}

/// Of few digits first; and of parts of a turn, of which half a one may be one backwards as well, with as many digits
/// as anybody may have written.
std::vector<double> candidatesFor(double value)
{
    std::vector<double> candidates;
    auto const offer = [&](double candidate, double meant) {
        bool const isClose = std::abs(candidate - meant) <= closeness * std::max(1.0, std::abs(meant));
        if (isClose && std::find(candidates.begin(), candidates.end(), candidate) == candidates.end()) {
            candidates.push_back(candidate);
        }
    };
    for (int decimals = 0; decimals < 10; ++decimals) {
        offer(rounded(value, decimals), value);
    }
    double const part = partOfTurn(value);
    bool const isHalf = std::abs(part) > 3.0;
    for (double const meant : {part, isHalf ? -part : 0.0}) {
        for (int digits = 5; meant != 0.0 && digits <= 17; ++digits) {
            offer(roundedTo(meant, digits), meant);
        }
        if (meant != 0.0) {
            offer(meant, meant);
        }
    }
    for (int quarters = -2; quarters <= 2; ++quarters) {
        double const turned = quarters * (pi / 2.0);
        offer(rounded(value - turned, 4) + turned, value);
    }
    for (int digits = 3; std::abs(value) < 1e-3 && digits < 10; ++digits) {
        offer(roundedTo(value, digits), value);
    }
    return candidates;
}

bool Search::run(Vector& numbers) const
{
    return tryEqualDigits(numbers) || (_triesLeft > 0 && (tryMixedDigits(numbers) || approachFromParts(numbers)));
}

Entries Search::entriesFor(Vector const& numbers) const
{
    _triesLeft -= _triesLeft > 0 ? 1 : 0;
    return _map(numbers);
}

/// To the last bit, and to the sign of a zero.
bool Search::isReached(Entries const& entries, std::size_t i) const
{
    auto const entry = static_cast<float>(entries[i]);
    return static_cast<double>(entry) == _wanted[i] && std::signbit(entry) == std::signbit(_wanted[i]);
}

bool Search::gives(Vector const& numbers) const
{
    Entries const entries = entriesFor(numbers);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!isReached(entries, i)) {
            return false;
        }
    }
    return true;
}

bool Search::tryEqualDigits(Vector& numbers) const
{
    for (int decimals = 0; decimals < 10; ++decimals) {
        Vector const tried = {rounded(numbers[0], decimals), rounded(numbers[1], decimals),
                              rounded(numbers[2], decimals)};
        if (gives(tried)) {
            numbers = tried;
            return true;
        }
    }
    return false;
}

bool Search::tryMixedDigits(Vector& numbers) const
{
    std::vector<double> const second = candidatesFor(numbers[1]);
    std::vector<double> const third = candidatesFor(numbers[2]);
    for (double const x : candidatesFor(numbers[0])) {
        for (double const y : second) {
            for (double const z : third) {
                if (gives({x, y, z})) {
                    numbers = {x, y, z};
                    return true;
                }
            }
        }
    }
    return false;
}

/// With those numbers kept that are whole parts of a turn, of which small entries tell; and then with all of them free.
bool Search::approachFromParts(Vector& numbers) const
{
    std::array<std::vector<double>, 3> choices;
    std::array<bool, 3> isFree = {};
    for (std::size_t j = 0; j < choices.size(); ++j) {
        double const part = partOfTurn(numbers[j]);
        bool const isNone = std::abs(numbers[j]) < closeness;
        isFree[j] = part == 0.0 && !isNone;
        choices[j] = {isNone ? 0.0 : isFree[j] ? numbers[j] : part};
        for (int digits = 5; part != 0.0 && digits <= 12; digits += 7) {  // as 3.1416 and 3.14159265359
            choices[j].push_back(roundedTo(part, digits));
        }
        if (std::abs(part) > 3.0) {
            choices[j].push_back(-part);
            choices[j].push_back(-roundedTo(part, 12));
        }
    }
    for (double const x : choices[0]) {
        for (double const y : choices[1]) {
            for (double const z : choices[2]) {
                Vector tried = {x, y, z};
                if (approach(tried, isFree)) {
                    numbers = tried;
                    return true;
                }
            }
        }
    }
    std::array<bool, 3> const all = {true, true, true};
    return isFree != all && approach(numbers, all);
}

/// Projects onto one after the other of the intervals that round to the entries (Kaczmarz 1937), which for numbers this
/// close depend on them linearly.
bool Search::approach(Vector& numbers, std::array<bool, 3> const& isFree) const
{
    constexpr int mostSteps = 25;  // where there are such numbers, the first ones nearly always reach them
    Vector reached = numbers;
    for (int i = 0; i < mostSteps; ++i) {
        if (gives(reached)) {
            numbers = reached;
            return true;
        }
        step(reached, isFree, entriesFor(reached));
    }
    return false;
}

void Search::step(Vector& numbers, std::array<bool, 3> const& isFree, Entries const& entries) const
{
    constexpr double width = 1e-6;
    std::array<Entries, 3> slopes;
    for (std::size_t j = 0; j < 3; ++j) {
        Vector above = numbers;
        Vector below = numbers;
        above[j] += width;
        below[j] -= width;
        Entries const high = entriesFor(above);
        Entries const low = entriesFor(below);
        for (std::size_t i = 0; i < high.size(); ++i) {
            slopes[j][i] = isFree[j] ? (high[i] - low[i]) / (2.0 * width) : 0.0;
        }
    }
    Vector change = {};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        auto const wanted = static_cast<float>(_wanted[i]);
        constexpr float endless = std::numeric_limits<float>::infinity();
        double const inner = 0.4;  // of the distance to the neighbours; half of it would be the very bound
        double const low = _wanted[i] - inner * (_wanted[i] - static_cast<double>(std::nextafter(wanted, -endless)));
        double const high = _wanted[i] + inner * (static_cast<double>(std::nextafter(wanted, endless)) - _wanted[i]);
        double const entry =
            entries[i] + slopes[0][i] * change[0] + slopes[1][i] * change[1] + slopes[2][i] * change[2];
        double const miss = std::clamp(entry, low, high) - entry;
        double const steepness =
            slopes[0][i] * slopes[0][i] + slopes[1][i] * slopes[1][i] + slopes[2][i] * slopes[2][i];
        if (steepness > 1e-40) {
            for (std::size_t j = 0; j < 3; ++j) {
                change[j] += miss * slopes[j][i] / steepness;
            }
        }
    }
    for (std::size_t j = 0; j < 3; ++j) {
        numbers[j] += change[j];
    }
}

}  // namespace

Pose toPose(Math::Transform const& transform)
{
    Pose pose;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            pose.rotation[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
                static_cast<double>(transform(row, column));
        }
        pose.translation[static_cast<std::size_t>(row)] = static_cast<double>(transform(row, 3));
    }
    return pose;
}

namespace {

Entries entriesOf(Matrix const& rotation)
{
    Entries entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i] = rotation[i / 3][i % 3];
    }
    return entries;
}

/// All turns about the fixed axes that make the rotation; the second of them where the first turns over and back.
std::array<Vector, 3> rpyOf(Matrix const& m)
{
    double const roll = std::atan2(m[2][1], m[2][2]);
    double const pitch = std::atan2(-m[2][0], std::hypot(m[0][0], m[1][0]));
    double const yaw = std::atan2(m[1][0], m[0][0]);
    auto const opposite = [](double angle) { return angle > 0.0 ? angle - pi : angle + pi; };
    Vector const upright = {0.0, pitch, std::atan2(-m[0][1], m[1][1])};
    return {{{roll, pitch, yaw}, {opposite(roll), (pitch < 0.0 ? -pi : pi) - pitch, opposite(yaw)}, upright}};
}

/// A direction of which only that counts: with its greatest coordinate 1, as people write it, or of length 1.
std::array<Vector, 2> scalesOf(Vector const& axis)
{
    double const greatest = std::max({std::abs(axis[0]), std::abs(axis[1]), std::abs(axis[2])});
    double const length = std::hypot(axis[0], axis[1], axis[2]);
    return {{{axis[0] / greatest, axis[1] / greatest, axis[2] / greatest},
             {axis[0] / length, axis[1] / length, axis[2] / length}}};
}

}  // namespace

double shortest(float value)
{
    std::string const text = Schema::printNumber(value);
    double number = static_cast<double>(value);
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

Vector ShortPoses::axisOf(Math::Transform const& end)
{
    Pose const pose = toPose(end);
    Vector const seen = pose.rotation[2];
    if (seen == Vector{} || !std::isfinite(seen[0] + seen[1] + seen[2])) {
        return {0.0, 0.0, 1.0};
    }
    Search const search(
        [](Vector const& axis) {
            return axis == Vector{} ? Entries{} : entriesOf(inverse({rotationFromZ(axis), {}}).rotation);
        },
        entriesOf(pose.rotation), _triesLeft);
    for (Vector axis : scalesOf(seen)) {
        if (search.run(axis)) {
            return axis;
        }
    }
    return seen;
}

namespace {

/// What a record has where a text states a pose.
using Placing = std::function<Pose(Pose const& stated)>;

StatedPose findPose(Placing const& placing, Pose const& wanted, Pose const& guess, std::size_t& triesLeft)
{
    Search const turns([&](Vector const& rpy) { return entriesOf(placing(poseFrom({}, rpy)).rotation); },
                       entriesOf(wanted.rotation), triesLeft);
    auto const solutions = rpyOf(guess.rotation);
    StatedPose pose = {guess.translation, solutions.front()};
    for (Vector rpy : solutions) {
        if (turns.run(rpy)) {
            pose.rpy = rpy;
            break;
        }
    }
    Matrix const turn = poseFrom({}, pose.rpy).rotation;
    auto const map = [&](Vector const& xyz) {
        Vector const place = placing({turn, xyz}).translation;
        return Entries{place[0], place[1], place[2]};
    };
    Search const places(map, {wanted.translation[0], wanted.translation[1], wanted.translation[2]}, triesLeft);
    places.run(pose.xyz);
    return pose;
}

}  // namespace

StatedPose ShortPoses::poseBetween(Pose const& before, Math::Transform const& whole, Pose const& behind)
{
    Pose const wanted = toPose(whole);
    return findPose([&](Pose const& stated) { return before * stated * behind; }, wanted,
                    inverse(before) * wanted * inverse(behind), _triesLeft);
}

StatedPose ShortPoses::poseOf(Math::Transform const& whole)
{
    Pose const wanted = toPose(whole);
    return findPose([](Pose const& stated) { return stated; }, wanted, wanted, _triesLeft);
}

}  // namespace Varo::Model::Urdf
