#include <atomic>
#include <memory>
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

TEST_F(LogTest, CategoriesStandAtErrorUntilSetOtherwiseEachForItself)
{
    EXPECT_EQ(zu::log::level("plain"), zu::log::error);
    zu::log::setLevel("chatty", zu::log::verbose);
    zu::log::setLevel("mute", zu::log::silent);
    zu::log::addCategory("plain");
    zu::log::addCategory("chatty");  // which keeps its level
    EXPECT_EQ(zu::log::level("chatty"), zu::log::verbose);
    zu::log::log("plain", zu::log::error, "here", "1");
    zu::log::log("plain", zu::log::warning, "here", "2");
    zu::log::log("chatty", zu::log::verbose, "there", "3");
    zu::log::log("chatty", zu::log::debug, "there", "4");
    zu::log::log("chattier", zu::log::verbose, "there", "5");
    zu::log::log("mute", zu::log::fatal, "there", "6");
    EXPECT_THAT(lines, ElementsAre("plain|2|here|1", "chatty|5|there|3"));
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
    zu::log::setLevel("default", 17);
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    zu::log::log("default", zu::log::error, "fetchSensors", "100 % {} of it");
    for (int const level : {-1, 0, 1, 2, 3, 4, 5, 6, 17}) {
        zu::log::log("default", level, "f", "");
    }
    EXPECT_THAT(testing::internal::GetCapturedStdout(), IsEmpty());
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "[error] default: fetchSensors: 100 % {} of it\n"
              "[critical] default: f: \n[critical] default: f: \n[critical] default: f: \n[error] default: f: \n"
              "[warning] default: f: \n[info] default: f: \n[debug] default: f: \n[trace] default: f: \n"
              "[trace] default: f: \n");
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LogTest, ASinkMayLogAndReplaceItself)
{
    int calls = 0;
    zu::log::setSink([&calls, kept = std::string("still there")](zu::log::Record const&) {
        ++calls;
        zu::log::setLevel("inner", zu::log::info);
        zu::log::setSink({});
        zu::log::log("inner", zu::log::info, "sink", kept);
        std::thread([] { zu::log::log("inner", zu::log::error, "thread", "of the sink"); }).join();
    });
    testing::internal::CaptureStderr();
    zu::log::log("outer", zu::log::error, "f", "m");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "[info] inner: sink: still there\n[error] inner: thread: of the sink\n");
    EXPECT_EQ(calls, 1);
}

TEST_F(LogTest, LinesOfTheSinkItselfDoNotComeBackToIt)
{
    zu::log::setSink(
        [](zu::log::Record const& record) { zu::log::log("inner", zu::log::error, "sink", record.message); });
    testing::internal::CaptureStderr();
    zu::log::log("outer", zu::log::error, "f", "1");
    zu::log::log("outer", zu::log::error, "f", "2");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[error] inner: sink: 1\n[error] inner: sink: 2\n");
}

TEST_F(LogTest, ThreadsMayLogAndChangeLevelsAndSinksAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int linesEach = 500;
    auto const heard = std::make_shared<std::atomic<int>>(0);
    auto const listen = [heard] { zu::log::setSink([heard](zu::log::Record const&) { ++*heard; }); };
    listen();
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([i, &listen] {
            std::string const category = "thread" + std::to_string(i % 2);
            for (int line = 0; line < linesEach; ++line) {
                zu::log::setLevel(category, zu::log::error + line % 2);
                zu::log::log(category, zu::log::error, "f", "m");
                listen();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(*heard, threadCount * linesEach);
}

}  // namespace
