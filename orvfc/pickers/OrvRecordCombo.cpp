#include "OrvRecordCombo.h"

#include <string>

#include "NameSearch.h"
#include "RowPaint.h"

COrvCmbRecord::~COrvCmbRecord() = default;

void COrvCmbRecord::Dump(CDumpContext& dc) const {
    dc << "record " << GetName() << "\n";
}

IMPLEMENT_DYNAMIC(COrvRecordCombo, CComboBox)

BEGIN_MESSAGE_MAP(COrvRecordCombo, CComboBox)
ON_WM_CREATE()
ON_WM_CHAR()
ON_CONTROL_REFLECT_EX(CBN_SELCHANGE, &COrvRecordCombo::OnReflectSelchange)
END_MESSAGE_MAP()

COrvRecordCombo::COrvRecordCombo(CWnd* pMessageWnd, int nRowHeight)
    : m_pMessageWnd(pMessageWnd), m_pOwnRow(NULL), m_nRowHeight(nRowHeight) {}

// A window that outlives its object would keep the records for ever.
COrvRecordCombo::~COrvRecordCombo() {
    if (m_hWnd)
        DestroyWindow();
}

// --- attaching

BOOL COrvRecordCombo::PreCreateWindow(CREATESTRUCT& cs) {
    orv::completeStyle(cs, CBS_DROPDOWNLIST);
    return CComboBox::PreCreateWindow(cs);
}

void COrvRecordCombo::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    if (orv::hasList(*this))
        orv::setRowHeights(*this, m_nRowHeight);
}

int COrvRecordCombo::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    const int nResult = CComboBox::OnCreate(lpCreateStruct);
    if (nResult == 0)
        orv::setRowHeights(*this, m_nRowHeight);
    return nResult;
}

BOOL COrvRecordCombo::OwnsItems() const {
    return (GetStyle() & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) != 0;
}

BOOL COrvRecordCombo::HasStrings() const {
    return (GetStyle() & CBS_HASSTRINGS) != 0;
}

// --- records

int COrvRecordCombo::InsertRecord(int nIndex, COrvCmbRecord* pRecord) {
    // Only owner-drawn combos say when an item goes.
    ASSERT(m_hWnd && OwnsItems());
    int nItem = CB_ERR;
    const int nSelected = m_hWnd && nIndex >= 0 ? GetCurSel() : -1;
    if (m_hWnd && OwnsItems() && nIndex >= -1) {
        if (HasStrings()) {
            nItem = InsertString(nIndex, pRecord ? pRecord->GetName() : CString());
            SetRecord(nItem, pRecord);
        } else {
            nItem = static_cast<int>(DefWindowProc(CB_INSERTSTRING, static_cast<WPARAM>(nIndex),
                                                   reinterpret_cast<LPARAM>(pRecord)));
        }
    }
    if (nItem < 0)
        delete pRecord;
    else if (nSelected >= nItem && GetCurSel() != nSelected + 1)
        SetCurSel(nSelected + 1);
    return nItem;
}

// Past WindowProc, which keeps others from doing this.
void COrvRecordCombo::SetRecord(int nIndex, COrvCmbRecord* pRecord) {
    if (nIndex >= 0)
        DefWindowProc(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(pRecord));
}

COrvCmbRecord* COrvRecordCombo::TakeRecord(int nIndex) {
    COrvCmbRecord* pRecord = GetRecord(nIndex);
    if (IsOwnRow(pRecord))
        KeepOwnRow();
    if (pRecord)
        SetRecord(nIndex, NULL);
    if (m_hWnd)
        DeleteString(static_cast<UINT>(nIndex));
    return pRecord;
}

COrvCmbRecord* COrvRecordCombo::GetRecord(int nIndex) const {
    if (!m_hWnd || nIndex < 0)
        return NULL;
    // Lists of thousands are walked by this: one message a row.
    void* const pData = GetItemDataPtr(nIndex);
    return pData == reinterpret_cast<void*>(CB_ERR) ? NULL : static_cast<COrvCmbRecord*>(pData);
}

void COrvRecordCombo::DeleteOwnRow() {
    for (int i = m_pOwnRow && m_hWnd ? GetCount() : 0; i-- > 0;)
        if (GetRecord(i) == m_pOwnRow) {
            DeleteString(static_cast<UINT>(i));
            return;
        }
}

int COrvRecordCombo::InsertOwnRow(int nIndex, COrvCmbRecord* pRecord) {
    const int nItem = InsertRecord(nIndex, pRecord);
    m_pOwnRow = GetRecord(nItem);
    return nItem;
}

int COrvRecordCombo::FindNamed(const CString& strName) const {
    return FindRecord<COrvCmbRecord>(
        [&](const COrvCmbRecord& record) { return record.GetName().Compare(strName) == 0; });
}

int COrvRecordCombo::SelectItem(int nIndex) {
    if (!m_hWnd || nIndex < 0 || nIndex >= GetCount())
        return 0;
    SetCurSel(nIndex);
    return 1;
}

CString COrvRecordCombo::CurrentName() const {
    const auto* pRecord = CurrentRecord<COrvCmbRecord>();
    return pRecord ? pRecord->GetName() : CString();
}

void COrvRecordCombo::SetInit() {
    SelectItem(0);
}

void COrvRecordCombo::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (!pDC)
        return;
    const orv::SavedDC saved(pDC);
    const CRect rc(lpDrawItemStruct->rcItem);
    // A sample may be higher than its row.
    pDC->IntersectClipRect(&rc);
    const int nState = static_cast<int>(lpDrawItemStruct->itemState & (ODS_SELECTED | ODS_DISABLED));
    if (lpDrawItemStruct->itemID == static_cast<UINT>(-1))
        orv::paintBackground(pDC, rc, nState);
    else if (auto* pRecord = reinterpret_cast<COrvCmbRecord*>(lpDrawItemStruct->itemData))
        DrawRecord(*pRecord, pDC, rc, nState);
}

void COrvRecordCombo::DrawRecord(COrvCmbRecord& record, CDC* pDC, const CRect& rc, int nState) {
    record.DrawItem(pDC, rc, nState);
}

void COrvRecordCombo::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(m_nRowHeight);
}

void COrvRecordCombo::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    auto* const pRecord = reinterpret_cast<COrvCmbRecord*>(lpDeleteItemStruct->itemData);
    if (pRecord == m_pOwnRow)
        m_pOwnRow = NULL;
    delete pRecord;
    lpDeleteItemStruct->itemData = 0;
}

// --- choices

BOOL COrvRecordCombo::OnReflectSelchange() {
    OnSelchange();
    // Go on to the parent's own handler.
    return FALSE;
}

void COrvRecordCombo::PostChoice(UINT message) {
    if (m_pMessageWnd) {
        if (m_pMessageWnd->GetSafeHwnd())
            m_pMessageWnd->PostMessage(message);
    } else if (const HWND hParent = m_hWnd ? ::GetParent(m_hWnd) : NULL) {
        ::PostMessage(hParent, message, static_cast<WPARAM>(GetDlgCtrlID()), 0);
    }
}

// --- typing

void COrvRecordCombo::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (m_typed.Add(m_hWnd, nChar))
        SelectTyped();
    else
        CComboBox::OnChar(nChar, nRepCnt, nFlags);
}

void COrvRecordCombo::SelectTyped() {
    const int nSelected = GetCurSel();
    const int nFound = orv::rowTyped(m_typed.GetText(), GetCount(), nSelected, [this](int nRow) {
        const COrvCmbRecord* pRecord = GetRecord(nRow);
        return pRecord ? pRecord->GetName() : CString();
    });
    if (nFound < 0 || nFound == nSelected)
        return;
    CComboBox::SetCurSel(nFound);
    // The parent hears of it as of any other key.
    const HWND hWnd = m_hWnd;
    const HWND hParent = ::GetParent(hWnd);
    const auto tell = [&](UINT code) {
        if (::IsWindow(hWnd))
            ::SendMessage(hParent, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(hWnd), code),
                          reinterpret_cast<LPARAM>(hWnd));
    };
    if (!GetDroppedState())
        tell(CBN_SELENDOK);
    tell(CBN_SELCHANGE);
}

// --- messages from anywhere

// The selected name in the window's own kind of characters, cut to nRoom of them (0: only its length).
LRESULT COrvRecordCombo::GiveText(WPARAM nRoom, LPARAM lpBuffer) const {
    const CString strName = CurrentName();
    if (!::IsWindowUnicode(m_hWnd)) {
        if (nRoom > 0)
            ::lstrcpynA(reinterpret_cast<LPSTR>(lpBuffer), strName, static_cast<int>(nRoom));
        return nRoom > 0 ? ::lstrlenA(reinterpret_cast<LPCSTR>(lpBuffer)) : strName.GetLength();
    }
    std::wstring wide(static_cast<size_t>(strName.GetLength()), L'\0');
    wide.resize(static_cast<size_t>(::MultiByteToWideChar(CP_ACP, 0, strName, strName.GetLength(),
                                                          wide.data(), static_cast<int>(wide.size()))));
    if (nRoom == 0)
        return static_cast<LRESULT>(wide.size());
    const size_t nCopied = wide.copy(reinterpret_cast<WCHAR*>(lpBuffer), nRoom - 1);
    reinterpret_cast<WCHAR*>(lpBuffer)[nCopied] = L'\0';
    return static_cast<LRESULT>(nCopied);
}

LRESULT COrvRecordCombo::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
        // The system would give the item's data out as a text.
        if (!HasStrings() && (GetStyle() & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST)
            return GiveText(message == WM_GETTEXT ? wParam : 0, lParam);
        break;
    case CB_SETITEMDATA:
        // Somebody else's pointer would be deleted as a record.
        return CB_ERR;
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
    case CB_DIR:
        // Without strings the text itself would be the item's data.
        if (!HasStrings())
            return CB_ERR;
        break;
    case WM_SETFONT:
        CComboBox::WindowProc(message, wParam, lParam);
        orv::setRowHeights(*this, m_nRowHeight);
        return 0;
    case CB_SETCURSEL:
    case CB_SELECTSTRING: {
        const LRESULT nItem = CComboBox::WindowProc(message, wParam, lParam);
        if (nItem != CB_ERR)
            OnSelected();
        return nItem;
    }
    default:
        break;
    }
    return CComboBox::WindowProc(message, wParam, lParam);
}

// --- debugging

void COrvRecordCombo::AssertValid() const {
    CComboBox::AssertValid();
    ASSERT(m_nRowHeight > 0);
}

void COrvRecordCombo::Dump(CDumpContext& dc) const {
    CComboBox::Dump(dc);
    const int nCount = m_hWnd ? GetCount() : 0;
    dc << "items = " << nCount << ", selected = " << (m_hWnd ? GetCurSel() : -1)
       << ", message window = " << static_cast<const void*>(m_pMessageWnd) << "\n";
    for (int i = 0; i < nCount; ++i)
        if (const COrvCmbRecord* pRecord = GetRecord(i))
            pRecord->Dump(dc);
}
