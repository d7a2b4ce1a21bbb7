#ifndef VARO_MODEL_URDF_EXTENDING_WRITER_HPP
#define VARO_MODEL_URDF_EXTENDING_WRITER_HPP

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "schema/element_writer.hpp"
#include "urdf/schema.hpp"
#include "urdf/sensor_statement.hpp"
#include "urdf/statements_of.hpp"
#include "varo/model/name_hash.hpp"

namespace Varo::Model::Urdf {

/// Writes a `robot` and, where they stood, extensions that its records have kept: the way back from `Extensions`.
///
/// An element between an owner and an extension that nothing else needs is written for the extension alone. What has no
/// place in the text is left out.
class ExtendingWriter final : public Schema::ElementWriter {
public:
    ExtendingWriter(Records const& records, StatementsOf const& statements,
                    std::vector<ExtensionConfig> const& extensions, ShortPoses& poses);

    void writeRobot() { write(robotElement, _statements.robot()); }

    /// Where the text can take more of the robot: attributes, and lines behind all others.
    std::size_t attributesEnd() const { return _attributesEnd; }
    std::size_t linesEnd() const { return _linesEnd; }

private:
    struct Kept {
        ExtensionConfig const* extension;
        bool isWritten = false;
    };
    /// Those of one owner, in the order of where they stand in it.
    using Group = std::vector<Kept>;
    using Owner = std::pair<ExtensionOwner, std::string_view>;

    /// An element that is open.
    struct Level {
        Group* group = nullptr;  ///< of the owner that it stands in; null for none
        std::string path;  ///< from the owner's element inward
        std::unordered_map<std::string, std::size_t, NameHash> ranks;  ///< how many children of each name it has by now
        std::unordered_set<std::string, NameHash> attributes;
    };

    void openTag(std::string_view name) override;
    void writeAttribute(std::string_view name, std::string_view value) override;
    void endAttributes() override;
    void closeTag(std::string_view name) override;

    Group* groupOf(Owner const& owner);
    Group* ownGroupOf(std::string_view element, std::size_t rank);
    std::pair<std::size_t, std::size_t> inside(Level const& level) const;
    void appendAttributeOnce(std::string_view markup);
    void writeElements(std::size_t depth);
    void writeMissingParts(std::size_t depth);
    void writeMissingPart(std::string const& step);
    void writeReferences();
    void writeSensors();
    void writeTree(SensorStatement const& statement);

    StatementsOf const& _statements;
    ShortPoses& _poses;
    std::map<Owner, Group> _groups;
    std::vector<Level> _levels;
    std::size_t _attributesEnd = 0;
    std::size_t _linesEnd = 0;
    Group* _referenced = nullptr;  ///< the owner that the next `gazebo` refers to
};

}  // namespace Varo::Model::Urdf

#endif
