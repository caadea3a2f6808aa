#pragma once

#include <memory>
#include <vector>

#include "config/core/setting_store.h"
#include "config/text_file.h"
#include "controls/resizable_dlg.h"
#include "controls/resource_icon.h"
#include "wizard/left_pane.h"
#include "wizard/wizard_page.h"

/// The one modal dialog: it owns the settings, the pages, the category pane and
/// the configuration file, and decides when what is read, shown and written.
class CPreferencesWizard : public CResizableDlg
{
    DECLARE_DYNAMIC(CPreferencesWizard)

  public:
    explicit CPreferencesWizard(CWnd* parent = nullptr);
    ~CPreferencesWizard() override;

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnInitDialog() override;
    virtual void RegisterTooltips();
    void InitControlLayout() override;
    void RepositionCurrentPage() override;
    /// A page that is left gives the focus to the category list, by which it was left.
    HWND FocusAfterLosing(HWND lost) const override;
    virtual bool CreateLeftPane();

    /// Constructs the pages in catalogue order; makes no windows.
    virtual bool CreatePages();

    /// Shows the page with that id; nothing when there is none or it is shown.
    void SelectPage(UINT pageId);

    /// Every page takes its values from the table that the selector names
    /// (0 = current, 1 = defaults); defaults mark the dialog modified.
    void LoadAllPages(int selector);

    /// Every page writes itself into the store, then the file is written. False
    /// on the first failure.
    bool SaveAllPages();

    /// Saves by WriteConfigFile. False also when there is no file object yet:
    /// nothing has been read or saved through it.
    bool SaveConfigFile();

    /// Reads the current path into the current table and the pages, or writes
    /// it. Success clears the modified flag.
    bool OpenConfigFile(bool fromDisk);

    /// The settings; the pages read and write them here.
    ov::SettingStore& Store() { return m_store; }

    /// The comment block made from the help text that is registered for
    /// `control`; empty when there is no control. Pages that save make theirs from
    /// their rows; this one is for whoever has only the control.
    ov::Text MakeSettingComment(const CWnd* control) const;

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    /// The program around us ends: the question is the same as for Cancel.
    void OnQuit() override { OnCancelCommand(); }

    /// Gives the window its icon, in the size of its resolution.
    void OnTemplateLayout() override;

    void OnSize(UINT type, int width, int height);
    void OnPaint();
    void OnSysCommand(UINT id, LPARAM lParam);
    void OnGetMinMaxInfo(MINMAXINFO* info);
    HCURSOR OnQueryDragIcon();
    void OnBrowseConfigFile();
    void OnSave();
    void OnCancelCommand();
    void OnLoadDefaults();
    LRESULT OnPageModified(WPARAM page, LPARAM modified);
    DECLARE_MESSAGE_MAP()

  private:
    bool ReadConfigFile(int selector);
    /// Writes the current table to the current path, behind a temporary backup.
    /// Asks before it replaces a file whose content the dialog does not know. On
    /// failure tells why, or, if the file cannot be created, only puts the focus
    /// on its name.
    bool WriteConfigFile();
    CTextFileEx& ConfigFile();
    void UpdateButtons();
    void UpdateFocusItems();
    void ScrollToFocus();
    void FitIntoWorkArea();
    CRect PlaceholderRect(int id) const;
    void PlaceAfter(CWnd& child, int placeholderId);
    int ShowMessage(const ov::Text& text, UINT type);

    CEdit m_configPathEdit;
    CButton m_saveButton;
    CButton m_loadDefaultsButton;
    std::vector<std::unique_ptr<CWizardPage>> m_pages;
    ov::SettingStore m_store;
    ov::Text m_currentPath;
    ov::Text m_defaultPath;
    HWND m_lastFocus = nullptr;
    CEdit m_focusDescriptionEdit;
    std::unique_ptr<CLeftPane> m_leftPane;
    int m_currentPage = -1;
    ResourceIcon m_icon;
    std::unique_ptr<CTextFileEx> m_configFile;
    CEdit m_focusVariableEdit;
    ov::Text m_savedHeader; ///< what the last save wrote above the variables
};
