#include <iostream>

#include "sim/frame.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

int main(int, char** arguments)
{
    Sim::Model const model(arguments[1]);
    for (Sim::Link const* link : model.links()) {
        std::cout << link->name() << " at z = " << Sim::Frame::globalPosition(link->frame())(2, 3) << " m\n";
    }
}
