#include "robot/side_candidates.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "robot/link_tree.hpp"
#include "robot/side_names.hpp"
#include "varo/model/short_lists.hpp"

namespace Varo::Model {

namespace {

class CandidateFinder {
public:
    CandidateFinder(Records const& records, NameIndex const& joints) : _records(records), _byName(joints)
    {
        _ofJoint.resize(_records.joints.size());
        _found.counts.resize(_records.joints.size());
        _found.isMarked.resize(_records.joints.size());
    }

    SideCandidates find()
    {
        for (std::size_t i = 0; _records.statesMirrors && i < _records.joints.size(); ++i) {
            addStated(i);
        }
        for (std::size_t i = 0; i < _records.joints.size(); ++i) {
            auto const known = _candidates.of(_ofJoint[i]);
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
        _names.read(joint(index).name);
        bool isFound = addOthers(index, _byName);
        if (!isFound) {
            _names.read(joint(index).linkName);
            isFound = _names.size() > 0 && addOthers(index, byLink());
        }
        if (!isFound && _found.isMarked[index]) {
            _found.alone.push_back(index);
        }
    }

    /// Whether words of the name that was read led to a counterpart.
    bool addOthers(std::size_t index, NameIndex const& joints)
    {
        _found.isMarked[index] = _found.isMarked[index] || _names.areMarked();
        bool isFound = false;
        for (std::size_t i = 0; i < _names.size(); ++i) {
            if (std::size_t const found = Model::find(joints, _names.other(i)); found != none) {
                add(index, found, false, _names.areMarked());
                isFound = isFound || _names.areMarked();
            }
        }
        return isFound;
    }

    void add(std::size_t one, std::size_t other, bool isStated, bool isMarked)
    {
        auto const isKnown = [&] {
            for (std::uint32_t const candidate : _candidates.of(_ofJoint[one])) {
                if (_found.all[candidate].first == other || _found.all[candidate].second == other) {
                    return true;
                }
            }
            return false;
        };
        if (one == other || isKnown()) {
            return;
        }
        for (std::size_t const joint : {one, other}) {
            _candidates.append(_ofJoint[joint], static_cast<std::uint32_t>(_found.all.size()));
            ++_found.counts[joint];
        }
        _found.all.push_back({std::min(one, other), std::max(one, other), isStated, isMarked});
    }

    /// Made when it is first asked for: of most robots, the joints' own names tell all.
    NameIndex const& byLink()
    {
        if (!_byLink) {
            _byLink.emplace();
            for (std::size_t i = 0; i < _records.joints.size(); ++i) {
                if (!joint(i).linkName.empty()) {
                    _byLink->add(joint(i).linkName, static_cast<std::uint32_t>(i));
                }
            }
        }
        return *_byLink;
    }

    Records const& _records;
    NameIndex const& _byName;
    std::optional<NameIndex> _byLink;
    SideNames _names;
    SideCandidates _found;
    ShortLists<std::uint32_t> _candidates;
    std::vector<ShortLists<std::uint32_t>::List> _ofJoint;  ///< by joint, the indices of its candidates
};

}  // namespace

SideCandidates findSideCandidates(Records const& records, NameIndex const& joints)
{
    return CandidateFinder(records, joints).find();
}

}  // namespace Varo::Model
