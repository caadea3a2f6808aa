// The dialog templates of the pages, as portable code reads them.
#include "pages/core/page_catalogue.h"
#include "pages/core/page_template.h"
#include "tests/pages/expected_controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{
using expected::ControlClass;
using ov::PageTemplate;
using ov::TemplateControl;
using ov::TemplateKind;

const PageTemplate& TemplateOf(int pageId)
{
    return *ov::FindTemplate(ov::FindPage(pageId)->templateId);
}

TemplateKind KindOf(ControlClass controlClass)
{
    switch (controlClass) {
    case ControlClass::CheckBox:
        return TemplateKind::CheckBox;
    case ControlClass::RadioButton:
        return TemplateKind::RadioButton;
    case ControlClass::Button:
        return TemplateKind::Button;
    case ControlClass::Frame:
        return TemplateKind::Frame;
    case ControlClass::Label:
        return TemplateKind::Label;
    case ControlClass::Edit:
        return TemplateKind::Edit;
    case ControlClass::List:
        return TemplateKind::List;
    case ControlClass::UpDown:
        return TemplateKind::UpDown;
    case ControlClass::TrackBar:
        return TemplateKind::TrackBar;
    case ControlClass::Date:
        break;
    }
    return TemplateKind::DatePicker;
}

TEST(PageTemplates, HaveTheControlsThatAreExpected)
{
    for (const expected::ControlPage& page : expected::ControlPages()) {
        const PageTemplate& found = TemplateOf(page.pageId);
        EXPECT_EQ(found.controls.size(), page.controls.size()) << page.pageId;
        for (const expected::ControlRow& row : page.controls) {
            if (row.id == expected::kAnyId)
                continue;
            SCOPED_TRACE(row.id);
            const auto control = std::ranges::find(found.controls, row.id, &TemplateControl::id);
            ASSERT_NE(control, found.controls.end());
            EXPECT_EQ(control->kind, KindOf(row.controlClass));
            EXPECT_EQ(control->readOnly, (row.marks & expected::ReadOnly) != 0);
            if (row.caption != nullptr) {
                EXPECT_EQ(control->caption, row.caption);
            }
        }
    }
}

std::string Caption(int pageId, int controlId)
{
    return ov::Utf8FromText(ov::CaptionOf(TemplateOf(pageId), controlId));
}

TEST(PageTemplates, NameAnInputByItsLabelBoxOrFrame)
{
    EXPECT_EQ(Caption(6, 2000), "Check cells (element types 2, 35)");
    EXPECT_EQ(Caption(6, 11015), "Globally ignored levels");
    EXPECT_EQ(Caption(22, 9489), "Allowed Tag Sets");
    EXPECT_EQ(Caption(19, 9373), "Default Report Name");
    EXPECT_EQ(Caption(29, 11033), "Weight");
    EXPECT_EQ(Caption(6, 4711), "");
}

TEST(PageTemplates, KnowTheButtonsOfAGroup)
{
    std::vector<int> ids;
    for (const TemplateControl* button : ov::ButtonsOfGroup(TemplateOf(16), 11040))
        ids.push_back(button->id);
    EXPECT_EQ(ids, (std::vector<int>{11040, 11041, 11042, 11045, 11043, 11044}));
    EXPECT_EQ(ov::ButtonsOfGroup(TemplateOf(16), 11072).size(), 2u);
    EXPECT_EQ(ov::ButtonsOfGroup(TemplateOf(19), 9368).size(), 5u);
    EXPECT_EQ(ov::ButtonsOfGroup(TemplateOf(19), 9376).size(), 4u);
    EXPECT_EQ(ov::ButtonsOfGroup(TemplateOf(4), 9351).size(), 3u);
    EXPECT_TRUE(ov::ButtonsOfGroup(TemplateOf(4), 4711).empty());
}

TEST(PageTemplates, NameAGroupByTheLabelOrFrameBeforeIt)
{
    EXPECT_EQ(ov::CaptionOfGroup(TemplateOf(16), 11040), u"Wildcard / RegEx Support");
    EXPECT_EQ(ov::CaptionOfGroup(TemplateOf(16), 11072), u"Default Value");
    EXPECT_EQ(ov::CaptionOfGroup(TemplateOf(4), 9351), u"Reference file handling when certifying");
}

TEST(PageTemplates, AreNullForAnUnknownId)
{
    EXPECT_EQ(ov::FindTemplate(4711), nullptr);
}
} // namespace
