#include "compare/robot_facts.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>
#include <sstream>

#include <pugixml.hpp>

#include "varo/math/transform.hpp"
#include "varo/model/model_utils.hpp"
#include "varo/model/records.hpp"

namespace Tool {

namespace {

using Varo::Math::Transform;
using Varo::Model::TextOffset;
using Numbers = std::vector<double>;

/// Attributes whose values are words, even where they look like numbers.
std::set<std::string> const wordAttributes = {"name",   "link",   "parent",  "joint",   "actuator", "leader",
                                              "mesh",   "file",   "type",    "texture", "format",   "within",
                                              "source", "sensor", "version", "of"};

/// What holds of a vector that is not stated.
std::map<std::string, Numbers> const unstatedVectors = {{"com", Numbers(3)}, {"inertia", Numbers(9)}};

/// Empty when one of the words is no number.
Numbers numbersIn(std::string const& text)
{
    Numbers numbers;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        double value = std::numeric_limits<double>::infinity();
        char const* const end = word.data() + word.size();
        auto const [stop, error] = std::from_chars(word.data(), end, value);
        if (word != "unlimited" && (error != std::errc() || stop != end)) {
            return {};
        }
        numbers.push_back(value);
    }
    return numbers;
}

Transform poseOf(pugi::xml_node element)
{
    auto const numbers = [&](char const* attribute, std::size_t count) {
        Numbers values = numbersIn(element.attribute(attribute).value());
        values.resize(count);
        return std::vector<float>(values.begin(), values.end());
    };
    if (element.attribute("matrix")) {
        std::vector<float> const values = numbers("matrix", 12);
        std::array<float, 12> rows = {};
        std::copy(values.begin(), values.end(), rows.begin());
        return Transform::fromRows(rows);
    }
    std::vector<float> const xyz = numbers("xyz", 3);
    std::vector<float> const rpy = numbers("rpy", 3);
    return Transform::fromPosition(xyz[0], xyz[1], xyz[2]) * Transform::fromRpy(rpy[0], rpy[1], rpy[2]);
}

Numbers rowsOf(Transform const& pose)
{
    Numbers numbers;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            numbers.push_back(static_cast<double>(pose(row, column)));
        }
    }
    return numbers;
}

bool isPose(std::string const& tag)
{
    return tag == "placement" || tag == "end" || tag == "tipPlacement";
}

/// "xyz 0 0 0.1 rpy 0 0 1.57"
std::string attributesOf(pugi::xml_node element)
{
    std::string text;
    for (pugi::xml_attribute const attribute : element.attributes()) {
        text += (text.empty() ? "" : " ") + std::string(attribute.name()) + " " + attribute.value();
    }
    return text;
}

/// White space between the words of a text is not what it says.
std::string wordsOf(std::string const& text)
{
    std::string result;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        result += (result.empty() ? "" : " ") + word;
    }
    return result;
}

/// What tells an element from others of its tag; empty for nothing.
std::string identityOf(pugi::xml_node element)
{
    std::string const name = element.attribute("name").value();
    std::string const tag = element.name();
    if (tag == "transmission") {
        return name + " of " + element.attribute("joint").value();
    }
    return !name.empty()         ? name
           : tag == "prettyName" ? element.attribute("index").value()
                                 : element.attribute("of").value();
}

bool isIdentity(std::string const& attribute)
{
    return attribute == "name" || attribute == "of";
}

/// Collects what an element of the native dialect says, which is as deep as that dialect allows.
class FactCollector {
public:
    explicit FactCollector(Facts& facts) : _facts(facts) {}

    void collect(pugi::xml_node element, std::string const& path)
    {
        for (pugi::xml_attribute const attribute : element.attributes()) {
            addAttribute(element, attribute, path);
        }
        std::map<std::string, int> counts;
        for (pugi::xml_node const child : element.children()) {
            if (child.type() == pugi::node_element) {
                addChild(child, path, counts);
            } else {
                add(join(path, "text"), {wordsOf(child.value())});
            }
        }
    }

private:
    static std::string join(std::string const& path, std::string const& name)
    {
        return path.empty() ? name : path + " " + name;
    }

    void add(std::string const& path, Fact fact) { _facts.emplace(path, std::move(fact)); }

    void addAttribute(pugi::xml_node element, pugi::xml_attribute attribute, std::string const& path)
    {
        std::string const name = attribute.name();
        bool const isWord = wordAttributes.count(name) > 0 || std::string(element.name()) == "attribute";
        if (isIdentity(name) && !identityOf(element).empty() && std::string(element.name()) != "root") {
            return;
        }
        auto const unstated = unstatedVectors.find(name);
        add(join(path, name), {attribute.value(), isWord ? Numbers() : numbersIn(attribute.value()),
                               unstated == unstatedVectors.end() ? Numbers() : unstated->second});
    }

    void addChild(pugi::xml_node child, std::string const& path, std::map<std::string, int>& counts)
    {
        std::string const tag = child.name();
        std::string const identity = identityOf(child);
        std::string name = identity.empty() ? tag : tag + " " + identity;
        int const count = ++counts[name];
        name = join(path, count == 1 ? name : name + "[" + std::to_string(count) + "]");
        if (isPose(tag)) {
            add(name, {attributesOf(child), rowsOf(poseOf(child)), rowsOf(Transform())});
            return;
        }
        if (tag == "jointRef" || tag == "subJoint") {  // whose order means something
            Fact& order = _facts[join(path, "joints")];
            order.text += (order.text.empty() ? "" : ", ") + identity;
        }
        std::size_t const before = _facts.size();
        collect(child, name);
        if (_facts.size() == before && tag != "jointRef") {
            add(name, {"stated"});
        }
    }

    Facts& _facts;
};

/// Where the records stand in their text, in the order in which the native dialect writes those of a kind.
std::map<std::string, std::vector<TextOffset>> offsetsOf(Varo::Model::Robot const& robot)
{
    auto const records = Varo::Model::recordsOf(robot);
    std::map<std::string, std::vector<TextOffset>> offsets;
    auto const add = [&](char const* kind, auto const& table) {
        for (auto const& record : table) {
            offsets[kind].push_back(record.textOffset);
        }
    };
    offsets["root"] = {records->root.textOffset};
    add("joint", records->joints);
    add("chain", records->chains);
    add("actuator", records->actuators);
    add("wheel", records->wheels);
    add("sensor", records->sensors);
    add("posture", records->postures);
    add("transmission", records->transmissions);
    return offsets;
}

}  // namespace

std::vector<FactRecord> factsOf(Varo::Model::Robot const& robot)
{
    std::string const text = Varo::Model::ModelUtils::toXml(robot);
    pugi::xml_document document;
    document.load_buffer(text.data(), text.size());
    pugi::xml_node const whole = document.document_element();
    std::vector<FactRecord> records;
    records.push_back({"robot", "", 0, {}});
    for (pugi::xml_attribute const attribute : whole.attributes()) {
        records.back().facts[attribute.name()] = {attribute.value()};
    }
    auto const offsets = offsetsOf(robot);
    std::map<std::string, std::size_t> counts;
    for (pugi::xml_node const element : whole.children()) {
        FactRecord record;
        record.kind = element.name();
        record.name = record.kind == "root" ? "" : identityOf(element);
        std::size_t const index = counts[record.kind]++;
        auto const known = offsets.find(record.kind);
        if (known != offsets.end() && index < known->second.size()) {
            record.line = robot.place(known->second[index]).line;
        }
        if (record.kind == "extension") {
            record.name = attributesOf(element);
        }
        FactCollector(record.facts).collect(element, "");
        records.push_back(std::move(record));
    }
    return records;
}

bool saySame(Fact const* a, Fact const* b, double tolerance)
{
    if (a != nullptr && b != nullptr && a->text == b->text) {
        return true;
    }
    Numbers const& first = a == nullptr ? b->unstated : a->numbers;
    Numbers const& second = b == nullptr ? a->unstated : b->numbers;
    auto const isClose = [tolerance](double x, double y) {
        double const scale = std::max({1.0, std::abs(x), std::abs(y)});
        return x == y || (std::isfinite(scale) && std::abs(x - y) <= tolerance * scale);
    };
    return !first.empty() && std::equal(first.begin(), first.end(), second.begin(), second.end(), isClose);
}

}  // namespace Tool
