#pragma once

#include "base/text.h"
#include "config/core/setting_store.h"
#include "controls/resizable_dlg.h"
#include "wizard/page_scroller.h"

class CPreferencesWizard;

/// Base class of every category page and of the category pane: a modeless child
/// dialog in the preferences dialog's page area. It has a page id, scrolling, its
/// own keyboard rules, and the browse operations of the "..." buttons.
class CWizardPage : public CResizableDlg
{
    DECLARE_DYNAMIC(CWizardPage)

  public:
    /// The page's window is created later, by CreateOrShow. `scrollSize` is the
    /// size of the page's whole content in pixels at the usual resolution.
    CWizardPage(CPreferencesWizard* owner, UINT pageId, CSize scrollSize, UINT templateId);
    ~CWizardPage() override;

    BOOL PreTranslateMessage(MSG* message) override;

    /// Creates the page's window, if it has none, as a child of `parent`, moves it
    /// to `rectangle` (in the parent's client coordinates) and shows it. False
    /// if the window could not be created.
    virtual bool CreateOrShow(CWnd* parent, const CRect& rectangle);

    /// From now until EndOpening, CreateOrShow creates the page's window without showing
    /// it: nothing of the dialog is visible while it opens.
    void BeginOpening() { m_isOpening = true; }
    virtual void EndOpening() { m_isOpening = false; }

    // OnPostShow and OnTabKey are hooks of the design. No page overrides them.

    /// Called after the page was shown.
    virtual void OnPostShow() {}

    virtual UINT GetPageId() const { return m_pageId; }

    /// Moves the page, if it has a window, and redraws it.
    virtual void MoveToRect(const CRect& rectangle);

    /// Scrolls the page so that the control, one of its children, is visible.
    void ScrollTo(HWND control);

    /// Notifies the dialog that the page was modified (or no longer is).
    virtual void SetModified(bool modified);

    /// Loads the page's values from a table of the store. False for a page without settings.
    virtual bool LoadSettings(ov::TableSelector table);

    /// Writes the page's values into the store's current table. If `wizard` is null,
    /// the page's parent is used.
    virtual bool SaveSettings(CPreferencesWizard* wizard);

    /// Called for the Tab key. Return true to handle it in the page.
    virtual bool OnTabKey() { return false; }

    virtual UINT GetTemplateId() const { return m_templateId; }

    /// The dialog that contains the page's window, and the only way from a page to it. Null
    /// while there is no window.
    virtual CPreferencesWizard* GetParentWizard() const;

    /// Lets the user choose a folder; sets `text` to its path.
    virtual void BrowseFolder(ov::Text& text);

    /// Lets the user choose a file and sets `text` to its path, or, for a list,
    /// opens the list editor with a file chooser.
    virtual void BrowseFileOrList(ov::Text& text, bool list);

    /// Opens the list editor for `text`. False, after a message, if the text's
    /// qualifiers are not paired: the editor could only guess where entries end.
    bool EditValueList(ov::Text& text, UINT browsing, char16_t separator, char16_t qualifier,
                       char16_t fieldSeparator, size_t fieldCount);

    /// Sets the table that the page loads when its window is created.
    void SetPendingTable(ov::TableSelector table) { m_pendingTable = table; }

  protected:
    /// Fits the scroll bars to the content, whose size grows with the dialog units.
    void OnTemplateLayout() override;
    void OnResolutionChanged() override;

    /// The size that scrolling must be able to show, unless the page has the usual
    /// dialog units: otherwise the page is scaled with its units, and its texts do not
    /// grow in exactly the same proportion.
    virtual CSize NeededSize() const { return {}; }

    /// The part of the page, from its origin, that scrolling can make visible.
    CSize ReachableSize() const { return m_scroller.ReachableSize(); }

    /// Scrolls to the origin first: the layout computes positions for an unscrolled
    /// page.
    void LayoutPass() override;

    bool IsOpening() const { return m_isOpening; }

    /// The dialog that the page was constructed for. It is part of the design and not used:
    /// pages find their dialog by GetParentWizard.
    CPreferencesWizard* Owner() const { return m_owner; }
    ov::TableSelector TakePendingTable();
    void OnSettingChanged();

    /// A page does not close by itself. A request to close it, such as Escape in a multi-line edit, is
    /// not meant for the page.
    void OnOK() override {}
    void OnCancel() override {}

    LRESULT OnShowWindow(WPARAM show, LPARAM reason);
    void OnSize(UINT type, int width, int height);
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* dc);
    LRESULT OnCtlColorStatic(WPARAM context, LPARAM control);
    LRESULT OnPrintClient(WPARAM context, LPARAM);
    void OnHScroll(UINT code, UINT position, CWnd* sender);
    void OnVScroll(UINT code, UINT position, CWnd* sender);
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

  private:
    bool m_isOpening = false;
    ov::TableSelector m_pendingTable = ov::kCurrentTable;
    UINT m_templateId;
    UINT m_pageId;
    CPreferencesWizard* m_owner;
    CSize m_contentSize;
    CPageScroller m_scroller;
};
