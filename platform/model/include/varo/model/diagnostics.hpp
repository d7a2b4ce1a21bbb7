#ifndef VARO_MODEL_DIAGNOSTICS_HPP
#define VARO_MODEL_DIAGNOSTICS_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "varo/export.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/place.hpp"
#include "varo/model/source_text.hpp"

namespace Varo::Model {

/// The one sink of what is found in one text: by the reader, by the rules, by the building of a model. Passed by
/// reference to whoever looks.
///
/// Findings may be reported in any order; where they stand is worked out when somebody wants to see them. The first
/// `maximumFindings`, or fewer for those who want that, are kept; the others are counted, and stand in the list as one
/// last finding of the highest severity among them. For one thread at a time.
class VAROROBOTMODEL_API Diagnostics {
public:
    /// How many findings are kept.
    static constexpr std::size_t maximumFindings = 1000;

    /// `source` must outlive the sink. Without a text (null), findings have no place.
    explicit Diagnostics(SourceText const* source, std::size_t mostFindings = maximumFindings)
        : _source(source), _mostFindings(mostFindings)
    {}

    /// `message` is one sentence, with a full stop, that says what is wrong; `hint` one that says what to do about it.
    /// Texts of the input enter both through `quoted`.
    void report(TextOffset offset, FindingCode const& code, std::string message, std::string hint = {});

    /// Reports an error that says what has become of what was reported at the same offset, which it replaces. Without a
    /// hint of its own it takes over theirs.
    void escalate(TextOffset offset, FindingCode const& code, std::string message, std::string hint = {});

    /// Counts a finding for which there is no room any more; false, with nothing done, while there is. To be asked
    /// before a finding that takes long to make.
    bool countIfFull(FindingCode const& code);

    /// Whether one of the findings, kept or counted, is an error.
    bool hasErrors() const { return _hasErrors; }
    /// Null without a text.
    SourceText const* source() const { return _source; }

    /// All findings in the order of their places.
    Findings findings() const;

private:
    struct Record {
        TextOffset offset;
        Severity severity;
        std::string_view code;
        std::string message;
        std::string hint;
    };

    std::vector<Record const*> inTextOrder() const;
    Finding overflowFinding() const;

    SourceText const* _source;
    std::size_t _mostFindings;
    std::vector<Record> _records;
    std::size_t _dropped = 0;
    Severity _highestDropped = Severity::note;
    bool _hasErrors = false;
};

/// A text of the input as messages show it: in double quotes, cut when it is long, without control characters or
/// broken UTF-8.
VAROROBOTMODEL_API std::string quoted(std::string_view text);

}  // namespace Varo::Model

#endif
