// ovPreferencesHost opens the Preferences dialog from a command line. It is a
// console program, so that scripts wait for it and see its output and exit code.
#include "app/cmd_line_info.h"
#include "framework/wide.h"
#include "host/administrator.h"
#include "host/host_output.h"
#include "host/host_texts.h"
#include "host/library.h"
#include "launch/core/exit_code.h"
#include "launch/core/launch_call.h"
#include "resources/ids.h"
#include "version/version.h"

#include <clocale>
#include <vector>

namespace
{

// True if CCmdLineInfo knows the switch: passed together with its value, it changes
// one of the texts.
bool IsKnownSwitch(const ov::Text& text)
{
    if (text.starts_with(u"--"))
        return false;
    const ov::Text before(1, u'\0'); // a value that no parameter can have
    CCmdLineInfo info;
    info.m_defaultPath = info.m_currentPath = info.m_userName = before;
    info.ParseParam(Wide(text) + 1, TRUE, FALSE);
    return info.m_defaultPath != before || info.m_currentPath != before || info.m_userName != before;
}

// Passes the parameters of the call on; switches lose their first character.
void Parse(CCmdLineInfo& info, const std::vector<ov::Text>& parameters, const ov::LaunchCall& call)
{
    for (const std::size_t index : call.rest) {
        const ov::Text& text = parameters[index];
        const bool isFlag = ov::IsSwitch(text);
        info.ParseParam(Wide(text) + (isFlag ? 1 : 0), isFlag, index == call.rest.back());
    }
}

// Shows the text that the first of these options requests. False if there is none.
bool ShowInformation(const std::vector<ov::Text>& parameters)
{
    for (const ov::Text& text : parameters) {
        if (text == u"--help" || text == u"/?") {
            ShowText(HostText(IDS_HOST_USAGE));
            return true;
        }
        if (text == u"--version") {
            ShowText(u"ovPreferencesHost " + ov::TextFromUtf8(ov::VersionWithRevision()));
            return true;
        }
        if (ov::IsSwitch(text) && !ov::IsLaunchOption(text) && !IsKnownSwitch(text))
            return false;
    }
    return false;
}

int RefuseOption(const ov::Text& option)
{
    const unsigned id =
        ov::IsLaunchOption(option) ? IDS_HOST_OPTION_FOR_ADMINISTRATORS : IDS_HOST_UNKNOWN_OPTION;
    ShowError(HostText(id, {option}) + u"\n\n" + HostText(IDS_HOST_USAGE));
    return ov::kExitNotStarted;
}

} // namespace

int wmain(int count, wchar_t** texts)
{
    DropOwnConsole();
    std::vector<ov::Text> parameters;
    for (int index = 1; index < count; ++index)
        parameters.push_back(FromWide(texts[index]));
    if (ShowInformation(parameters))
        return 0;
    const ov::LaunchCall call = ov::ReadLaunchCall(parameters, &IsKnownSwitch);
    if (call.wrong)
        return RefuseOption(parameters[*call.wrong]);
    // The library converts the file's bytes with the C locale of the process, which the
    // host has to set. The host is this program. In the default locale "C" each byte
    // would become the character with the same number, whatever the code page of the
    // system is.
    std::setlocale(LC_CTYPE, "");
    CCmdLineInfo info;
    Parse(info, parameters, call);
    if (!call.isAdministrators)
        return ShowDialog(info.m_defaultPath, info.m_currentPath, info.m_userName);
    if (call.noQuestions)
        return ShowDialog(info.m_defaultPath.empty() ? call.path : info.m_defaultPath, call.path,
                          info.m_userName);
    return OpenForAdministrator(call, info.m_defaultPath, info.m_userName);
}
