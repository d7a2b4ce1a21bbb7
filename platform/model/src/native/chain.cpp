#include <utility>

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"

namespace Varo::Model::Native {

namespace {

struct JointRef {
    std::string name;
};

constexpr Attribute jointRefAttributes[] = {required<&JointRef::name, Name>("name", "", "a joint of the description")};
constexpr Element jointRefElement{"jointRef", "the next joint of the chain, from the parent outward",
                                  jointRefAttributes};

void readJointRef(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    JointRef reference;
    reader.read(element, node, &reference);
    auto& chain = *static_cast<ChainConfig*>(parent);
    chain.jointNames.push_back(std::move(reference.name));
    chain.jointOffsets.push_back(at(node));
}

void writeJointRefs(ElementWriter& writer, Element const& element, void const* parent)
{
    for (std::string const& name : static_cast<ChainConfig const*>(parent)->jointNames) {
        JointRef const reference = {name};
        writer.write(element, &reference);
    }
}

constexpr Attribute chainAttributes[] = {
    required<&ChainConfig::name, Name>("name", "", "what the chain is called"),
    required<&ChainConfig::parentJoint, Name>("parent", "", "the joint that the chain hangs on, or the root"),
    optional<&ChainConfig::tipName>("tip", "", "", "what the chain's tool is called; carried"),
};
constexpr Child chainChildren[] = {
    poseChild<&ChainConfig::placement>(chainPlacementElement),
    poseChild<&ChainConfig::tipTransform>(tipPlacementElement),
    {&jointRefElement, Occurrence::any, readJointRef, writeJointRefs},
};
}  // namespace

Element const chainElement{"chain", "a serial chain of joints", chainAttributes, chainChildren};

void readChain(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    ChainConfig chain;
    reader.read(element, node, &chain);
    reader.define(NameIndex::chain, static_cast<Records*>(parent)->chains, std::move(chain), node);
}

}  // namespace Varo::Model::Native
