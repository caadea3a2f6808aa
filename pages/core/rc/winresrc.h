#pragma once

// Replaces the system header of this name, so that the C++ compiler can read the
// same dialog templates as the resource compiler. The macros turn the words of a
// template into one expression: the arguments of ov::ReadTemplate, the last of
// which is a list with one element per control. Only page_template.cpp includes
// this file.

// NOLINTBEGIN(cppcoreguidelines-macro-usage, bugprone-macro-parentheses)

// clang-format off
#define DIALOGEX ,
#define STYLE ,
#define EXSTYLE ,
#define FONT ,
#define BEGIN , { {
#define END } }

// Each control keyword closes the element of the previous control.
#define LTEXT }, {ov::TemplateKind::Label,
#define GROUPBOX }, {ov::TemplateKind::Frame,
#define AUTOCHECKBOX }, {ov::TemplateKind::CheckBox,
#define AUTORADIOBUTTON }, {ov::TemplateKind::RadioButton,
#define PUSHBUTTON }, {ov::TemplateKind::Button,
#define EDITTEXT }, {ov::TemplateKind::Edit, "",
#define COMBOBOX }, {ov::TemplateKind::List, "",
#define CONTROL }, {

// Styles: only the beginning of a group and a read-only edit are evaluated. "NOT"
// removes a style.
#define NOT 0 *
#define WS_GROUP 0x1
#define ES_READONLY 0x2

#define CBS_DROPDOWNLIST 0
#define CBS_SORT 0
#define DS_CONTROL 0
#define DS_SETFONT 0
#define DTS_SHORTDATECENTURYFORMAT 0
#define ES_AUTOHSCROLL 0
#define ES_NUMBER 0
#define ES_WANTRETURN 0
#define TBS_BOTH 0
#define TBS_HORZ 0
#define TBS_NOTICKS 0
#define UDS_ALIGNRIGHT 0
#define UDS_ARROWKEYS 0
#define UDS_NOTHOUSANDS 0
#define UDS_SETBUDDYINT 0
#define WS_BORDER 0
#define WS_CHILD 0
#define WS_CLIPCHILDREN 0
#define WS_DISABLED 0
#define WS_EX_CONTROLPARENT 0
#define WS_EX_TRANSPARENT 0
#define WS_TABSTOP 0
#define WS_VISIBLE 0
#define WS_VSCROLL 0
// clang-format on

// NOLINTEND(cppcoreguidelines-macro-usage, bugprone-macro-parentheses)
