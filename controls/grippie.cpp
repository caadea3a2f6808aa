#include "controls/grippie.h"

#include "controls/core/layout.h"

namespace
{
// The grip is never looked up, so it has the id of all controls without an id of their own.
constexpr UINT gripId = 0xFFFF;
} // namespace

IMPLEMENT_DYNAMIC(CGrippie, CScrollBar)

CGrippie::CGrippie(CWnd& dialog) : m_dialog(dialog) {}

CRect CGrippie::CornerRect() const
{
    CRect client;
    m_dialog.GetClientRect(&client);
    const ov::Rect rect = ov::GripRect(client.Width(), client.Height());
    return {rect.left, rect.top, rect.right, rect.bottom};
}

BOOL CGrippie::Create()
{
    // WS_GROUP makes it a group of its own: arrow keys on the dialog's buttons must not reach it.
    return CScrollBar::Create(WS_CHILD | WS_VISIBLE | WS_GROUP | SBS_SIZEGRIP, CornerRect(), &m_dialog,
                              gripId);
}

void CGrippie::MoveToCorner()
{
    if (m_hWnd == nullptr)
        return;
    const CRect rect = CornerRect();
    SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}
