#pragma once

#include "base/text.h"
#include "controls/core/list_text.h"
#include "controls/pref_list_ctrl.h"
#include "controls/resizable_dlg.h"
#include "controls/resource_icon.h"

#include <optional>

/// The list editor, the dialog "Multi-Entry Values": edits the text of a variable
/// that holds several values, one entry per row. ov::ListRows implements what the
/// rows contain; the dialog shows them and passes on the user's actions.
class CConfigSettingDlg : public CResizableDlg
{
    DECLARE_DYNAMIC(CConfigSettingDlg)

  public:
    /// A nonzero `browsing` adds a file chooser. `fieldSeparator` is 0 for
    /// entries with one field.
    CConfigSettingDlg(CWnd* parent, ov::Text listText, UINT browsing, char16_t separator, char16_t qualifier,
                      char16_t fieldSeparator, size_t fieldCount);

    BOOL OnInitDialog() override;

    /// The original list text or, after the dialog ended with OK, the edited one.
    const ov::Text& GetListText() const { return m_listText; }

  protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void InitControlLayout() override;
    UINT AccessibleNameId(int controlId) const override;
    void OnOK() override;

    /// Sets the buttons' icons in the size for the dialog's resolution.
    void OnTemplateLayout() override;

    void OnDestroy();
    void OnGetMinMaxInfo(MINMAXINFO* info);
    void OnValueChanged();
    void OnInsert();
    void OnDelete();
    void OnMoveUp();
    void OnMoveDown();
    void OnBrowse();
    void OnRowChanged(NMHDR* header, LRESULT* result);
    LRESULT OnShowSelection(WPARAM wParam, LPARAM lParam);
    void OnColumnClick(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

  private:
    void CreateColumns();
    void FillList();
    void RegisterTooltips();
    void ShowMoveIcon(CButton& button, ResourceIcon& shown, UINT iconId) const;
    void ShowValue(ov::Text text);
    /// Shows the value of the row that was selected or deselected last, unless it is shown already.
    void ShowSelection();
    void UpdateButtons();
    void EnableButton(CButton& button, bool enable, CWnd& next);
    void MoveSelectedRow(int step);
    void SelectRow(int row);
    void RemoveShownRow(int row);
    bool ShowInsertedRow(const std::optional<ov::ListRows::Inserted>& inserted);
    bool ConfirmDeletion(UINT rowCount);

    CPrefListCtrl m_list;
    CEdit m_valueEdit;
    CButton m_moveUpButton;
    CButton m_moveDownButton;
    ResourceIcon m_moveUpIcon;
    ResourceIcon m_moveDownIcon;
    CButton m_deleteButton;
    CButton m_insertButton;
    CButton m_browseButton;
    ov::Text m_valueText;
    ov::Text m_listText;
    size_t m_fieldCount;
    bool m_browsing;
    bool m_removingRow = false;
    bool m_selectionChanged = false;         ///< showSelectionMessage has been posted
    std::optional<ov::Text> m_selectedValue; ///< the value that ShowSelection has to show
    ov::ListRows m_rows;
};
