#include "varo/math/eigen.hpp"

#include <gtest/gtest.h>

namespace {

using Varo::Math::Position3D;
using Varo::Math::Transform;

Transform const transform = Transform::fromPosition(1.0F, -2.0F, 3.0F) * Transform::fromRpy(0.3F, -0.7F, 1.9F);

TEST(EigenConversion, ComputesTheSame)
{
    Position3D const point = {0.5F, 0.25F, -4.0F};
    Transform const other = Transform::fromRotX(0.4F);
    Eigen::Isometry3f const isometry = Varo::Math::toEigen(transform);

    Position3D const moved = transform * point;
    EXPECT_TRUE((isometry * Varo::Math::toEigen(point)).isApprox(Varo::Math::toEigen(moved), 1e-5F));
    EXPECT_TRUE((isometry * Varo::Math::toEigen(other)).isApprox(Varo::Math::toEigen(transform * other), 1e-5F));
}

TEST(EigenConversion, ComesBackBitByBit)
{
    Eigen::Isometry3f const isometry = Varo::Math::toEigen(transform);
    EXPECT_EQ(Varo::Math::transformFromEigen(isometry), transform);
    EXPECT_EQ(Varo::Math::transformFromEigen(isometry.cast<double>()), transform);
    EXPECT_EQ(Varo::Math::transformFromEigen(Eigen::Affine3f(isometry)), transform);
    EXPECT_EQ(Varo::Math::positionFromEigen(Varo::Math::toEigen(Position3D{1.0F, 2.0F, 3.0F})),
              (Position3D{1.0F, 2.0F, 3.0F}));
}

}  // namespace
