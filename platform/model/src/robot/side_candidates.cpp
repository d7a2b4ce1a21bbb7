#include "robot/side_candidates.hpp"

#include <algorithm>
#include <string>
#include <string_view>

#include "robot/link_tree.hpp"
#include "robot/side_names.hpp"
#include "varo/model/name_index.hpp"

namespace Varo::Model {

namespace {

class CandidateFinder {
public:
    explicit CandidateFinder(Records const& records) : _records(records)
    {
        _found.ofJoint.resize(_records.joints.size());
        _found.isMarked.resize(_records.joints.size());
        _byName.reserve(_records.joints.size());
        _byLink.reserve(_records.joints.size());
        for (std::size_t i = 0; i < _records.joints.size(); ++i) {
            _byName.add(joint(i).name, static_cast<std::uint32_t>(i));
            if (!joint(i).linkName.empty()) {
                _byLink.add(joint(i).linkName, static_cast<std::uint32_t>(i));
            }
        }
    }

    SideCandidates find()
    {
        for (std::size_t i = 0; _records.statesMirrors && i < _records.joints.size(); ++i) {
            addStated(i);
        }
        for (std::size_t i = 0; i < _records.joints.size(); ++i) {
            auto const& known = _found.ofJoint[i];
            if (known.empty() || !_found.all[known.front()].isStated) {
                addNamed(i);
            }
        }
        return std::move(_found);
    }

private:
    JointConfig const& joint(std::size_t index) const { return _records.joints[index]; }

    void addStated(std::size_t index)
    {
        std::size_t const mirror = Model::find(_byName, joint(index).mirrorName);
        if (joint(index).mirrorKind == noMirror || mirror == none) {
            return;
        }
        JointConfig const& other = joint(mirror);
        if (other.mirrorKind != noMirror && other.mirrorName == joint(index).name) {
            add(index, mirror, true, true);
        }
    }

    /// By the joint's own name, else by that of its link.
    void addNamed(std::size_t index)
    {
        bool const isFound = addNamed(index, joint(index).name, _byName);
        bool const isFoundByLink = !isFound && addNamed(index, joint(index).linkName, _byLink);
        if (!isFound && !isFoundByLink && _found.isMarked[index]) {
            _found.alone.push_back(index);
        }
    }

    bool addNamed(std::size_t index, std::string_view name, NameIndex const& joints)
    {
        SideNames const names = otherSideOf(name);
        _found.isMarked[index] = _found.isMarked[index] || names.areMarked;
        bool isFound = false;
        for (std::string const& other : names.others) {
            if (std::size_t const found = Model::find(joints, other); found != none) {
                add(index, found, false, names.areMarked);
                isFound = isFound || names.areMarked;
            }
        }
        return isFound;
    }

    void add(std::size_t one, std::size_t other, bool isStated, bool isMarked)
    {
        auto const isKnown = [&](std::size_t candidate) {
            return _found.all[candidate].first == other || _found.all[candidate].second == other;
        };
        auto const& known = _found.ofJoint[one];
        if (one == other || std::any_of(known.begin(), known.end(), isKnown)) {
            return;
        }
        _found.ofJoint[one].push_back(_found.all.size());
        _found.ofJoint[other].push_back(_found.all.size());
        _found.all.push_back({std::min(one, other), std::max(one, other), isStated, isMarked});
    }

    Records const& _records;
    NameIndex _byName;
    NameIndex _byLink;
    SideCandidates _found;
};

}  // namespace

SideCandidates findSideCandidates(Records const& records)
{
    return CandidateFinder(records).find();
}

}  // namespace Varo::Model
