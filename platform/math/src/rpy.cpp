#include "varo/math/rpy.hpp"

namespace Varo::Math {

namespace {

double entry(Transform const& transform, int row, int column)
{
    return static_cast<double>(transform(row, column));
}

double pitchOf(Transform const& transform)
{
    return std::atan2(-entry(transform, 2, 0), std::hypot(entry(transform, 0, 0), entry(transform, 1, 0)));
}

}  // namespace

Rpy rpyOf(Transform const& t)
{
    return {std::atan2(entry(t, 2, 1), entry(t, 2, 2)), pitchOf(t), std::atan2(entry(t, 1, 0), entry(t, 0, 0))};
}

Rpy rpyWithoutRoll(Transform const& t)
{
    return {0.0, pitchOf(t), std::atan2(-entry(t, 0, 1), entry(t, 1, 1))};
}

}  // namespace Varo::Math
