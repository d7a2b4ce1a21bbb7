#ifndef VARO_MODEL_FINDING_HPP
#define VARO_MODEL_FINDING_HPP

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "varo/export.hpp"

namespace Varo::Model {

/// An error refuses the description; a warning is about something that loads but is hardly meant; a note says what the
/// reader passed over.
enum class Severity { note, warning, error };

/// Something worth saying about a description, with its place in the text.
struct Finding {
    Severity severity = Severity::error;  ///< whether the description is refused for it
    std::string code;  ///< stable, for programs: lower-case words joined by hyphens
    int line = 0;  ///< from 1
    int column = 0;  ///< from 1, in characters (code points) of the line
    std::string path;  ///< of the element: /robotDescription/joint[@name="HeadYaw"]/placement
    std::string message;  ///< one sentence that says what is wrong
    std::string hint;  ///< what to do about it; may be empty
};

/// In the order of their places in the text.
using Findings = std::vector<Finding>;

/// Thrown for a description text that is refused. Copies share the findings; never empty of errors.
class VAROROBOTMODEL_API DescriptionError : public std::invalid_argument {
public:
    /// `findings` should hold an error.
    DescriptionError(std::string const& what, Findings findings)
        : std::invalid_argument(what), _findings(std::make_shared<Findings const>(std::move(findings)))
    {}

    /// All findings of the text, warnings and notes included; the reference lives as long as any copy of the error.
    Findings const& findings() const noexcept { return *_findings; }

private:
    std::shared_ptr<Findings const> _findings;
};

}  // namespace Varo::Model

#endif
