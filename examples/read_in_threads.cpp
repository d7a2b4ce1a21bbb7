// Reads everything of one model from several threads at once: it is immutable, so that no lock is needed.
#include <future>
#include <iostream>
#include <string>
#include <vector>

#include "failure.hpp"
#include "sim/actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/sensor.hpp"

template <class Element>
std::string describe(std::vector<Element const*> const& elements)
{
    std::string text;
    for (Element const* const element : elements) {
        float const height = Sim::Frame::globalPosition(element->frame())(2, 3);
        text += element->name() + " at z = " + std::to_string(height) + " m\n";
    }
    return text;
}

int main(int count, char** arguments)
try {
    if (count != 2) {
        std::cerr << "Usage: read_in_threads FILE\n";
        return 2;
    }
    Sim::Model const model(arguments[1]);
    auto const readAll = [&model] {
        return describe(model.links()) + describe(model.joints()) + describe(model.actuators()) +
               describe(model.sensors());
    };
    std::vector<std::future<std::string>> others;
    while (others.size() < 4) {
        others.push_back(std::async(std::launch::async, readAll));
    }
    std::string const mine = readAll();
    std::cout << mine;
    for (std::future<std::string>& other : others) {
        std::cout << "Another thread read " << (other.get() == mine ? "the same\n" : "something else\n");
    }
} catch (...) {
    return reportFailure(arguments[1]);
}
