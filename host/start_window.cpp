#include "host/start_window.h"

#include "host/host_texts.h"
#include "launch/core/launch_settings.h"
#include "resources/ids.h"

#include <utility>

IMPLEMENT_DYNAMIC(CStartWindow, CDialog)

BEGIN_MESSAGE_MAP(CStartWindow, CDialog)
    ON_BN_CLICKED(IDC_HOST_START_FILE_BROWSE, &CStartWindow::OnBrowseFile)
    ON_BN_CLICKED(IDC_HOST_START_DEFAULTS_BROWSE, &CStartWindow::OnBrowseDefaults)
    ON_BN_CLICKED(IDC_HOST_START_FOLDER_BROWSE, &CStartWindow::OnBrowseFolder)
    ON_BN_CLICKED(IDC_HOST_START_KEEP, &CStartWindow::OnKeep)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{
// The digits of LaunchSettings::kMostCopies.
constexpr WPARAM mostDigits = 3;
} // namespace

CStartWindow::CStartWindow(ov::StartChoice& choice, Check check)
    : CDialog(IDD_HOST_START), m_choice(choice), m_check(std::move(check))
{
}

BOOL CStartWindow::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(::LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(IDI_PREFERENCES)), TRUE);
    const bool keep = m_choice.copies != 0;
    GetDlgItem(IDC_HOST_START_FILE)->SetWindowText(m_choice.file);
    GetDlgItem(IDC_HOST_START_DEFAULTS)->SetWindowText(m_choice.defaults);
    GetDlgItem(IDC_HOST_START_COPIES)
        ->SetWindowText(ov::FormatInteger(keep ? m_choice.copies : ov::LaunchSettings().copies));
    GetDlgItem(IDC_HOST_START_FOLDER)->SetWindowText(m_choice.copyFolder);
    GetDlgItem(IDC_HOST_START_COPIES)->SendMessage(EM_LIMITTEXT, mostDigits);
    ::CheckDlgButton(m_hWnd, IDC_HOST_START_KEEP, keep ? BST_CHECKED : BST_UNCHECKED);
    OnKeep();
    NameButtons();
    return TRUE;
}

// The captions of the buttons are the same except for their mnemonics.
void CStartWindow::NameButtons()
{
    m_names.Set(*GetDlgItem(IDC_HOST_START_FILE_BROWSE), HostText(IDS_HOST_NAME_BROWSE_FILE));
    m_names.Set(*GetDlgItem(IDC_HOST_START_DEFAULTS_BROWSE), HostText(IDS_HOST_NAME_BROWSE_DEFAULTS));
    m_names.Set(*GetDlgItem(IDC_HOST_START_FOLDER_BROWSE), HostText(IDS_HOST_NAME_BROWSE_FOLDER));
}

void CStartWindow::OnDestroy()
{
    m_names.Clear();
    CDialog::OnDestroy();
}

bool CStartWindow::KeepsCopies() const
{
    return ::IsDlgButtonChecked(m_hWnd, IDC_HOST_START_KEEP) == BST_CHECKED;
}

void CStartWindow::OnKeep()
{
    for (const int id : {IDC_HOST_START_COPIES_LABEL, IDC_HOST_START_COPIES, IDC_HOST_START_FOLDER_LABEL,
                         IDC_HOST_START_FOLDER, IDC_HOST_START_FOLDER_BROWSE, IDC_HOST_START_FOLDER_HINT})
        GetDlgItem(id)->EnableWindow(KeepsCopies());
}

void CStartWindow::OnBrowseFile()
{
    BrowseFor(IDC_HOST_START_FILE, IDS_HOST_CHOOSE_FILE);
}

void CStartWindow::OnBrowseDefaults()
{
    BrowseFor(IDC_HOST_START_DEFAULTS, IDS_HOST_CHOOSE_DEFAULTS);
}

void CStartWindow::BrowseFor(int editId, UINT titleId)
{
    const ov::Text filter = HostText(IDS_HOST_FILTER);
    const ov::Text title = HostText(titleId);
    const ov::Text present = GetDlgItemText(editId);
    const ov::Text folder = present.substr(0, present.find_last_of(u"\\/") + 1);
    CFileDialog chooser(TRUE, L"cfg", nullptr, OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                        Wide(filter), this);
    chooser.m_ofn.lpstrTitle = Wide(title);
    chooser.m_ofn.lpstrInitialDir = folder.empty() ? nullptr : Wide(folder);
    if (chooser.DoModal() == IDOK)
        GetDlgItem(editId)->SetWindowText(chooser.GetPathName());
}

void CStartWindow::OnBrowseFolder()
{
    CFolderBrowser browser(HostText(IDS_HOST_CHOOSE_FOLDER), this);
    if (browser.DoModal() == IDOK)
        GetDlgItem(IDC_HOST_START_FOLDER)->SetWindowText(browser.GetPathName());
}

ov::StartChoice CStartWindow::Entered() const
{
    const auto text = [this](int id) { return ov::Text(ov::Trim(GetDlgItemText(id))); };
    // The Explorer copies a path with quotes around it.
    const auto path = [&](int id) {
        const ov::Text entered = text(id);
        const bool isQuoted = entered.size() > 1 && entered.starts_with(u'"') && entered.ends_with(u'"');
        return isQuoted ? entered.substr(1, entered.size() - 2) : entered;
    };
    ov::StartChoice entered;
    entered.file = path(IDC_HOST_START_FILE);
    entered.defaults = path(IDC_HOST_START_DEFAULTS);
    entered.copies = KeepsCopies() ? ov::ToInteger(text(IDC_HOST_START_COPIES)) : 0;
    entered.copyFolder = path(IDC_HOST_START_FOLDER);
    return entered;
}

void CStartWindow::OnOK()
{
    ov::StartChoice entered = Entered();
    std::optional<StartProblem> problem;
    if (KeepsCopies() && entered.copies == 0)
        problem = StartProblem{
            IDC_HOST_START_COPIES,
            HostText(IDS_HOST_COPIES_RANGE, {ov::FormatInteger(ov::LaunchSettings::kMostCopies)})};
    else
        problem = m_check(entered);
    if (!problem) {
        m_choice = std::move(entered);
        EndDialog(IDOK);
        return;
    }
    AfxShowMessageBox(m_hWnd, problem->text, HostText(IDS_HOST_CAPTION), MB_OK | MB_ICONWARNING);
    CWnd* const input = GetDlgItem(problem->control);
    input->SetFocus();
    input->SendMessage(EM_SETSEL, 0, -1);
}
