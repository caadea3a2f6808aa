// Checks the dialog templates of all pages against their rows and the design
// rules.
#include "pages/core/page_catalogue.h"
#include "pages/core/page_layout.h"
#include "tests/ui/built_pages.h"
#include "tests/ui/dialog_template.h"
#include "tests/ui/library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using ov::ControlKind;
using ov::PageRows;

static void PrintTo(const RECT& rect, std::ostream* stream)
{
    *stream << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}

namespace
{

// The size of a dialog unit in pixels at 96 pixels per inch.
constexpr double unitWidth = 1.5;
constexpr double unitHeight = 1.625;

// In a template the height of a drop-down list is that of the open list; closed it is as high as an edit.
constexpr LONG editHeight = 14;

bool IsButton(const TemplateControl& control)
{
    return control.windowClass == L"Button";
}
DWORD ButtonType(const TemplateControl& control)
{
    return control.style & BS_TYPEMASK;
}
bool IsGroupBox(const TemplateControl& control)
{
    return IsButton(control) && ButtonType(control) == BS_GROUPBOX;
}
bool IsCheckBox(const TemplateControl& control)
{
    return IsButton(control) && ButtonType(control) == BS_AUTOCHECKBOX;
}
bool IsRadioButton(const TemplateControl& control)
{
    return IsButton(control) && ButtonType(control) == BS_AUTORADIOBUTTON;
}
bool IsPushButton(const TemplateControl& control)
{
    return IsButton(control) &&
           (ButtonType(control) == BS_PUSHBUTTON || ButtonType(control) == BS_DEFPUSHBUTTON);
}
bool IsLabel(const TemplateControl& control)
{
    return control.windowClass == L"Static" && !control.text.empty();
}
bool IsSpin(const TemplateControl& control)
{
    return control.windowClass == L"msctls_updown32";
}
/// Whether it is an input that needs a label.
bool IsInput(const TemplateControl& control)
{
    static const std::set<std::wstring> classes = {L"Edit", L"ComboBox", L"sysdatetimepick32",
                                                   L"msctls_trackbar32"};
    return classes.contains(control.windowClass);
}

/// Its rectangle while no list is open.
RECT Closed(const TemplateControl& control)
{
    RECT rect = control.rect;
    if (control.windowClass == L"ComboBox")
        rect.bottom = rect.top + editHeight;
    return rect;
}

bool Overlap(const RECT& one, const RECT& other)
{
    RECT both = {};
    return IntersectRect(&both, &one, &other) != FALSE;
}
bool Contains(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

/// The font of the dialogs at 96 pixels per inch.
class DialogFont
{
  public:
    DialogFont()
        : m_screen(CreateCompatibleDC(nullptr)),
          m_font(CreateFontW(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0,
                             L"MS Shell Dlg"))
    {
        SelectObject(m_screen, m_font);
    }
    ~DialogFont()
    {
        DeleteDC(m_screen);
        DeleteObject(m_font);
    }
    DialogFont(const DialogFont&) = delete;
    DialogFont& operator=(const DialogFont&) = delete;

    /// The size of the caption in pixels: in one line, or wrapped to that width.
    SIZE Measure(const std::wstring& caption, int width, bool breaks) const
    {
        RECT rect = {0, 0, width, 0};
        DrawTextW(m_screen, caption.c_str(), -1, &rect,
                  static_cast<UINT>(DT_CALCRECT | (breaks ? DT_WORDBREAK : DT_SINGLELINE)));
        return {rect.right, rect.bottom};
    }

  private:
    HDC m_screen;
    HFONT m_font;
};

/// A page's rows, its expected properties, and its template.
struct BuiltPage {
    const PageRows& rows;
    const expected::Page& page;
    DialogTemplate dialog;

    const TemplateControl* Find(int id) const
    {
        const auto found = std::ranges::find(dialog.controls, id, &TemplateControl::id);
        return found != dialog.controls.end() ? &*found : nullptr;
    }

    /// The radio buttons from the first one on to the next group.
    std::vector<const TemplateControl*> Group(int firstButton) const
    {
        std::vector<const TemplateControl*> buttons;
        auto control = std::ranges::find(dialog.controls, firstButton, &TemplateControl::id);
        while (control != dialog.controls.end()) {
            if (!buttons.empty() && (control->style & WS_GROUP))
                break;
            if (IsRadioButton(*control))
                buttons.push_back(&*control);
            ++control;
        }
        return buttons;
    }

    /// The edit whose number the up-down control changes.
    const TemplateControl* EditOf(const TemplateControl& spin) const
    {
        const auto row = std::ranges::find(rows.spins, spin.id, &ov::SpinRow::controlId);
        return row != rows.spins.end() ? Find(row->buddyId) : nullptr;
    }

    bool IsStretched(int id) const
    {
        constexpr std::uint32_t stretch = 0x100;
        return std::ranges::any_of(ov::LayoutOf(rows), [&](const ov::LayoutRow& row) {
            return row.controlId == id && (row.layoutFlags & stretch) != 0;
        });
    }
};

/// Calls `check` with every page in the library.
template <typename Check>
void ForEachPage(Check check)
{
    ASSERT_FALSE(BuiltPages().empty());
    for (const expected::Page* page : BuiltPages()) {
        SCOPED_TRACE(page->title);
        const auto rows = std::ranges::find(ov::AllPageRows(), page->pageId,
                                            [](const PageRows* found) { return found->info.pageId; });
        ASSERT_NE(ov::AllPageRows().end(), rows) << "no rows";
        const auto dialog = ReadDialogTemplate(Library::Get().Module(), page->templateId);
        ASSERT_TRUE(dialog) << "the template cannot be read";
        check(BuiltPage{**rows, *page, *dialog});
    }
}

void ExpectKind(const BuiltPage& page, ControlKind kind, int id)
{
    SCOPED_TRACE(id);
    const TemplateControl* control = page.Find(id);
    ASSERT_TRUE(control) << "is not in the template";
    switch (kind) {
    case ControlKind::None:
        break;
    case ControlKind::CheckBox:
        EXPECT_TRUE(IsCheckBox(*control));
        break;
    case ControlKind::Edit:
        EXPECT_EQ(L"Edit", control->windowClass);
        EXPECT_TRUE(control->style & ES_AUTOHSCROLL);
        break;
    case ControlKind::DropDownList:
        EXPECT_EQ(L"ComboBox", control->windowClass);
        EXPECT_EQ(static_cast<DWORD>(CBS_DROPDOWNLIST), control->style & CBS_DROPDOWNLIST);
        EXPECT_TRUE(control->style & WS_VSCROLL);
        break;
    case ControlKind::RadioGroup:
        EXPECT_TRUE(IsRadioButton(*control));
        EXPECT_TRUE(control->style & WS_GROUP);
        EXPECT_TRUE(control->style & WS_TABSTOP);
        break;
    case ControlKind::DatePicker:
        EXPECT_EQ(L"sysdatetimepick32", control->windowClass);
        break;
    }
}

TEST(Templates, HaveTheFrameOfAPage)
{
    ForEachPage([](const BuiltPage& page) {
        const DWORD style = WS_CHILD | WS_CLIPCHILDREN | WS_BORDER | DS_CONTROL | DS_SETFONT;
        EXPECT_EQ(style, page.dialog.style & style);
        EXPECT_FALSE(page.dialog.style & (WS_POPUP | WS_CAPTION) & ~WS_BORDER);
        EXPECT_TRUE(page.dialog.extendedStyle & WS_EX_CONTROLPARENT);
        EXPECT_EQ(8, page.dialog.pointSize);
        EXPECT_EQ(L"MS Shell Dlg", page.dialog.font);
        const auto first = std::ranges::find_if_not(page.dialog.controls, IsGroupBox);
        ASSERT_NE(page.dialog.controls.end(), first);
        const bool beginsAGroup =
            std::any_of(page.dialog.controls.begin(), first + 1,
                        [](const auto& control) { return (control.style & WS_GROUP) != 0; });
        EXPECT_TRUE(beginsAGroup) << "arrow keys would leave the page";
    });
}

TEST(Templates, HaveEachIdOnce)
{
    ForEachPage([](const BuiltPage& page) {
        std::set<int> ids;
        for (const TemplateControl& control : page.dialog.controls)
            EXPECT_TRUE(control.id == -1 || ids.insert(control.id).second) << control.id;
    });
}

TEST(Templates, HaveTheControlOfEveryRowInItsKind)
{
    ForEachPage([](const BuiltPage& page) {
        for (const ov::SettingRow& row : page.rows.settings) {
            if (row.controlId != 0)
                ExpectKind(page, row.control, row.controlId);
        }
        for (const ov::BarRow& row : page.rows.bars)
            EXPECT_TRUE(page.Find(row.controlId)) << row.controlId;
        for (const ov::CompanionRow& row : page.rows.companions)
            ExpectKind(page, row.control, row.controlId);
        for (const ov::HelpRow& row : page.rows.extraHelp)
            EXPECT_TRUE(page.Find(row.controlId)) << row.controlId;
        for (const ov::DependencyRow& row : page.rows.dependencies)
            EXPECT_TRUE(page.Find(row.controlId)) << row.controlId;
        for (const ov::BrowseRow& row : page.rows.browses) {
            ASSERT_TRUE(page.Find(row.buttonId)) << row.buttonId;
            EXPECT_TRUE(IsPushButton(*page.Find(row.buttonId))) << row.buttonId;
            if (row.focusOnRefusal > 0) {
                EXPECT_TRUE(page.Find(row.focusOnRefusal)) << row.focusOnRefusal;
            }
        }
        for (const ov::SpinRow& row : page.rows.spins) {
            ASSERT_TRUE(page.Find(row.controlId)) << row.controlId;
            EXPECT_TRUE(IsSpin(*page.Find(row.controlId))) << row.controlId;
            ExpectKind(page, ControlKind::Edit, row.buddyId);
        }
    });
}

TEST(Templates, HaveTheControlOfEveryExpectedSetting)
{
    ForEachPage([](const BuiltPage& page) {
        for (const expected::Setting& setting : page.page.settings) {
            SCOPED_TRACE(setting.variable);
            ASSERT_TRUE(setting.controlId == 0 || page.Find(setting.controlId)) << setting.controlId;
            EXPECT_TRUE(page.Find(setting.commentId)) << setting.commentId;
            if (setting.control == expected::Control::Radio) {
                EXPECT_EQ(static_cast<std::size_t>(setting.entries), page.Group(setting.controlId).size());
            }
        }
    });
}

/// Row by row: controls that begin above the middle of a row's first control belong to that row.
std::vector<const TemplateControl*> InReadingOrder(const DialogTemplate& dialog)
{
    std::vector<const TemplateControl*> controls;
    for (const TemplateControl& control : dialog.controls) {
        if (!IsGroupBox(control))
            controls.push_back(&control);
    }
    std::ranges::stable_sort(controls, {}, [](const TemplateControl* control) { return control->rect.top; });
    for (auto row = controls.begin(); row != controls.end();) {
        const RECT first = Closed(**row);
        const auto next = std::find_if(row, controls.end(), [&](const TemplateControl* control) {
            return control->rect.top >= (first.top + first.bottom) / 2;
        });
        std::stable_sort(row, next, [](const TemplateControl* one, const TemplateControl* other) {
            return one->rect.left < other->rect.left;
        });
        row = next;
    }
    return controls;
}

TEST(Templates, StandInReadingOrder)
{
    ForEachPage([](const BuiltPage& page) {
        std::vector<int> read;
        for (const TemplateControl* control : InReadingOrder(page.dialog))
            read.push_back(control->id);
        std::vector<int> created;
        for (const TemplateControl& control : page.dialog.controls) {
            if (!IsGroupBox(control))
                created.push_back(control.id);
        }
        EXPECT_EQ(read, created);
    });
}

TEST(Templates, LetTabStopAtWhatCanBeUsed)
{
    ForEachPage([](const BuiltPage& page) {
        for (std::size_t i = 0; i < page.dialog.controls.size(); ++i) {
            const TemplateControl& control = page.dialog.controls[i];
            const bool isStop = (control.style & WS_TABSTOP) != 0;
            const bool begins = (control.style & WS_GROUP) != 0;
            if (IsInput(control) || IsCheckBox(control) || IsPushButton(control)) {
                EXPECT_TRUE(isStop || (control.style & ES_READONLY)) << control.id;
            } else if (IsRadioButton(control)) {
                // The system makes the others tab stops only while they are checked.
                EXPECT_TRUE(isStop || !begins) << control.id;
            } else {
                EXPECT_FALSE(isStop) << control.id;
            }
            // Arrow keys must not go beyond the last button of a group.
            if (i > 0 && IsRadioButton(page.dialog.controls[i - 1]) && !IsRadioButton(control)) {
                EXPECT_TRUE(begins) << control.id << " follows a radio button";
            }
        }
    });
}

/// The mnemonic of a caption; 0 for none.
wchar_t Mnemonic(const std::wstring& caption)
{
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&')
            continue;
        if (caption[i + 1] != L'&')
            return static_cast<wchar_t>(std::towupper(caption[i + 1]));
        ++i;
    }
    return 0;
}

TEST(Templates, NameEachKeyOnceTogetherWithTheDialog)
{
    constexpr unsigned preferences = 100;
    const auto dialog = ReadDialogTemplate(Library::Get().Module(), preferences);
    ASSERT_TRUE(dialog);
    ForEachPage([&](const BuiltPage& page) {
        std::map<wchar_t, int> keys;
        for (const DialogTemplate* part : {&*dialog, &page.dialog}) {
            for (const TemplateControl& control : part->controls) {
                const wchar_t key = Mnemonic(control.text);
                EXPECT_TRUE(key == 0 || control.windowClass == L"Edit" ||
                            keys.insert({key, control.id}).second)
                    << control.id << " and " << keys[key];
            }
        }
    });
}

/// Inputs that need no label of their own.
bool IsExplainedByItsRow(const BuiltPage& page, const TemplateControl& control)
{
    constexpr int scanPeriod = 20;
    // The controls of a period read as a sentence that begins with "Define a fixed scan period".
    return page.page.pageId == scanPeriod && IsInput(control);
}

TEST(Templates, PrecedeEveryInputByItsLabel)
{
    ForEachPage([](const BuiltPage& page) {
        for (std::size_t i = 0; i < page.dialog.controls.size(); ++i) {
            const TemplateControl& control = page.dialog.controls[i];
            if (!IsInput(control) || IsExplainedByItsRow(page, control))
                continue;
            ASSERT_GT(i, 0u) << control.id;
            const TemplateControl& before = page.dialog.controls[i - 1];
            const bool isCaptioned = (IsCheckBox(before) || IsRadioButton(before)) && !before.text.empty();
            const bool showsATrackBar =
                before.windowClass == L"msctls_trackbar32" && (control.style & ES_READONLY);
            EXPECT_TRUE(IsLabel(before) || isCaptioned || showsATrackBar) << control.id;
        }
    });
}

TEST(Templates, AreAsLargeAsTheirContentAndNothingLiesOutside)
{
    ForEachPage([](const BuiltPage& page) {
        EXPECT_GE(std::ceil(page.dialog.size.cx * unitWidth), page.rows.info.scrollWidth);
        EXPECT_GE(std::ceil(page.dialog.size.cy * unitHeight), page.rows.info.scrollHeight);
        for (const TemplateControl& control : page.dialog.controls) {
            const RECT rect = Closed(control);
            EXPECT_TRUE(Contains({0, 0, page.dialog.size.cx, page.dialog.size.cy}, rect)) << control.id;
            EXPECT_GT(control.Width(), 0) << control.id;
            EXPECT_GT(control.Height(), 0) << control.id;
        }
    });
}

TEST(Templates, DoNotLetControlsOverlap)
{
    ForEachPage([](const BuiltPage& page) {
        const auto& controls = page.dialog.controls;
        for (std::size_t i = 0; i < controls.size(); ++i) {
            for (std::size_t k = i + 1; k < controls.size(); ++k) {
                const RECT one = Closed(controls[i]);
                const RECT other = Closed(controls[k]);
                const bool isFrame = (IsGroupBox(controls[i]) && Contains(one, other)) ||
                                     (IsGroupBox(controls[k]) && Contains(other, one));
                const bool isSpin = IsSpin(controls[k]) && page.EditOf(controls[k]) == &controls[i];
                EXPECT_FALSE(!isFrame && !isSpin && Overlap(one, other))
                    << controls[i].id << " (" << testing::PrintToString(one) << ") and " << controls[k].id
                    << " (" << testing::PrintToString(other) << ")";
            }
        }
    });
}

// An up-down control occupies the right end of its edit.
TEST(Templates, PlaceUpDownControlsAtTheEndOfTheirEdits)
{
    ForEachPage([](const BuiltPage& page) {
        for (const TemplateControl& control : page.dialog.controls) {
            if (!IsSpin(control))
                continue;
            SCOPED_TRACE(control.id);
            const TemplateControl* edit = page.EditOf(control);
            ASSERT_TRUE(edit);
            EXPECT_EQ(edit->rect.right, control.rect.right);
            EXPECT_EQ(edit->rect.top, control.rect.top);
        }
    });
}

TEST(Templates, GiveControlsTheHeightOfTheirKind)
{
    ForEachPage([](const BuiltPage& page) {
        for (const TemplateControl& control : page.dialog.controls) {
            SCOPED_TRACE(control.id);
            const int height = control.Height();
            if (control.windowClass == L"Edit" || IsPushButton(control) || IsSpin(control) ||
                control.windowClass == L"sysdatetimepick32") {
                EXPECT_EQ(editHeight, height);
            } else if (IsCheckBox(control) || IsRadioButton(control)) {
                EXPECT_EQ(10, height);
            } else if (IsLabel(control)) {
                EXPECT_EQ(0, height % 8);
            } else if (control.windowClass == L"ComboBox") {
                std::size_t entries = 0;
                for (const ov::EntriesRow& row : page.rows.entries) {
                    if (row.controlId == control.id)
                        entries = row.stringIds.size();
                }
                EXPECT_GE(height, editHeight + 10 * static_cast<int>(entries));
            }
            if (IsPushButton(control) && control.text == L"...") {
                EXPECT_EQ(16, control.Width());
            }
        }
    });
}

TEST(Templates, GiveCaptionsTheRoomThatTheyTake)
{
    const DialogFont font;
    // The width of a box including its distance from the caption, and the edges of buttons and frames.
    constexpr int boxWidth = 18;
    constexpr int buttonEdges = 6;
    constexpr int frameEdges = 18;
    ForEachPage([&](const BuiltPage& page) {
        for (const TemplateControl& control : page.dialog.controls) {
            // Controls that stretch with the page are wider in the dialog.
            if (control.text.empty() || page.IsStretched(control.id))
                continue;
            const bool isBox = IsCheckBox(control) || IsRadioButton(control);
            const bool breaks = IsLabel(control) && control.Height() > 8;
            const int taken = isBox                   ? boxWidth
                              : IsPushButton(control) ? buttonEdges
                              : IsGroupBox(control)   ? frameEdges
                                                      : 0;
            const int width = static_cast<int>(std::lround(control.Width() * unitWidth)) - taken;
            const int height = static_cast<int>(std::lround(control.Height() * unitHeight));
            const SIZE size = font.Measure(control.text, width, breaks);
            EXPECT_LE(size.cx, width) << control.id << " " << testing::PrintToString(control.text);
            EXPECT_LE(size.cy, height) << control.id << " " << testing::PrintToString(control.text);
        }
    });
}

TEST(Templates, KeepTheMarginsOfAPageAndOfItsFrames)
{
    static constexpr LONG margin = 7;
    static constexpr LONG topOfFrame = 11;
    ForEachPage([](const BuiltPage& page) {
        const auto& controls = page.dialog.controls;
        for (const TemplateControl& control : controls) {
            SCOPED_TRACE(control.id);
            EXPECT_GE(control.rect.left, margin);
            EXPECT_GE(control.rect.top, margin);
            EXPECT_LE(control.rect.right, page.dialog.size.cx - margin);
            for (const TemplateControl& frame : controls) {
                if (!IsGroupBox(frame) || &frame == &control || !Contains(frame.rect, Closed(control)))
                    continue;
                EXPECT_GE(control.rect.left, frame.rect.left + margin);
                EXPECT_GE(control.rect.top, frame.rect.top + topOfFrame);
                EXPECT_LE(control.rect.right, frame.rect.right - margin);
                EXPECT_LE(Closed(control).bottom, frame.rect.bottom - margin);
            }
        }
    });
}

} // namespace
