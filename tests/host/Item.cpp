#include "stdafx.h"
#include "Item.h"

IMPLEMENT_SERIAL(CItem, CObject, 1)

CItem::CItem() : m_nCount(1), m_bVisible(TRUE), m_nLines(0), m_pSymbol(NULL) {}

CItem::~CItem() {
    delete m_pSymbol;
}

CString CItem::GetText() const {
    CString str;
    str.Format(_T("%s*%d%s%s"), (LPCTSTR)m_strName, m_nCount, m_pSymbol ? m_pSymbol->GetLabel() : _T("-"),
               m_nLines == 1 ? _T("=") : _T(""));
    return m_bVisible ? str : _T("(") + str + _T(")");
}

void CItem::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    if (ar.IsStoring())
        ar << m_strName << m_nCount << m_bVisible << m_nLines << m_pSymbol;
    else
        ar >> m_strName >> m_nCount >> m_bVisible >> m_nLines >> m_pSymbol;
}
