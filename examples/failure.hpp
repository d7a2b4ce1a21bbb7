// What the examples say when they fail.
#ifndef EXAMPLES_FAILURE_HPP
#define EXAMPLES_FAILURE_HPP

#include <exception>
#include <iostream>

#include "varo/model/finding.hpp"

/// Says what the exception that is being handled says of the file: of a description that is refused, all that is wrong
/// with it, and where. Answers the exit status.
inline int reportFailure(char const* file)
{
    try {
        throw;
    } catch (Varo::Model::WithFindings const& refused) {
        for (Varo::Model::Finding const& finding : refused.findings()) {
            std::cerr << file << ':' << finding.line << ':' << finding.column << ": " << finding.message << '\n';
        }
    } catch (std::exception const& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}

#endif
