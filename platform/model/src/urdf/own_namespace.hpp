#ifndef VARO_MODEL_URDF_OWN_NAMESPACE_HPP
#define VARO_MODEL_URDF_OWN_NAMESPACE_HPP

#include <string>
#include <string_view>

#include "xml/document.hpp"

/// The namespace of the elements in which a URDF text says what URDF has no words for. Other programs pass over them.
namespace Varo::Model::Urdf {

inline constexpr std::string_view ownNamespace = "urn:varorobotmodel:description";
inline constexpr std::string_view usualPrefix = "varo";
inline constexpr std::string_view declaringAttribute = "xmlns:";

/// Whether the attribute gives a prefix to our namespace.
inline bool declaresOwnNamespace(XmlAttribute attribute)
{
    std::string_view const name = attribute.name();
    return name.substr(0, declaringAttribute.size()) == declaringAttribute && attribute.value() == ownNamespace;
}

/// What names of our namespace begin with: the prefix that the root declares for it, or the usual one, which may go
/// without; empty where that is another namespace's.
inline std::string ownPrefix(XmlNode root)
{
    for (XmlAttribute const attribute : root.attributes()) {
        if (declaresOwnNamespace(attribute)) {
            return std::string(attribute.name().substr(declaringAttribute.size())) + ":";
        }
    }
    std::string const usual(usualPrefix);
    bool const isTaken(root.attribute(std::string(declaringAttribute) + usual));
    return isTaken ? std::string() : usual + ":";
}

}  // namespace Varo::Model::Urdf

#endif
