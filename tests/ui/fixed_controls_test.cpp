// Compares the library's templates and strings with the expected controls and
// texts.
#include "tests/pages/expected_controls.h"
#include "tests/pages/expected_texts.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_template.h"
#include "tests/ui/library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <commctrl.h>
#include <optional>
#include <string>
#include <vector>

using expected::ControlClass;
using expected::ControlRow;

namespace
{

std::wstring Wide(const char* text)
{
    const std::string narrow = text != nullptr ? text : "";
    return {narrow.begin(), narrow.end()};
}

/// The kind of a control by its class and type; nothing for any other.
std::optional<ControlClass> ClassOf(const TemplateControl& control)
{
    if (control.windowClass == L"Button") {
        switch (control.style & BS_TYPEMASK) {
        case BS_AUTOCHECKBOX:
            return ControlClass::CheckBox;
        case BS_AUTORADIOBUTTON:
            return ControlClass::RadioButton;
        case BS_PUSHBUTTON:
            return ControlClass::Button;
        case BS_GROUPBOX:
            return ControlClass::Frame;
        default:
            return {};
        }
    }
    if (control.windowClass == L"Static")
        return ControlClass::Label;
    if (control.windowClass == L"Edit")
        return ControlClass::Edit;
    if (control.windowClass == L"ComboBox" && (control.style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST)
        return ControlClass::List;
    if (control.windowClass == L"msctls_updown32")
        return ControlClass::UpDown;
    if (control.windowClass == L"msctls_trackbar32")
        return ControlClass::TrackBar;
    if (control.windowClass == L"sysdatetimepick32")
        return ControlClass::Date;
    return {};
}

void ExpectMarks(unsigned marks, const TemplateControl& control)
{
    const DWORD style = control.style;
    EXPECT_EQ((marks & expected::Disabled) != 0, (style & WS_DISABLED) != 0);
    if (control.windowClass == L"Edit") {
        EXPECT_EQ((marks & expected::OnlyDigits) != 0, (style & ES_NUMBER) != 0);
        EXPECT_EQ((marks & expected::ReadOnly) != 0, (style & ES_READONLY) != 0);
        EXPECT_EQ((marks & expected::WantsReturn) != 0, (style & ES_WANTRETURN) != 0);
        EXPECT_FALSE(style & (ES_MULTILINE | ES_PASSWORD));
    }
    if (marks & expected::OneBorderedLine) {
        EXPECT_TRUE(style & WS_BORDER);
        EXPECT_TRUE(style & ES_AUTOHSCROLL);
    }
    if (marks & expected::Sorted) {
        EXPECT_TRUE(style & CBS_SORT);
    }
    if (marks & expected::Unsorted) {
        EXPECT_FALSE(style & CBS_SORT);
    }
    if (marks & expected::NoTicks) {
        EXPECT_TRUE(style & TBS_NOTICKS);
        EXPECT_TRUE(style & TBS_BOTH);
        EXPECT_FALSE(style & TBS_VERT);
    }
    if (marks & expected::PlainIntegers) {
        EXPECT_TRUE(style & UDS_SETBUDDYINT);
        EXPECT_TRUE(style & UDS_NOTHOUSANDS);
        EXPECT_TRUE(style & UDS_ARROWKEYS);
    }
}

bool IsMeant(const ControlRow& row, const TemplateControl& control)
{
    if (row.id != expected::kAnyId)
        return row.id == control.id;
    return ClassOf(control) == row.controlClass && control.text == Wide(row.caption);
}

/// Calls `check` with every expected page and its template.
template <typename Check>
void ForEachPage(Check check)
{
    ASSERT_EQ(expected::ControlPages().size(), BuiltPages().size());
    for (const expected::Page* page : BuiltPages()) {
        SCOPED_TRACE(page->title);
        const auto dialog = ReadDialogTemplate(Library::Get().Module(), page->templateId);
        ASSERT_TRUE(dialog) << "the template cannot be read";
        check(expected::ControlsOf(page->pageId), *dialog);
    }
}

/// Identifies a control in messages: its id, or its caption if the id is free.
std::string NameOf(const ControlRow& row)
{
    return row.id != expected::kAnyId ? std::to_string(row.id) : row.caption;
}

TEST(FixedControls, StandInTheTemplatesInTheirKindWithTheirCaption)
{
    ForEachPage([](const expected::ControlPage& page, const DialogTemplate& dialog) {
        for (const ControlRow& row : page.controls) {
            SCOPED_TRACE(NameOf(row));
            const auto control =
                std::ranges::find_if(dialog.controls, [&](const auto& found) { return IsMeant(row, found); });
            ASSERT_NE(dialog.controls.end(), control) << "is not in the template";
            EXPECT_EQ(row.controlClass, ClassOf(*control));
            EXPECT_EQ(Wide(row.caption), control->text);
            ExpectMarks(row.marks, *control);
        }
    });
}

TEST(FixedControls, AreAllThatTheTemplatesHave)
{
    ForEachPage([](const expected::ControlPage& page, const DialogTemplate& dialog) {
        for (const TemplateControl& control : dialog.controls) {
            EXPECT_EQ(1, std::ranges::count_if(page.controls,
                                               [&](const auto& row) { return IsMeant(row, control); }))
                << control.id << " " << testing::PrintToString(control.text);
        }
    });
}

TEST(FixedControls, FollowTheCaptionThatTellsWhatTheyAre)
{
    ForEachPage([](const expected::ControlPage& page, const DialogTemplate& dialog) {
        for (const ControlRow& row : page.controls) {
            if (row.label == nullptr)
                continue;
            SCOPED_TRACE(NameOf(row));
            const auto control = std::ranges::find(dialog.controls, row.id, &TemplateControl::id);
            ASSERT_NE(dialog.controls.end(), control);
            ASSERT_NE(dialog.controls.begin(), control);
            EXPECT_EQ(Wide(row.label), (control - 1)->text);
        }
    });
}

TEST(FixedControls, LieOnTemplatesOfTheSizeThatIsExpected)
{
    ForEachPage([](const expected::ControlPage& page, const DialogTemplate& dialog) {
        if (page.width == 0)
            return;
        EXPECT_EQ(page.width, dialog.size.cx);
        EXPECT_EQ(page.height, dialog.size.cy);
    });
}

TEST(FixedControls, AreTheNumbersOnTheRightOfTheTrackBars)
{
    constexpr int weighting = 29;
    const auto dialog = ReadDialogTemplate(Library::Get().Module(), expected::PageOf(weighting).templateId);
    ASSERT_TRUE(dialog);
    int bars = 0;
    for (auto control = dialog->controls.begin(); control != dialog->controls.end(); ++control) {
        if (control->windowClass != L"msctls_trackbar32")
            continue;
        ++bars;
        const auto number = control + 1;
        ASSERT_NE(dialog->controls.end(), number);
        EXPECT_EQ(L"Edit", number->windowClass);
        EXPECT_GE(number->rect.left, control->rect.right) << control->id;
        EXPECT_LT(number->rect.top, control->rect.bottom) << control->id;
        EXPECT_GT(number->rect.bottom, control->rect.top) << control->id;
    }
    EXPECT_EQ(8, bars);
}

TEST(FixedControls, StandInTheRowsOfTheScanPeriod)
{
    constexpr int scanPeriod = 20;
    const std::vector<std::vector<int>> rows = {
        {9316}, {9317}, {11033, 11032, 11038}, {9318, 11034}, {11036, 11035, 9322}, {11037}};
    const auto dialog = ReadDialogTemplate(Library::Get().Module(), expected::PageOf(scanPeriod).templateId);
    ASSERT_TRUE(dialog);
    LONG endOfRow = 0;
    for (const auto& row : rows) {
        LONG middle = 0;
        LONG right = 0;
        LONG bottom = 0;
        for (const int id : row) {
            const auto control = std::ranges::find(dialog->controls, id, &TemplateControl::id);
            ASSERT_NE(dialog->controls.end(), control) << id;
            const RECT& rect = control->rect;
            // In a template the height of a list is that of the open list.
            constexpr LONG closedList = 14;
            const LONG end = control->windowClass == L"ComboBox" ? rect.top + closedList : rect.bottom;
            EXPECT_GE(rect.top, endOfRow) << id;
            EXPECT_GE(rect.left, right) << id;
            if (middle == 0)
                middle = (rect.top + end) / 2;
            EXPECT_TRUE(rect.top <= middle && middle <= end) << id;
            right = rect.right;
            bottom = std::max(bottom, end);
        }
        endOfRow = bottom;
    }
}

TEST(FixedTexts, AreInTheLibrary)
{
    Library::Get().Load();
    for (const expected::FixedText& fixed : expected::FixedTexts()) {
        const wchar_t* start = nullptr;
        // With a length of 0 the function returns a pointer to the string in the resources.
        const int length =
            LoadStringW(Library::Get().Module(), fixed.id, reinterpret_cast<wchar_t*>(&start), 0);
        const std::wstring text(start != nullptr ? start : L"", static_cast<std::size_t>(length));
        const std::wstring wanted = Wide(fixed.text);
        if (fixed.extent == expected::Extent::Part)
            EXPECT_NE(std::wstring::npos, text.find(wanted)) << fixed.id;
        else if (fixed.extent == expected::Extent::Beginning)
            EXPECT_TRUE(text.starts_with(wanted)) << fixed.id;
        else
            EXPECT_EQ(wanted, text) << fixed.id;
    }
}

} // namespace
