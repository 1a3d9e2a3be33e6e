#include "symbols.h"

#include <afxdllx.h>

static AFX_EXTENSION_MODULE SymbolsDLL = {FALSE, NULL, NULL};

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved) {
    UNREFERENCED_PARAMETER(lpReserved);
    if (dwReason == DLL_PROCESS_ATTACH) {
        TRACE0("SYMBOLS.DLL Initializing!\n");
        if (!AfxInitExtensionModule(SymbolsDLL, hInstance))
            return 0;
        new CDynLinkLibrary(SymbolsDLL);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(SymbolsDLL);
    }
    return 1;
}

const UINT WM_SYMBOL_PICKED = ::RegisterWindowMessage(_T("WM_SYMBOL_PICKED"));

IMPLEMENT_SERIAL(CSymbol, CObject, 1)
IMPLEMENT_SERIAL(CRoundSymbol, CSymbol, 1)
IMPLEMENT_SERIAL(CSquareSymbol, CSymbol, 1)

void CSymbol::Draw(CDC* pDC, const CRect& rect) const {
    pDC->Rectangle(rect);
}

void CRoundSymbol::Draw(CDC* pDC, const CRect& rect) const {
    pDC->Ellipse(rect);
}

void CSquareSymbol::Draw(CDC* pDC, const CRect& rect) const {
    pDC->Rectangle(rect);
    pDC->MoveTo(rect.left, rect.top);
    pDC->LineTo(rect.right, rect.bottom);
}

/////////////////////////////////////////////////////////////////////////////
// CSymbolCombo

IMPLEMENT_DYNAMIC(CSymbolCombo, CComboBox)

BEGIN_MESSAGE_MAP(CSymbolCombo, CComboBox)
ON_CONTROL_REFLECT_EX(CBN_SELCHANGE, &CSymbolCombo::OnSelchange)
END_MESSAGE_MAP()

void CSymbolCombo::PreSubclassWindow() {
    SetItemHeight(0, 20);
    SetItemHeight(-1, 16);
    CComboBox::PreSubclassWindow();
}

void CSymbolCombo::Fill() {
    static const LPCTSTR classes[] = {_T("CRoundSymbol"), _T("CSquareSymbol")};
    ResetContent();
    for (int i = 0; i < 2; i++) {
        CObject* pSymbol = CRuntimeClass::FromName(classes[i])->CreateObject();
        int nIndex = AddString(static_cast<CSymbol*>(pSymbol)->GetLabel());
        SetItemDataPtr(nIndex, pSymbol);
    }
}

CString CSymbolCombo::GetClassOfSelection() const {
    int nIndex = GetCurSel();
    if (nIndex == CB_ERR)
        return CString();
    CSymbol* pSymbol = static_cast<CSymbol*>(GetItemDataPtr(nIndex));
    return CString(pSymbol->GetRuntimeClass()->m_lpszClassName);
}

void CSymbolCombo::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    lpMeasureItemStruct->itemHeight = 20;
}

void CSymbolCombo::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect rect(lpDrawItemStruct->rcItem);
    BOOL bSelected = lpDrawItemStruct->itemState & ODS_SELECTED;
    pDC->FillSolidRect(rect, ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (lpDrawItemStruct->itemID == (UINT)-1)
        return;
    CSymbol* pSymbol = reinterpret_cast<CSymbol*>(lpDrawItemStruct->itemData);
    if (pSymbol != NULL)
        pSymbol->Draw(pDC, CRect(rect.left + 2, rect.top + 2, rect.left + 14, rect.top + 14));
}

void CSymbolCombo::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    delete reinterpret_cast<CSymbol*>(lpDeleteItemStruct->itemData);
}

BOOL CSymbolCombo::OnSelchange() {
    GetParent()->PostMessage(WM_SYMBOL_PICKED, GetDlgCtrlID(), GetCurSel());
    return FALSE;
}
