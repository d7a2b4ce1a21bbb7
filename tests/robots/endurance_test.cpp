#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "example_robots.hpp"

namespace {

/// Of this process, in bytes.
long memoryInUse()
{
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long residentPages = 0;
    statm >> pages >> residentPages;
    return residentPages * sysconf(_SC_PAGESIZE);
}

void loadAndDrop(int times)
{
    std::string const humanoid = Tests::examplePath("humanoid");
    for (int i = 0; i < times; ++i) {
        Sim::Model const model(humanoid);
        ASSERT_NE(model.rootLink(), nullptr);
    }
}

// What stayed behind of each model would add up. Sanitizers keep freed memory for a while; they see leaks themselves.
TEST(Endurance, MemoryStaysFlatWhileModelsComeAndGo)
{
    loadAndDrop(VARO_LOADS / 10);
    long const before = memoryInUse();
    ASSERT_GT(before, 0);
    loadAndDrop(VARO_LOADS);
    long const growth = memoryInUse() - before;
    RecordProperty("growth", std::to_string(growth));
#ifndef VARO_SANITIZED
    EXPECT_LT(growth, 2 << 20) << "bytes, in " << VARO_LOADS << " loads";
#endif
}

}  // namespace
