#include <cstddef>

#include "sim/model.hpp"

extern "C" __attribute__((visibility("default"))) std::size_t countLinks(char const* description)
{
    return Sim::Model(description).links().size();
}
