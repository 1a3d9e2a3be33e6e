#include "OrvCustomRowCombo.h"

namespace {

constexpr UINT kListClosed = WM_APP + 0x23; // to itself

} // namespace

IMPLEMENT_DYNAMIC(COrvCustomRowCombo, COrvRecordCombo)

BEGIN_MESSAGE_MAP(COrvCustomRowCombo, COrvRecordCombo)
ON_CONTROL_REFLECT_EX(CBN_SELENDOK, &COrvCustomRowCombo::OnSelendok)
ON_CONTROL_REFLECT_EX(CBN_SELENDCANCEL, &COrvCustomRowCombo::OnSelendcancel)
ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, &COrvCustomRowCombo::OnCloseup)
ON_MESSAGE(kListClosed, &COrvCustomRowCombo::OnListClosed)
END_MESSAGE_MAP()

// --- the custom row

BOOL COrvCustomRowCombo::IsCustom(const COrvCmbRecord& record) {
    return record.GetName() == _T("其它...");
}

int COrvCustomRowCombo::GetCustomIndex() const {
    for (int i = (m_hWnd ? GetCount() : 0) - 1; i >= 0; --i)
        if (const COrvCmbRecord* pRecord = GetRecord(i); pRecord && IsCustom(*pRecord))
            return i;
    return -1;
}

void COrvCustomRowCombo::SetCustormToBottom() {
    const int nCustom = GetCustomIndex();
    if (nCustom < 0 || nCustom == GetCount() - 1)
        return;
    const BOOL bSelected = GetCurSel() == nCustom;
    const int nItem = InsertRecord(-1, TakeRecord(nCustom));
    if (bSelected)
        SetCurSel(nItem);
}

int COrvCustomRowCombo::InsertBeforeCustom(COrvCmbRecord* pRecord) {
    return InsertRecord(GetCustomIndex(), pRecord);
}

// --- what is current

void COrvCustomRowCombo::OnSelected() {
    const COrvCmbRecord* pRecord = CurrentRecord<COrvCmbRecord>();
    if (!pRecord || IsCustom(*pRecord))
        return;
    m_strCurrent = pRecord->GetName();
    m_pCurrent = pRecord;
}

int COrvCustomRowCombo::GetRememberedItem() const {
    const int nItem = FindRecord<COrvCmbRecord>([this](const COrvCmbRecord& record) {
        return &record == m_pCurrent && record.GetName() == m_strCurrent;
    });
    return nItem < 0 ? FindNamed(m_strCurrent) : nItem;
}

void COrvCustomRowCombo::SelectCurrentAgain() {
    int nItem = GetRememberedItem();
    if (nItem < 0)
        nItem = GetCount() < 2 ? -1 : 0;
    SetCurSel(nItem);
}

// --- choices

void COrvCustomRowCombo::OnSelchange() {
    m_bAskOnClose = FALSE;
    const COrvCmbRecord* pRecord = CurrentRecord<COrvCmbRecord>();
    if (!pRecord)
        return;
    if (!IsCustom(*pRecord)) {
        OnSelected();
        PostChoice(GetChoiceMessage());
    } else if (GetDroppedState()) {
        m_bAskOnClose = TRUE;
    } else {
        Ask();
    }
}

void COrvCustomRowCombo::Ask() {
    const HWND hWnd = m_hWnd;
    const BOOL bChosen = AskValue();
    if (FromHandlePermanent(hWnd) != this)
        return; // gone while the user was asked
    if (bChosen)
        SetCustormToBottom();
    else
        SelectCurrentAgain();
    PostChoice(GetChoiceMessage());
}

BOOL COrvCustomRowCombo::OnSelendok() {
    m_bCancelled = FALSE;
    return FALSE;
}

BOOL COrvCustomRowCombo::OnSelendcancel() {
    m_bCancelled = TRUE;
    return FALSE;
}

BOOL COrvCustomRowCombo::OnCloseup() {
    if (m_bAskOnClose && m_bCancelled) {
        m_bAskOnClose = FALSE;
        SelectCurrentAgain();
    } else if (m_bAskOnClose) {
        // A click closes the list before it tells which row it has chosen.
        PostMessage(kListClosed);
    }
    return FALSE;
}

LRESULT COrvCustomRowCombo::OnListClosed(WPARAM, LPARAM) {
    if (!m_bAskOnClose || GetDroppedState())
        return 0;
    m_bAskOnClose = FALSE;
    const COrvCmbRecord* pRecord = CurrentRecord<COrvCmbRecord>();
    if (pRecord && IsCustom(*pRecord))
        Ask();
    return 0;
}

LRESULT COrvCustomRowCombo::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // The rows go, and with them the choice to go back to.
    if (message == CB_RESETCONTENT || message == WM_DESTROY) {
        m_strCurrent.Empty();
        m_pCurrent = NULL;
        m_bAskOnClose = FALSE;
    }
    return COrvRecordCombo::WindowProc(message, wParam, lParam);
}

void COrvCustomRowCombo::Dump(CDumpContext& dc) const {
    COrvRecordCombo::Dump(dc);
    dc << "current = " << m_strCurrent << "\n";
}
