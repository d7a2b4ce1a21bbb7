#ifndef VARO_MODEL_NATIVE_AMENDMENT_HPP
#define VARO_MODEL_NATIVE_AMENDMENT_HPP

#include <string>
#include <string_view>
#include <vector>

#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

/// What texts of other dialects say of a robot in the words of the native one, because they have none of their own.
namespace Varo::Model::Native {

/// What is different between two records of one robot.
struct Amendment {
    /// A body, joint or sensor that differs.
    struct Part {
        std::string_view element;  ///< what it is in the native dialect
        TextOffset textOffset;  ///< of the wanted record
        std::string said;  ///< the names of what differs: "max, motor, mirror"
    };

    std::string text;  ///< the element, as the only one of its depth; empty when nothing differs
    std::vector<Part> parts;
    std::vector<std::string_view> lists;  ///< the elements of which all are listed, because some differ
};

/// What makes `wanted` of `given`, as an element in the root of a text whose name begins with `prefix`. Of what may be
/// inferred it is for the caller to see that neither has any.
Amendment amendmentOf(Records const& wanted, Records given, std::string_view prefix);

/// The name of that element, without the prefix.
std::string_view amendmentName();

/// Changes the records as the element says.
void readAmendment(XmlNode node, Diagnostics& diagnostics, Records& robot);

}  // namespace Varo::Model::Native

#endif
