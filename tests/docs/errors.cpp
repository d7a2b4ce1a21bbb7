// The snippets of docs/errors.md, which a test looks for here.
#include <exception>
#include <iostream>
#include <string>

#include "sim/kinematics.hpp"
#include "sim/model.hpp"

namespace {

void load(std::string const& file)
{
    try {
        Sim::Model const model(file);
    } catch (Varo::Model::WithFindings const& refused) {
        for (Varo::Model::Finding const& finding : refused.findings()) {
            std::cerr << file << ':' << finding.line << ':' << finding.column << ": " << finding.message << '\n';
        }
    } catch (std::exception const& error) {  // what no description caused
        std::cerr << error.what() << '\n';
    }
}

void read(std::string const& text)
{
    Varo::Model::ModelUtils::Reading reading = Varo::Model::ModelUtils::read(text);
    for (Varo::Model::Finding const& finding : reading.findings) {
        bool const isError = finding.severity == Varo::Model::Severity::error;
        std::cerr << (isError ? "refused: " : "accepted: ") << finding.code << " at " << finding.path << '\n';
    }
    if (reading.robot != nullptr) {
        Sim::Model const model(std::move(reading));
        std::cout << model.name() << " has " << model.findings().size() << " findings\n";
    }
}

void pose(Sim::Model const& model)
{
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics);
    try {
        configuration.set("Elbow", 0.5);
    } catch (std::invalid_argument const& error) {
        std::cerr << error.what() << '\n';
    }
}

}  // namespace

int main()
{
    load("<robotDescription name=\"A\"><root/><joint/></robotDescription>");
    load("no-such-file.xml");
    load("/");
    read("<robotDescription/>");
    read(
        "<robotDescription name=\"A\"><root name=\"B\"/><sensor name=\"S\" parent=\"C\" "
        "type=\"bumper\"/></robotDescription>");
    pose(Sim::Model("<robotDescription name=\"A\"><root name=\"B\"/></robotDescription>"));
}
