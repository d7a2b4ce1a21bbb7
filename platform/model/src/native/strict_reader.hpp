#ifndef VARO_MODEL_NATIVE_STRICT_READER_HPP
#define VARO_MODEL_NATIVE_STRICT_READER_HPP

#include <utility>

#include "native/names.hpp"
#include "schema/element_reader.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

/// Takes nothing that the tables of the native dialect do not allow, and keeps account of all names.
class StrictReader final : public Schema::ElementReader {
public:
    StrictReader(Diagnostics& diagnostics, Records& robot) : ElementReader(diagnostics, robot), _names(diagnostics) {}

    Names& names() { return _names; }

    /// Changes what an element says in a record that another text has made: an attribute that is there changes its
    /// value, children of one name replace all of that name, and those that the attribute `without` lists go.
    template <class Record>
    void amend(Element<Record> const& element, XmlNode node, Record& record);

private:
    std::size_t onUnknownAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute) override;
    std::size_t onUnknownChild(ElementInfo const& element, XmlNode child) override;
    void onRepeatedChild(ElementInfo const& element, XmlNode child) override;
    void onUnexpectedText(ElementInfo const& element, XmlNode text) override;
    void onMissingAttribute(ElementInfo const& element, AttributeInfo const& attribute, XmlNode node) override;
    void onMissingChild(ElementInfo const& element, ChildInfo const& child, XmlNode node) override;
    void onWrongValue(AttributeInfo const& row, XmlNode node, XmlAttribute attribute, std::string_view value) override;
    void onName(NameRule const& rule, std::string_view name, XmlNode node, XmlAttribute attribute) override;

    void loseName(AttributeInfo const& attribute);
    void checkLeftOut(Infos<ChildInfo> const& children, XmlNode node);

    Names _names;
    XmlNode _amendment;  ///< the element that is read to change a record
};

/// The attribute that lists children, by their names, which an amendment takes away.
inline constexpr char leftOut[] = "without";

/// Whether an amendment says what becomes of the children of that name.
bool isAmended(ChildInfo const& child, XmlNode amendment);

template <class Record>
void StrictReader::amend(Element<Record> const& element, XmlNode node, Record& record)
{
    checkLeftOut(element.children, node);
    for (Child<Record> const& row : element.childRows) {
        if (row.clear != nullptr && isAmended(row, node)) {
            row.clear(record);
        }
    }
    XmlNode const around = std::exchange(_amendment, node);
    read(element, node, record);
    _amendment = around;
}

}  // namespace Varo::Model::Native

#endif
