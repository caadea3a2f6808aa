#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace ov::cli
{

/// Thrown for arguments that are wrong in a way that only the command can detect. The message is a
/// clause without a full stop.
class Usage : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;
};

/// The options and operands of a command. Every argument is stored unchanged in the variable that is
/// declared for it. The variables must outlive Parse.
class Options
{
  public:
    Options(const std::string& command, const std::string& summary);
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;
    ~Options();

    /// A required argument without a name.
    void Operand(const char* name, std::string& value, const char* help);

    /// The arguments after the other operands, at least `least` of them.
    void Operands(const char* name, std::vector<std::string>& values, std::size_t least, const char* help);

    /// An option without a value, such as "--dry-run".
    void Flag(const char* name, bool& value, const char* help);

    /// An option with a value, such as "--user NAME"; nothing if it is not given.
    void Text(const char* name, const char* placeholder, std::optional<std::string>& value, const char* help);

    /// An option with a value that may be given several times.
    void Texts(const char* name, const char* placeholder, std::vector<std::string>& values, const char* help);

    /// An option with several values separated by commas, which may be given several times.
    void List(const char* name, const char* placeholder, std::vector<std::string>& values, const char* help);

    /// An option with one of several words. The words are in the order of the enumeration's values,
    /// the first of which is 0. The variable's value before parsing is the default.
    template <typename Enum>
    void Choice(const char* name, Enum& value, std::initializer_list<const char*> words, const char* help)
    {
        const std::vector<std::string> all(words.begin(), words.end());
        AddChoice(name, all, all[static_cast<std::size_t>(value)], IntoEnum(value), help);
    }

    /// The same; nothing if the option is not given.
    template <typename Enum>
    void Choice(const char* name, std::optional<Enum>& value, std::initializer_list<const char*> words,
                const char* help)
    {
        AddChoice(name, {words.begin(), words.end()}, "", IntoEnum(value), help);
    }

    /// The result of Parse.
    enum class Outcome { Parsed, HelpAsked, Wrong };

    /// Parses the arguments into the variables. For Wrong, `message` contains the reason.
    Outcome Parse(const std::vector<std::string>& arguments, std::string& message);

    /// The text for "--help".
    std::string Help() const;

  private:
    using SetIndex = std::function<void(std::size_t)>;

    template <typename Enum>
    static SetIndex IntoEnum(Enum& value)
    {
        return [&value](std::size_t index) { value = static_cast<Enum>(index); };
    }
    template <typename Enum>
    static SetIndex IntoEnum(std::optional<Enum>& value)
    {
        return [&value](std::size_t index) { value = static_cast<Enum>(index); };
    }

    void AddChoice(const char* name, const std::vector<std::string>& words, const std::string& before,
                   SetIndex set, const char* help);

    std::unique_ptr<CLI::App> m_app;
};

} // namespace ov::cli
