#include "launch/core/launch_call.h"

namespace ov
{
namespace
{

constexpr TextView kAsk = u"--ask";
constexpr TextView kForget = u"--forget";
constexpr TextView kNoQuestions = u"--no-questions";

// CCmdLineInfo finds its keywords anywhere in a parameter.
bool Has(const Text& parameter, TextView keyword)
{
    return parameter.find(keyword) != Text::npos;
}

bool IsPath(const Text& parameter)
{
    return !IsSwitch(parameter) && !Has(parameter, u"DEFAULT:") && !Has(parameter, u"CURRENT:") &&
           !Has(parameter, u"USER:");
}

/// Collects what the parameters say.
struct Reading {
    LaunchCall call;
    std::vector<std::size_t> paths;
    std::optional<std::size_t> administratorsOnly; ///< the first option for administrators
    bool current = false;

    // True if the parameter is one of the launcher's own options.
    bool TakeOption(const Text& parameter, std::size_t index)
    {
        if (parameter == kNoQuestions) {
            call.noQuestions = true;
            return true;
        }
        if (parameter != kAsk && parameter != kForget)
            return false;
        (parameter == kAsk ? call.ask : call.forget) = true;
        if (!administratorsOnly)
            administratorsOnly = index;
        return true;
    }
};

LaunchCall Wrong(std::size_t index)
{
    LaunchCall call;
    call.wrong = index;
    return call;
}

} // namespace

bool IsSwitch(TextView parameter)
{
    return parameter.starts_with(u'-') || parameter.starts_with(u'/');
}

bool IsLaunchOption(TextView parameter)
{
    return parameter == kAsk || parameter == kForget || parameter == kNoQuestions;
}

LaunchCall ReadLaunchCall(std::span<const Text> parameters, bool (*isKnown)(const Text& parameter))
{
    Reading reading;
    LaunchCall& call = reading.call;
    for (std::size_t index = 0; index < parameters.size(); ++index) {
        const Text& parameter = parameters[index];
        if (reading.TakeOption(parameter, index))
            continue;
        if (IsSwitch(parameter) && !isKnown(parameter))
            return Wrong(index);
        reading.current |= Has(parameter, u"CURRENT:");
        call.givesDefaults |= Has(parameter, u"DEFAULT:");
        if (IsPath(parameter))
            reading.paths.push_back(index);
        call.rest.push_back(index);
    }
    call.isAdministrators = !reading.current && reading.paths.size() <= 1;
    if ((!call.isAdministrators || call.noQuestions) && reading.administratorsOnly)
        return Wrong(*reading.administratorsOnly);
    if (call.isAdministrators && !reading.paths.empty()) {
        call.path = parameters[reading.paths.front()];
        std::erase(call.rest, reading.paths.front());
    }
    return call;
}

} // namespace ov
