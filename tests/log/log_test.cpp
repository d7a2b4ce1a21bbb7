#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "captured_log.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The tests use categories of their own, since categories stay.
class LogTest : public testing::Test {
protected:
    Tests::CapturedLog log;
    std::vector<std::string> const& lines = log.lines;
};

TEST_F(LogTest, CategoriesStandAtErrorUntilSetOtherwise)
{
    EXPECT_EQ(zu::log::level("nobody"), zu::log::error);
    zu::log::log("nobody", zu::log::error, "here", "heard");
    zu::log::log("nobody", zu::log::warning, "here", "not heard");
    EXPECT_THAT(lines, ElementsAre("nobody|2|here|heard"));
}

TEST_F(LogTest, ALevelHoldsForItsCategoryAlone)
{
    zu::log::setLevel("chatty", zu::log::verbose);
    zu::log::setLevel("mute", zu::log::silent);
    zu::log::log("chatty", zu::log::verbose, "f", "1");
    zu::log::log("chatty", zu::log::debug, "f", "2");
    zu::log::log("chattier", zu::log::verbose, "f", "3");
    zu::log::log("mute", zu::log::fatal, "f", "4");
    EXPECT_THAT(lines, ElementsAre("chatty|5|f|1"));
}

TEST_F(LogTest, AddingAKnownCategoryKeepsItsLevel)
{
    zu::log::addCategory("added");
    EXPECT_EQ(zu::log::level("added"), zu::log::error);
    zu::log::setLevel("added", 17);
    zu::log::addCategory("added");
    EXPECT_EQ(zu::log::level("added"), 17);
}

TEST_F(LogTest, WhatTheSinkThrowsReachesTheCallerAndHarmsNobodyElse)
{
    zu::log::setSink([](zu::log::Record const&) { throw std::runtime_error("disk full"); });
    EXPECT_THROW(zu::log::log("throwing", zu::log::error, "f", "m"), std::runtime_error);
    EXPECT_EQ(zu::log::level("throwing"), zu::log::error);
}

TEST_F(LogTest, DefaultSinkWritesALineToStandardErrorAndNothingElsewhere)
{
    zu::log::setSink({});
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    zu::log::log("default", zu::log::error, "fetchSensors", "100 % {} of it");
    EXPECT_THAT(testing::internal::GetCapturedStdout(), IsEmpty());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[error] default: fetchSensors: 100 % {} of it\n");
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LogTest, ThreadsMayLogAndChangeLevelsAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int linesEach = 500;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([i] {
            std::string const category = "thread" + std::to_string(i % 2);
            for (int line = 0; line < linesEach; ++line) {
                zu::log::setLevel(category, zu::log::error + line % 2);
                zu::log::log(category, zu::log::error, "f", "m");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(lines.size(), threadCount * linesEach);
}

}  // namespace
