#include <string>
#include <utility>

#include "native/elements.hpp"
#include "native/pose.hpp"
#include "schema/children.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

constexpr Attribute<std::string> jointRefAttributes[] = {
    whole<Name>("name", "a joint of the description").with(names::chainJoint),
};
constexpr Element<std::string> jointRefElement{"jointRef", "the next joint of the chain, from the parent outward",
                                               jointRefAttributes};

void readJointRef(ElementReader& reader, XmlNode node, ChainConfig& chain)
{
    reader.read(jointRefElement, node, chain.jointNames.emplace_back());
    chain.jointOffsets.push_back(at(node));
}

constexpr Attribute<ChainConfig> attributes[] = {
    named<&ChainConfig::name>("name", names::ofChain, "what the chain is called"),
    named<&ChainConfig::parentJoint>("parent", names::chainParent,
                                     "the joint that the chain is attached to, or the root"),
    optional<&ChainConfig::tipName>("tip", "", "", "what the chain's tool is called; carried"),
};
constexpr Child<ChainConfig> children[] = {
    poseChild<&ChainConfig::placement, chainPlacementElement>(),
    poseChild<&ChainConfig::tipTransform, tipPlacementElement>(),
    {{&jointRefElement, Occurrence::any}, readJointRef, childrenOf<&ChainConfig::jointNames, jointRefElement>().write},
};

}  // namespace

constexpr Element<ChainConfig> chainElement{"chain", "a serial chain of joints", attributes, children};

}  // namespace Varo::Model::Native
