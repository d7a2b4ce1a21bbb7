#include "usage/completion.hpp"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>
#include <optional>
#include <set>

#include <CLI/CLI.hpp>

#include "support/description.hpp"
#include "support/kinds.hpp"
#include "usage/names.hpp"
#include "usage/suggestion.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/model_utils.hpp"

namespace Tool {

namespace {

using Words = std::vector<std::string>;

bool isOption(std::string const& word)
{
    return word.size() > 1 && word[0] == '-';
}

bool isFile(std::string const& word)
{
    std::error_code failure;
    return std::filesystem::is_regular_file(word, failure);
}

bool takesValue(CLI::Option const& option)
{
    return option.get_items_expected_max() > 0;
}

bool takesMany(CLI::Option const& option)
{
    return option.get_items_expected_max() > 1;
}

/// The description among the words, when there is one that makes a model.
std::optional<Sim::Model> modelAmong(Words const& words)
{
    auto const file = std::find_if(words.begin(), words.end(), isFile);
    try {
        if (file != words.end()) {
            Description description = readDescription(*file);
            if (description.reading.robot != nullptr) {
                return Sim::Model(std::move(description.reading));
            }
        }
    } catch (std::exception const&) {  // `check` says what is wrong with it
    }
    return std::nullopt;
}

template <std::vector<std::string> (*names)(Sim::Model const&)>
Words fromModel(Words const& given)
{
    std::optional<Sim::Model> const model = modelAmong(given);
    return model ? names(*model) : Words();
}

Words settings(Words const& given)
{
    Words words = fromModel<variablesIn>(given);
    for (std::string& word : words) {
        word += '=';
    }
    return words;
}

Words kindWords(Words const& /*given*/)
{
    Words words;
    for (Kind const& kind : kinds()) {
        words.push_back(kind.plural);
    }
    return words;
}

Words rules(Words const& /*given*/)
{
    Words words;
    for (Varo::Model::LintRule const& rule : Varo::Model::lintRules()) {
        words.emplace_back(rule.code.name);
    }
    return words;
}

Words findingWords(Words const& given)
{
    Words words = Varo::Model::ModelUtils::findingCodes();
    Words const more = rules(given);
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

/// What may stand in a place, by the name that the help gives the place; the words are those that are given already.
std::map<std::string, Words (*)(Words const&)> const sources = {
    {"KIND", kindWords},          {"CODE", findingWords},         {"RULE", rules},
    {"NAME", fromModel<namesIn>}, {"FRAME", fromModel<framesIn>}, {"POSTURE", fromModel<posturesIn>},
    {"NAME=VALUE", settings},
};

std::set<std::string> const filePlaces = {"FILE", "A", "B", "OUT", "PAGE", "FOLDER"};

class Completion {
public:
    Completion(std::ostream& out, CLI::App const& tool, Words const& words, std::size_t index)
        : _out(out), _tool(tool), _words(words), _index(index), _current(words[index])
    {}

    void print();

private:
    CLI::App const* readCommand();
    void readArguments(CLI::App const& command);
    void offer(std::string const& word, std::string const& meaning = {}) const;
    void offerCommands() const;
    void offerOptions(CLI::App const& command) const;
    void offerArguments(CLI::App const& command) const;
    void offerValues(CLI::Option const& option) const;
    void offerPlace(std::string const& place) const;

    std::ostream& _out;
    CLI::App const& _tool;
    Words const& _words;
    std::size_t _index;
    std::string _current;
    std::string _prefix;  ///< of the current word, that candidates repeat: "--format="
    std::size_t _next = 1;  ///< the first word that has not been read
    CLI::Option const* _option = nullptr;  ///< whose value is completed
    Words _given;  ///< arguments that are no options, beside the current word
};

void Completion::print()
{
    CLI::App const* const command = readCommand();
    if (command == nullptr) {
        isOption(_current) ? offerOptions(_tool) : offerCommands();
        return;
    }
    readArguments(*command);
    if (_option != nullptr) {
        offerValues(*_option);
    } else if (!_current.empty() && _current[0] == '-') {
        offerOptions(*command);
    } else {
        offerArguments(*command);
    }
}

/// Null while it is the command that is to be completed.
CLI::App const* Completion::readCommand()
{
    while (_next < _words.size() && _next != _index) {
        std::string const& word = _words[_next++];
        for (CLI::App const* const command : commandsOf(_tool)) {
            if (command->get_name() == word) {
                return command;
            }
        }
    }
    return nullptr;
}

void Completion::readArguments(CLI::App const& command)
{
    CLI::Option const* option = nullptr;  // whose value comes next
    for (; _next < _words.size(); ++_next) {
        std::string const& word = _words[_next];
        bool const isCurrent = _next == _index;
        if (option != nullptr) {
            _option = isCurrent ? option : _option;
            option = nullptr;
            continue;
        }
        std::size_t const equals = isOption(word) ? word.find('=') : word.npos;
        CLI::Option const* const named = isOption(word) ? command.get_option_no_throw(word.substr(0, equals)) : nullptr;
        bool const hasValue = named != nullptr && takesValue(*named);
        if (isCurrent && hasValue && equals != word.npos) {
            _option = named;
            _prefix = word.substr(0, equals + 1);
        } else if (!isCurrent && hasValue && equals == word.npos) {
            option = named;
        } else if (!isCurrent && !isOption(word)) {
            _given.push_back(word);
        }
    }
}

/// Words that would not stand on one line are left out: names may be anything.
void Completion::offer(std::string const& word, std::string const& meaning) const
{
    std::string const whole = _prefix + word;
    bool const isPlain = std::none_of(word.begin(), word.end(),
                                      [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\177'; });
    if (isPlain && whole.compare(0, _current.size(), _current) == 0) {
        _out << whole << '\t' << meaning << '\n';
    }
}

void Completion::offerCommands() const
{
    for (CLI::App const* const command : commandsOf(_tool)) {
        offer(command->get_name(), command->get_description());
    }
}

void Completion::offerOptions(CLI::App const& command) const
{
    for (CLI::Option const* const option : command.get_options()) {
        for (std::string const& name : option->get_lnames()) {
            offer("--" + name, option->get_description());
        }
        for (std::string const& name : option->get_snames()) {
            offer("-" + name, option->get_description());
        }
    }
}

/// Files may stand before or behind the other arguments.
void Completion::offerArguments(CLI::App const& command) const
{
    auto const files = std::count_if(_given.begin(), _given.end(), isFile);
    auto roomForFiles = -files;
    auto roomForOthers = files - static_cast<std::ptrdiff_t>(_given.size());
    for (CLI::Option const* const option : command.get_options()) {
        std::string const place = option->get_name(true);
        if (option->get_positional()) {
            auto& room = filePlaces.count(place) > 0 ? roomForFiles : roomForOthers;
            if (++room > 0 || takesMany(*option)) {
                offerPlace(place);
                room = std::min<std::ptrdiff_t>(room, 0);
            }
        }
    }
}

void Completion::offerValues(CLI::Option const& option) const
{
    std::string const type = option.get_type_name();  // "FORMAT:{text,json}" where only some words will do
    std::size_t const choices = type.find(":{");
    if (choices == type.npos) {
        offerPlace(type);
        return;
    }
    std::size_t begin = choices + 2;
    while (begin < type.size()) {
        std::size_t const end = type.find_first_of(",}", begin);
        offer(type.substr(begin, end - begin));
        begin = end == type.npos ? end : end + 1;
    }
}

void Completion::offerPlace(std::string const& place) const
{
    if (place == "COMMAND") {
        offerCommands();
    }
    auto const source = sources.find(place);
    if (source != sources.end()) {
        Words const words = source->second(_given);
        for (std::string const& word : std::set<std::string>(words.begin(), words.end())) {
            offer(word);
        }
    }
    if (filePlaces.count(place) > 0) {
        _out << "\tfiles\n";
    }
}

}  // namespace

void printCompletions(std::ostream& out, CLI::App const& tool, Words const& words, std::size_t index)
{
    Completion(out, tool, words, index).print();
}

void printCompletions(std::ostream& out, CLI::App const& tool, Words const& arguments)
{
    std::size_t index = 0;
    if (!arguments.empty()) {
        std::string const& text = arguments[0];
        std::from_chars(text.data(), text.data() + text.size(), index);
    }
    if (index > 0 && index + 1 < arguments.size()) {
        printCompletions(out, tool, Words(arguments.begin() + 1, arguments.end()), index);
    }
}

}  // namespace Tool
