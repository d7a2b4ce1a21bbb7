#ifndef POSTURE_POSTURE_LIBRARY_HPP
#define POSTURE_POSTURE_LIBRARY_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "varo/export.hpp"

namespace Varo::Model {
class Robot;
}

/// Named reference postures of a robot: a joint value for each of its angle names. Only std::bad_alloc is thrown.
namespace posture {

/// One posture: values in radians (metres for sliding joints), in the order of the robot's angle names
/// (Varo::Model::angleNames); values that the description gives to other names stand behind them, as surplus.
class VAROROBOTMODEL_API Posture {
public:
    /// Without values.
    Posture() = default;
    /// With these values.
    explicit Posture(std::vector<float> jointValues) : _jointValues(std::move(jointValues)) {}

    /// The values; the reference lives as long as the posture.
    std::vector<float> const& jointValues() const { return _jointValues; }

private:
    std::vector<float> _jointValues;
};

/// The name under which the postures of `robot` load. The name carries the postures with it (a `data:` URI), as long as
/// what they state, so that loading needs neither a file nor anything shared; it is empty when the description has no
/// postures.
VAROROBOTMODEL_API std::string getRobotPostureLibraryName(Varo::Model::Robot const& robot);

/// A set of postures loaded by name. Reading one object from several threads is safe, loading into it is not.
class VAROROBOTMODEL_API PostureLibrary {
public:
    /// Replaces the content by what the name carries. False, and an empty library, when the name is not one that
    /// getRobotPostureLibraryName made.
    bool loadLibraryFromName(std::string const& name);

    /// The posture's id, or -1 when the library has none of that name.
    int getIdFromName(std::string const& name) const;

    /// Writes the posture of that id. Angle names that the posture leaves out stand at 0 when `completed`, and as NaN
    /// otherwise. False for an unknown id; the posture then leaves out every name and has no surplus.
    bool getPostureFromId(int id, Posture& posture, bool completed) const;

private:
    struct Stated {
        std::size_t place;  // among the angle names; their number for a surplus value
        float value;
    };
    struct Named {
        std::string name;
        std::vector<Stated> stated;
    };

    bool readNames(std::string_view text);
    bool readValues(std::string_view text, Named& posture) const;
    std::vector<float> layOut(Named const& posture) const;

    std::vector<Named> _postures;
    std::vector<std::pair<std::size_t, std::size_t>> _repeated;  // a name's first place, and a later one
    std::size_t _angleCount = 0;
};

}  // namespace posture

#endif
