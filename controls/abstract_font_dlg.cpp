#include "controls/abstract_font_dlg.h"

#include "controls/application.h"

IMPLEMENT_DYNAMIC(CAbstractFontDlg, CDialog)

CAbstractFontDlg::CAbstractFontDlg(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

BOOL CAbstractFontDlg::OnInitDialog()
{
    const BOOL result = CDialog::OnInitDialog();
    if (const CFont* font = GetSharedDialogFont()) {
        const auto handle = reinterpret_cast<WPARAM>(font->GetSafeHandle());
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            ::SendMessageW(child, WM_SETFONT, handle, TRUE);
    }
    return result;
}

BOOL CAbstractFontDlg::Create(UINT templateId, CWnd* parent)
{
    return CDialog::Create(templateId, parent);
}
