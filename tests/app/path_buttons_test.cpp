// The "..." buttons for a file or a folder, on every page that has one: each fills
// its own field and variable, and does not change typed text.
#include "resources/ids.h"
#include "tests/app/program.h"

#include <ostream>
#include <utility>

namespace
{

enum class Door { File, Folder };

struct PathButton {
    const char* variable;
    int edit;
    int button;
    Door door;
};

struct PathPage {
    const char* name;
    int pageId;
    std::vector<PathButton> buttons;
    std::vector<std::pair<const char*, int>> others; ///< texts of the page that no such button fills
};

const PathPage pages[] = {
    {"FilePaths",
     11,
     {{"_ORTHOVAL_DICT_DIR", 2401, 2402, Door::Folder},
      {"_ORTHOVAL_DOCS_DIR", 2403, 2405, Door::Folder},
      {"_ORTHOVAL_FILEDSN_DIR", 2406, 2408, Door::Folder},
      {"_ORTHOVAL_REPORT_FILEDSN_DIR", 2432, 2433, Door::Folder},
      {"_ORTHOVAL_REPORT_TEMPLATE_JET_DSN_XLS", 2435, 2436, Door::Folder},
      {"_ORTHOVAL_REPORT_TEMPLATE_ACE_DSN_XLS", 2441, 2442, Door::Folder},
      {"_ORTHOVAL_README_FILE", 2409, 2411, Door::File},
      {"_ORTHOVAL_SCRIPTS", 2412, 2414, Door::Folder},
      {"_ORTHOVAL_USERS_FILE", 2417, 2419, Door::File},
      {"_ORTHOVAL_REPORT_DISCIPLINES_DIR", 2437, 2439, Door::Folder},
      {"_ORTHOVAL_HTMLEXPORT_OUTDIR", 2425, 2427, Door::Folder},
      {"_ORTHOVAL_HTMLEXPORT_EXEFILE", 2428, 2430, Door::File}},
     {}},
    {"FileNaming",
     15,
     {{"_ORTHOVAL_CONVENTION_FILENAME_HELP_FILE", 2906, 2907, Door::File}},
     {{"_ORTHOVAL_CONVENTION_FILENAME", 2901},
      {"_ORTHOVAL_CONVENTION_FILENAME_DESCR", 2903},
      {"_ORTHOVAL_CONVENTION_FILENAME_HELP_STRING", 9341}}},
    {"ModelNaming",
     17,
     {{"_ORTHOVAL_CONVENTION_MODELNAME_HELP_FILE", 9344, 9346, Door::File}},
     {{"_ORTHOVAL_CONVENTION_MODELNAME", 2903},
      {"_ORTHOVAL_CONVENTION_MODELNAME_DESCR", 2909},
      {"_ORTHOVAL_CONVENTION_MODELNAME_HELP_STRING", 9349}}},
    {"Languages",
     12,
     {{"_ORTHOVAL_BILINGUAL_TEXT_TEMPLATE_FILE", 2709, 2710, Door::File}},
     {{"_ORTHOVAL_MENU_NAME", 9375},
      {"_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_1", 2701},
      {"_ORTHOVAL_BILINGUAL_TEXT_LANGUAGE_2", 2702},
      {"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_1", 2704},
      {"_ORTHOVAL_BILINGUAL_TEXT_KEYIN_2", 2706},
      {"_ORTHOVAL_BILINGUAL_TEXT_INITIAL_KEYIN", 2711}}},
};

void PrintTo(const PathPage& page, std::ostream* stream)
{
    *stream << page.name;
}

std::wstring Typed(int edit)
{
    return L"typed " + std::to_wstring(edit);
}
std::wstring Chosen(int edit)
{
    return L"P:\\chosen\\" + std::to_wstring(edit);
}

class PathButtons : public ProgramTest, public testing::WithParamInterface<PathPage>
{
  protected:
    const PathPage& page = GetParam();

    void OpenPage()
    {
        Open(L"", MakeFile(L"office.cfg", ""));
        dialog->SelectPage(static_cast<UINT>(page.pageId));
    }
    void TypeEverywhere()
    {
        for (const PathButton& button : page.buttons)
            Type(button.edit, Typed(button.edit));
        for (const auto& [variable, edit] : page.others)
            Type(edit, Typed(edit));
    }
    void Answer(const PathButton& button, const std::wstring& path)
    {
        if (button.door == Door::File)
            doors.AnswerFile(path);
        else
            doors.AnswerFolder(path);
    }
    std::wstring Stored(const char* variable) const
    {
        return Wide(dialog->Store().GetSettingValue(ov::TextFromUtf8(variable), ov::kCurrentTable));
    }
};

} // namespace

TEST_P(PathButtons, FillTheirOwnFieldAndLeaveTheOthersAsTyped)
{
    OpenPage();
    TypeEverywhere();
    for (auto next = page.buttons.begin(); next != page.buttons.end(); ++next) {
        SCOPED_TRACE(next->variable);
        Answer(*next, Chosen(next->edit));
        Click(next->button);
        for (auto button = page.buttons.begin(); button != page.buttons.end(); ++button)
            EXPECT_EQ(button <= next ? Chosen(button->edit) : Typed(button->edit), TextOf(button->edit));
        for (const auto& [variable, edit] : page.others)
            EXPECT_EQ(Typed(edit), TextOf(edit)) << variable;
    }
    EXPECT_TRUE(IsEnabled(IDC_PREFERENCES_SAVE));
}

TEST_P(PathButtons, FillTheVariableOfTheirField)
{
    OpenPage();
    TypeEverywhere();
    for (const PathButton& button : page.buttons) {
        Answer(button, Chosen(button.edit));
        Click(button.button);
    }
    Click(IDC_PREFERENCES_SAVE);
    for (const PathButton& button : page.buttons)
        EXPECT_EQ(Chosen(button.edit), Stored(button.variable)) << button.variable;
    for (const auto& [variable, edit] : page.others)
        EXPECT_EQ(Typed(edit), Stored(variable)) << variable;
}

TEST_P(PathButtons, LeaveEverythingAsTypedWhenNothingIsChosen)
{
    OpenPage();
    TypeEverywhere();
    for (const PathButton& next : page.buttons) {
        Answer(next, L"");
        Click(next.button);
    }
    for (const PathButton& button : page.buttons)
        EXPECT_EQ(Typed(button.edit), TextOf(button.edit)) << button.variable;
    for (const auto& [variable, edit] : page.others)
        EXPECT_EQ(Typed(edit), TextOf(edit)) << variable;
}

INSTANTIATE_TEST_SUITE_P(Pages, PathButtons, testing::ValuesIn(pages),
                         [](const auto& instance) { return std::string(instance.param.name); });
