// How long all link poses and the Jacobian of the deepest link of a moved robot take, beside a plain loop that
// multiplies stored poses and, where KDL was found when this was built, beside KDL.
#include "sim/kinematics.hpp"

#include <cstdio>
#include <cstdlib>
#include <random>

#include "allocations.hpp"
#include "serial_robot.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "timing.hpp"
#ifdef VARO_BENCH_KDL
#include "kdl_robot.hpp"
#endif

namespace {

using Tests::allocationsOf;

/// The least that any library has to do for all link poses: one product for each, of poses that are stored.
class PlainLoop {
public:
    PlainLoop(Sim::Model const& model, Sim::Kinematics const& kinematics)
    {
        for (Sim::Link const* const link : model.links()) {
            Sim::Joint const* const joint = link->parentJoint();
            Sim::Pose const end = Sim::Pose::fromTransform(link->frame()->localPosition());
            _zeroPoses.push_back(joint == nullptr ? end
                                                  : Sim::Pose::fromTransform(joint->frame()->localPosition()) * end);
            _parents.push_back(joint == nullptr ? 0 : kinematics.linkIndex(*joint->parentLink()));
        }
        _poses.resize(_parents.size());
    }

    std::vector<std::size_t> const& parents() const { return _parents; }

    void run()
    {
        _poses[0] = _zeroPoses[0];
        for (std::size_t i = 1; i < _zeroPoses.size(); ++i) {
            _poses[i] = _poses[_parents[i]] * _zeroPoses[i];
        }
    }

private:
    std::vector<Sim::Pose> _zeroPoses;
    std::vector<std::size_t> _parents;
    std::vector<Sim::Pose> _poses;
};

Sim::Configuration anyConfiguration(Sim::Kinematics const& kinematics)
{
    std::mt19937 generator;
    std::uniform_real_distribution<double> values(-2.0, 2.0);
    Sim::Configuration configuration(kinematics);
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        configuration.set(i, values(generator));
    }
    return configuration;
}

/// A robot in some configuration, and room for the answers.
struct Subject {
    explicit Subject(std::string const& description)
        : model(description),
          kinematics(model),
          configuration(anyConfiguration(kinematics)),
          plainLoop(model, kinematics),
          poses(kinematics.linkCount()),
          entries(6 * configuration.size())
    {
        std::vector<std::size_t> depths(poses.size());
        std::size_t deepest = 0;
        for (std::size_t i = 1; i < depths.size(); ++i) {
            depths[i] = depths[plainLoop.parents()[i]] + 1;
            deepest = depths[i] > depths[deepest] ? i : deepest;
        }
        tip = model.links()[deepest];
        depth = depths[deepest];
    }

    void computePoses() { kinematics.linkPoses(configuration, poses.data(), poses.size()); }
    void computeJacobian() { kinematics.jacobian(configuration, *tip->frame(), entries.data(), entries.size()); }

    Sim::Model const model;
    Sim::Kinematics const kinematics;
    Sim::Configuration const configuration;
    PlainLoop plainLoop;
    std::vector<Sim::Pose> poses;
    std::vector<double> entries;
    Sim::Link const* tip;  ///< the link with the most joints between it and the root
    std::size_t depth;  ///< how many these are
};

#ifdef VARO_BENCH_KDL

constexpr bool hasKdl = true;

void requireAgreement(double difference, double size)
{
    if (!(difference < 1e-5 * size)) {  // KDL makes rotations of what single precision rounded
        std::fprintf(stderr, "KDL computes something else: the difference is %g.\n", difference);
        std::exit(1);
    }
}

/// KDL's ways to the poses and to the Jacobian, once they gave the same answers as ours.
struct Rival {
    explicit Rival(Subject& subject) : robot(subject.model, *subject.tip)
    {
        double const size = static_cast<double>(subject.depth);
        robot.setValues(subject.configuration);
        subject.computePoses();
        robot.solvePoses();
        requireAgreement(robot.differenceOfPoses(subject.poses), size);
        robot.multiplyPoses();
        requireAgreement(robot.differenceOfPoses(subject.poses), size);
        subject.computeJacobian();
        robot.solveTreeJacobian();
        requireAgreement(robot.differenceOfJacobian(subject.entries), size);
    }

    std::vector<Bench::Action> poseActions()
    {
        return {[this] { robot.solvePoses(); }, [this] { robot.multiplyPoses(); }};
    }
    std::vector<Bench::Action> jacobianActions()
    {
        return {[this] { robot.solveTreeJacobian(); }, [this] { robot.solveChainJacobian(); }};
    }

    Bench::KdlRobot robot;
};

#else

constexpr bool hasKdl = false;

struct Rival {
    explicit Rival(Subject const&) {}

    std::vector<Bench::Action> poseActions() { return {}; }
    std::vector<Bench::Action> jacobianActions() { return {}; }
};

#endif

/// Prints what KDL took, and how many times as long as ours that is.
void printRivals(double ours, double const* begin, double const* end)
{
    for (double const* time = begin; time != end; ++time) {
        std::printf(" %.2f | %.1f |", *time, *time / ours);
    }
    std::printf("\n");
    std::fflush(stdout);
}

std::vector<Bench::Action> joined(std::vector<Bench::Action> actions, std::vector<Bench::Action> const& more)
{
    actions.insert(actions.end(), more.begin(), more.end());
    return actions;
}

void printPoses(std::string const& name, Subject& subject)
{
    Rival rival(subject);
    Bench::Action const ours = [&] { subject.computePoses(); };
    Bench::Action const plainLoop = [&] { subject.plainLoop.run(); };
    auto const times = Bench::smallestMedians(joined({plainLoop, ours}, rival.poseActions()));
    std::printf("| %s | %.2f | %.2f | %.2f | %zu |", name.c_str(), times[0], times[1], times[1] / times[0],
                allocationsOf(ours));
    printRivals(times[1], times.data() + 2, times.data() + times.size());
}

void printJacobian(std::string const& name, Subject& subject)
{
    Rival rival(subject);
    Bench::Action const ours = [&] { subject.computeJacobian(); };
    auto const times = Bench::smallestMedians(joined({ours}, rival.jacobianActions()));
    std::printf("| %s | %zu | %.2f | %zu |", name.c_str(), subject.depth, times[0], allocationsOf(ours));
    printRivals(times[0], times.data() + 1, times.data() + times.size());
}

void forEachRobot(void (*print)(std::string const& name, Subject& subject))
{
    for (auto const& [shape, name] :
         {std::pair(Bench::Shape::limbs, "limbs of 10"), {Bench::Shape::serial, "serial"}}) {
        for (int const joints : {30, 100, 1000}) {
            Subject subject(Bench::serialRobot(joints, shape));
            print(std::to_string(joints) + " joints, " + name, subject);
        }
    }
}

}  // namespace

int main()
{
    std::printf("| all link poses | plain loop (us) | ours (us) | to plain loop | allocations |%s\n",
                hasKdl ? " KDL solver (us) | to ours | KDL, one pass (us) | to ours |" : "");
    std::printf("| --- | ---: | ---: | ---: | ---: |%s\n", hasKdl ? " ---: | ---: | ---: | ---: |" : "");
    forEachRobot(printPoses);
    std::printf("\n| Jacobian of the deepest link | depth | ours (us) | allocations |%s\n",
                hasKdl ? " KDL tree solver (us) | to ours | KDL chain solver (us) | to ours |" : "");
    std::printf("| --- | ---: | ---: | ---: |%s\n", hasKdl ? " ---: | ---: | ---: | ---: |" : "");
    forEachRobot(printJacobian);
}
