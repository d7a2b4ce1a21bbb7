#include "robot/pose.hpp"

#include <cmath>
#include <cstddef>

#include "varo/math/rpy.hpp"

namespace Varo::Model {

Vector minus(Vector const& left, Vector const& right)
{
    return {left[0] - right[0], left[1] - right[1], left[2] - right[2]};
}

double length(Vector const& vector)
{
    return std::hypot(vector[0], vector[1], vector[2]);
}

Pose poseFrom(Vector const& xyz, Vector const& rpy)
{
    auto const r = Math::rotationFromRpy(rpy[0], rpy[1], rpy[2]);
    return {{{{r[0], r[1], r[2]}, {r[3], r[4], r[5]}, {r[6], r[7], r[8]}}}, xyz};
}

Matrix rotationFromZ(Vector const& axis)
{
    double const norm = length(axis);
    double const x = axis[0] / norm;
    double const y = axis[1] / norm;
    double const cosine = axis[2] / norm;
    double const sine = std::hypot(x, y);
    if (sine == 0.0) {
        double const sign = cosine < 0.0 ? -1.0 : 1.0;
        return {{{1.0, 0.0, 0.0}, {0.0, sign, 0.0}, {0.0, 0.0, sign}}};
    }
    // Rodrigues' formula about the direction of z x axis, which is (-v, u, 0).
    double const u = x / sine;
    double const v = y / sine;
    double const bend = 1.0 - cosine;
    double const skew = 0.0 - bend * u * v;
    return {{{1.0 - bend * u * u, skew, x}, {skew, 1.0 - bend * v * v, y}, {0.0 - x, 0.0 - y, cosine}}};
}

Matrix transposed(Matrix const& m)
{
    return {{{m[0][0], m[1][0], m[2][0]}, {m[0][1], m[1][1], m[2][1]}, {m[0][2], m[1][2], m[2][2]}}};
}

Matrix operator*(Matrix const& left, Matrix const& right)
{
    Matrix const columns = transposed(right);
    return transposed({left * columns[0], left * columns[1], left * columns[2]});
}

Vector operator*(Matrix const& left, Vector const& right)
{
    Vector result;
    for (std::size_t row = 0; row < 3; ++row) {
        result[row] = left[row][0] * right[0] + left[row][1] * right[1] + left[row][2] * right[2];
    }
    return result;
}

Pose operator*(Pose const& left, Pose const& right)
{
    Vector translation = left.rotation * right.translation;
    for (std::size_t i = 0; i < 3; ++i) {
        translation[i] += left.translation[i];
    }
    return {left.rotation * right.rotation, translation};
}

Pose inverse(Pose const& pose)
{
    Matrix const back = transposed(pose.rotation);
    Vector const translation = back * pose.translation;
    // Subtracting keeps zeros positive, so that no -0 gets into the records.
    return {back, {0.0 - translation[0], 0.0 - translation[1], 0.0 - translation[2]}};
}

Math::Transform toTransform(Pose const& pose)
{
    std::array<float, 12> rows;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            rows[row * 4 + column] = static_cast<float>(pose.rotation[row][column]);
        }
        rows[row * 4 + 3] = static_cast<float>(pose.translation[row]);
    }
    return Math::Transform::fromRows(rows);
}

Pose fromTransform(Math::Transform const& transform)
{
    Pose pose;
    for (int row = 0; row < 3; ++row) {
        auto const at = static_cast<std::size_t>(row);
        for (int column = 0; column < 3; ++column) {
            pose.rotation[at][static_cast<std::size_t>(column)] = static_cast<double>(transform(row, column));
        }
        pose.translation[at] = static_cast<double>(transform(row, 3));
    }
    return pose;
}

Math::Position3D toPosition(Vector const& vector)
{
    return {static_cast<float>(vector[0]), static_cast<float>(vector[1]), static_cast<float>(vector[2])};
}

}  // namespace Varo::Model
