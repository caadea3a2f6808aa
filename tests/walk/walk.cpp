#include "tests/walk/walk.h"

#include "pages/branding/ids.h"
#include "pages/scan_period/ids.h"
#include "tests/pages/random_file.h"
#include "tests/support/process.h"
#include "tests/ui/value_editor.h"
#include "tests/walk/dialog_checks.h"
#include "tests/walk/saved_file.h"

#include <cstdio>

using namespace uidriver;

namespace walk
{

namespace
{

// Fonts and icons of other resolutions, and what the system keeps in reserve.
constexpr unsigned gdiTolerance = 40;

bool IsNamed(HWND window, const wchar_t* caption)
{
    wchar_t text[64] = {};
    InternalGetWindowText(window, text, static_cast<int>(std::size(text)));
    return std::wstring(text) == caption;
}

} // namespace

void Walk::WarmUp()
{
    Begin();
    ComeToRest();
    if (HasFailure() || AwaitDialog() == nullptr)
        return;
    for (int row = static_cast<int>(Send(List(), LVM_GETITEMCOUNT)) - 1; row >= 0; --row) {
        SelectListViewRow(List(), row);
        UpdateWindow(Page());
        Settle(Dialog());
    }
    CloseValueEditor(OpenValueEditor(PageControl(IDC_BRANDING_RENAME_BROWSE)), IDCANCEL);
    Cancel();
}

void Walk::Take(unsigned seed, int steps, const std::function<bool()>& isTimeOver)
{
    m_chance = std::make_unique<Chance>(seed);
    m_stepsLeft = steps;
    m_isTimeOver = isTimeOver;
    m_log.clear();
    m_gdiObjects = 0;
    while (m_stepsLeft > 0 && !HasFailure() && !isTimeOver())
        UseDialogOnce();
    if (!HasFailure())
        return;
    std::printf("The walk with OV_WALK_SEED=%u failed after these steps:\n", seed);
    for (const std::string& line : m_log)
        std::printf("  %s\n", line.c_str());
    std::fflush(stdout);
}

// Also while a window that is open over it disables the dialog.
bool Walk::IsModified() const
{
    return IsWindowEnabled(Control(IDC_PREFERENCES_SAVE)) != FALSE;
}

void Walk::Fail(const std::string& what)
{
    Log("FAILURE: " + what);
    ADD_FAILURE() << what;
}

void Walk::UseDialogOnce()
{
    MakeFiles();
    OpenOnFiles();
    for (; !HasFailure() && !HasEnded() && m_stepsLeft > 0 && !m_isTimeOver(); --m_stepsLeft, ++m_steps)
        TakeStep();
    if (!HasFailure() && !HasEnded())
        CloseDialog();
}

void Walk::MakeFiles()
{
    const std::wstring folder = m_folder / std::to_wstring(++m_files);
    std::optional<std::string> current;
    if (m_chance->Percent(85))
        current = expected::RandomFile(m_chance->Generator());
    m_defaultPath.clear();
    if (m_chance->Percent(50))
        UseDefaults(expected::RandomFile(m_chance->Generator()));
    m_file = std::make_unique<OfficeFile>(folder, current);
    m_currentPath = m_chance->Percent(95) ? m_file->Path() : L"";
    Log(std::string("opens ") +
        (m_currentPath.empty() ? "no file"
         : current             ? "a file"
                               : "a new file") +
        (m_defaultPath.empty() ? "" : " with defaults"));
    if (m_chance->Percent(15))
        Log(m_file->Disturb(*m_chance));
}

void Walk::OpenOnFiles()
{
    ++m_openings;
    m_wasModified = m_mayReplace = m_unwritable = m_emptyList = false;
    m_reading = true;
    Begin();
    ComeToRest();
    m_reading = false;
    if (HasFailure())
        return;
    if (!m_currentPath.empty())
        m_file->NoteReading();
    m_read = m_currentPath.empty() ? std::nullopt : m_file->Known();
    AwaitDialog();
    m_gdiAtRest = CountGdiObjects();
    if (m_gdiObjects == 0)
        m_gdiObjects = m_gdiAtRest;
}

void Walk::TakeStep()
{
    m_wasModified = IsModified();
    m_mayReplace = false;
    m_abandonAnswer = 0;
    m_shown.reset();
    if (m_input == Dialog())
        Log(StepInDialog());
    else if (IsNamed(m_input, L"Multi-Entry Values"))
        Log(StepInEditor());
    else
        Log(StepInTester());
    ComeToRest();
    if (HasFailure())
        return;
    if (HasEnded())
        return NoteClosing();
    if (IsModified() != m_wasModified)
        Log(m_wasModified ? "(no longer modified)" : "(modified)");
    CheckAtRest();
}

// Answers what opens, until the dialog, the list editor or the tester waits for the next step.
void Walk::ComeToRest()
{
    while (!HasFailure()) {
        m_input = AwaitInputWindow(HostThread::Get().Id(), [this] { return HasEnded(); });
        if (HasEnded())
            return;
        if (!m_input) {
            return Fail("not one window takes input and answers, but of the thread's windows:" +
                        DescribeWindows(HostThread::Get().Id()));
        }
        if (IsNamed(m_input, L"Preferences") || IsNamed(m_input, L"Multi-Entry Values") ||
            IsNamed(m_input, L"Regular Expression Tester"))
            return;
        if (const auto box = AwaitMessageBox(GetText(m_input), m_input, 0))
            AnswerMessage(m_input);
        else
            AnswerChooser(m_input);
    }
}

void Walk::CheckAtRest()
{
    if (const std::string fault = FocusFault(m_input); !fault.empty())
        return Fail(fault);
    if (const std::string fault = m_file->FaultUnlessUntouched(); !fault.empty())
        return Fail(fault);
    m_gdiAtRest = CountGdiObjects();
    if (m_input == Dialog() && m_gdiAtRest > m_gdiObjects + gdiTolerance)
        Fail(std::to_string(m_gdiObjects) + " GDI objects have become " + std::to_string(m_gdiAtRest));
}

void Walk::NoteClosing()
{
    const bool saved = m_abandonAnswer == IDNO || (m_abandonAnswer == 0 && m_wasModified);
    Log(saved ? "the dialog has saved and closed" : "the dialog has closed");
    const std::string fault = saved ? m_file->NoteSave(m_mayReplace) : m_file->FaultUnlessUntouched();
    if (!fault.empty())
        return Fail(fault);
    if (saved)
        ExpectSavedFileComesBack();
}

void Walk::CloseDialog()
{
    m_file->Release();
    if (m_input != Dialog()) {
        PostMessageW(m_input, WM_COMMAND, IDCANCEL, 0);
        AwaitGone(m_input);
    }
    m_wasModified = IsModified();
    PostMessageW(Dialog(), WM_CLOSE, 0, 0);
    Log("is closed at the end");
    if (m_wasModified)
        AnswerAbandonQuestion(IDYES);
    ExpectClosed();
    if (const std::string fault = m_file->FaultUnlessUntouched(); !fault.empty())
        Fail(fault);
}

std::optional<std::string> Walk::Defaults() const
{
    return m_defaultPath.empty() ? std::nullopt : ReadBytes(m_defaultPath);
}

void Walk::ExpectSavedFileComesBack()
{
    ++m_saves;
    if (const std::string fault = FaultOfSave(m_read, Defaults(), *m_file->OnDisk(), m_emptyList);
        !fault.empty())
        return Fail("the saved file lacks variables:\n" + fault);
    m_currentPath = m_file->Path();
    m_reading = true;
    Begin();
    ComeToRest();
    m_reading = false;
    if (HasFailure() || !AwaitDialog())
        return;
    if (m_shown) {
        // The older variable, which no save removes, defines the fixed period again that was taken back.
        if (m_file->OnDisk()->find("_ORTHOVAL_SCANPERIOD_VALUE = ") != std::string::npos)
            ForgetPageOf(IDC_SCAN_PERIOD_FIXED, *m_shown);
        const std::string difference = DifferenceAfterSave(*m_shown, ValuesOf(Dialog()));
        if (!difference.empty())
            return Fail("what was shown is not what was saved:\n" + difference);
    }
    SaveAgain();
}

void Walk::SaveAgain()
{
    const std::string once = *m_file->OnDisk();
    ClickOnPage(IDC_BRANDING_AUTO);
    ClickOnPage(IDC_BRANDING_AUTO);
    Save();
    if (HasFailure())
        return;
    m_file->NoteSave(false);
    const std::string fault = FaultOfSecondSave(once, Defaults(), *m_file->OnDisk());
    if (!fault.empty())
        Fail("a second save has changed the file:\n" + fault);
}

} // namespace walk
