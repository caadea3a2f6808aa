#include "host/host_windows.h"

#include "host/full_path.h"
#include "host/host_output.h"
#include "host/host_texts.h"
#include "host/library.h"
#include "host/question_texts.h"
#include "host/start_window.h"
#include "resources/ids.h"

#include <utility>

namespace
{

// A missing file is no problem for the file to edit: the user is asked about it later.
std::optional<StartProblem> CheckChoice(ov::StartChoice& choice, const ov::FilePorts& ports)
{
    if (choice.file.empty())
        return StartProblem{IDC_HOST_START_FILE, HostText(IDS_HOST_NO_FILE)};
    for (ov::Text* const path : {&choice.file, &choice.defaults, &choice.copyFolder})
        *path = FullPath(*path);
    const ov::PathCheck file = ov::CheckPath(choice.file, ports);
    if (file.problem != ov::PathProblem::None && file.problem != ov::PathProblem::NoFile)
        return StartProblem{IDC_HOST_START_FILE, PathText(choice.file, file)};
    const ov::PathCheck defaults = ov::CheckPath(choice.defaults, ports);
    if (!choice.defaults.empty() && defaults.problem != ov::PathProblem::None)
        return StartProblem{IDC_HOST_START_DEFAULTS, PathText(choice.defaults, defaults)};
    if (choice.copies != 0 && !choice.copyFolder.empty() &&
        ports.files.Kind(choice.copyFolder) != ov::FileKind::Directory)
        return StartProblem{IDC_HOST_START_FOLDER, HostText(IDS_HOST_NO_COPY_FOLDER, {choice.copyFolder})};
    return std::nullopt;
}

ov::LaunchAnswer AnswerOf(INT_PTR button)
{
    switch (button) {
    case IDYES:
        return ov::LaunchAnswer::Yes;
    case IDNO:
        return ov::LaunchAnswer::No;
    default:
        return ov::LaunchAnswer::Cancel;
    }
}

} // namespace

HostWindows::HostWindows(const ov::FilePorts& ports, ov::Text userName)
    : m_ports(ports), m_userName(std::move(userName))
{
}

bool HostWindows::AskStart(ov::StartChoice& choice)
{
    CStartWindow window(choice, [this](ov::StartChoice& entered) { return CheckChoice(entered, m_ports); });
    return window.DoModal() == IDOK;
}

ov::LaunchReply HostWindows::Ask(const ov::LaunchQuestion& question)
{
    const QuestionWords words = WordsOf(question);
    CQuestionWindow window(words);
    const INT_PTR button = window.DoModal();
    return {AnswerOf(button), window.IsSilenced()};
}

void HostWindows::Tell(const ov::LaunchNotice& notice)
{
    ShowError(TextOf(notice));
}

int HostWindows::ShowDialog(const ov::Text& defaults, const ov::Text& file)
{
    return ::ShowDialog(defaults, file, m_userName);
}
