#include "sim/pose.hpp"

#include <algorithm>

namespace Sim {

Pose Pose::fromTransform(Varo::Math::Transform const& transform)
{
    Pose pose;
    std::copy(transform.rows().begin(), transform.rows().end(), pose.rows.begin());
    return pose;
}

Varo::Math::Transform Pose::toTransform() const
{
    std::array<float, 12> rounded = {};
    std::transform(rows.begin(), rows.end(), rounded.begin(), [](double entry) { return static_cast<float>(entry); });
    return Varo::Math::Transform::fromRows(rounded);
}

Pose Pose::inverse() const
{
    auto const& m = rows;
    // The adjugate of the rotation over its determinant.
    double const cofactors[] = {m[5] * m[10] - m[6] * m[9], m[6] * m[8] - m[4] * m[10], m[4] * m[9] - m[5] * m[8]};
    double const scale = 1.0 / (m[0] * cofactors[0] + m[1] * cofactors[1] + m[2] * cofactors[2]);
    Pose result;
    result.rows = {
        cofactors[0] * scale, (m[2] * m[9] - m[1] * m[10]) * scale, (m[1] * m[6] - m[2] * m[5]) * scale, 0.0,
        cofactors[1] * scale, (m[0] * m[10] - m[2] * m[8]) * scale, (m[2] * m[4] - m[0] * m[6]) * scale, 0.0,
        cofactors[2] * scale, (m[1] * m[8] - m[0] * m[9]) * scale,  (m[0] * m[5] - m[1] * m[4]) * scale, 0.0};
    Vector3 const origin = result * position();
    for (std::size_t row = 0; row < 3; ++row) {
        result.rows[row * 4 + 3] = -origin[row];
    }
    return result;
}

}  // namespace Sim
