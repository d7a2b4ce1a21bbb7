#include "robot/cycles.hpp"

#include <gmock/gmock.h>

namespace Varo::Model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Cycles, AreFoundOnceEachFromTheirLowestMember)
{
    EXPECT_THAT(findCycles({}), IsEmpty());
    EXPECT_THAT(findCycles({none, 0, 1, 0}), IsEmpty());
    EXPECT_THAT(findCycles({0}), ElementsAre(Cycle{0}));
    // 0 leads into 3 -> 1 -> 2 -> 3, 4 is its own parent, 5 leads into that, 6 is attached to nothing.
    EXPECT_THAT(findCycles({3, 2, 3, 1, 4, 4, none}), ElementsAre(Cycle{1, 2, 3}, Cycle{4}));
}

TEST(Cycles, ThingsWithoutThemCanBePutBehindTheirParents)
{
    EXPECT_THAT(parentsFirst({}), IsEmpty());
    EXPECT_THAT(parentsFirst({2, none, 3, none, 0, 2}), ElementsAre(3, 2, 0, 1, 4, 5));
}

}  // namespace
}  // namespace Varo::Model
