#ifndef SIM_CONFIGURATION_HPP
#define SIM_CONFIGURATION_HPP

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "varo/export.hpp"

namespace Sim {

class Kinematics;
class KinematicsImpl;

/// Where all joints of a robot stand: one value (rad, or m) for each of Kinematics::variables, in that order.
///
/// Made for one Kinematics and the copies of it: any other refuses it. Joints that follow have no value of their own:
/// that of their leader or actuator moves them, by their ratio and offset. When the values are 0 such a joint stands at
/// its offset.
///
/// Values outside limits are taken, until checkLimits or clampToLimits is called. A value is finite and no larger than
/// single precision can hold; any other is refused, like every name that means nothing here, with
/// std::invalid_argument, whose text says which one it is and what may have been meant. What is refused changes
/// nothing. Only std::bad_alloc is thrown beside that.
///
/// A plain value: copies are independent, and several threads may read one at once while none sets it. It may outlive
/// its Kinematics and its Model. Moving copies.
class VAROROBOTMODEL_API Configuration {
public:
    /// All values 0.
    explicit Configuration(Kinematics const& kinematics);
    /// As setPosture does it.
    Configuration(Kinematics const& kinematics, std::string const& posture);
    /// Has the values of `other`, for the same Kinematics.
    Configuration(Configuration const& other);
    /// As the copy; what this configuration was made for before does not matter.
    Configuration& operator=(Configuration const& other);
    ~Configuration();

    /// The number of values.
    std::size_t size() const noexcept { return _values.size(); }
    /// A value by its index, without a bounds check.
    double operator[](std::size_t index) const noexcept { return _values[index]; }
    /// All of them.
    std::vector<double> const& values() const noexcept { return _values; }
    /// Where the joint, wheel or coupled actuator of that name stands: also one that follows, and 0 for a joint that
    /// does not move. Throws std::invalid_argument for an unknown name.
    double at(std::string const& name) const;

    /// Sets one value. Throws std::invalid_argument for an index that is too large.
    void set(std::size_t index, double value);
    /// Sets the value of a joint, a wheel or an actuator. Throws std::invalid_argument for an unknown name, for a joint
    /// that does not move, and for one that follows.
    void set(std::string const& name, double value);
    /// Sets several, all or none, and leaves the others as they are. Throws std::invalid_argument as above, and when
    /// two names give the same joint different values.
    void set(std::vector<std::pair<std::string, double>> const& values);
    /// Sets all values. Throws std::invalid_argument when there are more or fewer than size().
    void setValues(std::vector<double> const& values);
    /// Sets all values to those of the first posture of that name in the description, and to 0 what it does not state.
    ///
    /// Throws std::invalid_argument for an unknown posture, and for one that gives a value to what is unknown, or to a
    /// joint that follows, or does not move, and stands elsewhere then.
    void setPosture(std::string const& name);

    /// How far inside its limits a value is (rad, or m): the distance to the nearer one, negative outside, infinite for
    /// what has none. Throws std::invalid_argument for an index that is too large.
    double distanceToLimits(std::size_t index) const;
    /// Moves each value that is outside its limits to the nearer one.
    void clampToLimits();
    /// Throws std::invalid_argument, with name and limits, for the first value that is outside its limits.
    void checkLimits() const;

private:
    friend class KinematicsImpl;

    void requireIndex(std::size_t index) const;

    std::shared_ptr<KinematicsImpl const> _kinematics;
    std::vector<double> _values;
};

}  // namespace Sim

#endif
