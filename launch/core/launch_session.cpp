#include "launch/core/launch_session.h"

#include "launch/core/asked_files.h"
#include "launch/core/exit_code.h"
#include "launch/core/launch_settings.h"
#include "launch/core/path_parts.h"

#include <chrono>
#include <utility>

namespace ov
{
namespace
{

constexpr std::string_view kSettingsFile = "launcher.txt";
constexpr std::string_view kAskedFile = "asked.txt";

/// One call of the launcher. The steps return an exit code if the dialog is not to be opened.
class Session
{
  public:
    Session(const LaunchRequest& request, const LaunchSurroundings& surroundings);

    int Run();

  private:
    using Stop = std::optional<int>;

    Stop Choose();
    Stop ResolveDefaults();
    Stop ExamineFile();
    Stop ResolveInterruptedSave();
    Stop ShowRemarks();
    Stop TakeCopy();

    void LookAtFile();
    void Store(const StartChoice& offered);
    void RememberFile();
    bool ShouldAsk() const;
    CopyPlace Place() const;

    const LaunchRequest& m_request;
    const LaunchSurroundings& m_surroundings;
    LaunchWindows& m_windows;
    LaunchSettings m_settings;
    AskedFiles m_asked;
    StartChoice m_choice;
    FileLook m_look;
    CopyResult m_copy;
};

Session::Session(const LaunchRequest& request, const LaunchSurroundings& surroundings)
    : m_request(request), m_surroundings(surroundings), m_windows(surroundings.windows)
{
    if (request.forget) {
        surroundings.memory.Store(kSettingsFile, {});
        surroundings.memory.Store(kAskedFile, {});
    }
    m_settings = ParseLaunchSettings(surroundings.memory.Load(kSettingsFile));
    m_asked = AskedFiles::Parse(surroundings.memory.Load(kAskedFile));
    m_choice.file = request.path.empty() ? m_settings.file : request.path;
    m_choice.defaults = request.defaults ? *request.defaults : m_settings.defaults.value_or(Text());
    m_choice.copies = m_settings.copies;
    m_choice.copyFolder = m_settings.copyFolder;
}

int Session::Run()
{
    const bool isComplete = !m_request.path.empty() && (m_request.defaults || m_settings.defaults);
    if (!isComplete || m_request.ask) {
        if (const Stop stop = Choose())
            return *stop;
    }
    for (const auto step : {&Session::ResolveDefaults, &Session::ExamineFile,
                            &Session::ResolveInterruptedSave, &Session::ShowRemarks, &Session::TakeCopy}) {
        if (const Stop stop = (this->*step)())
            return *stop;
    }
    RememberFile();
    // Without a defaults file the file is its own.
    const int code =
        m_windows.ShowDialog(m_choice.defaults.empty() ? m_choice.file : m_choice.defaults, m_choice.file);
    if (m_settings.copies != 0)
        SettleDatedCopy(m_choice.file, m_copy, Place(), m_surroundings.now(), m_surroundings.ports);
    return code;
}

// Another call may have stored settings while this one asked.
void Session::RememberFile()
{
    LaunchSettings settings = ParseLaunchSettings(m_surroundings.memory.Load(kSettingsFile));
    settings.file = m_choice.file;
    m_surroundings.memory.Store(kSettingsFile, FormatLaunchSettings(settings));
}

Session::Stop Session::Choose()
{
    const StartChoice offered = m_choice;
    if (!m_windows.AskStart(m_choice))
        return kExitCancelled;
    Store(offered);
    return std::nullopt;
}

// A defaults file from the command line is remembered only if the user has changed it.
void Session::Store(const StartChoice& offered)
{
    if (!m_request.defaults || m_choice.defaults != offered.defaults)
        m_settings.defaults = m_choice.defaults;
    m_settings.copies = m_choice.copies;
    m_settings.copyFolder = m_choice.copyFolder;
    m_surroundings.memory.Store(kSettingsFile, FormatLaunchSettings(m_settings));
}

Session::Stop Session::ResolveDefaults()
{
    while (!m_choice.defaults.empty()) {
        const PathCheck check = CheckPath(m_choice.defaults, m_surroundings.ports);
        if (check.problem == PathProblem::None)
            break;
        switch (m_windows.Ask(DefaultsGone{m_choice.defaults, check}).answer) {
        case LaunchAnswer::Yes:
            if (const Stop stop = Choose())
                return stop;
            break;
        case LaunchAnswer::No:
            m_choice.defaults.clear();
            break;
        case LaunchAnswer::Cancel:
            return kExitCancelled;
        }
    }
    return std::nullopt;
}

void Session::LookAtFile()
{
    LookSettings settings;
    settings.defaultsPath = m_choice.defaults.empty() ? m_choice.file : m_choice.defaults;
    settings.header = m_surroundings.header;
    settings.today = std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(m_surroundings.now()));
    m_look = LookBeforeOpen(m_choice.file, settings, m_surroundings.ports);
}

bool Session::ShouldAsk() const
{
    return m_asked.ShouldAsk(PathKey(m_choice.file, m_surroundings.ports), m_look);
}

Session::Stop Session::ExamineFile()
{
    LookAtFile();
    const PathProblem problem = m_look.file.problem;
    if (problem == PathProblem::NoFile) {
        if (m_look.interrupted.found || m_windows.Ask(NewFile{m_choice.file}).answer == LaunchAnswer::Yes)
            return std::nullopt;
        return kExitCancelled;
    }
    if (problem == PathProblem::None)
        return std::nullopt;
    m_windows.Tell(UnusablePath{m_choice.file, m_look.file});
    return kExitNoFile;
}

Session::Stop Session::ResolveInterruptedSave()
{
    if (!m_look.interrupted.found || !ShouldAsk())
        return std::nullopt;
    const LaunchAnswer answer = m_windows.Ask(BackupFound{m_look.interrupted}).answer;
    if (answer == LaunchAnswer::Cancel)
        return kExitCancelled;
    const auto resolve = answer == LaunchAnswer::Yes ? &RestoreBackup : &KeepFile;
    const ResolveResult result = resolve(m_choice.file, Place(), m_surroundings.now(), m_surroundings.ports);
    // The backup of a save that another program has finished meanwhile is gone.
    if (result.outcome != ResolveOutcome::Resolved && result.outcome != ResolveOutcome::NoBackup) {
        m_windows.Tell(BackupUnresolved{m_look.interrupted, result});
        return kExitNoFile;
    }
    LookAtFile();
    return std::nullopt;
}

Session::Stop Session::ShowRemarks()
{
    if (m_look.file.problem != PathProblem::None || !ShouldAsk())
        return std::nullopt;
    const LaunchReply reply = m_windows.Ask(FileRemarks{m_choice.file, m_look});
    if (reply.answer != LaunchAnswer::Yes)
        return kExitCancelled;
    const Text key = PathKey(m_choice.file, m_surroundings.ports);
    // Another call may have stored answers while this one asked.
    m_asked = AskedFiles::Parse(m_surroundings.memory.Load(kAskedFile));
    if (reply.silenced)
        m_asked.NeverAsk(key, m_look.state);
    else
        m_asked.Remember(key, m_look.state);
    m_surroundings.memory.Store(kAskedFile, m_asked.Format());
    return std::nullopt;
}

CopyPlace Session::Place() const
{
    return {m_settings.copyFolder, static_cast<std::size_t>(m_settings.copies)};
}

Session::Stop Session::TakeCopy()
{
    if (m_settings.copies == 0)
        return std::nullopt;
    m_copy = TakeDatedCopy(m_choice.file, Place(), m_surroundings.now(), m_surroundings.ports);
    if (m_copy.Succeeded() ||
        m_windows.Ask(CopyNotMade{m_copy, m_settings.copyFolder}).answer == LaunchAnswer::Yes)
        return std::nullopt;
    return kExitCancelled;
}

} // namespace

int RunLaunchSession(const LaunchRequest& request, const LaunchSurroundings& surroundings)
{
    return Session(request, surroundings).Run();
}

} // namespace ov
