#include "native/sensor_needs.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "native/native_codes.hpp"
#include "range.hpp"
#include "schema/values.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

using namespace Schema;

namespace {

/// A free attribute that models read in sensors of some kind.
struct SensorText {
    std::string_view name;
    bool isRequired;
    bool (*isRight)(std::string_view text);
    std::string_view rightForm;  ///< completes the sentence "The text is not ..."
    std::string_view hint;
};

/// What models need of the sensors of one kind.
struct SensorNeeds {
    std::int32_t type;
    Range<SensorText> texts;
    Range<std::size_t> keyCounts = {};  ///< without any, every number of keys is right
};

/// Two separators in a row have an empty piece between them, as for the models.
std::vector<std::string_view> piecesOf(std::string_view text, std::string_view separators)
{
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t end = 0; end != text.npos; start = end + 1) {
        end = text.find_first_of(separators, start);
        pieces.push_back(text.substr(start, end - start));
    }
    return pieces;
}

bool isPositiveInteger(std::string_view text)
{
    std::int32_t number = 0;
    return parseInteger(text, number) && number > 0;
}

bool isResolution(std::string_view line)
{
    auto const pieces = piecesOf(trimmed(line), " ");
    return pieces.size() == 2 && std::all_of(pieces.begin(), pieces.end(), isPositiveInteger);
}

/// Models pass over lines that say nothing.
bool areResolutions(std::string_view text)
{
    auto const lines = piecesOf(text, "\n");
    auto const isRight = [](std::string_view line) { return trimmed(line).empty() || isResolution(line); };
    return !trimmed(text).empty() && std::all_of(lines.begin(), lines.end(), isRight);
}

bool isColor(std::string_view text)
{
    auto const pieces = piecesOf(text, " \t");
    auto const isNumber = [](std::string_view piece) {
        float number = 0.0F;
        return parseNumber(piece, number);
    };
    return pieces.size() == 3 && std::all_of(pieces.begin(), pieces.end(), isNumber) &&
           std::find(pieces.begin(), pieces.end(), "255") != pieces.end();
}

bool areGroups(std::string_view text)
{
    auto const names = piecesOf(text, " \t");
    return std::none_of(names.begin(), names.end(), [](std::string_view name) { return name.empty(); });
}

constexpr SensorText resolutions(bool isRequired)
{
    return {"resolutions", isRequired, areResolutions,
            "a width and a height on each line, two whole positive numbers with one blank between",
            "Write <attribute name=\"resolutions\" value=\"640 480\"/> with its own width and height."};
}
constexpr SensorText pictureTexts[] = {resolutions(true)};
constexpr SensorText arrayTexts[] = {resolutions(false)};
constexpr SensorText ledTexts[] = {
    {"color", false, isColor, "three numbers of which one is 255", "Write 255 0 0, 0 255 0 or 0 0 255."},
    {"groups", false, areGroups, "names with one blank between each two, so that one of the groups has an empty name",
     "Leave out the blanks that are too many."},
};
constexpr std::size_t sonarKeys[] = {1, 10};

constexpr SensorNeeds allNeeds[] = {
    {camera, pictureTexts}, {depthCamera, pictureTexts}, {arrayDepth, arrayTexts},
    {led, ledTexts},        {sonar, {}, sonarKeys},
};

void checkText(SensorText const& text, SensorConfig const& sensor, XmlNode node, Diagnostics& diagnostics)
{
    auto const stated = sensor.attributes.find(std::string(text.name));
    if (stated == sensor.attributes.end()) {
        if (text.isRequired) {
            diagnostics.report(at(node), codes::missingSensorText,
                               "The sensor " + quoted(sensor.name) + " lacks its text " + quoted(text.name) +
                                   ", without which no model can be built.",
                               std::string(text.hint));
        }
    } else if (!text.isRight(stated->second)) {
        auto const attributes = node.children("attribute");
        XmlNode const child = *std::find_if(attributes.begin(), attributes.end(), [&](XmlNode each) {
            return each.attribute("name").value() == stated->first;
        });
        diagnostics.report(at(child, "value"), codes::wrongSensorText,
                           "The text " + quoted(text.name) + ", " + quoted(stated->second) + ", is not " +
                               std::string(text.rightForm) + ".",
                           std::string(text.hint));
    }
}

void checkKeys(Range<std::size_t> counts, SensorConfig const& sensor, XmlNode node, Diagnostics& diagnostics)
{
    std::string known;
    for (std::size_t const count : counts) {
        if (count == sensor.keys.size()) {
            return;
        }
        known += (known.empty() ? "" : " or ") + std::to_string(count);
    }
    diagnostics.report(at(node), codes::wrongKeyCount,
                       "The sensor " + quoted(sensor.name) + " has " + std::to_string(sensor.keys.size()) +
                           " keys where its kind has " + known + ", so that no model will contain it.",
                       "Give it " + known + ".");
}

}  // namespace

void checkNeeds(SensorConfig const& sensor, XmlNode node, Diagnostics& diagnostics)
{
    for (SensorNeeds const& needs : allNeeds) {
        if (needs.type != sensor.type) {
            continue;
        }
        for (SensorText const& text : needs.texts) {
            checkText(text, sensor, node, diagnostics);
        }
        if (needs.keyCounts.size() > 0) {
            checkKeys(needs.keyCounts, sensor, node, diagnostics);
        }
    }
}

}  // namespace Varo::Model::Native
