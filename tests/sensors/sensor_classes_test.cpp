#include <boost/make_shared.hpp>
#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sensors/keyed_sensor_impl.hpp"
#include "sensors/picture_camera_impl.hpp"

namespace {

using namespace Sim;
using Keys = std::vector<std::string>;

Keys const twoKeys = {"a", "b"};
boost::shared_ptr<Frame const> const noFrame;

/// Of a kind that no description has.
template <class Impl>
void expectKeyed(int type)
{
    Impl const impl(noFrame, "Name", twoKeys);
    EXPECT_EQ(impl.type(), type);
    EXPECT_EQ(impl.bufferSize(), 4);
    EXPECT_EQ(impl.dcmKeys(), twoKeys);
    EXPECT_TRUE(impl.dcmStateKeys().empty() && impl.dcmCommandKeys().empty());
}

}  // namespace

TEST(SensorClasses, KnowTheSizeOfTheirReadingsPast32BitsToo)
{
    EXPECT_EQ(SonarSensorImpl(noFrame, "S", Keys(10), SonarSensorImpl::SingleValue).bufferSize(), 4);
    // The products wrap, without undefined behaviour.
    EXPECT_EQ(CameraSensorImpl(noFrame, "C", 65536, 65536).bufferSize(), 0);
    EXPECT_EQ(CameraDepthSensorImpl(noFrame, "D", 2147483647, 1).bufferSize(), -4);
}

TEST(SensorClasses, ThatNoLoadingMakesAreThereAllTheSame)
{
    expectKeyed<WheelVelocitySensorImpl>(9);
    expectKeyed<SingleDepthSensorImpl>(12);
}

TEST(SensorClasses, OutliveTheirFrame)
{
    auto frame = boost::make_shared<Frame>();
    WheelVelocitySensorImpl const impl(frame, "Name", twoKeys);
    EXPECT_EQ(impl.frame(), frame);
    frame.reset();
    EXPECT_EQ(impl.frame(), nullptr);
    EXPECT_EQ(impl.name(), "Name");
}

TEST(SensorClasses, SayThatFullKeysAreDeprecated)
{
    using namespace Tests;
    ModelImpl const model(robot(sensor("T", "Base", "tactile", keys(2))));
    auto const tactile = boost::dynamic_pointer_cast<DCMSensor>(model.sensor("T"));
    ASSERT_NE(tactile, nullptr);
    testing::internal::CaptureStdout();
    EXPECT_EQ(tactile->fullDcmKeys(), (Keys{"k0", "k1"}));
    EXPECT_EQ(tactile->fullDcmKeys(), tactile->dcmKeys());
    std::string const notice = "fullDcmKeys is deprecated, use dcmKeys instead.\n";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), notice + notice);
}
