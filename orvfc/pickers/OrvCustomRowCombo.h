#pragma once

#include "OrvRecordCombo.h"

// A record combo with a row 其它... ("other"), normally its last, that asks the user for a value of his own.
//
// Who moves through the open list with the keys is asked when the list closes on that row; Esc goes back
// without asking. Everything else that selects the row (a click, a key while the list is closed) asks at
// once. A cancelled question goes back to the row that was current, and is told like a choice.
class ORVFC_API COrvCustomRowCombo : public COrvRecordCombo {
    DECLARE_DYNAMIC(COrvCustomRowCombo)

public:
    void Dump(CDumpContext& dc) const override;

protected:
    explicit COrvCustomRowCombo(CWnd* pMessageWnd) : COrvRecordCombo(pMessageWnd), m_pCurrent(NULL) {}

    // Asks. FALSE: the user has cancelled. On OK the value is made current; the combo may also be gone then,
    // object and all.
    virtual BOOL AskValue() = 0;
    // The message of PostChoice.
    virtual UINT GetChoiceMessage() const = 0;

    // Of the last row of that name; -1 when there is none.
    int GetCustomIndex() const;
    static BOOL IsCustom(const COrvCmbRecord& record);
    // Moves that row behind all others. The selected row stays selected.
    void SetCustormToBottom();
    // As InsertRecord, before the last such row or, without one, at the end.
    int InsertBeforeCustom(COrvCmbRecord* pRecord);

    // The item that a cancelled question goes back to; -1 when it is gone.
    int GetRememberedItem() const;

    // The name of a row: the choice that a cancelled question goes back to. Set by every selection of a row
    // that is not the custom one.
    CString m_strCurrent;
    // That row's record; only compared: rows may bear the same name.
    const COrvCmbRecord* m_pCurrent;

    void OnSelchange() override;
    void OnSelected() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg BOOL OnSelendok();
    afx_msg BOOL OnSelendcancel();
    afx_msg BOOL OnCloseup();
    afx_msg LRESULT OnListClosed(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void Ask();
    void SelectCurrentAgain();

    BOOL m_bAskOnClose = FALSE; // the open list stands on the custom row
    BOOL m_bCancelled = FALSE;  // how the list was closed
};
