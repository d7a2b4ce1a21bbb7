#ifndef VARO_MODEL_URDF_TOLERANT_READER_HPP
#define VARO_MODEL_URDF_TOLERANT_READER_HPP

#include <string>
#include <string_view>
#include <utility>

#include "schema/element_reader.hpp"
#include "urdf/elements.hpp"
#include "urdf/unknown_names.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// Takes what the tables of URDF allow, keeps the text of what is for other programs, and says what it makes of the
/// rest.
class TolerantReader final : public Schema::ElementReader {
public:
    /// `ownPrefix` is what names of our own namespace begin with.
    TolerantReader(Report const& report, Records& robot, std::string ownPrefix)
        : ElementReader(report.diagnostics, robot), _report(report), _ownPrefix(std::move(ownPrefix))
    {}

    /// What is said of each kind of thing once. To be called when all is read.
    void reportKinds() { _unknown.report(); }

    /// The element that says what is beyond URDF; null for none.
    XmlNode amendment() const { return _amendment; }

private:
    std::size_t onUnknownAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute) override;
    std::size_t onUnknownChild(ElementInfo const& element, XmlNode child) override;
    void onRepeatedChild(ElementInfo const& element, XmlNode child) override;
    void onUnexpectedText(ElementInfo const& element, XmlNode text) override;
    void onMissingAttribute(ElementInfo const& element, AttributeInfo const& attribute, XmlNode node) override;
    void onMissingChild(ElementInfo const& /*element*/, ChildInfo const& /*child*/, XmlNode /*node*/) override {}
    void onWrongValue(AttributeInfo const& row, XmlNode node, XmlAttribute attribute, std::string_view value) override;
    void onName(NameRule const& /*rule*/, std::string_view /*name*/, XmlNode /*node*/,
                XmlAttribute /*attribute*/) override
    {}

    bool isOwn(std::string_view name) const;
    void takeOwn(ElementInfo const& element, XmlNode child);

    Report const& _report;
    std::string _ownPrefix;
    XmlNode _amendment;
    UnknownNames _unknown{_report.diagnostics};
};

}  // namespace Varo::Model::Urdf

#endif
