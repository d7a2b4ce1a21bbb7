#ifndef VARO_MODEL_DIAGNOSTICS_HPP
#define VARO_MODEL_DIAGNOSTICS_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "finding_codes.hpp"
#include "varo/model/finding.hpp"

namespace Varo::Model {

/// Where in the text a finding is: an offset in bytes and the path of the element around it.
///
/// Made from the very thing that is being read, so that no finding can be without its place:
///
///     diagnostics.report(node, codes::missingElement, "...");                          // the element's `<`
///     diagnostics.report({node, attribute}, codes::wrongValue, "...", "a hint");        // the attribute's name
///     diagnostics.report({node, "parent"}, codes::danglingReference, "...");            // the attribute of that name
class Place {
public:
    /// The start of an element's tag, or of a text's first character.
    Place(pugi::xml_node node);  // NOLINT(google-explicit-constructor): a node is a place
    /// The name of one of the element's attributes; the element itself when `attribute` is null.
    Place(pugi::xml_node node, pugi::xml_attribute attribute);
    Place(pugi::xml_node node, char const* attribute);
    /// Any place, for what is found before there are nodes.
    Place(std::size_t offset, std::string path);

    std::size_t offset() const { return _offset; }
    std::string const& path() const { return _path; }

private:
    std::size_t _offset;
    std::string _path;
};

/// The one sink of everything that is found in one text. Passed by reference to whoever reads.
///
/// Findings may be reported in any order. The first `maximumFindings` are kept; the rest is counted, and stands in the
/// list as one last finding as grave as the gravest of them.
class Diagnostics {
public:
    static constexpr std::size_t maximumFindings = 1000;

    /// `text` is the very text that the nodes were parsed from; it must outlive the sink.
    explicit Diagnostics(std::string_view text) : _text(text) {}

    /// `message` is one sentence, with a full stop, that says what is wrong; `hint` one that says what to do about it.
    /// Texts of the input enter both through `quoted`.
    void report(Place const& place, FindingCode const& code, std::string message, std::string hint = {});

    /// Counts a finding for which there is no room any more; false, with nothing done, while there is. To be asked
    /// before a finding that is dear to make.
    bool countIfFull(FindingCode const& code);

    bool hasErrors() const { return _hasErrors; }

    /// All findings in the order of their places, with line and column. Leaves the sink empty.
    Findings take();

private:
    struct Record {
        std::size_t offset;
        Finding finding;
    };

    void fillLinesAndColumns();
    Finding overflowFinding() const;

    std::string_view _text;
    std::vector<Record> _records;
    std::size_t _dropped = 0;
    Severity _gravestDropped = Severity::note;
    bool _hasErrors = false;
};

/// A text of the input as messages show it: in double quotes, cut when it is long, without control characters or
/// broken UTF-8.
std::string quoted(std::string_view text);

/// One step of a path: `joint[@name="HeadYaw"]`, or just `joint` for an element without a name.
std::string pathStep(std::string_view element, std::string_view name);

}  // namespace Varo::Model

#endif
