#include <exception>
#include <iostream>

#include "sim/frame.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

int main(int count, char** arguments)
try {
    if (count != 2) {
        std::cerr << "Usage: heights FILE\n";
        return 2;
    }
    Sim::Model const model(arguments[1]);
    for (Sim::Link const* link : model.links()) {
        std::cout << link->name() << " at z = " << Sim::Frame::globalPosition(link->frame())(2, 3) << " m\n";
    }
} catch (Varo::Model::WithFindings const& refused) {
    for (Varo::Model::Finding const& finding : refused.findings()) {
        std::cerr << arguments[1] << ':' << finding.line << ':' << finding.column << ": " << finding.message << '\n';
    }
    return 1;
} catch (std::exception const& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
