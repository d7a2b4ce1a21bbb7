#ifndef VARO_MODEL_PLACED_FINDINGS_HPP
#define VARO_MODEL_PLACED_FINDINGS_HPP

#include <memory>
#include <string>
#include <string_view>

#include "varo/export.hpp"
#include "varo/model/finding.hpp"

namespace Varo::Model {

/// Collects what somebody finds out about the elements of a description after it was read, and finds their places in
/// its text, of either dialect.
///
/// For one thread at a time.
class VAROROBOTMODEL_API PlacedFindings {
public:
    /// `xml` is a text that reads without errors; it must outlive the object.
    explicit PlacedFindings(std::string const& xml);
    PlacedFindings(PlacedFindings const&) = delete;
    PlacedFindings& operator=(PlacedFindings const&) = delete;
    ~PlacedFindings();

    /// What a finding is about, as the native dialect calls it, whatever that of the text. What the text does not have,
    /// such as an element without a name, stands for the root element.
    struct Subject {
        /// "root", "joint", "chain", "actuator", "wheel", "sensor", "posture", or "angle" for what the posture
        /// "StandInit" says of a joint or an actuator.
        std::string_view element;
        std::string_view name;  ///< of the record; for an angle, of the joint or actuator
        /// Which part of the element, as an XPath: "@min", "mass", "mass/@inertia". Empty for the whole.
        std::string_view part = {};
    };

    /// The place is that of the part; if it is not written down, of the nearest element around it that is.
    void add(Subject const& subject, Severity severity, std::string_view code, std::string message,
             std::string hint = {});

    /// The text of the attribute that the subject's part names; empty when it is not written down.
    std::string textOf(Subject const& subject) const;

    /// All findings in the order of their places. Leaves the object empty.
    Findings take();

    /// A name as messages show it: in double quotes, cut when it is long, without control characters.
    static std::string quoted(std::string_view name);

private:
    class Text;

    std::unique_ptr<Text> _text;
};

}  // namespace Varo::Model

#endif
