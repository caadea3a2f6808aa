#pragma once

#include "base/text.h"
#include "controls/resizable_dlg.h"
#include "wizard/page_scroller.h"

class CPreferencesWizard;

/// Base of every category page and of the category pane: a modeless child
/// dialog in the preferences dialog's page area, with an identity, scrolling,
/// keyboard rules of its own and the browse operations of the "..." buttons.
class CWizardPage : public CResizableDlg
{
    DECLARE_DYNAMIC(CWizardPage)

  public:
    /// The page's window is made later, by CreateOrShow. `scrollSize` is the
    /// size of the page's whole content in pixels at the usual resolution.
    CWizardPage(CPreferencesWizard* owner, UINT pageId, CSize scrollSize, UINT templateId);
    ~CWizardPage() override;

    BOOL PreTranslateMessage(MSG* message) override;

    /// Makes the page's window if it has none, as a child of `parent`, moves it
    /// into `rectangle` (the parent's client coordinates) and shows it. False
    /// when the window could not be made.
    virtual bool CreateOrShow(CWnd* parent, const CRect& rectangle);

    /// Called after the page was shown.
    virtual void OnPostShow() {}

    virtual UINT GetPageId() const { return m_pageId; }

    /// Moves the page, if it has a window, and repaints it.
    virtual void MoveToRect(const CRect& rectangle);

    /// Scrolls the control, which lies on the page, into view.
    void ScrollTo(HWND control);

    /// Tells the dialog that the page was changed (or no longer is).
    virtual void SetModified(bool modified);

    /// Store to page; selector 0 = current table, 1 = defaults table.
    virtual bool LoadSettings(int selector);

    /// Page to store, always the current table. Without a wizard the page's
    /// own parent is taken.
    virtual bool SaveSettings(CPreferencesWizard* wizard);

    /// A page that wants the Tab key for itself returns true.
    virtual bool OnTabKey() { return false; }

    virtual UINT GetTemplateId() const { return m_templateId; }

    /// The dialog that the page's window sits in; none while there is no window.
    virtual CPreferencesWizard* GetParentWizard() const;

    /// Lets the user choose a folder into `text`.
    virtual void BrowseFolder(ov::Text& text);

    /// Lets the user choose a file into `text`, or, for a list, edit its
    /// entries with browsing on.
    virtual void BrowseFileOrList(ov::Text& text, bool list);

    /// Opens the list editor on `text`. False, after a message, when the text's
    /// qualifiers do not pair up: the editor could only guess where entries end.
    bool EditValueList(ov::Text& text, UINT browsing, char16_t separator, char16_t qualifier,
                       char16_t fieldSeparator, size_t fieldCount);

    /// The table that the page loads from when its window is made.
    void SetPendingSelector(int selector) { m_pendingSelector = selector; }

  protected:
    /// Fits the scroll bars to the content, whose size grows with the units.
    void OnTemplateLayout() override;
    void OnResolutionChanged() override;

    /// The size that the page has to bring into view at least, unless its units are
    /// the usual ones: at others the page grows with its units, and its texts do not
    /// grow in quite the same proportion.
    virtual CSize NeededSize() const { return {}; }

    /// The part of the page, from its origin, that scrolling brings into view.
    CSize ReachableSize() const { return m_scroller.ReachableSize(); }

    /// Back to the origin first: the places that the layout gives are those of
    /// an unscrolled page.
    void LayoutPass() override;

    CPreferencesWizard* Owner() const { return m_owner; }
    int TakePendingSelector();
    void OnSettingChanged();

    /// A page is not closed by itself: what asks for it, such as an edit of several lines at Escape,
    /// means something else.
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
    int m_pendingSelector = 0;
    UINT m_templateId;
    UINT m_pageId;
    CPreferencesWizard* m_owner;
    CSize m_contentSize;
    CPageScroller m_scroller;
};
