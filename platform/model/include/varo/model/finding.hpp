#ifndef VARO_MODEL_FINDING_HPP
#define VARO_MODEL_FINDING_HPP

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
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
    int line = 0;  ///< from 1; 0 when it is about no place in the text
    int column = 0;  ///< from 1, in characters (code points) of the line
    std::string path;  ///< of the element: /robotDescription/joint[@name="HeadYaw"]/placement
    std::string message;  ///< one sentence that says what is wrong
    std::string hint;  ///< what to do about it; may be empty
};

/// In the order of their places in the text.
using Findings = std::vector<Finding>;

/// The first error with its place, and how many there are beside it: "3:5: There is no link "arm". (and 2 more)". Empty
/// when none is an error.
VAROROBOTMODEL_API std::string summaryOf(Findings const& findings);

/// A kind of finding.
struct FindingCode {
    std::string_view name;  ///< lower-case words joined by hyphens; a string literal, which lives for ever
    Severity severity;  ///< what all findings of the kind have
    std::string_view meaning;  ///< one sentence for the documentation
};

/// What every exception has that a description caused, beside its type of the standard library:
///
///     catch (std::exception const& error) {
///         if (auto const* caused = dynamic_cast<Varo::Model::WithFindings const*>(&error)) ...
class VAROROBOTMODEL_API WithFindings {
public:
    /// All findings of the text, warnings and notes included; the reference lives as long as any copy of the exception.
    /// Empty for an exception that was moved from.
    Findings const& findings() const noexcept;

protected:
    /// What the exception carries; copies share it.
    explicit WithFindings(Findings findings) : _findings(std::make_shared<Findings const>(std::move(findings))) {}
    /// Shares the findings.
    WithFindings(WithFindings const&) = default;
    /// Takes over the findings.
    WithFindings(WithFindings&&) = default;
    /// Shares the findings.
    WithFindings& operator=(WithFindings const&) = default;
    /// Takes over the findings.
    WithFindings& operator=(WithFindings&&) = default;
    virtual ~WithFindings();

private:
    std::shared_ptr<Findings const> _findings;
};

/// Thrown for a description text that is refused. Copies share the findings, of which at least one is an error.
class VAROROBOTMODEL_API DescriptionError : public std::invalid_argument, public WithFindings {
public:
    /// `findings` should hold an error.
    DescriptionError(std::string const& what, Findings findings)
        : std::invalid_argument(what), WithFindings(std::move(findings))
    {}
    /// Shares the findings.
    DescriptionError(DescriptionError const&) = default;
    /// Takes over the findings.
    DescriptionError(DescriptionError&&) = default;
    /// Shares the findings.
    DescriptionError& operator=(DescriptionError const&) = default;
    /// Takes over the findings.
    DescriptionError& operator=(DescriptionError&&) = default;
    ~DescriptionError() override;
};

}  // namespace Varo::Model

#endif
