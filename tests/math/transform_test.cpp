#include "varo/math/transform.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "varo/math/rpy.hpp"

namespace {

using testing::ElementsAre;
using testing::FloatNear;
using testing::Pointwise;
using Varo::Math::pinv;
using Varo::Math::Position3D;
using Varo::Math::Transform;

constexpr float quarterTurn = 1.57079633F;

/// Poses all over a space of some metres, the same ones in every run.
std::vector<Transform> randomPoses(int count)
{
    std::mt19937 generator(20240229U);
    std::uniform_real_distribution<float> angle(-3.2F, 3.2F);
    std::uniform_real_distribution<float> length(-3.0F, 3.0F);
    std::vector<Transform> poses;
    for (int i = 0; i < count; ++i) {
        std::array<float, 6> values = {};
        std::generate_n(values.begin(), 3, [&] { return length(generator); });
        std::generate_n(values.begin() + 3, 3, [&] { return angle(generator); });
        auto const [x, y, z, roll, pitch, yaw] = values;
        poses.push_back(Transform::fromPosition(x, y, z) * Transform::fromRpy(roll, pitch, yaw));
    }
    return poses;
}

Transform linear(std::array<float, 9> const& m)
{
    return Transform::fromRows({m[0], m[1], m[2], 0.5F, m[3], m[4], m[5], -1.0F, m[6], m[7], m[8], 2.0F});
}

/// The same linear part without the translation.
Transform turned(Transform const& t)
{
    std::array<float, 12> rows = t.rows();
    rows[3] = rows[7] = rows[11] = 0.0F;
    return Transform::fromRows(rows);
}

void expectNear(Transform const& actual, Transform const& expected, float tolerance = 1e-5F)
{
    EXPECT_THAT(actual.rows(), Pointwise(FloatNear(tolerance), expected.rows()));
}

void expectNear(Position3D const& actual, Position3D const& expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-5F);
    EXPECT_NEAR(actual.y, expected.y, 1e-5F);
    EXPECT_NEAR(actual.z, expected.z, 1e-5F);
}

TEST(Transform, RigidOnesObeyTheLawsOfAGroup)
{
    std::vector<Transform> const poses = randomPoses(200);
    for (std::size_t i = 2; i < poses.size(); ++i) {
        Transform const& a = poses[i - 2];
        Transform const& b = poses[i - 1];
        Transform const& c = poses[i];
        expectNear(a * a.inverse(), Transform());
        expectNear(a.inverse() * a, Transform());
        expectNear((a * b) * c, a * (b * c));
        expectNear((a * b).inverse(), b.inverse() * a.inverse());
        EXPECT_EQ(a * Transform(), a);
        expectNear((a * b) * Position3D{1.0F, 2.0F, 3.0F}, a * (b * Position3D{1.0F, 2.0F, 3.0F}));
        Transform product = a;
        EXPECT_EQ(product *= b, a * b);
    }
}

TEST(Transform, RotationsTurnByTheRightHandRule)
{
    Position3D const x = {1.0F, 0.0F, 0.0F};
    Position3D const y = {0.0F, 1.0F, 0.0F};
    Position3D const z = {0.0F, 0.0F, 1.0F};
    expectNear(Transform::fromRotX(quarterTurn) * y, z);
    expectNear(Transform::fromRotY(quarterTurn) * z, x);
    expectNear(Transform::fromRotZ(quarterTurn) * x, y);
    for (auto const& rotation : {Transform::fromRotX, Transform::fromRotY, Transform::fromRotZ}) {
        expectNear(rotation(0.7F) * rotation(-1.9F), rotation(-1.2F));
    }
}

TEST(Transform, RollPitchAndYawTurnAboutFixedAxesInThisOrder)
{
    expectNear(Transform::fromRpy(0.3F, -0.7F, 1.9F),
               Transform::fromRotZ(1.9F) * Transform::fromRotY(-0.7F) * Transform::fromRotX(0.3F));
}

TEST(Rpy, GivesBackTheRotationThatItWasReadFrom)
{
    auto const composed = [](Varo::Math::Rpy const& rpy) {
        return Transform::fromRpy(static_cast<float>(rpy.roll), static_cast<float>(rpy.pitch),
                                  static_cast<float>(rpy.yaw));
    };
    for (Transform const& pose : randomPoses(200)) {
        Varo::Math::Rpy const rpy = rpyOf(pose);
        EXPECT_LE(std::abs(rpy.pitch), 1.5707964);
        expectNear(Transform::fromPosition(pose(0, 3), pose(1, 3), pose(2, 3)) * composed(rpy), pose);
    }
    for (float const pitch : {quarterTurn, -quarterTurn}) {
        Transform const pose = Transform::fromRpy(0.3F, pitch, 0.8F);
        EXPECT_EQ(rpyWithoutRoll(pose).roll, 0.0);
        expectNear(composed(rpyWithoutRoll(pose)), pose);
    }
}

TEST(Rpy, KeepsThePrecisionOfItsAngles)
{
    EXPECT_EQ(Varo::Math::rotationFromRpy(0.0, 0.0, 0.1)[3], std::sin(0.1));
    EXPECT_EQ(Varo::Math::rotationFromRpy(0.0F, 0.0F, 0.1F)[3], std::sin(0.1F));
}

TEST(Transform, ShowsItsEntriesRowByRow)
{
    Transform const t = Transform::fromRows({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    EXPECT_THAT(t.toMatrix(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0, 0, 0, 1));
    EXPECT_EQ(t(1, 2), 7.0F);
    EXPECT_EQ(t.position(), (Position3D{4.0F, 8.0F, 12.0F}));
    EXPECT_EQ(Transform::fromPosition(4.0F, 8.0F, 12.0F).position(), t.position());
}

TEST(Transform, ComparesWithATolerance)
{
    Transform const t = Transform::fromPosition(1.0F, 2.0F, 3.0F);
    EXPECT_TRUE(t.isNear(Transform::fromPosition(1.0F, 2.0F, 3.00005F)));
    EXPECT_FALSE(t.isNear(Transform::fromPosition(1.0F, 2.0F, 3.0002F)));
    EXPECT_TRUE(t.isNear(Transform::fromPosition(1.0F, 2.5F, 3.0F), 0.5F));
    EXPECT_FALSE(t.isNear(Transform::fromPosition(1.0F, NAN, 3.0F), 10.0F));
}

TEST(PseudoInverse, MeetsThePenroseConditionsWhateverTheRank)
{
    Transform const rigid = randomPoses(1).front();
    expectNear(pinv(rigid), rigid.inverse());
    Transform const cases[] = {
        linear({2, 0, 0, 0, 3, 0, 0, 0, 4}),  // regular, not a rotation
        linear({1, 2, 3, 4, 5, 6, 7, 8, 10}),   linear({1, 2, 3, 2, 4, 6, 1, 0, 1}),  // rank 2
        linear({1, 2, 3, 2, 4, 6, -1, -2, -3}),  // rank 1
        linear({0, 0, 0, 0, 0, 0, 0, 0, 0}),
    };
    for (Transform const& t : cases) {
        SCOPED_TRACE(testing::PrintToString(t.rows()));
        Transform const inverse = pinv(t);
        Transform const a = turned(t);
        Transform const p = turned(inverse);
        Transform const ap = a * p;
        Transform const pa = p * a;
        expectNear(a * pa, a, 1e-4F);
        expectNear(p * ap, p, 1e-4F);
        for (auto const& [row, column] : {std::pair{0, 1}, {0, 2}, {1, 2}}) {
            EXPECT_NEAR(ap(row, column), ap(column, row), 1e-5F);
            EXPECT_NEAR(pa(row, column), pa(column, row), 1e-5F);
        }
        Position3D const back = p * t.position();
        expectNear(inverse.position(), {-back.x, -back.y, -back.z});
    }
}

}  // namespace
