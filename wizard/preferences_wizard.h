#pragma once

#include "config/core/setting_store.h"
#include "config/text_file.h"
#include "controls/resizable_dlg.h"
#include "controls/resource_icon.h"
#include "wizard/left_pane.h"
#include "wizard/wizard_page.h"
#include "wizard/wizard_setup.h"

#include <memory>
#include <vector>

/// The preferences dialog. It owns the settings, the pages, the category pane and
/// the configuration file, and controls when they are read, shown and written.
class CPreferencesWizard : public CResizableDlg
{
    DECLARE_DYNAMIC(CPreferencesWizard)

  public:
    CPreferencesWizard(CWnd* parent, WizardSetup setup);
    ~CPreferencesWizard() override;

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnInitDialog() override;
    virtual void RegisterTooltips();
    void InitControlLayout() override;
    void RepositionCurrentPage() override;
    /// When a page is hidden, the focus moves to the category list that was used to leave the page.
    HWND FocusAfterLosing(HWND lost) const override;
    virtual bool CreateLeftPane();

    /// Constructs the pages in catalogue order, without windows. Always true: the design
    /// has a result, and its callers check it.
    virtual bool CreatePages();

    /// Shows the page with that id. Does nothing if there is none or it is already shown.
    void SelectPage(UINT pageId);

    /// Every page loads its values from the table. The defaults mark the dialog as modified.
    void LoadAllPages(ov::TableSelector table);

    /// Every page writes its values into the store, then the file is written. False
    /// on the first failure.
    bool SaveAllPages();

    /// Writes the current table to the current path, with a temporary backup.
    /// Asks before it replaces a file whose content the dialog does not know. On
    /// failure shows the reason or, if the file cannot be created, only moves the
    /// focus to its name.
    bool WriteConfigFile();

    /// Calls WriteConfigFile. Also false if there is no file object yet, that is, if
    /// nothing has been read or saved.
    bool SaveConfigFile();

    /// Reads the current path into the current table and the pages, or writes
    /// it. Clears the modified mark on success.
    bool OpenConfigFile(bool fromDisk);

    /// The settings. Pages read and write them here.
    ov::SettingStore& Store() { return m_store; }

    /// The comment block from the help text registered for `control`; empty if there
    /// is no control. Saving pages build theirs from their rows; this function is
    /// for callers that only have the control.
    ov::Text MakeSettingComment(const CWnd* control) const;

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    /// WM_QUIT asks the same question as Cancel.
    void OnQuit() override { OnCancelCommand(); }

    /// Sets the window's icon in the size for its resolution.
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
    bool ReadConfigFile(ov::TableSelector table);
    CTextFileEx& ConfigFile();
    /// Ends the pages' opening and shows the current one.
    void ShowFirstPage();
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
    const WizardSetup m_setup;
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
    /// The header that the last save wrote above the variables. It is part of the design;
    /// nothing reads it.
    ov::Text m_savedHeader;
};
