#ifndef TOOL_SUPPORT_JSON_PARTS_HPP
#define TOOL_SUPPORT_JSON_PARTS_HPP

#include <vector>

#include "sim/frame.hpp"
#include "support/json.hpp"
#include "varo/math/transform.hpp"

/// What the JSON of several kinds of elements is put together from.
namespace Tool {

/// How an element refers to another one.
template <class Element>
Json nameOrNull(Element const* element)
{
    return element == nullptr ? Json(nullptr) : Json(element->name());
}

template <class Element>
Json namesOf(std::vector<Element const*> const& elements)
{
    Json names = Json::array();
    for (Element const* element : elements) {
        names.push_back(nameOrNull(element));
    }
    return names;
}

inline Json matrixOf(Varo::Math::Transform const& transform)
{
    return transform.toMatrix();
}

inline Json localPosition(Sim::Frame const* frame)
{
    return frame == nullptr ? Json(nullptr) : matrixOf(frame->localPosition());
}

}  // namespace Tool

#endif
