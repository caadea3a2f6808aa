#include "controls/tool_tip_control.h"

#include <utility>

#include "controls/core/tooltip_markup.h"

IMPLEMENT_DYNAMIC(CToolTipControl, CWnd)

BEGIN_MESSAGE_MAP(CToolTipControl, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CToolTipControl::Create(CWnd* owner, UINT style, UINT secondStyle, CToolTipTextProvider* provider)
{
    m_style = style;
    m_secondStyle = secondStyle;
    m_provider = provider;
    return CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 0, 0, AfxSafeHwnd(owner),
                    nullptr);
}

void CToolTipControl::RegisterControl(const CWnd* control, ov::Text text, HICON icon)
{
    std::unique_ptr<std::remove_pointer_t<HICON>, ToolTipEntry::IconDeleter> owned(icon);
    if (AfxSafeHwnd(control) == nullptr)
        return;
    ToolTipEntry& entry = m_entries[control->m_hWnd];
    entry.text = std::move(text);
    if (owned)
        entry.icon = std::move(owned);
}

void CToolTipControl::AddTool(const CWnd* control, UINT textId)
{
    RegisterControl(control, AfxLoadString(textId));
}

ov::Text CToolTipControl::TextOf(const CWnd* control) const
{
    const auto found = m_entries.find(AfxSafeHwnd(control));
    if (found == m_entries.end())
        return {};
    if (found->second.text.empty() && m_provider != nullptr)
        return m_provider->GetToolTipText(found->first);
    return found->second.text;
}

ov::Text CToolTipControl::GetVariableName(const CWnd* control) const
{
    return ov::VariableName(TextOf(control));
}

ov::Text CToolTipControl::GetDescription(const CWnd* control) const
{
    return ov::Description(TextOf(control));
}

void CToolTipControl::OnDestroy()
{
    // Window handles are used again; a text must not outlive its control's round.
    m_entries.clear();
    CWnd::OnDestroy();
}
