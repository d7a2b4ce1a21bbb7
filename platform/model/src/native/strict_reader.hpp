#ifndef VARO_MODEL_NATIVE_STRICT_READER_HPP
#define VARO_MODEL_NATIVE_STRICT_READER_HPP

#include "native/names.hpp"
#include "schema/element_reader.hpp"

namespace Varo::Model::Native {

/// Takes nothing that the tables of the native dialect do not allow, and keeps account of all names.
class StrictReader final : public Schema::ElementReader {
public:
    StrictReader(Diagnostics& diagnostics, Records& robot) : ElementReader(diagnostics, robot), _names(diagnostics) {}

    Names& names() { return _names; }

private:
    std::size_t onUnknownAttribute(ElementInfo const& element, pugi::xml_node node,
                                   pugi::xml_attribute attribute) override;
    std::size_t onUnknownChild(ElementInfo const& element, pugi::xml_node child) override;
    void onRepeatedChild(ElementInfo const& element, pugi::xml_node child) override;
    void onUnexpectedText(ElementInfo const& element, pugi::xml_node text) override;
    void onMissingAttribute(ElementInfo const& element, AttributeInfo const& attribute, pugi::xml_node node) override;
    void onMissingChild(ElementInfo const& element, ChildInfo const& child, pugi::xml_node node) override;
    void onWrongValue(AttributeInfo const& row, pugi::xml_node node, pugi::xml_attribute attribute,
                      std::string_view value) override;
    void onName(NameRule const& rule, std::string_view name, pugi::xml_node node,
                pugi::xml_attribute attribute) override;

    void loseName(AttributeInfo const& attribute);

    Names _names;
};

}  // namespace Varo::Model::Native

#endif
