/// A walk: the dialog is opened on random files, used at random and closed, again and again, and
/// looked at after every step.
#pragma once

#include "tests/ui/dialog_session.h"
#include "tests/walk/chance.h"
#include "tests/walk/office_file.h"
#include "tests/walk/shown_values.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace walk
{

class Walk : public DialogSession
{
  protected:
    /// Draws every page once, for which the system keeps objects ever after.
    void WarmUp();

    /// Takes so many steps, or until the time is over. A failure ends the walk and is reported with the
    /// seed and the steps.
    void Take(unsigned seed, int steps, const std::function<bool()>& isTimeOver);

    /// How many steps the walks have taken, dialogs they have opened, and files they have saved.
    int m_steps = 0;
    int m_openings = 0;
    int m_saves = 0;

  private:
    // From one opening to the closing that follows, walk.cpp
    void UseDialogOnce();
    void MakeFiles();
    void OpenOnFiles();
    void TakeStep();
    void ComeToRest();
    void CheckAtRest();
    void NoteClosing();
    void CloseDialog();
    void ExpectSavedFileComesBack();
    void SaveAgain();
    void Log(const std::string& text) { m_log.push_back(text); }
    void Fail(const std::string& what);
    bool IsModified() const;
    std::optional<std::string> Defaults() const; ///< the bytes of the defaults, if there are any

    // Windows that open over the dialog, steps_in_windows.cpp
    void AnswerMessage(HWND box);
    std::string FaultOfMessage(const uidriver::MessageBoxContent& box) const;
    void AnswerChooser(HWND chooser);
    std::string StepInEditor();
    std::string StepInTester();

    // Steps in the dialog, steps.cpp; each returns what it does, for the log
    struct Step;
    static const std::vector<Step>& Steps();
    std::string StepInDialog();
    std::string SelectCategory();
    std::string ClickCategory();
    std::string PressKey();
    std::string PressMnemonic();
    std::string ClickControl();
    std::string PressHiddenBox();
    std::string EnterText();
    std::string ChooseEntry();
    std::string ResizeWindow();
    std::string MinimiseAndRestore();
    std::string ChangeColours();
    std::string ChangeResolution();
    std::string ScrollPage();
    std::string AskToClose();
    std::string LoadDefaults();
    std::string DisturbFile();
    std::string ChooseFile();
    std::string PressSave();
    std::string PressCancel();

    /// A control gets the text.
    void NoteText(const std::wstring& text);

    /// The usable controls of the window that takes input, those of a page among them.
    std::vector<HWND> UsableControls(const std::vector<std::wstring>& classes) const;

    std::unique_ptr<Chance> m_chance;
    std::unique_ptr<OfficeFile> m_file;
    std::vector<std::string> m_log;
    int m_files = 0;
    int m_stepsLeft = 0;
    std::function<bool()> m_isTimeOver;
    HWND m_input = nullptr;            ///< the window that takes input
    unsigned m_gdiAtRest = 0;          ///< after the step before
    unsigned m_gdiObjects = 0;         ///< of the dialog when it is first opened, and of choosers
    bool m_unwritable = false;         ///< a text was entered that no file can hold
    bool m_emptyList = false;          ///< a text was entered that may be a list without an entry
    std::optional<std::string> m_read; ///< what the dialog shows, but for the steps

    // Of the present step
    bool m_wasModified = false;
    bool m_mayReplace = false;
    int m_abandonAnswer = 0; ///< to the question whether to abandon the changes; 0: not asked
    std::optional<ShownValues> m_shown;
    bool m_reading = false;  ///< a file is being read
    bool m_choosing = false; ///< the next chooser is to take the current path
};

} // namespace walk
