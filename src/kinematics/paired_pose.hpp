#ifndef VARO_KINEMATICS_PAIRED_POSE_HPP
#define VARO_KINEMATICS_PAIRED_POSE_HPP

#include <cstddef>
#include <cstring>

#include "sim/pose.hpp"

namespace Sim {

/// A pose whose entries are computed two at a time, by the vector extension of GCC and Clang. Left to themselves they
/// compute a good part of a product of poses one entry after the other.
class PairedPose {
public:
    explicit PairedPose(Pose const& pose) { std::memcpy(_pairs, pose.rows.data(), sizeof _pairs); }

    /// a + cosine * b + sine * c, entry by entry.
    static PairedPose sum(Pose const& a, double cosine, Pose const& b, double sine, Pose const& c)
    {
        PairedPose result(a);
        PairedPose const second(b);
        PairedPose const third(c);
        Pair const factor = {cosine, cosine};
        Pair const otherFactor = {sine, sine};
        for (std::size_t i = 0; i < 6; ++i) {
            result._pairs[i] += factor * second._pairs[i] + otherFactor * third._pairs[i];
        }
        return result;
    }

    /// The product with `right` to the right.
    PairedPose operator*(PairedPose const& right) const
    {
        PairedPose product = *this;
        for (std::size_t row = 0; row < 6; row += 2) {
            Pair const x = {_pairs[row][0], _pairs[row][0]};
            Pair const y = {_pairs[row][1], _pairs[row][1]};
            Pair const z = {_pairs[row + 1][0], _pairs[row + 1][0]};
            Pair const translation = {0.0, _pairs[row + 1][1]};
            product._pairs[row] = x * right._pairs[0] + y * right._pairs[2] + z * right._pairs[4];
            product._pairs[row + 1] = x * right._pairs[1] + y * right._pairs[3] + z * right._pairs[5] + translation;
        }
        return product;
    }

    /// Turns the posed frame about its z axis.
    void turn(double cosine, double sine)
    {
        Pair const along = {cosine, cosine};
        Pair const across = {sine, -sine};
        for (std::size_t row = 0; row < 6; row += 2) {
            Pair const exchanged = {_pairs[row][1], _pairs[row][0]};
            _pairs[row] = along * _pairs[row] + across * exchanged;
        }
    }

    /// Slides the posed frame along its z axis.
    void slide(double distance)
    {
        for (std::size_t row = 1; row < 6; row += 2) {
            _pairs[row][1] += distance * _pairs[row][0];
        }
    }

    Vector3 zAxis() const { return {_pairs[1][0], _pairs[3][0], _pairs[5][0]}; }
    Vector3 position() const { return {_pairs[1][1], _pairs[3][1], _pairs[5][1]}; }

    void store(Pose& pose) const { std::memcpy(pose.rows.data(), _pairs, sizeof _pairs); }

private:
    using Pair = double __attribute__((vector_size(16)));

    Pair _pairs[6];
};

}  // namespace Sim

#endif
