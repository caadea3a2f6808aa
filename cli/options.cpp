#include "cli/options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <utility>

namespace ov::cli
{
namespace
{

// CLI11 splits an argument such as "[a,b]" into several arguments. It does not if this character
// comes first; Unguarded removes it again.
constexpr char kGuard = '\x01';

bool NeedsGuard(const std::string& argument)
{
    return !argument.empty() &&
           (argument.front() == kGuard || (argument.front() == '[' && argument.back() == ']'));
}

std::string Guarded(const std::string& argument)
{
    return NeedsGuard(argument) ? kGuard + argument : argument;
}

std::string Unguarded(const std::string& argument)
{
    return !argument.empty() && argument.front() == kGuard ? argument.substr(1) : argument;
}

// All values pass through this function, which removes the guards.
CLI::Option* Add(CLI::App& app, const std::string& name, const char* help,
                 std::function<void(std::string)> set)
{
    const auto take = [set = std::move(set)](const CLI::results_t& results) {
        for (const std::string& result : results)
            set(Unguarded(result));
        return true;
    };
    return app.add_option(name, take, help);
}

void AddParts(std::vector<std::string>& values, const std::string& text)
{
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        values.push_back(text.substr(start, end - start));
        start = end + 1;
    }
}

std::string Joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : "|") + word;
    return text;
}

} // namespace

Options::Options(const std::string& command, const std::string& summary)
    : m_app(std::make_unique<CLI::App>(summary + ".", "ovprefs " + command))
{
    m_app->allow_windows_style_options(false);
    m_app->set_help_flag("--help", "Show this text");
    m_app->get_formatter()->column_width(30);
    m_app->get_formatter()->label("OPTIONS", "options");
}

Options::~Options() = default;

void Options::Operand(const char* name, std::string& value, const char* help)
{
    Add(*m_app, name, help, [&value](std::string given) { value = std::move(given); })
        ->required()
        ->type_name("");
}

void Options::Operands(const char* name, std::vector<std::string>& values, std::size_t least,
                       const char* help)
{
    CLI::Option* const option =
        Add(*m_app, name, help, [&values](std::string given) { values.push_back(std::move(given)); });
    option->expected(static_cast<int>(std::max<std::size_t>(least, 1)), CLI::detail::expected_max_vector_size)
        ->allow_extra_args()
        ->type_name("");
    if (least > 0)
        option->required();
}

void Options::Flag(const char* name, bool& value, const char* help)
{
    m_app->add_flag(name, value, help);
}

void Options::Text(const char* name, const char* placeholder, std::optional<std::string>& value,
                   const char* help)
{
    Add(*m_app, name, help, [&value](std::string given) {
        value = std::move(given);
    })->type_name(placeholder);
}

void Options::Texts(const char* name, const char* placeholder, std::vector<std::string>& values,
                    const char* help)
{
    Add(*m_app, name, help, [&values](std::string given) { values.push_back(std::move(given)); })
        ->type_name(placeholder)
        ->take_all()
        ->allow_extra_args(false);
}

void Options::List(const char* name, const char* placeholder, std::vector<std::string>& values,
                   const char* help)
{
    Add(*m_app, name, help, [&values](const std::string& given) { AddParts(values, given); })
        ->type_name(placeholder)
        ->take_all()
        ->allow_extra_args(false);
}

void Options::AddChoice(const char* name, const std::vector<std::string>& words, const std::string& before,
                        SetIndex set, const char* help)
{
    const std::string option(name);
    const auto take = [option, words, set = std::move(set)](const std::string& given) {
        const auto found = std::find(words.begin(), words.end(), given);
        if (found == words.end())
            throw CLI::ValidationError(option + ": '" + given + "' is none of " + Joined(words));
        set(static_cast<std::size_t>(found - words.begin()));
    };
    Add(*m_app, name, help, take)->type_name(Joined(words))->default_str(before);
}

Options::Outcome Options::Parse(const std::vector<std::string>& arguments, std::string& message)
{
    // The parser reads the arguments from the back.
    std::vector<std::string> reversed(arguments.size());
    std::transform(arguments.rbegin(), arguments.rend(), reversed.begin(), Guarded);
    try {
        m_app->parse(std::move(reversed));
        return Outcome::Parsed;
    } catch (const CLI::CallForHelp&) {
        return Outcome::HelpAsked;
    } catch (const CLI::Error& error) {
        message = error.what();
        return Outcome::Wrong;
    }
}

std::string Options::Help() const
{
    return m_app->help();
}

} // namespace ov::cli
