#include "robot/side_candidates.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

#include "robot/side_names.hpp"

namespace Varo::Model {

namespace {

using JointsByName = std::unordered_map<std::string_view, std::size_t>;

class CandidateFinder {
public:
    explicit CandidateFinder(Records const& records) : _records(records)
    {
        _found.ofJoint.resize(_records.joints.size());
        _found.isMarked.resize(_records.joints.size());
        for (std::size_t i = 0; i < _records.joints.size(); ++i) {
            _byName.try_emplace(joint(i).name, i);
            _byLink.try_emplace(joint(i).linkName, i);
        }
        _byLink.erase(std::string_view());
    }

    SideCandidates find()
    {
        for (std::size_t i = 0; i < _records.joints.size(); ++i) {
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
        auto const mirror = _byName.find(joint(index).mirrorName);
        if (!_records.statesMirrors || joint(index).mirrorKind == noMirror || mirror == _byName.end()) {
            return;
        }
        JointConfig const& other = joint(mirror->second);
        if (other.mirrorKind != noMirror && other.mirrorName == joint(index).name) {
            add(index, mirror->second, true, true);
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

    bool addNamed(std::size_t index, std::string_view name, JointsByName const& joints)
    {
        SideNames const names = otherSideOf(name);
        _found.isMarked[index] = _found.isMarked[index] || names.areMarked;
        bool isFound = false;
        for (std::string const& other : names.others) {
            if (auto const found = joints.find(other); found != joints.end()) {
                add(index, found->second, false, names.areMarked);
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
    JointsByName _byName;
    JointsByName _byLink;
    SideCandidates _found;
};

}  // namespace

SideCandidates findSideCandidates(Records const& records)
{
    return CandidateFinder(records).find();
}

}  // namespace Varo::Model
