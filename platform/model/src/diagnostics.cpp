#include "varo/model/diagnostics.hpp"

#include <algorithm>
#include <utility>

#include "finding_codes.hpp"
#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

constexpr std::size_t longestQuote = 64;  // bytes

std::string placed(Finding const& finding)
{
    return std::to_string(finding.line) + ":" + std::to_string(finding.column) + ": " + finding.message;
}

}  // namespace

WithFindings::~WithFindings() = default;

Findings const& WithFindings::findings() const noexcept
{
    static Findings const none;
    return _findings == nullptr ? none : *_findings;
}

DescriptionError::~DescriptionError() = default;

void Diagnostics::report(TextOffset offset, FindingCode const& code, std::string message, std::string hint)
{
    if (countIfFull(code)) {
        return;
    }
    _hasErrors = _hasErrors || code.severity == Severity::error;
    _records.push_back({offset, code.severity, code.name, std::move(message), std::move(hint)});
}

void Diagnostics::escalate(TextOffset offset, FindingCode const& code, std::string message, std::string hint)
{
    auto const isReplaced = [&](Record const& record) {
        return offset.isKnown() && record.offset == offset && record.severity != Severity::error;
    };
    auto const replaced = std::find_if(_records.begin(), _records.end(), isReplaced);
    if (replaced != _records.end() && hint.empty()) {
        hint = std::move(replaced->hint);
    }
    _records.erase(std::remove_if(replaced, _records.end(), isReplaced), _records.end());
    report(offset, code, std::move(message), std::move(hint));
}

bool Diagnostics::countIfFull(FindingCode const& code)
{
    if (_records.size() < _mostFindings) {
        return false;
    }
    ++_dropped;
    _highestDropped = std::max(_highestDropped, code.severity);
    _hasErrors = _hasErrors || code.severity == Severity::error;
    return true;
}

Findings Diagnostics::findings() const
{
    std::vector<Record const*> const records = inTextOrder();
    std::vector<TextOffset> offsets;
    offsets.reserve(records.size());
    for (Record const* record : records) {
        offsets.push_back(record->offset);
    }
    std::vector<Place> places = _source == nullptr ? std::vector<Place>(records.size()) : _source->places(offsets);
    Findings findings;
    findings.reserve(records.size() + 1);
    for (std::size_t i = 0; i < records.size(); ++i) {
        findings.push_back({records[i]->severity, std::string(records[i]->code), places[i].line, places[i].column,
                            std::move(places[i].path), records[i]->message, records[i]->hint});
    }
    if (_dropped > 0) {
        Finding last = overflowFinding();
        last.line = findings.empty() ? 0 : findings.back().line;
        last.column = findings.empty() ? 0 : findings.back().column;
        findings.push_back(std::move(last));
    }
    return findings;
}

std::vector<Diagnostics::Record const*> Diagnostics::inTextOrder() const
{
    std::vector<Record const*> records;
    records.reserve(_records.size());
    for (Record const& record : _records) {
        records.push_back(&record);
    }
    // What has no place in the text comes last, as its offset has it.
    std::stable_sort(records.begin(), records.end(),
                     [](Record const* a, Record const* b) { return a->offset.value() < b->offset.value(); });
    return records;
}

Finding Diagnostics::overflowFinding() const
{
    Finding finding;
    finding.severity = _highestDropped;
    finding.code = codes::tooManyFindings.name;
    finding.message = "There are " + std::to_string(_dropped) + " more findings, which are not listed.";
    finding.hint = "Mend the listed ones first.";
    return finding;
}

std::string summaryOf(Findings const& findings)
{
    auto const isError = [](Finding const& finding) { return finding.severity == Severity::error; };
    auto const first = std::find_if(findings.begin(), findings.end(), isError);
    if (first == findings.end()) {
        return {};
    }
    auto const others = std::count_if(first, findings.end(), isError) - 1;
    std::string text = first->line == 0 ? first->message : placed(*first);
    if (others > 0) {
        text += " (and " + std::to_string(others) + " more)";
    }
    return text;
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    while (!text.empty() && result.size() < longestQuote) {
        Utf8Character const character = decodeUtf8(text);
        bool const printable = character.length > 0 && character.codePoint >= 0x20 && character.codePoint != 0x7F &&
                               isXmlCharacter(character.codePoint);
        std::size_t const length = std::max<std::size_t>(character.length, 1);
        result += printable ? text.substr(0, length) : "?";
        text.remove_prefix(length);
    }
    result += text.empty() ? "\"" : "...\"";
    return result;
}

}  // namespace Varo::Model
