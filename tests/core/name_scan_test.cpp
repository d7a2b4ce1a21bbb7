#include "core/name_scan.hpp"

#include <string>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

namespace {

using Sim::NameScan;

class Named {
public:
    Named(std::string const& name, int number) : _name(name), _number(number) {}
    std::string const& name() const { return _name; }
    int number() const { return _number; }

private:
    std::string _name;
    int _number;
};
using Registry = std::vector<boost::shared_ptr<Named>>;

/// So many that a good number of them share their hash with another one.
Registry manyNames()
{
    Registry registry;
    for (int i = 0; i < 5000; ++i) {
        registry.push_back(boost::make_shared<Named>("name_" + std::to_string(i), i));
    }
    return registry;
}

TEST(NameScan, TellsNamesOfTheSameHashApartAndAnswersTheFirstThatIsMeant)
{
    Registry registry = manyNames();
    registry.push_back(boost::make_shared<Named>("name_0", 5000));
    registry.push_back(boost::make_shared<Named>("name_0", 5001));
    NameScan const scan;
    for (int i = 0; i < 10000; ++i) {
        auto const found = scan.find("name_" + std::to_string(i), registry);
        ASSERT_EQ(found, i < 5000 ? registry[static_cast<std::size_t>(i)] : nullptr);
    }
    EXPECT_EQ(scan.find("name_0", registry, [](Named const& each) { return each.number() > 0; })->number(), 5000);
    EXPECT_EQ(scan.find("name_0", registry, [](Named const& each) { return each.number() < 0; }), nullptr);
    EXPECT_EQ(NameScan().find("name_0", Registry()), nullptr);
}

}  // namespace
