#pragma once

#include "base/text.h"

#include <string_view>
#include <vector>

namespace ov
{

/// The kind of a control in a dialog template.
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
    std::string_view caption; ///< as in the template; ASCII
    int id = 0;
    bool beginsGroup = false; ///< true if it ends the group of the controls before it
    bool readOnly = false;
};

/// A page's dialog template for code that runs without windows: the controls and
/// their captions in tab order, without their positions.
struct PageTemplate {
    unsigned id = 0;
    std::vector<TemplateControl> controls;
};

/// The template with that id; null if no page has it.
const PageTemplate* FindTemplate(unsigned templateId);

/// The buttons of the group that begins with this radio button, in order. The
/// position in the group is the number that data exchange uses. Empty if the
/// template has no such button.
std::vector<const TemplateControl*> ButtonsOfGroup(const PageTemplate& page, int firstButtonId);

/// The caption that the user sees for a control: its own or, for an input, that of
/// the label, box or frame that names it. Without the mnemonic mark and the colon
/// at the end. Empty if nothing on the page names it.
Text CaptionOf(const PageTemplate& page, int controlId);

/// The caption above a group of radio buttons: the last label or frame before its
/// first button.
Text CaptionOfGroup(const PageTemplate& page, int firstButtonId);

} // namespace ov
