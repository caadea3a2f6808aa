#pragma once

#include "base/text.h"

#include <string_view>
#include <vector>

namespace ov
{

/// What a control of a dialog template is.
enum class TemplateKind {
    Label,
    Frame,
    CheckBox,
    RadioButton,
    Button,
    Edit,
    List, ///< a drop-down list
    UpDown,
    TrackBar,
    DatePicker,
};

/// One control of a page's dialog template.
struct TemplateControl {
    TemplateKind kind = TemplateKind::Label;
    std::string_view caption; ///< as the template has it; ASCII
    int id = 0;
    bool beginsGroup = false; ///< ends the group of the controls before it
    bool readOnly = false;
};

/// A page's dialog template as code that runs without windows sees it: the
/// controls and their captions, in the order of Tab, without where they are.
struct PageTemplate {
    unsigned id = 0;
    std::vector<TemplateControl> controls;
};

/// The template of that id; null when no page has it.
const PageTemplate* FindTemplate(unsigned templateId);

/// The buttons of the group that begins with this radio button, in order: the
/// position in the group is the number that data exchange takes. Empty when the
/// template has no such button.
std::vector<const TemplateControl*> ButtonsOfGroup(const PageTemplate& page, int firstButtonId);

/// What the user reads at a control: its own caption, or for an input that of
/// the label, box or frame that names it. Without the mark of a key and the colon
/// at the end. Empty when nothing on the page names it.
Text CaptionOf(const PageTemplate& page, int controlId);

/// What the user reads above a group of radio buttons: the label or frame that
/// comes last before its first button.
Text CaptionOfGroup(const PageTemplate& page, int firstButtonId);

} // namespace ov
