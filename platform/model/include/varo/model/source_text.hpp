#ifndef VARO_MODEL_SOURCE_TEXT_HPP
#define VARO_MODEL_SOURCE_TEXT_HPP

#include <memory>
#include <string>
#include <vector>

#include "varo/export.hpp"
#include "varo/model/place.hpp"

namespace Varo::Model {

/// The text of a description, which knows where things stand in it.
///
/// Immutable; any number of threads may ask at once. What it takes to turn offsets into places is worked out when
/// somebody asks for the first time, in one walk through the text.
class VAROROBOTMODEL_API SourceText {
public:
    /// Any text, well-formed or not.
    explicit SourceText(std::string text);
    SourceText(SourceText const&) = delete;
    SourceText& operator=(SourceText const&) = delete;
    ~SourceText();

    /// The text itself.
    std::string const& text() const { return _text; }

    /// Line, column and path of what begins at the offset; line 0 and no path for one that is nowhere. Takes time
    /// proportional to the size of the element of the root's that it is in.
    Place place(TextOffset offset) const;
    /// The same of offsets in ascending order, all of them in one walk through the text.
    std::vector<Place> places(std::vector<TextOffset> const& offsets) const;

private:
    class Index;

    std::string _text;
    std::unique_ptr<Index> _index;
};

}  // namespace Varo::Model

#endif
