#include <boost/make_shared.hpp>
#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sensors/angle_sensor_impl.hpp"
#include "sensors/angle_speed_sensor_impl.hpp"
#include "sensors/array_depth_sensor_impl.hpp"
#include "sensors/bumper_sensor_impl.hpp"
#include "sensors/camera_depth_sensor_impl.hpp"
#include "sensors/camera_sensor_impl.hpp"
#include "sensors/coupled_sensor_impl.hpp"
#include "sensors/fsr_sensor_impl.hpp"
#include "sensors/inertial_sensor_impl.hpp"
#include "sensors/microphone_sensor_impl.hpp"
#include "sensors/single_depth_sensor_impl.hpp"
#include "sensors/tactile_sensor_impl.hpp"
#include "sensors/torque_sensor_impl.hpp"
#include "sensors/wheel_velocity_sensor_impl.hpp"

namespace {

using Keys = std::vector<std::string>;

Keys const twoKeys = {"a", "b"};
boost::shared_ptr<Sim::Frame const> const noFrame;

template <class Impl>
void expectKeyed(int type, int bytes)
{
    Impl const impl(noFrame, "Name", twoKeys);
    EXPECT_EQ(impl.type(), type);
    EXPECT_EQ(impl.bufferSize(), bytes);
    EXPECT_EQ(impl.dcmKeys(), twoKeys);
    EXPECT_TRUE(impl.dcmStateKeys().empty());
    EXPECT_TRUE(impl.dcmCommandKeys().empty());
}

}  // namespace

TEST(SensorClasses, OfKeysAloneDifferInTypeAndSize)
{
    expectKeyed<Sim::AngleSensorImpl>(0, 4);
    expectKeyed<Sim::CoupledSensorImpl>(1, 4);
    expectKeyed<Sim::FSRSensorImpl>(4, 4);
    expectKeyed<Sim::InertialSensorImpl>(5, 28);
    expectKeyed<Sim::BumperSensorImpl>(6, 4);
    expectKeyed<Sim::TorqueSensorImpl>(7, 4);
    expectKeyed<Sim::AngleSpeedSensorImpl>(8, 4);
    expectKeyed<Sim::WheelVelocitySensorImpl>(9, 4);
    expectKeyed<Sim::TactileSensorImpl>(10, 4);
    expectKeyed<Sim::SingleDepthSensorImpl>(12, 4);
}

TEST(SensorClasses, KnowTheSizeOfTheirReadings)
{
    using Sim::SonarSensorImpl;
    EXPECT_EQ(SonarSensorImpl(noFrame, "S", {"k"}, SonarSensorImpl::TenValues).bufferSize(), 40);
    EXPECT_EQ(SonarSensorImpl(noFrame, "S", Keys(10), SonarSensorImpl::SingleValue).bufferSize(), 4);
    EXPECT_EQ(Sim::ArrayDepthSensorImpl(noFrame, "A", Keys(8), 100, 100, {}, {}).bufferSize(), 32);
    EXPECT_EQ(Sim::CameraSensorImpl(noFrame, "C", 640, 480).bufferSize(), 3686400);
    EXPECT_EQ(Sim::CameraDepthSensorImpl(noFrame, "D", 320, 240).bufferSize(), 307200);
    EXPECT_EQ(Sim::MicrophoneSensorImpl(noFrame, "M").bufferSize(), 4);
    // Past 32 bits the products wrap, without undefined behaviour.
    EXPECT_EQ(Sim::CameraSensorImpl(noFrame, "C", 65536, 65536).bufferSize(), 0);
    EXPECT_EQ(Sim::CameraDepthSensorImpl(noFrame, "D", 2147483647, 1).bufferSize(), -4);
}

TEST(SensorClasses, OutliveTheirFrame)
{
    auto frame = boost::make_shared<Sim::Frame>();
    Sim::AngleSensorImpl const impl(frame, "Name", twoKeys);
    EXPECT_EQ(impl.frame(), frame);
    frame.reset();
    EXPECT_EQ(impl.frame(), nullptr);
    EXPECT_EQ(impl.name(), "Name");
}

TEST(SensorClasses, SayThatFullKeysAreDeprecated)
{
    using namespace Tests;
    Sim::ModelImpl const model(robot(sensor("T", "Base", "tactile", keys(2))));
    auto const tactile = boost::dynamic_pointer_cast<Sim::DCMSensor>(model.sensor("T"));
    ASSERT_NE(tactile, nullptr);
    testing::internal::CaptureStdout();
    EXPECT_EQ(tactile->fullDcmKeys(), (Keys{"k0", "k1"}));
    EXPECT_EQ(tactile->fullDcmKeys(), tactile->dcmKeys());
    std::string const notice = "fullDcmKeys is deprecated, use dcmKeys instead.\n";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), notice + notice);
}
