#include "usage/man_page.hpp"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <vector>

#include <CLI/CLI.hpp>

#include "usage/suggestion.hpp"

namespace Tool {

namespace {

using Lines = std::vector<std::string>;

/// Text as troff prints it: hyphens that can be copied, and nothing taken for a request.
std::string escaped(std::string const& text)
{
    std::string result = !text.empty() && (text[0] == '.' || text[0] == '\'') ? "\\&" : "";
    for (char const c : text) {
        result += c == '\\' ? "\\e" : c == '-' ? "\\-" : std::string(1, c);
    }
    return result;
}

std::string bold(std::string const& text)
{
    return "\\fB" + text + "\\fR";
}

/// As `escaped`, with what stands in backquotes in bold.
std::string prose(std::string const& text)
{
    std::string result;
    bool isCode = false;
    for (std::size_t begin = 0; begin <= text.size(); isCode = !isCode) {
        std::size_t const end = std::min(text.find('`', begin), text.size());
        std::string const part = escaped(text.substr(begin, end - begin));
        result += isCode ? bold(part) : part;
        begin = end + 1;
    }
    return result;
}

std::string upperCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

/// The paragraphs of a help text, line by line.
std::vector<Lines> paragraphsOf(std::string const& text)
{
    std::vector<Lines> paragraphs(1);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty()) {
            paragraphs.back().push_back(line);
        } else if (!paragraphs.back().empty()) {
            paragraphs.emplace_back();
        }
    }
    return paragraphs;
}

/// Indented lines stand as they are.
bool isVerbatim(std::string const& line)
{
    return line.compare(0, 2, "  ") == 0;
}

/// Whether it is a title with nothing but indented lines below it: "Examples:".
bool isSection(Lines const& paragraph)
{
    return paragraph.size() > 1 && paragraph[0].back() == ':' && paragraph[0].size() < 20 &&
           std::all_of(paragraph.begin() + 1, paragraph.end(), isVerbatim);
}

void printLines(std::ostream& out, Lines::const_iterator begin, Lines::const_iterator end)
{
    bool wasVerbatim = false;
    for (auto line = begin; line != end; ++line) {
        bool const verbatim = isVerbatim(*line);
        if (verbatim != wasVerbatim) {
            out << (verbatim ? ".PP\n.nf\n" : ".fi\n.PP\n");
        }
        out << (verbatim ? escaped(*line) : prose(*line)) << '\n';
        wasVerbatim = verbatim;
    }
    out << (wasVerbatim ? ".fi\n" : "");
}

void printParagraph(std::ostream& out, Lines const& paragraph)
{
    out << ".PP\n";
    printLines(out, paragraph.begin(), paragraph.end());
}

void printSection(std::ostream& out, Lines const& section)
{
    std::string const title = section[0].substr(0, section[0].size() - 1);
    out << ".SH " << upperCase(title) << '\n';
    printLines(out, section.begin() + 1, section.end());
}

/// "-o, --output OUT"
std::string termOf(CLI::Option const& option)
{
    std::string names;
    for (std::string const& name : option.get_snames()) {
        names += (names.empty() ? "" : ", ") + bold("\\-" + escaped(name));
    }
    for (std::string const& name : option.get_lnames()) {
        names += (names.empty() ? "" : ", ") + bold("\\-\\-" + escaped(name));
    }
    std::string const type = option.get_type_name();
    return option.get_items_expected_max() == 0 || type.empty() ? names : names + " \\fI" + escaped(type) + "\\fR";
}

void printOptions(std::ostream& out, CLI::App const& app)
{
    out << ".SH OPTIONS\n";
    std::vector<CLI::Option const*> options = app.get_options();
    std::stable_partition(options.begin(), options.end(), [](auto const* each) { return each->get_positional(); });
    for (CLI::Option const* const option : options) {
        std::string const initial = option->get_default_str();
        std::string const meaning = option->get_description() + (initial.empty() ? "" : " (default: " + initial + ")");
        std::string const term = option->get_positional() ? bold(escaped(option->get_name(true))) : termOf(*option);
        out << ".TP\n" << term << '\n' << prose(meaning) << '\n';
    }
}

void printSynopsis(std::ostream& out, CLI::App const& app, bool isTool)
{
    out << ".SH SYNOPSIS\n" << bold("varo\\-robot");
    if (isTool) {
        out << " \\fICOMMAND\\fR [\\fIOPTIONS\\fR] [\\fIARGUMENTS\\fR]\n";
        return;
    }
    out << ' ' << bold(escaped(app.get_name())) << " [\\fIOPTIONS\\fR]";
    for (CLI::Option const* const option : app.get_options()) {
        if (option->get_positional()) {
            std::string const name =
                "\\fI" + escaped(option->get_name(true)) + "\\fR" + (option->get_items_expected_max() > 1 ? "..." : "");
            out << (option->get_required() ? " " + name : " [" + name + "]");
        }
    }
    out << '\n';
}

void printReferences(std::ostream& out, CLI::App const& app, bool isTool)
{
    out << ".SH SEE ALSO\n";
    if (!isTool) {
        out << bold("varo\\-robot") << "(1)\n";
        return;
    }
    char const* separator = "";
    for (CLI::App const* const command : commandsOf(app)) {
        out << separator << bold(escaped(manPageName(*command))) << "(1)";
        separator = ",\n";
    }
    out << '\n';
}

}  // namespace

std::string manPageName(CLI::App const& app)
{
    CLI::App const* const tool = app.get_parent();
    return tool == nullptr ? app.get_name() : tool->get_name() + "-" + app.get_name();
}

void printManPage(std::ostream& out, CLI::App const& app)
{
    bool const isTool = app.get_parent() == nullptr;
    std::string const name = escaped(manPageName(app));
    std::string const summary = app.get_description();
    out << ".TH " << upperCase(name) << " 1 \"\" \"varorobotmodel " VARO_ROBOT_VERSION "\" \"User Commands\"\n"
        << ".SH NAME\n"
        << name << " \\- " << static_cast<char>(std::tolower(static_cast<unsigned char>(summary[0])))
        << prose(summary.substr(1)) << '\n';
    printSynopsis(out, app, isTool);
    if (isTool) {
        out << ".SH COMMANDS\n";
        for (CLI::App const* const command : commandsOf(app)) {
            out << ".TP\n" << bold(escaped(command->get_name())) << '\n' << prose(command->get_description()) << '\n';
        }
    }
    out << ".SH DESCRIPTION\n";
    std::vector<Lines> const paragraphs = paragraphsOf(app.get_footer());
    auto const forEach = [&](bool sections, auto const& print) {
        for (Lines const& paragraph : paragraphs) {
            if (!paragraph.empty() && isSection(paragraph) == sections) {
                print(out, paragraph);
            }
        }
    };
    forEach(false, printParagraph);
    printOptions(out, app);
    forEach(true, printSection);
    printReferences(out, app, isTool);
}

}  // namespace Tool
