#include <iostream>

#include "sim/joint.hpp"
#include "sim/model.hpp"

int main(int, char** arguments)
{
    Sim::Model const model(arguments[1]);
    for (Sim::Joint const* joint : model.joints()) {
        std::cout << joint->name() << '\n';
    }
}
